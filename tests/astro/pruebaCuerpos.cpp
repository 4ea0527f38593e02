#include "Efemerides.h"
#include "literalAstro.h"
#include "modAstro.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace modAstro;

double Grados(int g, int m, double s)
{
    return g + m / 60.0 + s / 3600;
}

// Meeus, Astronomical Algorithms, 2nd ed., example 25.a (1992 October 13.0). The formulas are the same,
// so all printed digits hold; right ascension there is 198.38083, here -180..180.
TEST(modAstro, PosicionSolDelEjemplo25a)
{
    double alfa, delta, distancia, tsg;
    PosicionSol(2448908.5, alfa, delta, distancia, tsg);
    EXPECT_NEAR(alfa * kRadAGrados, 198.38083 - 360, 1e-5);
    EXPECT_NEAR(delta * kRadAGrados, -7.78507, 1e-5);
    EXPECT_NEAR(distancia, 0.99766, 1e-5);
}

// Meeus, examples 12.a and 12.b: mean sidereal time at Greenwich, given to 0.0001 second (4e-7 degree).
TEST(modAstro, TiempoSidereoDeLosEjemplos12)
{
    EXPECT_NEAR(TiempoSidereo(2446895.5) * kRadAGrados, 15 * Grados(13, 10, 46.3668), 5e-7);
    EXPECT_NEAR(TiempoSidereo(2446896.30625) * kRadAGrados, 15 * Grados(8, 34, 57.0896), 5e-7);
    EXPECT_NEAR(TiempoSidereo(2451545.0) * kRadAGrados, 280.46061837, 1e-10) << "at J2000";
    double alfa, delta, distancia, tsg;
    PosicionSol(2446895.5, alfa, delta, distancia, tsg);
    EXPECT_EQ(tsg, TiempoSidereo(2446895.5)) << "one sidereal time for all";
}

// Meeus, example 27.a: June solstice of 1962 at JDE 2437837.39245. The Sun's right ascension is 90 degrees
// there; the low-accuracy theory is good to 0.01 degree.
TEST(modAstro, PosicionSolEnElSolsticioDe1962)
{
    double alfa, delta, distancia, tsg;
    PosicionSol(2437837.39245, alfa, delta, distancia, tsg);
    EXPECT_NEAR(alfa * kRadAGrados, 90.0, 0.01);
    EXPECT_NEAR(delta * kRadAGrados, 23.44, 0.01);
}

TEST(modAstro, AscensionRectaDelSolNegativaEnLaSegundaMitad)
{
    double alfa, delta, distancia, tsg;
    PosicionSol(DiaJuliano(2026, 11, 15, 0), alfa, delta, distancia, tsg);
    EXPECT_LT(alfa, 0.0);
    PosicionSol(DiaJuliano(2026, 5, 15, 0), alfa, delta, distancia, tsg);
    EXPECT_GT(alfa, 0.0);
}

TEST(modAstro, PuntoSubsolarTieneElSolEnElCenit)
{
    for (double jd = DiaJuliano(1900, 1, 1, 0); jd < DiaJuliano(2200, 12, 31, 0); jd += 173.3) {
        double lat, lon, altitud, azimut;
        PuntoSubsolar(jd, lat, lon);
        ASSERT_LE(std::fabs(lat), 23.5) << jd;
        ASSERT_GT(lon, -180.0) << jd;
        ASSERT_LE(lon, 180.0) << jd;
        AzAltCuerpo(jd, lat, lon, false, altitud, azimut);
        ASSERT_NEAR(altitud, 90.0, 1e-6) << jd; // cosines near 1 leave half the digits
    }
}

// Meeus, example 47.a (1992 April 12.0): longitude 133.162655, latitude -3.229126, distance 368409.7 km.
// Arguments linear in time move the Moon by 1e-5 degree in 1992, and nutation is left out of both sides.
TEST(modAstro, PosicionLunaDelEjemplo47a)
{
    double alfa, delta, distancia;
    PosicionLuna(2448724.5, alfa, delta, distancia);
    const double epsilon = (23.4392911 - 0.0130042 * SiglosJ2000(2448724.5)) * kGradosARad;
    const double lambda =
        std::atan2(std::sin(alfa) * std::cos(epsilon) + std::tan(delta) * std::sin(epsilon), std::cos(alfa));
    const double beta =
        std::asin(std::sin(delta) * std::cos(epsilon) - std::cos(delta) * std::sin(epsilon) * std::sin(alfa));
    EXPECT_NEAR(lambda * kRadAGrados, 133.162655, 2e-5);
    EXPECT_NEAR(beta * kRadAGrados, -3.229126, 2e-5);
    EXPECT_NEAR(distancia, 368409.7, 0.2);
    // The apparent place there, 134.688470 and 13.768368, carries 17 arc-seconds of nutation.
    EXPECT_NEAR(alfa * kRadAGrados, 134.688470, 0.006);
    EXPECT_NEAR(delta * kRadAGrados, 13.768368, 0.003);
}

// Meeus, example 48.a: at the same instant the illuminated fraction is 0.6786 (phase angle 69.0756).
TEST(modAstro, FaseLunarDelEjemplo48a)
{
    double fase, iluminada, distancia;
    FaseLunar(2448724.5, fase, iluminada, distancia);
    EXPECT_NEAR(iluminada, 0.6786, 1e-4);
    EXPECT_NEAR(distancia, 368409.7, 0.2);
    EXPECT_GT(fase, 0.25) << "two days after first quarter";
    EXPECT_LT(fase, 0.5);
}

// Meeus, examples 49.a and 49.b: new Moon at JDE 2443192.65118, last quarter at JDE 2467636.49186.
TEST(modAstro, FaseLunarEnLosInstantesDelCapitulo49)
{
    double fase, iluminada, distancia;
    FaseLunar(2443192.65118, fase, iluminada, distancia);
    EXPECT_NEAR(std::remainder(fase, 1.0), 0.0, 1e-4);
    EXPECT_LT(iluminada, 0.003);
    FaseLunar(2467636.49186, fase, iluminada, distancia);
    EXPECT_NEAR(fase, 0.75, 1e-4);
    EXPECT_NEAR(iluminada, 0.5, 0.01);
}

TEST(modAstro, FaseEIluminacionEnSuIntervaloYEnOrden)
{
    double previa = -1;
    int vueltas = 0;
    const double desde = DiaJuliano(2026, 1, 1, 0);
    for (double jd = desde; jd < desde + 365; jd += 0.25) {
        double fase, iluminada, distancia;
        FaseLunar(jd, fase, iluminada, distancia);
        ASSERT_GE(fase, 0.0);
        ASSERT_LT(fase, 1.0);
        ASSERT_GE(iluminada, 0.0);
        ASSERT_LE(iluminada, 1.0);
        ASSERT_GT(distancia, 356000.0);
        ASSERT_LT(distancia, 407000.0);
        if (fase < previa)
            ++vueltas;
        previa = fase;
        // Illumination follows phase; the inclination of the orbit keeps it off by little.
        ASSERT_NEAR(iluminada, (1 - std::cos(kDosPi * fase)) / 2, 0.01) << jd;
    }
    EXPECT_EQ(vueltas, 12) << "new Moons of 2026: both sides of one are new Moon, nothing folds them";
}

TEST(modAstro, LatitudEclipticaLunaCercaDeLaSerieEntera)
{
    for (double jd = DiaJuliano(1950, 1, 1, 0); jd < DiaJuliano(2100, 1, 1, 0); jd += 97.7) {
        double alfa, delta, distancia;
        PosicionLuna(jd, alfa, delta, distancia);
        const double epsilon = (23.4392911 - 0.0130042 * SiglosJ2000(jd)) * kGradosARad;
        const double beta = std::asin(std::sin(delta) * std::cos(epsilon) -
                                      std::cos(delta) * std::sin(epsilon) * std::sin(alfa)) *
                            kRadAGrados;
        ASSERT_NEAR(LatitudEclipticaLuna(jd), beta, 0.07) << jd; // sum of the terms left out
        ASSERT_NEAR(LatitudEclipticaLuna(jd), literal::LatitudEclipticaLuna(jd), 1e-11);
    }
}

TEST(modAstro, ParalajeDeLaLuna)
{
    for (double lat = -90; lat <= 90; lat += 7.5)
        for (double jd = DiaJuliano(2026, 1, 1, 0.3); jd < DiaJuliano(2026, 2, 1, 0); jd += 0.71) {
            double alfa, delta, distancia, alfaT, deltaT, semidiametro, az, alt, azT, altT;
            const double tsg = TiempoSidereo(jd);
            PosicionLuna(jd, alfa, delta, distancia);
            PosicionLunaTopocentrica(jd, lat, 20, tsg, alfaT, deltaT, semidiametro);
            ASSERT_LE(std::fabs(alfaT), kPi);
            EcuatorialAHorizontal(alfa, delta, tsg, lat, 20, az, alt);
            EcuatorialAHorizontal(alfaT, deltaT, tsg, lat, 20, azT, altT);
            // The Moon sinks by the horizontal parallax times the cosine of the altitude; the flattening
            // of the Earth moves that by 0.2 degree of geocentric latitude of a 1 degree parallax.
            const double p = std::asin(6378.14 / distancia);
            const double hundida = std::atan2(std::sin(p) * std::cos(altT * kGradosARad), 1.0) * kRadAGrados;
            ASSERT_NEAR(alt - altT, hundida, 0.012) << lat << " " << jd;
            // Semidiameter 0.2725 of the parallax, enlarged by at most 2 % near the zenith.
            ASSERT_NEAR(semidiametro, 0.2725 * p * kRadAGrados, 0.02 * 0.27) << lat << " " << jd;
        }
}

TEST(modAstro, LunaTopocentricaEnElPolo)
{
    // By hand: on the axis only the Moon's z changes, so its right ascension stays the geocentric one.
    const double jd = DiaJuliano(2026, 5, 3, 0.2);
    for (const double lat : {90.0, -90.0}) {
        double alfa, delta, distancia, alfaT, deltaT, semidiametro;
        PosicionLuna(jd, alfa, delta, distancia);
        PosicionLunaTopocentrica(jd, lat, 33, 1.234, alfaT, deltaT, semidiametro);
        EXPECT_NEAR(std::remainder(alfaT - alfa, kDosPi), 0.0, 1e-12);
        const double polo = 6378.14 * 0.99664719 * (lat > 0 ? 1 : -1);
        EXPECT_NEAR(deltaT, std::atan2(distancia * std::sin(delta) - polo, distancia * std::cos(delta)),
                    1e-12);
    }
}

// Meeus, example 13.b: Venus on 1987 April 10, 19:21 UT, from the Naval Observatory at Washington.
// Azimuth there counts from the south.
TEST(modAstro, EcuatorialAHorizontalDelEjemplo13b)
{
    double azimut, altitud;
    EcuatorialAHorizontal(15 * Grados(23, 9, 16.641) * kGradosARad, -Grados(6, 43, 11.61) * kGradosARad,
                          15 * Grados(8, 34, 56.853) * kGradosARad, Grados(38, 55, 17), -Grados(77, 3, 56),
                          azimut, altitud);
    EXPECT_NEAR(azimut, 68.0337 + 180, 1.5e-4); // printed to 1e-4 from an hour angle rounded to 1e-6
    EXPECT_NEAR(altitud, 15.1249, 1e-4);
}

TEST(modAstro, EcuatorialAHorizontalAdmiteAscensionNegativa)
{
    double az1, alt1, az2, alt2;
    EcuatorialAHorizontal(-2.0, 0.3, 1.0, 40, 20, az1, alt1);
    EcuatorialAHorizontal(-2.0 + kDosPi, 0.3, 1.0, 40, 20, az2, alt2);
    EXPECT_NEAR(az1, az2, 1e-11);
    EXPECT_NEAR(alt1, alt2, 1e-11);
}

// The plain formulas and the fast ones, over three centuries.
TEST(modAstro, PosicionesComoLasFormulasLlanas)
{
    constexpr double kRad = 2e-11; // 1e-9 degree
    for (double jd = DiaJuliano(1900, 1, 1, 0); jd < DiaJuliano(2201, 1, 1, 0); jd += 7.31) {
        SCOPED_TRACE(jd);
        double a, b, c, d, a2, b2, c2, d2;
        literal::PosicionSol(jd, a, b, c, d);
        PosicionSol(jd, a2, b2, c2, d2);
        ASSERT_NEAR(a, a2, kRad);
        ASSERT_NEAR(b, b2, kRad);
        ASSERT_NEAR(c, c2, 1e-13);
        ASSERT_NEAR(d, d2, 1e-14);
        literal::PosicionLuna(jd, a, b, c);
        PosicionLuna(jd, a2, b2, c2);
        ASSERT_NEAR(std::remainder(a - a2, kDosPi), 0, kRad);
        ASSERT_NEAR(b, b2, kRad);
        ASSERT_NEAR(c, c2, 1e-6);
        literal::FaseLunar(jd, a, b, c);
        FaseLunar(jd, a2, b2, c2);
        ASSERT_NEAR(std::remainder(a - a2, 1.0), 0, 1e-11);
        ASSERT_NEAR(b, b2, 1e-11);
        const double lat = std::fmod(jd * 7, 180.0) - 90;
        const double lon = std::fmod(jd * 11, 360.0) - 180;
        literal::PosicionLunaTopocentrica(jd, lat, lon, d, a, b, c);
        PosicionLunaTopocentrica(jd, lat, lon, d, a2, b2, c2);
        ASSERT_NEAR(std::remainder(a - a2, kDosPi), 0, kRad);
        ASSERT_NEAR(b, b2, kRad);
        ASSERT_NEAR(c, c2, 1e-9);
    }
}

// Same instant within 1e-9 degree. Close to the zenith an azimuth loses what the altitude gains, so it is
// weighed by the cosine of the altitude.
TEST(modAstro, AzAltCuerpoComoLasFormulasLlanas)
{
    int n = 0;
    for (double lat = -90; lat <= 90; lat += 3.75)
        for (double jd = DiaJuliano(1900, 1, 1, 0.1); jd < DiaJuliano(2201, 1, 1, 0); jd += 991.137) {
            const double lon = (n * 37) % 360 - 180.0;
            const bool luna = ++n % 2 == 0;
            double alt, az, alt2, az2;
            literal::AzAltCuerpo(jd, lat, lon, luna, alt, az);
            AzAltCuerpo(jd, lat, lon, luna, alt2, az2);
            ASSERT_NEAR(alt, alt2, 1e-9) << lat << " " << lon << " " << jd << " " << luna;
            ASSERT_NEAR(std::remainder(az - az2, 360.0) * std::cos(alt * kGradosARad), 0, 1e-9)
                << lat << " " << lon << " " << jd << " " << luna;
            ASSERT_GE(az2, 0.0);
            ASSERT_LT(az2, 360.0);
        }
    EXPECT_GT(n, 5000);
}

} // namespace

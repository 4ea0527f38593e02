#include "modPlanetas.h"

#include "modAstro.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace modAstro;

double Distancia(double x, double y, double z)
{
    return std::sqrt(x * x + y * y + z * z);
}

// Meeus, Astronomical Algorithms, 2nd ed., example 32.a: Venus on 1992 December 20.0, heliocentric
// longitude 26.11428, latitude -2.62070, radius 0.724603, for the equinox of date. Seven years of
// precession (0.0140 degree a year) lead to J2000. The mean elements are good to 0.02 degree.
TEST(modPlanetas, VenusDelEjemplo32a)
{
    double x, y, z;
    VectorHeliocentrico(2448976.5, 2, x, y, z);
    EXPECT_NEAR(Norm360(Atan2(y, x) * kRadAGrados), 26.11428 + 7.03 * 0.01397, 0.02);
    EXPECT_NEAR(std::asin(z / Distancia(x, y, z)) * kRadAGrados, -2.62070, 0.02);
    EXPECT_NEAR(Distancia(x, y, z), 0.724603, 1e-4);
}

// Meeus, example 33.a: the same day, right ascension 21h04m41.5s, declination -18 53' 16.8", apparent and
// of date: precession moves it by 0.1 degree, aberration and light-time by 0.01.
TEST(modPlanetas, VenusDelEjemplo33a)
{
    double alfa, delta;
    PosicionPlaneta(2448976.5, 2, alfa, delta);
    EXPECT_NEAR(alfa, 15 * (21 + 4 / 60.0 + 41.5 / 3600), 0.15);
    EXPECT_NEAR(delta, -(18 + 53 / 60.0 + 16.8 / 3600), 0.1);
}

TEST(modPlanetas, ElSolVistoDesdeLaTierraEsElReflejoDelBaricentro)
{
    // Index 6 has no elements: it stands in the Sun, so its direction is the Sun's, 0.36 degree of
    // precession in 26 years.
    for (double jd = DiaJuliano(2026, 1, 1, 0); jd < DiaJuliano(2027, 1, 1, 0); jd += 17) {
        double x, y, z, alfa, delta, alfaSol, deltaSol, distancia, tsg;
        VectorHeliocentrico(jd, 6, x, y, z);
        EXPECT_EQ(Distancia(x, y, z), 0.0);
        PosicionPlaneta(jd, 6, alfa, delta);
        PosicionSol(jd, alfaSol, deltaSol, distancia, tsg);
        ASSERT_NEAR(std::remainder(alfa - alfaSol * kRadAGrados, 360.0), 0, 0.5) << jd;
        ASSERT_NEAR(delta, deltaSol * kRadAGrados, 0.2) << jd;
        VectorHeliocentrico(jd, 0, x, y, z);
        ASSERT_NEAR(Distancia(x, y, z), distancia, 1e-4) << jd;
    }
    double x, y, z;
    VectorHeliocentrico(2451545, -1, x, y, z);
    EXPECT_EQ(Distancia(x, y, z), 0.0);
}

TEST(modPlanetas, DistanciasEntrePerihelioYAfelio)
{
    // Semi-major axis and eccentricity of the elements at J2000, with room for their drift.
    const double a[] = {1.0, 0.3871, 0.7233, 1.5237, 5.2029, 9.5367};
    const double e[] = {0.0168, 0.2058, 0.0069, 0.0935, 0.0487, 0.0542};
    for (std::int16_t p = 0; p < kPlanetas; ++p) {
        double menor = 99, mayor = 0;
        for (double jd = DiaJuliano(1900, 1, 1, 0); jd < DiaJuliano(2200, 1, 1, 0); jd += 5.3) {
            double x, y, z;
            VectorHeliocentrico(jd, p, x, y, z);
            menor = std::fmin(menor, Distancia(x, y, z));
            mayor = std::fmax(mayor, Distancia(x, y, z));
        }
        EXPECT_NEAR(menor, a[p] * (1 - e[p]), 0.004 * a[p]) << p;
        EXPECT_NEAR(mayor, a[p] * (1 + e[p]), 0.004 * a[p]) << p;
    }
}

TEST(modPlanetas, AngulosEnSuIntervaloTambienLejosDeNuestraEpoca)
{
    for (std::int16_t p = 0; p <= 7; ++p)
        for (double jd = DiaJuliano(-4000, 1, 1, 0); jd < DiaJuliano(9000, 1, 1, 0); jd += 70001.7) {
            double alfa, delta;
            PosicionPlaneta(jd, p, alfa, delta);
            ASSERT_GE(alfa, 0.0);
            ASSERT_LT(alfa, 360.0);
            ASSERT_LE(std::fabs(delta), 90.0);
        }
}

// Great conjunction of Jupiter and Saturn, 21 December 2020, 6 arc-minutes apart (widely reported).
TEST(modPlanetas, GranConjuncionDe2020)
{
    double alfaJ, deltaJ, alfaS, deltaS;
    PosicionPlaneta(DiaJuliano(2020, 12, 21, 0.75), 4, alfaJ, deltaJ);
    PosicionPlaneta(DiaJuliano(2020, 12, 21, 0.75), 5, alfaS, deltaS);
    EXPECT_NEAR(alfaJ, alfaS, 0.4) << "mean elements of the giants are good to a quarter of a degree";
    EXPECT_NEAR(deltaJ, deltaS, 0.25);
}

// The poles of the galactic system for J2000: north pole at 192.85948, 27.12825; centre at 266.40499,
// -28.93617 (Hipparcos and Tycho Catalogues, vol. 1, section 1.5.3).
TEST(modPlanetas, EcuatorialAGalactico)
{
    double l, b;
    EcuatorialAGalactico(266.40499, -28.93617, l, b);
    EXPECT_NEAR(std::remainder(l, kDosPi), 0, 1e-6);
    EXPECT_NEAR(b, 0, 1e-6);
    EcuatorialAGalactico(192.85948, 27.12825, l, b);
    EXPECT_NEAR(b, kPi / 2, 1e-6);
    EcuatorialAGalactico(kAlfaCentroVL * kRadAGrados, kDeltaCentroVL * kRadAGrados, l, b);
    EXPECT_NEAR(std::remainder(l, kDosPi), 0, 1e-4);
    // As the band's painter calls it, with galactic angles.
    EcuatorialAGalactico(0, 0, l, b);
    EXPECT_NEAR(l * kRadAGrados, 96.3, 0.05);
    EXPECT_NEAR(b * kRadAGrados, -60.2, 0.05);
}

TEST(modPlanetas, EcuatorialAGalacticoEsUnGiro)
{
    // A rotation keeps the angle between two directions; the matrix as it is does so to 1e-8.
    const auto coseno = [](double a1, double b1, double a2, double b2) {
        return std::sin(b1) * std::sin(b2) + std::cos(b1) * std::cos(b2) * std::cos(a1 - a2);
    };
    for (double a = 0; a < 360; a += 11)
        for (double b = -90; b <= 90; b += 9) {
            double l, c, l0, c0;
            EcuatorialAGalactico(a, b, l, c);
            EcuatorialAGalactico(100, 20, l0, c0);
            ASSERT_GE(l, 0.0);
            ASSERT_LT(l, kDosPi);
            ASSERT_NEAR(coseno(l, c, l0, c0),
                        coseno(a * kGradosARad, b * kGradosARad, 100 * kGradosARad, 20 * kGradosARad), 1e-8);
        }
}

} // namespace

#include "Efemerides.h"

#include "SenoCoseno.h"
#include "literalAstro.h"
#include "modAstro.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace modAstro;

TEST(SenoCoseno, ComoLaDeLaPlataforma)
{
    for (double g = -1500; g <= 1500; g += 0.173) {
        const SenCos r = SenoCoseno(g);
        const double x = std::remainder(g, 360.0) * (3.141592653589793 / 180);
        ASSERT_NEAR(r.sen, std::sin(x), 4e-16) << g;
        ASSERT_NEAR(r.cos, std::cos(x), 4e-16) << g;
    }
    // Multiples of 90 degrees come out exact.
    for (int k = -8; k <= 8; ++k) {
        const SenCos r = SenoCoseno(90.0 * k);
        EXPECT_EQ(std::fabs(r.sen), k % 2 == 0 ? 0.0 : 1.0);
        EXPECT_EQ(std::fabs(r.cos), k % 2 == 0 ? 1.0 : 0.0);
    }
    EXPECT_TRUE(std::isnan(SenoCoseno(std::numeric_limits<double>::infinity()).sen));
    EXPECT_LE(std::fabs(SenoCoseno(1e300).cos), 1.0);
}

TEST(Efemerides, VectorYAngulosSonElMismoLugar)
{
    const double jd = DiaJuliano(2026, 8, 12, 0.7);
    double alfa, delta, distancia, alfa2, delta2, distancia2;
    VectorAEcuatorial(VectorLuna(jd), alfa, delta, distancia);
    PosicionLuna(jd, alfa2, delta2, distancia2);
    EXPECT_NEAR(Norm2Pi(alfa), alfa2, 1e-15);
    EXPECT_EQ(delta, delta2);
    EXPECT_EQ(distancia, distancia2);
    EXPECT_NEAR(Longitud(VectorLuna(jd)), distancia, 1e-9);
}

TEST(Efemerides, AltAzDeLosEjes)
{
    struct Caso
    {
        VectorHorizontal v;
        double altitud, azimut;
    };
    // By hand.
    const Caso casos[] = {
        {{1, 0, 0}, 0, 0},  {{0, 1, 0}, 0, 90},    {{-1, 0, 0}, 0, 180}, {{0, -1, 0}, 0, 270},
        {{1, 0, 1}, 45, 0}, {{0, 2, -2}, -45, 90}, {{0, 0, 5}, 90, 180}, {{0, 0, -5}, -90, 180},
    };
    for (const Caso& c : casos) {
        double altitud, azimut;
        VectorAAltAz(c.v, altitud, azimut);
        EXPECT_NEAR(altitud, c.altitud, 1e-12);
        EXPECT_NEAR(azimut, c.azimut, 1e-12);
    }
}

TEST(Efemerides, GirarAlHorizonteComoAzAltCuerpo)
{
    const double jd = DiaJuliano(2026, 8, 12, 0.7);
    const Observador obs(-33.8688, 151.2093);
    for (const bool luna : {false, true}) {
        double altitud, azimut, altitud2, azimut2;
        VectorAAltAz(GirarAlHorizonte(luna ? VectorLuna(jd) : VectorSol(jd), luna, TiempoSidereo(jd), obs),
                     altitud, azimut);
        AzAltCuerpo(jd, -33.8688, 151.2093, luna, altitud2, azimut2);
        EXPECT_NEAR(altitud, altitud2, 1e-12);
        EXPECT_NEAR(azimut, azimut2, 1e-12);
    }
}

// Every span length that is promised, over the whole range of years.
TEST(Efemerides, TramoComoLaSerie)
{
    int n = 0;
    for (double jd0 = DiaJuliano(1900, 1, 1, 0.123); jd0 < DiaJuliano(2200, 12, 1, 0); jd0 += 411.37) {
        const double dias = 0.25 + 0.25 * (n++ % 8);
        for (const bool luna : {false, true}) {
            const TramoCuerpo tramo(luna, jd0, dias);
            EXPECT_EQ(tramo.EsLuna(), luna);
            EXPECT_EQ(tramo.Inicio(), jd0);
            for (int i = 0; i <= 20; ++i) {
                const double jd = jd0 + dias * i / 20;
                const Vector3 a = tramo.Geocentrico(jd - jd0);
                const Vector3 b = luna ? VectorLuna(jd) : VectorSol(jd);
                ASSERT_NEAR(Longitud({a.x - b.x, a.y - b.y, a.z - b.z}) / Longitud(b), 0, 1e-11)
                    << jd0 << " + " << dias * i / 20 << " luna " << luna;
            }
        }
    }
}

TEST(Efemerides, TramoAzAltComoLasFormulasLlanas)
{
    int n = 0;
    for (double jd0 = DiaJuliano(1900, 1, 1, 0.4); jd0 < DiaJuliano(2200, 12, 1, 0); jd0 += 1500.21) {
        const double lat = (n * 29) % 181 - 90;
        const double lon = (n++ * 47) % 361 - 180;
        const Observador obs(lat, lon);
        for (const bool luna : {false, true}) {
            const TramoCuerpo tramo(luna, jd0);
            for (int i = 0; i <= 24; ++i) {
                double alt, az, alt2, az2;
                literal::AzAltCuerpo(jd0 + i / 24.0, lat, lon, luna, alt, az);
                tramo.AzAlt(jd0 + i / 24.0, obs, alt2, az2);
                ASSERT_NEAR(alt, alt2, 1e-9);
                ASSERT_NEAR(std::remainder(az - az2, 360.0) * std::cos(alt * kGradosARad), 0, 1e-9);
                // Smooth time differs by what a Julian day's last bit turns the sky: 8e-8 degree.
                VectorAAltAz(tramo.EnHorizonte(i / 24.0, obs), alt2, az2);
                ASSERT_NEAR(alt, alt2, 2e-7);
            }
        }
    }
}

} // namespace

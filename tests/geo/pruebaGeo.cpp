#include "modGeo.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using namespace modGeo;

TEST(modGeo, DistanciaEntrePuntosIgualesEsCero)
{
    for (double lat = -90; lat <= 90; lat += 7.3)
        EXPECT_EQ(DistanciaKm(lat, 33.3, lat, 33.3), 0.0);
}

// By hand from the circumference of the sphere, pi * 12742.0176 km.
TEST(modGeo, DistanciasConocidas)
{
    const double vuelta = 3.14159265358979 * kDiametroKm;
    EXPECT_NEAR(DistanciaKm(0, 0, 0, 90), vuelta / 4, 1e-9);
    EXPECT_NEAR(DistanciaKm(0, 0, 0, 180), vuelta / 2, 1e-9);
    EXPECT_NEAR(DistanciaKm(90, 0, -90, 123), vuelta / 2, 1e-9);
    EXPECT_NEAR(DistanciaKm(0, 0, 1, 0), vuelta / 360, 1e-9);
    EXPECT_NEAR(DistanciaKm(60, 179.5, 60, -179.5), DistanciaKm(60, 0, 60, 1), 1e-9);
    // Meeus, Astronomical Algorithms, 2nd ed., example 11.c: Paris to Washington, 6181.63 km on the
    // ellipsoid; the sphere is within 0.6 %.
    EXPECT_NEAR(DistanciaKm(48.8364, 2.3372, 38.9214, -77.0656), 6181.63, 0.006 * 6181.63);
}

TEST(modGeo, AntipodasNoSonUnError)
{
    for (double lat = -89; lat <= 89; lat += 1.7)
        for (double lon = -180; lon < 0; lon += 13.7) {
            const double d = DistanciaKm(lat, lon, -lat, lon + 180);
            ASSERT_NEAR(d, 20015.1, 0.1) << lat << " " << lon;
        }
}

TEST(modGeo, DistanciaSimetricaYConDesigualdadTriangular)
{
    for (int i = 0; i < 2000; ++i) {
        const double a1 = (i * 37) % 181 - 90, o1 = (i * 71) % 361 - 180;
        const double a2 = (i * 53) % 181 - 90, o2 = (i * 89) % 361 - 180;
        const double a3 = (i * 29) % 181 - 90, o3 = (i * 97) % 361 - 180;
        ASSERT_NEAR(DistanciaKm(a1, o1, a2, o2), DistanciaKm(a2, o2, a1, o1), 1e-6);
        ASSERT_LE(DistanciaKm(a1, o1, a3, o3),
                  DistanciaKm(a1, o1, a2, o2) + DistanciaKm(a2, o2, a3, o3) + 1e-3);
    }
}

struct CasoRumbo
{
    const char* frase;
    double lat2, lon2, grados;
};

// By hand, from (0, 0).
constexpr CasoRumbo kRumbos[] = {
    {"due west is 270, not -90", 0.0, -1.0, 270.0},
    {"the same point gives 0", 0.0, 0.0, 0.0},
    {"due north", 1.0, 0.0, 0.0},
    {"due east", 0.0, 1.0, 90.0},
    {"due south", -1.0, 0.0, 180.0},
    {"to the north pole from anywhere", 90.0, 77.0, 0.0},
    {"a quarter turn east at 45 north", 45.0, 90.0, 45.0},
};

TEST(modGeo, RumboInicialDesdeElOrigen)
{
    for (const CasoRumbo& c : kRumbos) {
        SCOPED_TRACE(c.frase);
        EXPECT_NEAR(std::remainder(RumboInicial(0.0, 0.0, c.lat2, c.lon2) - c.grados, 360.0), 0, 1e-12);
    }
}

// With fused multiply-add the two products round apart and half of the latitudes answer 180.
TEST(modGeo, RumboDePuntosIgualesEsCeroExactoEnTodaLatitud)
{
    for (int i = -90000; i <= 90000; ++i) {
        const double lat = i * 0.001;
        ASSERT_EQ(RumboInicial(lat, -3.7038, lat, -3.7038), 0.0) << lat;
    }
}

TEST(modGeo, RumboEnSuIntervaloYOpuestoDeCerca)
{
    for (double lat = -80; lat <= 80; lat += 4)
        for (double angulo = 0; angulo < 360; angulo += 7) {
            const double lat2 = lat + 1e-4 * std::cos(angulo * 0.01745329251994);
            const double lon2 =
                10 + 1e-4 * std::sin(angulo * 0.01745329251994) / std::cos(lat * 0.01745329251994);
            const double ida = RumboInicial(lat, 10, lat2, lon2);
            const double vuelta = RumboInicial(lat2, lon2, lat, 10);
            ASSERT_GE(ida, 0.0);
            ASSERT_LT(ida, 360.0);
            ASSERT_NEAR(std::remainder(ida - angulo, 360.0), 0, 0.01);
            ASSERT_NEAR(std::remainder(ida - vuelta - 180, 360.0), 0, 0.01);
        }
}

TEST(modGeo, ProyeccionDePuntosConocidos)
{
    double x, y;
    LonLatAPixel(0, 0, 0, x, y);
    EXPECT_NEAR(x, 128, 1e-9);
    EXPECT_NEAR(y, 128, 1e-9);
    LonLatAPixel(180, 0, 5, x, y);
    EXPECT_EQ(x, 256.0 * 32) << "one past the last pixel";
    LonLatAPixel(-180, 85.0511287798066, 5, x, y); // atan(sinh(pi)): the north edge of the square
    EXPECT_EQ(x, 0.0);
    EXPECT_NEAR(y, 0, 1e-6);
    LonLatAPixel(0, -85.0511287798066, 5, x, y);
    EXPECT_NEAR(y, 256.0 * 32, 1e-6);
    LonLatAPixel(0, 88, 5, x, y);
    EXPECT_LT(y, 0.0) << "beyond the map, not clamped";
}

TEST(modGeo, ProyeccionIdaYVuelta)
{
    for (std::int16_t z = 0; z <= 18; ++z)
        for (double lat = -85; lat <= 85; lat += 2.5)
            for (double lon = -540; lon <= 540; lon += 41.3) {
                double x, y, lon2, lat2;
                LonLatAPixel(lon, lat, z, x, y);
                PixelALonLat(x, y, z, lon2, lat2);
                ASSERT_NEAR(lon, lon2, 1e-11) << z;
                ASSERT_NEAR(lat, lat2, 1e-11) << z;
            }
}

TEST(modGeo, LadoYSeno)
{
    EXPECT_EQ(LadoMundo(0), 256.0);
    EXPECT_EQ(LadoMundo(18), 67108864.0);
    for (double x = -3; x <= 3; x += 0.1)
        EXPECT_NEAR(Sinh(x), std::sinh(x), 1e-14);
}

TEST(modGeo, ProveedorSinValidar)
{
    EXPECT_EQ(ProveedorMapa(), 0);
    constexpr std::int16_t kIndices[] = {1, 2, 0, -7, 999};
    for (const std::int16_t n : kIndices) {
        EstablecerProveedorMapa(n);
        EXPECT_EQ(ProveedorMapa(), n);
    }
    EstablecerProveedorMapa(0);
}

} // namespace

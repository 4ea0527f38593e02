#include "VistaMapa.h"

#include "modGeo.h"

#include <cmath>
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace modMap;

TEST(VistaMapa, RangoConAnchoImpar)
{
    // By hand: the centre of the world at zoom 3 is pixel 1024; half of 801 is 400.5.
    std::int32_t x0, y0, x1, y1, n;
    RangoTilesVista({0, 0, 3, 801, 600}, x0, y0, x1, y1, n);
    EXPECT_EQ(n, 8);
    EXPECT_EQ(x0, 2); // 623.5 / 256
    EXPECT_EQ(x1, 5); // 1424.5 / 256
    EXPECT_EQ(y0, 2); // 724 / 256
    EXPECT_EQ(y1, 5);
}

TEST(VistaMapa, AZoom2UnaVistaAnchaRepiteColumnas)
{
    std::int32_t x0, y0, x1, y1, n;
    RangoTilesVista({0, 0, 2, 1600, 1400}, x0, y0, x1, y1, n);
    EXPECT_EQ(n, 4);
    EXPECT_EQ(x0, -2);
    EXPECT_EQ(x1, 5);
    EXPECT_EQ(y0, -1) << "a row that does not exist";
    EXPECT_EQ(y1, 4);
    std::multiset<std::int32_t> vistas;
    for (std::int32_t x = x0; x <= x1; ++x)
        vistas.insert(ColumnaEnMundo(x, n));
    for (std::int32_t c = 0; c < 4; ++c)
        EXPECT_EQ(vistas.count(c), 2u) << c;
}

TEST(VistaMapa, ColumnasDanLaVuelta)
{
    EXPECT_EQ(ColumnaEnMundo(-1, 4), 3);
    EXPECT_EQ(ColumnaEnMundo(-4, 4), 0);
    EXPECT_EQ(ColumnaEnMundo(-5, 4), 3);
    EXPECT_EQ(ColumnaEnMundo(4, 4), 0);
    EXPECT_EQ(ColumnaEnMundo(3, 4), 3);
}

TEST(VistaMapa, ElCentroCaeEnLaMitadConEmpatesAPar)
{
    std::int32_t mx, my;
    LonLatAPixelVista({-3.7, 40.4, 9, 801, 603}, -3.7, 40.4, mx, my);
    EXPECT_EQ(mx, 400) << "400.5 goes to the even 400";
    EXPECT_EQ(my, 302) << "301.5 goes to the even 302";
    LonLatAPixelVista({-3.7, 40.4, 9, 800, 600}, -3.7, 40.4, mx, my);
    EXPECT_EQ(mx, 400);
    EXPECT_EQ(my, 300);
}

TEST(VistaMapa, PixelIdaYVuelta)
{
    for (std::int16_t z = 2; z <= 18; ++z)
        for (const double lat : {-70.0, 0.0, 40.4, 84.0}) {
            const VistaMapa vista{179.9, lat, z, 1281, 799};
            for (std::int32_t mx = -200; mx <= 1500; mx += 173)
                for (std::int32_t my = 0; my <= 799; my += 111) {
                    double lon, la;
                    PixelVistaALonLat(vista, mx, my, lon, la);
                    std::int32_t mx2, my2;
                    LonLatAPixelVista(vista, lon, la, mx2, my2);
                    ASSERT_EQ(mx, mx2) << z << " " << lat;
                    ASSERT_EQ(my, my2) << z << " " << lat;
                }
        }
}

TEST(VistaMapa, ArrastrarMueveElSueloConElPuntero)
{
    VistaMapa vista{10, 50, 8, 800, 600};
    double lon, lat;
    PixelVistaALonLat(vista, 300, 200, lon, lat);
    DesplazarVista(vista, 40, -25);
    std::int32_t mx, my;
    LonLatAPixelVista(vista, lon, lat, mx, my);
    EXPECT_EQ(mx, 340);
    EXPECT_EQ(my, 175);
}

TEST(VistaMapa, ArrastrarSeDetieneEnLosBordesNorteYSur)
{
    for (std::int16_t z = 2; z <= 18; z = static_cast<std::int16_t>(z + 4)) {
        VistaMapa vista{0, 0, z, 800, 600};
        DesplazarVista(vista, 0, 2000000000);
        EXPECT_NEAR(vista.lat, 85.0511, 1e-4) << z;
        DesplazarVista(vista, 0, -2000000000);
        EXPECT_NEAR(vista.lat, -85.0511, 1e-4) << z;
    }
}

TEST(VistaMapa, ArrastrarAlEstePasaDeLos180)
{
    VistaMapa vista{179, 0, 4, 800, 600};
    DesplazarVista(vista, -400, 0);
    EXPECT_NEAR(vista.lon, 179 + 400 * 360 / 4096.0, 1e-9);
    std::int32_t x0, y0, x1, y1, n;
    RangoTilesVista(vista, x0, y0, x1, y1, n);
    EXPECT_GE(x1, n) << "columns past the last one, which wrap";
    DesplazarVista(vista, 400, 0);
    EXPECT_NEAR(vista.lon, 179, 1e-9);
}

TEST(VistaMapa, ZoomDejaQuietoElPuntoBajoElPuntero)
{
    for (const std::int16_t dz : {std::int16_t(1), std::int16_t(-1), std::int16_t(3)}) {
        VistaMapa vista{-3.7, 40.4, 9, 801, 600};
        double lon, lat, lon2, lat2;
        PixelVistaALonLat(vista, 123, 456, lon, lat);
        ZoomEnPunto(vista, 123, 456, dz);
        EXPECT_EQ(vista.zoom, 9 + dz);
        PixelVistaALonLat(vista, 123, 456, lon2, lat2);
        EXPECT_NEAR(lon, lon2, 1e-10);
        EXPECT_NEAR(lat, lat2, 1e-10);
    }
}

TEST(VistaMapa, ZoomQuedaEntre1Y18)
{
    VistaMapa vista{-3.7, 40.4, 18, 800, 600};
    double lon, lat, lon2, lat2;
    PixelVistaALonLat(vista, 10, 20, lon, lat);
    ZoomEnPunto(vista, 10, 20, 1);
    EXPECT_EQ(vista.zoom, 18);
    PixelVistaALonLat(vista, 10, 20, lon2, lat2);
    EXPECT_NEAR(lon, lon2, 1e-11);
    EXPECT_NEAR(lat, lat2, 1e-11);
    ZoomEnPunto(vista, 10, 20, -30);
    EXPECT_EQ(vista.zoom, 1);
    ZoomEnPunto(vista, 10, 20, 32767);
    EXPECT_EQ(vista.zoom, 18) << "no overflow of the 16-bit zoom";
}

TEST(VistaMapa, MetrosPorPixel)
{
    // By hand: the equator is 40075016.686 m over 256 pixels; half of that at 60 degrees.
    EXPECT_NEAR(MetrosPorPixel({0, 0, 0, 1, 1}), 156543.034, 1e-3);
    EXPECT_NEAR(MetrosPorPixel({0, 60, 10, 1, 1}), 156543.034 / 2048, 1e-6);
}

TEST(VistaMapa, LugaresImposiblesNoDesbordan)
{
    const VistaMapa vista{0, 0, 18, 800, 600};
    std::int32_t mx, my;
    LonLatAPixelVista(vista, 1e300, 90, mx, my);
    EXPECT_EQ(mx, 2147483647);
    LonLatAPixelVista(vista, -1e300, 90, mx, my);
    EXPECT_EQ(mx, -2147483647 - 1);
    LonLatAPixelVista(vista, std::nan(""), 0, mx, my);
    EXPECT_EQ(mx, 0);
}

} // namespace

#include "VistaMapa.h"

#include "modAstro.h"
#include "modGeo.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace modMap {

using modGeo::kLadoTile;

namespace {

// Nearest integer, ties to even; far places stop at the ends of the type.
std::int32_t Redondear(double x)
{
    constexpr double kMin = std::numeric_limits<std::int32_t>::min();
    constexpr double kMax = std::numeric_limits<std::int32_t>::max();
    return std::isnan(x) ? 0 : static_cast<std::int32_t>(std::clamp(std::nearbyint(x), kMin, kMax));
}

// World pixels of the view's centre.
void Centro(const VistaMapa& vista, double& cx, double& cy)
{
    modGeo::LonLatAPixel(vista.lon, vista.lat, vista.zoom, cx, cy);
}

} // namespace

void RangoTilesVista(const VistaMapa& vista, std::int32_t& x0, std::int32_t& y0, std::int32_t& x1,
                     std::int32_t& y1, std::int32_t& n)
{
    double cx, cy;
    Centro(vista, cx, cy);
    const double izquierda = cx - vista.ancho / 2.0;
    const double arriba = cy - vista.alto / 2.0;
    x0 = Redondear(std::floor(izquierda / kLadoTile));
    y0 = Redondear(std::floor(arriba / kLadoTile));
    x1 = Redondear(std::floor((izquierda + vista.ancho) / kLadoTile));
    y1 = Redondear(std::floor((arriba + vista.alto) / kLadoTile));
    n = Redondear(std::ldexp(1.0, vista.zoom));
}

std::int32_t ColumnaEnMundo(std::int32_t x, std::int32_t n)
{
    return ((x % n) + n) % n;
}

void PixelVistaALonLat(const VistaMapa& vista, std::int32_t mx, std::int32_t my, double& lon, double& lat)
{
    double cx, cy;
    Centro(vista, cx, cy);
    modGeo::PixelALonLat(cx - vista.ancho / 2.0 + mx, cy - vista.alto / 2.0 + my, vista.zoom, lon, lat);
}

void LonLatAPixelVista(const VistaMapa& vista, double lon, double lat, std::int32_t& mx, std::int32_t& my)
{
    double cx, cy, px, py;
    Centro(vista, cx, cy);
    modGeo::LonLatAPixel(lon, lat, vista.zoom, px, py);
    mx = Redondear(vista.ancho / 2.0 + (px - cx));
    my = Redondear(vista.alto / 2.0 + (py - cy));
}

void DesplazarVista(VistaMapa& vista, std::int32_t dx, std::int32_t dy)
{
    double cx, cy;
    Centro(vista, cx, cy);
    cx -= dx;
    cy = std::clamp(cy - dy, 0.0, modGeo::LadoMundo(vista.zoom));
    modGeo::PixelALonLat(cx, cy, vista.zoom, vista.lon, vista.lat);
}

void ZoomEnPunto(VistaMapa& vista, std::int32_t mx, std::int32_t my, std::int16_t dz)
{
    double lon, lat, px, py;
    PixelVistaALonLat(vista, mx, my, lon, lat);
    vista.zoom = static_cast<std::int16_t>(std::clamp<int>(vista.zoom + dz, kZoomMinimo, kZoomMaximo));
    modGeo::LonLatAPixel(lon, lat, vista.zoom, px, py);
    modGeo::PixelALonLat(px - mx + vista.ancho / 2.0, py - my + vista.alto / 2.0, vista.zoom, vista.lon,
                         vista.lat);
}

double MetrosPorPixel(const VistaMapa& vista)
{
    return std::cos(vista.lat * modAstro::kGradosARad) * kEcuadorMetros / modGeo::LadoMundo(vista.zoom);
}

} // namespace modMap

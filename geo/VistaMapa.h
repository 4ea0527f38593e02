// VistaMapa: the view of the map, and the road between its pixels and the Earth.
//
// View pixels count from the top left corner of the picture, x right, y down. Longitude comes before
// latitude everywhere here. Rounding to whole pixels takes halves to even.
#pragma once

#include <cstdint>

namespace modMap {

inline constexpr std::int16_t kZoomMinimo = 1;
inline constexpr std::int16_t kZoomMaximo = 18;
inline constexpr double kLatitudMapa = 85.05;          // clamp of a view that comes back from the globe
inline constexpr double kEcuadorMetros = 40075016.686; // length of the equator, WGS 84

struct VistaMapa
{
    double lon = 0;         // centre, degrees; may pass 180 after panning over the antimeridian
    double lat = 0;         // centre, degrees
    std::int16_t zoom = 2;  // Mercator zoom; 1 means that the globe shows instead of the map
    std::int32_t ancho = 0; // pixels
    std::int32_t alto = 0;
};

// The tiles that a view touches: columns x0..x1 and rows y0..y1, inclusive, not wrapped, and the number
// n of tiles along each axis. Rows outside 0..n-1 do not exist; columns wrap with ColumnaEnMundo.
void RangoTilesVista(const VistaMapa& vista, std::int32_t& x0, std::int32_t& y0, std::int32_t& x1,
                     std::int32_t& y1, std::int32_t& n);

// Column x brought into 0..n-1, n > 0: the map repeats eastward and westward.
std::int32_t ColumnaEnMundo(std::int32_t x, std::int32_t n);

// A view pixel to the place under it.
void PixelVistaALonLat(const VistaMapa& vista, std::int32_t mx, std::int32_t my, double& lon, double& lat);

// A place to the view pixel that shows it, also outside the picture.
void LonLatAPixelVista(const VistaMapa& vista, double lon, double lat, std::int32_t& mx, std::int32_t& my);

// Drags the map by a pixel delta: the ground moves with the pointer. Stops at the map's north and south
// edge; longitude runs on.
void DesplazarVista(VistaMapa& vista, std::int32_t dx, std::int32_t dy);

// Zooms by dz levels, held within 1..18, with the place under a view pixel kept there.
void ZoomEnPunto(VistaMapa& vista, std::int32_t mx, std::int32_t my, std::int16_t dz);

// Ground metres per pixel at the centre of the view.
double MetrosPorPixel(const VistaMapa& vista);

} // namespace modMap

// modGeo: spherical geometry shared by the map and the planner.
//
// The Earth is a sphere of mean radius 6371.0088 km (IUGG R1). Free functions over doubles: no
// allocation, no exceptions. Angles in degrees, north and east positive; bearings from north through
// east, 0 <= b < 360. World pixels of the spherical Mercator map (EPSG:3857) start at the north-west
// corner, y down; the world is 256 * 2^z wide. The only state is the index of the chosen base map.
#pragma once

#include <cstdint>

namespace modGeo {

inline constexpr double kDiametroKm = 12742.0176; // 2 * R1
inline constexpr double kLadoTile = 256.0;        // pixels

// Side of the Mercator world in pixels, 256 * 2^z.
double LadoMundo(std::int16_t z);

// Longitude and latitude to world pixels, with fraction. Not clamped: |lat| < 90 is the caller's care,
// and rows beyond the map's latitude fall outside 0..W. Longitude 180 is x = W.
void LonLatAPixel(double lon, double lat, std::int16_t z, double& x, double& y);

// The inverse. Longitude is not normalised: x beyond 0..W gives longitudes beyond -180..180.
void PixelALonLat(double x, double y, std::int16_t z, double& lon, double& lat);

// Hyperbolic sine.
double Sinh(double x);

// Great-circle distance, km, 0 to 20015.1. Haversine (Sinnott, Sky & Telescope 68, 1984, p. 159), sound
// for close points. Ellipsoid ignored: under 0.6 %.
double DistanciaKm(double lat1, double lon1, double lat2, double lon2);

// Initial great-circle bearing from point 1 to point 2. Due west is 270, never -90. Two equal points
// give exactly 0.
double RumboInicial(double lat1, double lon1, double lat2, double lon2);

// Index of the base map: 1 is "topo", 2 is "esri", any other value is "osm". Not validated; 0 at start.
void EstablecerProveedorMapa(std::int16_t proveedor);
std::int16_t ProveedorMapa();

} // namespace modGeo

// PerfilHorizonte: the real skyline as the solver of rise and set sees it.
//
// 720 altitudes around one place, every half degree of azimuth. The terrain code fills it; it starts out
// invalid, and an invalid skyline reads as a flat horizon. Used from the user-interface thread only.
#pragma once

#include <array>

namespace modAstroEstado {

inline constexpr int kMuestrasHorizonte = 720;

struct PerfilHorizonte
{
    // Index i stands at azimuth i / 2 degrees from north through east; degrees above the horizontal,
    // negative where the terrain falls away.
    std::array<double, kMuestrasHorizonte> altitudes{};
    bool valido = false;
    double lat = 0; // the place it belongs to, degrees
    double lon = 0;
};

// The skyline in memory.
const PerfilHorizonte& PerfilEnMemoria();

// Puts a skyline in memory and marks it valid for a place.
void EstablecerPerfil(const std::array<double, kMuestrasHorizonte>& altitudes, double lat, double lon);

// Marks the skyline invalid.
void BorrarPerfil();

// Skyline altitude in degrees, linear between the samples, at any azimuth (reduced to 0..360 here).
// 0 while no skyline is valid.
double HorizonteEnAzimut(double azimut);

// The lowest and the highest altitude of the skyline, degrees; both 0 while no skyline is valid.
void LimitesHorizonte(double& minimo, double& maximo);

// True when the skyline in memory is valid and its place is strictly less than 0.0001 degree away in
// latitude and in longitude.
bool HorizonteValidoPara(double lat, double lon);

} // namespace modAstroEstado

// modAstroEstado: the state of the astronomy core, the curves of the day that is shown.
//
// 144 places of Sun and Moon, sample i at local midnight + i ten-minute steps, kept with the date, place
// and zone that they were made for. They live from program start to end and start out invalid.
// Used from the user-interface thread only.
#pragma once

#include <array>
#include <cstdint>

namespace modAstroEstado {

inline constexpr int kMuestrasDia = 144;

struct Trayectoria
{
    std::array<double, kMuestrasDia> azimut{};  // degrees, 0 <= az < 360
    std::array<double, kMuestrasDia> altitud{}; // degrees
};

// The curves as last computed; all zeros before.
const Trayectoria& TrayectoriaSol();
const Trayectoria& TrayectoriaLuna();

// True once CalcularCurvasDia has run.
bool TrayectoriasValidas();

// Fills both curves and stores their key.
void CalcularCurvasDia(std::int16_t anio, std::int16_t mes, std::int16_t dia, double lat, double lon,
                       double zona);

// False only while the curves in memory serve this day and place: same date, latitude and longitude
// within 0.0001 degree each, zone within 0.001 hour.
bool CurvasDiaCaducadas(std::int16_t anio, std::int16_t mes, std::int16_t dia, double lat, double lon,
                        double zona);

// Back to the state of a fresh program: curves invalid.
void OlvidarCurvasDia();

} // namespace modAstroEstado

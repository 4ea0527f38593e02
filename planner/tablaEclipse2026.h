// tablaEclipse2026: the central line of the total solar eclipse of 12 August 2026, as a table.
//
// One row every two minutes of Universal Time, from 17:00 to 18:34.
#pragma once

#include <array>

struct SombraEclipse
{
    double lat = 0;     // degrees, north positive
    double lon = 0;     // degrees, east positive
    double anchoKm = 0; // width of the path of totality
};

inline constexpr double kEclipse2026Primero = 1020.0; // minutes of UT since 0 h
inline constexpr double kEclipse2026Ultimo = 1114.0;
inline constexpr double kEclipse2026Paso = 2.0;

extern const std::array<SombraEclipse, 48> TablaEclipse2026;

// The umbra at a minute of UT, linear between the rows. False outside the table, which leaves `s` alone.
bool SombraEclipse2026(double minuto, SombraEclipse& s);

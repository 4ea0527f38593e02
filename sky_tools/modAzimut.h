// modAzimut: on which days, and when, a body stands in a given direction above the horizon.
//
// Each local day is walked in steps of five minutes; a change of sign of the difference between the
// body's azimuth and the one asked for is a crossing, interpolated inside its step and printed when the
// body is up there (geometric altitude: no refraction, no skyline). Azimuths in degrees from north through
// east.
#pragma once

#include "contextoBusqueda.h"

#include <QString>

#include <cstdint>
#include <span>

namespace modAzimut {

// No list grows past this many lines: the search ends there.
inline constexpr int kLineasMaximas = 2001;
inline constexpr int kMuestrasRuta = 144;

// a - b brought into -180 to 180.
double DiferenciaAngular(double a, double b);

// One line per crossing, in time order, ended by CR LF:
//   columns 1 to 19    "dd/mm/yyyy hh:nn", local
//   columns 20 to 30   altitude, one decimal (the system's separator) and the degree sign
//   from column 31     azimuth, likewise: what it is at the interpolated moment
// or one message in parentheses without CR LF: no observer, the planner's year outside 1900 to 2200, no
// crossing in the range. A sample exactly on the azimuth counts as two crossings.
//   azimut   degrees, any value
//   dias     days to explore from the planner's date; below 1 there is none
QString BuscarAzimut(const ContextoBusqueda& c, bool luna, double azimut, std::int32_t dias);

// The body's path over the day centred on the shown instant, every ten minutes: azimuth and altitude,
// degrees, 144 of each. Answers 144, or 0 without an observer or with less room, and then writes nothing.
int RutaCielo(const ContextoBusqueda& c, bool luna, std::span<double> azimutes, std::span<double> altitudes);

} // namespace modAzimut

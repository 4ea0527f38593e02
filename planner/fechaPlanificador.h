// fechaPlanificador: which dates the planner accepts.
//
// The calendar is the Gregorian one for every year. Pure functions.
#pragma once

#include <cstdint>

namespace fechaPlanificador {

inline constexpr std::int16_t kAnioMinimo = 1900;
inline constexpr std::int16_t kAnioMaximo = 2200;

// Days of a month, 28 to 31; 0 for a month outside 1 to 12.
std::int16_t DiasMes(std::int16_t anio, std::int16_t mes);

// A date that can be computed: year 1900 to 2200, month 1 to 12, day 1 to the month's real length.
bool FechaValida(std::int16_t anio, std::int16_t mes, std::int16_t dia);

// A date that is good enough to propose a zone for: as above, but any day from 1 to 31, so that the
// proposal follows while a date is being typed.
bool FechaSirveParaZona(std::int16_t anio, std::int16_t mes, std::int16_t dia);

} // namespace fechaPlanificador

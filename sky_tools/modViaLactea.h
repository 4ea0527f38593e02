// modViaLactea: how good each night of a year is for the centre of the Milky Way.
//
// A night is sampled every half hour from 20:00 to 06:00 local time. Its best moment is that of the
// highest centre among the samples with the Sun below -18 degrees; its score, 0 to 1, is how near that
// height comes to 22 degrees, times how little the Moon disturbs at that very moment. Night 0 ends on the
// morning of 1 January.
//
// The centre is a fixed place, right ascension 266.405 and declination -28.936 degrees (J2000, no
// precession).
#pragma once

#include "contextoBusqueda.h"

#include <QLatin1String>
#include <QString>

#include <cstdint>
#include <vector>

namespace modViaLactea {

inline constexpr int kNiveles = 5;

// One line per recommendable night (level 2 or more, and the centre above 8 degrees), ended by CR LF:
//   19   "dd/mm/yyyy hh:nn", local time of the best moment
//   12   "V.L. 27" and the degree sign: altitude of the centre
//   12   "S 178" and the degree sign: its compass word and azimuth
//   16   "Luna 12% abajo" or "... arriba": illuminated part, and whether the Moon is up
//   rest the quality word
// or one message in parentheses without CR LF: no observer, a year outside 1900 to 2200, no such night.
QString MejoresNochesVL(const ContextoBusqueda& c, std::int16_t anio);

// One level, 0 to 4, per night of the year; here the centre need only be above the horizon, so a night
// may be coloured and yet absent from the list. The vector takes one element per day of the year.
// False: no observer or a year outside 1900 to 2200; every element is 0.
bool SerieAnualVL(const ContextoBusqueda& c, std::int16_t anio, std::vector<std::int16_t>& calidad);

// Level of a score, and its word: "Mala", "Regular", "Buena", "Muy buena", "Excelente".
std::int16_t NivelDe(double puntuacion);
QLatin1String PalabraDeNivel(std::int16_t nivel);

} // namespace modViaLactea

// cielo: the colour of the sky for an altitude of the Sun.
//
// Two ramps: a painterly one for the band behind the day curves, and a plain one, stronger in colour,
// for the narrow strip on which the hour is dragged. Altitudes in degrees. Pure functions.
#pragma once

#include <QRgb>

namespace cielo {

// Linear mix per channel, a at t = 0 and b at t = 1; t is clamped to 0..1. Channels round to the nearest
// whole number, halves to even.
QRgb Mezcla(QRgb a, QRgb b, double t);

// Sky band: night blue below -18, the twilights up to 0, gold around the horizon, day blue from 20 up.
// At 6 degrees the colour steps a little; that is part of the look.
QRgb ColorCielo(double alt);

// Scrub strip. At -6 the blue steps from 70 to 10 while red and green join; that seam is meant.
QRgb ColorScrub(double alt);

} // namespace cielo

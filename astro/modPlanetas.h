// modPlanetas: the naked-eye planets and the galactic rotation, to drawing accuracy.
//
// Planets from the Keplerian elements with linear rates that JPL publishes for approximate positions of
// the major planets (E. M. Standish, valid 1800 to 2050): a few arc-minutes. Outside those years they
// drift without warning. No light-time, aberration or nutation.
#pragma once

#include <cstdint>

namespace modAstro {

// Planet indices: 0 Earth-Moon barycentre, 1 Mercury, 2 Venus, 3 Mars, 4 Jupiter, 5 Saturn. Any other
// index has all elements 0 and so the null vector.
inline constexpr std::int16_t kPlanetas = 6;

// Fixed place of the Milky Way's centre, radians (266.405 and -28.936 degrees), no precession.
inline constexpr double kAlfaCentroVL = 4.649644393775488;
inline constexpr double kDeltaCentroVL = -0.5050284723570787;

// Heliocentric place on the ecliptic of J2000, astronomical units.
void VectorHeliocentrico(double jd, std::int16_t planeta, double& x, double& y, double& z);

// Geocentric place in degrees: right ascension 0 <= alfa < 360, declination.
void PosicionPlaneta(double jd, std::int16_t planeta, double& alfa, double& delta);

// The rotation from equatorial to galactic axes.
//   a, b         degrees: right ascension and declination
//   uno, dos     out, radians: galactic longitude 0 <= uno < 2 pi, latitude -pi/2 to pi/2
// The drawing of the Milky Way band calls it with galactic angles in a, b and reads the results as
// right ascension and declination: (0, 0) lands at 96.3, -60.2 degrees there.
void EcuatorialAGalactico(double a, double b, double& uno, double& dos);

} // namespace modAstro

// modEclipses: the circumstances of the eclipse that goes with a new or a full Moon.
//
// Not a general predictor: given the moment of the syzygy, a cheap latitude test, then a walk minute by
// minute with the geometry that a person would draw: the apparent distance between the two discs for
// the observer (Sun), or between the Moon and the centre of the Earth's shadow, seen from the Earth's centre
// (Moon). No Besselian elements and no Delta-T: times come out about a minute and a half late against an
// almanac of our decades, and central lines lie some 80 km off, in exchange for one time scale everywhere.
//
// Instants are Julian days in Universal Time, angles in degrees. Free functions, no state, no allocation.
#pragma once

#include <cstdint>

namespace modEclipses {

// Latitudes of the Moon at the syzygy beyond which nothing is looked at, degrees.
inline constexpr double kLatitudMaximaSol = 1.58;
inline constexpr double kLatitudMaximaLuna = 1.6;
// The Sun counts while its altitude is above this, degrees: an eclipse at sunrise begins just under the
// horizon.
inline constexpr double kAltitudMinimaSol = -0.3;

// Where the observer stands; the coordinates mean nothing without one.
struct Lugar
{
    bool hay = false;
    double lat = 0;
    double lon = 0;
};

enum class Clase : std::uint8_t
{
    Ninguno,   // no eclipse
    Posible,   // of the Sun, and there is no observer to say more
    NoVisible, // of the Sun, but not for this observer
    Penumbral, // of the Moon
    Parcial,
    Anular, // of the Sun
    Total
};

// Whether the Moon is seen from the observer's place during its eclipse.
enum class Vista : std::uint8_t
{
    SinObservador,
    Visible,      // Moon up at the maximum
    EnParte,      // down at the maximum, up at some minute of the eclipse
    BajoHorizonte // down throughout
};

// Magnitude and times have a meaning from Penumbral on.
struct EclipseSol
{
    Clase clase = Clase::Ninguno;
    double magnitud = 0; // part of the Sun's diameter covered at the closest minute, 0 or more
    double inicio = 0;   // first and last minute of contact with the Sun up
    double fin = 0;
    double maximo = 0; // minute of least separation among those
};

struct EclipseLuna
{
    Clase clase = Clase::Ninguno;
    double magnitud = 0; // part of the Moon's diameter in the umbra (in the penumbra when penumbral)
    double inicio = 0;   // first and last minute in the umbra (in the penumbra when penumbral)
    double fin = 0;
    double maximo = 0;
    Vista vista = Vista::SinObservador;
};

//   jd   instant of new Moon
EclipseSol CircunstanciasEclipseSol(double jd, const Lugar& lugar);

//   jd   instant of full Moon
EclipseLuna CircunstanciasEclipseLuna(double jd, const Lugar& lugar);

} // namespace modEclipses

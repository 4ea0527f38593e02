// modSucesos: the dated events of Sun and Moon in one year, read off a grid of samples six hours apart.
//
// There are no series of published phases or seasons and no iteration: the year is sampled every quarter
// of a day, and a change of quarter, a sign change of the declination or a turning point among three
// neighbouring samples is an event. Phases and equinoxes are interpolated inside their step (good to a
// few minutes); perigee, apogee and solstices stand at the sample itself, so they are good to six hours.
//
// Only samples that can matter are computed: between two events each quantity moves with a bounded rate,
// and the search jumps over what the bound rules out. The events are the same as those of the whole grid.
//
// Instants are Julian days in Universal Time. Nothing here knows of zones, observers or texts.
#pragma once

#include <cstdint>
#include <vector>

namespace modSucesos {

enum class Tipo : std::uint8_t
{
    LunaNueva,
    CuartoCreciente,
    LunaLlena,
    CuartoMenguante,
    EquinoccioMarzo,
    EquinoccioSeptiembre,
    Perigeo,
    Apogeo,
    SolsticioJunio,
    SolsticioDiciembre
};

struct Suceso
{
    double jd = 0;
    Tipo tipo = Tipo::LunaNueva;
    double distanciaKm = 0; // Earth to Moon, for perigee and apogee; else 0
};

// Step of the grid, days: a quarter of a day is exact in a Julian day, so grid instants carry no error.
inline constexpr double kPaso = 0.25;

// The events from 1 January 0h UT of a year to 1 January 0h UT of the next, both instants included, in the
// order in which a walk over the grid meets them (a turning point is met one step after it happens, so
// times may run back by a step). About 80.
//   anio   1900 to 2200
std::vector<Suceso> SucesosDelAnio(std::int16_t anio);

// Where inside its step the phase passed into quarter q (0 to 3), as a fraction 0 to 1 of the step. The new
// Moon, q = 0, is where the phase fraction wraps past 1.
//   antes, ahora   phase fractions of the two samples
double FraccionDeCuarto(int q, double antes, double ahora);

} // namespace modSucesos

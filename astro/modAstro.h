// modAstro: universal-time astronomy on plain doubles.
//
// One time scale: an instant is a Julian day in Universal Time, a double whose last bit is worth about
// 40 microseconds. Delta-T is left out on purpose: the number that enters sidereal time also enters the
// series of Sun and Moon. A zone is a count of hours east of UTC, one value for a whole civil day.
//
// Angles: latitude, longitude, azimuth and altitude in degrees, north and east positive, azimuth from
// north through east, 0 <= az < 360. Right ascension, declination and sidereal time in radians.
// Altitudes carry no refraction. A Moon flag is false for the Sun and true for the Moon.
//
// Free functions without state (the skyline that the solver reads is in PerfilHorizonte.h); nothing
// allocates but the texts, nothing throws. Absence is a value: moment -1, azimuth -1, altitude -999.
//
// Sources: J. Meeus, Astronomical Algorithms (2nd ed., 1998), chapters 7 (Julian day), 12 (sidereal
// time), 13 (horizontal coordinates), 25 (Sun), 40 (parallax), 47 (Moon) and 48 (illuminated fraction).
#pragma once

#include <cstdint>
#include <string>

namespace modAstro {

// The constants of the whole system, rounded as every module uses them.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kDosPi = 6.28318530717958;
inline constexpr double kGradosARad = 0.017453292519943278;
inline constexpr double kRadAGrados = 57.29577951308238;

inline constexpr double kDiaJ2000 = 2451545.0;    // 2000 January 1, 12:00
inline constexpr double kKmPorUA = 149597870.7;   // astronomical unit, IAU 2012
inline constexpr double kRadioTierraKm = 6378.14; // equatorial radius, IAU 1976
inline constexpr double kAltitudOrto = -0.833;    // rise and set: refraction and semidiameter, degrees
inline constexpr std::int16_t kAnioMinimo = 1900; // range in which the series are good, and that
inline constexpr std::int16_t kAnioMaximo = 2200; // the planner accepts

// --- Time and angles ---

// Julian day of a Gregorian date, for every year (no Julian calendar). Day 0 and days past the end of
// the month are accepted and count on.
//   fraccion   fraction of the day, 0.5 is noon
double DiaJuliano(std::int16_t anio, std::int16_t mes, std::int16_t dia, double fraccion);

// Julian centuries of 36525 days since J2000.
double SiglosJ2000(double jd);

// Reduces to 0 <= x < 360 degrees, and to 0 <= x < 2 pi radians.
double Norm360(double x);
double Norm2Pi(double x);

// Four-quadrant arctangent, -pi to pi; Atan2(0, 0) is 0. The sign of a zero does not matter.
double Atan2(double y, double x);

// Inverse sine and cosine, radians; arguments beyond -1 and 1 are clamped.
double ArcoSeno(double x);
double ArcoCoseno(double x);

// A moment counted from local midnight as a fraction of the UT day, 0 <= f < 1. Negative (absent)
// moments come back unchanged.
double AjustarFraccion(double t, double zona);

// Clock time "hh:mm" in the zone of a moment stored as a UT day fraction; "--:--" when it is negative.
std::string FormatearHora(double fraccion, double zona);

// Compass word of an azimuth: "N", "NE", "E", "SE", "S", "SO", "O" or "NO". Never translated: other
// code compares these words.
std::string Compas8(double azimut);

// Reduces radians to -pi <= x <= pi.
double ReducirAPi(double x);

// Clock time "hh:mm" of an instant in a zone: the nearest second, then cut to the minute.
std::string HoraDeDiaJuliano(double jd, double zona);

// --- Sun ---

// Apparent geocentric place of the Sun (Meeus ch. 25, low accuracy: 0.01 degree).
//   alfa       out: right ascension, -pi to pi (not made positive)
//   delta      out: declination
//   distancia  out: astronomical units
//   tsg        out: Greenwich mean sidereal time, 0 <= tsg < 2 pi
void PosicionSol(double jd, double& alfa, double& delta, double& distancia, double& tsg);

// Greenwich mean sidereal time alone, radians, 0 <= tsg < 2 pi (Meeus 12.4). The same for every body.
double TiempoSidereo(double jd);

// The place on Earth that has the Sun in its zenith: latitude, longitude -180 < lon <= 180.
void PuntoSubsolar(double jd, double& lat, double& lon);

// --- Moon ---

// Geocentric place of the Moon: Meeus ch. 47, all 120 periodic terms and the additive ones, with
// arguments linear in time and the mean obliquity (no nutation).
//   alfa       out: right ascension, 0 <= alfa < 2 pi
//   delta      out: declination
//   distancia  out: kilometres, centre to centre
void PosicionLuna(double jd, double& alfa, double& delta, double& distancia);

// Place of the Moon for an observer at sea level on the ellipsoid.
//   tsg           Greenwich sidereal time, radians
//   alfa          out: right ascension, -pi to pi
//   delta         out: declination
//   semidiametro  out: degrees
void PosicionLunaTopocentrica(double jd, double lat, double lon, double tsg, double& alfa, double& delta,
                              double& semidiametro);

// Phase of the Moon, geocentric.
//   fase       out: 0 <= fase < 1; 0 new, 0.25 first quarter, 0.5 full, 0.75 last quarter
//   iluminada  out: illuminated fraction, 0 to 1
//   distancia  out: kilometres
void FaseLunar(double jd, double& fase, double& iluminada, double& distancia);

// Geocentric ecliptic latitude of the Moon, degrees, from the eight largest terms (good to 0.05 degree).
double LatitudEclipticaLuna(double jd);

// --- Horizontal place, crossings, the day ---

// Equatorial to horizontal place. Right ascension need not be reduced.
void EcuatorialAHorizontal(double alfa, double delta, double tsg, double lat, double lon, double& azimut,
                           double& altitud);

// Where the centre of a body stands; the Moon's place is topocentric. Note the order: altitude first.
void AzAltCuerpo(double jd, double lat, double lon, bool luna, double& altitud, double& azimut);

// Crossings of an altitude within the day that starts at jd0, as days after jd0, or -1.
// The day is sampled every two minutes: two crossings between neighbouring samples are not seen.
//   objetivo    altitude aimed at, degrees
//   horizonte   true: HorizonteEnAzimut is added to the altitude aimed at
//   orto        out: first upward crossing
//   maximo      out: moment of greatest altitude, -1 if the body never stands above objetivo
//   ocaso       out: first downward crossing (it may precede orto)
void BuscarCruceAltitud(double jd0, double lat, double lon, double objetivo, bool luna, bool horizonte,
                        double& orto, double& maximo, double& ocaso);

// The crossing inside a bracket, days after jd0, by 20 halvings (0.1 ms for a two-minute bracket).
double RefinarCruce(double jd0, double bajo, double alto, double objetivo, double lat, double lon, bool luna,
                    bool horizonte);

// One civil day. Moments are fractions of the UT day (see AjustarFraccion), -1 when the event does not
// happen; azimuths and altitudes in degrees. The order of the 31 doubles is relied upon.
struct MomentosDia
{
    double SolAz = 0;              // at the instant asked for
    double SolAlt = 0;             //
    double SolOrto = -1;           // moments: -0.833 upward
    double SolTransito = -1;       // greatest altitude
    double SolOcaso = -1;          // -0.833 downward
    double CivilAlba = -1;         // -6
    double CivilOcaso = -1;        //
    double NauticoAlba = -1;       // -12
    double NauticoOcaso = -1;      //
    double AstroAlba = -1;         // -18
    double AstroOcaso = -1;        //
    double DoradaAM = -1;          // +6 upward: end of the morning golden hour
    double DoradaPM = -1;          // +6 downward: start of the evening golden hour
    double AzulAM = -1;            // -4 upward: end of the morning blue hour
    double AzulPM = -1;            // -4 downward: start of the evening blue hour
    double LunaAz = 0;             // at the instant, topocentric
    double LunaAlt = 0;            //
    double LunaOrto = -1;          // moments, as the Sun's
    double LunaTransito = -1;      //
    double LunaOcaso = -1;         //
    double LunaFase = 0;           // at the instant: phase, 0 <= f < 1
    double LunaIlum = 0;           // illuminated fraction, 0 to 1
    double LunaDist = 0;           // kilometres
    double SolAzOrto = -1;         // azimuths at the moments, -1 if absent
    double SolAzOcaso = -1;        //
    double LunaAzOrto = -1;        //
    double LunaAzOcaso = -1;       //
    double SolAzTransito = -1;     //
    double SolAltTransito = -999;  // altitude, -999 if absent
    double LunaAzTransito = -1;    //
    double LunaAltTransito = -999; //
};
static_assert(sizeof(MomentosDia) == 31 * sizeof(double));

// Everything about one civil day at a place.
//   hora        local hour of the instant that the panel shows, 0 to 24
//   horizonte   true: the real horizon moves sunrise, sunset, moonrise and moonset (only them)
MomentosDia CalcularMomentosDia(std::int16_t anio, std::int16_t mes, std::int16_t dia, double hora,
                                double zona, double lat, double lon, bool horizonte);

} // namespace modAstro

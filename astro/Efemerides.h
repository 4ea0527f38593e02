// Efemerides: Sun and Moon as vectors, one instant at a time or over a whole span.
//
// The searches stand on two ideas. A place is a vector, so that no angle is taken apart and put together
// again on the way to the horizon, and the sign of one component tells the side of a meridian or horizon. And
// over a span of a day or two the vector is a smooth curve: a polynomial through a few computed places
// reproduces every place between, and each costs a few multiplications instead of 120 periodic terms.
//
//   const Observador obs(40.4168, -3.7038);
//   const TramoCuerpo luna(true, jd0);             // the Moon from jd0 to jd0 + 1
//   for (double t = 0; t <= 1; t += 1.0 / 288)
//       if (luna.EnHorizonte(t, obs).cenit > 0) ...
//
// Units: equatorial vectors of date (x to the equinox, z to the north pole), Sun in astronomical units,
// Moon in kilometres. Horizontal vectors keep their length; the Moon's are topocentric, the Sun's
// geocentric. Values only: no state, no allocation, no exceptions.
#pragma once

#include <array>

namespace modAstro {

struct Vector3
{
    double x, y, z;
};

// A place in the observer's axes.
struct VectorHorizontal
{
    double norte, este, cenit;
};

// Geocentric place at an instant.
Vector3 VectorSol(double jd);  // AU
Vector3 VectorLuna(double jd); // km

// Length of a vector, in its unit.
double Longitud(const Vector3& v);

// Right ascension -pi to pi and declination, radians, and length of a vector.
void VectorAEcuatorial(const Vector3& v, double& alfa, double& delta, double& distancia);

// Altitude and azimuth (0 <= azimut < 360) in degrees.
void VectorAAltAz(const VectorHorizontal& v, double& altitud, double& azimut);

// Phase (0 new, 0.5 full, below 1) and illuminated fraction from the two geocentric vectors.
void FaseDeVectores(const Vector3& sol, const Vector3& luna, double& fase, double& iluminada);

// Where the horizon of a place lies: all that a body without parallax asks. Degrees, north and east
// positive.
struct Ejes
{
    Ejes(double lat, double lon);

    double senLat, cosLat;
    double lon, lonRad;
};

// A place on the ellipsoid: the Moon's parallax asks where the observer stands, too. Computed once for
// a whole search.
struct Observador : Ejes
{
    Observador(double lat, double lon);

    double kmEje, kmEcuador; // distance from the Earth's axis, and from the equator's plane
    double kmNorte, kmCenit; // the same vector from the Earth's centre, in the observer's axes
};

// A geocentric vector turned to the horizon of an observer at a Greenwich sidereal time (radians).
//   luna  true: v is in kilometres and the observer's own place is subtracted
VectorHorizontal GirarAlHorizonte(const Vector3& v, bool luna, double tsg, const Observador& obs);

// Where a body stands for an observer at an instant: a unit vector for the Sun, kilometres for the Moon.
VectorHorizontal HorizonteSol(double jd, const Ejes& ejes);
VectorHorizontal HorizonteLuna(double jd, const Observador& obs);

// A body over a span of time. Between its ends the vector agrees with VectorSol and VectorLuna to 1e-11
// of its length; outside them it means nothing. Built from 5 places of the Sun or 9 of the Moon.
class TramoCuerpo
{
public:
    // From jd0 to jd0 + dias, 0 < dias <= 2.
    TramoCuerpo(bool luna, double jd0, double dias = 1.0);

    // t counts days after jd0, 0 <= t <= dias.
    Vector3 Geocentrico(double t) const;

    // The place at jd0 + t taken exactly: sidereal time grows smoothly with t, as root finding wants it.
    VectorHorizontal EnHorizonte(double t, const Observador& obs) const;

    // Altitude and azimuth in degrees at a Julian day: what AzAltCuerpo answers, within 1e-9 degree. Both
    // go in the steps of a Julian day's last bit, 40 microseconds.
    void AzAlt(double jd, const Observador& obs, double& altitud, double& azimut) const;

    bool EsLuna() const { return luna; }
    double Inicio() const { return inicio; } // jd0

private:
    static constexpr int kMaxNodos = 9;

    bool luna;
    int nodos;                                   // points of the fit, fewer for the slow Sun
    double inicio;                               // jd0
    double mitad;                                // half the span, days
    double sidereo, ritmo;                       // sidereal time at jd0 and its growth per day, degrees
    std::array<Vector3, kMaxNodos> coeficientes; // of the Chebyshev polynomials in t / mitad - 1
};

} // namespace modAstro

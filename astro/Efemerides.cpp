#include "Efemerides.h"

#include "SenoCoseno.h"
#include "SerieLuna.h"
#include "modAstro.h"

#include <cmath>

namespace modAstro {

namespace {

constexpr double kAplanamiento = 0.99664719; // polar over equatorial radius, IAU 1976
constexpr double kRitmoSidereo = 360.98564736629;

// Points of a Chebyshev fit over two days: one more of them changes nothing above the rounding of the
// series, one less costs a digit.
constexpr int kNodosSol = 5;
constexpr int kNodosLuna = 9;

// Cosines of the fit of N points: the places of the nodes in -1..1, and T_j at node k.
template <int N> struct Nodos
{
    std::array<double, N> lugar;
    std::array<std::array<double, N>, N> peso; // [j][k], ready to be summed against the values

    Nodos()
    {
        for (int k = 0; k < N; ++k) {
            lugar[k] = std::cos(kPi * (k + 0.5) / N);
            for (int j = 0; j < N; ++j)
                peso[j][k] = std::cos(kPi * j * (k + 0.5) / N) * (j == 0 ? 1.0 : 2.0) / N;
        }
    }
};

template <int N, class Curva> void Ajustar(double centro, double mitad, Curva curva, Vector3* coeficientes)
{
    static const Nodos<N> nodos;
    std::array<Vector3, N> valores;
    for (int k = 0; k < N; ++k)
        valores[k] = curva((centro + mitad * nodos.lugar[k]) / 36525);
    for (int j = 0; j < N; ++j) {
        Vector3 c{0, 0, 0};
        for (int k = 0; k < N; ++k) {
            const double w = nodos.peso[j][k];
            c = {c.x + w * valores[k].x, c.y + w * valores[k].y, c.z + w * valores[k].z};
        }
        coeficientes[j] = c;
    }
}

// The apparent Sun as a unit vector, and what its distance needs: eccentricity and true anomaly (degrees).
struct DireccionSol
{
    Vector3 unidad;
    double e, anomalia;
};

DireccionSol Direccion(double t)
{
    const double l0 = SinVueltas(280.46646 + (36000.76983 + 0.0003032 * t) * t);
    const double anomaliaMedia = 357.52911 + (35999.05029 - 0.0001537 * t) * t;
    const double e = 0.016708634 - (0.000042037 + 0.0000001267 * t) * t;
    const SenCos m = SenoCoseno(anomaliaMedia);
    const double centro = (1.914602 - (0.004817 + 0.000014 * t) * t) * m.sen +
                          (0.019993 - 0.000101 * t) * 2 * m.sen * m.cos +
                          0.000289 * m.sen * (3 - 4 * m.sen * m.sen); // equation of the centre, degrees
    const SenCos omega = SenoCoseno(125.04 - 1934.136 * t);
    const SenCos lambda = SenoCoseno(l0 + centro - 0.00569 - 0.00478 * omega.sen);
    const double oblicuidad = 23 + (26 + (21.448 - (46.815 + (0.00059 - 0.001813 * t) * t) * t) / 60) / 60;
    const SenCos epsilon = SenoCoseno(oblicuidad + 0.00256 * omega.cos);
    return {{lambda.cos, lambda.sen * epsilon.cos, lambda.sen * epsilon.sen}, e, anomaliaMedia + centro};
}

Vector3 Sol(double t)
{
    const DireccionSol d = Direccion(t);
    const double r = 1.000001018 * (1 - d.e * d.e) / (1 + d.e * SenoCoseno(d.anomalia).cos);
    return {r * d.unidad.x, r * d.unidad.y, r * d.unidad.z};
}

Vector3 Luna(double t)
{
    const EclipticaLuna l = SumarSerieLuna(t);
    const SenCos epsilon = SenoCoseno(23.4392911 - 0.0130042 * t); // mean: no nutation here
    const SenCos lambda = SenoCoseno(l.lambda);
    const SenCos beta = SenoCoseno(l.beta);
    const double z = l.distancia * beta.sen;
    const double y = l.distancia * beta.cos * lambda.sen;
    return {l.distancia * beta.cos * lambda.cos, y * epsilon.cos - z * epsilon.sen,
            z * epsilon.cos + y * epsilon.sen};
}

// Mean sidereal time at Greenwich in degrees, -180 to 180, at a Julian day and its centuries t.
double SidereoGrados(double jd, double t)
{
    return SinVueltas(280.46061837 + kRitmoSidereo * (jd - kDiaJ2000) + t * t * (0.000387933 - t / 38710000));
}

// Turns an equatorial vector to the horizon at a sidereal time in degrees.
VectorHorizontal GirarSol(const Vector3& v, double tsg, const Ejes& ejes)
{
    const SenCos giro = SenoCoseno(ejes.lon + tsg);
    const double meridiano = v.x * giro.cos + v.y * giro.sen; // cos delta cos H
    const double oeste = v.x * giro.sen - v.y * giro.cos;     // cos delta sin H
    return {v.z * ejes.cosLat - meridiano * ejes.senLat, -oeste, meridiano * ejes.cosLat + v.z * ejes.senLat};
}

// The same seen from the observer's own place. It lies in the meridian, so its share of the turned
// vector does not depend on the hour.
VectorHorizontal GirarLuna(const Vector3& v, double tsg, const Observador& obs)
{
    const VectorHorizontal g = GirarSol(v, tsg, obs);
    return {g.norte - obs.kmNorte, g.este, g.cenit - obs.kmCenit};
}

VectorHorizontal Girar(const Vector3& v, bool luna, double tsg, const Observador& obs)
{
    return luna ? GirarLuna(v, tsg, obs) : GirarSol(v, tsg, obs);
}

} // namespace

Vector3 VectorSol(double jd)
{
    return Sol(SiglosJ2000(jd));
}

Vector3 VectorLuna(double jd)
{
    return Luna(SiglosJ2000(jd));
}

double Longitud(const Vector3& v)
{
    return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
}

void VectorAEcuatorial(const Vector3& v, double& alfa, double& delta, double& distancia)
{
    const double plano2 = v.x * v.x + v.y * v.y;
    alfa = Atan2(v.y, v.x);
    delta = Atan2(v.z, std::sqrt(plano2));
    distancia = std::sqrt(plano2 + v.z * v.z);
}

void VectorAAltAz(const VectorHorizontal& v, double& altitud, double& azimut)
{
    altitud = Atan2(v.cenit, std::sqrt(v.norte * v.norte + v.este * v.este)) * kRadAGrados;
    azimut = (Atan2(-v.este, -v.norte) + kPi) * kRadAGrados;
    if (azimut >= 360)
        azimut = 0;
}

void FaseDeVectores(const Vector3& sol, const Vector3& luna, double& fase, double& iluminada)
{
    // Cosine of the phase angle: at the Moon, between the Earth and the Sun.
    const Vector3 alSol{sol.x * kKmPorUA - luna.x, sol.y * kKmPorUA - luna.y, sol.z * kKmPorUA - luna.z};
    const double alaTierra = -(luna.x * alSol.x + luna.y * alSol.y + luna.z * alSol.z);
    iluminada = (1 + alaTierra / (Longitud(luna) * Longitud(alSol))) / 2;

    constexpr double kCosE = 0.9174820637487279, kSenE = 0.3977771520580026; // of 0.4090928 radian
    const double lambdaLuna = Atan2(luna.y * kCosE + luna.z * kSenE, luna.x);
    const double lambdaSol = Atan2(sol.y * kCosE + sol.z * kSenE, sol.x);
    fase = Norm2Pi(lambdaLuna - lambdaSol) / kDosPi;
}

Ejes::Ejes(double lat, double lonGrados) : lon(lonGrados), lonRad(lonGrados * kGradosARad)
{
    const SenCos phi = SenoCoseno(lat);
    senLat = phi.sen;
    cosLat = phi.cos;
}

Observador::Observador(double lat, double lonGrados) : Ejes(lat, lonGrados)
{
    // rho sin phi' = b sin u and rho cos phi' = cos u, with tan u = b tan phi (Meeus ch. 11).
    const double b = kAplanamiento;
    const double km = kRadioTierraKm / std::sqrt(cosLat * cosLat + b * b * senLat * senLat);
    kmEje = km * cosLat;
    kmEcuador = km * b * b * senLat;
    kmNorte = kmEcuador * cosLat - kmEje * senLat;
    kmCenit = kmEje * cosLat + kmEcuador * senLat;
}

VectorHorizontal GirarAlHorizonte(const Vector3& v, bool luna, double tsg, const Observador& obs)
{
    return Girar(v, luna, tsg * kRadAGrados, obs);
}

VectorHorizontal HorizonteSol(double jd, const Ejes& ejes)
{
    const double t = SiglosJ2000(jd);
    return GirarSol(Direccion(t).unidad, SidereoGrados(jd, t), ejes);
}

VectorHorizontal HorizonteLuna(double jd, const Observador& obs)
{
    const double t = SiglosJ2000(jd);
    return GirarLuna(Luna(t), SidereoGrados(jd, t), obs);
}

TramoCuerpo::TramoCuerpo(bool esLuna, double jd0, double dias)
    : luna(esLuna), nodos(esLuna ? kNodosLuna : kNodosSol), inicio(jd0), mitad(dias / 2),
      sidereo(SidereoGrados(jd0, SiglosJ2000(jd0))),
      ritmo(kRitmoSidereo + 2 * 0.000387933 * SiglosJ2000(jd0) / 36525)
{
    // Days since J2000 hold the place of a node 30 times finer than a Julian day.
    const double centro = jd0 - kDiaJ2000 + mitad;
    if (luna)
        Ajustar<kNodosLuna>(centro, mitad, Luna, coeficientes.data());
    else
        Ajustar<kNodosSol>(centro, mitad, Sol, coeficientes.data());
}

Vector3 TramoCuerpo::Geocentrico(double t) const
{
    // Clenshaw's sum.
    const double x = t / mitad - 1;
    const double dosX = 2 * x;
    Vector3 b1{0, 0, 0}, b2{0, 0, 0};
    for (int j = nodos - 1; j > 0; --j) {
        const Vector3& c = coeficientes[j];
        const Vector3 b{(c.x - b2.x) + dosX * b1.x, (c.y - b2.y) + dosX * b1.y, (c.z - b2.z) + dosX * b1.z};
        b2 = b1;
        b1 = b;
    }
    const Vector3& c = coeficientes[0];
    return {(c.x - b2.x) + x * b1.x, (c.y - b2.y) + x * b1.y, (c.z - b2.z) + x * b1.z};
}

VectorHorizontal TramoCuerpo::EnHorizonte(double t, const Observador& obs) const
{
    return Girar(Geocentrico(t), luna, sidereo + ritmo * t, obs);
}

void TramoCuerpo::AzAlt(double jd, const Observador& obs, double& altitud, double& azimut) const
{
    VectorAAltAz(Girar(Geocentrico(jd - inicio), luna, SidereoGrados(jd, SiglosJ2000(jd)), obs), altitud,
                 azimut);
}

} // namespace modAstro

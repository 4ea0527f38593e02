#include "modPlanetas.h"

#include "modAstro.h"

#include <cmath>

namespace modAstro {

namespace {

// The published reduction uses these shorter constants.
constexpr double kRad = 0.0174532925199433;
constexpr double kGrados = 57.2957795130823;
constexpr double kOblicuidad = 0.40909261029685656; // J2000, radians

struct Elemento
{
    double valor = 0;
    double ritmo = 0; // per Julian century
    double En(double t) const { return valor + ritmo * t; }
};

struct Elementos
{
    Elemento a;         // semi-major axis, AU
    Elemento e;         // eccentricity
    Elemento i;         // inclination, degrees
    Elemento l;         // mean longitude, degrees
    Elemento perihelio; // longitude of perihelion, degrees
    Elemento nodo;      // longitude of the ascending node, degrees
};

// JPL Solar System Dynamics, "Approximate Positions of the Planets", table 1.
// clang-format off
constexpr Elementos kElementos[kPlanetas] = {
    {{1.00000261, 0.00000562}, {0.01671123, -0.00004392}, {-0.00001531, -0.01294668},
     {100.46457166, 35999.37244981}, {102.93768193, 0.32327364}, {0, 0}},
    {{0.38709927, 0.00000037}, {0.20563593, 0.00001906}, {7.00497902, -0.00594749},
     {252.2503235, 149472.67411175}, {77.45779628, 0.16047689}, {48.33076593, -0.12534081}},
    {{0.72333566, 0.0000039}, {0.00677672, -0.00004107}, {3.39467605, -0.0007889},
     {181.9790995, 58517.81538729}, {131.60246718, 0.00268329}, {76.67984255, -0.27769418}},
    {{1.52371034, 0.00001847}, {0.0933941, 0.00007882}, {1.84969142, -0.00813131},
     {-4.55343205, 19140.30268499}, {-23.94362959, 0.44441088}, {49.55953891, -0.29257343}},
    {{5.202887, -0.00011607}, {0.04838624, -0.00013253}, {1.30439695, -0.00183714},
     {34.39644051, 3034.74612775}, {14.72847983, 0.21252668}, {100.47390909, 0.20469106}},
    {{9.53667594, -0.0012506}, {0.05386179, -0.00050991}, {2.48599187, 0.00193609},
     {49.95424423, 1222.49362201}, {92.59887831, -0.41897216}, {113.66242448, -0.28867794}},
};
// clang-format on

} // namespace

void VectorHeliocentrico(double jd, std::int16_t planeta, double& x, double& y, double& z)
{
    const double t = SiglosJ2000(jd);
    const Elementos elementos = planeta >= 0 && planeta < kPlanetas ? kElementos[planeta] : Elementos{};
    const double a = elementos.a.En(t);
    const double e = elementos.e.En(t);
    const double inclinacion = elementos.i.En(t) * kRad;
    const double longitud = elementos.l.En(t);
    const double perihelio = elementos.perihelio.En(t);
    const double nodo = elementos.nodo.En(t);
    const double w = (perihelio - nodo) * kRad;

    double anomalia = longitud - perihelio;
    anomalia -= std::floor(anomalia / 360) * 360;
    if (anomalia > 180)
        anomalia -= 360;

    // Kepler's equation in degrees, by Newton.
    const double eGrados = e * kGrados;
    double excentrica = anomalia + eGrados * std::sin(anomalia * kRad);
    for (int vuelta = 0; vuelta < 12; ++vuelta) {
        const double falta = anomalia - (excentrica - eGrados * std::sin(excentrica * kRad));
        const double paso = falta / (1 - e * std::cos(excentrica * kRad));
        excentrica += paso;
        if (std::fabs(paso) < 0.0000001)
            break;
    }

    const double xPlano = a * (std::cos(excentrica * kRad) - e);
    const double yPlano = a * std::sqrt(1 - e * e) * std::sin(excentrica * kRad);
    const double cosW = std::cos(w);
    const double senW = std::sin(w);
    const double cosNodo = std::cos(nodo * kRad);
    const double senNodo = std::sin(nodo * kRad);
    const double cosI = std::cos(inclinacion);
    const double senI = std::sin(inclinacion);
    x = (cosW * cosNodo - senW * senNodo * cosI) * xPlano +
        (-senW * cosNodo - cosW * senNodo * cosI) * yPlano;
    y = (senW * cosNodo * cosI + cosW * senNodo) * xPlano + (cosW * cosNodo * cosI - senW * senNodo) * yPlano;
    z = senW * senI * xPlano + cosW * senI * yPlano;
}

void PosicionPlaneta(double jd, std::int16_t planeta, double& alfa, double& delta)
{
    double xt, yt, zt, xp, yp, zp;
    VectorHeliocentrico(jd, 0, xt, yt, zt);
    VectorHeliocentrico(jd, planeta, xp, yp, zp);
    const double dx = xp - xt;
    const double dy = yp - yt;
    const double dz = zp - zt;
    const double cosE = std::cos(kOblicuidad);
    const double senE = std::sin(kOblicuidad);
    const double yEc = dy * cosE - dz * senE;
    const double zEc = dy * senE + dz * cosE;
    alfa = Atan2(yEc, dx) * kGrados;
    if (alfa < 0)
        alfa += 360;
    delta = Atan2(zEc, std::sqrt(dx * dx + yEc * yEc)) * kGrados;
}

void EcuatorialAGalactico(double a, double b, double& uno, double& dos)
{
    static constexpr double kMatriz[3][3] = {
        {-0.054875560416, -0.873437090235, -0.483835015882},
        {0.494109427875, -0.444829630703, 0.746982244497},
        {-0.867666149206, -0.198076373427, 0.455983776175},
    };
    const double aRad = a * kGradosARad;
    const double bRad = b * kGradosARad;
    const double v[3] = {std::cos(aRad) * std::cos(bRad), std::sin(aRad) * std::cos(bRad), std::sin(bRad)};
    double r[3];
    for (int fila = 0; fila < 3; ++fila)
        r[fila] = kMatriz[fila][0] * v[0] + kMatriz[fila][1] * v[1] + kMatriz[fila][2] * v[2];
    uno = Norm2Pi(Atan2(r[1], r[0]));
    dos = ArcoSeno(r[2]);
}

} // namespace modAstro

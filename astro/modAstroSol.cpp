// The Sun, and sidereal time.
#include "modAstro.h"

#include <cmath>

namespace modAstro {

double TiempoSidereo(double jd)
{
    const double t = SiglosJ2000(jd);
    return Norm360(280.46061837 + 360.98564736629 * (jd - kDiaJ2000) + t * t * (0.000387933 - t / 38710000)) *
           kGradosARad;
}

void PosicionSol(double jd, double& alfa, double& delta, double& distancia, double& tsg)
{
    const double t = SiglosJ2000(jd);
    const double l0 = Norm360(280.46646 + (36000.76983 + 0.0003032 * t) * t);
    const double mGrados = Norm360(357.52911 + (35999.05029 - 0.0001537 * t) * t);
    const double m = mGrados * kGradosARad;
    const double e = 0.016708634 - (0.000042037 + 0.0000001267 * t) * t;
    const double c = (1.914602 - (0.004817 + 0.000014 * t) * t) * std::sin(m) +
                     (0.019993 - 0.000101 * t) * std::sin(2 * m) + 0.000289 * std::sin(3 * m);
    const double v = (mGrados + c) * kGradosARad;
    distancia = 1.000001018 * (1 - e * e) / (1 + e * std::cos(v));
    const double omega = (125.04 - 1934.136 * t) * kGradosARad;
    const double lambda = (l0 + c - 0.00569 - 0.00478 * std::sin(omega)) * kGradosARad;
    const double oblicuidad = 23 + (26 + (21.448 - (46.815 + (0.00059 - 0.001813 * t) * t) * t) / 60) / 60;
    const double epsilon = (oblicuidad + 0.00256 * std::cos(omega)) * kGradosARad;
    alfa = Atan2(std::cos(epsilon) * std::sin(lambda), std::cos(lambda));
    delta = ArcoSeno(std::sin(epsilon) * std::sin(lambda));
    tsg = TiempoSidereo(jd);
}

void PuntoSubsolar(double jd, double& lat, double& lon)
{
    double alfa, delta, distancia, tsg;
    PosicionSol(jd, alfa, delta, distancia, tsg);
    lat = delta * kRadAGrados;
    lon = Norm360((alfa - tsg) * kRadAGrados);
    if (lon > 180)
        lon -= 360;
}

} // namespace modAstro

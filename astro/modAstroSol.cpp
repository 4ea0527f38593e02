// The Sun, and sidereal time.
#include "Efemerides.h"
#include "modAstro.h"

namespace modAstro {

double TiempoSidereo(double jd)
{
    const double t = SiglosJ2000(jd);
    return Norm360(280.46061837 + 360.98564736629 * (jd - kDiaJ2000) + t * t * (0.000387933 - t / 38710000)) *
           kGradosARad;
}

void PosicionSol(double jd, double& alfa, double& delta, double& distancia, double& tsg)
{
    VectorAEcuatorial(VectorSol(jd), alfa, delta, distancia);
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

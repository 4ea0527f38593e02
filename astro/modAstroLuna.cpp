// The Moon: place, parallax, phase.
#include "Efemerides.h"
#include "SenoCoseno.h"
#include "modAstro.h"

#include <cmath>

namespace modAstro {

void PosicionLuna(double jd, double& alfa, double& delta, double& distancia)
{
    VectorAEcuatorial(VectorLuna(jd), alfa, delta, distancia);
    alfa = Norm2Pi(alfa);
}

void PosicionLunaTopocentrica(double jd, double lat, double lon, double tsg, double& alfa, double& delta,
                              double& semidiametro)
{
    constexpr double kRadioLuna = 0.272384; // Earth radii
    const Vector3 luna = VectorLuna(jd);
    const Observador obs(lat, lon);
    const SenCos theta = SenoCoseno(lon + tsg * kRadAGrados);
    double distancia;
    VectorAEcuatorial(
        {luna.x - obs.kmEje * theta.cos, luna.y - obs.kmEje * theta.sen, luna.z - obs.kmEcuador}, alfa, delta,
        distancia);
    semidiametro = ArcoSeno(kRadioLuna * kRadioTierraKm / distancia) * kRadAGrados;
}

void FaseLunar(double jd, double& fase, double& iluminada, double& distancia)
{
    const Vector3 luna = VectorLuna(jd);
    FaseDeVectores(VectorSol(jd), luna, fase, iluminada);
    distancia = Longitud(luna);
}

double LatitudEclipticaLuna(double jd)
{
    const double t = SiglosJ2000(jd);
    const double d = Norm360(297.8501921 + 445267.1114034 * t) * kGradosARad;
    const double mp = Norm360(134.9633964 + 477198.8675055 * t) * kGradosARad;
    const double f = Norm360(93.272095 + 483202.0175233 * t) * kGradosARad;
    return (5128122 * std::sin(f) + 280602 * std::sin(mp + f) + 277693 * std::sin(mp - f) +
            173237 * std::sin(2 * d - f) + 55413 * std::sin(2 * d - mp + f) +
            46271 * std::sin(2 * d - mp - f) + 32573 * std::sin(2 * d + f) + 17198 * std::sin(2 * mp + f)) /
           1000000;
}

} // namespace modAstro

// The Moon: place, parallax, phase.
#include "modAstro.h"

#include "TerminosLuna.h"

#include <cmath>

namespace modAstro {

void PosicionLuna(double jd, double& alfa, double& delta, double& distancia)
{
    const double t = SiglosJ2000(jd);
    const double lpGrados = Norm360(218.3164477 + 481267.88123421 * t);
    const double lp = lpGrados * kGradosARad;
    const double d = Norm360(297.8501921 + 445267.1114034 * t) * kGradosARad;
    const double m = Norm360(357.5291092 + 35999.0502909 * t) * kGradosARad;
    const double mp = Norm360(134.9633964 + 477198.8675055 * t) * kGradosARad;
    const double f = Norm360(93.272095 + 483202.0175233 * t) * kGradosARad;
    const double e = 1 - (0.002516 + 0.0000074 * t) * t;
    const double factor[3] = {1, e, e * e};
    double sumaL = 0, sumaR = 0, sumaB = 0;
    for (const TerminoLongitud& k : kTerminosLongitud) {
        const double argumento = k.d * d + k.m * m + k.mp * mp + k.f * f;
        const double q = factor[k.m < 0 ? -k.m : k.m];
        sumaL += q * k.longitud * std::sin(argumento);
        sumaR += q * k.distancia * std::cos(argumento);
    }
    for (const TerminoLatitud& k : kTerminosLatitud)
        sumaB += factor[k.m < 0 ? -k.m : k.m] * k.latitud * std::sin(k.d * d + k.m * m + k.mp * mp + k.f * f);
    const double a1 = (119.75 + 131.849 * t) * kGradosARad;
    const double a2 = (53.09 + 479264.29 * t) * kGradosARad;
    const double a3 = (313.45 + 481266.484 * t) * kGradosARad;
    sumaL += 3958 * std::sin(a1) + 1962 * std::sin(lp - f) + 318 * std::sin(a2);
    sumaB += -2235 * std::sin(lp) + 382 * std::sin(a3) + 175 * std::sin(a1 - f) + 175 * std::sin(a1 + f) +
             127 * std::sin(lp - mp) - 115 * std::sin(lp + mp);
    const double lambda = (lpGrados + sumaL / 1000000) * kGradosARad;
    const double beta = sumaB / 1000000 * kGradosARad;
    distancia = 385000.56 + sumaR / 1000;
    const double epsilon = (23.4392911 - 0.0130042 * t) * kGradosARad;
    alfa = Norm2Pi(
        Atan2(std::sin(lambda) * std::cos(epsilon) - std::tan(beta) * std::sin(epsilon), std::cos(lambda)));
    delta =
        ArcoSeno(std::sin(beta) * std::cos(epsilon) + std::cos(beta) * std::sin(epsilon) * std::sin(lambda));
}

void PosicionLunaTopocentrica(double jd, double lat, double lon, double tsg, double& alfa, double& delta,
                              double& semidiametro)
{
    double alfaG, deltaG, distancia;
    PosicionLuna(jd, alfaG, deltaG, distancia);
    const double r = distancia / kRadioTierraKm;
    const double u = std::atan(0.99664719 * std::tan(lat * kGradosARad));
    const double rhoSen = 0.99664719 * std::sin(u);
    const double rhoCos = std::cos(u);
    const double theta = lon * kGradosARad + tsg;
    const double x = r * std::cos(deltaG) * std::cos(alfaG) - rhoCos * std::cos(theta);
    const double y = r * std::cos(deltaG) * std::sin(alfaG) - rhoCos * std::sin(theta);
    const double z = r * std::sin(deltaG) - rhoSen;
    const double d = std::sqrt(x * x + y * y + z * z);
    alfa = Atan2(y, x);
    delta = Atan2(z, std::sqrt(x * x + y * y));
    semidiametro = ArcoSeno(0.272384 / d) / 0.0174532925199433;
}

void FaseLunar(double jd, double& fase, double& iluminada, double& distancia)
{
    double alfaS, deltaS, ua, tsg, alfaL, deltaL;
    PosicionSol(jd, alfaS, deltaS, ua, tsg);
    PosicionLuna(jd, alfaL, deltaL, distancia);
    const double psi = ArcoCoseno(std::sin(deltaS) * std::sin(deltaL) +
                                  std::cos(deltaS) * std::cos(deltaL) * std::cos(alfaS - alfaL));
    const double km = ua * kKmPorUA;
    const double i = Atan2(km * std::sin(psi), distancia - km * std::cos(psi));
    iluminada = (1 + std::cos(i)) / 2;
    constexpr double kOblicuidad = 0.4090928;
    const double cosE = std::cos(kOblicuidad);
    const double senE = std::sin(kOblicuidad);
    const double lambdaL = Atan2(std::sin(alfaL) * cosE + std::tan(deltaL) * senE, std::cos(alfaL));
    const double lambdaS = Atan2(std::sin(alfaS) * cosE + std::tan(deltaS) * senE, std::cos(alfaS));
    fase = Norm2Pi(lambdaL - lambdaS) / kDosPi;
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

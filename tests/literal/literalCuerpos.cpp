#include "literalAstro.h"

#include <cmath>
#include <cstdlib>

namespace literal {

namespace {

const double rad = 0.017453292519943278;
const double grados = 57.29577951308238;

// D, M, M', F, longitude (1e-6 degree), distance (m).
// clang-format off
const int tablaA[60][6] = {
    {0, 0, 1, 0, 6288774, -20905355}, {2, 0, -1, 0, 1274027, -3699111}, {2, 0, 0, 0, 658314, -2955968},
    {0, 0, 2, 0, 213618, -569925}, {0, 1, 0, 0, -185116, 48888}, {0, 0, 0, 2, -114332, -3149},
    {2, 0, -2, 0, 58793, 246158}, {2, -1, -1, 0, 57066, -152138}, {2, 0, 1, 0, 53322, -170733},
    {2, -1, 0, 0, 45758, -204586}, {0, 1, -1, 0, -40923, -129620}, {1, 0, 0, 0, -34720, 108743},
    {0, 1, 1, 0, -30383, 104755}, {2, 0, 0, -2, 15327, 10321}, {0, 0, 1, 2, -12528, 0},
    {0, 0, 1, -2, 10980, 79661}, {4, 0, -1, 0, 10675, -34782}, {0, 0, 3, 0, 10034, -23210},
    {4, 0, -2, 0, 8548, -21636}, {2, 1, -1, 0, -7888, 24208}, {2, 1, 0, 0, -6766, 30824},
    {1, 0, -1, 0, -5163, -8379}, {1, 1, 0, 0, 4987, -16675}, {2, -1, 1, 0, 4036, -12831},
    {2, 0, 2, 0, 3994, -10445}, {4, 0, 0, 0, 3861, -11650}, {2, 0, -3, 0, 3665, 14403},
    {0, 1, -2, 0, -2689, -7003}, {2, 0, -1, 2, -2602, 0}, {2, -1, -2, 0, 2390, 10056},
    {1, 0, 1, 0, -2348, 6322}, {2, -2, 0, 0, 2236, -9884}, {0, 1, 2, 0, -2120, 5751},
    {0, 2, 0, 0, -2069, 0}, {2, -2, -1, 0, 2048, -4950}, {2, 0, 1, -2, -1773, 4130}, {2, 0, 0, 2, -1595, 0},
    {4, -1, -1, 0, 1215, -3958}, {0, 0, 2, 2, -1110, 0}, {3, 0, -1, 0, -892, 3258},
    {2, 1, 1, 0, -810, 2616}, {4, -1, -2, 0, 759, -1897}, {0, 2, -1, 0, -713, -2117},
    {2, 2, -1, 0, -700, 2354}, {2, 1, -2, 0, 691, 0}, {2, -1, 0, -2, 596, 0}, {4, 0, 1, 0, 549, -1423},
    {0, 0, 4, 0, 537, -1117}, {4, -1, 0, 0, 520, -1571}, {1, 0, -2, 0, -487, -1739}, {2, 1, 0, -2, -399, 0},
    {0, 0, 2, -2, -381, -4421}, {1, 1, 1, 0, 351, 0}, {3, 0, -2, 0, -340, 0}, {4, 0, -3, 0, 330, 0},
    {2, -1, 2, 0, 327, 0}, {0, 2, 1, 0, -323, 1165}, {1, 1, -1, 0, 299, 0}, {2, 0, 3, 0, 294, 0},
    {2, 0, -1, -2, 0, 8752},
};

// D, M, M', F, latitude (1e-6 degree).
const int tablaB[60][5] = {
    {0, 0, 0, 1, 5128122}, {0, 0, 1, 1, 280602}, {0, 0, 1, -1, 277693}, {2, 0, 0, -1, 173237},
    {2, 0, -1, 1, 55413}, {2, 0, -1, -1, 46271}, {2, 0, 0, 1, 32573}, {0, 0, 2, 1, 17198},
    {2, 0, 1, -1, 9266}, {0, 0, 2, -1, 8822}, {2, -1, 0, -1, 8216}, {2, 0, -2, -1, 4324},
    {2, 0, 1, 1, 4200}, {2, 1, 0, -1, -3359}, {2, -1, -1, 1, 2463}, {2, -1, 0, 1, 2211},
    {2, -1, -1, -1, 2065}, {0, 1, -1, -1, -1870}, {4, 0, -1, -1, 1828}, {0, 1, 0, 1, -1794},
    {0, 0, 0, 3, -1749}, {0, 1, -1, 1, -1565}, {1, 0, 0, 1, -1491}, {0, 1, 1, 1, -1475},
    {0, 1, 1, -1, -1410}, {0, 1, 0, -1, -1344}, {1, 0, 0, -1, -1335}, {0, 0, 3, 1, 1107},
    {4, 0, 0, -1, 1021}, {4, 0, -1, 1, 833}, {0, 0, 1, -3, 777}, {4, 0, -2, 1, 671}, {2, 0, 0, -3, 607},
    {2, 0, 2, -1, 596}, {2, -1, 1, -1, 491}, {2, 0, -2, 1, -451}, {0, 0, 3, -1, 439}, {2, 0, 2, 1, 422},
    {2, 0, -3, -1, 421}, {2, 1, -1, 1, -366}, {2, 1, 0, 1, -351}, {4, 0, 0, 1, 331}, {2, -1, 1, 1, 315},
    {2, -2, 0, -1, 302}, {0, 0, 1, 3, -283}, {2, 1, 1, -1, -229}, {1, 1, 0, -1, 223}, {1, 1, 0, 1, 223},
    {0, 1, -2, -1, -220}, {2, 1, -1, -1, -220}, {1, 0, 1, 1, -185}, {2, -1, -2, -1, 181},
    {0, 1, 2, 1, -177}, {4, 0, -2, -1, 176}, {4, -1, -1, -1, 166}, {1, 0, 1, -1, -164}, {4, 0, 1, -1, 132},
    {1, 0, -1, -1, -119}, {4, -1, 0, -1, 115}, {2, -2, 0, 1, 107},
};
// clang-format on

} // namespace

void PosicionSol(double jd, double& alfa, double& delta, double& distancia, double& tsg)
{
    double t = SiglosJ2000(jd);
    double l0 = Norm360(280.46646 + (36000.76983 + 0.0003032 * t) * t);
    double m = Norm360(357.52911 + (35999.05029 - 0.0001537 * t) * t);
    double e = 0.016708634 - (0.000042037 + 0.0000001267 * t) * t;
    double c = (1.914602 - (0.004817 + 0.000014 * t) * t) * std::sin(m * rad) +
               (0.019993 - 0.000101 * t) * std::sin(2 * m * rad) + 0.000289 * std::sin(3 * m * rad);
    double verdadera = l0 + c;
    double v = m + c;
    distancia = 1.000001018 * (1 - e * e) / (1 + e * std::cos(v * rad));
    double omega = 125.04 - 1934.136 * t;
    double lambda = verdadera - 0.00569 - 0.00478 * std::sin(omega * rad);
    double media = 23 + (26 + (21.448 - (46.815 + (0.00059 - 0.001813 * t) * t) * t) / 60) / 60;
    double epsilon = media + 0.00256 * std::cos(omega * rad);
    alfa = Atan2(std::cos(epsilon * rad) * std::sin(lambda * rad), std::cos(lambda * rad));
    delta = ArcoSeno(std::sin(epsilon * rad) * std::sin(lambda * rad));
    tsg = Norm360(280.46061837 + 360.98564736629 * (jd - 2451545.0) + t * t * (0.000387933 - t / 38710000)) *
          rad;
}

void PuntoSubsolar(double jd, double& lat, double& lon)
{
    double alfa, delta, distancia, tsg;
    PosicionSol(jd, alfa, delta, distancia, tsg);
    lat = delta * grados;
    double x = (alfa - tsg) * grados;
    x = x - std::floor(x / 360) * 360;
    if (x > 180)
        x = x - 360;
    lon = x;
}

void PosicionLuna(double jd, double& alfa, double& delta, double& distancia)
{
    double t = SiglosJ2000(jd);
    double lp = 218.3164477 + 481267.88123421 * t;
    double d = Norm360(297.8501921 + 445267.1114034 * t) * rad;
    double m = Norm360(357.5291092 + 35999.0502909 * t) * rad;
    double mp = Norm360(134.9633964 + 477198.8675055 * t) * rad;
    double f = Norm360(93.272095 + 483202.0175233 * t) * rad;
    double e = 1 - (0.002516 + 0.0000074 * t) * t;
    double sumaL = 0, sumaR = 0, sumaB = 0;
    for (int i = 0; i < 60; i++) {
        double argumento = tablaA[i][0] * d + tablaA[i][1] * m + tablaA[i][2] * mp + tablaA[i][3] * f;
        double factor = tablaA[i][1] == 0 ? 1 : std::abs(tablaA[i][1]) == 1 ? e : e * e;
        sumaL = sumaL + factor * tablaA[i][4] * std::sin(argumento);
        sumaR = sumaR + factor * tablaA[i][5] * std::cos(argumento);
    }
    for (int i = 0; i < 60; i++) {
        double argumento = tablaB[i][0] * d + tablaB[i][1] * m + tablaB[i][2] * mp + tablaB[i][3] * f;
        double factor = tablaB[i][1] == 0 ? 1 : std::abs(tablaB[i][1]) == 1 ? e : e * e;
        sumaB = sumaB + factor * tablaB[i][4] * std::sin(argumento);
    }
    double a1 = (119.75 + 131.849 * t) * rad;
    double a2 = (53.09 + 479264.29 * t) * rad;
    double a3 = (313.45 + 481266.484 * t) * rad;
    double l = Norm360(lp) * rad;
    sumaL = sumaL + 3958 * std::sin(a1) + 1962 * std::sin(l - f) + 318 * std::sin(a2);
    sumaB = sumaB - 2235 * std::sin(l) + 382 * std::sin(a3) + 175 * std::sin(a1 - f) +
            175 * std::sin(a1 + f) + 127 * std::sin(l - mp) - 115 * std::sin(l + mp);
    double lambda = (Norm360(lp) + sumaL / 1000000) * rad;
    double beta = sumaB / 1000000 * rad;
    distancia = 385000.56 + sumaR / 1000;
    double epsilon = (23.4392911 - 0.0130042 * t) * rad;
    alfa = Norm2Pi(
        Atan2(std::sin(lambda) * std::cos(epsilon) - std::tan(beta) * std::sin(epsilon), std::cos(lambda)));
    delta =
        ArcoSeno(std::sin(beta) * std::cos(epsilon) + std::cos(beta) * std::sin(epsilon) * std::sin(lambda));
}

void PosicionLunaTopocentrica(double jd, double lat, double lon, double gst, double& alfa, double& delta,
                              double& semidiametro)
{
    double alfaG, deltaG, distancia;
    PosicionLuna(jd, alfaG, deltaG, distancia);
    double r = distancia / 6378.14;
    double x = r * std::cos(deltaG) * std::cos(alfaG);
    double y = r * std::cos(deltaG) * std::sin(alfaG);
    double z = r * std::sin(deltaG);
    // The shorter 0.0174532925199433 would carry 90 degrees past the right angle and u to -90.
    double u = std::atan(0.99664719 * std::tan(lat * rad));
    double rhoSen = 0.99664719 * std::sin(u);
    double rhoCos = std::cos(u);
    double theta = lon * rad + gst;
    double x1 = x - rhoCos * std::cos(theta);
    double y1 = y - rhoCos * std::sin(theta);
    double z1 = z - rhoSen;
    double d = std::sqrt(x1 * x1 + y1 * y1 + z1 * z1);
    alfa = Atan2(y1, x1);
    delta = Atan2(z1, std::sqrt(x1 * x1 + y1 * y1));
    semidiametro = ArcoSeno(0.272384 / d) / 0.0174532925199433;
}

void FaseLunar(double jd, double& fase, double& iluminada, double& distancia)
{
    double alfaS, deltaS, r, tsg, alfaM, deltaM;
    PosicionSol(jd, alfaS, deltaS, r, tsg);
    PosicionLuna(jd, alfaM, deltaM, distancia);
    double psi = ArcoCoseno(std::sin(deltaS) * std::sin(deltaM) +
                            std::cos(deltaS) * std::cos(deltaM) * std::cos(alfaS - alfaM));
    double rKm = r * 149597870.7;
    double i = Atan2(rKm * std::sin(psi), distancia - rKm * std::cos(psi));
    iluminada = (1 + std::cos(i)) / 2;
    double epsilon = 0.4090928;
    double lambdaS =
        Atan2(std::sin(alfaS) * std::cos(epsilon) + std::tan(deltaS) * std::sin(epsilon), std::cos(alfaS));
    double lambdaM =
        Atan2(std::sin(alfaM) * std::cos(epsilon) + std::tan(deltaM) * std::sin(epsilon), std::cos(alfaM));
    double x = lambdaM - lambdaS;
    x = x - std::floor(x / 6.28318530717958) * 6.28318530717958;
    fase = x / 6.28318530717958;
}

double LatitudEclipticaLuna(double jd)
{
    double t = SiglosJ2000(jd);
    double d = Norm360(297.8501921 + 445267.1114034 * t) * rad;
    double mp = Norm360(134.9633964 + 477198.8675055 * t) * rad;
    double f = Norm360(93.272095 + 483202.0175233 * t) * rad;
    return (5128122 * std::sin(f) + 280602 * std::sin(mp + f) + 277693 * std::sin(mp - f) +
            173237 * std::sin(2 * d - f) + 55413 * std::sin(2 * d - mp + f) +
            46271 * std::sin(2 * d - mp - f) + 32573 * std::sin(2 * d + f) + 17198 * std::sin(2 * mp + f)) /
           1000000;
}

} // namespace literal

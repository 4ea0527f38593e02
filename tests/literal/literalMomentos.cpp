#include "literalAstro.h"

#include <cmath>

namespace literal {

namespace {

const double rad = 0.017453292519943278;
const double grados = 57.29577951308238;

std::array<double, 720> skyline{};

} // namespace

void PonerHorizonte(const std::array<double, 720>& altitudes)
{
    skyline = altitudes;
}

double HorizonteEnAzimut(double az)
{
    while (az < 0)
        az = az + 360;
    while (az >= 360)
        az = az - 360;
    double p = az * 720 / 360;
    int i = static_cast<int>(std::floor(p));
    double f = p - i;
    if (i >= 720)
        i = i - 720;
    int j = i + 1;
    if (j >= 720)
        j = j - 720;
    return skyline[i] + (skyline[j] - skyline[i]) * f;
}

void EcuatorialAHorizontal(double alfa, double delta, double gst, double lat, double lon, double& azimut,
                           double& altitud)
{
    double h = lon * rad + gst - alfa;
    double phi = lat * rad;
    altitud =
        ArcoSeno(std::cos(phi) * std::cos(delta) * std::cos(h) + std::sin(phi) * std::sin(delta)) * grados;
    azimut = Norm360((Atan2(std::sin(h), std::cos(h) * std::sin(phi) - std::tan(delta) * std::cos(phi)) +
                      3.14159265358979) *
                     grados);
}

void AzAltCuerpo(double jd, double lat, double lon, bool luna, double& altitud, double& azimut)
{
    double alfa, delta, distancia, tsg;
    PosicionSol(jd, alfa, delta, distancia, tsg);
    if (luna) {
        double semidiametro;
        PosicionLunaTopocentrica(jd, lat, lon, tsg, alfa, delta, semidiametro);
    }
    EcuatorialAHorizontal(alfa, delta, tsg, lat, lon, azimut, altitud);
}

double RefinarCruce(double jd0, double bajo, double alto, double objetivo, double lat, double lon, bool luna,
                    bool horizonte)
{
    auto f = [&](double x) {
        double altitud, azimut;
        AzAltCuerpo(jd0 + x, lat, lon, luna, altitud, azimut);
        double valor = altitud - objetivo;
        if (horizonte)
            valor = valor - HorizonteEnAzimut(azimut);
        return valor;
    };
    double fBajo = f(bajo);
    for (int i = 0; i < 20; i++) {
        double medio = (bajo + alto) / 2;
        double fMedio = f(medio);
        if (fBajo * fMedio <= 0) {
            alto = medio;
        } else {
            bajo = medio;
            fBajo = fMedio;
        }
    }
    return (bajo + alto) / 2;
}

void BuscarCruceAltitud(double jd0, double lat, double lon, double objetivo, bool luna, bool horizonte,
                        double& orto, double& maximo, double& ocaso)
{
    double paso = 1.0 / 720;
    orto = -1;
    maximo = -1;
    ocaso = -1;
    double mejorAltitud = -999;
    double mejorTiempo = -1;
    double altitud, azimut;
    AzAltCuerpo(jd0, lat, lon, luna, altitud, azimut);
    double umbral = horizonte ? objetivo + HorizonteEnAzimut(azimut) : objetivo;
    double altitudPrevia = altitud;
    double umbralPrevio = umbral;
    double t = paso;
    while (t <= 1.0) {
        AzAltCuerpo(jd0 + t, lat, lon, luna, altitud, azimut);
        umbral = horizonte ? objetivo + HorizonteEnAzimut(azimut) : objetivo;
        if (orto < 0 && altitudPrevia < umbralPrevio && altitud >= umbral)
            orto = RefinarCruce(jd0, t - paso, t, objetivo, lat, lon, luna, horizonte);
        if (ocaso < 0 && altitudPrevia >= umbralPrevio && altitud < umbral)
            ocaso = RefinarCruce(jd0, t - paso, t, objetivo, lat, lon, luna, horizonte);
        if (altitud > mejorAltitud) {
            mejorAltitud = altitud;
            mejorTiempo = t;
        }
        altitudPrevia = altitud;
        umbralPrevio = umbral;
        t = t + paso;
    }
    if (mejorTiempo > 0) {
        double bajo = mejorTiempo - paso;
        double alto = mejorTiempo + paso;
        if (bajo < 0)
            bajo = 0;
        if (alto > 1)
            alto = 1;
        for (int i = 0; i < 32; i++) {
            double m1 = bajo + (alto - bajo) / 3;
            double m2 = alto - (alto - bajo) / 3;
            double a1, a2;
            AzAltCuerpo(jd0 + m1, lat, lon, luna, a1, azimut);
            AzAltCuerpo(jd0 + m2, lat, lon, luna, a2, azimut);
            if (a1 < a2)
                bajo = m1;
            else
                alto = m2;
        }
        mejorTiempo = (bajo + alto) / 2;
    }
    if (mejorAltitud > objetivo)
        maximo = mejorTiempo;
}

std::array<double, 31> CalcularMomentosDia(std::int16_t anio, std::int16_t mes, std::int16_t dia, double hora,
                                           double zona, double lat, double lon, bool horizonte)
{
    std::array<double, 31> r{};
    double j = DiaJuliano(anio, mes, dia, 0);
    double instante = j + (hora - zona) / 24;
    double j0 = j - zona / 24;
    double sin_uso;
    AzAltCuerpo(instante, lat, lon, false, r[1], r[0]);
    AzAltCuerpo(instante, lat, lon, true, r[16], r[15]);
    BuscarCruceAltitud(j0, lat, lon, -0.833, false, horizonte, r[2], r[3], r[4]);
    BuscarCruceAltitud(j0, lat, lon, -6, false, false, r[5], sin_uso, r[6]);
    BuscarCruceAltitud(j0, lat, lon, -12, false, false, r[7], sin_uso, r[8]);
    BuscarCruceAltitud(j0, lat, lon, -18, false, false, r[9], sin_uso, r[10]);
    BuscarCruceAltitud(j0, lat, lon, 6, false, false, r[11], sin_uso, r[12]);
    BuscarCruceAltitud(j0, lat, lon, -4, false, false, r[13], sin_uso, r[14]);
    BuscarCruceAltitud(j0, lat, lon, -0.833, true, horizonte, r[17], r[18], r[19]);
    FaseLunar(instante, r[20], r[21], r[22]);
    const int eventos[4] = {2, 4, 17, 19};
    for (int k = 0; k < 4; k++) {
        r[23 + k] = -1;
        if (r[eventos[k]] >= 0)
            AzAltCuerpo(j0 + r[eventos[k]], lat, lon, k >= 2, sin_uso, r[23 + k]);
    }
    r[27] = r[29] = -1;
    r[28] = r[30] = -999;
    if (r[3] >= 0)
        AzAltCuerpo(j0 + r[3], lat, lon, false, r[28], r[27]);
    if (r[18] >= 0)
        AzAltCuerpo(j0 + r[18], lat, lon, true, r[30], r[29]);
    for (int k = 2; k <= 14; k++)
        r[k] = AjustarFraccion(r[k], zona);
    for (int k = 17; k <= 19; k++)
        r[k] = AjustarFraccion(r[k], zona);
    return r;
}

} // namespace literal

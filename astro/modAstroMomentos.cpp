// Horizontal places, crossings and the record of one day.
#include "modAstro.h"

#include "PerfilHorizonte.h"

#include <cmath>

namespace modAstro {

void EcuatorialAHorizontal(double alfa, double delta, double tsg, double lat, double lon, double& azimut,
                           double& altitud)
{
    const double h = lon * kGradosARad + tsg - alfa;
    const double phi = lat * kGradosARad;
    altitud = ArcoSeno(std::cos(phi) * std::cos(delta) * std::cos(h) + std::sin(phi) * std::sin(delta)) *
              kRadAGrados;
    azimut =
        Norm360((Atan2(std::sin(h), std::cos(h) * std::sin(phi) - std::tan(delta) * std::cos(phi)) + kPi) *
                kRadAGrados);
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
    const auto sobra = [&](double x) {
        double altitud, azimut;
        AzAltCuerpo(jd0 + x, lat, lon, luna, altitud, azimut);
        const double umbral = horizonte ? modAstroEstado::HorizonteEnAzimut(azimut) : 0.0;
        return altitud - objetivo - umbral;
    };
    double fBajo = sobra(bajo);
    for (int i = 0; i < 20; ++i) {
        const double medio = (bajo + alto) / 2;
        const double fMedio = sobra(medio);
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
    constexpr double kPaso = 1.0 / 720;
    orto = maximo = ocaso = -1;
    double mejor = -999, tMejor = -1;
    double altitud, azimut;
    const auto umbral = [&] {
        return horizonte ? objetivo + modAstroEstado::HorizonteEnAzimut(azimut) : objetivo;
    };
    AzAltCuerpo(jd0, lat, lon, luna, altitud, azimut);
    double altitudPrevia = altitud, umbralPrevio = umbral();
    for (double t = kPaso; t <= 1.0; t += kPaso) {
        AzAltCuerpo(jd0 + t, lat, lon, luna, altitud, azimut);
        const double umbralAhora = umbral();
        const bool antes = altitudPrevia >= umbralPrevio, ahora = altitud >= umbralAhora;
        if (orto < 0 && !antes && ahora)
            orto = RefinarCruce(jd0, t - kPaso, t, objetivo, lat, lon, luna, horizonte);
        if (ocaso < 0 && antes && !ahora)
            ocaso = RefinarCruce(jd0, t - kPaso, t, objetivo, lat, lon, luna, horizonte);
        if (altitud > mejor) {
            mejor = altitud;
            tMejor = t;
        }
        altitudPrevia = altitud;
        umbralPrevio = umbralAhora;
    }
    const double muestreada = mejor;
    if (tMejor > 0) {
        double bajo = std::fmax(0.0, tMejor - kPaso), alto = std::fmin(1.0, tMejor + kPaso);
        for (int i = 0; i < 32; ++i) {
            const double m1 = bajo + (alto - bajo) / 3, m2 = alto - (alto - bajo) / 3;
            double a1, a2;
            AzAltCuerpo(jd0 + m1, lat, lon, luna, a1, azimut);
            AzAltCuerpo(jd0 + m2, lat, lon, luna, a2, azimut);
            (a1 < a2 ? bajo : alto) = a1 < a2 ? m1 : m2;
        }
        tMejor = (bajo + alto) / 2;
    }
    if (muestreada > objetivo)
        maximo = tMejor;
}

MomentosDia CalcularMomentosDia(std::int16_t anio, std::int16_t mes, std::int16_t dia, double hora,
                                double zona, double lat, double lon, bool horizonte)
{
    MomentosDia r;
    const double j = DiaJuliano(anio, mes, dia, 0);
    const double instante = j + (hora - zona) / 24;
    const double j0 = j - zona / 24;
    AzAltCuerpo(instante, lat, lon, false, r.SolAlt, r.SolAz);
    AzAltCuerpo(instante, lat, lon, true, r.LunaAlt, r.LunaAz);
    double nada;
    BuscarCruceAltitud(j0, lat, lon, kAltitudOrto, false, horizonte, r.SolOrto, r.SolTransito, r.SolOcaso);
    BuscarCruceAltitud(j0, lat, lon, -6, false, false, r.CivilAlba, nada, r.CivilOcaso);
    BuscarCruceAltitud(j0, lat, lon, -12, false, false, r.NauticoAlba, nada, r.NauticoOcaso);
    BuscarCruceAltitud(j0, lat, lon, -18, false, false, r.AstroAlba, nada, r.AstroOcaso);
    BuscarCruceAltitud(j0, lat, lon, 6, false, false, r.DoradaAM, nada, r.DoradaPM);
    BuscarCruceAltitud(j0, lat, lon, -4, false, false, r.AzulAM, nada, r.AzulPM);
    BuscarCruceAltitud(j0, lat, lon, kAltitudOrto, true, horizonte, r.LunaOrto, r.LunaTransito, r.LunaOcaso);
    FaseLunar(instante, r.LunaFase, r.LunaIlum, r.LunaDist);
    const auto azimut = [&](double momento, bool luna, double& az) {
        double altitud;
        if (momento >= 0)
            AzAltCuerpo(j0 + momento, lat, lon, luna, altitud, az);
    };
    azimut(r.SolOrto, false, r.SolAzOrto);
    azimut(r.SolOcaso, false, r.SolAzOcaso);
    azimut(r.LunaOrto, true, r.LunaAzOrto);
    azimut(r.LunaOcaso, true, r.LunaAzOcaso);
    if (r.SolTransito >= 0)
        AzAltCuerpo(j0 + r.SolTransito, lat, lon, false, r.SolAltTransito, r.SolAzTransito);
    if (r.LunaTransito >= 0)
        AzAltCuerpo(j0 + r.LunaTransito, lat, lon, true, r.LunaAltTransito, r.LunaAzTransito);
    for (double* m : {&r.SolOrto, &r.SolTransito, &r.SolOcaso, &r.CivilAlba, &r.CivilOcaso, &r.NauticoAlba,
                      &r.NauticoOcaso, &r.AstroAlba, &r.AstroOcaso, &r.DoradaAM, &r.DoradaPM, &r.AzulAM,
                      &r.AzulPM, &r.LunaOrto, &r.LunaTransito, &r.LunaOcaso})
        *m = AjustarFraccion(*m, zona);
    return r;
}

} // namespace modAstro

// Horizontal places, crossings and the record of one day.
#include "modAstro.h"

#include "BarridoDia.h"
#include "Efemerides.h"
#include "PerfilHorizonte.h"

#include <array>
#include <cmath>
#include <span>

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
    VectorAAltAz(luna ? HorizonteLuna(jd, Observador(lat, lon)) : HorizonteSol(jd, Ejes(lat, lon)), altitud,
                 azimut);
}

double RefinarCruce(double jd0, double bajo, double alto, double objetivo, double lat, double lon, bool luna,
                    bool horizonte)
{
    return Bisecar(bajo, alto, [&](double x) {
        double altitud, azimut;
        AzAltCuerpo(jd0 + x, lat, lon, luna, altitud, azimut);
        return altitud - objetivo - (horizonte ? modAstroEstado::HorizonteEnAzimut(azimut) : 0.0);
    });
}

void BuscarCruceAltitud(double jd0, double lat, double lon, double objetivo, bool luna, bool horizonte,
                        double& orto, double& maximo, double& ocaso)
{
    const BarridoDia dia(luna, jd0, lat, lon);
    CruceDia cruce{objetivo};
    if (horizonte)
        dia.CrucesHorizonte(cruce);
    else
        dia.Cruces({&cruce, 1});
    orto = cruce.orto;
    maximo = dia.Maximo(objetivo);
    ocaso = cruce.ocaso;
}

MomentosDia CalcularMomentosDia(std::int16_t anio, std::int16_t mes, std::int16_t dia, double hora,
                                double zona, double lat, double lon, bool horizonte)
{
    MomentosDia r;
    const double j = DiaJuliano(anio, mes, dia, 0);
    const double j0 = j - zona / 24;

    // The instant asked for.
    const double instante = j + (hora - zona) / 24;
    const Observador obs(lat, lon);
    const double tsg = TiempoSidereo(instante);
    const Vector3 vectorSol = VectorSol(instante);
    const Vector3 vectorLuna = VectorLuna(instante);
    VectorAAltAz(GirarAlHorizonte(vectorSol, false, tsg, obs), r.SolAlt, r.SolAz);
    VectorAAltAz(GirarAlHorizonte(vectorLuna, true, tsg, obs), r.LunaAlt, r.LunaAz);
    FaseDeVectores(vectorSol, vectorLuna, r.LunaFase, r.LunaIlum);
    r.LunaDist = Longitud(vectorLuna);

    // The day. The skyline moves rise and set alone; twilights belong to the level horizon.
    const BarridoDia sol(false, j0, lat, lon);
    const BarridoDia luna(true, j0, lat, lon);
    std::array<CruceDia, 6> cruces{{{kAltitudOrto}, {-6}, {-12}, {-18}, {6}, {-4}}};
    CruceDia cruceLuna{kAltitudOrto};
    if (horizonte) {
        sol.CrucesHorizonte(cruces[0]);
        sol.Cruces(std::span(cruces).subspan(1));
        luna.CrucesHorizonte(cruceLuna);
    } else {
        sol.Cruces(cruces);
        luna.Cruces({&cruceLuna, 1});
    }
    const double maximoSol = sol.Maximo(kAltitudOrto);
    const double maximoLuna = luna.Maximo(kAltitudOrto);

    double altitud;
    if (cruces[0].orto >= 0)
        sol.AzAlt(cruces[0].orto, altitud, r.SolAzOrto);
    if (cruces[0].ocaso >= 0)
        sol.AzAlt(cruces[0].ocaso, altitud, r.SolAzOcaso);
    if (cruceLuna.orto >= 0)
        luna.AzAlt(cruceLuna.orto, altitud, r.LunaAzOrto);
    if (cruceLuna.ocaso >= 0)
        luna.AzAlt(cruceLuna.ocaso, altitud, r.LunaAzOcaso);
    if (maximoSol >= 0)
        sol.AzAlt(maximoSol, r.SolAltTransito, r.SolAzTransito);
    if (maximoLuna >= 0)
        luna.AzAlt(maximoLuna, r.LunaAltTransito, r.LunaAzTransito);

    const auto guardar = [zona](const CruceDia& c, double& orto, double& ocaso) {
        orto = AjustarFraccion(c.orto, zona);
        ocaso = AjustarFraccion(c.ocaso, zona);
    };
    guardar(cruces[0], r.SolOrto, r.SolOcaso);
    guardar(cruces[1], r.CivilAlba, r.CivilOcaso);
    guardar(cruces[2], r.NauticoAlba, r.NauticoOcaso);
    guardar(cruces[3], r.AstroAlba, r.AstroOcaso);
    guardar(cruces[4], r.DoradaAM, r.DoradaPM);
    guardar(cruces[5], r.AzulAM, r.AzulPM);
    guardar(cruceLuna, r.LunaOrto, r.LunaOcaso);
    r.SolTransito = AjustarFraccion(maximoSol, zona);
    r.LunaTransito = AjustarFraccion(maximoLuna, zona);
    return r;
}

} // namespace modAstro

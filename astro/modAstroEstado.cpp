#include "modAstroEstado.h"

#include "Efemerides.h"
#include "modAstro.h"

#include <cmath>

namespace modAstroEstado {

namespace {

struct Clave
{
    bool valida = false;
    std::int16_t anio = 0;
    std::int16_t mes = 0;
    std::int16_t dia = 0;
    double lat = 0;
    double lon = 0;
    double zona = 0;
};

Trayectoria sol;
Trayectoria luna;
Clave clave;

} // namespace

const Trayectoria& TrayectoriaSol()
{
    return sol;
}

const Trayectoria& TrayectoriaLuna()
{
    return luna;
}

bool TrayectoriasValidas()
{
    return clave.valida;
}

void CalcularCurvasDia(std::int16_t anio, std::int16_t mes, std::int16_t dia, double lat, double lon,
                       double zona)
{
    const double jd0 = modAstro::DiaJuliano(anio, mes, dia, 0) - zona / 24;
    const modAstro::Observador obs(lat, lon);
    const modAstro::TramoCuerpo tramoSol(false, jd0);
    const modAstro::TramoCuerpo tramoLuna(true, jd0);
    for (int i = 0; i < kMuestrasDia; ++i) {
        const double jd = jd0 + static_cast<double>(i) / kMuestrasDia;
        tramoSol.AzAlt(jd, obs, sol.altitud[i], sol.azimut[i]);
        tramoLuna.AzAlt(jd, obs, luna.altitud[i], luna.azimut[i]);
    }
    clave = {true, anio, mes, dia, lat, lon, zona};
}

bool CurvasDiaCaducadas(std::int16_t anio, std::int16_t mes, std::int16_t dia, double lat, double lon,
                        double zona)
{
    const bool sirven = clave.valida && clave.anio == anio && clave.mes == mes && clave.dia == dia &&
                        std::fabs(clave.lat - lat) <= 0.0001 && std::fabs(clave.lon - lon) <= 0.0001 &&
                        std::fabs(clave.zona - zona) <= 0.001;
    return !sirven;
}

void OlvidarCurvasDia()
{
    clave = {};
}

} // namespace modAstroEstado

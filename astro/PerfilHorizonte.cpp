#include "PerfilHorizonte.h"

#include <algorithm>
#include <cmath>

namespace modAstroEstado {

namespace {

PerfilHorizonte perfil;
double limiteBajo = 0, limiteAlto = 0; // of a valid skyline

} // namespace

const PerfilHorizonte& PerfilEnMemoria()
{
    return perfil;
}

void EstablecerPerfil(const std::array<double, kMuestrasHorizonte>& altitudes, double lat, double lon)
{
    perfil = {altitudes, true, lat, lon};
    const auto [bajo, alto] = std::minmax_element(altitudes.begin(), altitudes.end());
    limiteBajo = *bajo;
    limiteAlto = *alto;
}

void BorrarPerfil()
{
    perfil.valido = false;
}

double HorizonteEnAzimut(double azimut)
{
    if (!perfil.valido)
        return 0.0;
    const double p = (azimut - std::floor(azimut / 360) * 360) * kMuestrasHorizonte / 360;
    if (!std::isfinite(p))
        return 0.0;
    const double suelo = std::floor(p);
    const int i = static_cast<int>(suelo) % kMuestrasHorizonte; // a tiny negative azimuth rounds up to 360
    const int j = (i + 1) % kMuestrasHorizonte;
    return perfil.altitudes[i] + (perfil.altitudes[j] - perfil.altitudes[i]) * (p - suelo);
}

void LimitesHorizonte(double& minimo, double& maximo)
{
    minimo = perfil.valido ? limiteBajo : 0.0;
    maximo = perfil.valido ? limiteAlto : 0.0;
}

bool HorizonteValidoPara(double lat, double lon)
{
    return perfil.valido && std::fabs(perfil.lat - lat) < 0.0001 && std::fabs(perfil.lon - lon) < 0.0001;
}

} // namespace modAstroEstado

#include "modGeo.h"

#include "modAstro.h"

#include <cmath>

namespace modGeo {

using modAstro::kGradosARad;
using modAstro::kPi;
using modAstro::kRadAGrados;

namespace {

std::int16_t proveedorMapa = 0;

} // namespace

double LadoMundo(std::int16_t z)
{
    return std::ldexp(kLadoTile, z);
}

void LonLatAPixel(double lon, double lat, std::int16_t z, double& x, double& y)
{
    const double w = LadoMundo(z);
    const double phi = lat * kGradosARad;
    x = (lon + 180) / 360 * w;
    y = (1 - std::log(std::tan(phi) + 1 / std::cos(phi)) / kPi) / 2 * w;
}

void PixelALonLat(double x, double y, std::int16_t z, double& lon, double& lat)
{
    const double w = LadoMundo(z);
    lon = x / w * 360 - 180;
    lat = std::atan(Sinh((1 - 2 * y / w) * kPi)) * kRadAGrados;
}

double Sinh(double x)
{
    return (std::exp(x) - std::exp(-x)) / 2;
}

double DistanciaKm(double lat1, double lon1, double lat2, double lon2)
{
    const double senLat = std::sin((lat2 - lat1) * kGradosARad / 2);
    const double senLon = std::sin((lon2 - lon1) * kGradosARad / 2);
    const double a =
        senLat * senLat + std::cos(lat1 * kGradosARad) * std::cos(lat2 * kGradosARad) * senLon * senLon;
    // At the antipodes rounding can carry a past 1, and the root of a negative number is no distance.
    return modAstro::Atan2(std::sqrt(a), std::sqrt(std::fmax(0.0, 1 - a))) * kDiametroKm;
}

double RumboInicial(double lat1, double lon1, double lat2, double lon2)
{
    const double phi1 = lat1 * kGradosARad;
    const double phi2 = lat2 * kGradosARad;
    const double d = (lon2 - lon1) * kGradosARad;
    const double y = std::sin(d) * std::cos(phi2);
    const double x = std::cos(phi1) * std::sin(phi2) - std::sin(phi1) * std::cos(phi2) * std::cos(d);
    return modAstro::Norm360(modAstro::Atan2(y, x) * kRadAGrados);
}

void EstablecerProveedorMapa(std::int16_t proveedor)
{
    proveedorMapa = proveedor;
}

std::int16_t ProveedorMapa()
{
    return proveedorMapa;
}

} // namespace modGeo

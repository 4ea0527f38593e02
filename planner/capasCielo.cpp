// capas: the Milky Way over the observer, and the eclipse of 12 August 2026.
#include "capas.h"

#include "modAstro.h"
#include "modFormato.h"
#include "modPlanetas.h"
#include "tablaEclipse2026.h"

#include <algorithm>
#include <cmath>

using modOpenGL::RGB;

namespace capas {

namespace {

constexpr double kPasoGalactico = 3.0;  // degrees of galactic longitude
constexpr double kAltitudMinima = -3.0; // lower points break the arc
constexpr std::int32_t kArco = RGB(255, 204, 100);

// Where a point of the galactic plane stands, azimuth and altitude in degrees. The rotation is asked with
// galactic angles and answers what serves as right ascension and declination here (see modPlanetas.h).
void HorizontalGalactico(const EscenaMapa& e, double longitud, double& az, double& alt)
{
    double alfa = 0.0, delta = 0.0;
    modAstro::EcuatorialAGalactico(longitud, 0.0, alfa, delta);
    modAstro::EcuatorialAHorizontal(alfa, delta, modAstro::TiempoSidereo(e.juliano), e.obsLat, e.obsLon, az,
                                    alt);
}

// A point of the sky on a stereographic disc whose rim is the horizon.
LienzoMapa::Esquina EnDisco(QPoint o, double radio, double az)
{
    const double a = az * modAstro::kGradosARad;
    return {o.x() + radio * std::sin(a), o.y() - radio * std::cos(a)};
}

double RadioEstereografico(double radio, double alt)
{
    const double a = alt * modAstro::kGradosARad;
    return radio * std::cos(a) / (1.0 + std::sin(a));
}

void CentroGalactico(LienzoMapa& lienzo, const EscenaMapa& e, QPoint o, double radio)
{
    double az = 0.0, alt = 0.0;
    HorizontalGalactico(e, 0.0, az, alt);
    const auto p = EnDisco(o, alt >= -1.0 ? RadioEstereografico(radio, alt) : 1.05 * radio, az);
    const bool arriba = alt >= 0.0;
    const std::int32_t contorno = arriba ? RGB(255, 230, 140) : RGB(180, 140, 80);
    lienzo.Circulo(p.x, p.y, 12.0, arriba ? RGB(255, 153, 0) : RGB(120, 70, 30), contorno);
    lienzo.TextoConSombra(QLatin1String("GC ") + modFormato::Format(alt, u"+0;-0") + QChar(u'°'), p.x + 16.0,
                          p.y - 8.0, contorno, 9, true);
}

} // namespace

void PintarViaLactea(LienzoMapa& lienzo, const EscenaMapa& e)
{
    if (!e.viaLactea || !e.tieneObs)
        return;
    const QPoint o = PixelObservador(e);
    const double radio = 0.35 * std::min(e.vista.ancho, e.vista.alto);
    bool hayAnterior = false;
    LienzoMapa::Esquina anterior;
    for (double l = 0.0; l < 359.999; l += kPasoGalactico) {
        double az = 0.0, alt = 0.0;
        HorizontalGalactico(e, l, az, alt);
        if (alt < kAltitudMinima) {
            hayAnterior = false;
            continue;
        }
        const auto p = EnDisco(o, RadioEstereografico(radio, alt), az);
        if (hayAnterior)
            lienzo.Linea(anterior.x, anterior.y, p.x, p.y, kArco, 2.0);
        anterior = p;
        hayAnterior = true;
    }
    CentroGalactico(lienzo, e, o, radio);
}

void PintarEclipse2026(LienzoMapa& lienzo, const EscenaMapa& e)
{
    constexpr double kLatitudMaxima = 66.0; // beyond it the projection inflates the shadow
    constexpr double kPenumbraKm = 650.0;
    constexpr int kSegmentos = 72;

    if (e.vista.zoom <= 1 || e.fecha.anio != 2026 || e.fecha.mes != 8 || e.fecha.dia != 12)
        return;
    double minuto = (e.juliano - modAstro::DiaJuliano(2026, 8, 12, 0.0)) * 1440.0;
    if (std::abs(minuto - std::round(minuto)) < 1e-4) // a Julian day is that coarse; the bar is in minutes
        minuto = std::round(minuto);
    SombraEclipse s;
    if (!SombraEclipse2026(minuto, s) || std::abs(s.lat) > kLatitudMaxima)
        return;

    std::int32_t x = 0, y = 0;
    modMap::LonLatAPixelVista(e.vista, s.lon, s.lat, x, y);
    const double k = std::max(std::abs(std::cos(s.lat * modAstro::kGradosARad)), 0.2);
    const double pixelesPorKm = 256.0 * std::exp2(e.vista.zoom) / (k * modMap::kEcuadorMetros / 1000.0);
    if (!(pixelesPorKm > 0.0))
        return;
    const double umbra = s.anchoKm / 2.0 * pixelesPorKm;
    const double penumbra = std::max(kPenumbraKm * pixelesPorKm, 3.0 * umbra);
    lienzo.DiscoAlfa(x, y, 1.8 * penumbra, RGB(0, 0, 0), 0.1, kSegmentos);
    lienzo.DiscoAlfa(x, y, 3.0 * umbra, RGB(0, 0, 0), 0.18, kSegmentos);
    lienzo.DiscoAlfa(x, y, umbra, RGB(0, 0, 0), 0.45, kSegmentos);
}

} // namespace capas

// capas: directions of Sun and Moon, and their paths through the day.
#include "capas.h"

#include "modAstro.h"
#include "modFormato.h"

#include <algorithm>
#include <cmath>

using modOpenGL::RGB;

namespace capas {

namespace {

constexpr double kSinCalcular = -998.0; // altitudes at or below are not computed

constexpr double kAlcanceHalo = 6.0; // degrees from a rising or setting direction
constexpr double kRadioHalo = 65.0;  // pixels
constexpr double kOpacidadHalo = 0.45;
constexpr std::int32_t kHaloSol = RGB(255, 153, 0);
constexpr std::int32_t kHaloLuna = RGB(120, 180, 255);

constexpr std::int32_t kSol = RGB(255, 160, 0);
constexpr std::int32_t kLuna = RGB(200, 200, 255);
constexpr std::int32_t kOrtoSol = RGB(255, 215, 0);
constexpr std::int32_t kOcasoSol = RGB(255, 80, 30);
constexpr std::int32_t kOrtoLuna = RGB(180, 220, 240);
constexpr std::int32_t kOcasoLuna = RGB(200, 160, 220);
constexpr double kAnchoSuceso = 4.0;

void Direccion(LienzoMapa& lienzo, const EscenaMapa& e, double az, std::int32_t color, double ancho)
{
    const QPoint o = PixelObservador(e);
    const double largo = LargoDireccion(e.vista);
    const double a = az * modAstro::kGradosARad;
    lienzo.Linea(o.x(), o.y(), o.x() + largo * std::sin(a), o.y() - largo * std::cos(a), color, ancho);
}

void Halo(LienzoMapa& lienzo, const EscenaMapa& e, double distancia, std::int32_t color)
{
    if (distancia >= kAlcanceHalo)
        return;
    const QPoint o = PixelObservador(e);
    lienzo.DiscoAlfa(o.x(), o.y(), kRadioHalo, color,
                     kOpacidadHalo * (kAlcanceHalo - distancia) / kAlcanceHalo, 36);
}

void LineaAstro(LienzoMapa& lienzo, const EscenaMapa& e, double az, double alt, std::int32_t color)
{
    if (az < 0.0)
        return;
    Direccion(lienzo, e, az, color, AnchoLineaAstro(alt));
    if (alt > kSinCalcular && alt < 0.0) // the stroke through the mark
        Direccion(lienzo, e, az + 180.0, color, 1.0);
}

void LineaEvento(LienzoMapa& lienzo, const EscenaMapa& e, double az, std::int32_t color)
{
    if (az >= 0.0)
        Direccion(lienzo, e, az, color, kAnchoSuceso);
}

// --- Paths

constexpr double kRadioCielo = 180.0; // pixels
constexpr std::int32_t kBorde = RGB(66, 70, 86);
constexpr int kMuestrasHora = 6;
constexpr int kPrimerRotulo = 36;  // 06:00
constexpr int kUltimoRotulo = 108; // 18:00

struct Trazo
{
    const modAstroEstado::Trayectoria* camino;
    std::int32_t color;
    std::int32_t apagado;
};

void Camino(LienzoMapa& lienzo, QPoint o, const Trazo& t)
{
    const auto& alt = t.camino->altitud;
    const auto visible = [&alt](std::size_t i) { return alt[i] >= modAstro::kAltitudOrto; };
    std::array<LienzoMapa::Esquina, modAstroEstado::kMuestrasDia> p;
    for (std::size_t i = 0; i < p.size(); ++i) {
        const double az = t.camino->azimut[i] * modAstro::kGradosARad;
        const double radio = kRadioCielo * std::cos(alt[i] * modAstro::kGradosARad);
        p[i] = {o.x() + radio * std::sin(az), o.y() - radio * std::cos(az)};
    }
    // A dark edge under what is bright, or it would drown on a pale map.
    for (std::size_t i = 1; i < p.size(); ++i)
        if (visible(i - 1) && visible(i))
            lienzo.Linea(p[i - 1].x, p[i - 1].y, p[i].x, p[i].y, kBorde, 3.0);
    for (std::size_t i = 1; i < p.size(); ++i) {
        const bool alto = visible(i - 1) && visible(i);
        lienzo.Linea(p[i - 1].x, p[i - 1].y, p[i].x, p[i].y, alto ? t.color : t.apagado, alto ? 1.5 : 1.0);
    }
    for (std::size_t i = 0; i < p.size(); i += kMuestrasHora) {
        const double radio = visible(i) ? 7.0 * std::sin(alt[i] * modAstro::kGradosARad) + 2.5 : 2.0;
        if (visible(i))
            lienzo.DiscoAlfa(p[i].x, p[i].y, radio + 0.75, kBorde, 1.0, 20);
        lienzo.DiscoAlfa(p[i].x, p[i].y, radio, visible(i) ? t.color : t.apagado, 1.0, 20);
    }
    for (std::size_t i = kPrimerRotulo; i <= kUltimoRotulo; i += kMuestrasHora)
        if (visible(i))
            lienzo.TextoConSombra(modFormato::Format(static_cast<double>(i / kMuestrasHora), u"00") +
                                      QLatin1String(":00"),
                                  p[i].x + 8.0, p[i].y - 6.0, t.color, 8, false);
}

} // namespace

double LargoDireccion(const modMap::VistaMapa& vista)
{
    return static_cast<double>(vista.ancho) + vista.alto + 100.0;
}

double BrilloAlineacion(double az, double a1, double a2)
{
    double menor = 999.0;
    if (az < 0.0)
        return menor;
    for (const double suceso : {a1, a2}) {
        if (suceso < 0.0)
            continue;
        double d = std::abs(az - suceso);
        if (d > 180.0)
            d = 360.0 - d;
        menor = std::min(menor, d);
    }
    return menor;
}

double AnchoLineaAstro(double alt)
{
    if (alt <= kSinCalcular || alt < -6.0)
        return 1.5;
    if (alt < 0.0)
        return 2.5;
    if (alt < 6.0)
        return 4.0;
    return 3.0;
}

void PintarDirecciones(LienzoMapa& lienzo, const EscenaMapa& e)
{
    if (!e.tieneObs)
        return;
    const MomentosActuales& m = e.ahora;
    Halo(lienzo, e, BrilloAlineacion(m.SolAzActual, m.SolAzOrto, m.SolAzOcaso), kHaloSol);
    Halo(lienzo, e, BrilloAlineacion(m.LunaAzActual, m.LunaAzOrto, m.LunaAzOcaso), kHaloLuna);
    LineaAstro(lienzo, e, m.SolAzActual, m.SolAltActual, kSol);
    LineaAstro(lienzo, e, m.LunaAzActual, m.LunaAltActual, kLuna);
    LineaEvento(lienzo, e, m.SolAzOrto, kOrtoSol);
    LineaEvento(lienzo, e, m.SolAzOcaso, kOcasoSol);
    LineaEvento(lienzo, e, m.LunaAzOrto, kOrtoLuna);
    LineaEvento(lienzo, e, m.LunaAzOcaso, kOcasoLuna);
}

void PintarTrayectorias(LienzoMapa& lienzo, const EscenaMapa& e)
{
    if (!e.trayectorias || !e.tieneObs || e.sol == nullptr || e.luna == nullptr)
        return;
    const QPoint o = PixelObservador(e);
    Camino(lienzo, o, {e.sol, RGB(255, 215, 60), RGB(120, 90, 0)});
    Camino(lienzo, o, {e.luna, RGB(220, 230, 255), RGB(110, 120, 150)});
}

} // namespace capas

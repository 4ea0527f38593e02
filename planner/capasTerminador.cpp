// capas: day and night over the map.
#include "capas.h"

#include "modAstro.h"

#include <algorithm>
#include <cmath>
#include <vector>

using modOpenGL::RGB;

namespace capas {

namespace {

constexpr double kPaso = 2.0;          // degrees of longitude between the terminator's points
constexpr double kMargen = 2.0;        // degrees drawn beyond either side of the view
constexpr double kEquinoccio = 0.0015; // radians of declination under which the line is two meridians
constexpr double kLatitudPolo = 89.9;
constexpr double kLatitudMapa = 85.0;
constexpr double kFueraPixeles = 4096.0; // how far beyond the picture a pole is drawn

constexpr std::int32_t kLinea = RGB(255, 200, 100);
constexpr double kAnchoLinea = 1.5;
constexpr LienzoMapa::Color kNoche{0.0, 0.0, 0.15, 0.32};

struct Sol
{
    double lat = 0, lon = 0; // subsolar point, degrees
};

// Longitudes that the view shows, with the margin.
struct Ventana
{
    double oeste = 0, este = 0;
};

Ventana LongitudesVisibles(const modMap::VistaMapa& v)
{
    const double mitad = v.ancho * 360.0 / (256.0 * std::exp2(v.zoom)) / 2.0;
    return {v.lon - mitad - kMargen, v.lon + mitad + kMargen};
}

LienzoMapa::Esquina Punto(const modMap::VistaMapa& v, double lon, double lat)
{
    std::int32_t x = 0, y = 0;
    modMap::LonLatAPixelVista(v, lon, lat, x, y);
    return {static_cast<double>(x), static_cast<double>(y)};
}

// --- Graded night

constexpr double kCelda = 3.0; // degrees
constexpr int kFilas = 58;     // corners from latitude -87 to 84 and the top of the last cell
constexpr double kLatitudPrimera = -87.0;

void PintarNocheGraduada(LienzoMapa& lienzo, const EscenaMapa& e, const Sol& sol)
{
    const Ventana w = LongitudesVisibles(e.vista);
    const double primera = std::floor(w.oeste / kCelda) * kCelda; // fixed to the ground, so panning is steady
    const auto columnas = static_cast<std::size_t>(std::ceil((w.este - primera) / kCelda)) + 1;

    std::vector<double> x(columnas), coseno(columnas);
    for (std::size_t c = 0; c < columnas; ++c) {
        const double lon = primera + static_cast<double>(c) * kCelda;
        x[c] = Punto(e.vista, lon, 0.0).x;
        coseno[c] = std::cos((lon - sol.lon) * modAstro::kGradosARad);
    }
    const double senoSol = std::sin(sol.lat * modAstro::kGradosARad);
    const double cosenoSol = std::cos(sol.lat * modAstro::kGradosARad);

    double yAbajo = 0.0;
    std::vector<LienzoMapa::Color> abajo(columnas), arriba(columnas);
    for (int fila = 0; fila <= kFilas; ++fila) {
        const double lat = kLatitudPrimera + fila * kCelda;
        const double seno = std::sin(lat * modAstro::kGradosARad) * senoSol;
        const double cosenoLat = std::cos(lat * modAstro::kGradosARad) * cosenoSol;
        const double y = Punto(e.vista, e.vista.lon, lat).y;
        for (std::size_t c = 0; c < columnas; ++c)
            arriba[c] =
                ColorCrepusculo(modAstro::ArcoSeno(seno + cosenoLat * coseno[c]) * modAstro::kRadAGrados);
        const bool seVe = fila > 0 && y < e.vista.alto && yAbajo > 0.0;
        for (std::size_t c = 0; seVe && c + 1 < columnas; ++c)
            if (abajo[c].a > 0.0 || abajo[c + 1].a > 0.0 || arriba[c].a > 0.0 || arriba[c + 1].a > 0.0)
                lienzo.Cuadrilatero({{x[c], yAbajo}, {x[c + 1], yAbajo}, {x[c + 1], y}, {x[c], y}},
                                    {abajo[c], abajo[c + 1], arriba[c + 1], arriba[c]});
        std::swap(abajo, arriba);
        yAbajo = y;
    }
}

// --- Near an equinox: two meridians

void PintarMeridianos(LienzoMapa& lienzo, const EscenaMapa& e, const Sol& sol)
{
    const Ventana w = LongitudesVisibles(e.vista);
    const double yNorte = Punto(e.vista, e.vista.lon, kLatitudMapa).y;
    const double ySur = Punto(e.vista, e.vista.lon, -kLatitudMapa).y;
    const auto x = [&e](double lon) { return Punto(e.vista, lon, 0.0).x; };
    // Columns are counted from the evening meridian, so that night ends exactly on both.
    const double tarde = sol.lon + 90.0;
    const double primera = tarde + std::floor((w.oeste - tarde) / kPaso) * kPaso;
    for (double lon = primera; lon < w.este; lon += kPaso) {
        const double centro = lon + kPaso / 2.0;
        if (std::cos((centro - sol.lon) * modAstro::kGradosARad) < 0.0)
            lienzo.Velo(x(lon), yNorte, x(lon + kPaso), ySur, kNoche);
    }
    const double primerMeridiano = tarde + std::ceil((w.oeste - tarde) / 180.0) * 180.0;
    for (double lon = primerMeridiano; lon <= w.este; lon += 180.0)
        lienzo.Linea(x(lon), yNorte, x(lon), ySur, kLinea, kAnchoLinea);
}

// --- Any other day

void PintarCurvaTerminador(LienzoMapa& lienzo, const EscenaMapa& e, const Sol& sol)
{
    const Ventana w = LongitudesVisibles(e.vista);
    const double tangente = std::tan(sol.lat * modAstro::kGradosARad);
    std::vector<LienzoMapa::Esquina> curva;
    for (double lon = std::floor(w.oeste / kPaso) * kPaso; lon < w.este + kPaso; lon += kPaso) {
        const double lat =
            std::atan(-std::cos((lon - sol.lon) * modAstro::kGradosARad) / tangente) * modAstro::kRadAGrados;
        curva.push_back(Punto(e.vista, lon, std::clamp(lat, -kLatitudPolo, kLatitudPolo)));
    }
    // The night pole, no farther out than it needs to be: pixels there are too large to draw well.
    const bool sur = sol.lat >= 0.0;
    const double polo = Punto(e.vista, e.vista.lon, sur ? -kLatitudPolo : kLatitudPolo).y;
    for (std::size_t i = 1; i < curva.size(); ++i) {
        const auto &a = curva[i - 1], &b = curva[i];
        const double y = sur ? std::min(polo, std::max({e.vista.alto + kFueraPixeles, a.y, b.y}))
                             : std::max(polo, std::min({-kFueraPixeles, a.y, b.y}));
        lienzo.Cuadrilatero({a, b, {b.x, y}, {a.x, y}}, kNoche);
    }
    for (std::size_t i = 1; i < curva.size(); ++i)
        lienzo.Linea(curva[i - 1].x, curva[i - 1].y, curva[i].x, curva[i].y, kLinea, kAnchoLinea);
}

} // namespace

LienzoMapa::Color ColorCrepusculo(double alt)
{
    struct Escalon
    {
        double alt;
        LienzoMapa::Color color;
    };
    constexpr Escalon kEscalones[] = {
        {0.0, {0.16, 0.24, 0.42, 0.0}},    {-6.0, {0.16, 0.24, 0.42, 0.16}},
        {-12.0, {0.07, 0.13, 0.30, 0.23}}, {-18.0, {0.03, 0.07, 0.20, 0.29}},
        {-24.0, {0.0, 0.0, 0.12, 0.34}},
    };
    if (alt >= kEscalones[0].alt)
        return kEscalones[0].color;
    for (std::size_t i = 1; i < std::size(kEscalones); ++i) {
        if (alt < kEscalones[i].alt)
            continue;
        const Escalon &alto = kEscalones[i - 1], &bajo = kEscalones[i];
        const double f = (alto.alt - alt) / (alto.alt - bajo.alt);
        return {std::lerp(alto.color.r, bajo.color.r, f), std::lerp(alto.color.g, bajo.color.g, f),
                std::lerp(alto.color.b, bajo.color.b, f), std::lerp(alto.color.a, bajo.color.a, f)};
    }
    return kEscalones[4].color;
}

void PintarTerminador(LienzoMapa& lienzo, const EscenaMapa& e)
{
    if (!e.terminador)
        return;
    Sol sol;
    modAstro::PuntoSubsolar(e.juliano, sol.lat, sol.lon);
    if (e.fasesTerminador)
        PintarNocheGraduada(lienzo, e, sol);
    if (std::abs(sol.lat * modAstro::kGradosARad) < kEquinoccio)
        PintarMeridianos(lienzo, e, sol);
    else
        PintarCurvaTerminador(lienzo, e, sol);
}

} // namespace capas

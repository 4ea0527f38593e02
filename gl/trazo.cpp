#include "trazo.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <numbers>

namespace trazo {
namespace {

bool Finito(const Punto& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y);
}

std::uint32_t Siguiente(const Malla& m)
{
    return static_cast<std::uint32_t>(m.vertices.size());
}

void Poner(Malla& m, const Lapiz& lapiz, double x, double y, Tinta t)
{
    m.vertices.push_back({static_cast<float>(x), static_cast<float>(y), lapiz.uBlanco, lapiz.vBlanco, t});
}

void Cara(Malla& m, std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d)
{
    m.indices.insert(m.indices.end(), {a, b, c, a, c, d});
}

Tinta Aclarada(Tinta t, double factor)
{
    t.a = static_cast<std::uint8_t>(std::lround(t.a * factor));
    return t;
}

// The ramp of an edge around a half width: full inside `dentro`, nothing from `fuera` on. A shape thinner
// than a pixel has no full part: its middle takes the share of a pixel that it covers.
struct Rampa
{
    double dentro, fuera, fuerza;
};

Rampa RampaDe(double mitad, const Lapiz& lapiz)
{
    if (!lapiz.suave)
        return {mitad, mitad, 1.0};
    const double medio = lapiz.pixel / 2.0;
    if (mitad < medio) // a triangle one pixel to each side; its area is the width
        return {0.0, lapiz.pixel, 2.0 * mitad / lapiz.pixel};
    return {mitad - medio, mitad + medio, 1.0};
}

} // namespace

Tinta TintaDe(std::int32_t color, double opacidad)
{
    const double a = std::clamp(opacidad, 0.0, 1.0) * 255.0;
    return {static_cast<std::uint8_t>(color & 255), static_cast<std::uint8_t>((color >> 8) & 255),
            static_cast<std::uint8_t>((color >> 16) & 255), static_cast<std::uint8_t>(std::lround(a))};
}

bool RecortarSegmento(Punto& a, Punto& b, double x0, double y0, double x1, double y1)
{
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    double entra = 0.0;
    double sale = 1.0;
    const struct
    {
        double p, q;
    } bordes[] = {{-dx, a.x - x0}, {dx, x1 - a.x}, {-dy, a.y - y0}, {dy, y1 - a.y}};
    for (const auto& [p, q] : bordes) {
        if (p == 0.0) {
            if (q < 0.0)
                return false;
            continue;
        }
        const double t = q / p;
        if (p < 0.0)
            entra = std::max(entra, t);
        else
            sale = std::min(sale, t);
    }
    if (entra > sale)
        return false;
    const Punto inicio = a;
    if (sale < 1.0)
        b = {inicio.x + sale * dx, inicio.y + sale * dy};
    if (entra > 0.0)
        a = {inicio.x + entra * dx, inicio.y + entra * dy};
    return true;
}

void Linea(Malla& m, const Lapiz& lapiz, Punto a, Punto b, double ancho, Tinta tinta)
{
    if (!Finito(a) || !Finito(b) || !(ancho > 0.0) || tinta.a == 0)
        return;
    const double margen = ancho + 2.0; // so that a cut end never shows
    if (!RecortarSegmento(a, b, -margen, -margen, lapiz.ancho + margen, lapiz.alto + margen))
        return;
    const double largo = std::hypot(b.x - a.x, b.y - a.y);
    if (!(largo > 0.0))
        return;
    const Punto d{(b.x - a.x) / largo, (b.y - a.y) / largo}; // along
    const Punto n{-d.y, d.x};                                // across
    const Punto medio{(a.x + b.x) / 2.0, (a.y + b.y) / 2.0};
    const Rampa lado = RampaDe(ancho / 2.0, lapiz);
    const Rampa punta = RampaDe(largo / 2.0, lapiz);
    const Tinta plena = Aclarada(tinta, lado.fuerza * punta.fuerza);
    const Tinta nada = Aclarada(tinta, 0.0);

    const std::uint32_t base = Siguiente(m);
    const auto marco = [&](double s, double t, Tinta color) {
        for (const auto& [i, j] : {std::pair{-1.0, -1.0}, {1.0, -1.0}, {1.0, 1.0}, {-1.0, 1.0}})
            Poner(m, lapiz, medio.x + d.x * s * i + n.x * t * j, medio.y + d.y * s * i + n.y * t * j, color);
    };
    marco(punta.dentro, lado.dentro, plena);
    Cara(m, base, base + 1, base + 2, base + 3);
    if (!lapiz.suave)
        return;
    marco(punta.fuera, lado.fuera, nada);
    for (std::uint32_t i = 0; i < 4; ++i) {
        const std::uint32_t k = (i + 1) % 4;
        Cara(m, base + i, base + k, base + 4 + k, base + 4 + i);
    }
}

namespace {

// A closed strip of `segmentos` sides between two radii, with an ink at each.
void Corona(Malla& m, const Lapiz& lapiz, Punto c, double r0, Tinta t0, double r1, Tinta t1, int segmentos)
{
    const std::uint32_t base = Siguiente(m);
    for (int i = 0; i < segmentos; ++i) {
        const double angulo = 2.0 * std::numbers::pi * i / segmentos;
        const double s = std::sin(angulo);
        const double k = std::cos(angulo);
        Poner(m, lapiz, c.x + r0 * k, c.y + r0 * s, t0);
        Poner(m, lapiz, c.x + r1 * k, c.y + r1 * s, t1);
    }
    const auto vueltas = static_cast<std::uint32_t>(segmentos);
    for (std::uint32_t i = 0; i < vueltas; ++i) {
        const std::uint32_t k = (i + 1) % vueltas;
        Cara(m, base + 2 * i, base + 2 * i + 1, base + 2 * k + 1, base + 2 * k);
    }
}

bool Visible(const Lapiz& lapiz, Punto c, double radio)
{
    const double r = radio + 1.0;
    return c.x + r > 0.0 && c.y + r > 0.0 && c.x - r < lapiz.ancho && c.y - r < lapiz.alto;
}

} // namespace

void Disco(Malla& m, const Lapiz& lapiz, Punto centro, double radio, int segmentos, Tinta tinta)
{
    if (!Finito(centro) || !(radio > 0.0) || !std::isfinite(radio) || segmentos < 3 || tinta.a == 0 ||
        !Visible(lapiz, centro, radio))
        return;
    const Rampa borde = RampaDe(radio, lapiz);
    const Tinta plena = Aclarada(tinta, borde.fuerza * borde.fuerza);
    const auto vueltas = static_cast<std::uint32_t>(segmentos);
    const std::uint32_t base = Siguiente(m);
    Poner(m, lapiz, centro.x, centro.y, plena);
    for (std::uint32_t i = 0; i < vueltas; ++i) {
        const double angulo = 2.0 * std::numbers::pi * i / segmentos;
        Poner(m, lapiz, centro.x + borde.dentro * std::cos(angulo),
              centro.y + borde.dentro * std::sin(angulo), plena);
    }
    for (std::uint32_t i = 0; i < vueltas; ++i)
        m.indices.insert(m.indices.end(), {base, base + 1 + i, base + 1 + (i + 1) % vueltas});
    if (lapiz.suave)
        Corona(m, lapiz, centro, borde.dentro, plena, borde.fuera, Aclarada(tinta, 0.0), segmentos);
}

void Anillo(Malla& m, const Lapiz& lapiz, Punto centro, double radio, double ancho, int segmentos,
            Tinta tinta)
{
    if (!Finito(centro) || !(radio > 0.0) || !std::isfinite(radio) || !(ancho > 0.0) ||
        !std::isfinite(ancho) || segmentos < 3 || tinta.a == 0 || !Visible(lapiz, centro, radio + ancho))
        return;
    const Rampa borde = RampaDe(ancho / 2.0, lapiz);
    const Tinta plena = Aclarada(tinta, borde.fuerza);
    const Tinta nada = Aclarada(tinta, 0.0);
    const double r0 = std::max(0.0, radio - borde.dentro);
    const double r1 = radio + borde.dentro;
    if (r1 > r0)
        Corona(m, lapiz, centro, r0, plena, r1, plena, segmentos);
    if (lapiz.suave) {
        Corona(m, lapiz, centro, std::max(0.0, radio - borde.fuera), nada, r0, plena, segmentos);
        Corona(m, lapiz, centro, r1, plena, radio + borde.fuera, nada, segmentos);
    }
}

void Cuadrilatero(Malla& m, const Lapiz& lapiz, const Punto (&esquinas)[4], const Tinta (&tintas)[4])
{
    for (const Punto& p : esquinas)
        if (!Finito(p))
            return;
    const std::uint32_t base = Siguiente(m);
    for (int i = 0; i < 4; ++i)
        Poner(m, lapiz, esquinas[i].x, esquinas[i].y, tintas[i]);
    Cara(m, base, base + 1, base + 2, base + 3);
}

void Estampa(Malla& m, Punto origen, double ancho, double alto, float u0, float v0, float u1, float v1,
             Tinta tinta)
{
    if (!Finito(origen) || !(ancho > 0.0) || !(alto > 0.0))
        return;
    const auto x0 = static_cast<float>(origen.x);
    const auto y0 = static_cast<float>(origen.y);
    const auto x1 = static_cast<float>(origen.x + ancho);
    const auto y1 = static_cast<float>(origen.y + alto);
    const std::uint32_t base = Siguiente(m);
    m.vertices.push_back({x0, y0, u0, v0, tinta});
    m.vertices.push_back({x1, y0, u1, v0, tinta});
    m.vertices.push_back({x1, y1, u1, v1, tinta});
    m.vertices.push_back({x0, y1, u0, v1, tinta});
    Cara(m, base, base + 1, base + 2, base + 3);
}

} // namespace trazo

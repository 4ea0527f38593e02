// The meshes of strokes, discs and quads, without any driver.
#include "color.h"
#include "trazo.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

namespace {

using namespace trazo;

constexpr Tinta kNegra{0, 0, 0, 255};

// Area under the opacity of a mesh, square pixels: each triangle times the mean of its corners, exact for
// a linear ramp.
double AreaOpaca(const Malla& m)
{
    double suma = 0.0;
    for (std::size_t i = 0; i + 2 < m.indices.size(); i += 3) {
        const Vertice& a = m.vertices[m.indices[i]];
        const Vertice& b = m.vertices[m.indices[i + 1]];
        const Vertice& c = m.vertices[m.indices[i + 2]];
        const double area = std::abs((static_cast<double>(b.x) - a.x) * (static_cast<double>(c.y) - a.y) -
                                     (static_cast<double>(c.x) - a.x) * (static_cast<double>(b.y) - a.y)) /
                            2.0;
        suma += area * (a.tinta.a + b.tinta.a + c.tinta.a) / 3.0 / 255.0;
    }
    return suma;
}

// How far a mesh reaches from a point.
double Alcance(const Malla& m, double x, double y)
{
    double lejos = 0.0;
    for (const Vertice& v : m.vertices)
        lejos = std::max(lejos, std::hypot(v.x - x, v.y - y));
    return lejos;
}

struct CasoRecorte
{
    const char* frase;
    Punto a, b;
    bool queda;
    Punto a2, b2;
};

// By hand, against the rectangle (0, 0)-(100, 50).
constexpr CasoRecorte kRecortes[] = {
    {"inside stays", {10, 10}, {90, 40}, true, {10, 10}, {90, 40}},
    {"one end out", {50, 25}, {150, 25}, true, {50, 25}, {100, 25}},
    {"both ends out, through", {-50, 25}, {150, 25}, true, {0, 25}, {100, 25}},
    {"a diagonal through two corners", {-100, -50}, {200, 100}, true, {0, 0}, {100, 50}},
    {"wholly left", {-10, 0}, {-5, 50}, false, {}, {}},
    {"past a corner", {-30, 30}, {20, 80}, false, {}, {}},
    {"along the outside", {0, -1}, {100, -1}, false, {}, {}},
    {"along the border", {0, 0}, {100, 0}, true, {0, 0}, {100, 0}},
    {"a point inside", {5, 5}, {5, 5}, true, {5, 5}, {5, 5}},
    {"a point outside", {-5, 5}, {-5, 5}, false, {}, {}},
};

TEST(Trazo, RecortarSegmento)
{
    for (const CasoRecorte& c : kRecortes) {
        SCOPED_TRACE(c.frase);
        Punto a = c.a;
        Punto b = c.b;
        ASSERT_EQ(RecortarSegmento(a, b, 0, 0, 100, 50), c.queda);
        const Punto& a2 = c.queda ? c.a2 : c.a; // untouched when nothing is left
        const Punto& b2 = c.queda ? c.b2 : c.b;
        EXPECT_NEAR(a.x, a2.x, 1e-9);
        EXPECT_NEAR(a.y, a2.y, 1e-9);
        EXPECT_NEAR(b.x, b2.x, 1e-9);
        EXPECT_NEAR(b.y, b2.y, 1e-9);
    }
}

TEST(Trazo, ElAreaDeUnaLineaEsLargoPorAncho)
{
    for (const double ancho : {0.2, 0.5, 1.0, 1.5, 2.5, 4.0, 11.0})
        for (const double pixel : {1.0, 0.5, 1.0 / 3.0})
            for (int grados = 0; grados < 360; grados += 17) {
                SCOPED_TRACE(testing::Message()
                             << ancho << " wide, " << grados << " degrees, pixel " << pixel);
                Malla m;
                Lapiz lapiz;
                lapiz.pixel = static_cast<float>(pixel);
                const double r = grados * std::numbers::pi / 180.0;
                Linea(m, lapiz, {500, 500}, {500 + 100 * std::cos(r), 500 + 100 * std::sin(r)}, ancho,
                      kNegra);
                // The corners of the ramp lose up to a third of a pixel, an 8-bit opacity 1/510 of the whole.
                EXPECT_NEAR(AreaOpaca(m), 100.0 * ancho, 0.35 + 0.002 * 100.0 * std::max(1.0, ancho));
            }
}

TEST(Trazo, UnaLineaDuraNoTieneRampa)
{
    Malla m;
    Lapiz lapiz;
    lapiz.suave = false;
    Linea(m, lapiz, {10, 10}, {20, 10}, 4.0, kNegra);
    ASSERT_EQ(m.vertices.size(), 4U);
    EXPECT_NEAR(AreaOpaca(m), 40.0, 1e-4);
}

TEST(Trazo, UnaLineaSeCortaAlCuadroYNoSeVeElCorte)
{
    Malla m;
    Lapiz lapiz;
    lapiz.ancho = 100;
    lapiz.alto = 50;
    Linea(m, lapiz, {-1e7, 25}, {1e7, 25}, 6.0, kNegra);
    ASSERT_FALSE(m.vertices.empty());
    for (const Vertice& v : m.vertices) {
        EXPECT_TRUE(v.x < -2.0F || v.x > 102.0F) << v.x; // the end and its ramp stand outside
        EXPECT_LT(std::abs(v.x), 200.0F);
    }
    Malla fuera;
    Linea(fuera, lapiz, {-1e7, 500}, {1e7, 500}, 6.0, kNegra);
    EXPECT_TRUE(fuera.vertices.empty());
}

TEST(Trazo, UnDiscoTieneElAreaDeSuPoligono)
{
    for (const int lados : {8, 20, 36, 72})
        for (const double radio : {2.0, 6.0, 65.0, 400.0}) {
            SCOPED_TRACE(testing::Message() << lados << " sides, radius " << radio);
            Malla m;
            Disco(m, Lapiz{}, {300, 300}, radio, lados, kNegra);
            const double poligono = lados / 2.0 * radio * radio * std::sin(2.0 * std::numbers::pi / lados);
            // A symmetric ramp across a curved edge adds its width squared over 12 times the angle.
            EXPECT_NEAR(AreaOpaca(m), poligono, 0.3 + 0.003 * poligono);
            EXPECT_NEAR(Alcance(m, 300, 300), radio + 0.5, 1e-3);
            EXPECT_EQ(m.vertices.size(), 1U + static_cast<std::size_t>(lados) * 3U);
        }
}

TEST(Trazo, UnDiscoMenorQueUnPixelSeDesvanece)
{
    Malla m;
    Disco(m, Lapiz{}, {300, 300}, 0.2, 36, kNegra);
    EXPECT_GT(AreaOpaca(m), 0.0);
    EXPECT_LT(AreaOpaca(m), 0.6);
}

TEST(Trazo, UnAnilloTieneSuArea)
{
    Malla m;
    Anillo(m, Lapiz{}, {300, 300}, 50.0, 3.0, 72, kNegra);
    const double corona = 72.0 * std::sin(2.0 * std::numbers::pi / 72.0) * 50.0 * 3.0;
    EXPECT_NEAR(AreaOpaca(m), corona, 0.01 * corona);
    EXPECT_NEAR(Alcance(m, 300, 300), 52.0, 1e-3);
}

TEST(Trazo, LoQueNoTieneSentidoNoAnadeNada)
{
    const double nada = std::numeric_limits<double>::quiet_NaN();
    const double infinito = std::numeric_limits<double>::infinity();
    Malla m;
    const Lapiz lapiz;
    Linea(m, lapiz, {nada, 0}, {1, 1}, 1, kNegra);
    Linea(m, lapiz, {0, 0}, {infinito, 1}, 1, kNegra);
    Linea(m, lapiz, {0, 0}, {1, 1}, nada, kNegra);
    Linea(m, lapiz, {0, 0}, {1, 1}, -1, kNegra);
    Linea(m, lapiz, {1, 1}, {1, 1}, 1, kNegra);
    Linea(m, lapiz, {0, 0}, {1, 1}, 1, {0, 0, 0, 0});
    Disco(m, lapiz, {0, nada}, 1, 36, kNegra);
    Disco(m, lapiz, {0, 0}, nada, 36, kNegra);
    Disco(m, lapiz, {0, 0}, infinito, 36, kNegra);
    Disco(m, lapiz, {0, 0}, 0, 36, kNegra);
    Disco(m, lapiz, {0, 0}, 5, 2, kNegra);
    Disco(m, lapiz, {-50, 10}, 5, 36, kNegra);
    Anillo(m, lapiz, {0, 0}, 5, 0, 36, kNegra);
    Anillo(m, lapiz, {0, 0}, -5, 1, 36, kNegra);
    Cuadrilatero(m, lapiz, {{0, 0}, {1, 0}, {1, nada}, {0, 1}}, {kNegra, kNegra, kNegra, kNegra});
    Estampa(m, {nada, 0}, 1, 1, 0, 0, 1, 1, kNegra);
    Estampa(m, {0, 0}, 0, 1, 0, 0, 1, 1, kNegra);
    EXPECT_TRUE(m.vertices.empty());
    EXPECT_TRUE(m.indices.empty());
}

TEST(Trazo, UnaEstampaLlevaSusCoordenadasDeTextura)
{
    Malla m;
    Estampa(m, {10, 20}, 30, 40, 0.25F, 0.5F, 0.75F, 1.0F, kNegra);
    ASSERT_EQ(m.vertices.size(), 4U);
    EXPECT_EQ(m.vertices[0].x, 10.0F);
    EXPECT_EQ(m.vertices[0].v, 0.5F);
    EXPECT_EQ(m.vertices[2].x, 40.0F);
    EXPECT_EQ(m.vertices[2].y, 60.0F);
    EXPECT_EQ(m.vertices[2].u, 0.75F);
    EXPECT_EQ(m.vertices[2].v, 1.0F);
}

TEST(Trazo, LosColoresLlevanElRojoEnElByteBajo)
{
    constexpr std::int32_t color = modOpenGL::RGB(255, 160, 1);
    static_assert(color == 0x01A0FF);
    EXPECT_EQ(TintaDe(color), (Tinta{255, 160, 1, 255}));
    EXPECT_EQ(TintaDe(color, 0.5).a, 128);
    EXPECT_EQ(TintaDe(color, -1.0).a, 0);
    EXPECT_EQ(TintaDe(color, 7.0).a, 255);
    float r = 0;
    float g = 0;
    float b = 0;
    modOpenGL::ColorAFloat(color, r, g, b);
    EXPECT_EQ(r, 1.0F);
    EXPECT_NEAR(g, 160.0F / 255.0F, 1e-6F);
    EXPECT_NEAR(b, 1.0F / 255.0F, 1e-6F);
}

} // namespace

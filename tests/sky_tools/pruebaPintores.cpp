#include "brujula.h"
#include "calendario.h"
#include "fechaSerie.h"
#include "franjaVL.h"
#include "modAstro.h"
#include "modEventos.h"
#include "modViaLactea.h"
#include "paleta.h"
#include "ruedaFases.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr QColor kLuz{245, 240, 215}; // lit part of the Moon
constexpr QColor kSombra{45, 45, 60}; // dark part

template <class Pintar> QImage Lienzo(QSize tam, Pintar pintar)
{
    QImage imagen(tam, QImage::Format_RGB32);
    imagen.fill(Qt::magenta);
    QPainter p(&imagen);
    pintar(p, QRectF(imagen.rect()));
    p.end();
    return imagen;
}

bool Parecidos(const QColor& a, const QColor& b, int margen)
{
    return std::abs(a.red() - b.red()) <= margen && std::abs(a.green() - b.green()) <= margen &&
           std::abs(a.blue() - b.blue()) <= margen;
}

// How many pixels of a rectangle come near a colour.
int Cuenta(const QImage& imagen, const QRectF& donde, const QColor& color, int margen = 0)
{
    int n = 0;
    const QRect r = donde.toAlignedRect() & imagen.rect();
    for (int y = r.top(); y <= r.bottom(); ++y) {
        for (int x = r.left(); x <= r.right(); ++x) {
            n += Parecidos(imagen.pixelColor(x, y), color, margen) ? 1 : 0;
        }
    }
    return n;
}

QRectF Alrededor(const QPointF& c, double radio)
{
    return {c.x() - radio, c.y() - radio, 2 * radio, 2 * radio};
}

bool SoloFondo(const QImage& imagen, const QRectF& donde)
{
    const QRect r = donde.toAlignedRect() & imagen.rect();
    return Cuenta(imagen, donde, paleta::kCampo) == r.width() * r.height();
}

// --- compass ---

QPointF EnBrujula(const QSize& tam, double azimut, double distancia)
{
    const double a = azimut * modAstro::kGradosARad;
    return {tam.width() / 2.0 + std::sin(a) * distancia, tam.height() / 2.0 - std::cos(a) * distancia};
}

TEST(brujula, MarcoRutaYAzimut)
{
    const QSize tam(300, 320);
    brujula::DatosBrujula d;
    d.azimut = 225;
    // From the horizon in the east over an altitude of 45 in the south to the horizon in the west; then
    // below.
    for (int i = 0; i <= 60; ++i) {
        d.ruta.push_back({90.0 + 3 * i, 45 * std::sin(i / 60.0 * modAstro::kPi)});
    }
    d.ruta.push_back({275, -5});
    d.ruta.push_back({30, -20});
    d.ruta.push_back({40, -1});
    const auto pintar = [&](QPainter& p, const QRectF& r) { brujula::PintarBrujula(p, r, d); };
    QImage imagen = Lienzo(tam, pintar);
    const double radio = brujula::RadioBrujula(QRectF(QPointF(0, 0), tam));
    EXPECT_EQ(radio, 128);

    const QColor borde(120, 125, 140), anillo(72, 76, 90), sol(255, 200, 60), luna(215, 215, 230),
        buscado(90, 200, 255);
    for (int az = 10; az < 360; az += 30) {
        EXPECT_GT(Cuenta(imagen, Alrededor(EnBrujula(tam, az, radio), 2), borde, 45), 1) << az;
        EXPECT_GT(Cuenta(imagen, Alrededor(EnBrujula(tam, az + 8, radio / 3), 2), anillo, 30), 1) << az;
    }
    for (int az = 0; az < 360; az += 30) { // ticks reach six pixels inwards
        EXPECT_GT(Cuenta(imagen, Alrededor(EnBrujula(tam, az, radio - 4), 1.5), borde, 60), 1) << az;
    }
    // The line of the azimuth runs from the centre to the rim.
    for (double parte : {0.1, 0.5, 0.95}) {
        EXPECT_GT(Cuenta(imagen, Alrededor(EnBrujula(tam, 225, radio * parte), 1.5), buscado, 30), 1)
            << parte;
    }
    // South at 45 degrees of altitude lies half way out.
    EXPECT_GT(Cuenta(imagen, Alrededor(EnBrujula(tam, 180, radio / 2), 2), sol, 20), 2);
    EXPECT_EQ(Cuenta(imagen, Alrededor(EnBrujula(tam, 30, radio), 8), sol, 60), 0); // below: not drawn
    // Letters outside the rim.
    for (int az = 0; az < 360; az += 90) {
        EXPECT_GT(Cuenta(imagen, Alrededor(EnBrujula(tam, az, radio + 9), 7), paleta::kTexto, 60), 3) << az;
    }
    d.luna = true;
    imagen = Lienzo(tam, pintar);
    EXPECT_GT(Cuenta(imagen, Alrededor(EnBrujula(tam, 180, radio / 2), 2), luna, 20), 2);
    EXPECT_EQ(Cuenta(imagen, imagen.rect(), sol, 20), 0);
}

TEST(brujula, SinSitioSoloElFondo)
{
    const QImage imagen =
        Lienzo({40, 200}, [](QPainter& p, const QRectF& r) { brujula::PintarBrujula(p, r, {}); });
    EXPECT_EQ(Cuenta(imagen, imagen.rect(), paleta::kCampo), 40 * 200);
}

// --- calendar ---

struct BancoCalendario
{
    QSize tam{860, 320};
    calendario::CalendarioAnual datos;
    calendario::Rejilla rejilla;
    QImage imagen;

    explicit BancoCalendario(const calendario::CalendarioAnual& c) : datos(c)
    {
        imagen = Lienzo(tam, [this](QPainter& p, const QRectF& r) {
            rejilla = calendario::MedirRejilla(QFontMetricsF(p.font()), r);
            calendario::PintarCalendario(p, r, datos);
        });
    }

    QPointF Centro(std::int16_t mes, std::int16_t dia) const { return rejilla.Celda({mes, dia}).center(); }
};

calendario::CalendarioAnual De2026(const ContextoBusqueda& c)
{
    return calendario::HacerCalendario(2026, c.zona, modEventos::EventosCelestes(c, 2026));
}

const ContextoBusqueda kMadrid{true, 40.4168, -3.7038, 2, {2026, 1, 1}, 12};

TEST(calendario, LunasDeUnAnio)
{
    const BancoCalendario b(De2026(kMadrid));
    // Full on 3 January and new on 12 August at noon, near enough for the middle of the disc.
    EXPECT_EQ(b.imagen.pixelColor(b.Centro(1, 3).toPoint()), kLuz);
    EXPECT_EQ(b.imagen.pixelColor(b.Centro(8, 12).toPoint()), kSombra);
    // First quarter on 20 August: right half lit; last quarter on 6 August: left half.
    const double r = b.rejilla.alto / 4;
    EXPECT_EQ(b.imagen.pixelColor((b.Centro(8, 20) + QPointF(r, 0)).toPoint()), kLuz);
    EXPECT_EQ(b.imagen.pixelColor((b.Centro(8, 20) - QPointF(r, 0)).toPoint()), kSombra);
    EXPECT_EQ(b.imagen.pixelColor((b.Centro(8, 6) - QPointF(r, 0)).toPoint()), kLuz);
    // Days that no month has stay blank.
    for (const auto& [mes, dia] : {std::pair{2, 29}, {2, 30}, {2, 31}, {4, 31}, {6, 31}, {9, 31}, {11, 31}}) {
        const QRectF celda =
            b.rejilla.Celda({static_cast<std::int16_t>(mes), static_cast<std::int16_t>(dia)});
        EXPECT_TRUE(SoloFondo(b.imagen, celda.adjusted(2, 2, -2, -2)));
    }
    // Month names left of the grid, day numbers above it.
    EXPECT_GT(
        Cuenta(b.imagen, QRectF(0, b.rejilla.y0, b.rejilla.x0 - 4, b.rejilla.alto), {224, 224, 224}, 60), 5);
    EXPECT_GT(
        Cuenta(b.imagen, QRectF(b.rejilla.x0, 0, b.rejilla.ancho, b.rejilla.y0 - 4), {224, 224, 224}, 60), 3);
    // Nothing but the background between them and the grid.
    EXPECT_TRUE(SoloFondo(b.imagen, QRectF(b.rejilla.x0 - 3, b.rejilla.y0, 2, 200)));
}

struct CasoMarca
{
    const char* frase;
    std::int16_t mes, dia;
    QColor color;
};

const CasoMarca kMarcas[] = {
    {"an eclipse of the Sun that is not seen from here is marked too", 2, 17, {255, 70, 60}},
    {"eclipse of the Sun, over the Perseids of the same day", 8, 12, {255, 70, 60}},
    {"eclipse of the Moon", 3, 3, {255, 150, 50}},
    {"meteors", 12, 14, {80, 210, 230}},
    {"equinox", 3, 20, {120, 230, 120}},
    {"solstice", 6, 21, {120, 230, 120}},
    {"supermoon", 12, 24, {255, 230, 90}},
};

TEST(calendario, MarcasDeTresPixeles)
{
    const BancoCalendario b(De2026(kMadrid));
    for (const CasoMarca& c : kMarcas) {
        SCOPED_TRACE(c.frase);
        const QRectF celda = b.rejilla.Celda({c.mes, c.dia});
        const QRectF marca(std::round(celda.right() - 4), std::round(celda.top() + 1), 3, 3);
        EXPECT_EQ(Cuenta(b.imagen, marca, c.color), 9);
        EXPECT_EQ(Cuenta(b.imagen, marca.adjusted(-1, -1, 1, 1), c.color), 9);
    }
    // An ordinary day has none.
    const QRectF celda = b.rejilla.Celda({5, 20});
    for (const CasoMarca& c : kMarcas) {
        EXPECT_EQ(Cuenta(b.imagen, celda, c.color), 0);
    }
}

struct CasoRegla
{
    const char* linea;
    QColor color; // invalid: none
};

const CasoRegla kReglas[] = {
    {"12/08/2026 19:38  Luna nueva  Eclipse de Sol total mag 1.00 19:39-21:13", {255, 70, 60}},
    {"12/08/2026 19:38  Luna nueva  Eclipse de Sol (no visible aqui)", {255, 70, 60}},
    {"12/08/2026 19:38  Luna nueva  (posible eclipse de Sol)", {}},
    {"28/09/2015 04:50  Luna llena  Eclipse de Luna total mag 1.28 (visible)  (SUPERLUNA)", {255, 150, 50}},
    {"24/12/2026 02:30  Luna llena  (SUPERLUNA)", {255, 230, 90}},
    {"12/08/2026        Lluvia de meteoros: Perseidas  (~100 met/h)", {80, 210, 230}},
    {"21/06/2026 08:00  Solsticio de junio", {120, 230, 120}},
    {"20/03/2026 15:37  Equinoccio de marzo", {120, 230, 120}},
    {"24/12/2026 07:00  Perigeo lunar  -  356,663 km", {}},
    {"", {}},
};

TEST(calendario, ReglasDeColor)
{
    for (const CasoRegla& c : kReglas) {
        SCOPED_TRACE(c.linea);
        const auto color = calendario::ColorDeLinea(QString::fromLatin1(c.linea));
        ASSERT_EQ(color.has_value(), c.color.isValid());
        if (color) {
            EXPECT_EQ(*color, c.color);
        }
    }
}

TEST(calendario, LaUltimaLineaDeUnDiaGana)
{
    const QString texto = QStringLiteral("12/08/2026 19:38  Luna nueva  Eclipse de Sol\r\n"
                                         "12/08/2026        Lluvia de meteoros: Perseidas\r\n"
                                         "short\r\n(Anyo no valido)\r\n99/99/2026 Eclipse de Sol\r\n"
                                         "01/01/2027 00:10  Luna llena  (SUPERLUNA)\r\n");
    const auto c = calendario::HacerCalendario(2026, 0, texto);
    ASSERT_EQ(c.marcas.size(), 3u);
    const BancoCalendario b(c);
    const QRectF celda = b.rejilla.Celda({8, 12});
    EXPECT_EQ(Cuenta(b.imagen, celda, {80, 210, 230}), 9);
    EXPECT_EQ(Cuenta(b.imagen, celda, {255, 70, 60}), 0);
    // A line of the neighbouring year marks the row of its month.
    EXPECT_EQ(Cuenta(b.imagen, b.rejilla.Celda({1, 1}), {255, 230, 90}), 9);
}

TEST(calendario, SinAnioNoSePintaNada)
{
    const BancoCalendario b({});
    EXPECT_EQ(Cuenta(b.imagen, b.imagen.rect(), paleta::kCampo), b.tam.width() * b.tam.height());
}

TEST(calendario, DiaEnPunto)
{
    const calendario::Rejilla g{40, 20, 26, 25};
    using D = calendario::Dia;
    const auto en = [&](double x, double y) { return calendario::DiaEnPunto(g, 2026, {x, y}); };
    EXPECT_EQ(en(40, 20), (D{1, 1}));
    EXPECT_EQ(en(39.9, 20), std::nullopt);
    EXPECT_EQ(en(40, 19.9), std::nullopt);
    EXPECT_EQ(en(40 + 26 * 30 + 1, 20 + 25 * 11 + 1), (D{12, 31}));
    EXPECT_EQ(en(40 + 26 * 31, 30), std::nullopt);
    EXPECT_EQ(en(50, 20 + 25 * 12), std::nullopt);
    EXPECT_EQ(en(40 + 26 * 27 + 1, 46), (D{2, 28}));
    EXPECT_EQ(en(40 + 26 * 28 + 1, 46), std::nullopt); // 29 February 2026
    EXPECT_EQ(calendario::DiaEnPunto(g, 2024, {40 + 26 * 28 + 1, 46}), (D{2, 29}));
    // A grid squeezed to nothing holds no day.
    EXPECT_EQ(calendario::DiaEnPunto({10, 10, 0, 0}, 2026, {10, 10}), std::nullopt);
}

// --- strip ---

TEST(franjaVL, UnaColumnaPorNoche)
{
    franjaVL::FranjaAnual f;
    f.anio = 2026;
    f.calidad.assign(365, 0);
    for (int i = 0; i < 365; ++i) {
        f.calidad[i] = static_cast<std::int16_t>(i % 5);
    }
    const QSize tam(365 * 3, 64); // three whole pixels a night
    const QImage imagen = Lienzo(tam, [&](QPainter& p, const QRectF& r) { franjaVL::PintarFranja(p, r, f); });
    const QColor kColores[] = {{58, 60, 72}, {205, 115, 50}, {230, 200, 60}, {165, 205, 70}, {60, 200, 90}};
    int primero = 0;
    for (std::int16_t mes = 1; mes <= 12; ++mes) {
        const int siguiente = primero + fechaSerie::DiasMes(2026, mes);
        // The month's hairline, below its first pixel; then every night's colour over the whole band.
        EXPECT_EQ(imagen.pixelColor(primero * 3, 0), kColores[primero % 5]);
        EXPECT_EQ(imagen.pixelColor(primero * 3, 1), QColor(150, 150, 150));
        EXPECT_EQ(imagen.pixelColor(primero * 3, 49), QColor(150, 150, 150));
        for (int i = primero; i < siguiente; ++i) {
            EXPECT_EQ(imagen.pixelColor(i * 3 + 1, 0), kColores[i % 5]) << i;
            EXPECT_EQ(imagen.pixelColor(i * 3 + 2, 49), kColores[i % 5]) << i;
        }
        // Its initial below the band, near the middle.
        const double medio = (primero + siguiente) / 2.0 * 3;
        EXPECT_GT(Cuenta(imagen, QRectF(medio - 6, 51, 12, 13), paleta::kTexto, 60), 1) << mes;
        primero = siguiente;
    }
    EXPECT_EQ(Cuenta(imagen, QRectF(0, 50, 20, 14), paleta::kCampo), 20 * 14);
}

TEST(franjaVL, SinAnioElAviso)
{
    franjaVL::FranjaAnual f;
    f.aviso = QStringLiteral("(aviso)");
    const QImage imagen =
        Lienzo({500, 64}, [&](QPainter& p, const QRectF& r) { franjaVL::PintarFranja(p, r, f); });
    EXPECT_GT(Cuenta(imagen, imagen.rect(), paleta::kTextoTenue, 40), 10);
    for (std::int16_t nivel = 1; nivel < 5; ++nivel) {
        EXPECT_EQ(Cuenta(imagen, imagen.rect(), franjaVL::ColorNivel(nivel)), 0);
    }
}

TEST(franjaVL, NocheEn)
{
    EXPECT_EQ(franjaVL::NocheEn(0, 730, 365), 0);
    EXPECT_EQ(franjaVL::NocheEn(1.99, 730, 365), 0);
    EXPECT_EQ(franjaVL::NocheEn(2, 730, 365), 1);
    EXPECT_EQ(franjaVL::NocheEn(729.9, 730, 365), 364);
    EXPECT_EQ(franjaVL::NocheEn(-5, 730, 365), 0);
    EXPECT_EQ(franjaVL::NocheEn(9999, 730, 365), 364);
    EXPECT_EQ(franjaVL::NocheEn(10, 0, 365), 0);
    EXPECT_EQ(franjaVL::NocheEn(10, 100, 0), 0);
}

// --- wheel ---

TEST(ruedaFases, DiscosEnSuSitio)
{
    const QSize tam(480, 480);
    const auto rueda = ruedaFases::HacerRueda(2026, 8, 2, QString());
    ASSERT_EQ(rueda.fases.size(), 31u);
    const QImage imagen =
        Lienzo(tam, [&](QPainter& p, const QRectF& r) { ruedaFases::PintarRueda(p, r, rueda); });
    const auto anillo = ruedaFases::MedirAnillo(QRectF(QPointF(0, 0), tam), 31);
    EXPECT_EQ(anillo.radio, 204);
    // Day 1 at the top, days clockwise.
    EXPECT_NEAR(anillo.Dia(1).x(), 240, 1e-9);
    EXPECT_NEAR(anillo.Dia(1).y(), 36, 1e-9);
    EXPECT_GT(anillo.Dia(2).x(), 240);
    // The new Moon of the 12th is dark and the full one of the 28th bright beside its number.
    const QPointF lado(12, 0);
    EXPECT_EQ(imagen.pixelColor((anillo.Dia(12) + lado).toPoint()), kSombra);
    EXPECT_EQ(imagen.pixelColor((anillo.Dia(28) + lado).toPoint()), kLuz);
    EXPECT_EQ(imagen.pixelColor((anillo.Dia(28) - lado).toPoint()), kLuz);
    // White numbers with a black shadow, on both.
    for (int dia = 1; dia <= 31; ++dia) {
        const QRectF caja = Alrededor(anillo.Dia(dia), 9);
        EXPECT_GT(Cuenta(imagen, caja, Qt::white, 30), 2) << dia;
        EXPECT_GT(Cuenta(imagen, caja, Qt::black, 40), 1) << dia;
    }
    // The title in the middle.
    EXPECT_EQ(rueda.titulo, QStringLiteral("Agosto 2026"));
    EXPECT_GT(Cuenta(imagen, Alrededor({240, 240}, 60), {224, 224, 224}, 30), 50);
}

TEST(ruedaFases, ElDiscoNuncaPasaDe17)
{
    const QRectF grande(0, 0, 480, 480);
    EXPECT_EQ(ruedaFases::MedirAnillo(grande, 28).disco, 17);
    EXPECT_LE(ruedaFases::MedirAnillo(grande, 31).disco, 17);
    const QRectF menor(0, 0, 400, 420);
    const auto febrero = ruedaFases::MedirAnillo(menor, 28);
    const auto enero = ruedaFases::MedirAnillo(menor, 31);
    EXPECT_EQ(febrero.radio, 164);
    EXPECT_NEAR(enero.disco, 164 * 6.28318530717959 / 31 / 2 * 0.84, 1e-12);
    EXPECT_GT(febrero.disco, enero.disco); // fewer days, larger discs
    EXPECT_EQ(ruedaFases::HacerRueda(2024, 2, 0, QString()).fases.size(), 29u);
    EXPECT_EQ(ruedaFases::HacerRueda(2026, 2, 0, QString()).fases.size(), 28u);
}

TEST(ruedaFases, AniosFueraDelIntervalo)
{
    for (const int anio : {1899, 2201, 0}) {
        const auto r = ruedaFases::HacerRueda(static_cast<std::int16_t>(anio), 5, 0, QStringLiteral("nada"));
        EXPECT_TRUE(r.fases.empty());
        const QImage imagen =
            Lienzo({480, 480}, [&](QPainter& p, const QRectF& rect) { ruedaFases::PintarRueda(p, rect, r); });
        // The message in the corner, from (8, 8) on, and nothing else.
        EXPECT_GT(Cuenta(imagen, QRectF(8, 8, 60, 24), {224, 224, 224}, 60), 5);
        EXPECT_EQ(Cuenta(imagen, QRectF(0, 40, 480, 440), paleta::kCampo), 480 * 440);
        EXPECT_EQ(Cuenta(imagen, QRectF(0, 0, 8, 40), paleta::kCampo), 8 * 40);
    }
    for (const int anio : {1900, 2200}) {
        EXPECT_EQ(ruedaFases::HacerRueda(static_cast<std::int16_t>(anio), 1, 0, QString()).fases.size(), 31u);
    }
}

TEST(ruedaFases, ElDiaMasCercanoATreintaPixeles)
{
    const auto anillo = ruedaFases::MedirAnillo(QRectF(0, 0, 480, 480), 31);
    for (int dia = 1; dia <= 31; ++dia) {
        EXPECT_EQ(ruedaFases::DiaEnPunto(anillo, anillo.Dia(dia)), dia);
    }
    EXPECT_EQ(ruedaFases::DiaEnPunto(anillo, {240, 240}), 0); // the title
    EXPECT_EQ(ruedaFases::DiaEnPunto(anillo, {240, 36 - 29.9}), 1);
    EXPECT_EQ(ruedaFases::DiaEnPunto(anillo, {240, 36 - 30.0}), 0);
    EXPECT_EQ(ruedaFases::DiaEnPunto(ruedaFases::Anillo{}, {0, 0}), 0); // no wheel, no day
}

TEST(ruedaFases, ElDesempateEsDelDiaAnterior)
{
    ruedaFases::Anillo dos;
    dos.centro = {100, 100};
    dos.radio = 10;
    dos.dias = 2; // day 1 above, day 2 below: the centre is as far from both
    EXPECT_EQ(ruedaFases::DiaEnPunto(dos, {100, 100}), 1);
}

} // namespace

#include "cielo.h"
#include "franjaScrub.h"
#include "lineaTiempo.h"
#include "pintorTarjetas.h"
#include "tablaPrueba.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>

namespace {

constexpr QRgb kBlanco = qRgb(255, 255, 255);
constexpr QRgb kFondo = qRgb(38, 42, 56);
constexpr QRgb kCaja = qRgb(20, 24, 34);
constexpr QRgb kRejillaAltitud = qRgb(200, 205, 215);
constexpr QRgb kRejillaHora = qRgb(190, 195, 205);
constexpr QRgb kHorizonte = qRgb(220, 220, 220);
const QColor kSol(255, 0, 255), kLuna(0, 255, 255); // colours that nothing else has

constexpr int kAncho = 1000;
constexpr int kAlto = 206; // the curves stand on rows 76 to 188

// A plain day: the Sun swings between -40 and 40 degrees and is highest at noon, the Moon keeps 60 below.
DatosTimeline Dia()
{
    DatosTimeline d;
    d.lista = true;
    d.curvas = true;
    for (int i = 0; i < modAstroEstado::kMuestrasDia; ++i) {
        d.altSol[static_cast<std::size_t>(i)] = -40.0 * std::cos(2.0 * M_PI * i / 144.0);
        d.altLuna[static_cast<std::size_t>(i)] = -60.0;
    }
    d.colorSol = kSol;
    d.colorLuna = kLuna;
    d.hora = 4.0;
    return d; // no readouts: nothing computed yet
}

QImage Pintar(const DatosTimeline& d, double ancho = kAncho, double alto = kAlto, double escala = 1.0,
              TablaTarjetas* tabla = nullptr)
{
    tablaPrueba::Cargar();
    QImage imagen(QSizeF(ancho * escala, alto * escala).toSize(), QImage::Format_RGB32);
    imagen.setDevicePixelRatio(escala);
    imagen.fill(qRgb(9, 9, 9));
    QPainter p(&imagen);
    const TablaTarjetas t = lineaTiempo::PintarTimeline(p, ancho, alto, d);
    if (tabla != nullptr)
        *tabla = t;
    return imagen;
}

int Contar(const QImage& imagen, QRgb color, const QRect& donde)
{
    int n = 0;
    for (int y = donde.top(); y <= donde.bottom(); ++y)
        for (int x = donde.left(); x <= donde.right(); ++x)
            n += imagen.pixel(x, y) == color;
    return n;
}

// A small letter may cover no pixel whole: some pixel within 90 of the colour in each channel.
bool HayLetra(const QImage& imagen, QRgb color, const QRect& donde)
{
    constexpr int kTolerancia = 90;
    for (int y = donde.top(); y <= donde.bottom(); ++y)
        for (int x = donde.left(); x <= donde.right(); ++x) {
            const QRgb c = imagen.pixel(x, y);
            if (std::abs(qRed(c) - qRed(color)) < kTolerancia &&
                std::abs(qGreen(c) - qGreen(color)) < kTolerancia &&
                std::abs(qBlue(c) - qBlue(color)) < kTolerancia)
                return true;
        }
    return false;
}

bool HayColor(const QImage& imagen, QRgb color, const QRect& donde)
{
    return Contar(imagen, color, donde) > 0;
}

TarjetaEvento Carta(const char* nombre, double hora)
{
    return {QString::fromUtf8(nombre), hora, QStringLiteral("1"), QStringLiteral("2")};
}

} // namespace

// --- Sky band ---

TEST(lineaTiempo, LaBandaLlevaElColorDelCieloDeCadaColumna)
{
    auto d = Dia();
    d.hora = 0.0;
    const QImage imagen = Pintar(d);
    for (int x : {200, 230, 260, 300, 400, 550, 700, 760, 800}) {
        const double alt = lineaTiempo::AltitudEn(d.altSol, x, kAncho);
        EXPECT_EQ(imagen.pixel(x, 100), cielo::ColorCielo(alt)) << x;
        EXPECT_EQ(imagen.pixel(x, 180), cielo::ColorCielo(alt)) << "the same down the column: " << x;
    }
    EXPECT_EQ(imagen.pixel(300, 74), kFondo) << "above the band";
}

TEST(lineaTiempo, LaUltimaMuestraLlegaAlBorde)
{
    auto d = Dia();
    d.altSol.fill(-30.0);
    d.altSol[143] = 90.0;
    EXPECT_DOUBLE_EQ(lineaTiempo::AltitudEn(d.altSol, 143.0, 144.0), 90.0);
    EXPECT_DOUBLE_EQ(lineaTiempo::AltitudEn(d.altSol, 143.9, 144.0), 90.0) << "the next sample is capped";
    EXPECT_DOUBLE_EQ(lineaTiempo::AltitudEn(d.altSol, 142.5, 144.0), 30.0);
    EXPECT_DOUBLE_EQ(lineaTiempo::AltitudEn(d.altSol, 0.0, 144.0), -30.0);
    EXPECT_EQ(Pintar(d).pixel(998, 104), cielo::ColorCielo(90.0));
}

TEST(lineaTiempo, SinCurvasNoHayCieloNiLineas)
{
    auto d = Dia();
    d.curvas = false;
    const QImage imagen = Pintar(d);
    EXPECT_EQ(imagen.pixel(300, 100), kFondo);
    EXPECT_EQ(imagen.pixel(300, 76), kRejillaAltitud) << "the grid stays";
    EXPECT_FALSE(HayColor(imagen, kSol.rgb(), imagen.rect()));
    EXPECT_FALSE(HayColor(imagen, kLuna.rgb(), imagen.rect()));
}

TEST(lineaTiempo, ADobleEscalaElCieloSigueLasColumnasDelDispositivo)
{
    const auto d = Dia();
    const QImage imagen = Pintar(d, kAncho, kAlto, 2.0);
    for (int x : {401, 461, 521, 601, 801})
        EXPECT_EQ(imagen.pixel(x, 210), cielo::ColorCielo(lineaTiempo::AltitudEn(d.altSol, x, 2000.0))) << x;
}

// --- Grid ---

TEST(lineaTiempo, LaRejillaYElHorizonteEstanEnSuSitio)
{
    auto d = Dia();
    d.altSol.fill(-80.0);
    const QImage imagen = Pintar(d);
    for (int alt : {-90, -60, -30, 30, 60, 90}) {
        const int y = static_cast<int>(std::round(76.0 + (90 - alt) / 180.0 * 112.0));
        EXPECT_EQ(lineaTiempo::AltitudAY(alt, kAlto), 76.0 + (90 - alt) / 180.0 * 112.0);
        if (alt != -60) { // the Moon's curve lies on that line
            EXPECT_EQ(imagen.pixel(300, y), kRejillaAltitud) << alt;
        }
    }
    EXPECT_EQ(imagen.pixel(300, 132), kHorizonte);
    for (int h = 6; h < 24; h += 3)
        EXPECT_EQ(imagen.pixel(static_cast<int>(std::round(h * kAncho / 24.0)), 80), kRejillaHora) << h;
    EXPECT_EQ(imagen.pixel(kAncho - 1, 80), kRejillaHora) << "24 h stands inside the picture";
}

// --- Curves ---

TEST(lineaTiempo, LasCurvasPasanPorLaAltitudDeCadaColumna)
{
    auto d = Dia();
    d.hora = 0.0;
    const QImage imagen = Pintar(d);
    for (int x = 200; x < kAncho; x += 37) {
        const double sol = lineaTiempo::AltitudAY(lineaTiempo::AltitudEn(d.altSol, x, kAncho), kAlto) + 0.5;
        const double luna = lineaTiempo::AltitudAY(-60.0, kAlto) + 0.5;
        EXPECT_EQ(imagen.pixel(x, static_cast<int>(luna)), kLuna.rgb()) << x;
        // Two pixels of line across a gentle slope always cover one whole.
        EXPECT_TRUE(HayColor(imagen, kSol.rgb(), QRect(x, static_cast<int>(sol - 1.0), 1, 3))) << x;
        EXPECT_FALSE(HayColor(imagen, kSol.rgb(), QRect(x, static_cast<int>(sol - 1.0) - 5, 1, 4))) << x;
        EXPECT_FALSE(HayColor(imagen, kSol.rgb(), QRect(x, static_cast<int>(sol + 1.0) + 2, 1, 4))) << x;
    }
}

TEST(lineaTiempo, LaCurvaTieneDosPixelesDeGrueso)
{
    auto d = Dia();
    d.altSol.fill(60.0);
    d.altLuna.fill(-80.0);
    const QImage imagen = Pintar(d);
    const double medio = lineaTiempo::AltitudAY(60.0, kAlto) + 0.5; // 95.17, so rows 94 to 96
    double cobertura = 0.0;
    for (int y = static_cast<int>(medio) - 4; y < medio + 4; ++y) {
        const QRgb c = imagen.pixel(300, y);
        cobertura +=
            std::clamp((qRed(c) - qGreen(c)) / 255.0, 0.0, 1.0); // red without green is the curve alone
    }
    EXPECT_NEAR(cobertura, 2.0, 0.35);
}

TEST(lineaTiempo, UnaCurvaQueSaleNoPintaFuera)
{
    auto d = Dia();
    d.altSol.fill(500.0);
    d.altLuna.fill(-500.0);
    const QImage imagen = Pintar(d);
    EXPECT_FALSE(HayColor(imagen, kSol.rgb(), imagen.rect()));
    EXPECT_FALSE(HayColor(imagen, kLuna.rgb(), imagen.rect()));
}

// --- Present hour ---

TEST(lineaTiempo, LaLineaDeLaHora)
{
    auto d = Dia();
    d.hora = 10.0;
    const QImage imagen = Pintar(d);
    const int x = 417; // 10/24 of 1000
    for (int y = 93; y < 188; ++y)
        ASSERT_EQ(imagen.pixel(x, y), kBlanco) << y;
    EXPECT_NE(imagen.pixel(x, 190), kBlanco) << "not into the hour labels";
}

TEST(lineaTiempo, LaCajaDelRelojEstaALaDerechaDeLaLinea)
{
    auto d = Dia();
    d.hora = 10.0;
    const QImage imagen = Pintar(d);
    EXPECT_TRUE(HayColor(imagen, kCaja, QRect(418, 77, 40, 14)));
    EXPECT_FALSE(HayColor(imagen, kCaja, QRect(360, 77, 56, 14)));
    EXPECT_EQ(imagen.pixel(417, 76), kBlanco) << "its border";
    EXPECT_EQ(imagen.pixel(430, 91), kBlanco);
}

TEST(lineaTiempo, EnElBordeDerechoLaCajaPasaALaIzquierda)
{
    auto d = Dia();
    d.hora = 23.9;
    const QImage imagen = Pintar(d);
    EXPECT_TRUE(HayColor(imagen, kCaja, QRect(960, 77, 30, 14)));
    EXPECT_FALSE(HayColor(imagen, kCaja, QRect(998, 77, 2, 14)));
}

TEST(lineaTiempo, ALas24LaLineaEstaEnElBorde)
{
    auto d = Dia();
    d.hora = 24.0;
    const QImage imagen = Pintar(d);
    for (int y = 93; y < 188; ++y)
        ASSERT_EQ(imagen.pixel(kAncho - 1, y), kBlanco) << y;
}

TEST(lineaTiempo, LasLecturasLlevanElColorDeSuCurva)
{
    auto d = Dia();
    d.curvas = false; // no curve of that colour
    d.hora = 10.0;
    d.ahora.SolAltActual = 31.23;
    d.ahora.SolAzActual = 123.45;
    d.ahora.LunaAltActual = -60.0;
    d.ahora.LunaAzActual = 8.0;
    const QImage imagen = Pintar(d);
    const QRect alLado(418, 92, 150, 30);
    EXPECT_TRUE(HayLetra(imagen, kSol.rgb(), alLado));
    EXPECT_TRUE(HayLetra(imagen, kLuna.rgb(), alLado));
    d.hora = 23.5; // no room at the right
    const QImage otra = Pintar(d);
    EXPECT_TRUE(HayLetra(otra, kSol.rgb(), QRect(800, 92, 170, 30)));
    d.ahora = {};
    EXPECT_FALSE(HayLetra(Pintar(d), kSol.rgb(), QRect(0, 0, kAncho, kAlto))) << "nothing computed yet";
}

// --- Cards ---

TEST(lineaTiempo, LasFranjasDeLasCuatroTarjetas)
{
    const struct
    {
        const char* nombre;
        QRgb color;
    } casos[] = {
        {"Salida sol", qRgb(255, 215, 0)},
        {"Puesta sol", qRgb(255, 80, 30)},
        {"Salida luna", qRgb(180, 220, 240)},
        {"Puesta luna", qRgb(200, 160, 220)},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.nombre);
        auto d = Dia();
        d.tarjetas = {Carta(c.nombre, 6.0), Carta("Hora dorada", 7.0)};
        const QImage imagen = Pintar(d, 400);
        int franjas = 0;
        for (int y = 1; y < 70; ++y)
            franjas += imagen.pixel(100, y) == c.color && imagen.pixel(100, y - 1) != c.color;
        EXPECT_EQ(franjas, 2) << "a double stripe";
        EXPECT_EQ(imagen.pixel(1, 30), kBlanco);
        EXPECT_EQ(imagen.pixel(198, 30), kBlanco);
        EXPECT_EQ(imagen.pixel(100, 0), kBlanco);
        EXPECT_EQ(imagen.pixel(100, 69), kBlanco);
        EXPECT_FALSE(HayColor(imagen, c.color, QRect(200, 0, 200, 70))) << "a plain card has none";
        EXPECT_NE(imagen.pixel(201, 30), kBlanco);
        EXPECT_EQ(imagen.pixel(199, 30), kFondo) << "the gap";
    }
}

TEST(lineaTiempo, LaTablaDiceDondeEstanLasTarjetas)
{
    auto d = Dia();
    d.tarjetas = {Carta("Salida sol", 6.0), Carta("Hora dorada", 7.0)};
    TablaTarjetas tabla;
    Pintar(d, 400, kAlto, 1.0, &tabla);
    EXPECT_EQ(tabla.HoraEn(100, 30), 6.0);
    EXPECT_EQ(tabla.HoraEn(300, 30), 7.0);
}

// Texts never run into the neighbour: between two cards there is nothing but ground.
TEST(lineaTiempo, EnTarjetasEstrechasNadaSeSale)
{
    auto d = Dia();
    for (int i = 0; i < 14; ++i) {
        auto carta = Carta("Inicio náutico", i);
        carta.linea3 = QStringLiteral("123456789 987654321,00°");
        d.tarjetas.push_back(carta);
    }
    for (int ancho : {700, 420, 200}) {
        const QImage imagen = Pintar(d, ancho);
        for (int i = 1; i < 14; ++i) {
            const int x = static_cast<int>(std::round(i * ancho / 14.0));
            for (int y = 0; y < 70; ++y)
                ASSERT_TRUE(imagen.pixel(x, y) == kFondo || imagen.pixel(x - 1, y) == kFondo)
                    << ancho << ": card " << i << ", row " << y;
        }
    }
}

TEST(lineaTiempo, UnDiaSinSucesosDibujaLasCurvas)
{
    const QImage imagen = Pintar(Dia());
    EXPECT_EQ(Contar(imagen, kFondo, QRect(0, 0, kAncho, 76)), kAncho * 76);
    EXPECT_TRUE(HayColor(imagen, kSol.rgb(), imagen.rect()));
}

// --- Sizes ---

TEST(lineaTiempo, Hasta153PixelesSoloHayTarjetas)
{
    auto d = Dia();
    d.tarjetas = {Carta("Salida sol", 6.0)};
    const QImage baja = Pintar(d, kAncho, 153);
    EXPECT_EQ(Contar(baja, kFondo, QRect(0, 70, kAncho, 83)), kAncho * 83);
    EXPECT_TRUE(HayColor(baja, qRgb(255, 215, 0), QRect(0, 0, kAncho, 70)));
    const QImage alta = Pintar(d, kAncho, 154);
    EXPECT_TRUE(HayColor(alta, kSol.rgb(), alta.rect()));
}

TEST(lineaTiempo, UnCuadroSinAnchoNoSePinta)
{
    auto d = Dia();
    d.tarjetas = {Carta("Salida sol", 6.0), Carta("Hora dorada", 7.0)};
    TablaTarjetas tabla;
    const QImage una = Pintar(d, 1, kAlto, 1.0, &tabla);
    EXPECT_EQ(una.pixel(0, 100), qRgb(9, 9, 9));
    EXPECT_TRUE(tabla.celdas.empty());
    for (int ancho = 2; ancho < 60; ++ancho) // no width is an accident
        for (int alto : {1, 2, 70, 153, 154, 160, 400})
            Pintar(d, ancho, alto, 1.0, &tabla);
    EXPECT_EQ(tabla.celdas.size(), 2U);
}

// What is kept between repaints never shows: each picture equals the one painted afresh.
TEST(lineaTiempo, LaCacheDaElMismoCuadro)
{
    CacheTimeline cache;
    const auto conCache = [&cache](const DatosTimeline& d, double ancho, double escala) {
        QImage imagen(QSizeF(ancho * escala, kAlto * escala).toSize(), QImage::Format_RGB32);
        imagen.setDevicePixelRatio(escala);
        imagen.fill(qRgb(9, 9, 9));
        QPainter p(&imagen);
        cache.Pintar(p, ancho, kAlto, d);
        return imagen;
    };
    DatosTimeline d = Dia();
    EXPECT_EQ(conCache(d, kAncho, 1.0), Pintar(d));
    d.hora = 17.5;
    EXPECT_EQ(conCache(d, kAncho, 1.0), Pintar(d)) << "the hour alone moves";
    d.altSol[70] = -80.0;
    EXPECT_EQ(conCache(d, kAncho, 1.0), Pintar(d)) << "another day";
    d.colorLuna = QColor(1, 200, 2);
    EXPECT_EQ(conCache(d, kAncho, 1.0), Pintar(d)) << "another colour";
    EXPECT_EQ(conCache(d, 700, 1.0), Pintar(d, 700)) << "another size";
    EXPECT_EQ(conCache(d, 700, 2.0), Pintar(d, 700, kAlto, 2.0)) << "another scale";
    d.curvas = false;
    EXPECT_EQ(conCache(d, 700, 2.0), Pintar(d, 700, kAlto, 2.0)) << "no curves";
}

TEST(lineaTiempo, EscalasIntermedias)
{
    auto d = Dia();
    d.tarjetas = {Carta("Salida sol", 6.0)};
    for (double escala : {1.25, 1.5, 1.75, 2.0}) {
        const QImage imagen = Pintar(d, kAncho, kAlto, escala);
        EXPECT_TRUE(HayColor(imagen, kSol.rgb(), imagen.rect())) << escala;
        EXPECT_TRUE(HayColor(imagen, qRgb(255, 215, 0), imagen.rect())) << escala;
        EXPECT_NE(imagen.pixel(imagen.width() - 1, static_cast<int>(150 * escala)), qRgb(9, 9, 9)) << escala;
    }
}

// --- Scrub strip ---

namespace {

QImage PintarFranja(FranjaScrub& franja, const std::vector<double>& alt, int minuto, bool obsoletas,
                    double ancho = 800, double alto = 20, double escala = 1.0)
{
    QImage imagen(QSizeF(ancho * escala, alto * escala).toSize(), QImage::Format_RGB32);
    imagen.setDevicePixelRatio(escala);
    imagen.fill(qRgb(9, 9, 9));
    QPainter p(&imagen);
    franja.Pintar(p, ancho, alto, alt, minuto, obsoletas);
    return imagen;
}

// Altitude of a column, by the samples.
double AltitudColumna(const std::vector<double>& alt, int x, int ancho)
{
    const double i = x * 143.9 / (ancho - 1);
    const auto a = static_cast<std::size_t>(i);
    const std::size_t b = std::min<std::size_t>(a + 1, 143);
    return alt[a] + (alt[b] - alt[a]) * (i - static_cast<double>(a));
}

// From -30 at midnight to 30 at the day's end, through the seam.
std::vector<double> Rampa()
{
    std::vector<double> alt(144);
    for (std::size_t i = 0; i < 144; ++i)
        alt[i] = -30.0 + 60.0 * static_cast<double>(i) / 143.0;
    return alt;
}

} // namespace

TEST(franjaScrub, CadaColumnaTieneSuColor)
{
    FranjaScrub franja;
    const auto alt = Rampa();
    const QImage imagen = PintarFranja(franja, alt, 1440, true);
    bool antes = false, despues = false;
    for (int x = 0; x < 650; ++x) {
        const double a = AltitudColumna(alt, x, 800);
        ASSERT_EQ(imagen.pixel(x, 0), cielo::ColorScrub(a)) << x;
        ASSERT_EQ(imagen.pixel(x, 19), cielo::ColorScrub(a)) << x;
        antes = antes || (a < -6.0 && a > -6.2 && qBlue(imagen.pixel(x, 10)) > 60);
        despues = despues || (a >= -6.0 && a < -5.8 && qBlue(imagen.pixel(x, 10)) < 15);
    }
    EXPECT_TRUE(antes && despues) << "both sides of the seam at -6 are there";
    EXPECT_EQ(franja.Colores().size(), 800U);
}

TEST(franjaScrub, LosColoresSeGuardan)
{
    FranjaScrub franja;
    const std::vector<double> dia(144, 60.0), noche(144, -60.0);
    PintarFranja(franja, dia, 700, true);
    EXPECT_EQ(PintarFranja(franja, noche, 700, false).pixel(0, 0), qRgb(100, 160, 230)) << "kept";
    EXPECT_EQ(PintarFranja(franja, noche, 700, true).pixel(0, 0), qRgb(13, 8, 26)) << "told to rebuild";
    EXPECT_EQ(PintarFranja(franja, dia, 700, false, 801).pixel(0, 0), qRgb(100, 160, 230)) << "a new width";
    EXPECT_EQ(PintarFranja(franja, noche, 700, false, 801, 21).pixel(0, 0), qRgb(13, 8, 26))
        << "a new height";
    EXPECT_EQ(PintarFranja(franja, dia, 700, false, 801, 21, 2.0).pixel(0, 0), qRgb(100, 160, 230))
        << "a new screen";
}

TEST(franjaScrub, LaLineaMarcaLaHora)
{
    FranjaScrub franja;
    const std::vector<double> dia(144, 60.0);
    const QImage imagen = PintarFranja(franja, dia, 360, true);
    EXPECT_EQ(imagen.pixel(200, 0), kBlanco);
    EXPECT_EQ(imagen.pixel(200, 19), kBlanco);
    EXPECT_NE(imagen.pixel(199, 0), kBlanco);
    EXPECT_NE(imagen.pixel(201, 0), kBlanco);
}

TEST(franjaScrub, ALas24LaLineaEstaEnElBordeYElTextoDentro)
{
    EXPECT_EQ(franjaScrub::TextoMarca(1440), QStringLiteral("<<  24:00  >>"));
    EXPECT_EQ(franjaScrub::TextoMarca(485), QStringLiteral("<<  08:05  >>"));
    FranjaScrub franja;
    const std::vector<double> dia(144, 60.0);
    for (int minuto : {0, 1440}) {
        const QImage imagen = PintarFranja(franja, dia, minuto, true);
        const int x = minuto == 0 ? 0 : 799;
        for (int y = 0; y < 20; ++y)
            EXPECT_EQ(imagen.pixel(x, y), kBlanco) << minuto << ' ' << y;
        // The text begins and ends inside: letters at both ends of its place.
        const int dentro = minuto == 0 ? 4 : 700;
        EXPECT_TRUE(HayLetra(imagen, kBlanco, QRect(dentro, 4, 20, 12))) << minuto;
        EXPECT_TRUE(HayLetra(imagen, kBlanco, QRect(dentro + 72, 4, 20, 12))) << minuto;
    }
}

TEST(franjaScrub, CentradaEnLaHora)
{
    FranjaScrub franja;
    const std::vector<double> dia(144, 60.0);
    const QImage imagen = PintarFranja(franja, dia, 720, true);
    int primero = 800, ultimo = -1;
    for (int x = 0; x < 800; ++x)
        if (imagen.pixel(x, 10) != qRgb(100, 160, 230)) {
            primero = std::min(primero, x);
            ultimo = std::max(ultimo, x);
        }
    EXPECT_NEAR((primero + ultimo) / 2.0, 400.0, 1.0);
}

TEST(franjaScrub, SinCurvasOSinSitioNoPintaNada)
{
    FranjaScrub franja;
    const std::vector<double> dia(144, 60.0);
    EXPECT_EQ(PintarFranja(franja, {}, 720, true).pixel(400, 0), qRgb(9, 9, 9));
    EXPECT_EQ(PintarFranja(franja, dia, 720, true, 1).pixel(0, 0), qRgb(9, 9, 9));
    QImage imagen(10, 10, QImage::Format_RGB32);
    imagen.fill(qRgb(9, 9, 9));
    QPainter p(&imagen);
    franja.Pintar(p, 0, 0, dia, 720, true);
    franja.Pintar(p, 10, 0, dia, 720, true);
    franja.Pintar(p, -4, 10, dia, 720, true);
    EXPECT_EQ(imagen.pixel(5, 5), qRgb(9, 9, 9));
    modAstroEstado::OlvidarCurvasDia();
    franja.Pintar(p, 10, 10, 720, true);
    EXPECT_EQ(imagen.pixel(5, 5), qRgb(9, 9, 9)) << "no valid curves";
    for (int ancho = 2; ancho < 40; ++ancho)
        PintarFranja(franja, dia, 1440, false, ancho, 3);
}

// What the primitives leave in the frame, read back pixel by pixel.
#include "VentanaGL.h"

#include <QDir>
#include <QTemporaryDir>

#include <cmath>
#include <numbers>

namespace {

using namespace modOpenGL;

constexpr int kGris = 0x808080;    // 0.5 of 255, rounded up by the driver
constexpr int kToleranciaByte = 2; // rounding of interpolation and blending

class Primitivas : public VentanaGL
{
protected:
    void Empezar(bool vector)
    {
        PrepararViewport(kAncho, kAlto);
        if (vector)
            ModoVectorGL();
    }

    QImage Acabar()
    {
        PresentarFrame();
        return LeerFrame();
    }

    // A picture file of one colour, or of four in its quarters.
    QString Fichero(const char* nombre, int lado, QRgb a, QRgb b, QRgb c, QRgb d)
    {
        QImage imagen(lado, lado, QImage::Format_ARGB32);
        for (int y = 0; y < lado; ++y)
            for (int x = 0; x < lado; ++x)
                imagen.setPixel(x, y, y < lado / 2 ? (x < lado / 2 ? a : b) : (x < lado / 2 ? c : d));
        const QString ruta = QDir(carpeta.path()).filePath(QLatin1String(nombre));
        EXPECT_TRUE(imagen.save(ruta, "PNG"));
        return ruta;
    }

    QTemporaryDir carpeta;
};

// Sum over a column of how much of `color` lies over the grey, in pixels.
double Cubierto(const QImage& imagen, int x, int canal)
{
    double suma = 0.0;
    for (int y = 0; y < imagen.height(); ++y) {
        const int byte = static_cast<int>((imagen.pixel(x, y) >> canal) & 255U);
        suma += (byte - 128.0) / (255.0 - 128.0);
    }
    return suma;
}

TEST_F(Primitivas, UnFrameVacioEsGris)
{
    Empezar(false);
    const QImage f = Acabar();
    ASSERT_EQ(f.size(), QSize(kAncho, kAlto));
    for (int y = 0; y < kAlto; ++y)
        for (int x = 0; x < kAncho; ++x)
            ASSERT_EQ(Pixel(f, x, y), kGris) << x << ", " << y;
}

struct CasoAncho
{
    const char* frase;
    double ancho;
};

constexpr CasoAncho kAnchos[] = {
    {"half a pixel", 0.5},
    {"one", 1.0},
    {"one and a half", 1.5},
    {"two and a half", 2.5},
    {"three", 3.0},
    {"four", 4.0},
    {"wider than old drivers allow", 24.0},
};

TEST_F(Primitivas, UnaLineaCubreSuAncho)
{
    for (const CasoAncho& c : kAnchos) {
        SCOPED_TRACE(c.frase);
        for (const double y : {100.0, 100.25, 100.5}) {
            Empezar(true);
            LineaGL(20.0, y, 300.0, y, RGB(255, 255, 255), c.ancho);
            const QImage f = Acabar();
            EXPECT_NEAR(Cubierto(f, 150, 16), c.ancho, 0.06); // pixels: 8-bit rounding over a few rows
            EXPECT_EQ(Pixel(f, 10, 100), kGris) << "before its end";
            EXPECT_EQ(Pixel(f, 150, 60), kGris) << "beside it";
        }
    }
}

TEST_F(Primitivas, UnaLineaInclinadaTieneElMismoAncho)
{
    Empezar(true);
    LineaGL(20.0, 20.0, 220.0, 170.0, RGB(255, 255, 255), 4.0); // slope 3 : 4
    const QImage f = Acabar();
    // Cut by a column the band is 4 / cos(atan(3/4)) = 5 pixels high.
    for (int x = 60; x < 180; x += 7)
        EXPECT_NEAR(Cubierto(f, x, 16), 5.0, 0.1) << x;
}

TEST_F(Primitivas, ElBordeDeUnaLineaEsUnaRampaDeUnPixel)
{
    Empezar(true);
    LineaGL(0.0, 100.5, 320.0, 100.5, RGB(255, 0, 0), 3.0); // covers 99 to 102
    QImage f = Acabar();
    EXPECT_EQ(Pixel(f, 160, 98), kGris);
    for (const int y : {99, 100, 101})
        EXPECT_EQ(Pixel(f, 160, y), 0xFF0000) << y;
    EXPECT_EQ(Pixel(f, 160, 102), kGris);

    Empezar(true);
    LineaGL(0.0, 101.0, 320.0, 101.0, RGB(255, 0, 0), 3.0); // covers 99.5 to 102.5
    f = Acabar();
    for (const int y : {99, 102}) { // half red over half grey
        EXPECT_NEAR((Pixel(f, 160, y) >> 16) & 255, 191, kToleranciaByte) << y;
        EXPECT_NEAR(Pixel(f, 160, y) & 255, 64, kToleranciaByte) << y;
    }
}

TEST_F(Primitivas, EnModoTexturaLosBordesSonDuros)
{
    Empezar(false);
    LineaGL(0.0, 101.2, 320.0, 101.2, RGB(255, 0, 0), 3.0);
    const QImage f = Acabar();
    for (int y = 0; y < kAlto; ++y) {
        const int p = Pixel(f, 160, y);
        EXPECT_TRUE(p == kGris || p == 0xFF0000) << y;
    }
}

TEST_F(Primitivas, LasPuntasLejanasNoTuercenLaLinea)
{
    Empezar(true);
    // Through (160, 120) at 45 degrees, both ends tens of millions of pixels away, as at zoom 18.
    LineaGL(160.0 - 5e7, 120.0 - 5e7, 160.0 + 5e7, 120.0 + 5e7, RGB(255, 255, 255), 2.0);
    const QImage f = Acabar();
    for (int d = -100; d <= 100; d += 20)
        EXPECT_EQ(Pixel(f, 160 + d, 120 + d), 0xFFFFFF) << d;
    EXPECT_EQ(Pixel(f, 164, 120), kGris);
}

TEST_F(Primitivas, LoQueNoEsFinitoNoDibuja)
{
    const double nada = std::nan("");
    Empezar(true);
    LineaGL(nada, 10.0, 100.0, 10.0, 0, 4.0);
    LineaGL(10.0, 10.0, 10.0, 10.0, 0, 4.0);
    LineaGL(10.0, 10.0, 90.0, 10.0, 0, 0.0);
    DiscoAlfaGL(50.0, nada, 10.0, 0, 1.0);
    DiscoAlfaGL(50.0, 50.0, 0.0, 0, 1.0);
    DiscoAlfaGL(50.0, 50.0, -3.0, 0, 1.0);
    DiscoAlfaGL(50.0, 50.0, 10.0, 0, 0.0);
    DiscoAlfaGL(50.0, 50.0, 10.0, 0, -1.0);
    DiscoAlfaGL(50.0, 50.0, 10.0, 0, 1.0, 2);
    CuadrilateroGL({{0, 0}, {90, 0}, {90, 90}, {0, 90}}, {0, 0, 0, 0.0});
    CuadrilateroGL({{0, 0}, {nada, 0}, {90, 90}, {0, 90}}, {0, 0, 0, 1.0});
    TexturaAlfaGL(1, 0, 0, 100, 0.0);
    TexturaAlfaGL(0, 0, 0, 100, 1.0);
    DibujarTesela(0, 0, 0);
    DibujarTextoGL(QString(), 10, 10, 0, 10);
    DibujarTextoGL(QStringLiteral("x"), nada, 10, 0, 10);
    const QImage f = Acabar();
    for (int y = 0; y < kAlto; y += 3)
        for (int x = 0; x < kAncho; x += 3)
            ASSERT_EQ(Pixel(f, x, y), kGris) << x << ", " << y;
    EXPECT_EQ(Contadores().dibujos, 0);
}

TEST_F(Primitivas, UnRectanguloTieneSusBordesDondeSeDicen)
{
    Empezar(true);
    RectanguloGL(10, 20, 30, 25, RGB(1, 2, 3));
    RectanguloGL(60, 45, 50, 40, RGB(200, 0, 100)); // corners the other way round
    const QImage f = Acabar();
    for (int y = 15; y < 50; ++y)
        for (int x = 5; x < 65; ++x) {
            int esperado = kGris;
            if (x >= 10 && x < 30 && y >= 20 && y < 25)
                esperado = 0x010203;
            if (x >= 50 && x < 60 && y >= 40 && y < 45)
                esperado = 0xC80064;
            ASSERT_EQ(Pixel(f, x, y), esperado) << x << ", " << y;
        }
}

TEST_F(Primitivas, ElPinTieneDiscoContornoYCentroBlanco)
{
    Empezar(true);
    PinGL(100.5, 100.5, 9.0, RGB(220, 30, 30), RGB(0, 0, 0));
    CirculoGL(200.5, 100.5, 9.0, RGB(30, 90, 220), RGB(0, 0, 0));
    const QImage f = Acabar();
    EXPECT_EQ(Pixel(f, 100, 100), 0xFFFFFF);
    EXPECT_EQ(Pixel(f, 105, 100), 0xDC1E1E);
    EXPECT_EQ(Pixel(f, 109, 100), 0x000000);
    EXPECT_EQ(Pixel(f, 112, 100), kGris);
    EXPECT_EQ(Pixel(f, 200, 100), 0x1E5ADC) << "no white centre";
    EXPECT_EQ(Pixel(f, 209, 100), 0x000000);
}

TEST_F(Primitivas, UnDiscoTranslucidoMezclaYTieneSuBordeSuave)
{
    Empezar(true);
    DiscoAlfaGL(100.5, 100.5, 40.0, RGB(255, 255, 255), 0.5);
    const QImage f = Acabar();
    EXPECT_NEAR(Pixel(f, 100, 100) & 255, 192, kToleranciaByte);
    EXPECT_NEAR(Pixel(f, 130, 100) & 255, 192, kToleranciaByte);
    EXPECT_EQ(Pixel(f, 100, 142), kGris);
    // Its area is that of the polygon of 36 sides.
    double area = 0.0;
    for (int x = 0; x < kAncho; ++x)
        area += Cubierto(f, x, 0) * 2.0; // half opaque
    const double poligono = 18.0 * 40.0 * 40.0 * std::sin(2.0 * std::numbers::pi / 36.0);
    EXPECT_NEAR(area, poligono, 0.01 * poligono);
}

TEST_F(Primitivas, UnCuadrilateroSombreaEntreSusEsquinasYNoDejaCostura)
{
    Empezar(true);
    const ColorGL claro{1, 1, 1, 1};
    const ColorGL oscuro{0, 0, 0, 1};
    CuadrilateroGL({{20, 20}, {120, 20}, {120, 40}, {20, 40}}, {oscuro, claro, claro, oscuro});
    // Two neighbours, half opaque: no column is painted twice or left out, at a place that is no whole pixel.
    const ColorGL medio{1, 0, 0, 0.5};
    CuadrilateroGL({{20, 100}, {70.3, 100}, {70.3, 140}, {20, 140}}, medio);
    CuadrilateroGL({{70.3, 100}, {120, 100}, {120, 140}, {70.3, 140}}, medio);
    const QImage f = Acabar();
    EXPECT_NEAR(Pixel(f, 70, 30) & 255, 129, 3);
    EXPECT_NEAR(Pixel(f, 20, 30) & 255, 1, 3);
    EXPECT_NEAR(Pixel(f, 119, 30) & 255, 254, 3);
    for (int x = 20; x < 120; ++x)
        EXPECT_EQ(Pixel(f, x, 120), Pixel(f, 30, 120)) << x;
    EXPECT_NEAR((Pixel(f, 30, 120) >> 16) & 255, 192, kToleranciaByte);
}

TEST_F(Primitivas, UnaTeselaCaeEnElPixelMasCercano)
{
    const QString ruta = Fichero("tesela.png", 256, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF);
    const std::int32_t id = ObtenerTextura(ruta);
    ASSERT_NE(id, 0);
    const struct
    {
        double pedido;
        int puesto;
    } casos[] = {{10.0, 10}, {10.49, 10}, {10.5, 11}, {-0.5, 0}, {-0.51, -1}, {-100.5, -100}};
    for (const auto& [pedido, puesto] : casos) {
        SCOPED_TRACE(pedido);
        Empezar(false);
        DibujarTesela(id, pedido, pedido);
        const QImage f = Acabar();
        if (puesto > 0) {
            EXPECT_EQ(Pixel(f, puesto - 1, 40), kGris);
        }
        if (puesto >= 0) {
            EXPECT_EQ(Pixel(f, puesto, puesto), 0xFF0000);
        }
        const int medio = puesto + 128;
        EXPECT_EQ(Pixel(f, medio - 1, medio - 1), 0xFF0000) << "last of the first quarter, unblurred";
        EXPECT_EQ(Pixel(f, medio, medio - 1), 0x00FF00);
        EXPECT_EQ(Pixel(f, medio - 1, medio), 0x0000FF);
        EXPECT_EQ(Pixel(f, medio, medio), 0xFFFFFF);
        if (puesto + 256 < kAncho) {
            EXPECT_EQ(Pixel(f, puesto + 256, 40), kGris);
        }
    }
}

TEST_F(Primitivas, UnaTeselaParcialMuestraSuParte)
{
    const std::int32_t id =
        ObtenerTextura(Fichero("tesela.png", 256, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF));
    Empezar(false);
    DibujarTeselaParcial(id, 16.4, 16.4, 100, 50, 0.5, 0.0, 1.0, 0.5); // the green quarter
    const QImage f = Acabar();
    EXPECT_EQ(Pixel(f, 66, 41), 0x00FF00);
    EXPECT_EQ(Pixel(f, 115, 65), 0x00FF00) << "its last pixel; the edge texel is half its neighbour's";
    EXPECT_EQ(Pixel(f, 116, 41), kGris);
    EXPECT_EQ(Pixel(f, 66, 66), kGris);
}

TEST_F(Primitivas, UnaTexturaTranslucidaMezclaYUnaTeselaSustituye)
{
    const std::int32_t id =
        ObtenerTextura(Fichero("vacia.png", 64, 0x00FF0000, 0x00FF0000, 0x80FF0000, 0x80FF0000));
    const std::int32_t blanca =
        ObtenerTextura(Fichero("blanca.png", 64, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF));
    Empezar(false);
    DibujarTeselaParcial(id, 0, 0, 64, 64, 0, 0, 1, 1);
    TexturaAlfaGL(blanca, 100, 100, 64, 0.65);
    TexturaAlfaGL(id, 200, 100, 64, 1.0);
    const QImage f = Acabar();
    EXPECT_EQ(Pixel(f, 10, 10), 0xFF0000) << "replaces";
    EXPECT_NEAR(Pixel(f, 130, 130) & 255, 128 + 0.65 * 127, kToleranciaByte);
    EXPECT_EQ(Pixel(f, 232, 110), kGris) << "a transparent texel blends to nothing";
    EXPECT_NEAR((Pixel(f, 232, 150) >> 16) & 255, 192, kToleranciaByte);
}

TEST_F(Primitivas, ElTextoLlevaSuColorDentroDeSuCaja)
{
    const QString texto = QStringLiteral("GC +12\u00B0");
    const int ancho = MedirTextoGL(texto, 12, true);
    EXPECT_GT(ancho, 30);
    Empezar(true);
    DibujarTextoGL(texto, 50.4, 60.6, RGB(255, 205, 100), 12, true);
    const QImage f = Acabar();
    int plenos = 0;
    for (int y = 0; y < kAlto; ++y)
        for (int x = 0; x < kAncho; ++x) {
            const int p = Pixel(f, x, y);
            if (p == 0xFFCD64)
                ++plenos;
            if (p != kGris) {
                ASSERT_GE(x, 51) << "the box begins at (50, 61), the text one pixel inside";
                ASSERT_GE(y, 62);
                ASSERT_LE(x, 50 + ancho + 2);
                ASSERT_LE(y, 61 + 24);
            }
        }
    EXPECT_GT(plenos, 20) << "bold stems are fully covered";
}

TEST_F(Primitivas, UnTextoDemasiadoAnchoNoSeDibujaNiSeQueja)
{
    QString largo = QStringLiteral("ancho ");
    while (MedirTextoGL(largo, 12, false) <= 1024)
        largo += largo;
    const QString antes = UltimoErrorGL();
    Empezar(true);
    DibujarTextoGL(largo, 0, 100, 0, 12);
    DibujarTextoGL(QStringLiteral("M"), 0, 0, 0, 400); // higher than 256
    const QImage f = Acabar();
    for (int x = 0; x < kAncho; ++x)
        ASSERT_EQ(Pixel(f, x, 110), kGris);
    EXPECT_EQ(UltimoErrorGL(), antes);
}

TEST_F(Primitivas, TodosLosTextosYFormasSonUnaLlamada)
{
    for (int frame = 0; frame < 3; ++frame) {
        Empezar(true);
        for (int i = 0; i < 20; ++i) {
            LineaGL(i, 0, 300, i * 7, RGB(255, 160, 0), 1.5);
            DibujarTextoGL(QStringLiteral("%1:00").arg(i, 2, 10, QLatin1Char('0')), i * 15, i * 10, 0, 8);
            DiscoAlfaGL(i * 10, 50, 5, RGB(0, 0, 0), 0.5, 72);
            PinGL(100, 100, 6, RGB(220, 30, 30), 0);
        }
        Acabar();
        EXPECT_EQ(Contadores().dibujos, 1);
    }
}

TEST_F(Primitivas, UnaVistaQuietaNoCreaNada)
{
    const std::int32_t id =
        ObtenerTextura(Fichero("tesela.png", 256, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF));
    const auto pintar = [&] {
        Empezar(false);
        DibujarTesela(id, 0, 0);
        ModoVectorGL();
        for (int i = 0; i < 400; ++i)
            LineaGL(160, 120, i, 0, RGB(i & 255, 0, 0), 2.0);
        DibujarTextoGL(QStringLiteral("12:00"), 20, 20, 0, 8);
        PresentarFrame();
        QApplication::processEvents();
    };
    pintar();
    pintar(); // both buffers exist now
    const ContadoresGL antes = Contadores();
    for (int i = 0; i < 30; ++i)
        pintar();
    const ContadoresGL despues = Contadores();
    EXPECT_EQ(despues.texturasCreadas, antes.texturasCreadas);
    EXPECT_EQ(despues.buffersCreados, antes.buffersCreados);
    EXPECT_EQ(despues.subidasTexto, antes.subidasTexto);
    EXPECT_EQ(despues.frames, antes.frames + 30);
    EXPECT_EQ(despues.dibujos, 2);
}

TEST_F(Primitivas, UnAtlasLlenoEmpiezaDeNuevoSinEstropearLoDibujado)
{
    Empezar(true);
    DibujarTextoGL(QStringLiteral("HHHH"), 10, 10, RGB(255, 0, 0), 40, true);
    for (int i = 0; i < 600; ++i) // more than fits: each takes a strip about 700 wide
        DibujarTextoGL(QStringLiteral("relleno relleno relleno %1").arg(i), 0, 400, 0, 40, true);
    DibujarTextoGL(QStringLiteral("HHHH"), 10, 100, RGB(255, 0, 0), 40, true);
    const QImage f = Acabar();
    int rojos = 0;
    for (int y = 0; y < 90; ++y)
        for (int x = 0; x < kAncho; ++x) {
            const bool arriba = Pixel(f, x, y) == 0xFF0000;
            rojos += arriba ? 1 : 0;
            ASSERT_EQ(arriba, Pixel(f, x, y + 90) == 0xFF0000) << x << ", " << y;
        }
    EXPECT_GT(rojos, 200);
}

} // namespace

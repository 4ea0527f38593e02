// The tile painter, read back from the frame: places, stand-ins, the grey of what is missing.
#include "Teselas.h"
#include "gl/VentanaGL.h"
#include "modMap.h"

#include <cmath>
#include <memory>

namespace {

using namespace modMap;

constexpr int kGris = 0x808080;

class Mapa : public VentanaGL
{
protected:
    void TearDown() override
    {
        VentanaGL::TearDown();
        mundo.reset();
    }

    // Puts a tile's file into the cache.
    static void EnDisco(int z, int x, int y)
    {
        EscribirFichero(modHTTP::RutaTile(static_cast<std::int16_t>(z), x, y), PngDe(ColorTesela(z, x, y)));
    }

    // Puts it into the texture registry too.
    static void EnMemoria(int z, int x, int y)
    {
        EnDisco(z, x, y);
        ASSERT_NE(modOpenGL::ObtenerTextura(modHTTP::RutaTile(static_cast<std::int16_t>(z), x, y)), 0);
    }

    // A view of the fixture's size whose top left corner stands at a world pixel.
    static VistaMapa VistaEn(int z, double px, double py)
    {
        VistaMapa v{.lon = 0, .lat = 0, .zoom = static_cast<std::int16_t>(z), .ancho = kAncho, .alto = kAlto};
        modGeo::PixelALonLat(px + kAncho / 2.0, py + kAlto / 2.0, v.zoom, v.lon, v.lat);
        return v;
    }

    static QImage Pintar(const VistaMapa& v)
    {
        PintarMapa(v);
        modOpenGL::PresentarFrame();
        return modOpenGL::LeerFrame();
    }

    static int Color(int z, int x, int y) { return static_cast<int>(ColorTesela(z, x, y) & 0xFFFFFFU); }

    std::unique_ptr<ConServidor> mundo = std::make_unique<ConServidor>();
};

struct CasoEsquina
{
    const char* frase;
    double px, py; // world pixel of the view's corner, over a tile's corner at (2560, 1536)
    int x, y;      // where that tile's corner is painted
};

// floor(s + 0.5) of the difference.
constexpr CasoEsquina kEsquinas[] = {
    {"whole", 2500.0, 1500.0, 60, 36},
    {"below a half goes down", 2500.6, 1500.7, 59, 35},
    {"above a half goes up", 2500.3, 1500.4, 60, 36},
    {"left and above the picture", 2570.0, 1550.0, -10, -14},
};

TEST_F(Mapa, LasTeselasCaenEnSuPixelEntero)
{
    for (int x = 9; x <= 12; ++x)
        for (int y = 5; y <= 7; ++y)
            EnDisco(5, x, y);
    for (const CasoEsquina& c : kEsquinas) {
        SCOPED_TRACE(c.frase);
        const VistaMapa v = VistaEn(5, c.px, c.py);
        CargarTilesVisibles(v);
        const QImage f = Pintar(v);
        for (int y = 0; y < kAlto; y += 3)
            for (int x = 0; x < kAncho; x += 3) {
                const int tx = 10 + static_cast<int>(std::floor((x - c.x) / 256.0));
                const int ty = 6 + static_cast<int>(std::floor((y - c.y) / 256.0));
                ASSERT_EQ(Pixel(f, x, y), Color(5, tx, ty)) << x << ", " << y;
            }
        if (c.x > 0) {
            EXPECT_EQ(Pixel(f, c.x - 1, c.y), Color(5, 9, 6)) << "the last column of the neighbour";
            EXPECT_EQ(Pixel(f, c.x, c.y), Color(5, 10, 6));
        }
    }
}

TEST_F(Mapa, CargarEsLoQueHaceVisibleUnaTesela)
{
    const VistaMapa v = VistaEn(5, 2560, 1536);
    EnDisco(5, 10, 6);
    EXPECT_EQ(Pixel(Pintar(v), 10, 10), kGris) << "the painter never touches the disk";
    CargarTilesVisibles(v);
    EXPECT_EQ(Pixel(Pintar(v), 10, 10), Color(5, 10, 6));
    LiberarTexturasMapa();
    EXPECT_EQ(Pixel(Pintar(v), 10, 10), kGris);
}

TEST_F(Mapa, LaLineaDeDiagnosticoCuentaLosTresCasos)
{
    // 320 x 240 from a tile's corner: columns 10 and 11, row 6 and, below 256, nothing more.
    const VistaMapa v = VistaEn(5, 2560, 1536);
    CargarTilesVisibles(v);
    EXPECT_EQ(LineaDiagnosticoTiles(), QStringLiteral("z=5 OK:0 dl_fail:2 paint_fail:0"));
    EnDisco(5, 10, 6);
    EscribirFichero(modHTTP::RutaTile(5, 11, 6), QByteArray(101, 'x')); // long enough, no image
    CargarTilesVisibles(v);
    EXPECT_EQ(LineaDiagnosticoTiles(), QStringLiteral("z=5 OK:1 dl_fail:0 paint_fail:1"));
    EXPECT_TRUE(QFileInfo::exists(modHTTP::RutaTile(5, 11, 6))) << "it stays and is tried again";
    EscribirFichero(modHTTP::RutaTile(5, 11, 6), QByteArray(100, 'x'));
    CargarTilesVisibles(v);
    EXPECT_EQ(LineaDiagnosticoTiles(), QStringLiteral("z=5 OK:1 dl_fail:1 paint_fail:0"));
}

TEST_F(Mapa, UnaTeselaDemasiadoGrandeNoSeDecodifica)
{
    QImage grande(1025, 16, QImage::Format_RGB32);
    grande.fill(Qt::red);
    modHTTP::CrearCarpetasDeRuta(modHTTP::RutaTile(5, 10, 6));
    ASSERT_TRUE(grande.save(modHTTP::RutaTile(5, 10, 6)));
    ASSERT_TRUE(modHTTP::TileEnCache(5, 10, 6));
    CargarTilesVisibles(VistaEn(5, 2560, 1536));
    EXPECT_EQ(LineaDiagnosticoTiles(), QStringLiteral("z=5 OK:0 dl_fail:1 paint_fail:1"));
}

TEST_F(Mapa, ElAntepasadoMasCercanoSeEstira)
{
    // Tile 10/524/340: the quarter (0, 0) of 9/262/170, and part of 4/8/5.
    const VistaMapa v = VistaEn(10, 524 * 256.0, 340 * 256.0);
    EnMemoria(4, 8, 5);
    EXPECT_EQ(Pixel(Pintar(v), 100, 100), Color(4, 8, 5));
    EnMemoria(9, 262, 170);
    EXPECT_EQ(Pixel(Pintar(v), 100, 100), Color(9, 262, 170)) << "nearer wins";
}

TEST_F(Mapa, UnAntepasadoMuestraSuParteJusta)
{
    // The parent 9/262/170 in four colours; its four children are missing.
    QImage cuatro(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            cuatro.setPixel(x, y, qRgb(x < 128 ? 50 : 200, y < 128 ? 60 : 210, 0));
    modHTTP::CrearCarpetasDeRuta(modHTTP::RutaTile(9, 262, 170));
    ASSERT_TRUE(cuatro.save(modHTTP::RutaTile(9, 262, 170)));
    ASSERT_NE(modOpenGL::ObtenerTextura(modHTTP::RutaTile(9, 262, 170)), 0);
    const QImage f = Pintar(VistaEn(10, 524 * 256.0 + 100, 340 * 256.0 + 140));
    EXPECT_EQ(Pixel(f, 50, 50), 0x323C00);  // child (0, 0)
    EXPECT_EQ(Pixel(f, 250, 50), 0xC83C00); // child (1, 0)
    EXPECT_EQ(Pixel(f, 50, 200), 0x32D200); // child (0, 1)
    EXPECT_EQ(Pixel(f, 250, 200), 0xC8D200);
}

TEST_F(Mapa, SeisNivelesSiYSieteNo)
{
    const VistaMapa v = VistaEn(10, 524 * 256.0, 340 * 256.0);
    EnMemoria(3, 4, 2); // seven above
    EXPECT_EQ(Pixel(Pintar(v), 100, 100), kGris);
    EnMemoria(4, 8, 5); // six above
    EXPECT_EQ(Pixel(Pintar(v), 100, 100), Color(4, 8, 5));
}

TEST_F(Mapa, LosHijosOcupanSusCuartos)
{
    // Tile 5/10/6 is missing; of its children 6/20..21/12..13 the lower left one too.
    EnMemoria(6, 20, 12);
    EnMemoria(6, 21, 12);
    EnMemoria(6, 21, 13);
    const QImage f = Pintar(VistaEn(5, 2560.0, 1536.0));
    EXPECT_EQ(Pixel(f, 64, 64), Color(6, 20, 12));
    EXPECT_EQ(Pixel(f, 127, 64), Color(6, 20, 12));
    EXPECT_EQ(Pixel(f, 128, 64), Color(6, 21, 12));
    EXPECT_EQ(Pixel(f, 192, 192), Color(6, 21, 13));
    EXPECT_EQ(Pixel(f, 64, 192), kGris);
    EXPECT_EQ(Pixel(f, 300, 64), kGris) << "the neighbour has no children";
    EnMemoria(4, 5, 3);
    EXPECT_EQ(Pixel(Pintar(VistaEn(5, 2560.0, 1536.0)), 64, 64), Color(4, 5, 3)) << "an ancestor goes first";
}

TEST_F(Mapa, SinNadaSigueGris)
{
    const QImage f = Pintar(VistaEn(3, 700, 700)); // up to zoom 0, and the children of zoom 4
    for (int y = 0; y < kAlto; y += 5)
        for (int x = 0; x < kAncho; x += 5)
            ASSERT_EQ(Pixel(f, x, y), kGris);
    EXPECT_EQ(modOpenGL::Contadores().dibujos, 0);
}

TEST_F(Mapa, ElMundoSeRepiteALoAnchoYNoALoAlto)
{
    for (int x = 0; x < 4; ++x)
        for (int y = 0; y < 4; ++y)
            EnDisco(2, x, y);
    // 1500 pixels at zoom 2, where the world is 1024: one column shows twice from one texture.
    superficie->resize(1500, 300);
    const VistaMapa v{.lon = 0, .lat = 84.0, .zoom = 2, .ancho = 1500, .alto = 300};
    CargarTilesVisibles(v);
    const QImage f = Pintar(v);
    double cx = 0;
    double cy = 0;
    modGeo::LonLatAPixel(0, 84.0, 2, cx, cy);
    const int arriba = static_cast<int>(std::floor(150.0 - cy + 0.5)); // where row 0 begins
    ASSERT_GT(arriba, 10);
    const int izquierda = 750 - 512; // where column 0 begins
    for (int x = 0; x < 1500; x += 10)
        ASSERT_EQ(Pixel(f, x, arriba - 2), kGris) << "no row above the first";
    EXPECT_EQ(Pixel(f, izquierda + 10, arriba + 10), Color(2, 0, 0));
    EXPECT_EQ(Pixel(f, izquierda - 10, arriba + 10), Color(2, 3, 0)) << "west of the first comes the last";
    EXPECT_EQ(Pixel(f, izquierda + 1024 + 10, arriba + 10), Color(2, 0, 0)) << "and round again";
    EXPECT_LE(modOpenGL::TexturasRegistradas(), 8) << "a repeated tile has one texture";
}

TEST_F(Mapa, PorDebajoDelZoom2NoHayTeselas)
{
    constexpr std::int16_t kSinMapa[] = {1, 0, -3};
    for (const std::int16_t zoom : kSinMapa) {
        const VistaMapa v{.lon = 0, .lat = 0, .zoom = zoom, .ancho = kAncho, .alto = kAlto};
        EXPECT_TRUE(TilesDeVista(v).empty());
        EncolarTilesVisibles(v);
        EXPECT_FALSE(modDescargas::HayDescargasPendientes());
        EXPECT_EQ(Pixel(Pintar(v), 10, 10), kGris);
    }
    EXPECT_TRUE(TilesDeVista({.lon = 0, .lat = 0, .zoom = 5, .ancho = 0, .alto = 100}).empty());
}

TEST_F(Mapa, UnaVistaImposibleNoRompeNada)
{
    for (const double lat : {90.0, -90.0, 89.999999, std::nan("")})
        for (const double lon : {0.0, 1e6, -1e6, std::nan("")}) {
            const VistaMapa v{.lon = lon, .lat = lat, .zoom = 18, .ancho = kAncho, .alto = kAlto};
            CargarTilesVisibles(v);
            Pintar(v);
            EXPECT_LE(TilesDeVista(v).size(), 6U);
        }
}

TEST_F(Mapa, SeEncolaLoQueFaltaPorFilas)
{
    const VistaMapa v = VistaEn(5, 2500.0, 1500.0); // columns 9 to 11, rows 5 and 6
    EnDisco(5, 10, 5);
    EnMemoria(5, 11, 6);
    QFile::remove(modHTTP::RutaTile(5, 11, 6)); // in memory, no longer on disk
    EncolarTilesVisibles(v);
    EXPECT_EQ(modDescargas::ContarDescargasPendientes(), 4);
    EncolarTilesVisibles(v);
    EXPECT_EQ(modDescargas::ContarDescargasPendientes(), 4) << "none twice";
    EXPECT_EQ(ConServidor::Agotar(), 4);
    CargarTilesVisibles(v);
    const QImage f = Pintar(v);
    EXPECT_EQ(Pixel(f, 30, 20), Color(5, 9, 5));
    EXPECT_EQ(Pixel(f, 30, 100), Color(5, 9, 6));
    EXPECT_EQ(Pixel(f, 100, 100), Color(5, 10, 6));
    EXPECT_EQ(Pixel(f, 318, 100), Color(5, 11, 6));
}

TEST_F(Mapa, UnaVistaQuietaTieneUnDibujoPorTesela)
{
    const VistaMapa v = VistaEn(5, 2500.0, 1500.0);
    for (const TileVisible& t : TilesDeVista(v))
        EnDisco(t.z, t.x, t.y);
    CargarTilesVisibles(v);
    Pintar(v);
    Pintar(v);
    const modOpenGL::ContadoresGL antes = modOpenGL::Contadores();
    CargarTilesVisibles(v);
    Pintar(v);
    const modOpenGL::ContadoresGL despues = modOpenGL::Contadores();
    EXPECT_LE(despues.dibujos, static_cast<int>(TilesDeVista(v).size()));
    EXPECT_EQ(despues.texturasCreadas, antes.texturasCreadas);
    EXPECT_EQ(despues.buffersCreados, antes.buffersCreados);
}

TEST_F(Mapa, DoscientosTamanosConSeisPeticionesEnVuelo)
{
    mundo->servidor.Retrasar(3);
    int maximo = 0;
    for (int i = 0; i < 200; ++i) {
        const int w = 60 + i * 37 % 600;
        const int h = 50 + i * 53 % 400;
        superficie->resize(w, h);
        if (i == 100)
            modGeo::EstablecerProveedorMapa(1);
        if (i % 50 == 49)
            LiberarTexturasMapa();
        const VistaMapa v{
            .lon = i * 0.3, .lat = 40.0, .zoom = static_cast<std::int16_t>(4 + i % 8), .ancho = w, .alto = h};
        modDescargas::VaciarColaDescargas();
        EncolarTilesVisibles(v);
        modDescargas::SondearDescargas();
        CargarTilesVisibles(v);
        PintarMapa(v);
        modOpenGL::PresentarFrame();
        QApplication::processEvents();
        maximo = std::max(maximo, mundo->servidor.SimultaneasMaximo());
    }
    EXPECT_GT(maximo, 2);
    EXPECT_LE(maximo, 6);
    // Closed in the middle: what runs is cut.
    modDescargas::CerrarColaDescargas();
    EXPECT_FALSE(modDescargas::HayDescargasPendientes());
}

} // namespace

// The registry of tile textures, the large textures, and the shelves of the text atlas.
#include "AtlasTexto.h"
#include "VentanaGL.h"
#include "cacheGlobo.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

using namespace modOpenGL;

class Texturas : public VentanaGL
{
protected:
    // A file of 2 x 2 pixels of one colour.
    QString Fichero(int numero)
    {
        const QString ruta = QDir(carpeta.path()).filePath(QStringLiteral("t%1.png").arg(numero));
        QImage imagen(2, 2, QImage::Format_RGB32);
        imagen.fill(qRgb(numero & 255, numero >> 8, 77));
        EXPECT_TRUE(imagen.save(ruta));
        return ruta;
    }

    QTemporaryDir carpeta;
};

TEST_F(Texturas, UnaRutaTieneUnaTexturaYBuscarNuncaCarga)
{
    const QString ruta = Fichero(1);
    EXPECT_EQ(BuscarTextura(ruta), 0);
    EXPECT_EQ(TexturasRegistradas(), 0);
    const std::int32_t id = ObtenerTextura(ruta);
    EXPECT_NE(id, 0);
    EXPECT_EQ(ObtenerTextura(ruta), id);
    EXPECT_EQ(BuscarTextura(ruta), id);
    EXPECT_EQ(TexturasRegistradas(), 1);
    EXPECT_EQ(ObtenerTextura(QStringLiteral("/no/hay.png")), 0);
    EXPECT_EQ(TexturasRegistradas(), 1) << "a failure is not remembered";
    VaciarTexturas();
    EXPECT_EQ(BuscarTextura(ruta), 0);
}

TEST_F(Texturas, La514VaciaElRegistroAntes)
{
    for (int i = 1; i <= 513; ++i)
        ASSERT_NE(ObtenerTextura(Fichero(i)), 0);
    EXPECT_EQ(TexturasRegistradas(), 513);
    EXPECT_NE(ObtenerTextura(Fichero(1)), 0) << "one that is there empties nothing";
    EXPECT_EQ(TexturasRegistradas(), 513);

    // A tile drawn in this very frame, before the registry is emptied under it.
    PrepararViewport(kAncho, kAlto);
    DibujarTesela(BuscarTextura(Fichero(5)), 0, 0);
    EXPECT_NE(ObtenerTextura(Fichero(514)), 0);
    EXPECT_EQ(TexturasRegistradas(), 1);
    DibujarTesela(BuscarTextura(Fichero(514)), 256, 0);
    PresentarFrame();
    const QImage f = LeerFrame();
    EXPECT_EQ(Pixel(f, 100, 100), (5 << 16) | 77);
    EXPECT_EQ(Pixel(f, 300, 100), (2 << 16) | (2 << 8) | 77);
    EXPECT_EQ(BuscarTextura(Fichero(5)), 0);
}

TEST_F(Texturas, UnaTexturaGrandeVaFueraDelRegistroYPasaPorElCache)
{
    qputenv("QUINTALUZ_APPPATH", carpeta.path().toLocal8Bit());
    const QString origen = QDir(carpeta.path()).filePath(QStringLiteral("mundo.png"));
    QImage imagen(300, 150, QImage::Format_RGB32);
    imagen.fill(qRgb(9, 8, 7));
    ASSERT_TRUE(imagen.save(origen));
    const std::int32_t id = CargarTexturaGlobo(origen);
    ASSERT_NE(id, 0);
    EXPECT_EQ(TexturasRegistradas(), 0);
    EXPECT_TRUE(QFile::exists(cacheGlobo::NombreCache(
        QDir(carpeta.path()).filePath(QStringLiteral("recursos")), origen, 8192, 4096)));
    VaciarTexturas();
    PrepararViewport(kAncho, kAlto);
    DibujarTeselaParcial(id, 0, 0, 300, 150, 0, 0, 1, 1);
    PresentarFrame();
    EXPECT_EQ(Pixel(LeerFrame(), 150, 75), 0x090807);
    BorrarTexturaGlobo(id);
    BorrarTexturaGlobo(id);
    EXPECT_EQ(CargarTexturaGlobo(QStringLiteral("/no/hay.jpg")), 0);
    EXPECT_EQ(UltimoErrorGL(), QStringLiteral("CargarTexturaGlobo: ObtenerBytesRGBAEscalado fallo"));
    qunsetenv("QUINTALUZ_APPPATH");
}

TEST(Estantes, NadaSePisaNiSeSale)
{
    Estantes estantes(256);
    std::vector<QRect> puestos;
    unsigned semilla = 1;
    for (int i = 0; i < 2000; ++i) {
        semilla = semilla * 1664525U + 1013904223U;
        const int w = 1 + static_cast<int>((semilla >> 8) % 60U);
        const int h = 1 + static_cast<int>((semilla >> 20) % 24U);
        int x = -1;
        int y = -1;
        if (!estantes.Reservar(w, h, x, y))
            continue;
        const QRect r(x, y, w, h);
        ASSERT_TRUE(QRect(0, 0, 256, 256).contains(r));
        for (const QRect& otro : puestos)
            ASSERT_FALSE(otro.intersects(r));
        puestos.push_back(r);
    }
    EXPECT_GT(puestos.size(), 60U) << "the page is well used";
    int x = 0;
    int y = 0;
    EXPECT_FALSE(Estantes(256).Reservar(257, 1, x, y));
    EXPECT_FALSE(Estantes(256).Reservar(1, 257, x, y));
    EXPECT_TRUE(Estantes(256).Reservar(256, 256, x, y));
}

TEST(RasterizarTexto, LosLimitesDeLaCaja)
{
    EXPECT_TRUE(RasterizarTexto({QString(), 10, false}, 1.0).isNull()) << "2 wide";
    EXPECT_FALSE(RasterizarTexto({QStringLiteral("W"), 10, false}, 1.0).isNull());
    EXPECT_TRUE(RasterizarTexto({QStringLiteral("W"), 400, false}, 1.0).isNull()) << "higher than 256";
    QString texto;
    while (MedirTexto({texto, 10, false}).ancho + 2 <= 1024)
        texto += QLatin1Char('W');
    EXPECT_TRUE(RasterizarTexto({texto, 10, false}, 1.0).isNull());
    texto.chop(1);
    const QImage ancha = RasterizarTexto({texto, 10, false}, 2.0);
    ASSERT_FALSE(ancha.isNull());
    EXPECT_EQ(ancha.width(), 2 * (MedirTexto({texto, 10, false}).ancho + 2));
}

TEST(RasterizarTexto, ElTamanoEsEnPuntosA96PorPulgada)
{
    // 9 points are 12 pixels, as 9 * 4 / 3; bold is wider than regular.
    const MedidaTexto nueve = MedirTexto({QStringLiteral("Quintaluz"), 9, false});
    const MedidaTexto dieciocho = MedirTexto({QStringLiteral("Quintaluz"), 18, false});
    EXPECT_NEAR(dieciocho.ancho, 2 * nueve.ancho, 5);
    EXPECT_GT(MedirTexto({QStringLiteral("Quintaluz"), 9, true}).ancho, nueve.ancho);
    EXPECT_NEAR(nueve.alto, 14, 3);
}

} // namespace

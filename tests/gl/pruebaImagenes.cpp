// The image reader, and the raw cache of large pictures over it.
#include "cacheGlobo.h"
#include "modGDIPlus.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

using namespace modGDIPlus;

class Imagenes : public ::testing::Test
{
protected:
    QString Ruta(const char* nombre) const { return QDir(carpeta.path()).filePath(QLatin1String(nombre)); }

    QString Escribir(const char* nombre, const QByteArray& contenido)
    {
        QFile f(Ruta(nombre));
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(contenido);
        return f.fileName();
    }

    // A picture whose left half is (200, 100, 50) and right half transparent blue.
    QString Dibujo(const char* nombre, int w, int h, const char* formato = "PNG")
    {
        QImage imagen(w, h, QImage::Format_ARGB32);
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x)
                imagen.setPixel(x, y, x < w / 2 ? qRgba(200, 100, 50, 255) : qRgba(0, 0, 255, 128));
        EXPECT_TRUE(imagen.save(Ruta(nombre), formato));
        return Ruta(nombre);
    }

    static QByteArray Leer(const QString& ruta)
    {
        QFile f(ruta);
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

    QTemporaryDir carpeta;
    int ancho = -1;
    int alto = -1;
    std::vector<std::uint8_t> bytes;
};

TEST_F(Imagenes, IniciarDosVecesNoCambiaNada)
{
    EXPECT_TRUE(IniciarGDIPlus());
    EXPECT_TRUE(IniciarGDIPlus());
    CerrarGDIPlus();
    EXPECT_TRUE(UltimoErrorGDIPlus().isEmpty());
}

TEST_F(Imagenes, LosBytesVanEnOrdenRGBAConAlfaSinMultiplicar)
{
    const QString ruta = Dibujo("a.png", 5, 3); // an odd width: rows of 20 bytes, no padding
    ASSERT_TRUE(LeerTamanoImagen(ruta, ancho, alto));
    EXPECT_EQ(ancho, 5);
    EXPECT_EQ(alto, 3);
    ASSERT_TRUE(CargarBytesRGBA(ruta, ancho, alto, bytes));
    ASSERT_EQ(bytes.size(), 5U * 3U * 4U);
    const std::vector<std::uint8_t> opaco{200, 100, 50, 255};
    const std::vector<std::uint8_t> claro{0, 0, 255, 128};
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) {
            const auto i = static_cast<std::ptrdiff_t>((y * 5 + x) * 4);
            EXPECT_EQ(std::vector<std::uint8_t>(bytes.begin() + i, bytes.begin() + i + 4),
                      x < 2 ? opaco : claro);
        }
}

TEST_F(Imagenes, ElContenidoDecideYNoElNombre)
{
    const QString jpeg = Dibujo("foto.jpg", 64, 64, "JPEG");
    QFile::copy(jpeg, Ruta("tesela.png"));
    ASSERT_TRUE(CargarBytesRGBA(Ruta("tesela.png"), ancho, alto, bytes));
    EXPECT_NEAR(bytes[0], 200, 3); // a JPEG rounds
    EXPECT_EQ(bytes[3], 255);
}

TEST_F(Imagenes, CadaFalloDiceSuPasoYDejaLasSalidas)
{
    const struct
    {
        const char* frase;
        QString ruta;
        int estado;
    } casos[] = {
        {"missing", Ruta("nada.png"), 10},
        {"a page of text", Escribir("pagina.png", "<html>no</html>"), 13},
        {"empty", Escribir("vacio.png", ""), 13},
        {"a PNG cut after its header", Escribir("cortado.png", Leer(Dibujo("b.png", 64, 64)).left(60)), 7},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.frase);
        const QString final = QStringLiteral("load status=%1").arg(c.estado);
        EXPECT_FALSE(CargarBytesRGBA(c.ruta, ancho, alto, bytes));
        EXPECT_EQ(UltimoErrorGDIPlus(), QStringLiteral("CargarBytesRGBA: ") + final);
        EXPECT_FALSE(ObtenerBytesRGBAEscalado(c.ruta, 10, 10, ancho, alto, bytes));
        EXPECT_EQ(UltimoErrorGDIPlus(), QStringLiteral("ObtenerBytesRGBAEscalado: ") + final);
        EXPECT_EQ(ancho, -1);
        EXPECT_TRUE(bytes.empty());
    }
    EXPECT_FALSE(ObtenerBytesRGBAEscalado(Ruta("b.png"), 0, 10, ancho, alto, bytes));
    EXPECT_EQ(UltimoErrorGDIPlus(), QStringLiteral("ObtenerBytesRGBAEscalado: CreateBitmap status=2"));
}

TEST_F(Imagenes, UnaImagenDemasiadoGrandeSeRechazaSinDecodificar)
{
    QImage(1024, 1024, QImage::Format_Grayscale8).save(Ruta("justa.png"));
    EXPECT_TRUE(CargarBytesRGBA(Ruta("justa.png"), ancho, alto, bytes, 1024));
    bytes.clear();
    QImage(1025, 4, QImage::Format_Grayscale8).save(Ruta("ancha.png"));
    EXPECT_FALSE(CargarBytesRGBA(Ruta("ancha.png"), ancho, alto, bytes, 1024));
    EXPECT_EQ(UltimoErrorGDIPlus(), QStringLiteral("CargarBytesRGBA: load status=3"));
    EXPECT_TRUE(CargarBytesRGBA(Ruta("ancha.png"), ancho, alto, bytes)) << "no limit asked";
    // A header that promises 60000 x 60000: refused by it, its pixels do not exist.
    QByteArray bomba = Leer(Ruta("ancha.png"));
    bomba.replace(16, 8, QByteArray::fromHex("0000ea600000ea60"));
    EXPECT_FALSE(CargarBytesRGBA(Escribir("bomba.png", bomba), ancho, alto, bytes, 1024));
}

struct CasoEscala
{
    const char* frase;
    int ancho, alto, maxAncho, maxAlto, ancho2, alto2;
};

// By hand: one factor for both sides, halves to even.
constexpr CasoEscala kEscalas[] = {
    {"smaller keeps its size", 100, 50, 200, 100, 100, 50},
    {"equal keeps its size", 200, 100, 200, 100, 200, 100},
    {"too wide", 400, 100, 200, 100, 200, 50},
    {"too high", 100, 400, 200, 100, 25, 100},
    {"both, the stronger factor wins", 400, 300, 200, 100, 133, 100},
    {"half to even, down", 200, 5, 100, 100, 100, 2},
    {"half to even, up", 200, 7, 100, 100, 100, 4},
    {"never nothing", 1000, 1, 10, 10, 10, 1},
};

TEST_F(Imagenes, EscalarSoloReduce)
{
    for (const CasoEscala& c : kEscalas) {
        SCOPED_TRACE(c.frase);
        const QString ruta = Dibujo("escala.png", c.ancho, c.alto);
        ASSERT_TRUE(ObtenerBytesRGBAEscalado(ruta, c.maxAncho, c.maxAlto, ancho, alto, bytes));
        EXPECT_EQ(ancho, c.ancho2);
        EXPECT_EQ(alto, c.alto2);
        EXPECT_EQ(bytes.size(), static_cast<std::size_t>(c.ancho2) * static_cast<std::size_t>(c.alto2) * 4U);
    }
}

TEST_F(Imagenes, EscalarPromediaYNoOscureceLosBordes)
{
    // A chequer of black and white comes down to grey; a plain white one stays white to its last row.
    QImage tablero(512, 512, QImage::Format_RGB32);
    for (int y = 0; y < 512; ++y)
        for (int x = 0; x < 512; ++x)
            tablero.setPixel(x, y, (x + y) % 2 == 0 ? qRgb(0, 0, 0) : qRgb(255, 255, 255));
    tablero.save(Ruta("tablero.png"));
    ASSERT_TRUE(ObtenerBytesRGBAEscalado(Ruta("tablero.png"), 64, 64, ancho, alto, bytes));
    for (std::size_t i = 0; i < bytes.size(); i += 4)
        ASSERT_NEAR(bytes[i], 128, 2);
    tablero.fill(Qt::white);
    tablero.save(Ruta("blanco.png"));
    ASSERT_TRUE(ObtenerBytesRGBAEscalado(Ruta("blanco.png"), 63, 63, ancho, alto, bytes));
    for (const std::uint8_t b : bytes)
        ASSERT_EQ(b, 255);
}

TEST_F(Imagenes, DibujarBytes)
{
    ASSERT_TRUE(CargarBytesRGBA(Dibujo("a.png", 6, 2), ancho, alto, bytes));
    QImage destino(10, 10, QImage::Format_RGB32);
    destino.fill(Qt::black);
    QPainter p(&destino);
    EXPECT_TRUE(DibujarBytesRGBA(p, ancho, alto, bytes));
    EXPECT_FALSE(DibujarBytesRGBA(p, ancho, alto + 1, bytes)) << "the buffer is too short";
    EXPECT_FALSE(DibujarBytesRGBA(p, 0, alto, bytes));
    p.end();
    EXPECT_EQ(destino.pixelColor(0, 0), QColor(200, 100, 50));
    EXPECT_NEAR(destino.pixelColor(5, 1).blue(), 128, 1);
    EXPECT_EQ(destino.pixelColor(6, 0), QColor(Qt::black));
    EXPECT_EQ(destino.pixelColor(0, 2), QColor(Qt::black));
}

// ---- The raw cache

TEST_F(Imagenes, ElNombreDelCacheLlevaElLargoYLosDosMaximos)
{
    const QString ruta = Escribir("mundo.200401%1.jpg", QByteArray(1234, 'x'));
    EXPECT_EQ(cacheGlobo::NombreCache(QStringLiteral("/datos/recursos"), ruta, 8192, 4096),
              QStringLiteral("/datos/recursos/cache_globo_mundo.200401%1_1234_8192x4096.raw"));
}

TEST_F(Imagenes, ElCacheTieneSuFormatoExactoYSeUsa)
{
    const QString origen = Dibujo("mundo.png", 6, 4);
    const QString donde = Ruta("recursos"); // does not exist yet
    cacheGlobo::Imagen imagen;
    ASSERT_TRUE(cacheGlobo::CargarConCache(donde, origen, 8192, 4096, imagen));
    EXPECT_EQ(imagen.ancho, 6) << "smaller than the maxima keeps its size";
    const QString fichero = cacheGlobo::NombreCache(donde, origen, 8192, 4096);
    const QByteArray crudo = Leer(fichero);
    ASSERT_EQ(crudo.size(), 12 + 6 * 4 * 4);
    EXPECT_EQ(crudo.left(12), QByteArray::fromHex("060000000400000052474241"));
    EXPECT_EQ(crudo.mid(12, 4), QByteArray::fromHex("c86432ff"));

    // A file of the right name is trusted: another pixel shows.
    QByteArray otro = crudo;
    otro[12] = 7;
    QFile f(fichero);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(otro);
    f.close();
    ASSERT_TRUE(cacheGlobo::CargarConCache(donde, origen, 8192, 4096, imagen));
    EXPECT_EQ(imagen.bytes[0], 7);
}

TEST_F(Imagenes, UnCacheInvalidoSeDesechaYSeRehace)
{
    const QString origen = Dibujo("mundo.png", 6, 4);
    const QString fichero = cacheGlobo::NombreCache(carpeta.path(), origen, 100, 100);
    cacheGlobo::Imagen imagen;
    ASSERT_TRUE(cacheGlobo::CargarConCache(carpeta.path(), origen, 100, 100, imagen));
    const QByteArray bueno = Leer(fichero);
    const auto con = [&bueno](int desde, const char* hexadecimal) {
        const QByteArray nuevo = QByteArray::fromHex(hexadecimal);
        return QByteArray(bueno).replace(desde, nuevo.size(), nuevo);
    };
    const struct
    {
        const char* frase;
        QByteArray bytes;
    } casos[] = {
        {"one byte short", bueno.chopped(1)},
        {"one byte long", bueno + 'x'},
        {"another mark", con(8, "42475241")},
        {"no width", con(0, "00000000")},
        {"a negative width", con(0, "faffffff")},
        {"a width above 16384", con(0, "01400000")},
        {"sides that wrap round 32 bits", con(0, "00004000000040ff")},
        {"only a header", bueno.left(12)},
        {"less than a header", bueno.left(5)},
        {"empty", {}},
    };
    for (const auto& c : casos) {
        SCOPED_TRACE(c.frase);
        QFile f(fichero);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(c.bytes);
        f.close();
        cacheGlobo::Imagen otra;
        EXPECT_FALSE(cacheGlobo::LeerCache(fichero, otra));
        ASSERT_TRUE(cacheGlobo::CargarConCache(carpeta.path(), origen, 100, 100, otra));
        EXPECT_EQ(otra.bytes, imagen.bytes);
        EXPECT_EQ(Leer(fichero), bueno) << "written again";
    }
}

TEST_F(Imagenes, UnCacheQueNoSePuedeEscribirNoEsFallo)
{
    const QString origen = Dibujo("mundo.png", 6, 4);
    Escribir("fichero", "a plain file where a folder is wanted");
    cacheGlobo::Imagen imagen;
    EXPECT_TRUE(cacheGlobo::CargarConCache(Ruta("fichero"), origen, 100, 100, imagen));
    EXPECT_EQ(imagen.ancho, 6);
    EXPECT_FALSE(cacheGlobo::EscribirCache(Ruta("fichero/x.raw"), imagen));
    EXPECT_FALSE(cacheGlobo::CargarConCache(carpeta.path(), Ruta("nada.png"), 100, 100, imagen));
    EXPECT_EQ(imagen.ancho, 6) << "untouched";
}

} // namespace

// The queue against a real server on this machine: what it asks for, and what is on disk afterwards.
#include "Teselas.h"

#include <QDirIterator>

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace modDescargas;
using Falla = ServidorTeselas::Falla;

class Descargas : public ::testing::Test
{
protected:
    static void Encolar(std::int32_t x, std::int32_t y)
    {
        EncolarDescarga(modHTTP::UrlTile(6, x, y), modHTTP::RutaTile(6, x, y));
    }

    // Files under the cache root.
    int Ficheros() const
    {
        int cuantos = 0;
        for (QDirIterator i(mundo.raiz.path(), QDir::Files, QDirIterator::Subdirectories); i.hasNext();
             i.next())
            ++cuantos;
        return cuantos;
    }

    ConServidor mundo;
};

TEST_F(Descargas, CuarentaTeselasDeSeisEnSeisDesdeLaUltima)
{
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 8; ++x)
            Encolar(x, y);
    EXPECT_EQ(ContarDescargasPendientes(), 40);
    mundo.servidor.Retrasar(20);
    EXPECT_EQ(SondearDescargas(), 0);
    EXPECT_EQ(ContarDescargasPendientes(), 40) << "six run, 34 wait";
    ASSERT_TRUE(QTest::qWaitFor([this] { return mundo.servidor.Vistas().size() >= 6; }));
    QTest::qWait(10);
    EXPECT_EQ(mundo.servidor.Vistas().size(), 6);
    for (const ServidorTeselas::Peticion& p : mundo.servidor.Vistas()) {
        EXPECT_EQ(p.tesela.y, 4) << "the bottom row first";
        EXPECT_GE(p.tesela.x, 2);
    }
    EXPECT_EQ(ConServidor::Agotar(), 40);
    EXPECT_FALSE(HayDescargasPendientes());
    EXPECT_EQ(mundo.servidor.SimultaneasMaximo(), 6);
    EXPECT_EQ(mundo.servidor.Vistas().size(), 40);
    for (int y = 0; y < 5; ++y)
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ(LeerFichero(modHTTP::RutaTile(6, x, y)), PngDe(ColorTesela(6, x, y))) << x << ", " << y;
    // Rows come from the bottom up: whenever a row is asked for, no later one waits any more.
    const auto& vistas = mundo.servidor.Vistas();
    for (qsizetype i = 12; i < vistas.size(); ++i) // six in flight may overtake one another
        EXPECT_LE(vistas[i].tesela.y, vistas[i - 12].tesela.y) << i;
}

TEST_F(Descargas, LaMismaRutaNoEntraDosVeces)
{
    EncolarDescarga(modHTTP::UrlTile(6, 1, 1), QStringLiteral("/Cache/osm/6/1/1.png"));
    EncolarDescarga(modHTTP::UrlTile(6, 1, 1), QStringLiteral("/cache/OSM/6/1/1.PNG"));
    EXPECT_EQ(ContarDescargasPendientes(), 1) << "letter case does not count";
    VaciarColaDescargas();
    mundo.servidor.Retrasar(50);
    Encolar(1, 1);
    SondearDescargas();
    Encolar(1, 1);
    EXPECT_EQ(ContarDescargasPendientes(), 1) << "it runs already";
    EXPECT_EQ(ConServidor::Agotar(), 1);
    EXPECT_EQ(mundo.servidor.Vistas().size(), 1);
}

TEST_F(Descargas, MasDe512NoSePierden)
{
    for (int x = 0; x < 700; ++x)
        Encolar(x, 0);
    EXPECT_EQ(ContarDescargasPendientes(), 700);
    VaciarColaDescargas();
    EXPECT_EQ(ContarDescargasPendientes(), 0);
    for (int x = 0; x < 60; ++x)
        Encolar(x, 0);
    IniciarColaDescargas();
    EXPECT_FALSE(HayDescargasPendientes());
}

TEST_F(Descargas, VaciarDejaTerminarLasQueCorren)
{
    mundo.servidor.Retrasar(30);
    for (int x = 0; x < 20; ++x)
        Encolar(x, 0);
    SondearDescargas();
    VaciarColaDescargas();
    EXPECT_EQ(ContarDescargasPendientes(), 6);
    EXPECT_EQ(ConServidor::Agotar(), 6);
    EXPECT_EQ(Ficheros(), 6);
}

struct CasoFalla
{
    const char* frase;
    Falla falla;
    int saltos;
    bool guarda;
};

constexpr CasoFalla kFallas[] = {
    {"a good answer", Falla::Ninguna, 0, true},
    {"404 with the picture all the same", Falla::NoExiste, 0, false},
    {"403", Falla::Prohibido, 0, false},
    {"100 bytes of a PNG", Falla::Corto, 0, false},
    {"200 with a page of text", Falla::Html, 0, false},
    {"a JPEG", Falla::Jpeg, 0, false},
    {"cut in the middle", Falla::Cortado, 0, false},
    {"9 MiB", Falla::Enorme, 0, false},
    {"five redirects", Falla::Redirige, 5, true},
    {"six redirects", Falla::Redirige, 6, false},
    {"said to be compressed: kept as it came", Falla::Gzip, 0, true},
};

TEST_F(Descargas, CadaFallaEnSilencioYSinFichero)
{
    int fila = 0;
    for (const CasoFalla& c : kFallas) {
        SCOPED_TRACE(c.frase);
        mundo.servidor.Fallar(c.falla, c.saltos);
        ++fila;
        for (int x = 0; x < 8; ++x)
            Encolar(x, fila);
        EXPECT_EQ(ConServidor::Agotar(), c.guarda ? 8 : 0);
        for (int x = 0; x < 8; ++x)
            EXPECT_EQ(LeerFichero(modHTTP::RutaTile(6, x, fila)),
                      c.guarda ? PngDe(ColorTesela(6, x, fila)) : QByteArray());
    }
}

TEST_F(Descargas, UnaTeselaFallidaVuelveAPedirse)
{
    mundo.servidor.Fallar(Falla::NoExiste);
    Encolar(1, 1);
    EXPECT_EQ(ConServidor::Agotar(), 0);
    mundo.servidor.Fallar(Falla::Ninguna);
    Encolar(1, 1);
    EXPECT_EQ(ConServidor::Agotar(), 1);
}

TEST_F(Descargas, UnSilencioSeCortaEnElTick91)
{
    mundo.servidor.Fallar(Falla::Mudo);
    Encolar(1, 1);
    SondearDescargas(); // starts it
    ASSERT_TRUE(QTest::qWaitFor([this] { return mundo.servidor.SinResponder() == 1; }));
    for (int tick = 1; tick <= 90; ++tick) {
        SondearDescargas();
        ASSERT_EQ(ContarDescargasPendientes(), 1) << tick;
    }
    Encolar(2, 2); // waits for the slot that the next tick frees
    EXPECT_EQ(SondearDescargas(), 0);
    EXPECT_EQ(ContarDescargasPendientes(), 1) << "the second one, started in the same tick";
    ASSERT_TRUE(QTest::qWaitFor([this] { return mundo.servidor.Vistas().size() == 2; }));
    EXPECT_EQ(Ficheros(), 0);
}

TEST_F(Descargas, SinServidorSeAbandonaSinRuido)
{
    quint16 puerto = 0;
    {
        QTcpServer efimero;
        ASSERT_TRUE(efimero.listen(QHostAddress::LocalHost));
        puerto = efimero.serverPort();
    } // closed: nobody answers there
    for (int x = 0; x < 10; ++x)
        EncolarDescarga(QStringLiteral("http://127.0.0.1:%1/osm/6/%2/1.png").arg(puerto).arg(x),
                        modHTTP::RutaTile(6, x, 1));
    EncolarDescarga(QStringLiteral("not an address"), modHTTP::RutaTile(6, 50, 1));
    EncolarDescarga(QString(), modHTTP::RutaTile(6, 51, 1));
    EXPECT_EQ(ConServidor::Agotar(), 0);
    EXPECT_EQ(Ficheros(), 0);
}

TEST_F(Descargas, LaPeticionLlevaSuAgenteYNadaDeMas)
{
    for (int vez = 0; vez < 2; ++vez) { // the first answer sets a cookie
        Encolar(vez, 1);
        ASSERT_EQ(ConServidor::Agotar(), 1);
        const ServidorTeselas::Peticion& p = mundo.servidor.Vistas().constLast();
        EXPECT_EQ(p.camino, "/osm/6/" + QByteArray::number(vez) + "/1.png");
        EXPECT_EQ(p.Cabecera("user-agent"), QByteArray("Quintaluz/1.0 (Zarcillo desktop tile loader)"));
        EXPECT_EQ(p.Cabecera("accept-encoding"), QByteArray("identity"));
        for (const char* ausente :
             {"accept", "cookie", "cache-control", "pragma", "if-modified-since", "referer"})
            EXPECT_FALSE(p.Tiene(ausente)) << ausente;
    }
    EXPECT_EQ(mundo.servidor.Vistas().size(), 2);
}

TEST_F(Descargas, GuardarEsMasEstrictoQueElDisco)
{
    const QByteArray firma = "\x89PNG";
    const QString ruta = modHTTP::RutaTile(6, 1, 1);
    EXPECT_FALSE(GuardarRespuestaTile(ruta, firma + QByteArray(96, 'x'))) << "100 bytes";
    EXPECT_FALSE(GuardarRespuestaTile(ruta, QByteArray::fromHex("ffd8ffe0") + QByteArray(500, 'x')))
        << "JPEG";
    EXPECT_FALSE(GuardarRespuestaTile(ruta, QByteArray(500, 'x')));
    EXPECT_FALSE(GuardarRespuestaTile(ruta, QByteArray()));
    EXPECT_FALSE(QFileInfo::exists(ruta));
    EXPECT_TRUE(GuardarRespuestaTile(ruta, firma + QByteArray(97, 'x'))) << "101 bytes";
    EXPECT_TRUE(modHTTP::TileEnCache(6, 1, 1));
    EXPECT_FALSE(GuardarRespuestaTile(mundo.raiz.path() + QStringLiteral("/../fuera.png"),
                                      firma + QByteArray(200, 'x')));
}

TEST_F(Descargas, UnaCacheQueNoSePuedeEscribirNoGuardaNiProtesta)
{
    EscribirFichero(mundo.raiz.path() + QStringLiteral("/osm"), "a plain file where the folder goes");
    Encolar(1, 1);
    EXPECT_EQ(ConServidor::Agotar(), 0);
    EXPECT_EQ(mundo.servidor.Vistas().size(), 1);
}

TEST_F(Descargas, CambiarDeProveedorConSeisEnVuelo)
{
    mundo.servidor.Retrasar(30);
    for (int x = 0; x < 6; ++x)
        Encolar(x, 1);
    SondearDescargas();
    modGeo::EstablecerProveedorMapa(1);
    Encolar(0, 1); // the same tile of the other map is another path
    EXPECT_EQ(ConServidor::Agotar(), 7);
    EXPECT_TRUE(modHTTP::TileEnCache(6, 0, 1));
    EXPECT_FALSE(modHTTP::TileEnCache(6, 1, 1)) << "the six went to their own folder";
    modGeo::EstablecerProveedorMapa(0);
    EXPECT_TRUE(modHTTP::TileEnCache(6, 5, 1));
}

TEST_F(Descargas, CerrarConSeisEnVueloLasCortaTodas)
{
    mundo.servidor.Retrasar(40);
    for (int x = 0; x < 20; ++x)
        Encolar(x, 1);
    SondearDescargas();
    ASSERT_TRUE(QTest::qWaitFor([this] { return mundo.servidor.Vistas().size() == 6; }));
    CerrarColaDescargas();
    EXPECT_FALSE(HayDescargasPendientes());
    QTest::qWait(100);
    EXPECT_EQ(SondearDescargas(), 0);
    EXPECT_EQ(Ficheros(), 0);
    EXPECT_EQ(mundo.servidor.SinResponder(), 0) << "their connections are gone";
    Encolar(1, 2); // and it can begin again
    mundo.servidor.Retrasar(0);
    EXPECT_EQ(ConServidor::Agotar(), 1);
}

TEST_F(Descargas, LiberarUnaRanuraCualquiera)
{
    LiberarRanuraDescarga(-1);
    LiberarRanuraDescarga(6);
    LiberarRanuraDescarga(3);
    mundo.servidor.Fallar(Falla::Mudo);
    Encolar(1, 1);
    SondearDescargas();
    LiberarRanuraDescarga(0);
    EXPECT_FALSE(HayDescargasPendientes());
}

// ---- The server itself, for whoever tries the map by hand

TEST(ServidorTeselas, SirveUnaCarpetaEnLosCincoDisenos)
{
    const QTemporaryDir carpeta;
    EscribirFichero(carpeta.path() + QStringLiteral("/6/31/24.png"), "comun");
    EscribirFichero(carpeta.path() + QStringLiteral("/dem/6/31/24.png"), "altura");
    const ServidorTeselas::Almacen almacen = ServidorTeselas::DeCarpeta(carpeta.path());
    for (const modHTTP::FuenteTeselas& f : modHTTP::TablaFuentes())
        EXPECT_EQ(almacen({f.clave, 6, 31, 24}), QByteArray(f.clave) == "dem" ? "altura" : "comun")
            << f.clave;
    EXPECT_TRUE(almacen({"osm", 6, 31, 25}).isEmpty());
}

TEST(ServidorTeselas, EntiendeCadaDireccionDeLaTabla)
{
    ConServidor mundo;
    for (int f = 0; f < modHTTP::kFuentes; ++f) {
        const auto fuente = static_cast<modHTTP::Fuente>(f);
        EncolarDescarga(modHTTP::UrlFuente(fuente, 6, 31, 24), modHTTP::RutaFuente(fuente, 6, 31, 24));
        ASSERT_EQ(ConServidor::Agotar(), 1);
        const ServidorTeselas::Tesela& t = mundo.servidor.Vistas().constLast().tesela;
        EXPECT_EQ(t.clave, QByteArray(modHTTP::TablaFuentes()[fuente].clave));
        EXPECT_EQ(t.z, 6);
        EXPECT_EQ(t.x, 31);
        EXPECT_EQ(t.y, 24);
    }
    ServidorTeselas::Falla falla = ServidorTeselas::Falla::Ninguna;
    EXPECT_TRUE(ServidorTeselas::FallaDeNombre(QStringLiteral("cortado"), falla));
    EXPECT_EQ(falla, ServidorTeselas::Falla::Cortado);
    EXPECT_FALSE(ServidorTeselas::FallaDeNombre(QStringLiteral("otra"), falla));
}

} // namespace

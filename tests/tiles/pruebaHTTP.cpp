// The table of sources, the addresses, the cache tree and its writer.
#include "Teselas.h"

#include <gtest/gtest.h>

namespace {

using namespace modHTTP;

class ModHTTP : public ::testing::Test
{
protected:
    void SetUp() override
    {
        qunsetenv("QUINTALUZ_TESELAS");
        modGeo::EstablecerProveedorMapa(0);
        IniciarHTTP(raiz.path());
    }

    void TearDown() override
    {
        CerrarHTTP();
        modGeo::EstablecerProveedorMapa(0);
        qunsetenv("QUINTALUZ_TESELAS");
    }

    QString En(const char* relativa) const { return QDir(raiz.path()).filePath(QLatin1String(relativa)); }

    QTemporaryDir raiz;
};

struct CasoFuente
{
    std::int16_t proveedor;
    const char* clave;
    const char* url; // of z = 6, x = 31, y = 24
    const char* atribucion;
};

// Addresses as the servers publish them; any index but 1 and 2 is the first base map.
constexpr CasoFuente kFuentesMapa[] = {
    {0, "osm", "https://tile.openstreetmap.org/6/31/24.png", "\u00A9 OpenStreetMap contributors"},
    {1, "topo", "https://tile.opentopomap.org/6/31/24.png",
     "Map data: \u00A9 OpenStreetMap contributors, SRTM | Map style: \u00A9 OpenTopoMap (CC-BY-SA)"},
    {2, "esri", "https://server.arcgisonline.com/ArcGIS/rest/services/World_Imagery/MapServer/tile/6/24/31",
     "Powered by Esri | Source: Esri and its imagery providers"},
    {3, "osm", "https://tile.openstreetmap.org/6/31/24.png", "\u00A9 OpenStreetMap contributors"},
    {-1, "osm", "https://tile.openstreetmap.org/6/31/24.png", "\u00A9 OpenStreetMap contributors"},
};

TEST_F(ModHTTP, CadaProveedorTieneSuClaveSuUrlYSuAtribucion)
{
    for (const CasoFuente& c : kFuentesMapa) {
        SCOPED_TRACE(c.proveedor);
        modGeo::EstablecerProveedorMapa(c.proveedor);
        EXPECT_EQ(ClaveProveedorTile(), QLatin1String(c.clave));
        EXPECT_EQ(UrlTile(6, 31, 24), QLatin1String(c.url));
        EXPECT_EQ(AtribucionMapa(), QString::fromUtf8(c.atribucion));
        EXPECT_EQ(RutaTile(6, 31, 24), RutaCacheBase() + QLatin1String(c.clave) +
                                           QDir::toNativeSeparators(QStringLiteral("/6/31/24.png")));
    }
}

TEST_F(ModHTTP, LasOtrasDosFuentes)
{
    modGeo::EstablecerProveedorMapa(2); // they do not depend on it
    EXPECT_EQ(UrlFuente(kLuces, 6, 31, 24),
              QStringLiteral("https://gibs.earthdata.nasa.gov/wmts/epsg3857/best/VIIRS_Black_Marble/default/"
                             "2016-01-01/GoogleMapsCompatible_Level8/6/24/31.png"));
    EXPECT_EQ(UrlFuente(kElevacion, 12, 2005, 1544),
              QStringLiteral("https://s3.amazonaws.com/elevation-tiles-prod/terrarium/12/2005/1544.png"));
    EXPECT_EQ(RutaTileLP(6, 31, 24),
              RutaCacheBase() + QDir::toNativeSeparators(QStringLiteral("lp/6/31/24.png")));
    EXPECT_EQ(RutaTileDEM(12, 2005, 1544),
              RutaCacheBase() + QDir::toNativeSeparators(QStringLiteral("dem/12/2005/1544.png")));
}

TEST_F(ModHTTP, UnEspejoRecibeTodasLasFuentesBajoSuClave)
{
    qputenv("QUINTALUZ_TESELAS", "http://127.0.0.1:8000/mapas//");
    IniciarHTTP(raiz.path());
    EXPECT_EQ(UrlTile(6, 31, 24), QStringLiteral("http://127.0.0.1:8000/mapas/osm/6/31/24.png"));
    modGeo::EstablecerProveedorMapa(2);
    EXPECT_EQ(
        UrlTile(6, 31, 24),
        QStringLiteral("http://127.0.0.1:8000/mapas/esri/ArcGIS/rest/services/World_Imagery/MapServer/tile/"
                       "6/24/31"));
    EXPECT_TRUE(
        UrlFuente(kLuces, 6, 31, 24).startsWith(QStringLiteral("http://127.0.0.1:8000/mapas/lp/wmts/")));
    EXPECT_EQ(UrlFuente(kElevacion, 1, 0, 0),
              QStringLiteral("http://127.0.0.1:8000/mapas/dem/elevation-tiles-prod/terrarium/1/0/0.png"));
}

TEST_F(ModHTTP, LaRaizTerminaEnUnSeparador)
{
    const QString sin = QDir::toNativeSeparators(raiz.path());
    EXPECT_EQ(RutaCacheBase(), sin + QDir::separator());
    IniciarHTTP(sin + QDir::separator());
    EXPECT_EQ(RutaCacheBase(), sin + QDir::separator());
}

TEST_F(ModHTTP, SinRaizNadaSeGuardaNiSeEncuentra)
{
    IniciarHTTP(QString());
    EXPECT_TRUE(RutaCacheBase().isEmpty());
    EXPECT_FALSE(TileEnCache(1, 0, 0));
    EXPECT_FALSE(DentroDeCache(QStringLiteral("/etc/hosts")));
    EXPECT_FALSE(EscribirTesela(RutaTile(1, 0, 0), QByteArray(200, 'x')));
    EXPECT_FALSE(QFileInfo::exists(RutaTile(1, 0, 0)));
}

struct CasoPresencia
{
    const char* frase;
    bool (*esta)(std::int16_t, std::int32_t, std::int32_t);
    QString (*ruta)(std::int16_t, std::int32_t, std::int32_t);
    int minimo;
};

TEST_F(ModHTTP, UnFicheroCuentaDesdeSuLargoMinimo)
{
    const CasoPresencia casos[] = {
        {"base map", TileEnCache, RutaTile, 101},
        {"night lights", TileLPEnCache, RutaTileLP, 51},
        {"elevation", TileDEMEnCache, RutaTileDEM, 101},
    };
    for (const CasoPresencia& c : casos) {
        SCOPED_TRACE(c.frase);
        EXPECT_FALSE(c.esta(3, 4, 5)) << "no file";
        EscribirFichero(c.ruta(3, 4, 5), QByteArray(c.minimo - 1, 'x'));
        EXPECT_FALSE(c.esta(3, 4, 5)) << "one byte short";
        EscribirFichero(c.ruta(3, 4, 5), QByteArray(c.minimo, 'x'));
        EXPECT_TRUE(c.esta(3, 4, 5)) << "enough, though no image";
        QDir().mkpath(c.ruta(3, 4, 6));
        EXPECT_FALSE(c.esta(3, 4, 6)) << "a directory is no tile";
    }
}

TEST_F(ModHTTP, CambiarDeProveedorDejaLosFicherosDelOtro)
{
    EscribirFichero(RutaTile(3, 4, 5), QByteArray(200, 'x'));
    modGeo::EstablecerProveedorMapa(1);
    EXPECT_FALSE(TileEnCache(3, 4, 5));
    modGeo::EstablecerProveedorMapa(0);
    EXPECT_TRUE(TileEnCache(3, 4, 5));
}

TEST_F(ModHTTP, SeCreanLasCarpetasQueFaltan)
{
    AsegurarCarpeta(En("a/b/c"));
    EXPECT_TRUE(QFileInfo(En("a/b/c")).isDir());
    AsegurarCarpeta(En("a/b/c")); // again: nothing
    CrearCarpetasDeRuta(En("d/e/f.png"));
    EXPECT_TRUE(QFileInfo(En("d/e")).isDir());
    EXPECT_FALSE(QFileInfo::exists(En("d/e/f.png")));
    CrearCarpetasDeRuta(QStringLiteral("f.png")); // one part: nothing to make
    EscribirFichero(En("fichero"), "x");
    AsegurarCarpeta(En("fichero/dentro")); // cannot: silent
    EXPECT_TRUE(QFileInfo(En("fichero")).isFile());
}

TEST_F(ModHTTP, UnaRutaNuncaSaleDeLaRaiz)
{
    EXPECT_TRUE(DentroDeCache(RutaTile(3, 4, 5)));
    EXPECT_TRUE(DentroDeCache(En("osm/../lp/1/1/1.png")));
    EXPECT_TRUE(DentroDeCache(RutaTile(-3, -4, -5))) << "numbers are only numbers";
    for (const char* mala : {"../fuera.png", "osm/../../fuera.png", "osm/3/../../../fuera.png", ""}) {
        SCOPED_TRACE(mala);
        const QString ruta = En(mala);
        EXPECT_FALSE(DentroDeCache(ruta));
        EXPECT_FALSE(EscribirTesela(ruta, QByteArray(200, 'x')));
    }
    EXPECT_FALSE(DentroDeCache(raiz.path() + QStringLiteral("-vecina/x.png"))) << "a name that begins alike";
    EXPECT_FALSE(QFileInfo::exists(En("../fuera.png")));
}

TEST_F(ModHTTP, UnFicheroMasLargoConservaSuCola)
{
    const QString ruta = RutaTile(3, 4, 5);
    ASSERT_TRUE(EscribirTesela(ruta, QByteArray(300, 'a')));
    EXPECT_EQ(LeerFichero(ruta), QByteArray(300, 'a'));
    ASSERT_TRUE(EscribirTesela(ruta, QByteArray(200, 'b')));
    EXPECT_EQ(LeerFichero(ruta), QByteArray(200, 'b') + QByteArray(100, 'a'));
    ASSERT_TRUE(EscribirTesela(ruta, QByteArray(400, 'c')));
    EXPECT_EQ(LeerFichero(ruta), QByteArray(400, 'c'));
}

TEST_F(ModHTTP, UnFicheroDondeVaUnaCarpetaImpideEscribirEnSilencio)
{
    EscribirFichero(En("osm"), "a plain file");
    EXPECT_FALSE(EscribirTesela(RutaTile(3, 4, 5), QByteArray(200, 'x')));
    EXPECT_EQ(LeerFichero(En("osm")), QByteArray("a plain file"));
    EscribirFichero(En("raiz"), "x");
    IniciarHTTP(En("raiz")); // the root itself is a file
    EXPECT_FALSE(TileEnCache(3, 4, 5));
    EXPECT_FALSE(EscribirTesela(RutaTile(3, 4, 5), QByteArray(200, 'x')));
}

#ifdef Q_OS_LINUX
TEST_F(ModHTTP, UnDiscoLlenoNoDejaUnFicheroAMedias)
{
    if (!QFileInfo::exists(QStringLiteral("/dev/full")))
        GTEST_SKIP() << "no /dev/full here";
    const QString ruta = RutaTile(3, 4, 5);
    CrearCarpetasDeRuta(ruta);
    ASSERT_TRUE(QFile::link(QStringLiteral("/dev/full"), ruta)); // every write there finds the disk full
    EXPECT_FALSE(EscribirTesela(ruta, QByteArray(200, 'x')));
    EXPECT_FALSE(QFileInfo(ruta).isSymLink()) << "removed";
    EXPECT_TRUE(QFileInfo::exists(QStringLiteral("/dev/full")));
}
#endif

} // namespace

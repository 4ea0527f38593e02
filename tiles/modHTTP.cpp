#include "modHTTP.h"

#include "modGeo.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace modHTTP {
namespace {

constexpr std::array<FuenteTeselas, kFuentes> kTabla{{
    {"osm", "https://tile.openstreetmap.org", "/", ".png", false, 101, "\u00A9 OpenStreetMap contributors"},
    {"topo", "https://tile.opentopomap.org", "/", ".png", false, 101,
     "Map data: \u00A9 OpenStreetMap contributors, SRTM | Map style: \u00A9 OpenTopoMap (CC-BY-SA)"},
    {"esri", "https://server.arcgisonline.com", "/ArcGIS/rest/services/World_Imagery/MapServer/tile/", "",
     true, 101, "Powered by Esri | Source: Esri and its imagery providers"},
    {"lp", "https://gibs.earthdata.nasa.gov",
     "/wmts/epsg3857/best/VIIRS_Black_Marble/default/2016-01-01/GoogleMapsCompatible_Level8/", ".png", true,
     51, ""},
    {"dem", "https://s3.amazonaws.com", "/elevation-tiles-prod/terrarium/", ".png", false, 101, ""},
}};

struct Estado
{
    QString raiz;   // with its separator, or empty
    QString espejo; // base address of a mirror without the trailing slash, or empty
};

Estado& Modulo()
{
    static Estado estado;
    return estado;
}

bool EnDisco(const QString& ruta, Fuente fuente)
{
    if (Modulo().raiz.isEmpty())
        return false;
    const QFileInfo info(ruta);
    return info.isFile() && info.size() >= TablaFuentes()[fuente].minimo;
}

} // namespace

const std::array<FuenteTeselas, kFuentes>& TablaFuentes()
{
    return kTabla;
}

void IniciarHTTP(const QString& carpeta)
{
    Estado& e = Modulo();
    e.raiz = QDir::toNativeSeparators(carpeta);
    if (!e.raiz.isEmpty() && !e.raiz.endsWith(QDir::separator()))
        e.raiz += QDir::separator();
    e.espejo = qEnvironmentVariable("QUINTALUZ_TESELAS").trimmed();
    while (e.espejo.endsWith(QLatin1Char('/')))
        e.espejo.chop(1);
}

void CerrarHTTP()
{
    Modulo() = {};
}

QString RutaCacheBase()
{
    return Modulo().raiz;
}

Fuente FuenteMapa()
{
    switch (modGeo::ProveedorMapa()) {
    case 1:
        return kTopo;
    case 2:
        return kEsri;
    default:
        return kOsm;
    }
}

QString ClaveProveedorTile()
{
    return QString::fromLatin1(kTabla[FuenteMapa()].clave);
}

QString AtribucionMapa()
{
    return QString::fromUtf8(kTabla[FuenteMapa()].atribucion);
}

QString UrlFuente(Fuente fuente, std::int16_t z, std::int32_t x, std::int32_t y)
{
    const FuenteTeselas& f = kTabla[fuente];
    const Estado& e = Modulo();
    const QString base = e.espejo.isEmpty() ? QString::fromLatin1(f.servidor)
                                            : e.espejo + QLatin1Char('/') + QLatin1String(f.clave);
    return base + QLatin1String(f.ruta) + QString::number(z) + QLatin1Char('/') +
           QString::number(f.filaAntes ? y : x) + QLatin1Char('/') + QString::number(f.filaAntes ? x : y) +
           QLatin1String(f.extension);
}

QString UrlTile(std::int16_t z, std::int32_t x, std::int32_t y)
{
    return UrlFuente(FuenteMapa(), z, x, y);
}

QString RutaFuente(Fuente fuente, std::int16_t z, std::int32_t x, std::int32_t y)
{
    const QChar s = QDir::separator();
    return Modulo().raiz + QLatin1String(kTabla[fuente].clave) + s + QString::number(z) + s +
           QString::number(x) + s + QString::number(y) + QLatin1String(".png");
}

QString RutaTile(std::int16_t z, std::int32_t x, std::int32_t y)
{
    return RutaFuente(FuenteMapa(), z, x, y);
}

QString RutaTileLP(std::int16_t z, std::int32_t x, std::int32_t y)
{
    return RutaFuente(kLuces, z, x, y);
}

QString RutaTileDEM(std::int16_t z, std::int32_t x, std::int32_t y)
{
    return RutaFuente(kElevacion, z, x, y);
}

bool TileEnCache(std::int16_t z, std::int32_t x, std::int32_t y)
{
    return EnDisco(RutaTile(z, x, y), FuenteMapa());
}

bool TileLPEnCache(std::int16_t z, std::int32_t x, std::int32_t y)
{
    return EnDisco(RutaTileLP(z, x, y), kLuces);
}

bool TileDEMEnCache(std::int16_t z, std::int32_t x, std::int32_t y)
{
    return EnDisco(RutaTileDEM(z, x, y), kElevacion);
}

bool DentroDeCache(const QString& ruta)
{
    if (Modulo().raiz.isEmpty())
        return false;
    const auto absoluta = [](const QString& r) {
        return QDir::cleanPath(QFileInfo(QDir::fromNativeSeparators(r)).absoluteFilePath());
    };
    QString raiz = absoluta(Modulo().raiz);
    if (!raiz.endsWith(QLatin1Char('/')))
        raiz += QLatin1Char('/');
    return absoluta(ruta).startsWith(raiz);
}

void AsegurarCarpeta(const QString& ruta)
{
    QDir().mkpath(ruta);
}

void CrearCarpetasDeRuta(const QString& ruta)
{
    const QString carpeta = QFileInfo(ruta).path();
    if (carpeta != QLatin1String("."))
        AsegurarCarpeta(carpeta);
}

bool EscribirTesela(const QString& ruta, const QByteArray& cuerpo)
{
    if (!DentroDeCache(ruta))
        return false;
    CrearCarpetasDeRuta(ruta);
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadWrite)) // keeps what lies beyond the new end
        return false;
    const bool escrito = fichero.write(cuerpo) == cuerpo.size() && fichero.flush();
    fichero.close();
    if (escrito && fichero.error() == QFileDevice::NoError) // a full disk may show only here
        return true;
    QFile::remove(ruta);
    return false;
}

} // namespace modHTTP

#include "cacheGlobo.h"

#include "modGDIPlus.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <cstring>

namespace cacheGlobo {
namespace {

constexpr int kLadoMaximo = 16384;
constexpr qint64 kCabecera = 12; // bytes
constexpr char kMarca[4] = {'R', 'G', 'B', 'A'};

} // namespace

QString NombreCache(const QString& carpeta, const QString& origen, int maxAncho, int maxAlto)
{
    const QFileInfo info(origen);
    // Joined, not filled in: a source may have a "%" in its name.
    return carpeta + QStringLiteral("/cache_globo_") + info.completeBaseName() + QLatin1Char('_') +
           QString::number(info.exists() ? info.size() : 0) + QLatin1Char('_') + QString::number(maxAncho) +
           QLatin1Char('x') + QString::number(maxAlto) + QStringLiteral(".raw");
}

bool LeerCache(const QString& ruta, Imagen& imagen)
{
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadOnly))
        return false;
    char cabecera[kCabecera];
    if (fichero.read(cabecera, kCabecera) != kCabecera ||
        std::memcmp(cabecera + 8, kMarca, sizeof kMarca) != 0)
        return false;
    const auto ancho = qFromLittleEndian<qint32>(cabecera);
    const auto alto = qFromLittleEndian<qint32>(cabecera + 4);
    if (ancho < 1 || ancho > kLadoMaximo || alto < 1 || alto > kLadoMaximo)
        return false;
    const qint64 largo = static_cast<qint64>(ancho) * alto * 4;
    if (fichero.size() != kCabecera + largo)
        return false;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(largo));
    if (fichero.read(reinterpret_cast<char*>(bytes.data()), largo) != largo)
        return false;
    imagen = {ancho, alto, std::move(bytes)};
    return true;
}

bool EscribirCache(const QString& ruta, const Imagen& imagen)
{
    QDir().mkpath(QFileInfo(ruta).path());
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::WriteOnly))
        return false;
    char cabecera[kCabecera];
    qToLittleEndian<qint32>(imagen.ancho, cabecera);
    qToLittleEndian<qint32>(imagen.alto, cabecera + 4);
    std::memcpy(cabecera + 8, kMarca, sizeof kMarca);
    const auto largo = static_cast<qint64>(imagen.bytes.size());
    const bool escrito = fichero.write(cabecera, kCabecera) == kCabecera &&
                         fichero.write(reinterpret_cast<const char*>(imagen.bytes.data()), largo) == largo &&
                         fichero.flush();
    fichero.close();
    if (escrito && fichero.error() == QFileDevice::NoError)
        return true;
    QFile::remove(ruta);
    return false;
}

bool CargarConCache(const QString& carpeta, const QString& origen, int maxAncho, int maxAlto, Imagen& imagen)
{
    const QString ruta = NombreCache(carpeta, origen, maxAncho, maxAlto);
    if (LeerCache(ruta, imagen))
        return true;
    Imagen leida;
    if (!modGDIPlus::ObtenerBytesRGBAEscalado(origen, maxAncho, maxAlto, leida.ancho, leida.alto,
                                              leida.bytes))
        return false;
    EscribirCache(ruta, leida);
    imagen = std::move(leida);
    return true;
}

} // namespace cacheGlobo

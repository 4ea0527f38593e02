#include "modGDIPlus.h"

#include <QFile>
#include <QImage>
#include <QImageReader>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace modGDIPlus {
namespace {

// Status numbers of the imaging library that the texts speak of.
enum Estado
{
    kArgumentos = 2,
    kMemoria = 3,
    kDanado = 7,
    kNoExiste = 10,
    kDesconocido = 13,
};

constexpr int kLimiteGrandeMiB = 1024;

QString& Error()
{
    thread_local QString error;
    return error;
}

bool Fallo(const char* paso, int estado)
{
    Error() = QStringLiteral("%1 status=%2").arg(QLatin1String(paso)).arg(estado);
    return false;
}

// Opens a file by content; 0 or a status.
int Abrir(QImageReader& lector, const QString& ruta)
{
    if (!QFile::exists(ruta))
        return kNoExiste;
    lector.setAutoDetectImageFormat(true);
    lector.setDecideFormatFromContent(true);
    lector.setFileName(ruta);
    const QByteArray formato = lector.format();
    for (const char* admitido : {"png", "jpeg", "jpg", "bmp", "gif"})
        if (formato == admitido)
            return 0;
    return kDesconocido;
}

int EstadoDe(const QImageReader& lector)
{
    switch (lector.error()) {
    case QImageReader::FileNotFoundError:
        return kNoExiste;
    case QImageReader::UnsupportedFormatError:
        return kDesconocido;
    case QImageReader::InvalidDataError:
    case QImageReader::DeviceError:
    case QImageReader::UnknownError:
        break;
    }
    return kDanado;
}

// Straight R, G, B, A rows without padding.
bool Copiar(const QImage& imagen, std::vector<std::uint8_t>& bytes)
{
    const QImage rgba =
        imagen.format() == QImage::Format_RGBA8888 ? imagen : imagen.convertToFormat(QImage::Format_RGBA8888);
    if (rgba.isNull())
        return false;
    const auto fila = static_cast<std::size_t>(rgba.width()) * 4;
    bytes.resize(fila * static_cast<std::size_t>(rgba.height()));
    for (int y = 0; y < rgba.height(); ++y)
        std::memcpy(bytes.data() + fila * static_cast<std::size_t>(y), rgba.constScanLine(y), fila);
    return true;
}

// The decoder refuses large pictures, which protects from hostile tiles; our own world textures are large.
class LimiteGrande
{
public:
    LimiteGrande() : antes(QImageReader::allocationLimit())
    {
        QImageReader::setAllocationLimit(kLimiteGrandeMiB);
    }
    ~LimiteGrande() { QImageReader::setAllocationLimit(antes); }
    LimiteGrande(const LimiteGrande&) = delete;
    LimiteGrande& operator=(const LimiteGrande&) = delete;

private:
    int antes;
};

} // namespace

bool IniciarGDIPlus()
{
    const QList<QByteArray> formatos = QImageReader::supportedImageFormats();
    if (formatos.contains("png") && formatos.contains("jpeg"))
        return true;
    return Fallo("GdiplusStartup", kDesconocido);
}

void CerrarGDIPlus()
{
    Error().clear();
}

QString UltimoErrorGDIPlus()
{
    return Error();
}

bool LeerTamanoImagen(const QString& ruta, int& ancho, int& alto)
{
    QImageReader lector;
    if (const int estado = Abrir(lector, ruta); estado != 0)
        return Fallo("LeerTamanoImagen: load", estado);
    const QSize lado = lector.size();
    if (lado.isEmpty())
        return Fallo("LeerTamanoImagen: load", kDanado);
    ancho = lado.width();
    alto = lado.height();
    return true;
}

bool CargarBytesRGBA(const QString& ruta, int& ancho, int& alto, std::vector<std::uint8_t>& bytes,
                     int ladoMaximo)
{
    QImageReader lector;
    if (const int estado = Abrir(lector, ruta); estado != 0)
        return Fallo("CargarBytesRGBA: load", estado);
    if (ladoMaximo > 0) {
        const QSize lado = lector.size();
        if (lado.isEmpty())
            return Fallo("CargarBytesRGBA: load", kDanado);
        if (lado.width() > ladoMaximo || lado.height() > ladoMaximo)
            return Fallo("CargarBytesRGBA: load", kMemoria);
    }
    QImage imagen;
    if (!lector.read(&imagen) || imagen.isNull())
        return Fallo("CargarBytesRGBA: load", EstadoDe(lector));
    if (!Copiar(imagen, bytes))
        return Fallo("CargarBytesRGBA: LockBits", kMemoria);
    ancho = imagen.width();
    alto = imagen.height();
    return true;
}

bool ObtenerBytesRGBAEscalado(const QString& ruta, int maxAncho, int maxAlto, int& ancho, int& alto,
                              std::vector<std::uint8_t>& bytes)
{
    if (maxAncho <= 0 || maxAlto <= 0)
        return Fallo("ObtenerBytesRGBAEscalado: CreateBitmap", kArgumentos);
    const LimiteGrande limite;
    QImageReader lector;
    if (const int estado = Abrir(lector, ruta); estado != 0)
        return Fallo("ObtenerBytesRGBAEscalado: load", estado);
    QImage imagen;
    if (!lector.read(&imagen) || imagen.isNull())
        return Fallo("ObtenerBytesRGBAEscalado: load", EstadoDe(lector));
    if (imagen.width() > maxAncho || imagen.height() > maxAlto) {
        const double factor = std::min(static_cast<double>(maxAncho) / imagen.width(),
                                       static_cast<double>(maxAlto) / imagen.height());
        const auto lado = [factor](int antes) {
            return std::max(1, static_cast<int>(std::nearbyint(antes * factor)));
        };
        imagen = imagen.scaled(lado(imagen.width()), lado(imagen.height()), Qt::IgnoreAspectRatio,
                               Qt::SmoothTransformation);
        if (imagen.isNull())
            return Fallo("ObtenerBytesRGBAEscalado: DrawImageRect", kMemoria);
    }
    if (!Copiar(imagen, bytes))
        return Fallo("ObtenerBytesRGBAEscalado: LockBits", kMemoria);
    ancho = imagen.width();
    alto = imagen.height();
    return true;
}

bool DibujarBytesRGBA(QPainter& p, int ancho, int alto, const std::vector<std::uint8_t>& bytes)
{
    if (ancho <= 0 || alto <= 0 ||
        bytes.size() / 4 / static_cast<std::size_t>(ancho) < static_cast<std::size_t>(alto))
        return Fallo("DibujarBytesRGBA: CreateBitmap", kArgumentos);
    p.drawImage(
        0, 0, QImage(bytes.data(), ancho, alto, 4 * static_cast<qsizetype>(ancho), QImage::Format_RGBA8888));
    return true;
}

} // namespace modGDIPlus

#include "ServidorTeselas.h"

#include "modHTTP.h"

#include <QBuffer>
#include <QFile>
#include <QHostAddress>
#include <QImage>
#include <QPointer>
#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace {

constexpr qsizetype kCabecerasMaximo = 64 * 1024; // bytes; a longer head is no browser's

const QByteArray* Hallar(const QList<QPair<QByteArray, QByteArray>>& cabeceras, const QByteArray& nombre)
{
    for (const auto& [clave, valor] : cabeceras)
        if (clave == nombre)
            return &valor;
    return nullptr;
}

// Reads "a/b/c" and an optional ".png" into the tile's numbers, by the layout of its source.
bool LeerCamino(const QByteArray& camino, ServidorTeselas::Tesela& tesela)
{
    for (const modHTTP::FuenteTeselas& f : modHTTP::TablaFuentes()) {
        const QByteArray principio = QByteArray("/") + f.clave + f.ruta;
        const QByteArray final = f.extension;
        if (!camino.startsWith(principio) || !camino.endsWith(final))
            continue;
        const QList<QByteArray> partes =
            camino.mid(principio.size(), camino.size() - principio.size() - final.size()).split('/');
        if (partes.size() != 3)
            continue;
        bool bien[3];
        const std::int32_t z = partes[0].toInt(&bien[0]);
        const std::int32_t a = partes[1].toInt(&bien[1]);
        const std::int32_t b = partes[2].toInt(&bien[2]);
        if (!bien[0] || !bien[1] || !bien[2])
            continue;
        tesela = {f.clave, z, f.filaAntes ? b : a, f.filaAntes ? a : b};
        return true;
    }
    return false;
}

QByteArray SinConsulta(const QByteArray& camino)
{
    return camino.split('?').constFirst();
}

QByteArray HacerJpeg()
{
    QImage imagen(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            imagen.setPixel(x, y, qRgb(x, y, 128));
    QByteArray bytes;
    QBuffer destino(&bytes);
    destino.open(QIODevice::WriteOnly);
    imagen.save(&destino, "JPEG");
    return bytes;
}

QByteArray Motivo(int estado)
{
    switch (estado) {
    case 200:
        return "OK";
    case 302:
        return "Found";
    case 403:
        return "Forbidden";
    case 404:
        return "Not Found";
    default:
        return "Bad Request";
    }
}

} // namespace

QByteArray ServidorTeselas::Peticion::Cabecera(const QByteArray& nombre) const
{
    const QByteArray* valor = Hallar(cabeceras, nombre);
    return valor == nullptr ? QByteArray() : *valor;
}

bool ServidorTeselas::Peticion::Tiene(const QByteArray& nombre) const
{
    return Hallar(cabeceras, nombre) != nullptr;
}

ServidorTeselas::ServidorTeselas(Almacen almacen_, QObject* padre)
    : QObject(padre), almacen(std::move(almacen_)), servidor(this)
{
    connect(&servidor, &QTcpServer::newConnection, this, [this] {
        while (QTcpSocket* enchufe = servidor.nextPendingConnection()) {
            enchufe->setSocketOption(QAbstractSocket::LowDelayOption, 1);
            connect(enchufe, &QTcpSocket::readyRead, this, [this, enchufe] { Recibir(enchufe); });
            connect(enchufe, &QTcpSocket::disconnected, this, [this, enchufe] {
                simultaneas -= debidas.take(enchufe);
                pendiente.remove(enchufe);
                enchufe->deleteLater();
            });
        }
    });
}

ServidorTeselas::~ServidorTeselas()
{
    for (QTcpSocket* enchufe : findChildren<QTcpSocket*>()) {
        enchufe->disconnect(this);
        delete enchufe;
    }
}

ServidorTeselas::Almacen ServidorTeselas::DeCarpeta(const QString& carpeta)
{
    return [carpeta](const Tesela& t) -> QByteArray {
        const QString numeros = QStringLiteral("/%1/%2/%3.png").arg(t.z).arg(t.x).arg(t.y);
        for (const QString& ruta :
             {carpeta + QLatin1Char('/') + QLatin1String(t.clave) + numeros, carpeta + numeros}) {
            QFile fichero(ruta);
            if (fichero.open(QIODevice::ReadOnly))
                return fichero.readAll();
        }
        return {};
    };
}

bool ServidorTeselas::Escuchar(std::uint16_t puerto)
{
    return servidor.listen(QHostAddress::LocalHost, puerto);
}

QString ServidorTeselas::Base() const
{
    return QStringLiteral("http://127.0.0.1:%1").arg(servidor.serverPort());
}

void ServidorTeselas::Fallar(Falla nueva, int cuantosSaltos)
{
    falla = nueva;
    saltos = cuantosSaltos;
}

void ServidorTeselas::Retrasar(int milisegundos)
{
    retraso = milisegundos;
}

bool ServidorTeselas::FallaDeNombre(const QString& nombre, Falla& cual)
{
    static const QHash<QString, Falla> kNombres{
        {QStringLiteral("ninguna"), Falla::Ninguna}, {QStringLiteral("404"), Falla::NoExiste},
        {QStringLiteral("403"), Falla::Prohibido},   {QStringLiteral("corto"), Falla::Corto},
        {QStringLiteral("html"), Falla::Html},       {QStringLiteral("jpeg"), Falla::Jpeg},
        {QStringLiteral("cortado"), Falla::Cortado}, {QStringLiteral("mudo"), Falla::Mudo},
        {QStringLiteral("enorme"), Falla::Enorme},   {QStringLiteral("redirige"), Falla::Redirige},
        {QStringLiteral("gzip"), Falla::Gzip},
    };
    const auto hallada = kNombres.constFind(nombre);
    if (hallada == kNombres.constEnd())
        return false;
    cual = *hallada;
    return true;
}

void ServidorTeselas::Olvidar()
{
    vistas.clear();
    simultaneasMaximo = simultaneas;
}

void ServidorTeselas::Recibir(QTcpSocket* enchufe)
{
    QByteArray& bytes = pendiente[enchufe];
    bytes += enchufe->readAll();
    if (bytes.size() > kCabecerasMaximo) {
        enchufe->abort();
        return;
    }
    for (qsizetype fin = bytes.indexOf("\r\n\r\n"); fin >= 0; fin = bytes.indexOf("\r\n\r\n")) {
        const QList<QByteArray> lineas = bytes.left(fin).split('\n');
        bytes.remove(0, fin + 4);
        Peticion p;
        p.camino = lineas[0].split(' ').value(1);
        for (const QByteArray& linea : lineas.mid(1)) {
            const qsizetype punto = linea.indexOf(':');
            if (punto > 0)
                p.cabeceras.append({linea.left(punto).trimmed().toLower(), linea.mid(punto + 1).trimmed()});
        }
        LeerCamino(SinConsulta(p.camino), p.tesela);
        vistas.append(p);
        Q_EMIT Vista(p.camino);
        ++debidas[enchufe];
        simultaneasMaximo = std::max(simultaneasMaximo, ++simultaneas);
        const QPointer<QTcpSocket> quien(enchufe);
        QTimer::singleShot(retraso, this, [this, quien, p] {
            if (quien != nullptr && debidas.contains(quien))
                Responder(quien, p);
        });
    }
}

void ServidorTeselas::Responder(QTcpSocket* enchufe, const Peticion& peticion)
{
    static const QByteArray kPagina = "<!DOCTYPE html><html><body>" + QByteArray(400, '.') + "</body></html>";
    Tesela tesela;
    const qsizetype consulta = peticion.camino.indexOf('?');
    const QByteArray camino = SinConsulta(peticion.camino);
    const QByteArray cuerpo = LeerCamino(camino, tesela) ? almacen(tesela) : QByteArray();
    if (falla == Falla::Mudo)
        return;
    if (cuerpo.isEmpty()) {
        Enviar(enchufe, 404, "text/html", kPagina);
        return;
    }
    switch (falla) {
    case Falla::NoExiste:
        Enviar(enchufe, 404, "image/png", cuerpo);
        break;
    case Falla::Prohibido:
        Enviar(enchufe, 403, "text/html", kPagina);
        break;
    case Falla::Corto:
        Enviar(enchufe, 200, "image/png", cuerpo.left(100));
        break;
    case Falla::Html:
        Enviar(enchufe, 200, "text/html", kPagina);
        break;
    case Falla::Jpeg:
        Enviar(enchufe, 200, "image/jpeg", HacerJpeg());
        break;
    case Falla::Cortado:
        enchufe->write("HTTP/1.1 200 OK\r\nContent-Type: image/png\r\nContent-Length: " +
                       QByteArray::number(cuerpo.size()) + "\r\n\r\n" + cuerpo.left(cuerpo.size() / 2));
        enchufe->disconnectFromHost();
        break;
    case Falla::Enorme:
        Enviar(enchufe, 200, "image/png", "\x89PNG" + QByteArray(9 * 1024 * 1024, 'x'));
        break;
    case Falla::Redirige: {
        const int salto = consulta < 0 ? 0 : peticion.camino.mid(consulta + 1).toInt();
        if (salto < saltos)
            Enviar(enchufe, 302, "text/plain", {},
                   "Location: " + camino + '?' + QByteArray::number(salto + 1) + "\r\n");
        else
            Enviar(enchufe, 200, "image/png", cuerpo);
        break;
    }
    case Falla::Gzip:
        Enviar(enchufe, 200, "image/png", cuerpo, "Content-Encoding: gzip\r\n");
        break;
    case Falla::Ninguna:
    case Falla::Mudo:
        Enviar(enchufe, 200, "image/png", cuerpo);
        break;
    }
}

void ServidorTeselas::Enviar(QTcpSocket* enchufe, int estado, const QByteArray& tipo,
                             const QByteArray& cuerpo, const QByteArray& mas)
{
    --debidas[enchufe];
    --simultaneas;
    enchufe->write("HTTP/1.1 " + QByteArray::number(estado) + ' ' + Motivo(estado) +
                   "\r\nContent-Type: " + tipo + "\r\nContent-Length: " + QByteArray::number(cuerpo.size()) +
                   "\r\nSet-Cookie: galleta=1\r\nCache-Control: max-age=600\r\n" + mas + "\r\n" + cuerpo);
}

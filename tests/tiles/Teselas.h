// Teselas: small tiles for tests, a cache folder of their own and a local server to fetch them from.
#pragma once

#include "ServidorTeselas.h"
#include "modDescargas.h"
#include "modGeo.h"
#include "modHTTP.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

// Colour of a tile, different for each of a neighbourhood.
inline QRgb ColorTesela(int z, int x, int y)
{
    return qRgb(10 + (x * 37) % 200, 10 + (y * 53) % 200, 10 + z * 12);
}

// A PNG of 256 x 256 pixels of one colour. Each is encoded once.
inline const QByteArray& PngDe(QRgb color)
{
    static QHash<QRgb, QByteArray> hechas;
    QByteArray& bytes = hechas[color];
    if (bytes.isEmpty()) {
        QImage imagen(256, 256, QImage::Format_RGB32);
        imagen.fill(color);
        QBuffer destino(&bytes);
        destino.open(QIODevice::WriteOnly);
        imagen.save(&destino, "PNG");
    }
    return bytes;
}

inline QByteArray LeerFichero(const QString& ruta)
{
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline void EscribirFichero(const QString& ruta, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(ruta).path());
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    ASSERT_EQ(f.write(bytes), bytes.size());
}

// A cache of its own, and every source sent to a server of this process.
class ConServidor
{
public:
    ConServidor()
        : servidor([](const ServidorTeselas::Tesela& t) { return PngDe(ColorTesela(t.z, t.x, t.y)); })
    {
        EXPECT_TRUE(servidor.Escuchar());
        qputenv("QUINTALUZ_TESELAS", servidor.Base().toLatin1());
        modHTTP::IniciarHTTP(raiz.path());
        modGeo::EstablecerProveedorMapa(0);
        modDescargas::IniciarColaDescargas();
    }

    ~ConServidor()
    {
        modDescargas::CerrarColaDescargas();
        modHTTP::CerrarHTTP();
        modGeo::EstablecerProveedorMapa(0);
        qunsetenv("QUINTALUZ_TESELAS");
    }

    ConServidor(const ConServidor&) = delete;
    ConServidor& operator=(const ConServidor&) = delete;

    // Polls until nothing is pending; how many tiles were saved.
    static int Agotar()
    {
        int guardadas = 0;
        const bool acabado = QTest::qWaitFor(
            [&guardadas] {
                guardadas += modDescargas::SondearDescargas();
                return !modDescargas::HayDescargasPendientes();
            },
            20000);
        EXPECT_TRUE(acabado);
        return guardadas;
    }

    QTemporaryDir raiz;
    ServidorTeselas servidor;
};

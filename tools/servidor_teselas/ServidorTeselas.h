// ServidorTeselas: a small tile server on 127.0.0.1, for the tests and for trying the map by hand.
//
// It speaks HTTP/1.1 and answers the five layouts of modHTTP under the source's key, as QUINTALUZ_TESELAS
// expects: /osm/6/31/24.png, /esri/ArcGIS/rest/services/World_Imagery/MapServer/tile/6/24/31 and so on. It
// answers well or badly on demand and remembers what it saw. It lives in the thread that made it, which must
// run an event loop, and never blocks it.
#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QObject>
#include <QString>
#include <QTcpServer>

#include <cstdint>
#include <functional>

class QTcpSocket;

class ServidorTeselas : public QObject
{
    Q_OBJECT

public:
    enum class Falla
    {
        Ninguna,
        NoExiste,  // 404, with the tile as its body all the same
        Prohibido, // 403
        Corto,     // the first 100 bytes of the tile
        Html,      // 200 with a page of text
        Jpeg,      // 200 with a JPEG of the tile's size
        Cortado,   // announces the whole tile, sends half, closes
        Mudo,      // takes the request and never answers
        Enorme,    // 200 with a PNG signature and 9 MiB after it
        Redirige,  // redirects `saltos` times, then answers
        Gzip,      // says that the body is compressed, though nobody asked
    };

    struct Tesela
    {
        QByteArray clave; // key of the source
        std::int32_t z = 0, x = 0, y = 0;
    };

    struct Peticion
    {
        Tesela tesela;
        QByteArray camino;
        QList<QPair<QByteArray, QByteArray>> cabeceras;      // names in lower case
        QByteArray Cabecera(const QByteArray& nombre) const; // empty if absent
        bool Tiene(const QByteArray& nombre) const;
    };

    // Bytes of a tile; an empty answer is a 404.
    using Almacen = std::function<QByteArray(const Tesela&)>;

    explicit ServidorTeselas(Almacen almacen, QObject* padre = nullptr);
    ~ServidorTeselas() override; // open connections end without a word

    // Tiles of <carpeta>/<key>/z/x/y.png, or <carpeta>/z/x/y.png where that is missing.
    static Almacen DeCarpeta(const QString& carpeta);

    // Port 0 takes a free one. False if it cannot listen.
    bool Escuchar(std::uint16_t puerto = 0);

    // Address for QUINTALUZ_TESELAS.
    QString Base() const;

    // How the answers to come are given.
    void Fallar(Falla falla, int saltos = 1);
    void Retrasar(int milisegundos);
    // Name of a fault as the command line takes it ("404", "cortado"); false if unknown.
    static bool FallaDeNombre(const QString& nombre, Falla& falla);

    const QList<Peticion>& Vistas() const { return vistas; }
    int SimultaneasMaximo() const { return simultaneasMaximo; }
    int SinResponder() const { return simultaneas; }
    void Olvidar(); // what was seen

Q_SIGNALS:
    void Vista(const QByteArray& camino); // a request has come

private:
    void Recibir(QTcpSocket* enchufe);
    void Responder(QTcpSocket* enchufe, const Peticion& peticion);
    void Enviar(QTcpSocket* enchufe, int estado, const QByteArray& tipo, const QByteArray& cuerpo,
                const QByteArray& mas = {});

    Almacen almacen;
    QTcpServer servidor;
    QHash<QTcpSocket*, QByteArray> pendiente; // bytes not yet understood
    QHash<QTcpSocket*, int> debidas;          // requests not yet answered
    QList<Peticion> vistas;
    Falla falla = Falla::Ninguna;
    int saltos = 1;
    int retraso = 0;
    int simultaneas = 0;
    int simultaneasMaximo = 0;
};

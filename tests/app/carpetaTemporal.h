// A data directory of its own for one test: QUINTALUZ_APPPATH points there until the object dies.
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QString>
#include <QTemporaryDir>

class CarpetaTemporal
{
public:
    CarpetaTemporal() : antes(qgetenv("QUINTALUZ_APPPATH"))
    {
        qputenv("QUINTALUZ_APPPATH", carpeta.path().toUtf8());
    }
    ~CarpetaTemporal() { qputenv("QUINTALUZ_APPPATH", antes); }
    CarpetaTemporal(const CarpetaTemporal&) = delete;
    CarpetaTemporal& operator=(const CarpetaTemporal&) = delete;

    QString Ruta(const QString& relativa) const { return carpeta.filePath(relativa); }

    void Escribir(const QString& relativa, const QByteArray& bytes) const
    {
        QDir().mkpath(QFileInfo(Ruta(relativa)).path());
        QFile f(Ruta(relativa));
        if (!f.open(QIODevice::WriteOnly) || f.write(bytes) != bytes.size()) {
            qFatal("cannot write the test's file");
        }
    }

    QByteArray Leer(const QString& relativa) const
    {
        QFile f(Ruta(relativa));
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }

private:
    QTemporaryDir carpeta;
    QByteArray antes;
};

// servidor_teselas: serves a folder of tiles on 127.0.0.1 until it is ended.
//
//   servidor_teselas [--puerto N] [--retraso MS] [--falla NOMBRE] CARPETA
//   QUINTALUZ_TESELAS=http://127.0.0.1:8000 ./run
#include "ServidorTeselas.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication aplicacion(argc, argv);
    QCommandLineParser orden;
    orden.setApplicationDescription(
        QStringLiteral("Serves z/x/y.png tiles in the five layouts of the planner."));
    orden.addHelpOption();
    const QCommandLineOption puerto(QStringLiteral("puerto"), QStringLiteral("Port; 0 takes a free one."),
                                    QStringLiteral("N"), QStringLiteral("8000"));
    const QCommandLineOption retraso(QStringLiteral("retraso"),
                                     QStringLiteral("Milliseconds before each answer."), QStringLiteral("MS"),
                                     QStringLiteral("0"));
    const QCommandLineOption falla(
        QStringLiteral("falla"),
        QStringLiteral(
            "How to answer badly: 404, 403, corto, html, jpeg, cortado, mudo, enorme, redirige, gzip."),
        QStringLiteral("NOMBRE"), QStringLiteral("ninguna"));
    orden.addOptions({puerto, retraso, falla});
    orden.addPositionalArgument(QStringLiteral("CARPETA"),
                                QStringLiteral("Folder with z/x/y.png, or key/z/x/y.png."));
    orden.process(aplicacion);

    ServidorTeselas::Falla como = ServidorTeselas::Falla::Ninguna;
    bool hayPuerto = false;
    bool hayRetraso = false;
    const std::uint16_t numero = orden.value(puerto).toUShort(&hayPuerto);
    const int espera = orden.value(retraso).toInt(&hayRetraso);
    if (orden.positionalArguments().size() != 1 || !hayPuerto || !hayRetraso || espera < 0 ||
        !ServidorTeselas::FallaDeNombre(orden.value(falla), como))
        orden.showHelp(2);

    ServidorTeselas servidor(ServidorTeselas::DeCarpeta(orden.positionalArguments().constFirst()));
    servidor.Fallar(como);
    servidor.Retrasar(espera);
    QObject::connect(&servidor, &ServidorTeselas::Vista, &servidor, [](const QByteArray& camino) {
        std::printf("%s\n", camino.constData());
        std::fflush(stdout);
    });
    if (!servidor.Escuchar(numero)) {
        std::fprintf(stderr, "Port %d cannot be had.\n", numero);
        return 1;
    }
    std::printf("QUINTALUZ_TESELAS=%s\n", qPrintable(servidor.Base()));
    std::fflush(stdout);
    return QCoreApplication::exec();
}

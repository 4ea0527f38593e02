// The program: one application object, one window. The command line stays unread.
#include "frmMain.h"

#include "modGrafico.h"

#include <QApplication>
#include <QSurfaceFormat>

int main(int argc, char** argv)
{
    QSurfaceFormat formato;
    formato.setVersion(3, 3);
    formato.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(formato);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);

    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quintaluz"));
    QApplication::setApplicationVersion(QStringLiteral("1.05"));
    modGrafico::AplicarTema(aplicacion);

    frmMain ventana;
    ventana.Cargar();
    return QApplication::exec();
}

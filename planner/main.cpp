// The program: one application object, one window. The command line stays unread.
#include "frmMain.h"
#include "iconoPrograma.h"

#include "modGrafico.h"

#include <QApplication>
#include <QSurfaceFormat>

#include <exception>

namespace {

// No exception leaves an event handler: what goes wrong in one costs that one event.
class Aplicacion : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject* receptor, QEvent* evento) override
    {
        try {
            return QApplication::notify(receptor, evento);
        } catch (const std::exception& e) {
            qWarning("quintaluz: %s", e.what());
        } catch (...) {
            qWarning("quintaluz: unknown exception");
        }
        return false;
    }
};

} // namespace

int main(int argc, char** argv)
{
    QSurfaceFormat formato;
    formato.setVersion(3, 3);
    formato.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(formato);
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);

    Aplicacion aplicacion(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Quintaluz"));
    QApplication::setApplicationVersion(QStringLiteral("1.05"));
    QApplication::setWindowIcon(IconoPrograma());
    modGrafico::AplicarTema(aplicacion);

    frmMain ventana;
    ventana.Cargar();
    return ventana.Estado().Cerrando ? 0 : QApplication::exec(); // closed while it opened
}

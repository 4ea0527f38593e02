#include "modRueda.h"

#include <QPointer>
#include <QWheelEvent>
#include <QWidget>

#include <exception>
#include <utility>

namespace modRueda {

namespace {

class Filtro : public QObject
{
public:
    Filtro(QWidget* ventana, Manejador nuevo) : QObject(ventana), manejador(std::move(nuevo)) {}

    bool eventFilter(QObject* quien, QEvent* evento) override
    {
        if (evento->type() == QEvent::Wheel) {
            const auto* rueda = static_cast<QWheelEvent*>(evento);
            const int delta = rueda->angleDelta().y();
            // Called through a copy: the handler may remove or replace itself.
            const Manejador copia = manejador;
            if (delta != 0 && copia) {
                Avisar(copia, delta, rueda->globalPosition());
            }
        }
        return QObject::eventFilter(quien, evento);
    }

private:
    static void Avisar(const Manejador& manejador, int delta, const QPointF& donde)
    {
        try {
            manejador(delta, donde);
        } catch (const std::exception& e) {
            qWarning("modRueda: %s", e.what());
        } catch (...) {
            qWarning("modRueda: unknown exception");
        }
    }

    Manejador manejador;
};

QPointer<Filtro>& instalado()
{
    static QPointer<Filtro> f;
    return f;
}

} // namespace

void InstalarRueda(QWidget* ventana, Manejador manejador)
{
    QuitarRueda();
    if (ventana == nullptr) {
        return;
    }
    instalado() = new Filtro(ventana, std::move(manejador));
    ventana->installEventFilter(instalado());
}

void QuitarRueda()
{
    Filtro* filtro = instalado();
    instalado().clear();
    if (filtro == nullptr) {
        return;
    }
    if (filtro->parent() != nullptr) {
        filtro->parent()->removeEventFilter(filtro);
    }
    filtro->deleteLater(); // it may be the one that is being called
}

} // namespace modRueda

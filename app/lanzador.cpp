#include "lanzador.h"

#include "Retraducible.h"

#include <QApplication>
#include <QWidget>

namespace lanzador {

void TraerAlFrente(QWidget& ventana)
{
    if (ventana.isMinimized()) {
        ventana.showNormal();
    } else {
        ventana.show();
    }
    ventana.raise();
    ventana.activateWindow();
}

void RetraducirVentanas(const QWidget* menos)
{
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    for (QWidget* v : ventanas) {
        auto* r = v == menos ? nullptr : dynamic_cast<Retraducible*>(v);
        if (r != nullptr) {
            r->Retraducir();
        }
    }
}

} // namespace lanzador

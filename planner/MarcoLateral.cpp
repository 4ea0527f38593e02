#include "MarcoLateral.h"

#include <QScrollBar>

namespace {

constexpr int kEntreSecciones = 14; // logical pixels

} // namespace

MarcoLateral::MarcoLateral(const char* nombre, QWidget* padre) : QScrollArea(padre)
{
    setObjectName(QLatin1String(nombre));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    contenido = new QWidget(this);
    contenido->setObjectName(QStringLiteral("marcoContenido"));
    columna = new QVBoxLayout(contenido);
    columna->setContentsMargins(kMargen, kMargen, kMargen, kMargen);
    columna->setSpacing(kEntreSecciones);
}

Seccion* MarcoLateral::NuevaSeccion(const char* nombre)
{
    auto* seccion = new Seccion(nombre, contenido);
    columna->addWidget(seccion);
    return seccion;
}

void MarcoLateral::Cerrar()
{
    columna->addStretch(1);
    setWidget(contenido);
}

int MarcoLateral::AnchoNecesario() const
{
    for (const Seccion* seccion : contenido->findChildren<Seccion*>(Qt::FindDirectChildrenOnly))
        seccion->layout()->activate();
    columna->activate();
    return columna->totalMinimumSize().width() + verticalScrollBar()->sizeHint().width();
}

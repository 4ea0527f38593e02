#include "Lienzo.h"

#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>

#include <exception>
#include <utility>

Lienzo::Lienzo(QWidget* padre) : QWidget(padre)
{
    setMouseTracking(true);
}

void Lienzo::AlPintar(Pintor nuevo)
{
    pintor = std::move(nuevo);
    update();
}

void Lienzo::paintEvent(QPaintEvent*)
{
    if (!pintor) {
        return;
    }
    QPainter p(this);
    try {
        pintor(p, QRectF(rect()));
    } catch (const std::exception& e) {
        qWarning("%s: %s", qPrintable(objectName()), e.what());
    }
}

void Lienzo::mousePressEvent(QMouseEvent* evento)
{
    Q_EMIT Pulsado(evento->button(), evento->position(), evento->modifiers());
}

void Lienzo::mouseMoveEvent(QMouseEvent* evento)
{
    Q_EMIT Movido(evento->buttons(), evento->position());
}

void Lienzo::mouseReleaseEvent(QMouseEvent* evento)
{
    Q_EMIT Soltado(evento->button(), evento->position(), evento->modifiers());
}

void Lienzo::mouseDoubleClickEvent(QMouseEvent* evento)
{
    Q_EMIT DobleClic(evento->button(), evento->position());
}

void Lienzo::leaveEvent(QEvent*)
{
    Q_EMIT RatonFuera();
}

void Lienzo::resizeEvent(QResizeEvent* evento)
{
    Q_EMIT CambioTamano(evento->size());
}

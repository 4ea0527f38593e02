// Lienzo: a widget that paints what it is told and tells what the mouse does over it.
//
// Positions are logical pixels from the upper left corner, with fraction; they lie outside the widget while a
// pressed button drags beyond it. The mouse is followed without a pressed button too.
#pragma once

#include <QWidget>

#include <functional>

class Lienzo : public QWidget
{
    Q_OBJECT

public:
    using Pintor = std::function<void(QPainter&, const QRectF&)>;

    explicit Lienzo(QWidget* padre = nullptr);

    // Sets what paints and asks for a repaint. The rectangle is the whole widget in logical pixels. The
    // painter starts with antialiasing off. A painter that throws leaves the surface unfinished and harms
    // nothing else.
    void AlPintar(Pintor pintor);

Q_SIGNALS:
    void Pulsado(Qt::MouseButton boton, const QPointF& donde, Qt::KeyboardModifiers teclas);
    void Movido(Qt::MouseButtons botones, const QPointF& donde);
    void Soltado(Qt::MouseButton boton, const QPointF& donde, Qt::KeyboardModifiers teclas);
    // The second press of a double click; its release comes as Soltado.
    void DobleClic(Qt::MouseButton boton, const QPointF& donde);
    void RatonFuera();                     // the pointer left the widget
    void CambioTamano(const QSize& nuevo); // logical pixels

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mousePressEvent(QMouseEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;
    void mouseReleaseEvent(QMouseEvent* evento) override;
    void mouseDoubleClickEvent(QMouseEvent* evento) override;
    void leaveEvent(QEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    Pintor pintor;
};

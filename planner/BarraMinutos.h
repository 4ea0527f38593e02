// BarraMinutos: a horizontal bar that tells dragging from a finished change.
//
// While its thumb is held, each new value is a Scroll; every other new value, and the release of the
// thumb, is a Change. A planner can so answer a drag with the cheap half of its work.
#pragma once

#include <QSlider>

class BarraMinutos : public QSlider
{
    Q_OBJECT

public:
    // Whole values from minimo to maximo; `salto` is the large change.
    BarraMinutos(const char* nombre, int minimo, int maximo, int salto, QWidget* padre = nullptr);

Q_SIGNALS:
    void Scroll(int valor);
    void Change(int valor);
};

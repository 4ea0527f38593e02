#include "BarraMinutos.h"

BarraMinutos::BarraMinutos(const char* nombre, int minimo, int maximo, int salto, QWidget* padre)
    : QSlider(Qt::Horizontal, padre)
{
    setObjectName(QLatin1String(nombre));
    setRange(minimo, maximo);
    setPageStep(salto);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSlider::valueChanged, this, [this](int valor) {
        if (isSliderDown())
            Q_EMIT Scroll(valor);
        else
            Q_EMIT Change(valor);
    });
    connect(this, &QSlider::sliderReleased, this, [this] { Q_EMIT Change(value()); });
}

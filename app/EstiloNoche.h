// EstiloNoche: the drawn signs that a style sheet has no words for.
//
// Check boxes, radio buttons, combo boxes, sliders and the signs of message boxes are painted as vectors in
// the colours of paleta, so they are as sharp at scale 1.5 as at 1. All else is Fusion under the
// application's style sheet.
#pragma once

#include <QProxyStyle>

class EstiloNoche : public QProxyStyle
{
    Q_OBJECT

public:
    EstiloNoche();

    void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* p,
                       const QWidget* w = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* opcion, QPainter* p,
                            const QWidget* w = nullptr) const override;
    int pixelMetric(PixelMetric medida, const QStyleOption* opcion = nullptr,
                    const QWidget* w = nullptr) const override;
    QIcon standardIcon(StandardPixmap cual, const QStyleOption* opcion = nullptr,
                       const QWidget* w = nullptr) const override;
    int styleHint(StyleHint pista, const QStyleOption* opcion = nullptr, const QWidget* w = nullptr,
                  QStyleHintReturn* retorno = nullptr) const override;
};

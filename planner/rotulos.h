// rotulos: small texts on coloured ground, as timeline and scrub strip write them.
#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>

class QPainter;

namespace rotulos {

// The family of `base` at a size in points of 96 to the inch, whole pixels, so that texts look alike on
// every screen: 7 is 9 pixels, 9 is 12.
QFont Fuente(const QFont& base, int puntos);

// Text inside r by Qt alignment flags, on one line.
void Escribir(QPainter& p, const QRectF& r, int alineacion, const QString& texto, const QColor& color);

// The same over a dark halo of one pixel, for ground that may be as light as the text.
void EscribirConHalo(QPainter& p, const QRectF& r, int alineacion, const QString& texto, const QColor& color);

} // namespace rotulos

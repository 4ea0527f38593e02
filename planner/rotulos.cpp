#include "rotulos.h"

#include <QPainter>

namespace rotulos {

QFont Fuente(const QFont& base, int puntos)
{
    QFont fuente(base);
    fuente.setPixelSize(puntos * 4 / 3);
    return fuente;
}

void Escribir(QPainter& p, const QRectF& r, int alineacion, const QString& texto, const QColor& color)
{
    p.setPen(color);
    p.drawText(r, alineacion | Qt::TextSingleLine | Qt::TextDontClip, texto);
}

void EscribirConHalo(QPainter& p, const QRectF& r, int alineacion, const QString& texto, const QColor& color)
{
    constexpr QColor kHalo{12, 16, 28, 165};
    constexpr QPointF kLados[] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};
    for (const QPointF& d : kLados)
        Escribir(p, r.translated(d), alineacion, texto, kHalo);
    Escribir(p, r, alineacion, texto, color);
}

} // namespace rotulos

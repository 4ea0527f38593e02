#include "iconoPrograma.h"

#include "lunaPintor.h"
#include "paleta.h"

#include <QPainter>
#include <QPixmap>

namespace {

constexpr int kLados[] = {16, 24, 32, 48, 64, 128, 256};
constexpr double kFase = 0.16; // a young Moon, three days old

} // namespace

QIcon IconoPrograma()
{
    QIcon icono;
    for (const int lado : kLados) {
        QPixmap cuadro(lado, lado);
        cuadro.fill(Qt::transparent);
        QPainter p(&cuadro);
        p.setRenderHint(QPainter::Antialiasing);
        p.setPen(Qt::NoPen);
        p.setBrush(paleta::kVentana);
        p.drawRoundedRect(QRectF(0, 0, lado, lado), lado / 6.0, lado / 6.0);
        const double centro = lado / 2.0 - 0.5;
        lunaPintor::DibujarLunaEn(p, centro, centro, lado * 0.36, kFase);
        p.setBrush(paleta::kAcento);
        p.drawEllipse(QPointF(lado * 0.32, lado * 0.40), lado / 14.0, lado / 14.0);
        p.end();
        icono.addPixmap(cuadro);
    }
    return icono;
}

#include "brujula.h"

#include "modAstro.h"
#include "paleta.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace brujula {

namespace {

constexpr QColor kBorde{120, 125, 140};
constexpr QColor kAnillo{72, 76, 90};
constexpr QColor kSol{255, 200, 60};
constexpr QColor kLuna{215, 215, 230};
constexpr QColor kBuscado{90, 200, 255};

constexpr double kMargen = 22; // around the rim, for the letters
constexpr double kSeparacionLetras = 9;

QPointF Punto(const QPointF& centro, double azimut, double distancia)
{
    const double a = azimut * modAstro::kGradosARad;
    return {centro.x() + std::sin(a) * distancia, centro.y() - std::cos(a) * distancia};
}

void PintarMarco(QPainter& p, const QPointF& c, double radio)
{
    p.setPen(QPen(kAnillo, 1));
    p.drawEllipse(c, radio * 2 / 3, radio * 2 / 3);
    p.drawEllipse(c, radio / 3, radio / 3);
    p.setPen(QPen(kBorde, 1));
    p.drawEllipse(c, radio, radio);
    for (int az = 0; az < 360; az += 30) {
        p.drawLine(Punto(c, az, radio - 6), Punto(c, az, radio));
    }
    p.setPen(paleta::kTexto);
    const char16_t letras[] = {u'N', u'E', u'S', u'O'};
    for (int i = 0; i < 4; ++i) {
        const QPointF q = Punto(c, i * 90.0, radio + kSeparacionLetras);
        p.drawText(QRectF(q.x() - 12, q.y() - 12, 24, 24), Qt::AlignCenter, QString(QChar(letras[i])));
    }
}

void PintarRuta(QPainter& p, const QPointF& c, double radio, const DatosBrujula& d)
{
    p.setPen(QPen(d.luna ? kLuna : kSol, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    QPolygonF tramo;
    const auto cortar = [&] {
        p.drawPolyline(tramo);
        tramo.clear();
    };
    for (const Direccion& m : d.ruta) {
        if (m.altitud >= 0) {
            tramo << Punto(c, m.azimut, radio * (90 - m.altitud) / 90);
        } else {
            cortar();
        }
    }
    cortar();
}

} // namespace

double RadioBrujula(const QRectF& r)
{
    return std::min(r.width(), r.height()) / 2 - kMargen;
}

void PintarBrujula(QPainter& p, const QRectF& r, const DatosBrujula& datos)
{
    const double radio = RadioBrujula(r);
    p.fillRect(r, paleta::kCampo);
    if (radio <= 0) {
        return;
    }
    const QPointF c = r.center();
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(Qt::NoBrush);
    PintarMarco(p, c, radio);
    PintarRuta(p, c, radio, datos);
    p.setPen(QPen(kBuscado, 2));
    p.drawLine(c, Punto(c, datos.azimut, radio));
    p.restore();
}

} // namespace brujula

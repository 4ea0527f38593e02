#include "lunaPintor.h"

#include "paleta.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lunaPintor {

namespace {

constexpr QColor kOscura{45, 45, 60};      // night side
constexpr QColor kContorno{120, 120, 130}; // outline of the disc
constexpr QColor kIluminada{245, 240, 215};
constexpr QColor kMarco{64, 64, 64};

constexpr double kAnchoMinimo = 0.6;  // pixels; a narrower lit row is not drawn
constexpr double kLunaNueva = 0.0001; // how near to -1 the terminator counts as new Moon

} // namespace

void DibujarLunaEn(QPainter& p, double cx, double cy, double R, double fase)
{
    if (!(R > 0.0) || !std::isfinite(fase))
        return;

    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(kContorno, 1.0));
    p.setBrush(kOscura);
    p.drawEllipse(QPointF(cx + 0.5, cy + 0.5), R, R);

    const double f = fase - std::trunc(fase);
    double a = (1.0 - 2.0 * f) * std::numbers::pi;
    if (a > std::numbers::pi)
        a -= 2.0 * std::numbers::pi;
    else if (a < -std::numbers::pi)
        a += 2.0 * std::numbers::pi;
    const double k = std::cos(a); // place of the terminator: 1 full, 0 quarter, -1 new
    if (std::abs(k + 1.0) < kLunaNueva) {
        p.restore();
        return;
    }

    // One run per device row. At scale 1 row y is logical pixel y, whose middle is at y + 0.5 for the
    // painter and at y in the pixel numbers of cx and cy.
    const QTransform aDispositivo = p.deviceTransform();
    const double escala = std::max(aDispositivo.m22(), 1.0);
    const double origen = aDispositivo.dy();
    const double fila0 = std::trunc((cy + 0.5 - R) * escala + origen - 0.5);
    const double fila1 = std::trunc((cy + 0.5 + R) * escala + origen + 0.5);
    p.setPen(Qt::NoPen);
    p.setBrush(kIluminada);
    for (double fila = fila0; fila <= fila1; fila += 1.0) {
        const double arriba = (fila - origen) / escala;
        const double dy = arriba + 0.5 / escala - (cy + 0.5);
        if (std::abs(dy) > R)
            continue;
        const double s = std::sqrt(R * R - dy * dy);
        const double izquierda = a >= 0.0 ? -s * k : -s;
        const double derecha = a >= 0.0 ? s : s * k;
        if ((derecha - izquierda) * escala > kAnchoMinimo)
            p.drawRect(QRectF(cx + 0.5 + izquierda, arriba, derecha - izquierda, 1.0 / escala));
    }
    p.restore();
}

void PintarLunaPanel(QPainter& p, int w, int h, double fase)
{
    if (w <= 4 || h <= 4)
        return;
    p.save();
    p.fillRect(0, 0, w, h, paleta::kCampo);
    p.setRenderHint(QPainter::Antialiasing, false);
    p.setPen(Qt::NoPen);
    p.setBrush(kMarco);
    p.drawRect(0, 0, w, 1);
    p.drawRect(0, h - 1, w, 1);
    p.drawRect(0, 0, 1, h);
    p.drawRect(w - 1, 0, 1, h);
    p.restore();
    DibujarLunaEn(p, w / 2.0 - 0.5, h / 2.0 - 0.5, (std::min(w, h) - 4) / 2.0, fase);
}

} // namespace lunaPintor

#include "franjaVL.h"

#include "fechaSerie.h"
#include "modViaLactea.h"
#include "paleta.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace franjaVL {

namespace {

constexpr QColor kLineaMes{150, 150, 150};
constexpr double kAltoMeses = 14; // below the band, for the initials
constexpr char16_t kIniciales[] = u"EFMAMJJASOND";

} // namespace

QColor ColorNivel(std::int16_t nivel)
{
    constexpr QColor kColores[modViaLactea::kNiveles] = {
        {58, 60, 72}, {205, 115, 50}, {230, 200, 60}, {165, 205, 70}, {60, 200, 90}};
    return kColores[std::clamp<int>(nivel, 0, modViaLactea::kNiveles - 1)];
}

int NocheEn(double x, double ancho, int noches)
{
    const double noche = ancho > 0 ? std::floor(x / ancho * noches) : 0;
    return static_cast<int>(std::clamp(noche, 0.0, std::max(0.0, noches - 1.0)));
}

void PintarFranja(QPainter& p, const QRectF& r, const FranjaAnual& f)
{
    p.fillRect(r, paleta::kCampo);
    const int noches = static_cast<int>(f.calidad.size());
    if (f.anio == 0 || noches == 0) {
        p.setPen(paleta::kTextoTenue);
        p.drawText(r, Qt::AlignCenter | Qt::TextWordWrap, f.aviso);
        return;
    }
    p.save();
    const double alto = r.height() - kAltoMeses;
    const auto x = [&](int noche) { return r.left() + r.width() * noche / noches; };
    for (int i = 0; i < noches; ++i) {
        p.fillRect(QRectF(QPointF(x(i), r.top()), QPointF(x(i + 1), r.top() + alto)),
                   ColorNivel(f.calidad[i]));
    }
    QFont letra = p.font();
    letra.setPixelSize(11);
    p.setFont(letra);
    int primero = 0;
    for (std::int16_t mes = 1; mes <= 12; ++mes) {
        const int siguiente = primero + fechaSerie::DiasMes(f.anio, mes);
        // Whole pixels keep the hairline one pixel wide.
        p.fillRect(QRectF(std::floor(x(primero)), r.top() + 1, 1, alto - 1), kLineaMes);
        p.setPen(paleta::kTexto);
        p.drawText(QRectF(x(primero), r.top() + alto + 1, x(siguiente) - x(primero), kAltoMeses - 1),
                   Qt::AlignHCenter | Qt::AlignTop, QString(QChar(kIniciales[mes - 1])));
        primero = siguiente;
    }
    if (f.senalada >= 0) {
        const QRectF columna(QPointF(x(f.senalada) - 2, r.top()),
                             QPointF(x(f.senalada + 1) + 2, r.top() + alto));
        p.setPen(paleta::kTexto);
        p.setBrush(Qt::NoBrush);
        p.drawRect(columna.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    p.restore();
}

} // namespace franjaVL

#include "ruedaFases.h"

#include "fechaSerie.h"
#include "lunaPintor.h"
#include "modAstro.h"
#include "paleta.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ruedaFases {

namespace {

constexpr double kVuelta = 6.28318530717959;
constexpr double kMargen = 36;  // from the ring to the edge of the picture
constexpr double kLleno = 0.84; // part of the ring covered by discs; the rest is gap
constexpr double kDiscoMaximo = 17;
constexpr double kAlcance = 30; // a click this far from every centre, or farther, hits none
constexpr QColor kTitulo{224, 224, 224};

} // namespace

QPointF Anillo::Dia(int dia) const
{
    const double angulo = kVuelta * (dia - 1) / dias - kVuelta / 4;
    return {std::cos(angulo) * radio + centro.x(), std::sin(angulo) * radio + centro.y()};
}

Anillo MedirAnillo(const QRectF& r, int dias)
{
    Anillo a;
    a.centro = r.center();
    a.radio = std::min(r.width(), r.height()) / 2 - kMargen;
    a.dias = dias;
    a.disco = dias > 0 ? std::min(kDiscoMaximo, a.radio * kVuelta / dias / 2 * kLleno) : 0;
    return a;
}

int DiaEnPunto(const Anillo& anillo, const QPointF& punto)
{
    int mejor = 0;
    double minima = 1000000;
    for (int dia = 1; dia <= anillo.dias; ++dia) {
        const QPointF v = punto - anillo.Dia(dia);
        const double d2 = QPointF::dotProduct(v, v);
        if (d2 < minima) {
            minima = d2;
            mejor = dia;
        }
    }
    return minima < kAlcance * kAlcance ? mejor : 0;
}

QString NombreMes(std::int16_t mes)
{
    static constexpr const char* kMeses[] = {"Enero",      "Febrero", "Marzo",     "Abril",
                                             "Mayo",       "Junio",   "Julio",     "Agosto",
                                             "Septiembre", "Octubre", "Noviembre", "Diciembre"};
    return QLatin1String(kMeses[std::clamp<int>(mes, 1, 12) - 1]);
}

RuedaFases HacerRueda(std::int16_t anio, std::int16_t mes, double zona, const QString& avisoAnio)
{
    RuedaFases rueda;
    rueda.anio = anio;
    rueda.mes = mes;
    if (anio < modAstro::kAnioMinimo || anio > modAstro::kAnioMaximo) {
        rueda.aviso = avisoAnio;
        return rueda;
    }
    rueda.titulo = NombreMes(mes) + QLatin1Char(' ') + QString::number(anio);
    for (std::int16_t dia = 1; dia <= fechaSerie::DiasMes(anio, mes); ++dia) {
        double fase = 0, iluminada = 0, distancia = 0;
        modAstro::FaseLunar(modAstro::DiaJuliano(anio, mes, dia, 0.5) - zona / 24, fase, iluminada,
                            distancia);
        rueda.fases.push_back(fase);
    }
    return rueda;
}

void PintarRueda(QPainter& p, const QRectF& r, const RuedaFases& rueda)
{
    p.fillRect(r, paleta::kCampo);
    p.save();
    p.setPen(kTitulo);
    if (rueda.fases.empty()) {
        p.drawText(r.adjusted(8, 8, -8, -8), Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, rueda.aviso);
        p.restore();
        return;
    }
    const Anillo anillo = MedirAnillo(r, static_cast<int>(rueda.fases.size()));
    QFont letra = p.font();
    QFont grande = letra;
    grande.setPixelSize(20);
    p.setFont(grande);
    p.drawText(r, Qt::AlignCenter, rueda.titulo);
    letra.setPixelSize(11);
    p.setFont(letra);
    for (int dia = 1; dia <= anillo.dias; ++dia) {
        const QPointF c = anillo.Dia(dia);
        // The Moon's painter counts pixel centres, this ring their edges.
        lunaPintor::DibujarLunaEn(p, c.x() - 0.5, c.y() - 0.5, anillo.disco, rueda.fases[dia - 1]);
        const QRectF caja(c.x() - 20, c.y() - 20, 40, 40);
        const QString numero = QString::number(dia);
        p.setPen(Qt::black);
        p.drawText(caja.translated(1, 1), Qt::AlignCenter, numero);
        p.setPen(Qt::white);
        p.drawText(caja, Qt::AlignCenter, numero);
        if (dia == rueda.senalado) {
            p.setPen(QPen(paleta::kAcento, 2));
            p.setBrush(Qt::NoBrush);
            p.setRenderHint(QPainter::Antialiasing);
            p.drawEllipse(c, anillo.disco + 2, anillo.disco + 2);
            p.setRenderHint(QPainter::Antialiasing, false);
        }
    }
    p.restore();
}

} // namespace ruedaFases

#include "calendario.h"

#include "fechaSerie.h"
#include "lunaPintor.h"
#include "modAstro.h"
#include "palabras.h"
#include "paleta.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace calendario {

namespace {

constexpr QColor kLetra{224, 224, 224};
constexpr QLatin1String kMeses("EneFebMarAbrMayJunJulAgoSepOctNovDic");

QString NombreMes(int mes)
{
    return kMeses.mid((mes - 1) * 3, 3);
}

void PintarRotulos(QPainter& p, const Rejilla& g, const QRectF& r)
{
    p.setPen(kLetra);
    for (int dia = 1; dia <= 31; dia += 5) {
        p.drawText(QRectF(g.x0 + (dia - 1.5) * g.ancho, r.top(), g.ancho * 2, g.y0 - r.top()),
                   Qt::AlignHCenter | Qt::AlignTop, QString::number(dia));
    }
    for (std::int16_t mes = 1; mes <= 12; ++mes) {
        p.drawText(QRectF(r.left(), g.Celda({mes, 1}).top(), g.x0 - 4 - r.left(), g.alto),
                   Qt::AlignRight | Qt::AlignVCenter, NombreMes(mes));
    }
}

void PintarLunas(QPainter& p, const Rejilla& g, const CalendarioAnual& c)
{
    const double radio = std::max(1.0, std::min(g.ancho, g.alto) / 2 - 1.5);
    std::size_t i = 0;
    for (std::int16_t mes = 1; mes <= 12; ++mes) {
        for (std::int16_t dia = 1; dia <= fechaSerie::DiasMes(c.anio, mes) && i < c.fases.size(); ++dia) {
            const QPointF centro = g.Celda({mes, dia}).center();
            lunaPintor::DibujarLunaEn(p, centro.x() - 0.5, centro.y() - 0.5, radio, c.fases[i++]);
        }
    }
}

void PintarMarcas(QPainter& p, const Rejilla& g, const CalendarioAnual& c)
{
    for (const Marca& m : c.marcas) {
        const QRectF celda = g.Celda(m.dia);
        p.fillRect(QRectF(std::round(celda.right() - 4), std::round(celda.top() + 1), 3, 3), m.color);
    }
}

} // namespace

QRectF Rejilla::Celda(const Dia& d) const
{
    return {x0 + (d.dia - 1) * ancho, y0 + (d.mes - 1) * alto, ancho, alto};
}

std::optional<QColor> ColorDeLinea(QStringView linea)
{
    struct Regla
    {
        QLatin1String palabra;
        QColor color;
    };
    static constexpr Regla kReglas[] = {
        {palabras::kEclipseSol, {255, 70, 60}},  {palabras::kEclipseLuna, {255, 150, 50}},
        {palabras::kLluvia, {80, 210, 230}},     {palabras::kEquinoccio, {120, 230, 120}},
        {palabras::kSolsticio, {120, 230, 120}}, {palabras::kSuperluna, {255, 230, 90}},
    };
    for (const Regla& regla : kReglas) {
        if (linea.contains(regla.palabra)) {
            return regla.color;
        }
    }
    return std::nullopt;
}

CalendarioAnual HacerCalendario(std::int16_t anio, double zona, const QString& texto)
{
    CalendarioAnual c;
    c.anio = anio;
    const double mediodia = modAstro::DiaJuliano(anio, 1, 1, 0.5) - zona / 24;
    for (int i = 0; i < fechaSerie::DiasAnio(anio); ++i) {
        double fase = 0, iluminada = 0, distancia = 0;
        modAstro::FaseLunar(mediodia + i, fase, iluminada, distancia);
        c.fases.push_back(fase);
    }
    for (const QStringView linea : QStringView(texto).tokenize(palabras::kFinLinea)) {
        const auto fecha = fechaSerie::LeerFechaHora(linea);
        const auto color = ColorDeLinea(linea);
        if (fecha && color) {
            c.marcas.push_back({{fecha->mes, fecha->dia}, *color});
        }
    }
    return c;
}

Rejilla MedirRejilla(const QFontMetricsF& letra, const QRectF& r)
{
    double ancho = 0;
    for (int mes = 1; mes <= 12; ++mes) {
        ancho = std::max(ancho, letra.horizontalAdvance(NombreMes(mes)));
    }
    Rejilla g;
    g.x0 = r.left() + ancho + 8;
    g.y0 = r.top() + letra.height() + 5;
    g.ancho = (r.right() - g.x0) / 31;
    g.alto = (r.bottom() - g.y0) / 12;
    return g;
}

std::optional<Dia> DiaEnPunto(const Rejilla& g, std::int16_t anio, const QPointF& punto)
{
    const double columna = std::floor((punto.x() - g.x0) / g.ancho);
    const double fila = std::floor((punto.y() - g.y0) / g.alto);
    if (!(columna >= 0 && columna < 31 && fila >= 0 && fila < 12)) {
        return std::nullopt;
    }
    const Dia d{static_cast<std::int16_t>(fila + 1), static_cast<std::int16_t>(columna + 1)};
    if (d.dia > fechaSerie::DiasMes(anio, d.mes)) {
        return std::nullopt;
    }
    return d;
}

void PintarCalendario(QPainter& p, const QRectF& r, const CalendarioAnual& c)
{
    p.fillRect(r, paleta::kCampo);
    if (c.anio < modAstro::kAnioMinimo) {
        return;
    }
    const Rejilla g = MedirRejilla(QFontMetricsF(p.font()), r);
    p.save();
    PintarRotulos(p, g, r);
    PintarLunas(p, g, c);
    PintarMarcas(p, g, c);
    if (c.senalado) {
        p.setPen(paleta::kAcento);
        p.setBrush(Qt::NoBrush);
        p.drawRect(g.Celda(*c.senalado).adjusted(0.5, 0.5, -0.5, -0.5));
    }
    p.restore();
}

} // namespace calendario

// ruedaFases: the Moons of a month as a ring, like the face of a clock; day 1 at the top, days clockwise.
#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <vector>

class QPainter;

namespace ruedaFases {

struct RuedaFases
{
    std::int16_t anio = 0;
    std::int16_t mes = 0;      // 1 to 12
    std::vector<double> fases; // of each day at local noon; empty: only `aviso` is printed
    QString titulo;            // in the middle
    QString aviso;             // why there is no wheel
    int senalado = 0;          // day that the keyboard stands on, 0 none
};

// The ring of a month inside a picture, pixels.
struct Anillo
{
    QPointF centro;
    double radio = 0; // of the circle that the discs' centres lie on
    double disco = 0; // radius of a disc: nearly touching its neighbours, at most 17
    int dias = 0;

    // Centre of a day's disc, 1 to dias.
    QPointF Dia(int dia) const;
};

Anillo MedirAnillo(const QRectF& r, int dias);

// The day whose centre is nearest to a point; 0 when that is 30 pixels away or more. The earlier day wins
// a tie.
int DiaEnPunto(const Anillo& anillo, const QPointF& punto);

// The wheel of a month. A year outside 1900 to 2200 gives one with `aviso` alone.
//   zona   hours east of UTC
RuedaFases HacerRueda(std::int16_t anio, std::int16_t mes, double zona, const QString& avisoAnio);

// "Enero" to "Diciembre": Spanish in every language.
QString NombreMes(std::int16_t mes);

void PintarRueda(QPainter& p, const QRectF& r, const RuedaFases& rueda);

} // namespace ruedaFases

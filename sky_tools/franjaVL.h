// franjaVL: a year of nights as a strip of colours, one column per night, with its months.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <vector>

class QPainter;

namespace franjaVL {

struct FranjaAnual
{
    std::int16_t anio = 0;             // 0: nothing is computed, the strip shows `aviso`
    std::vector<std::int16_t> calidad; // one level, 0 to 4, per night
    int senalada = -1;                 // night that the keyboard stands on, -1 none
    QString aviso;                     // in the user's language
};

QColor ColorNivel(std::int16_t nivel);

// The night under an abscissa of a strip `ancho` pixels wide, clamped to 0..noches - 1.
int NocheEn(double x, double ancho, int noches);

void PintarFranja(QPainter& p, const QRectF& r, const FranjaAnual& f);

} // namespace franjaVL

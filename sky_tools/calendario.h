// calendario: a year of Moons, twelve rows of months by 31 columns of days, with a coloured mark on the days
// of the year's great events.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>
#include <vector>

class QFontMetricsF;
class QPainter;

namespace calendario {

struct Dia
{
    std::int16_t mes = 0; // 1 to 12
    std::int16_t dia = 0; // 1 to 31

    friend bool operator==(const Dia&, const Dia&) = default;
};

struct Marca
{
    Dia dia;
    QColor color;
};

// All that the calendar shows.
struct CalendarioAnual
{
    std::int16_t anio = 0;       // below 1900: nothing is computed yet, nothing is drawn
    std::vector<double> fases;   // phase fraction of each day of the year at local noon
    std::vector<Marca> marcas;   // in the order of the list: the last one of a day is seen
    std::optional<Dia> senalado; // the day that the keyboard stands on
};

// Where the grid lies in the picture, pixels.
struct Rejilla
{
    double x0 = 0, y0 = 0;      // top left corner of 1 January
    double ancho = 0, alto = 0; // of a cell

    QRectF Celda(const Dia& d) const;
};

// The colour that a result line calls for, by the first rule that fits: eclipse of Sun, of Moon, shower,
// season, supermoon. None: no mark.
std::optional<QColor> ColorDeLinea(QStringView linea);

// The calendar of a year from the text of its events.
//   zona   hours east of UTC
CalendarioAnual HacerCalendario(std::int16_t anio, double zona, const QString& texto);

// The grid that a picture of this size leaves beside month names and day numbers in this font.
Rejilla MedirRejilla(const QFontMetricsF& letra, const QRectF& r);

// The day under a point; none off the grid and on days that the month does not have.
std::optional<Dia> DiaEnPunto(const Rejilla& rejilla, std::int16_t anio, const QPointF& punto);

void PintarCalendario(QPainter& p, const QRectF& r, const CalendarioAnual& c);

} // namespace calendario

// franjaScrub: the thin coloured strip on which the hour is dragged.
//
// One colour per pixel column, that of the Sun's altitude at that time of day, kept between repaints; a
// white line and a clock mark the present hour.
#pragma once

#include <QRgb>
#include <QString>

#include <span>
#include <vector>

class QPainter;

class FranjaScrub
{
public:
    // Paints the strip from its corner at the painter's origin.
    //   altSol     the day's Sun altitudes, degrees, every ten minutes; nothing is painted while empty
    //   minuto     value of the hour bar, 0 to 1440
    //   obsoletas  the altitudes have changed since the last call; a new size is noticed by itself
    // A picture without area, or narrower than 2 pixels, is skipped.
    void Pintar(QPainter& p, double ancho, double alto, std::span<const double> altSol, int minuto,
                bool obsoletas);

    // The same with the day curves of modAstroEstado, if they are valid.
    void Pintar(QPainter& p, double ancho, double alto, int minuto, bool obsoletas);

    // The kept colours, one per device pixel column.
    const std::vector<QRgb>& Colores() const { return colores; }

private:
    std::vector<QRgb> colores;
    double anchoPrevio = 0.0, altoPrevio = 0.0;
};

namespace franjaScrub {

// Text of the mark, "<<  hh:mm  >>"; 1440 reads 24:00.
QString TextoMarca(int minuto);

} // namespace franjaScrub

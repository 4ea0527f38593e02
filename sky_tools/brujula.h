// brujula: the polar plot of the sky that goes with an azimuth search. Centre zenith, rim horizon, north
// up, east right.
#pragma once

#include <QRectF>

#include <vector>

class QPainter;

namespace brujula {

struct Direccion
{
    double azimut = 0; // degrees
    double altitud = 0;
};

struct DatosBrujula
{
    std::vector<Direccion> ruta; // the body's path; what lies below the horizon is not drawn
    bool luna = false;           // whose path it is: its colour
    double azimut = 0;           // the one asked for, degrees
};

// Radius of the rim inside a picture, pixels; 0 or less when there is no room, and nothing is painted.
double RadioBrujula(const QRectF& r);

void PintarBrujula(QPainter& p, const QRectF& r, const DatosBrujula& datos);

} // namespace brujula

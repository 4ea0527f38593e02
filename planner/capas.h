// capas: the overlays that turn the map into a planner, one function each.
//
// Every one draws a scene on a surface, keeps nothing between two calls and draws nothing for what is
// absent: a negative azimuth, an altitude at or below -998, curves that are not valid, a mark that is not
// pinned. Directions from the observer run from its pixel as azimuths from north through east; their far end
// lies beyond the picture whatever the direction.
#pragma once

#include "LienzoMapa.h"
#include "escenaMapa.h"

#include <QPoint>

namespace capas {

// All of them in their order, later ones on top.
void PintarCapas(LienzoMapa& lienzo, const EscenaMapa& e);

// Shadow of the total solar eclipse of 2026-08-12 on its way, over everything else's ground.
void PintarEclipse2026(LienzoMapa& lienzo, const EscenaMapa& e);

// Night side of the Earth and the line that bounds it.
void PintarTerminador(LienzoMapa& lienzo, const EscenaMapa& e);

// Galactic plane and centre on a sky disc around the observer.
void PintarViaLactea(LienzoMapa& lienzo, const EscenaMapa& e);

// Line from the observer to the target.
void PintarLineaObjetivo(LienzoMapa& lienzo, const EscenaMapa& e);

// Directions of Sun and Moon now, of their risings and settings, and the halo near these.
void PintarDirecciones(LienzoMapa& lienzo, const EscenaMapa& e);

// The day's paths of Sun and Moon on an orthographic sky disc around the observer.
void PintarTrayectorias(LienzoMapa& lienzo, const EscenaMapa& e);

// Marks of observer and target.
void PintarObservador(LienzoMapa& lienzo, const EscenaMapa& e);
void PintarObjetivo(LienzoMapa& lienzo, const EscenaMapa& e);

// Notice of pending downloads in the middle, scale bar at the lower left, credit at the lower right.
void PintarAvisoDescargas(LienzoMapa& lienzo, const EscenaMapa& e);
void PintarEscala(LienzoMapa& lienzo, const EscenaMapa& e);
void PintarAtribucion(LienzoMapa& lienzo, const EscenaMapa& e);

// --- Parts of them

// Pixel of the observer, and of the target.
QPoint PixelObservador(const EscenaMapa& e);
QPoint PixelObjetivo(const EscenaMapa& e);

// Length of a direction, pixels: enough to leave the picture from anywhere in it.
double LargoDireccion(const modMap::VistaMapa& vista);

// Smallest distance of an azimuth to a rising and a setting one, degrees, 0 to 180; an absent one is passed
// over. 999 when there is nothing to compare.
double BrilloAlineacion(double az, double a1, double a2);

// Width of a body's line, pixels: thin below the horizon, widest in the low light around it.
double AnchoLineaAstro(double alt);

// Colour and opacity of the night where the Sun stands at this altitude.
LienzoMapa::Color ColorCrepusculo(double alt);

// The longest round length not above 100 pixels, as metres; 0 when there is none from 1 m up.
double MetrosEscala(double metrosPorPixel);
QString RotuloMetrico(double metros);
QString RotuloImperial(double metros);

} // namespace capas

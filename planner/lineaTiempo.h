// lineaTiempo: the day at a glance. Event cards across the top; under them the altitudes of Sun and Moon
// over a band in the colour of the sky, the present hour and where both bodies stand.
//
// The time axis is the local clock of the zone, 0 to 24 hours from left to right. Everything that the
// painter shows is in DatosTimeline; no astronomy runs here. Lengths in logical pixels.
#pragma once

#include "estadoPlanificador.h"
#include "modAstroEstado.h"
#include "tarjetas.h"

#include <QColor>
#include <QPixmap>

#include <array>
#include <vector>

class QPainter;

struct DatosTimeline
{
    bool lista = false;                  // false: nothing has been computed yet
    std::vector<TarjetaEvento> tarjetas; // sorted by hour

    bool curvas = false; // the altitudes below hold; without them neither sky nor curves are drawn
    std::array<double, modAstroEstado::kMuestrasDia> altSol{}; // degrees, every ten minutes
    std::array<double, modAstroEstado::kMuestrasDia> altLuna{};
    QColor colorSol{255, 200, 0};
    QColor colorLuna{235, 235, 220};

    double hora = 12.0; // present hour, 0 to 24
    MomentosActuales ahora;
};

namespace lineaTiempo {

inline constexpr QColor kFondo{38, 42, 56};

inline constexpr double kArriba = 76.0; // top of the curves; the cards and a gap lie above
inline constexpr double kPie = 18.0;    // band of the hour labels at the foot
inline constexpr double kMinimo = 60.0; // lowest height of the curves worth drawing

// Gathers a day: the cards of `m`, the day curves and the settings' colours as they stand now.
DatosTimeline Datos(const modAstro::MomentosDia& m, double zona, double hora, const MomentosActuales& ahora);

// y of an altitude in a picture of this height.
double AltitudAY(double alt, double alto);

// Altitude at pixel x of a width, between the ten-minute samples; the last sample holds to the end.
double AltitudEn(const std::array<double, modAstroEstado::kMuestrasDia>& alt, double x, double ancho);

// Paints the picture from its corner at the painter's origin and answers where the cards stand. A picture
// narrower than 2 pixels is skipped; one too low for the curves (153 pixels or less) shows only the cards.
TablaTarjetas PintarTimeline(QPainter& p, double ancho, double alto, const DatosTimeline& datos);

// False for a picture that is skipped.
bool HaySitio(double ancho, double alto);

// Its three layers, bottom first: the ground with the day's graph, the cards, the present hour.
void PintarGrafico(QPainter& p, double ancho, double alto, const DatosTimeline& datos);
TablaTarjetas PintarTarjetas(QPainter& p, double ancho, const DatosTimeline& datos);
void PintarAhora(QPainter& p, double ancho, double alto, const DatosTimeline& datos);

} // namespace lineaTiempo

// PintarTimeline for a picture that is repainted while the hour moves: the graph, which the hour does not
// change, is kept as a pixmap until size, curves or colours change.
class CacheTimeline
{
public:
    TablaTarjetas Pintar(QPainter& p, double ancho, double alto, const DatosTimeline& datos);

private:
    QPixmap grafico;
    bool curvas = false;
    QColor colorSol, colorLuna;
    std::array<double, modAstroEstado::kMuestrasDia> altSol{}, altLuna{};
};

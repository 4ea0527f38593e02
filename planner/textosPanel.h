// textosPanel: every text of the panels, made from numbers by pure functions.
//
// The texts come from the language tables (family "main.dyn."), the numbers follow the regional
// separators. All values are metric: kilometres and degrees.
#pragma once

#include "modAstro.h"

#include <QString>

namespace textosPanel {

// The panels of Sun and Moon; each field is the text of the label of that name ("lbl" + name).
struct TextosAstros
{
    QString SunRise, SunTransit, SunSet;
    QString SunAz, SunAlt;
    QString Gold, Blue;         // 6 and -4 degrees, morning and evening
    QString Civil, Naut, Astro; // start and end of the twilights
    QString MoonRise, MoonTransit, MoonSet;
    QString MoonAz, MoonAlt;
    QString MoonPhase; // name, then percent of the cycle
    QString MoonIllum, MoonDist;
};

// The texts of a day. Absent moments read "--:--".
//   zona   hours east of UTC, the one that the record was made for
TextosAstros Astros(const modAstro::MomentosDia& m, double zona);

// The same labels while there is nothing to tell: dashes in every place.
TextosAstros AstrosVacios();

// "latitude, longitude" with four decimals, and what stands there without a place.
QString Coordenadas(double lat, double lon);
QString CoordenadasVacias();

struct TextosObjetivo
{
    QString Coord;   // lblTgtCoord
    QString Dist;    // lblDist, kilometres
    QString Bearing; // lblBearing, initial great-circle bearing, degrees
};

// Target as seen from the observer. Without a target the coordinates are not read and dashes answer.
TextosObjetivo Objetivo(double obsLat, double obsLon, bool tieneTgt, double tgtLat, double tgtLon);

// lblHour: the clock of the hour bar, hours since local midnight, 0 to 24 ("24:00"); and without one.
QString TextoHoraLocal(double hora);
QString TextoHoraLocalVacia();

// Name of a phase, 0 <= fase < 1, in the present language, by half-open bands: 0.03 is a young crescent
// already, 0.97 still an old one. ClaveFaseLunar is the key of that text.
QString NombreFaseLunar(double fase);
QString ClaveFaseLunar(double fase);

} // namespace textosPanel

// tarjetas: the cards of the day's events, across the top of the timeline.
//
// A card is a value; which cards a day has, their order and what a click on one means are pure functions.
// Hours are local clock hours of the zone, 0 to 24. The names are Spanish in every language, since the
// painter picks by them; ClaveTarjeta leads to the words that are shown.
#pragma once

#include "modAstro.h"

#include <QString>

#include <optional>
#include <vector>

struct TarjetaEvento
{
    QString nombre;
    double hora = 0.0;
    QString linea3; // may be empty
    QString linea4;
};

namespace tarjetas {

inline constexpr double kAlto = 70.0; // height of the band, pixels

// Local clock hour of a moment stored as a fraction of the UT day: 0 <= h < 24, or -1 for an absent one.
double HoraLocal(double fraccion, double zona);

// "123,45°", with a comma in every region; empty for a negative value (absent).
QString TextoAngulo(double valor);

// Clock of a card, "hh:mm", rounded to the minute; 60 minutes carry over to the next hour.
QString TextoRelojTarjeta(double hora);

// The cards of a day in the order of their hours; of two at the same time the one built first stays
// first. At most 14; an event that does not happen has none.
std::vector<TarjetaEvento> ConstruirTarjetas(const modAstro::MomentosDia& m, double zona);

// Key of a card's visible name, and of its short form (empty where it has none). The names are found with
// and without their accents; an unknown name has no key.
QString ClaveTarjeta(const QString& nombre);
QString ClaveCortaTarjeta(const QString& nombre);

} // namespace tarjetas

// Where the cards stand in the picture, for the pointer.
struct TablaTarjetas
{
    struct Celda
    {
        double x1 = 0.0; // pixels, inclusive
        double x2 = 0.0;
        double hora = 0.0;
    };
    std::vector<Celda> celdas;

    // Hour of the card under a pixel; nothing between two cards or under the band.
    std::optional<double> HoraEn(double x, double y) const;

    // Hour of the next card behind an hour (or before it), half a minute away at least; beyond the last card
    // the first follows. Nothing without cards.
    std::optional<double> HoraVecina(double hora, bool adelante) const;
};

namespace tarjetas {

// n cards side by side over a width, one pixel of air at each side of each.
TablaTarjetas Colocar(const std::vector<TarjetaEvento>& cartas, double ancho);

} // namespace tarjetas

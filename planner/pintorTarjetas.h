// pintorTarjetas: how the cards of the timeline look.
#pragma once

#include "tarjetas.h"

class QPainter;

namespace pintorTarjetas {

// Paints the band of cards, tarjetas::kAlto high, at the painter's origin. Texts that are wider than their
// card take the short form of the name, then a narrower letter, the same for all names so that the row
// stays even, and are elided at the very last.
void Pintar(QPainter& p, const std::vector<TarjetaEvento>& cartas, const TablaTarjetas& tabla);

} // namespace pintorTarjetas

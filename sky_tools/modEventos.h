// modEventos: the dated events of a year as text: phases with their eclipses, supermoons, apsides, seasons
// and the great meteor showers.
//
// The window parses these lines for its list and its marks, so the columns are a contract, and the words
// are Spanish in every language.
#pragma once

#include "contextoBusqueda.h"

#include <QString>

#include <cstdint>

namespace modEventos {

// One line per event, sorted by date and time, ended by CR LF:
//   columns 1 to 10    "dd/mm/yyyy", local to the context's zone
//   columns 12 to 16   "hh:nn", blanks for a shower, which has a date only
//   from column 19     the event
// The year runs from 1 January 0h UT to the next, so a zone may move a first or last event into the
// neighbouring year. A full Moon less than 1.5 days from a perigee bears "  (SUPERLUNA)".
// A year outside 1900 to 2200 gives "(Anyo no valido)". Of the context only observer and zone count.
QString EventosCelestes(const ContextoBusqueda& c, std::int16_t anio);

} // namespace modEventos

// fechaSerie: dates and times as the searches carry, print and read them.
//
// A serial date is a double: days since 30 December 1899, 0h, local time of the zone at hand. Its clock
// reading is the nearest second, cut to the minute, so that an instant meant as 01:00 never prints as
// 00:59. The calendar is the Gregorian one for every year.
#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <optional>

namespace fechaSerie {

struct FechaHora
{
    std::int16_t anio = 0;
    std::int16_t mes = 0; // 1 to 12
    std::int16_t dia = 0;
    std::int16_t hora = 0; // 0 to 23
    std::int16_t minuto = 0;

    friend bool operator==(const FechaHora&, const FechaHora&) = default;
};

// Local serial date of an instant (Julian day, UT) in a zone (hours east of UTC).
double SerieDeJd(double jd, double zona);

// Serial date of a civil date at 0h. Days past the end of the month count on.
double SerieDeFecha(std::int16_t anio, std::int16_t mes, std::int16_t dia);

// Calendar and clock of a serial date, by the rounding told above.
FechaHora FechaDeSerie(double serie);

// Days of a month, 28 to 31; 0 for a month outside 1 to 12. Days of a year: 365 or 366.
std::int16_t DiasMes(std::int16_t anio, std::int16_t mes);
std::int16_t DiasAnio(std::int16_t anio);

// "dd/mm/yyyy".
QString TextoFecha(const FechaHora& f);

// "dd/mm/yyyy hh:nn".
QString TextoFechaHora(const FechaHora& f);

// The date and time that a result line begins with: day in characters 1 and 2, month in 4 and 5, year in
// 7 to 10, hour in 12 and 13, minute in 15 and 16. Missing or blank hour and minute read as 0. None when
// these are no date of the calendar, as in a message in parentheses.
std::optional<FechaHora> LeerFechaHora(QStringView linea);

} // namespace fechaSerie

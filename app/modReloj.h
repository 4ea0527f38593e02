// modReloj: the one clock of the program, and what the system knows of local time.
//
// Nothing else asks for the present time, so a test that puts another clock here decides the date.
#pragma once

#include <QDateTime>

#include <cstdint>
#include <functional>
#include <optional>

namespace modReloj {

// The present moment on the local clock face; read its date() and time().
QDateTime Ahora();

// The same moment in UTC.
QDateTime AhoraUtc();

// Seconds since 1970-01-01 00:00 UTC, with milliseconds.
double SegundosUtc();

// Offset of local time from UTC that is in force at an instant, in seconds, east positive. The instant is
// in seconds since 1970-01-01 00:00 UTC. None when the system cannot tell.
std::optional<std::int64_t> DesfaseEn(std::int64_t utc);

// Present difference between the local and the universal clock face, seconds.
std::int64_t DiferenciaPresente();

// What answers the calls above; an empty function stands for the system's own.
struct Fuente
{
    std::function<QDateTime()> local; // only date() and time() are read
    std::function<QDateTime()> utc;
    std::function<std::optional<std::int64_t>(std::int64_t)> desfase;
};

void PonerFuente(Fuente fuente);

} // namespace modReloj

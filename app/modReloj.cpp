#include "modReloj.h"

#include <utility>

namespace modReloj {

namespace {

Fuente& fuente()
{
    static Fuente f;
    return f;
}

// A clock face as if it were UTC, so that two of them can be subtracted.
QDateTime Esfera(const QDateTime& t)
{
    return QDateTime(t.date(), t.time(), Qt::UTC);
}

} // namespace

QDateTime Ahora()
{
    return fuente().local ? fuente().local() : QDateTime::currentDateTime();
}

QDateTime AhoraUtc()
{
    return fuente().utc ? fuente().utc() : QDateTime::currentDateTimeUtc();
}

double SegundosUtc()
{
    return static_cast<double>(Esfera(AhoraUtc()).toMSecsSinceEpoch()) / 1000.0;
}

std::optional<std::int64_t> DesfaseEn(std::int64_t utc)
{
    if (fuente().desfase) {
        return fuente().desfase(utc);
    }
    const QDateTime local = QDateTime::fromSecsSinceEpoch(utc, Qt::LocalTime);
    if (!local.isValid()) {
        return std::nullopt;
    }
    return local.offsetFromUtc();
}

std::int64_t DiferenciaPresente()
{
    if (!fuente().local && !fuente().utc) { // one reading, so that no second can pass in between
        return QDateTime::currentDateTime().offsetFromUtc();
    }
    return Esfera(AhoraUtc()).secsTo(Esfera(Ahora()));
}

void PonerFuente(Fuente nueva)
{
    fuente() = std::move(nueva);
}

} // namespace modReloj

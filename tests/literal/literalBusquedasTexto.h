// Dates and padding of the literal searches, by plain arithmetic of their own.
#pragma once

#include <QString>

#include <cmath>
#include <cstdint>

namespace literalBusquedas {

struct FechaReloj
{
    int anio, mes, dia, hora, minuto;
};

// Civil date and clock of a serial date (days since 30 December 1899): nearest second, then cut. The
// calendar by the inverse of the Julian day (Meeus, Astronomical Algorithms, ch. 7), Gregorian only.
inline FechaReloj DeSerie(double serie)
{
    const std::int64_t segundos = static_cast<std::int64_t>(std::round(serie * 86400.0));
    const std::int64_t dia = static_cast<std::int64_t>(std::floor(static_cast<double>(segundos) / 86400.0));
    const std::int64_t resto = segundos - dia * 86400;
    const double z = static_cast<double>(dia) + 2415019.0;
    const double alfa = std::floor((z - 1867216.25) / 36524.25);
    const double a = z + 1 + alfa - std::floor(alfa / 4);
    const double b = a + 1524;
    const double c = std::floor((b - 122.1) / 365.25);
    const double d = std::floor(365.25 * c);
    const double e = std::floor((b - d) / 30.6001);
    const int mes = static_cast<int>(e < 14 ? e - 1 : e - 13);
    return {static_cast<int>(mes > 2 ? c - 4716 : c - 4715), mes,
            static_cast<int>(b - d - std::floor(30.6001 * e)), static_cast<int>(resto / 3600),
            static_cast<int>(resto / 60 % 60)};
}

inline QString Cifras(int n, int cuantas)
{
    return QString::number(n).rightJustified(cuantas, QLatin1Char('0'));
}

inline QString TextoFecha(const FechaReloj& f)
{
    return Cifras(f.dia, 2) + QLatin1Char('/') + Cifras(f.mes, 2) + QLatin1Char('/') + Cifras(f.anio, 4);
}

inline QString TextoReloj(const FechaReloj& f)
{
    return Cifras(f.hora, 2) + QLatin1Char(':') + Cifras(f.minuto, 2);
}

// Padded with blanks, or cut, to a width.
inline QString Columna(const QString& texto, int ancho)
{
    return (texto + QString(ancho, QLatin1Char(' '))).left(ancho);
}

inline const QString kFin = QStringLiteral("\r\n");
inline const QString kGrado = QString(QChar(0xB0));

} // namespace literalBusquedas

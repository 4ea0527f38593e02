#include "fechaSerie.h"

#include "modFormato.h"

#include <chrono>
#include <cmath>

namespace fechaSerie {

namespace {

using std::chrono::sys_days;

constexpr double kJdDeSerie0 = 2415018.5; // 30 December 1899, 0h
constexpr std::int64_t kSegundosDia = 86400;

sys_days DiaCero()
{
    return sys_days{std::chrono::year{1899} / 12 / 30};
}

} // namespace

double SerieDeJd(double jd, double zona)
{
    return jd + zona / 24 - kJdDeSerie0;
}

double SerieDeFecha(std::int16_t anio, std::int16_t mes, std::int16_t dia)
{
    const auto primero = std::chrono::year{anio} / std::chrono::month{static_cast<unsigned>(mes)} / 1;
    return static_cast<double>((sys_days{primero} - DiaCero()).count()) + dia - 1;
}

FechaHora FechaDeSerie(double serie)
{
    const std::int64_t segundos = std::llround(serie * static_cast<double>(kSegundosDia));
    std::int64_t dias = segundos / kSegundosDia;
    std::int64_t resto = segundos % kSegundosDia;
    if (resto < 0) {
        resto += kSegundosDia;
        --dias;
    }
    const std::chrono::year_month_day f{DiaCero() + std::chrono::days{dias}};
    return {static_cast<std::int16_t>(static_cast<int>(f.year())),
            static_cast<std::int16_t>(static_cast<unsigned>(f.month())),
            static_cast<std::int16_t>(static_cast<unsigned>(f.day())),
            static_cast<std::int16_t>(resto / 3600), static_cast<std::int16_t>(resto / 60 % 60)};
}

std::int16_t DiasMes(std::int16_t anio, std::int16_t mes)
{
    if (mes < 1 || mes > 12) {
        return 0;
    }
    const auto ultimo =
        std::chrono::year{anio} / std::chrono::month{static_cast<unsigned>(mes)} / std::chrono::last;
    return static_cast<std::int16_t>(static_cast<unsigned>(ultimo.day()));
}

std::int16_t DiasAnio(std::int16_t anio)
{
    return std::chrono::year{anio}.is_leap() ? 366 : 365;
}

QString TextoFecha(const FechaHora& f)
{
    return modFormato::TextoFecha(f.anio, f.mes, f.dia);
}

QString TextoFechaHora(const FechaHora& f)
{
    return TextoFecha(f) + QLatin1Char(' ') + modFormato::TextoReloj(f.hora * 60 + f.minuto);
}

std::optional<FechaHora> LeerFechaHora(QStringView linea)
{
    const auto numero = [linea](qsizetype desde, qsizetype cuantos) {
        return modFormato::LeerEntero16(linea.mid(desde, cuantos));
    };
    if (linea.size() < 10) {
        return std::nullopt;
    }
    const FechaHora f{numero(6, 4), numero(3, 2), numero(0, 2), numero(11, 2), numero(14, 2)};
    const bool fecha = f.dia >= 1 && f.dia <= DiasMes(f.anio, f.mes);
    const bool reloj = f.hora >= 0 && f.hora <= 23 && f.minuto >= 0 && f.minuto <= 59;
    if (!fecha || !reloj) {
        return std::nullopt;
    }
    return f;
}

} // namespace fechaSerie

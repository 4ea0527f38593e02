#include "fechaPlanificador.h"

namespace fechaPlanificador {

namespace {

bool AnioYMesValidos(std::int16_t anio, std::int16_t mes)
{
    return anio >= kAnioMinimo && anio <= kAnioMaximo && mes >= 1 && mes <= 12;
}

} // namespace

std::int16_t DiasMes(std::int16_t anio, std::int16_t mes)
{
    constexpr std::int16_t kDias[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (mes < 1 || mes > 12)
        return 0;
    const bool bisiesto = anio % 4 == 0 && (anio % 100 != 0 || anio % 400 == 0);
    return mes == 2 && bisiesto ? std::int16_t{29} : kDias[mes - 1];
}

bool FechaValida(std::int16_t anio, std::int16_t mes, std::int16_t dia)
{
    return AnioYMesValidos(anio, mes) && dia >= 1 && dia <= DiasMes(anio, mes);
}

bool FechaSirveParaZona(std::int16_t anio, std::int16_t mes, std::int16_t dia)
{
    return AnioYMesValidos(anio, mes) && dia >= 1 && dia <= 31;
}

} // namespace fechaPlanificador

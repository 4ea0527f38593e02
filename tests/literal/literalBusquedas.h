// literalBusquedas: the searches of the year written as plainly as they can be told, step by step and with
// every sample computed. Slow; the tests hold the fast ones against their printed lines, the benchmarks
// against their time.
#pragma once

#include "contextoBusqueda.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace literalBusquedas {

double DiferenciaAngular(double a, double b);
QString BuscarAzimut(const ContextoBusqueda& c, bool luna, double azimut, std::int32_t dias);

QString CircunstanciasEclipseSol(const ContextoBusqueda& c, double jd);
QString CircunstanciasEclipseLuna(const ContextoBusqueda& c, double jd);
QString EventosCelestes(const ContextoBusqueda& c, std::int16_t anio);

QString MejoresNochesVL(const ContextoBusqueda& c, std::int16_t anio);
bool SerieAnualVL(const ContextoBusqueda& c, std::int16_t anio, std::vector<std::int16_t>& calidad);

} // namespace literalBusquedas

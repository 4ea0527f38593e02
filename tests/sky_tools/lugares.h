// Places and zones that the tests of the searches share: each is a different sky.
#pragma once

#include "contextoBusqueda.h"

struct LugarPrueba
{
    const char* nombre;
    double lat, lon, zona;
};

inline constexpr LugarPrueba kLugares[] = {
    {"Madrid", 40.4168, -3.7038, 1},
    {"Quito, where bodies pass the zenith", -0.18, -78.47, -5},
    {"Sydney", -33.87, 151.21, 10},
    {"Longyearbyen, midnight Sun", 78.22, 15.64, 1},
    {"a step from the pole", 89.99, 0, 0},
    {"Nukualofa, a day ahead", -21.13, -175.2, 13},
    {"Delhi, a zone of half hours", 28.6, 77.2, 5.5},
};

inline ContextoBusqueda Contexto(const LugarPrueba& l, FechaCivil fecha = {2026, 1, 1}, double hora = 12)
{
    return {true, l.lat, l.lon, l.zona, fecha, hora};
}

// contextoBusqueda: all that a search of the sky may know of the planner, as plain values.
#pragma once

#include "Planificador.h"

struct ContextoBusqueda
{
    bool TieneObs = false; // without it the coordinates mean nothing
    double lat = 0;        // degrees
    double lon = 0;
    double zona = 0; // hours east of UTC
    FechaCivil fecha;
    double hora = 0; // hours since local midnight
};

// What the planner shows at this moment.
inline ContextoBusqueda LeerContexto(const Planificador& p)
{
    return {p.TieneObs(), p.obsLat(), p.obsLon(), p.Zona(), p.Fecha(), p.Hora()};
}

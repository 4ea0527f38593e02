// escenaMapa: all that the map's overlays read, gathered once per repaint.
#pragma once

#include "estadoPlanificador.h"

#include "Planificador.h"
#include "VistaMapa.h"
#include "modAstroEstado.h"

#include <QString>

struct EscenaMapa
{
    modMap::VistaMapa vista;

    bool tieneObs = false;
    double obsLat = 0, obsLon = 0;
    bool tieneTgt = false;
    double tgtLat = 0, tgtLon = 0;

    // What is switched on.
    bool mostrarObjetivo = false;
    bool trayectorias = false; // chkTrayectoriaCeleste
    bool viaLactea = false;
    bool terminador = false;
    bool fasesTerminador = false; // grades the terminator's night; alone it shows nothing

    FechaCivil fecha;   // as the boxes read
    double juliano = 0; // JulianoDeLaInterfaz
    MomentosActuales ahora;
    // The day curves; null while they are not valid.
    const modAstroEstado::Trayectoria* sol = nullptr;
    const modAstroEstado::Trayectoria* luna = nullptr;

    bool hayDescargas = false;
    int descargas = 0;  // pending
    QString atribucion; // credit of the base map, already in the words that its servers ask for
};

// Julian day of the date boxes and the hour bar. The hour is taken back to UT and folded into the same date
// by one day at most, so the date itself never moves. A year outside 1900 to 2200: 2000 January 1, 12:00.
//   hora, zona   local hours since midnight; hours east of UTC
double JulianoDeLaInterfaz(const FechaCivil& fecha, double hora, double zona);

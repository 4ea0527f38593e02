// estadoPlanificador: what the planner's window remembers, and the day's values that others read.
#pragma once

#include "VistaMapa.h"
#include "modAstro.h"

// Angles in degrees, north and east positive. Date, hour and zone are not here: their controls are the
// store, and each computation reads them afresh.
struct EstadoPlanificador
{
    double obsLat = 0;
    double obsLon = 0;
    bool TieneObs = false; // an observer is pinned
    double TgtLat = 0;
    double TgtLon = 0;
    bool TieneTgt = false; // a target is pinned; false after each start
    modMap::VistaMapa vista;

    bool EscribiendoFecha = false;    // the date boxes are being written by the program
    bool Pintando = false;            // RefrescarTodo is running; it refuses re-entry
    bool Cerrando = false;            // the window is closing; every refresh returns at once
    bool TerminadorActivo = false;    // mirrors of the check boxes
    bool FasesTerminadorActivas = false;
    bool TirasScrubObsoletas = true;  // the colours of the scrub strip must be made again
};

// Holds Pintando for as long as it lives, whatever ends the refresh.
class EnPintura
{
public:
    explicit EnPintura(EstadoPlanificador& e) : estado(e) { estado.Pintando = true; }
    ~EnPintura() { estado.Pintando = false; }
    EnPintura(const EnPintura&) = delete;
    EnPintura& operator=(const EnPintura&) = delete;

private:
    EstadoPlanificador& estado;
};

// Where Sun and Moon stand at the shown instant, and the directions of the day's risings and settings.
// A negative azimuth means that there is no such event; an altitude at or below -998, not computed yet.
struct MomentosActuales
{
    double SolAzActual = -1;
    double SolAltActual = -999;
    double LunaAzActual = -1;
    double LunaAltActual = -999;
    double SolAzOrto = -1;
    double SolAzOcaso = -1;
    double LunaAzOrto = -1;
    double LunaAzOcaso = -1;
};

inline MomentosActuales DeMomentosDia(const modAstro::MomentosDia& m)
{
    return {m.SolAz, m.SolAlt, m.LunaAz, m.LunaAlt, m.SolAzOrto, m.SolAzOcaso, m.LunaAzOrto, m.LunaAzOcaso};
}

// Planificador: what the tool windows may ask of the planner.
//
// The main window implements it; a tool receives a reference and so never includes the window itself.
// Everything runs on the user-interface thread. The accessors have no side effects and read the
// controls afresh at each call; nothing here throws.
//
// Units: latitude and longitude in degrees, north and east positive; zone in hours east of UTC;
// hour in hours since local midnight, 0 to 24.
#pragma once

#include <QString>

#include <cstdint>
#include <span>
#include <vector>

// A date as it stands in the planner's boxes; a box that holds no number reads as 0.
struct FechaCivil
{
    std::int16_t anio = 0;
    std::int16_t mes = 0; // 1 to 12 when valid
    std::int16_t dia = 0;
};

class Planificador
{
public:
    virtual ~Planificador() = default;

    // Observer and target. The coordinates mean nothing while the flag beside them is false.
    virtual double obsLat() const = 0;
    virtual double obsLon() const = 0;
    virtual bool TieneObs() const = 0;
    virtual double TgtLat() const = 0;
    virtual double TgtLon() const = 0;
    virtual bool TieneTgt() const = 0;

    // Date, hour and zone that the planner shows. Not validated.
    virtual FechaCivil Fecha() const = 0;
    virtual QString TextoAnio() const = 0; // the year box as typed
    virtual double Hora() const = 0;
    virtual double Zona() const = 0;

    // Moves the planner to a local date and time (the hour bar is clamped to 0..1440 minutes) and
    // recomputes and repaints once.
    virtual void IrAFechaHora(std::int16_t anio, std::int16_t mes, std::int16_t dia, std::int16_t hora,
                              std::int16_t minuto) = 0;

    // Shows the target that a tool has just placed.
    virtual void ActivarDestino() = 0;

    // Searches. Texts are fixed-column lines ended by CR LF, or one message in parentheses without it.
    virtual QString BuscarAzimut(bool luna, double azimut, std::int32_t dias) const = 0;
    // The body's path over the day centred on the shown instant, every ten minutes: azimuth and
    // altitude in degrees, 144 of each. Answers 144, or 0 without an observer.
    virtual int RutaCielo(bool luna, std::span<double> azimutes, std::span<double> altitudes) const = 0;
    virtual QString EventosCelestes(std::int16_t anio) const = 0;
    virtual QString MejoresNochesVL(std::int16_t anio) const = 0;
    // One quality level, 0 to 4, for each night of the year. False leaves zeros.
    virtual bool SerieAnualVL(std::int16_t anio, std::vector<std::int16_t>& calidad) const = 0;
};

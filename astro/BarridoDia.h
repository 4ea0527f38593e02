// BarridoDia: the scan of one local day for crossings and for the greatest altitude.
//
// The day is sampled every two minutes, 720 samples after the one at its start, and events are decided by
// comparing neighbouring samples. What makes it quick is to leave samples out: the sine of the altitude
// changes no faster than a bound that latitude gives, so from a sample far from every altitude aimed at
// the next ones cannot have crossed either, and the scan goes on behind them.
#pragma once

#include "Efemerides.h"

#include <span>

namespace modAstro {

// One altitude aimed at, and its first crossings: days after the start, -1 when there is none.
struct CruceDia
{
    double objetivo;   // degrees
    double orto = -1;  // upward
    double ocaso = -1; // downward
};

// Twenty halvings of a bracket: f(low) f(middle) <= 0 keeps the lower half. Answers the middle of the last
// one, 0.1 ms from the crossing in a two-minute bracket.
template <class F> double Bisecar(double bajo, double alto, F f)
{
    double fBajo = f(bajo);
    for (int i = 0; i < 20; ++i) {
        const double medio = (bajo + alto) / 2;
        const double fMedio = f(medio);
        if (fBajo * fMedio <= 0) {
            alto = medio;
        } else {
            bajo = medio;
            fBajo = fMedio;
        }
    }
    return (bajo + alto) / 2;
}

class BarridoDia
{
public:
    // The day of a body that starts at jd0, seen from a place in degrees.
    BarridoDia(bool luna, double jd0, double lat, double lon);

    // Finds the crossings of up to eight altitudes in one scan.
    void Cruces(std::span<CruceDia> cruces) const;

    // The same for one altitude above the real skyline in memory.
    void CrucesHorizonte(CruceDia& cruce) const;

    // Moment of greatest altitude, or -1 when no sample stands above objetivo.
    double Maximo(double objetivo) const;

    // Altitude and azimuth in degrees, t days after the start.
    void AzAlt(double t, double& altitud, double& azimut) const;

private:
    double Seno(double t) const;
    double SenoDirecto(double t) const;
    double SenoMuestra(int k) const;
    bool Encima(int k, double seno, double senoObjetivo, double objetivo) const;
    double Cruce(int k, double senoObjetivo) const;
    double Mitades(int k, double raiz) const;

    TramoCuerpo tramo;
    Observador obs;
    double lat, lon, jd0;
    double cotaRitmo; // greatest change of the sine from one sample to the next
    double cotaCurva; // greatest change of that change
};

} // namespace modAstro

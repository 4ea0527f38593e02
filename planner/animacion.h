// animacion: the step of the day animation.
#pragma once

namespace animacion {

inline constexpr int kMinutosDia = 1440;

// The minute of the day that the hour bar takes at the next tick.
//   valor      present minute, 0 to 1440
//   velocidad  minutes per tick, 1 to 60
//   minimo     lowest value of the bar
// The day wraps round midnight of the same date, and the answer never exceeds 1439 (23:59).
constexpr int SiguienteMinuto(int valor, int velocidad, int minimo)
{
    int v = valor + velocidad;
    if (v >= kMinutosDia)
        v %= kMinutosDia;
    if (v < minimo)
        v = minimo;
    if (v > kMinutosDia - 1)
        v = kMinutosDia - 1;
    return v;
}

} // namespace animacion

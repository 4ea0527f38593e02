#include "cielo.h"

#include <algorithm>
#include <cmath>

namespace cielo {

namespace {

constexpr QRgb kNoche = qRgb(8, 12, 28);
constexpr QRgb kAstro = qRgb(20, 32, 72);
constexpr QRgb kNautico = qRgb(45, 70, 120);
constexpr QRgb kCivil = qRgb(95, 115, 165);
constexpr QRgb kDorado = qRgb(220, 165, 110);
constexpr QRgb kDia = qRgb(150, 185, 225);

int Canal(double v)
{
    return static_cast<int>(std::nearbyint(v));
}

// Red, green and blue of one band of the strip, linear in t.
struct Tramo
{
    double r0, r1, g0, g1, b0, b1;
};

QRgb EnTramo(const Tramo& c, double t)
{
    return qRgb(Canal(c.r0 + c.r1 * t), Canal(c.g0 + c.g1 * t), Canal(c.b0 + c.b1 * t));
}

constexpr Tramo kHorizonte{220.0, -120.0, 100.0, 60.0, 20.0, 210.0}; // 0 to 6
constexpr Tramo kTramoCivil{80.0, 140.0, 30.0, 70.0, 10.0, 10.0};    // -6 to 0
constexpr Tramo kTramoNautico{40.0, 40.0, 15.0, 15.0, 30.0, 40.0};   // -12 to -6
constexpr Tramo kTramoAstro{13.0, 27.0, 8.0, 7.0, 26.0, 30.0};       // -18 to -12

} // namespace

QRgb Mezcla(QRgb a, QRgb b, double t)
{
    const double u = std::clamp(t, 0.0, 1.0);
    const auto mezclar = [u](int x, int y) { return Canal(x + (y - x) * u); };
    return qRgb(mezclar(qRed(a), qRed(b)), mezclar(qGreen(a), qGreen(b)), mezclar(qBlue(a), qBlue(b)));
}

QRgb ColorCielo(double alt)
{
    if (alt < -18.0)
        return kNoche;
    if (alt < -12.0)
        return Mezcla(kNoche, kAstro, (alt + 18.0) / 6.0);
    if (alt < -6.0)
        return Mezcla(kAstro, kNautico, (alt + 12.0) / 6.0);
    if (alt < 0.0)
        return Mezcla(kNautico, kCivil, (alt + 6.0) / 6.0);
    if (alt < 6.0) {
        const double t = alt / 6.0;
        const QRgb c = Mezcla(kCivil, kDorado, t * 0.7);
        return Mezcla(c, kDorado, (1.0 - 2.0 * std::abs(t - 0.5)) * 0.4);
    }
    if (alt < 20.0)
        return Mezcla(kDorado, kDia, (alt - 6.0) / 14.0);
    return kDia;
}

QRgb ColorScrub(double alt)
{
    if (alt < -18.0)
        return qRgb(13, 8, 26);
    if (alt < -12.0)
        return EnTramo(kTramoAstro, (alt + 18.0) / 6.0);
    if (alt < -6.0)
        return EnTramo(kTramoNautico, (alt + 12.0) / 6.0);
    if (alt < 0.0)
        return EnTramo(kTramoCivil, (alt + 6.0) / 6.0);
    if (alt < 6.0)
        return EnTramo(kHorizonte, alt / 6.0);
    return qRgb(100, 160, 230);
}

} // namespace cielo

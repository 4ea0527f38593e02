// Calendar, angles, guarded inverse functions and clock texts.
#include "modAstro.h"

#include <cmath>

namespace modAstro {

namespace {

std::string DosCifras(int n)
{
    return {static_cast<char>('0' + n / 10), static_cast<char>('0' + n % 10)};
}

// Minutes of the day, 0 to 1439, as "hh:mm".
std::string TextoReloj(int minutos)
{
    return DosCifras(minutos / 60) + ":" + DosCifras(minutos % 60);
}

// x - period * floor(x / period), and 0 where a tiny negative x would round up to the period itself.
double Reducir(double x, double periodo)
{
    double r = x - std::floor(x / periodo) * periodo;
    if (r < 0)
        r += periodo;
    return r >= periodo ? 0.0 : r;
}

} // namespace

double DiaJuliano(std::int16_t anio, std::int16_t mes, std::int16_t dia, double fraccion)
{
    double y = anio;
    double m = mes;
    if (m < 3) { // January and February close the year that began in March
        y -= 1;
        m += 12;
    }
    const double a = std::floor(y / 100);
    const double b = 2 - a + std::floor(a / 4);
    return std::floor(365.25 * (y + 4716)) + std::floor(30.6001 * (m + 1)) + dia + fraccion + b - 1524.5;
}

double SiglosJ2000(double jd)
{
    return (jd - kDiaJ2000) / 36525.0;
}

double Norm360(double x)
{
    return Reducir(x, 360.0);
}

double Norm2Pi(double x)
{
    return Reducir(x, kDosPi);
}

double Atan2(double y, double x)
{
    if (x > 0)
        return std::atan(y / x);
    if (x < 0)
        return y >= 0 ? std::atan(y / x) + kPi : std::atan(y / x) - kPi;
    if (y > 0)
        return kPi / 2;
    return y < 0 ? -kPi / 2 : 0.0;
}

double ArcoSeno(double x)
{
    if (x >= 1)
        return kPi / 2;
    if (x <= -1)
        return -kPi / 2;
    return std::atan(x / std::sqrt(1 - x * x));
}

double ArcoCoseno(double x)
{
    if (x >= 1)
        return 0.0;
    if (x <= -1)
        return kPi;
    return kPi / 2 - ArcoSeno(x);
}

double AjustarFraccion(double t, double zona)
{
    if (t < 0)
        return t;
    return Reducir(t - zona / 24, 1.0);
}

std::string FormatearHora(double fraccion, double zona)
{
    const double total = std::nearbyint(fraccion * 1440) + std::nearbyint(zona * 60);
    if (!(fraccion >= 0) || !std::isfinite(total))
        return "--:--";
    return TextoReloj(static_cast<int>(Reducir(total, 1440.0)));
}

std::string Compas8(double azimut)
{
    static constexpr const char* kPalabras[8] = {"N", "NE", "E", "SE", "S", "SO", "O", "NO"};
    const double octavo = std::floor((Norm360(azimut) + 22.5) / 45);
    return std::isfinite(octavo) ? kPalabras[static_cast<int>(octavo) % 8] : kPalabras[0];
}

double ReducirAPi(double x)
{
    constexpr double kVuelta = 6.28318530717959; // one more unit in the last digit than kDosPi
    if (!(std::fabs(x) < 1e6))                   // far beyond any angle of ours: the loop would not end
        return std::remainder(x, kVuelta);
    while (x > kPi)
        x -= kVuelta;
    while (x < -kPi)
        x += kVuelta;
    return x;
}

std::string HoraDeDiaJuliano(double jd, double zona)
{
    // Days since 30 December 1899, whole seconds: cutting alone would print 00:59 for 01:00.
    const double segundos = std::round((jd + zona / 24 - 2415018.5) * 86400.0);
    if (!std::isfinite(segundos))
        return "--:--";
    return TextoReloj(static_cast<int>(Reducir(segundos, 86400.0)) / 60);
}

} // namespace modAstro

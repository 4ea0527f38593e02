#include "literalAstro.h"

#include <cmath>
#include <cstdio>

namespace literal {

double DiaJuliano(std::int16_t anio, std::int16_t mes, std::int16_t dia, double fraccion)
{
    int y = anio;
    int m = mes;
    if (m < 3) {
        y = y - 1;
        m = m + 12;
    }
    double a = std::floor(y / 100.0);
    double b = 2 - a + std::floor(a / 4);
    return std::floor(365.25 * (y + 4716)) + std::floor(30.6001 * (m + 1)) + dia + fraccion + b - 1524.5;
}

double SiglosJ2000(double jd)
{
    return (jd - 2451545.0) / 36525.0;
}

double Norm360(double x)
{
    double r = x - std::floor(x / 360) * 360;
    if (r < 0)
        r = r + 360;
    return r;
}

double Norm2Pi(double x)
{
    double r = x - std::floor(x / 6.28318530717958) * 6.28318530717958;
    if (r < 0)
        r = r + 6.28318530717958;
    return r;
}

double Atan2(double y, double x)
{
    if (x > 0)
        return std::atan(y / x);
    if (x < 0 && y >= 0)
        return std::atan(y / x) + 3.14159265358979;
    if (x < 0)
        return std::atan(y / x) - 3.14159265358979;
    if (y > 0)
        return 3.14159265358979 / 2;
    if (y < 0)
        return -3.14159265358979 / 2;
    return 0;
}

double ArcoSeno(double x)
{
    if (x >= 1)
        return 3.14159265358979 / 2;
    if (x <= -1)
        return -3.14159265358979 / 2;
    return std::atan(x / std::sqrt(1 - x * x));
}

double ArcoCoseno(double x)
{
    if (x >= 1)
        return 0;
    if (x <= -1)
        return 3.14159265358979;
    return 3.14159265358979 / 2 - ArcoSeno(x);
}

double AjustarFraccion(double t, double zona)
{
    if (t < 0)
        return t;
    t = t - zona / 24;
    while (t < 0)
        t = t + 1;
    while (t >= 1)
        t = t - 1;
    return t;
}

std::string FormatearHora(double f, double zona)
{
    if (f < 0)
        return "--:--";
    long minutos = std::lrint(f * 1440) + std::lrint(zona * 60);
    minutos = ((minutos % 1440) + 1440) % 1440;
    char texto[16];
    std::snprintf(texto, sizeof texto, "%02d:%02d", static_cast<int>(minutos / 60),
                  static_cast<int>(minutos % 60));
    return texto;
}

std::string Compas8(double az)
{
    static const char* const palabras[8] = {"N", "NE", "E", "SE", "S", "SO", "O", "NO"};
    while (az < 0)
        az = az + 360;
    while (az >= 360)
        az = az - 360;
    return palabras[static_cast<int>(std::floor((az + 22.5) / 45)) % 8];
}

double ReducirAPi(double x)
{
    while (x > 3.14159265358979)
        x = x - 6.28318530717959;
    while (x < -3.14159265358979)
        x = x + 6.28318530717959;
    return x;
}

std::string HoraDeDiaJuliano(double jd, double zona)
{
    double fecha = jd + zona / 24 - 2415018.5;
    long long segundos = std::llround(fecha * 86400);
    int delDia = static_cast<int>(((segundos % 86400) + 86400) % 86400);
    char texto[16];
    std::snprintf(texto, sizeof texto, "%02d:%02d", delDia / 3600, delDia / 60 % 60);
    return texto;
}

} // namespace literal

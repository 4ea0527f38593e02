#include "modAzimut.h"

#include "Efemerides.h"
#include "fechaSerie.h"
#include "modAstro.h"
#include "modFormato.h"
#include "palabras.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace modAzimut {

namespace {

constexpr double kPaso = 1.0 / 288.0; // five minutes, days
constexpr int kPasos = 288;

// How far a body's direction can turn in one step, radians: the Earth's 6.300 a day, at most 0.274 by the
// Moon's own motion at perigee and 0.115 by its parallax.
constexpr double kGiroPorPaso = 6.75 * kPaso;

// Sample times of a day: the sum of so many steps, not their product, since the printed minute may hang
// on the last bit.
const std::array<double, kPasos + 1>& Tiempos()
{
    static const std::array<double, kPasos + 1> tiempos = [] {
        std::array<double, kPasos + 1> t{};
        for (int k = 1; k <= kPasos; ++k) {
            t[k] = t[k - 1] + kPaso;
        }
        return t;
    }();
    return tiempos;
}

int Signo(double x)
{
    return (x > 0) - (x < 0);
}

// One body over one place, against one azimuth.
struct Blanco
{
    modAstro::Observador obs;
    bool luna;
    double azimut; // degrees, 0 <= azimut < 360
    double senoAz, cosenoAz;

    Blanco(const ContextoBusqueda& c, bool esLuna, double az)
        : obs(c.lat, c.lon), luna(esLuna), azimut(az), senoAz(std::sin(az * modAstro::kGradosARad)),
          cosenoAz(std::cos(az * modAstro::kGradosARad))
    {
    }

    // Steps after a place in which no crossing can be printed. A crossing needs the body on the vertical
    // plane of the azimuth, and above the horizontal plane; it is as far from each as these sines tell, and
    // comes nearer by less than kGiroPorPaso a step.
    int PasosLibres(const modAstro::VectorHorizontal& v) const
    {
        const double largo = std::sqrt(v.norte * v.norte + v.este * v.este + v.cenit * v.cenit);
        const double alPlano = std::fabs(v.este * cosenoAz - v.norte * senoAz);
        return static_cast<int>(std::max(alPlano, -v.cenit) / (largo * kGiroPorPaso));
    }

    // Azimuth less the one asked for, degrees.
    double Diferencia(const modAstro::TramoCuerpo& tramo, double jd) const
    {
        double altitud = 0, az = 0;
        tramo.AzAlt(jd, obs, altitud, az);
        return DiferenciaAngular(az, azimut);
    }
};

QString Linea(double serieDia, double fraccion, double altitud, double azimut)
{
    int hora = static_cast<int>(std::floor(fraccion * 24));
    int minuto = static_cast<int>(std::floor((fraccion * 24 - hora) * 60 + 0.5));
    if (minuto == 60) {
        minuto = 0;
        ++hora;
    }
    if (hora == 24) {
        hora = 0;
        serieDia += 1;
    }
    const QString fecha = fechaSerie::TextoFecha(fechaSerie::FechaDeSerie(serieDia)) + QLatin1Char(' ') +
                          modFormato::TextoReloj(hora * 60 + minuto);
    const QString alt = modFormato::Format(altitud, u"0.0") + QChar(palabras::kGrado);
    const QString az = modFormato::Format(azimut, u"0.0") + QChar(palabras::kGrado);
    return fecha.leftJustified(19, QLatin1Char(' '), true) + alt.leftJustified(11, QLatin1Char(' '), true) +
           az + palabras::kFinLinea;
}

// Adds the crossings of the local day that starts at `base`. Answers how many.
int BuscarEnDia(const Blanco& blanco, double base, double serieDia, int lineasLibres, QString& texto)
{
    const auto& t = Tiempos();
    const modAstro::TramoCuerpo tramo(blanco.luna, base);
    int lineas = 0;
    for (int k = 0; k < kPasos;) {
        const int libres = blanco.PasosLibres(tramo.EnHorizonte(t[k], blanco.obs));
        if (libres > 1) {
            k += libres;
            continue;
        }
        const double antes = blanco.Diferencia(tramo, base + t[k]);
        const double ahora = blanco.Diferencia(tramo, base + t[++k]);
        // From 90 degrees on it is the leap from +180 to -180 at the far side of the compass.
        if (Signo(ahora) == Signo(antes) || std::fabs(antes) + std::fabs(ahora) >= 90) {
            continue;
        }
        const double f = antes / (antes - ahora);
        const double tc = t[k] - kPaso + f * kPaso;
        double altitud = 0, azimut = 0;
        tramo.AzAlt(base + tc, blanco.obs, altitud, azimut);
        if (altitud >= 0) {
            texto += Linea(serieDia, tc, altitud, azimut);
            if (++lineas == lineasLibres) {
                break;
            }
        }
    }
    return lineas;
}

} // namespace

double DiferenciaAngular(double a, double b)
{
    const double d = std::fmod(a - b, 360.0);
    return d > 180 ? d - 360 : d < -180 ? d + 360 : d;
}

QString BuscarAzimut(const ContextoBusqueda& c, bool luna, double azimut, std::int32_t dias)
{
    if (!c.TieneObs) {
        return palabras::kSinObservador;
    }
    if (c.fecha.anio < modAstro::kAnioMinimo || c.fecha.anio > modAstro::kAnioMaximo) {
        return palabras::kFechaNoValida;
    }
    const double az = std::isfinite(azimut) ? std::fmod(azimut, 360.0) : 0;
    const Blanco blanco(c, luna, az < 0 ? az + 360 : az);
    const double j = modAstro::DiaJuliano(c.fecha.anio, c.fecha.mes, c.fecha.dia, 0);
    QString texto;
    int lineas = 0;
    for (std::int32_t i = 0; i < dias && lineas < kLineasMaximas; ++i) {
        lineas += BuscarEnDia(blanco, j + i - c.zona / 24, fechaSerie::SerieDeJd(j + i, 0),
                              kLineasMaximas - lineas, texto);
    }
    return lineas > 0 ? texto : palabras::kSinResultados;
}

int RutaCielo(const ContextoBusqueda& c, bool luna, std::span<double> azimutes, std::span<double> altitudes)
{
    if (!c.TieneObs || azimutes.size() < kMuestrasRuta || altitudes.size() < kMuestrasRuta) {
        return 0;
    }
    const double j = modAstro::DiaJuliano(c.fecha.anio, c.fecha.mes, c.fecha.dia, 0) + (c.hora - c.zona) / 24;
    for (int i = 0; i < kMuestrasRuta; ++i) {
        modAstro::AzAltCuerpo(j - 0.5 + i / static_cast<double>(kMuestrasRuta), c.lat, c.lon, luna,
                              altitudes[i], azimutes[i]);
    }
    return kMuestrasRuta;
}

} // namespace modAzimut

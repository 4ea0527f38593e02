#include "literalBusquedas.h"

#include "literalAstro.h"
#include "literalBusquedasTexto.h"
#include "modFormato.h"

namespace literalBusquedas {

namespace {

int Signo(double x)
{
    return x > 0 ? 1 : x < 0 ? -1 : 0;
}

} // namespace

double DiferenciaAngular(double a, double b)
{
    double d = a - b;
    while (d > 180) {
        d -= 360;
    }
    while (d < -180) {
        d += 360;
    }
    return d;
}

QString BuscarAzimut(const ContextoBusqueda& c, bool luna, double azimut, std::int32_t dias)
{
    if (!c.TieneObs) {
        return QStringLiteral("(Define primero un observador en el mapa)");
    }
    if (c.fecha.anio < 1900 || c.fecha.anio > 2200) {
        return QStringLiteral("(Fecha del programa no valida)");
    }
    while (azimut < 0) {
        azimut += 360;
    }
    while (azimut >= 360) {
        azimut -= 360;
    }
    const double j0 = literal::DiaJuliano(c.fecha.anio, c.fecha.mes, c.fecha.dia, 0);
    const double paso = 1.0 / 288.0;
    QString texto;
    int lineas = 0;
    for (std::int32_t i = 0; i < dias; ++i) {
        const double base = j0 + i - c.zona / 24;
        double alt = 0, az = 0;
        literal::AzAltCuerpo(base, c.lat, c.lon, luna, alt, az);
        double dAntes = DiferenciaAngular(az, azimut);
        for (double t = paso; t <= 1.0000001; t += paso) {
            literal::AzAltCuerpo(base + t, c.lat, c.lon, luna, alt, az);
            const double d = DiferenciaAngular(az, azimut);
            if (Signo(d) != Signo(dAntes) && std::fabs(dAntes) + std::fabs(d) < 90) {
                const double f = dAntes / (dAntes - d);
                const double tc = t - 1.0 / 288.0 + f * (1.0 / 288.0);
                literal::AzAltCuerpo(base + tc, c.lat, c.lon, luna, alt, az);
                if (alt >= 0) {
                    double dia = j0 - 2415018.5 + i;
                    int hora = static_cast<int>(std::floor(tc * 24));
                    int minuto = static_cast<int>(std::floor((tc * 24 - hora) * 60 + 0.5));
                    if (minuto == 60) {
                        minuto = 0;
                        hora += 1;
                    }
                    if (hora == 24) {
                        hora = 0;
                        dia += 1;
                    }
                    texto += Columna(TextoFecha(DeSerie(dia)) + QLatin1Char(' ') + Cifras(hora, 2) +
                                         QLatin1Char(':') + Cifras(minuto, 2),
                                     19) +
                             Columna(modFormato::Format(alt, u"0.0") + kGrado, 11) +
                             modFormato::Format(az, u"0.0") + kGrado + kFin;
                    if (++lineas > 2000) {
                        return texto;
                    }
                }
            }
            dAntes = d;
        }
    }
    return lineas > 0 ? texto : QStringLiteral("(Sin resultados en el rango)");
}

} // namespace literalBusquedas

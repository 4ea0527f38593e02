#include "escenaMapa.h"

#include "modAstro.h"

double JulianoDeLaInterfaz(const FechaCivil& fecha, double hora, double zona)
{
    if (fecha.anio < modAstro::kAnioMinimo || fecha.anio > modAstro::kAnioMaximo)
        return modAstro::DiaJuliano(2000, 1, 1, 0.5);
    double ut = hora - zona;
    if (ut < 0.0)
        ut += 24.0;
    else if (ut >= 24.0)
        ut -= 24.0;
    return modAstro::DiaJuliano(fecha.anio, fecha.mes, fecha.dia, ut / 24.0);
}

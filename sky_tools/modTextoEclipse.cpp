#include "modTextoEclipse.h"

#include "modAstro.h"
#include "modEclipses.h"
#include "modFormato.h"
#include "palabras.h"

namespace modTextoEclipse {

namespace {

using modEclipses::Clase;
using modEclipses::Vista;

modEclipses::Lugar LugarDe(const ContextoBusqueda& c)
{
    return {c.TieneObs, c.lat, c.lon};
}

QLatin1String Palabra(Clase clase)
{
    switch (clase) {
    case Clase::Penumbral:
        return QLatin1String(" penumbral");
    case Clase::Parcial:
        return QLatin1String(" parcial");
    case Clase::Anular:
        return QLatin1String(" anular");
    case Clase::Total:
        return QLatin1String(" total");
    default:
        return {};
    }
}

QLatin1String Palabra(Vista vista)
{
    switch (vista) {
    case Vista::Visible:
        return QLatin1String(" (visible)");
    case Vista::EnParte:
        return QLatin1String(" (parcialmente visible)");
    case Vista::BajoHorizonte:
        return QLatin1String(" (Luna bajo el horizonte)");
    default:
        return {};
    }
}

QString Magnitud(double magnitud)
{
    return QLatin1String(" mag ") + modFormato::Format(magnitud, u"0.00");
}

QString Horas(double inicio, double fin, double zona)
{
    return QLatin1Char(' ') + QString::fromStdString(modAstro::HoraDeDiaJuliano(inicio, zona)) +
           QLatin1Char('-') + QString::fromStdString(modAstro::HoraDeDiaJuliano(fin, zona));
}

} // namespace

QString CircunstanciasEclipseSol(const ContextoBusqueda& c, double jd)
{
    const modEclipses::EclipseSol e = modEclipses::CircunstanciasEclipseSol(jd, LugarDe(c));
    switch (e.clase) {
    case Clase::Ninguno:
        return {};
    case Clase::Posible:
        return QStringLiteral("(posible eclipse de Sol)");
    case Clase::NoVisible:
        return palabras::kEclipseSol + QLatin1String(" (no visible aqui)");
    default:
        return palabras::kEclipseSol + Palabra(e.clase) + Magnitud(e.magnitud) +
               Horas(e.inicio, e.fin, c.zona);
    }
}

QString CircunstanciasEclipseLuna(const ContextoBusqueda& c, double jd)
{
    const modEclipses::EclipseLuna e = modEclipses::CircunstanciasEclipseLuna(jd, LugarDe(c));
    if (e.clase == Clase::Ninguno) {
        return {};
    }
    return palabras::kEclipseLuna + Palabra(e.clase) +
           (e.clase == Clase::Penumbral ? QString() : Magnitud(e.magnitud)) + Horas(e.inicio, e.fin, c.zona) +
           Palabra(e.vista);
}

} // namespace modTextoEclipse

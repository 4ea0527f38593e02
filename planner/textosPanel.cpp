#include "textosPanel.h"

#include "modFormato.h"
#include "modGeo.h"
#include "modI18n.h"

#include <cmath>

using modFormato::Format;
using modI18n::Traducir;
using modI18n::TraducirCon;

namespace textosPanel {

namespace {

QString Grados(double v)
{
    return TraducirCon("main.dyn.deg", Format(v, u"0.0"));
}

struct BandaFase
{
    double hasta; // exclusive
    const char* clave;
};

constexpr BandaFase kBandas[] = {
    {0.22, "main.moon.phase.creciente_joven"},  {0.28, "main.moon.phase.cuarto_creciente"},
    {0.47, "main.moon.phase.gibosa_creciente"}, {0.53, "main.moon.phase.llena"},
    {0.72, "main.moon.phase.gibosa_menguante"}, {0.78, "main.moon.phase.cuarto_menguante"},
};

} // namespace

TextosAstros Astros(const modAstro::MomentosDia& m, double zona)
{
    const auto hora = [zona](double fraccion) {
        return QString::fromStdString(modAstro::FormatearHora(fraccion, zona));
    };
    TextosAstros t;
    t.SunRise = TraducirCon("main.dyn.sun.rise", hora(m.SolOrto));
    t.SunTransit = TraducirCon("main.dyn.sun.transit", hora(m.SolTransito));
    t.SunSet = TraducirCon("main.dyn.sun.set", hora(m.SolOcaso));
    t.SunAz = TraducirCon("main.dyn.sun.az", Grados(m.SolAz));
    t.SunAlt = TraducirCon("main.dyn.sun.alt", Grados(m.SolAlt));
    t.Gold = TraducirCon("main.dyn.hora_dorada", hora(m.DoradaAM), hora(m.DoradaPM));
    t.Blue = TraducirCon("main.dyn.hora_azul", hora(m.AzulAM), hora(m.AzulPM));
    t.Civil = TraducirCon("main.dyn.crep_civil", hora(m.CivilAlba), hora(m.CivilOcaso));
    t.Naut = TraducirCon("main.dyn.crep_naut", hora(m.NauticoAlba), hora(m.NauticoOcaso));
    t.Astro = TraducirCon("main.dyn.crep_astro", hora(m.AstroAlba), hora(m.AstroOcaso));
    t.MoonRise = TraducirCon("main.dyn.moon.rise", hora(m.LunaOrto));
    t.MoonTransit = TraducirCon("main.dyn.moon.transit", hora(m.LunaTransito));
    t.MoonSet = TraducirCon("main.dyn.moon.set", hora(m.LunaOcaso));
    t.MoonAz = TraducirCon("main.dyn.moon.az", Grados(m.LunaAz));
    t.MoonAlt = TraducirCon("main.dyn.moon.alt", Grados(m.LunaAlt));
    t.MoonPhase = TraducirCon("main.dyn.moon.phase", NombreFaseLunar(m.LunaFase),
                              TraducirCon("main.dyn.moon.phase_val", Format(m.LunaFase * 100.0, u"0")));
    t.MoonIllum = TraducirCon("main.dyn.moon.illum",
                              TraducirCon("main.dyn.percent", Format(m.LunaIlum * 100.0, u"0.0")));
    t.MoonDist = TraducirCon("main.dyn.moon.dist", TraducirCon("main.dyn.km", Format(m.LunaDist, u"#,##0")));
    return t;
}

TextosAstros AstrosVacios()
{
    const QString nada = Traducir("main.dyn.dashes");
    const auto una = [&nada](const char* clave) { return TraducirCon(clave, nada); };
    const auto dos = [&nada](const char* clave) { return TraducirCon(clave, nada, nada); };
    TextosAstros t;
    t.SunRise = una("main.dyn.sun.rise");
    t.SunTransit = una("main.dyn.sun.transit");
    t.SunSet = una("main.dyn.sun.set");
    t.SunAz = una("main.dyn.sun.az");
    t.SunAlt = una("main.dyn.sun.alt");
    t.Gold = dos("main.dyn.hora_dorada");
    t.Blue = dos("main.dyn.hora_azul");
    t.Civil = dos("main.dyn.crep_civil");
    t.Naut = dos("main.dyn.crep_naut");
    t.Astro = dos("main.dyn.crep_astro");
    t.MoonRise = una("main.dyn.moon.rise");
    t.MoonTransit = una("main.dyn.moon.transit");
    t.MoonSet = una("main.dyn.moon.set");
    t.MoonAz = una("main.dyn.moon.az");
    t.MoonAlt = una("main.dyn.moon.alt");
    t.MoonPhase = dos("main.dyn.moon.phase");
    t.MoonIllum = una("main.dyn.moon.illum");
    t.MoonDist = una("main.dyn.moon.dist");
    return t;
}

QString Coordenadas(double lat, double lon)
{
    return Format(lat, u"0.0000") + QLatin1String(", ") + Format(lon, u"0.0000");
}

QString CoordenadasVacias()
{
    return Traducir("main.dyn.dashes_coord");
}

TextosObjetivo Objetivo(double obsLat, double obsLon, bool tieneTgt, double tgtLat, double tgtLon)
{
    if (!tieneTgt) {
        const QString nada = Traducir("main.dyn.dashes");
        return {CoordenadasVacias(), TraducirCon("main.dyn.distancia", nada),
                TraducirCon("main.dyn.bearing", nada)};
    }
    const double d = modGeo::DistanciaKm(obsLat, obsLon, tgtLat, tgtLon);
    const double b = modGeo::RumboInicial(obsLat, obsLon, tgtLat, tgtLon);
    return {Coordenadas(tgtLat, tgtLon),
            TraducirCon("main.dyn.distancia", TraducirCon("main.dyn.km", Format(d, u"0.00"))),
            TraducirCon("main.dyn.bearing", Grados(b))};
}

QString TextoHoraLocal(double hora)
{
    const double hh = std::trunc(hora);
    const double mm = std::trunc((hora - hh) * 60.0 + 0.5);
    return TraducirCon("main.dyn.hora_local", Format(hh, u"00") + QLatin1Char(':') + Format(mm, u"00"));
}

QString TextoHoraLocalVacia()
{
    return TraducirCon("main.dyn.hora_local", Traducir("main.dyn.dashes"));
}

QString ClaveFaseLunar(double fase)
{
    if (fase < 0.03 || fase > 0.97)
        return QStringLiteral("main.moon.phase.nueva");
    for (const BandaFase& b : kBandas)
        if (fase < b.hasta)
            return QLatin1String(b.clave);
    return QStringLiteral("main.moon.phase.menguante_vieja");
}

QString NombreFaseLunar(double fase)
{
    return Traducir(ClaveFaseLunar(fase));
}

} // namespace textosPanel

#include "modEclipses.h"

#include "literalAstro.h"
#include "modAstro.h"
#include "modSucesos.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

using modEclipses::Clase;
using modEclipses::Lugar;
using modEclipses::Vista;

constexpr double kMinuto = 1.0 / 1440;

// The syzygies as the sweep of the year gives them.
double Sicigia(std::int16_t anio, modSucesos::Tipo tipo, std::int16_t mes, std::int16_t dia)
{
    const double dia0 = modAstro::DiaJuliano(anio, mes, dia, 0);
    for (const auto& s : modSucesos::SucesosDelAnio(anio)) {
        if (s.tipo == tipo && s.jd >= dia0 && s.jd < dia0 + 1) {
            return s.jd;
        }
    }
    ADD_FAILURE() << "no such syzygy";
    return 0;
}

double AgostoSol()
{
    return Sicigia(2026, modSucesos::Tipo::LunaNueva, 8, 12);
}
double MarzoLuna()
{
    return Sicigia(2026, modSucesos::Tipo::LunaLlena, 3, 3);
}

double AltitudSol(double jd, const Lugar& l)
{
    double alt = 0, az = 0;
    literal::AzAltCuerpo(jd, l.lat, l.lon, false, alt, az);
    return alt;
}

struct CasoSol
{
    const char* frase;
    double lat, lon;
    Clase clase;
    double magnitud; // to 0.01
};

// The eclipse of 12 August 2026 by this system's own rule: without Delta-T the shadow runs some 80 km aside
// of where it will, so that Madrid stands just inside it and Reykjavik just outside.
constexpr CasoSol kAgosto[] = {
    {"Oviedo, deep in the shadow's path", 43.3614, -5.8593, Clase::Total, 1.01},
    {"Burgos", 42.344, -3.697, Clase::Total, 1.00},
    {"Madrid, at the path's edge", 40.4168, -3.7038, Clase::Total, 1.00},
    {"Palma, at sunset", 39.57, 2.65, Clase::Total, 1.01},
    {"Reykjavik", 64.15, -21.94, Clase::Parcial, 0.99},
    {"New York, a bite in the forenoon", 40.71, -74.0, Clase::Parcial, 0.20},
    {"Los Angeles lies outside the penumbra", 34.05, -118.24, Clase::NoVisible, 0},
    {"Sydney has night", -33.87, 151.21, Clase::NoVisible, 0},
};

TEST(modEclipses, ElDeSolDe12DeAgostoDe2026)
{
    const double jd = AgostoSol();
    for (const CasoSol& c : kAgosto) {
        SCOPED_TRACE(c.frase);
        const auto e = modEclipses::CircunstanciasEclipseSol(jd, {true, c.lat, c.lon});
        EXPECT_EQ(static_cast<int>(e.clase), static_cast<int>(c.clase));
        EXPECT_NEAR(e.magnitud, c.magnitud, 0.006);
        if (e.clase != Clase::NoVisible) {
            EXPECT_LT(e.inicio, e.maximo);
            EXPECT_LT(e.maximo, e.fin);
            EXPECT_LT(e.fin - e.inicio, 2.5 / 24);
        }
    }
}

TEST(modEclipses, SinObservadorElDeSolEsPosible)
{
    EXPECT_EQ(modEclipses::CircunstanciasEclipseSol(AgostoSol(), {}).clase, Clase::Posible);
}

TEST(modEclipses, UnAnularDesdeLaAntartida)
{
    // Concordia station, in the path of the annular eclipse of 17 February 2026.
    const double jd = Sicigia(2026, modSucesos::Tipo::LunaNueva, 2, 17);
    const auto e = modEclipses::CircunstanciasEclipseSol(jd, {true, -75.1, 123.33});
    EXPECT_EQ(e.clase, Clase::Anular);
    EXPECT_NEAR(e.magnitud, 0.97, 0.015);
}

struct CasoLuna
{
    const char* frase;
    double lat, lon;
    Vista vista;
};

constexpr CasoLuna kMarzo[] = {
    {"Tokyo, Moon up all night", 35.68, 139.69, Vista::Visible},
    {"Los Angeles, before dawn", 34.05, -118.24, Vista::Visible},
    {"New York, the Moon sets before the maximum", 40.71, -74.0, Vista::EnParte},
    {"Delhi, the Moon rises after it", 28.6, 77.2, Vista::EnParte},
    {"Madrid has day", 40.4168, -3.7038, Vista::BajoHorizonte},
};

TEST(modEclipses, ElDeLunaDe3DeMarzoDe2026)
{
    const double jd = MarzoLuna();
    for (const CasoLuna& c : kMarzo) {
        SCOPED_TRACE(c.frase);
        const auto e = modEclipses::CircunstanciasEclipseLuna(jd, {true, c.lat, c.lon});
        EXPECT_EQ(e.clase, Clase::Total);
        EXPECT_NEAR(e.magnitud, 1.16, 0.01);
        EXPECT_EQ(static_cast<int>(e.vista), static_cast<int>(c.vista));
    }
    const auto e = modEclipses::CircunstanciasEclipseLuna(jd, {});
    EXPECT_EQ(e.vista, Vista::SinObservador);
    EXPECT_EQ(e.clase, Clase::Total);
    // Umbral contacts, about a minute and a half after the almanac's 09:50 and 13:17 UT.
    const double dia = modAstro::DiaJuliano(2026, 3, 3, 0);
    EXPECT_NEAR((e.inicio - dia) * 1440, 9 * 60 + 51.5, 2);
    EXPECT_NEAR((e.fin - dia) * 1440, 13 * 60 + 18.5, 2);
}

TEST(modEclipses, ElPenumbralCuentaDesdeLaPenumbra)
{
    // 20 February 2027, penumbral: some four hours between the penumbral contacts. The partial one of 28
    // August 2026 is told by its umbral ones, under three and a half hours, although its penumbra takes more
    // than five.
    const auto penumbral =
        modEclipses::CircunstanciasEclipseLuna(Sicigia(2027, modSucesos::Tipo::LunaLlena, 2, 20), {});
    EXPECT_EQ(penumbral.clase, Clase::Penumbral);
    EXPECT_GT(penumbral.fin - penumbral.inicio, 3.5 / 24);
    EXPECT_LT(penumbral.fin - penumbral.inicio, 4.5 / 24);
    const auto parcial =
        modEclipses::CircunstanciasEclipseLuna(Sicigia(2026, modSucesos::Tipo::LunaLlena, 8, 28), {});
    EXPECT_EQ(parcial.clase, Clase::Parcial);
    EXPECT_LT(parcial.fin - parcial.inicio, 3.5 / 24);
}

// An instant near `jd` at which the quick latitude stands at a limit, from the side of the node.
double InstanteConLatitud(double jd, double limite)
{
    double dentro = jd, fuera = jd;
    while (std::fabs(modAstro::LatitudEclipticaLuna(dentro)) > limite) {
        dentro += 0.1;
    }
    fuera = dentro;
    while (std::fabs(modAstro::LatitudEclipticaLuna(fuera)) <= limite) {
        fuera += 0.1;
    }
    for (int i = 0; i < 60; ++i) {
        const double medio = (dentro + fuera) / 2;
        (std::fabs(modAstro::LatitudEclipticaLuna(medio)) <= limite ? dentro : fuera) = medio;
    }
    return dentro;
}

TEST(modEclipses, MasAllaDelLimiteDeLatitudNoSeMira)
{
    const double kBit = 1e-8; // days; a Julian day's last bit is 5e-10
    const double enLimite = InstanteConLatitud(2461041.5, modEclipses::kLatitudMaximaSol);
    const Lugar madrid{true, 40.4168, -3.7038};
    // Inside, the walk is made, and finds no contact at this moment of no new Moon.
    EXPECT_EQ(modEclipses::CircunstanciasEclipseSol(enLimite, madrid).clase, Clase::NoVisible);
    EXPECT_EQ(modEclipses::CircunstanciasEclipseSol(enLimite + kBit, madrid).clase, Clase::Ninguno);
    EXPECT_EQ(modEclipses::CircunstanciasEclipseSol(enLimite, {}).clase, Clase::Posible);
    EXPECT_EQ(modEclipses::CircunstanciasEclipseSol(enLimite + kBit, {}).clase, Clase::Ninguno);
    EXPECT_EQ(modEclipses::CircunstanciasEclipseLuna(enLimite, {}).clase, Clase::Ninguno);
}

TEST(modEclipses, ElSolCuentaDesdeTresDecimasBajoElHorizonte)
{
    // Along a parallel that sees the August eclipse rise in the far west, the first contact counted is either
    // the true one or the minute at which the Sun passes -0.3 degrees.
    int rozando = 0;
    for (double lon = -180; lon < -60; lon += 0.25) {
        const Lugar l{true, 60, lon};
        const auto e = modEclipses::CircunstanciasEclipseSol(AgostoSol(), l);
        if (e.clase < Clase::Parcial) {
            continue;
        }
        const double alt = AltitudSol(e.inicio, l);
        EXPECT_GT(alt, modEclipses::kAltitudMinimaSol);
        if (alt < 0) {
            ++rozando;
        }
    }
    EXPECT_GT(rozando, 0);
}

TEST(modEclipses, ElUltimoMinutoDelPaseoNoSePierde)
{
    // A moment before the syzygy from which the eclipse is still going on when the walk ends.
    const Lugar oviedo{true, 43.3614, -5.8593};
    const auto entero = modEclipses::CircunstanciasEclipseSol(AgostoSol(), oviedo);
    const double antes = entero.maximo - 3.5 / 24;
    EXPECT_NEAR(modEclipses::CircunstanciasEclipseSol(antes, oviedo).fin, antes + 3.5 / 24, kMinuto / 100);
    const double antesLuna = MarzoLuna() - 3.7 / 24;
    EXPECT_NEAR(modEclipses::CircunstanciasEclipseLuna(antesLuna, {}).fin, antesLuna + 3.7 / 24,
                kMinuto / 100);
}

} // namespace

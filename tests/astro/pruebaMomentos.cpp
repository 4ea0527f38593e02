// The day: crossings, transits, absences, the real horizon.
#include "PerfilHorizonte.h"
#include "modAstro.h"

#include <array>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace modAstro;
using modAstroEstado::BorrarPerfil;
using modAstroEstado::EstablecerPerfil;

constexpr double kLat = 40.4168, kLon = -3.7038;

double Altitud(double jd, double lat, double lon, bool luna)
{
    double altitud, azimut;
    AzAltCuerpo(jd, lat, lon, luna, altitud, azimut);
    return altitud;
}

double Azimut(double jd, double lat, double lon, bool luna)
{
    double altitud, azimut;
    AzAltCuerpo(jd, lat, lon, luna, altitud, azimut);
    return azimut;
}

// The moments of the samples, as the solver walks them.
std::array<double, 721> Muestras()
{
    std::array<double, 721> t{};
    for (int k = 1; k <= 720; ++k)
        t[k] = t[k - 1] + 1.0 / 720;
    return t;
}

class Momentos : public ::testing::Test
{
protected:
    void TearDown() override { BorrarPerfil(); }
};

TEST_F(Momentos, OrdenDeLosCampos)
{
    const MomentosDia m = CalcularMomentosDia(2026, 3, 20, 13, 1, kLat, kLon, false);
    double campos[31];
    std::memcpy(campos, &m, sizeof campos);
    EXPECT_EQ(campos[1], m.SolAlt);
    EXPECT_EQ(campos[4], m.SolOcaso);
    EXPECT_EQ(campos[11], m.DoradaAM);
    EXPECT_EQ(campos[14], m.AzulPM);
    EXPECT_EQ(campos[15], m.LunaAz);
    EXPECT_EQ(campos[19], m.LunaOcaso);
    EXPECT_EQ(campos[22], m.LunaDist);
    EXPECT_EQ(campos[24], m.SolAzOcaso);
    EXPECT_EQ(campos[28], m.SolAltTransito);
    EXPECT_EQ(campos[30], m.LunaAltTransito);
}

// Each moment stands where its name says: at its altitude, rising or setting, over latitudes and zones.
TEST_F(Momentos, CadaMomentoEstaASuAltitud)
{
    // A moment is known to 0.66e-9 day and the Julian day to 0.23e-9: 4e-7 degree of a turning sky.
    constexpr double kTolerancia = 4e-7;
    int presentes = 0;
    for (double lat = -75; lat <= 75; lat += 12.5)
        for (std::int16_t mes = 1; mes <= 12; ++mes) {
            const double lon = -180 + 29.0 * mes;
            const double zona = std::nearbyint(lon / 15);
            const MomentosDia m = CalcularMomentosDia(2026, mes, 17, 12, zona, lat, lon, false);
            const double j0 = DiaJuliano(2026, mes, 17, 0) - zona / 24;
            const struct
            {
                double momento, altitud;
                bool luna, sube;
            } eventos[] = {
                {m.SolOrto, -0.833, false, true},  {m.SolOcaso, -0.833, false, false},
                {m.CivilAlba, -6, false, true},    {m.CivilOcaso, -6, false, false},
                {m.NauticoAlba, -12, false, true}, {m.NauticoOcaso, -12, false, false},
                {m.AstroAlba, -18, false, true},   {m.AstroOcaso, -18, false, false},
                {m.DoradaAM, 6, false, true},      {m.DoradaPM, 6, false, false},
                {m.AzulAM, -4, false, true},       {m.AzulPM, -4, false, false},
                {m.LunaOrto, -0.833, true, true},  {m.LunaOcaso, -0.833, true, false},
            };
            for (const auto& e : eventos) {
                if (e.momento < 0)
                    continue;
                ++presentes;
                ASSERT_LT(e.momento, 1.0);
                const double jd = j0 + std::fmod(e.momento + zona / 24 + 2, 1.0); // back to local midnight
                ASSERT_NEAR(Altitud(jd, lat, lon, e.luna), e.altitud, kTolerancia) << lat << " mes " << mes;
                const double despues = Altitud(jd + 1e-4, lat, lon, e.luna);
                ASSERT_EQ(despues > e.altitud, e.sube) << lat << " mes " << mes;
            }
            if (m.SolTransito >= 0) {
                const double jd = j0 + std::fmod(m.SolTransito + zona / 24 + 2, 1.0);
                ASSERT_GE(m.SolAltTransito, Altitud(jd - 1e-3, lat, lon, false));
                ASSERT_GE(m.SolAltTransito, Altitud(jd + 1e-3, lat, lon, false));
                ASSERT_GE(m.SolAltTransito, m.SolAlt - 1e-9);
            }
        }
    EXPECT_GT(presentes, 1500);
}

TEST_F(Momentos, LosCrepusculosVanEnOrden)
{
    const MomentosDia m = CalcularMomentosDia(2026, 3, 20, 12, 0, kLat, 0, false);
    EXPECT_LT(m.AstroAlba, m.NauticoAlba);
    EXPECT_LT(m.NauticoAlba, m.CivilAlba);
    EXPECT_LT(m.CivilAlba, m.AzulAM);
    EXPECT_LT(m.AzulAM, m.SolOrto);
    EXPECT_LT(m.SolOrto, m.DoradaAM);
    EXPECT_LT(m.DoradaAM, m.SolTransito);
    EXPECT_LT(m.SolTransito, m.DoradaPM);
    EXPECT_LT(m.DoradaPM, m.SolOcaso);
    EXPECT_LT(m.SolOcaso, m.AzulPM);
    EXPECT_LT(m.AzulPM, m.CivilOcaso);
    EXPECT_LT(m.CivilOcaso, m.NauticoOcaso);
    EXPECT_LT(m.NauticoOcaso, m.AstroOcaso);
}

TEST_F(Momentos, LaZonaNoMueveElInstanteSinoSuTexto)
{
    const MomentosDia utc = CalcularMomentosDia(2026, 6, 10, 12, 0, kLat, kLon, false);
    const MomentosDia verano = CalcularMomentosDia(2026, 6, 10, 14, 2, kLat, kLon, false);
    EXPECT_NEAR(utc.SolOrto, verano.SolOrto, 3e-9) << "both are fractions of the UT day";
    EXPECT_NEAR(utc.SolAz, verano.SolAz, 1e-6) << "12 h in zone 0 is 14 h in zone 2";
    const double local = verano.SolOrto * 24 + 2;
    EXPECT_NEAR(std::stod(FormatearHora(verano.SolOrto, 2).substr(0, 2)), std::floor(local), 0.01);
    EXPECT_EQ(FormatearHora(0.25, 0), "06:00");
}

// There are civil days without a moonrise at any latitude, and the next rise then comes soon after
// midnight.
TEST_F(Momentos, DiasSinOrtoOSinOcasoDeLaLuna)
{
    for (const double lat : {-50.0, 0.0, 40.0, 60.0}) {
        int sinOrto = 0, sinOcaso = 0;
        for (std::int16_t dia = 1; dia <= 60; ++dia) {
            const MomentosDia m = CalcularMomentosDia(2026, 3, dia, 12, 0, lat, 0, false);
            if (m.LunaOrto < 0) {
                ++sinOrto;
                EXPECT_EQ(m.LunaAzOrto, -1.0);
                const MomentosDia siguiente =
                    CalcularMomentosDia(2026, 3, static_cast<std::int16_t>(dia + 1), 12, 0, lat, 0, false);
                EXPECT_GE(siguiente.LunaOrto, 0.0);
                EXPECT_LT(siguiente.LunaOrto, 0.1) << lat << " day " << dia;
            }
            if (m.LunaOcaso < 0) {
                ++sinOcaso;
                EXPECT_EQ(m.LunaAzOcaso, -1.0);
            }
        }
        EXPECT_GE(sinOrto, 1) << lat;
        EXPECT_LE(sinOrto, 4) << lat;
        EXPECT_GE(sinOcaso, 1) << lat;
        EXPECT_LE(sinOcaso, 4) << lat;
    }
}

TEST_F(Momentos, ElOcasoPuedePrecederAlOrto)
{
    double orto, maximo, ocaso;
    BuscarCruceAltitud(DiaJuliano(2026, 3, 20, 0.5), kLat, kLon, kAltitudOrto, false, false, orto, maximo,
                       ocaso);
    EXPECT_GT(ocaso, 0.0);
    EXPECT_GT(orto, ocaso) << "the day starts at noon, with the Sun up";
    EXPECT_GE(maximo, 0.0);
}

// Tromsø, 69.65 north: midnight Sun from 20 May to 22 July, polar night around the December solstice.
TEST_F(Momentos, SolDeMedianoche)
{
    const MomentosDia m = CalcularMomentosDia(2026, 6, 21, 12, 2, 69.65, 18.96, false);
    EXPECT_EQ(m.SolOrto, -1.0);
    EXPECT_EQ(m.SolOcaso, -1.0);
    EXPECT_GE(m.SolTransito, 0.0);
    EXPECT_EQ(m.SolAzOrto, -1.0);
    EXPECT_NEAR(m.SolAltTransito, 90 - 69.65 + 23.436, 0.01);
    EXPECT_NEAR(m.SolAzTransito, 180, 1);
    EXPECT_EQ(FormatearHora(m.SolOrto, 2), "--:--");
}

TEST_F(Momentos, NochePolarConCrepusculoCivil)
{
    const MomentosDia m = CalcularMomentosDia(2026, 12, 21, 12, 1, 69.65, 18.96, false);
    EXPECT_EQ(m.SolOrto, -1.0);
    EXPECT_EQ(m.SolOcaso, -1.0);
    EXPECT_EQ(m.SolTransito, -1.0) << "never above the altitude aimed at";
    EXPECT_EQ(m.SolAltTransito, -999.0);
    EXPECT_EQ(m.SolAzTransito, -1.0);
    EXPECT_GE(m.CivilAlba, 0.0);
    EXPECT_GE(m.CivilOcaso, 0.0);
}

TEST_F(Momentos, ElOrtoDespuesDeLaUltimaMuestraFaltaEseDia)
{
    // Start the day so that moonrise falls a second beyond its end, then a second before it. The rise
    // of the day before is 50 minutes earlier by the clock, so it does not come into the day either.
    double orto, maximo, ocaso;
    const double jd = DiaJuliano(2026, 3, 10, 0);
    BuscarCruceAltitud(jd, kLat, kLon, kAltitudOrto, true, false, orto, maximo, ocaso);
    ASSERT_GT(orto, 0.0);
    const double salida = jd + orto;
    BuscarCruceAltitud(salida - 1 - 1e-5, kLat, kLon, kAltitudOrto, true, false, orto, maximo, ocaso);
    EXPECT_EQ(orto, -1.0);
    BuscarCruceAltitud(salida - 1 + 1e-5, kLat, kLon, kAltitudOrto, true, false, orto, maximo, ocaso);
    EXPECT_NEAR(orto, 1 - 1e-5, 3e-9);
}

// An altitude exactly equal to the threshold at a sample counts as above it.
TEST_F(Momentos, IgualCuentaComoEncima)
{
    for (const bool luna : {false, true}) {
        double orto, maximo, ocaso;
        // A body that rises through the first sample: equal is above already, a hair more is not.
        const double sube = DiaJuliano(2026, 3, 20, luna ? 0.4 : 0.3);
        double altitud = Altitud(sube, kLat, kLon, luna);
        ASSERT_GT(Altitud(sube + 0.01, kLat, kLon, luna), altitud);
        BuscarCruceAltitud(sube, kLat, kLon, altitud, luna, false, orto, maximo, ocaso);
        EXPECT_TRUE(orto < 0 || orto > 0.5) << orto;
        const double pelo = std::nextafter(altitud, 100);
        BuscarCruceAltitud(sube, kLat, kLon, pelo, luna, false, orto, maximo, ocaso);
        EXPECT_GE(orto, 0.0);
        EXPECT_LT(orto, 1e-8);
        // One that sets through it.
        const double baja = DiaJuliano(2026, 3, 20, luna ? 0.75 : 0.65);
        altitud = Altitud(baja, kLat, kLon, luna);
        ASSERT_LT(Altitud(baja + 0.01, kLat, kLon, luna), altitud);
        BuscarCruceAltitud(baja, kLat, kLon, altitud, luna, false, orto, maximo, ocaso);
        EXPECT_GE(ocaso, 0.0);
        EXPECT_LT(ocaso, 1e-8);
    }
}

TEST_F(Momentos, ElMaximoExigeEstarEstrictamentePorEncima)
{
    const std::array<double, 721> t = Muestras();
    for (const bool luna : {false, true}) {
        const double jd0 = DiaJuliano(2026, 3, 20, 0);
        double mejor = -999;
        for (int k = 1; k <= 720; ++k)
            mejor = std::fmax(mejor, Altitud(jd0 + t[k], kLat, kLon, luna));
        double orto, maximo, ocaso;
        BuscarCruceAltitud(jd0, kLat, kLon, mejor, luna, false, orto, maximo, ocaso);
        EXPECT_EQ(maximo, -1.0) << "equal is not above";
        BuscarCruceAltitud(jd0, kLat, kLon, std::nextafter(mejor, -100), luna, false, orto, maximo, ocaso);
        EXPECT_GE(maximo, 0.0);
    }
}

TEST_F(Momentos, ElInicioDelDiaNoCompitePorElMaximo)
{
    // The day starts at culmination: the samples after it fall, and the next culmination is nearly a day
    // later and, in spring, higher.
    double orto, maximo, ocaso;
    const double jd0 = DiaJuliano(2026, 3, 20, 0);
    BuscarCruceAltitud(jd0, kLat, 0, kAltitudOrto, false, false, orto, maximo, ocaso);
    const double culminacion = jd0 + maximo;
    BuscarCruceAltitud(culminacion, kLat, 0, kAltitudOrto, false, false, orto, maximo, ocaso);
    EXPECT_GT(maximo, 0.99);
    EXPECT_LE(maximo, 1.0);
}

TEST_F(Momentos, AltitudesQueNingunCuerpoAlcanza)
{
    for (const double objetivo : {90.0, 95.0, 1e9, -90.0, -95.0}) {
        double orto, maximo, ocaso;
        BuscarCruceAltitud(DiaJuliano(2026, 3, 20, 0), kLat, kLon, objetivo, false, false, orto, maximo,
                           ocaso);
        EXPECT_EQ(orto, -1.0) << objetivo;
        EXPECT_EQ(ocaso, -1.0) << objetivo;
        EXPECT_EQ(maximo >= 0, objetivo < 0) << objetivo;
    }
}

TEST_F(Momentos, DatosAbsurdosTerminan)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double inf = std::numeric_limits<double>::infinity();
    for (const double malo : {nan, inf, -inf, 1e308}) {
        EXPECT_EQ(CalcularMomentosDia(2026, 1, 1, 12, 1, malo, 0, false).SolOrto >= 1, false);
        CalcularMomentosDia(2026, 1, 1, 12, 1, 40, malo, true);
        CalcularMomentosDia(2026, 1, 1, malo, 1, 40, 0, false);
        CalcularMomentosDia(2026, 1, 1, 12, malo, 40, 0, true);
    }
    const MomentosDia m = CalcularMomentosDia(32767, 12, 31, 12, 1, 40, 0, false);
    EXPECT_TRUE(std::isfinite(m.SolAlt));
    EXPECT_EQ(CalcularMomentosDia(2026, 1, 1, 12, 1, nan, 0, false).SolTransito, -1.0);
}

TEST_F(Momentos, RefinarCruceSigueSuRegla)
{
    const double jd0 = DiaJuliano(2026, 3, 20, 0);
    double orto, maximo, ocaso;
    BuscarCruceAltitud(jd0, kLat, kLon, kAltitudOrto, false, false, orto, maximo, ocaso);
    const double paso = 1.0 / 720;
    const double k = std::ceil(orto / paso);
    const double solo = RefinarCruce(jd0, (k - 1) * paso, k * paso, kAltitudOrto, kLat, kLon, false, false);
    EXPECT_NEAR(solo, orto, 1.4e-9);
    // Without a change of sign the lower end climbs: the answer is the upper end, but for half a step.
    EXPECT_NEAR(RefinarCruce(jd0, 0.5, 0.6, kAltitudOrto, kLat, kLon, false, false), 0.6, 1e-7);
    // The set is found as well as the rise.
    EXPECT_NEAR(RefinarCruce(jd0, 0.6, 0.9, kAltitudOrto, kLat, kLon, false, false), ocaso, 4e-7);
}

// --- The real horizon ---

TEST_F(Momentos, ElHorizonteMueveSoloOrtosYOcasos)
{
    std::array<double, 720> cinco;
    cinco.fill(5.0);
    EstablecerPerfil(cinco, kLat, kLon);
    const MomentosDia llano = CalcularMomentosDia(2026, 3, 20, 12, 1, kLat, kLon, false);
    const MomentosDia real = CalcularMomentosDia(2026, 3, 20, 12, 1, kLat, kLon, true);
    EXPECT_GT(real.SolOrto, llano.SolOrto + 0.015);
    EXPECT_LT(real.SolOcaso, llano.SolOcaso - 0.015);
    EXPECT_GT(real.LunaOrto, llano.LunaOrto + 0.015);
    EXPECT_LT(real.LunaOcaso, llano.LunaOcaso - 0.015);
    const double j0 = DiaJuliano(2026, 3, 20, 0) - 1.0 / 24;
    EXPECT_NEAR(Altitud(j0 + real.SolOrto + 1.0 / 24, kLat, kLon, false), 5 - 0.833, 4e-7);
    EXPECT_EQ(real.SolTransito, llano.SolTransito);
    EXPECT_EQ(real.CivilAlba, llano.CivilAlba);
    EXPECT_EQ(real.AstroOcaso, llano.AstroOcaso);
    EXPECT_EQ(real.DoradaAM, llano.DoradaAM);
    EXPECT_EQ(real.AzulPM, llano.AzulPM);
    EXPECT_EQ(real.LunaTransito, llano.LunaTransito);
}

TEST_F(Momentos, HorizontePorEncimaTodoElDia)
{
    std::array<double, 720> muro;
    muro.fill(80.0);
    EstablecerPerfil(muro, kLat, kLon);
    const MomentosDia m = CalcularMomentosDia(2026, 6, 21, 12, 2, kLat, kLon, true);
    EXPECT_EQ(m.SolOrto, -1.0);
    EXPECT_EQ(m.SolOcaso, -1.0);
    EXPECT_EQ(m.SolAzOrto, -1.0);
    EXPECT_GE(m.SolTransito, 0.0) << "the transit asks for -0.833 without the horizon";
    EXPECT_NEAR(m.SolAltTransito, 90 - kLat + 23.437, 0.01);
}

TEST_F(Momentos, UnaMuescaDaVariosOrtosYCuentaElPrimero)
{
    // A skyline of 10 degrees with a gap down to 0 where the Sun comes up.
    const double jd0 = DiaJuliano(2026, 3, 20, 0);
    double orto, maximo, ocaso;
    BuscarCruceAltitud(jd0, kLat, 0, 2.0, false, false, orto, maximo, ocaso);
    const double hueco = Azimut(jd0 + orto, kLat, 0, false);
    std::array<double, 720> perfil;
    for (int i = 0; i < 720; ++i)
        perfil[i] = std::fabs(i * 0.5 - hueco) < 2 ? 0.0 : 10.0;
    EstablecerPerfil(perfil, kLat, 0);
    const auto encima = [&](double t) {
        double altitud, azimut;
        AzAltCuerpo(jd0 + t, kLat, 0, false, altitud, azimut);
        return altitud >= kAltitudOrto + modAstroEstado::HorizonteEnAzimut(azimut);
    };
    const std::array<double, 721> t = Muestras();
    int subidas = 0, primera = 0;
    for (int k = 1; k <= 720; ++k)
        if (!encima(t[k - 1]) && encima(t[k]) && ++subidas == 1)
            primera = k;
    ASSERT_EQ(subidas, 2) << "the notch shows the Sun, the wall hides it, it rises again";
    BuscarCruceAltitud(jd0, kLat, 0, kAltitudOrto, false, true, orto, maximo, ocaso);
    EXPECT_GE(orto, t[primera - 1]);
    EXPECT_LE(orto, t[primera]);
    EXPECT_LT(ocaso, 0.5) << "and the first set is where the notch ends";
    EXPECT_GT(ocaso, orto);
}

TEST_F(Momentos, SinPerfilElHorizonteEsLlano)
{
    BorrarPerfil();
    const MomentosDia llano = CalcularMomentosDia(2026, 3, 20, 12, 1, kLat, kLon, false);
    const MomentosDia real = CalcularMomentosDia(2026, 3, 20, 12, 1, kLat, kLon, true);
    EXPECT_NEAR(real.SolOrto, llano.SolOrto, 2e-9);
    EXPECT_NEAR(real.LunaOcaso, llano.LunaOcaso, 2e-9);
}

} // namespace

#include "tablaPrueba.h"
#include "textosPanel.h"

#include "modFormato.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

// "1234.5" and "1,234" of a text as the region of the running test writes them.
QString Regional(const char* texto)
{
    QString r;
    for (const char* c = texto; *c != '\0'; ++c)
        r += *c == '.'    ? modFormato::SeparadoresSistema().decimal
             : *c == '\'' ? modFormato::SeparadoresSistema().miles
                          : QString(QLatin1Char(*c));
    return r;
}

class textosPanelPrueba : public ::testing::Test
{
protected:
    void SetUp() override { tablaPrueba::Cargar(); }
};

} // namespace

// Moments by hand: 0.25 is 06:00 UT, 08:00 in zone 2.
TEST_F(textosPanelPrueba, CadaEtiquetaConSuCampo)
{
    modAstro::MomentosDia m;
    m.SolAz = 123.456;
    m.SolAlt = -12.34;
    m.SolOrto = 0.25;
    m.SolTransito = 0.5;
    m.SolOcaso = 0.75;
    m.CivilAlba = 1.0 / 24;
    m.CivilOcaso = 2.0 / 24;
    m.NauticoAlba = 3.0 / 24;
    m.NauticoOcaso = 4.0 / 24;
    m.AstroAlba = 5.0 / 24;
    m.AstroOcaso = 6.0 / 24;
    m.DoradaAM = 7.0 / 24;
    m.DoradaPM = 8.0 / 24;
    m.AzulAM = 9.0 / 24;
    m.AzulPM = 10.0 / 24;
    m.LunaAz = 0.04;
    m.LunaAlt = -0.04;
    m.LunaOrto = 11.0 / 24;
    m.LunaTransito = 12.5 / 24;
    m.LunaOcaso = 23.0 / 24;
    m.LunaFase = 0.255;
    m.LunaIlum = 0.5125;
    m.LunaDist = 384400.4;
    const auto t = textosPanel::Astros(m, 2.0);
    EXPECT_EQ(t.SunRise, QStringLiteral("s.rise 08:00"));
    EXPECT_EQ(t.SunTransit, QStringLiteral("s.transit 14:00"));
    EXPECT_EQ(t.SunSet, QStringLiteral("s.set 20:00"));
    EXPECT_EQ(t.SunAz, QStringLiteral("s.az 123") + Regional(".5d"));
    EXPECT_EQ(t.SunAlt, QStringLiteral("s.alt -12") + Regional(".3d"));
    EXPECT_EQ(t.Civil, QStringLiteral("civil 03:00 / 04:00"));
    EXPECT_EQ(t.Naut, QStringLiteral("naut 05:00 / 06:00"));
    EXPECT_EQ(t.Astro, QStringLiteral("astro 07:00 / 08:00"));
    EXPECT_EQ(t.Gold, QStringLiteral("gold 09:00 / 10:00"));
    EXPECT_EQ(t.Blue, QStringLiteral("blue 11:00 / 12:00"));
    EXPECT_EQ(t.MoonRise, QStringLiteral("m.rise 13:00"));
    EXPECT_EQ(t.MoonTransit, QStringLiteral("m.transit 14:30"));
    EXPECT_EQ(t.MoonSet, QStringLiteral("m.set 01:00")) << "past midnight";
    EXPECT_EQ(t.MoonAz, QStringLiteral("m.az 0") + Regional(".0d"));
    EXPECT_EQ(t.MoonAlt, QStringLiteral("m.alt 0") + Regional(".0d")) << "no negative zero";
    EXPECT_EQ(t.MoonPhase, QStringLiteral("phase cuarto creciente (26pc)")) << "25.5 rounds away from zero";
    EXPECT_EQ(t.MoonIllum, QStringLiteral("illum 51") + Regional(".3pc"));
    EXPECT_EQ(t.MoonDist, QStringLiteral("dist ") + Regional("384'400") + QStringLiteral("km"));
}

// Longyearbyen, 78.22 N 15.65 E, 21 June: the Sun neither rises nor sets nor sinks into any twilight.
TEST_F(textosPanelPrueba, EnElDiaPolarNoHayOrtoNiOcaso)
{
    const auto m = modAstro::CalcularMomentosDia(2026, 6, 21, 12.0, 2.0, 78.22, 15.65, false);
    EXPECT_LT(m.SolAzOrto, 0.0);
    EXPECT_LT(m.SolAzOcaso, 0.0);
    const auto t = textosPanel::Astros(m, 2.0);
    EXPECT_EQ(t.SunRise, QStringLiteral("s.rise --:--"));
    EXPECT_EQ(t.SunSet, QStringLiteral("s.set --:--"));
    EXPECT_EQ(t.Civil, QStringLiteral("civil --:-- / --:--"));
    EXPECT_EQ(t.SunTransit.size(), QStringLiteral("s.transit 12:00").size());
    EXPECT_NE(t.SunTransit, QStringLiteral("s.transit --:--"));
}

TEST_F(textosPanelPrueba, SinDatosHayRayas)
{
    const auto t = textosPanel::AstrosVacios();
    EXPECT_EQ(t.SunRise, QStringLiteral("s.rise nada"));
    EXPECT_EQ(t.Gold, QStringLiteral("gold nada / nada"));
    EXPECT_EQ(t.MoonDist, QStringLiteral("dist nada"));
    EXPECT_EQ(t.MoonPhase, QStringLiteral("phase nada (nada)"));
    EXPECT_EQ(textosPanel::CoordenadasVacias(), QStringLiteral("sin lugar"));
    EXPECT_EQ(textosPanel::TextoHoraLocalVacia(), QStringLiteral("hora nada"));
}

TEST_F(textosPanelPrueba, Coordenadas)
{
    EXPECT_EQ(textosPanel::Coordenadas(40.4168, -3.7038),
              Regional("40.4168") + QStringLiteral(", ") + Regional("-3.7038"));
    EXPECT_EQ(textosPanel::Coordenadas(-0.00001, 0.00005),
              Regional("0.0000") + QStringLiteral(", ") + Regional("0.0001"));
}

// A degree along the equator: 6371.0088 pi / 180 km.
TEST_F(textosPanelPrueba, ObjetivoAlOeste)
{
    const auto t = textosPanel::Objetivo(0.0, 0.0, true, 0.0, -1.0);
    EXPECT_EQ(t.Coord, Regional("0.0000") + QStringLiteral(", ") + Regional("-1.0000"));
    EXPECT_EQ(t.Dist, QStringLiteral("distancia ") + Regional("111.20km"));
    EXPECT_EQ(t.Bearing, QStringLiteral("rumbo ") + Regional("270.0d"));
}

TEST_F(textosPanelPrueba, SinObjetivoHayRayas)
{
    const auto t = textosPanel::Objetivo(40.0, -3.0, false, std::nan(""), 0.0);
    EXPECT_EQ(t.Coord, QStringLiteral("sin lugar"));
    EXPECT_EQ(t.Dist, QStringLiteral("distancia nada"));
    EXPECT_EQ(t.Bearing, QStringLiteral("rumbo nada"));
}

TEST_F(textosPanelPrueba, ElRelojDeLaBarra)
{
    EXPECT_EQ(textosPanel::TextoHoraLocal(0.0), QStringLiteral("hora 00:00"));
    EXPECT_EQ(textosPanel::TextoHoraLocal(12.0), QStringLiteral("hora 12:00"));
    EXPECT_EQ(textosPanel::TextoHoraLocal(24.0), QStringLiteral("hora 24:00"));
    for (int v = 0; v <= 1440; ++v) {
        const QString reloj = QStringLiteral("hora ") + modFormato::TextoReloj(v);
        ASSERT_EQ(textosPanel::TextoHoraLocal(v / 60.0), reloj) << "every minute of the bar";
    }
}

struct CasoFase
{
    const char* frase;
    double fase;
    const char* nombre;
};

// The bands' ends, by the table.
constexpr CasoFase kFases[] = {
    {"new", 0.0, "nueva"},
    {"still new", 0.0299999, "nueva"},
    {"0.03 exactly is a young crescent", 0.03, "creciente joven"},
    {"0.22 begins the quarter", 0.22, "cuarto creciente"},
    {"first quarter", 0.25, "cuarto creciente"},
    {"0.28 begins the gibbous", 0.28, "gibosa creciente"},
    {"0.47 begins the full", 0.47, "llena"},
    {"full", 0.5, "llena"},
    {"0.53 ends it", 0.53, "gibosa menguante"},
    {"0.72 begins the last quarter", 0.72, "cuarto menguante"},
    {"0.78 ends it", 0.78, "menguante vieja"},
    {"0.97 exactly is still old", 0.97, "menguante vieja"},
    {"beyond it is new", 0.9700001, "nueva"},
    {"the end of the cycle", 0.999999, "nueva"},
};

TEST_F(textosPanelPrueba, NombreFaseLunar)
{
    for (const CasoFase& c : kFases) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(textosPanel::NombreFaseLunar(c.fase), QLatin1String(c.nombre));
    }
}

#include "modAstro.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <string>

namespace {

using namespace modAstro;

struct CasoDia
{
    const char* frase;
    std::int16_t anio, mes, dia;
    double fraccion, jd;
};

// Meeus, Astronomical Algorithms, 2nd ed., p. 61 and 62; the last four by hand from them.
constexpr CasoDia kDias[] = {
    {"J2000.0", 2000, 1, 1, 0.5, 2451545.0},
    {"launch of the first satellite", 1957, 10, 4, 0.81, 2436116.31},
    {"1999 January 1.0", 1999, 1, 1, 0.0, 2451179.5},
    {"1987 January 27.0", 1987, 1, 27, 0.0, 2446822.5},
    {"1987 June 19.5", 1987, 6, 19, 0.5, 2446966.0},
    {"1988 January 27.0", 1988, 1, 27, 0.0, 2447187.5},
    {"1900 January 1.0, no leap year", 1900, 1, 1, 0.0, 2415020.5},
    {"1600 December 31.0", 1600, 12, 31, 0.0, 2305812.5},
    {"a Gregorian date like any other: ten days before the Julian one", 1582, 10, 4, 0.0, 2299149.5},
    {"the day after it is no 15th", 1582, 10, 5, 0.0, 2299150.5},
    {"day 0 of March in a leap year is 29 February", 2024, 3, 0, 0.0, 2460369.5},
    {"30 February counts on into March", 2024, 2, 30, 0.0, 2460370.5},
};

TEST(modAstro, DiaJulianoDeFechasConocidas)
{
    for (const CasoDia& c : kDias) {
        SCOPED_TRACE(c.frase);
        EXPECT_NEAR(DiaJuliano(c.anio, c.mes, c.dia, c.fraccion), c.jd, 1e-9);
    }
    EXPECT_EQ(DiaJuliano(2024, 3, 1, 0) - DiaJuliano(2024, 3, 0, 0), 1.0);
}

TEST(modAstro, DiaJulianoCreceDeUnoEnUnoDe1900A2200)
{
    double esperado = DiaJuliano(1900, 1, 1, 0);
    for (std::int16_t anio = 1900; anio <= 2200; ++anio) {
        const bool bisiesto = anio % 4 == 0 && (anio % 100 != 0 || anio % 400 == 0);
        const std::int16_t largos[12] = {
            31, static_cast<std::int16_t>(bisiesto ? 29 : 28), 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        for (std::int16_t mes = 1; mes <= 12; ++mes)
            for (std::int16_t dia = 1; dia <= largos[mes - 1]; ++dia)
                ASSERT_EQ(DiaJuliano(anio, mes, dia, 0), esperado++) << anio << "-" << mes << "-" << dia;
    }
}

TEST(modAstro, SiglosJ2000)
{
    EXPECT_EQ(SiglosJ2000(2451545.0), 0.0);
    EXPECT_EQ(SiglosJ2000(2451545.0 + 36525), 1.0);
}

TEST(modAstro, AngulosReducidosQuedanEnSuIntervalo)
{
    for (double x = -2000; x <= 2000; x += 0.37) {
        const double g = Norm360(x);
        ASSERT_GE(g, 0.0) << x;
        ASSERT_LT(g, 360.0) << x;
        ASSERT_NEAR(std::remainder(g - x, 360.0), 0.0, 1e-9) << x;
        const double r = Norm2Pi(x);
        ASSERT_GE(r, 0.0) << x;
        ASSERT_LT(r, kDosPi) << x;
        const double p = ReducirAPi(x);
        ASSERT_LE(std::fabs(p), kPi) << x;
        ASSERT_NEAR(std::sin(p), std::sin(x), 1e-10) << x;
    }
    EXPECT_EQ(Norm360(-1e-20), 0.0) << "a tiny negative angle must not round up to a whole turn";
    EXPECT_EQ(Norm360(360), 0.0);
    EXPECT_EQ(Norm360(-90), 270.0);
    EXPECT_TRUE(std::isnan(ReducirAPi(std::numeric_limits<double>::infinity()))) << "must end";
    EXPECT_LE(std::fabs(ReducirAPi(1e300)), 4.0);
}

TEST(modAstro, Atan2EnCadaCuadranteYEnLosEjes)
{
    EXPECT_EQ(Atan2(0, 0), 0.0);
    EXPECT_EQ(Atan2(-0.0, 0), 0.0);
    EXPECT_EQ(Atan2(1, 0), kPi / 2);
    EXPECT_EQ(Atan2(-1, 0), -kPi / 2);
    EXPECT_EQ(Atan2(0, -1), kPi);
    EXPECT_EQ(Atan2(-0.0, -1), kPi) << "the sign of a zero does not matter";
    for (double a = -3.1; a < 3.1; a += 0.01)
        ASSERT_NEAR(Atan2(std::sin(a), std::cos(a)), a, 1e-14) << a;
}

TEST(modAstro, InversasAcotadas)
{
    EXPECT_EQ(ArcoSeno(1.0000000001), kPi / 2);
    EXPECT_EQ(ArcoSeno(-2), -kPi / 2);
    EXPECT_EQ(ArcoCoseno(1.0000000001), 0.0);
    EXPECT_EQ(ArcoCoseno(-1.5), kPi);
    for (double x = -0.999; x < 1; x += 0.001) {
        ASSERT_NEAR(ArcoSeno(x), std::asin(x), 1e-14) << x;
        ASSERT_NEAR(ArcoCoseno(x), std::acos(x), 1e-14) << x;
    }
}

TEST(modAstro, AjustarFraccion)
{
    EXPECT_NEAR(AjustarFraccion(0.1, 5), 0.1 - 5.0 / 24 + 1, 1e-15);
    EXPECT_NEAR(AjustarFraccion(0.1, 5), 0.8917, 5e-5);
    EXPECT_EQ(AjustarFraccion(-1, 5), -1.0) << "an absent moment stays absent";
    EXPECT_NEAR(AjustarFraccion(0.9, -5), 0.9 + 5.0 / 24 - 1, 1e-15);
    EXPECT_EQ(AjustarFraccion(0.25, 0), 0.25);
    for (double zona = -12; zona <= 14; zona += 0.25)
        for (double t = 0; t < 1; t += 0.0137) {
            const double f = AjustarFraccion(t, zona);
            ASSERT_GE(f, 0.0) << t << " zone " << zona;
            ASSERT_LT(f, 1.0) << t << " zone " << zona;
            ASSERT_NEAR(std::remainder(f + zona / 24 - t, 1.0), 0.0, 1e-14);
        }
    const double lejos = AjustarFraccion(0.5, 1e300);
    EXPECT_TRUE(lejos >= 0 && lejos < 1) << "a senseless zone must end, too";
}

struct CasoHora
{
    const char* frase;
    double fraccion, zona;
    const char* texto;
};

// By hand.
constexpr CasoHora kHoras[] = {
    {"absent", -1, 2, "--:--"},
    {"0.99 of a day is 23:45.6, rounded to 23:46, past midnight in zone 2", 0.99, 2, "01:46"},
    {"a quarter of a day in zone 0", 0.25, 0, "06:00"},
    {"the same in a western zone, the evening before", 0.1, -5, "21:24"},
    {"hour 24 never shows", 0.9999, 0, "00:00"},
    {"half an hour", 0.25, 5.5, "11:30"},
    {"a tie goes to the even minute: 0.5 minute", 0.5 / 1440, 0, "00:00"},
    {"a tie goes to the even minute: 1.5 minutes", 1.5 / 1440, 0, "00:02"},
    {"more than a day of zone", 0.5, -36, "00:00"},
};

TEST(modAstro, FormatearHora)
{
    for (const CasoHora& c : kHoras) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(FormatearHora(c.fraccion, c.zona), c.texto);
    }
    EXPECT_EQ(FormatearHora(std::numeric_limits<double>::quiet_NaN(), 0), "--:--");
    EXPECT_EQ(FormatearHora(0.5, std::numeric_limits<double>::infinity()), "--:--");
    EXPECT_EQ(FormatearHora(0.5, 1e300).size(), 5u);
}

TEST(modAstro, Compas8)
{
    EXPECT_EQ(Compas8(359), "N");
    EXPECT_EQ(Compas8(337.5), "N");
    EXPECT_EQ(Compas8(337.4), "NO");
    EXPECT_EQ(Compas8(-90), "O");
    EXPECT_EQ(Compas8(22.4), "N");
    EXPECT_EQ(Compas8(22.5), "NE");
    EXPECT_EQ(Compas8(720 + 180), "S");
    const char* const palabras[8] = {"N", "NE", "E", "SE", "S", "SO", "O", "NO"};
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(Compas8(45.0 * i), palabras[i]);
    EXPECT_EQ(Compas8(std::numeric_limits<double>::quiet_NaN()), "N");
}

TEST(modAstro, HoraDeDiaJulianoRedondeaAlSegundoYCortaAlMinuto)
{
    const double j = DiaJuliano(2026, 8, 12, 0);
    EXPECT_EQ(HoraDeDiaJuliano(j, 1), "01:00") << "cutting alone would print 00:59";
    EXPECT_EQ(HoraDeDiaJuliano(j + 59.0 / 86400, 0), "00:00") << "59 seconds are no minute";
    EXPECT_EQ(HoraDeDiaJuliano(j + 59.6 / 86400, 0), "00:01") << "but they round to the second first";
    EXPECT_EQ(HoraDeDiaJuliano(j, -0.5), "23:30");
    for (int zona = -12; zona <= 14; ++zona)
        for (int minuto = 0; minuto < 1440; minuto += 7) {
            const int local = ((minuto + zona * 60) % 1440 + 1440) % 1440;
            const std::string texto = HoraDeDiaJuliano(j + minuto / 1440.0, zona);
            ASSERT_EQ(std::stoi(texto.substr(0, 2)) * 60 + std::stoi(texto.substr(3)), local) << texto;
        }
}

} // namespace

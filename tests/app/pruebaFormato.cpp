#include "modFormato.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

using modFormato::Format;
using modFormato::LeerEntero16;
using modFormato::LeerNumero;
using modFormato::Separadores;

namespace {

const Separadores kPunto{QStringLiteral("."), QStringLiteral(",")};
const Separadores kComa{QStringLiteral(","), QStringLiteral(".")};

struct CasoFormato
{
    const char* frase;
    double valor;
    const char16_t* patron;
    const char* texto;
};

// By hand.
constexpr CasoFormato kFormatos[] = {
    {"two digits at least", 7.0, u"00", "07"},
    {"more digits than places are all printed", 1234.0, u"00", "1234"},
    {"one decimal", 40.4168, u"0.0", "40.4"},
    {"four decimals", -3.7038, u"0.0000", "-3.7038"},
    {"zeros are kept behind the point", 2.0, u"0.00", "2.00"},
    {"a half goes away from zero, upwards", 0.5, u"0", "1"},
    {"a half goes away from zero, also beside an even digit", 2.5, u"0", "3"},
    {"a half goes away from zero, downwards", -2.5, u"0", "-3"},
    {"the 15-digit text decides: 0.285 lies below the half in binary", 0.285, u"0.00", "0.29"},
    {"the 15-digit text decides: 1.005", 1.005, u"0.00", "1.01"},
    {"the 15-digit text decides: 8.345", 8.345, u"0.00", "8.35"},
    {"just under a half stays", 0.49999999999, u"0", "0"},
    {"the sixteenth digit is gone before rounding", 0.4999999999999999, u"0", "1"},
    {"a carry through all digits", 99.96, u"0.0", "100.0"},
    {"a carry from nothing", 0.96, u"0", "1"},
    {"a carry into the first decimal", 0.096, u"0.0", "0.1"},
    {"no negative zero", -0.04, u"0.0", "0.0"},
    {"minus zero itself", -0.0, u"0.00", "0.00"},
    {"far below the last place", 1e-300, u"0.00", "0.00"},
    {"far below the last place, negative", -1e-9, u"0", "0"},
    {"thousands", 384400.4, u"#,##0", "384,400"},
    {"thousands of a small number", 42.0, u"#,##0", "42"},
    {"thousands of zero", 0.0, u"#,##0", "0"},
    {"thousands twice", 1234567.0, u"#,##0", "1,234,567"},
    {"thousands, negative", -1234.5, u"#,##0.0", "-1,234.5"},
    {"optional decimals, none needed", 5.0, u"0.###", "5"},
    {"optional decimals, some needed", 1.25, u"0.###", "1.25"},
    {"optional decimals, all needed", 1.2346, u"0.###", "1.235"},
    {"optional decimals between zeros", 0.31, u"0.##", "0.31"},
    {"an optional zero in the middle stays", 1.05, u"0.##", "1.05"},
    {"mixed places", 1.5, u"0.0##", "1.5"},
    {"optional whole digit", 0.5, u"#.0", ".5"},
    {"optional whole digit of nothing", 0.0, u"#", ""},
    {"sections: positive", 33.4, u"+0;-0", "+33"},
    {"sections: negative", -12.6, u"+0;-0", "-13"},
    {"sections: zero takes the first", 0.0, u"+0;-0", "+0"},
    {"sections: what rounds to zero is zero", -0.4, u"+0;-0", "+0"},
    {"sections: a third one for zero", 0.0, u"+0;-0;nada", "nada"},
    {"sections: what rounds to zero takes the third", -0.2, u"+0;-0;cero", "cero"},
    {"sections: an empty negative one counts as missing", -2.0, u"0;;x", "-2"},
    {"other characters stand as they are", 45.0, u"~0 km", "~45 km"},
    {"characters between digits stay in their place", 1234.0, u"00:00", "12:34"},
    {"15 digits and zeros behind them", 123456789012345678.0, u"0", "123456789012346000"},
    {"a pattern without places before the point", 12.25, u".0", "12.3"},
    {"an empty pattern prints nothing but the sign", -5.0, u"", "-"},
};

// By hand.
constexpr std::pair<const char16_t*, double> kNumeros[] = {
    {u"40.4168", 40.4168}, {u"40,4168", 40.4168}, {u"  -3,5", -3.5}, {u"+2", 2.0},
    {u"12x34", 12.0},      {u"1,5 m", 1.5},       {u"1 234", 1.0},   {u".5", 0.5},
    {u"5.", 5.0},          {u"1e3", 1000.0},      {u"1e", 1.0},      {u"", 0.0},
    {u"abc", 0.0},         {u"-", 0.0},           {u"+", 0.0},       {u".", 0.0},
    {u"+-3", -3.0},        {u"--3", 0.0},         {u"1.2.3", 1.2},   {u"1,2,3", 1.2},
    {u"inf", 0.0},         {u"nan", 0.0},         {u"1e999", 0.0},   {u"-1e999", 0.0},
    {u"1e-999", 0.0},      {u"0x10", 0.0},        {u"\t 7", 7.0},    {u"\u0663", 0.0},
    {u"\u00A012", 12.0},   {u"12\u00B0", 12.0},   {u"-0", 0.0},
};

} // namespace

TEST(modFormato, FormatConPunto)
{
    for (const CasoFormato& c : kFormatos) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(Format(c.valor, c.patron, kPunto).toStdString(), c.texto);
    }
}

TEST(modFormato, FormatConComaCambiaSoloLosSeparadores)
{
    for (const CasoFormato& c : kFormatos) {
        SCOPED_TRACE(c.frase);
        QString esperado = QString::fromLatin1(c.texto);
        esperado.replace(u',', u'#').replace(u'.', u',').replace(u'#', u'.');
        EXPECT_EQ(Format(c.valor, c.patron, kComa).toStdString(), esperado.toStdString());
    }
}

TEST(modFormato, SeparadorDeVariosCaracteres)
{
    const Separadores largo{QStringLiteral("::"), QStringLiteral("<>")};
    EXPECT_EQ(Format(1234567.5, u"#,##0.0", largo), QStringLiteral("1<>234<>567::5"));
}

TEST(modFormato, LoQueNoEsFinitoSonGuiones)
{
    EXPECT_EQ(Format(std::numeric_limits<double>::quiet_NaN(), u"0.0", kPunto), QStringLiteral("--"));
    EXPECT_EQ(Format(-std::numeric_limits<double>::infinity(), u"0.0", kPunto), QStringLiteral("--"));
    EXPECT_EQ(modFormato::TextoNumero(std::numeric_limits<double>::quiet_NaN()), QStringLiteral("0"));
}

TEST(modFormato, ElMayorDoubleCabe)
{
    const QString t = Format(-std::numeric_limits<double>::max(), u"#,##0.00", kPunto);
    EXPECT_TRUE(t.startsWith(QLatin1String("-179,769,313,486,232,000,")));
    EXPECT_TRUE(t.endsWith(QLatin1String("000.00")));
    EXPECT_EQ(t.size(), 1 + 309 + 102 + 3);
}

TEST(modFormato, LeerNumero)
{
    for (const auto& [texto, valor] : kNumeros) {
        SCOPED_TRACE(QString::fromUtf16(texto).toStdString());
        EXPECT_EQ(LeerNumero(texto), valor);
    }
}

TEST(modFormato, LeerNumeroDeUnTextoMuyLargo)
{
    EXPECT_NEAR(LeerNumero(QStringLiteral("0.") + QString(5000, u'1')), 1.0 / 9.0, 1e-15);
    EXPECT_EQ(LeerNumero(QString(5000, u'-')), 0.0);
}

TEST(modFormato, LeerEntero16RedondeaLosMediosAlPar)
{
    EXPECT_EQ(LeerEntero16(u"2.5"), 2);
    EXPECT_EQ(LeerEntero16(u"3,5"), 4);
    EXPECT_EQ(LeerEntero16(u"-2.5"), -2);
    EXPECT_EQ(LeerEntero16(u"2026"), 2026);
    EXPECT_EQ(LeerEntero16(u"32767"), 32767);
    EXPECT_EQ(LeerEntero16(u"32767.4"), 32767);
    EXPECT_EQ(LeerEntero16(u"-32768"), -32768);
    EXPECT_EQ(LeerEntero16(u"32768"), 0);
    EXPECT_EQ(LeerEntero16(u"1e300"), 0);
    EXPECT_EQ(LeerEntero16(u"hoy"), 0);
}

// What the file holds reads back as the same double, with either separator.
TEST(modFormato, TextoNumeroIdaYVuelta)
{
    std::mt19937_64 azar(20260812);
    std::uniform_real_distribution<double> angulo(-180.0, 180.0);
    std::uniform_real_distribution<double> exponente(-300.0, 300.0);
    for (int i = 0; i < 20000; ++i) {
        const double v = i % 2 == 0 ? angulo(azar) : std::pow(10.0, exponente(azar));
        const QString texto = modFormato::TextoNumero(v, i % 3 == 0 ? kComa : kPunto);
        if (texto.size() <= 390) { // reading looks no further
            ASSERT_EQ(LeerNumero(texto), v) << texto.toStdString();
        }
    }
    EXPECT_EQ(modFormato::TextoNumero(40.4168, kComa), QStringLiteral("40,4168"));
    EXPECT_EQ(modFormato::TextoNumero(-0.0, kPunto), QStringLiteral("0"));
    EXPECT_EQ(modFormato::TextoNumero(1e-7, kPunto), QStringLiteral("0.0000001"));
}

// A printed number lies within half a unit of its last place, and printing it again changes nothing.
TEST(modFormato, LoImpresoEstaAMedioUltimoLugar)
{
    std::mt19937_64 azar(7);
    std::uniform_real_distribution<double> valor(-1000.0, 1000.0);
    for (int i = 0; i < 20000; ++i) {
        const double v = valor(azar);
        const QString t = Format(v, u"0.00", kPunto);
        const double leido = LeerNumero(t);
        ASSERT_NEAR(leido, v, 0.005 + 1e-12);
        ASSERT_EQ(Format(leido, u"0.00", kPunto), t);
    }
}

TEST(modFormato, LosSeparadoresDelSistemaSonLosDeFormat)
{
    const QString decimal = modFormato::SeparadoresSistema().decimal;
    ASSERT_FALSE(decimal.isEmpty());
    EXPECT_EQ(Format(1.5, u"0.0"), QStringLiteral("1") + decimal + QStringLiteral("5"));
    EXPECT_EQ(LeerNumero(Format(-3.7038, u"0.0000")), -3.7038);
}

TEST(modFormato, FechaYReloj)
{
    EXPECT_EQ(modFormato::TextoFecha(2026, 8, 2), QStringLiteral("02/08/2026"));
    EXPECT_EQ(modFormato::TextoFecha(987, 12, 31), QStringLiteral("31/12/0987"));
    EXPECT_EQ(modFormato::TextoReloj(0), QStringLiteral("00:00"));
    EXPECT_EQ(modFormato::TextoReloj(754), QStringLiteral("12:34"));
    EXPECT_EQ(modFormato::TextoReloj(1440), QStringLiteral("24:00"));
    EXPECT_EQ(modFormato::TextoReloj(-5), QStringLiteral("00:00"));
}

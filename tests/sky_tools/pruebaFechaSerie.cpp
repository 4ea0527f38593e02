#include "fechaSerie.h"

#include "modAstro.h"

#include <gtest/gtest.h>

namespace {

using fechaSerie::FechaHora;

struct CasoSerie
{
    const char* frase;
    double serie;
    FechaHora esperada;
};

// By hand; serial 1 is 31 December 1899.
constexpr CasoSerie kSeries[] = {
    {"day zero", 0, {1899, 12, 30, 0, 0}},
    {"noon of 1 January 2000", 36526.5, {2000, 1, 1, 12, 0}},
    {"a tenth of a second before one o'clock reads one o'clock",
     36526 + (3600 - 0.1) / 86400.0,
     {2000, 1, 1, 1, 0}},
    {"59.4 seconds past the minute keep it", 36526 + (3600 + 59.4) / 86400.0, {2000, 1, 1, 1, 0}},
    {"59.6 seconds are the next minute", 36526 + (3600 + 59.6) / 86400.0, {2000, 1, 1, 1, 1}},
    {"the last tenth of the year is the next year", 36525 + 1 - 0.1 / 86400.0, {2000, 1, 1, 0, 0}},
    {"before day zero", -0.25, {1899, 12, 29, 18, 0}},
};

TEST(fechaSerie, FechaDeSerie)
{
    for (const CasoSerie& c : kSeries) {
        SCOPED_TRACE(c.frase);
        EXPECT_TRUE(fechaSerie::FechaDeSerie(c.serie) == c.esperada);
    }
}

TEST(fechaSerie, IdaYVueltaDeTresSiglos)
{
    int dias = 0;
    for (std::int16_t anio = 1900; anio <= 2200; ++anio) {
        int delAnio = 0;
        for (std::int16_t mes = 1; mes <= 12; ++mes) {
            for (std::int16_t dia = 1; dia <= fechaSerie::DiasMes(anio, mes); ++dia, ++delAnio, ++dias) {
                const double s = fechaSerie::SerieDeFecha(anio, mes, dia);
                ASSERT_EQ(s, 2.0 + dias);
                ASSERT_TRUE((fechaSerie::FechaDeSerie(s) == FechaHora{anio, mes, dia, 0, 0}));
                ASSERT_EQ(s, fechaSerie::SerieDeJd(modAstro::DiaJuliano(anio, mes, dia, 0), 0));
            }
        }
        ASSERT_EQ(delAnio, fechaSerie::DiasAnio(anio));
    }
    EXPECT_EQ(fechaSerie::DiasMes(2024, 2), 29);
    EXPECT_EQ(fechaSerie::DiasMes(2100, 2), 28);
    EXPECT_EQ(fechaSerie::DiasMes(2026, 0), 0);
    EXPECT_EQ(fechaSerie::DiasMes(2026, 13), 0);
}

TEST(fechaSerie, Textos)
{
    EXPECT_EQ(fechaSerie::TextoFechaHora({2026, 8, 3, 4, 5}), QStringLiteral("03/08/2026 04:05"));
    EXPECT_EQ(fechaSerie::TextoFecha({2026, 12, 31, 23, 59}), QStringLiteral("31/12/2026"));
}

struct CasoLectura
{
    const char* frase;
    const char* linea;
    bool hay;
    FechaHora esperada;
};

constexpr CasoLectura kLecturas[] = {
    {"a line of the azimuth search", "12/08/2026 19:38   12.3       90.0", true, {2026, 8, 12, 19, 38}},
    {"blanks for the time are midnight", "12/08/2026        Lluvia de meteoros", true, {2026, 8, 12, 0, 0}},
    {"a date alone", "12/08/2026", true, {2026, 8, 12, 0, 0}},
    {"a message in parentheses", "(Define primero un observador en el mapa)", false, {}},
    {"a message that begins with digits", "30/02/2026 10:00", false, {}},
    {"no month 13", "01/13/2026 10:00", false, {}},
    {"no hour 24", "01/12/2026 24:00", false, {}},
    {"no minute 60", "01/12/2026 10:60", false, {}},
    {"a short line", "12/08/20", false, {}},
    {"nothing", "", false, {}},
};

TEST(fechaSerie, LeerFechaHora)
{
    for (const CasoLectura& c : kLecturas) {
        SCOPED_TRACE(c.frase);
        const auto f = fechaSerie::LeerFechaHora(QString::fromLatin1(c.linea));
        ASSERT_EQ(f.has_value(), c.hay);
        if (f) {
            EXPECT_TRUE(*f == c.esperada);
        }
    }
}

} // namespace

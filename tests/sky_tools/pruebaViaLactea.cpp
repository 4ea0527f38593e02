#include "lineas.h"
#include "literalBusquedas.h"
#include "lugares.h"

#include "fechaSerie.h"
#include "literalAstro.h"
#include "modAstro.h"
#include "modViaLactea.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

const LugarPrueba& kMadrid = kLugares[0];

std::vector<std::int16_t> Serie(const LugarPrueba& l, std::int16_t anio)
{
    std::vector<std::int16_t> calidad;
    EXPECT_TRUE(modViaLactea::SerieAnualVL(Contexto(l), anio, calidad));
    return calidad;
}

QStringList Noches(const LugarPrueba& l, std::int16_t anio)
{
    return LineasDe(modViaLactea::MejoresNochesVL(Contexto(l), anio));
}

// Night index of a date of 2026.
int Indice(std::int16_t mes, std::int16_t dia)
{
    return static_cast<int>(fechaSerie::SerieDeFecha(2026, mes, dia) - fechaSerie::SerieDeFecha(2026, 1, 1));
}

TEST(modViaLactea, LosMismosTextosYNivelesQueElRecorridoLlano)
{
    for (const LugarPrueba& lugar : kLugares) {
        for (const std::int16_t anio :
             {std::int16_t(1900), std::int16_t(2024), std::int16_t(2026), std::int16_t(2200)}) {
            SCOPED_TRACE(::testing::Message() << lugar.nombre << ", " << anio);
            const ContextoBusqueda c = Contexto(lugar);
            EXPECT_EQ(modViaLactea::MejoresNochesVL(c, anio).toStdString(),
                      literalBusquedas::MejoresNochesVL(c, anio).toStdString());
            std::vector<std::int16_t> esperada;
            ASSERT_TRUE(literalBusquedas::SerieAnualVL(c, anio, esperada));
            EXPECT_EQ(Serie(lugar, anio), esperada);
        }
    }
}

TEST(modViaLactea, ZonasQueNoSonLaDelLugar)
{
    // With a zone far from the longitude the window of hours no longer covers the night; the sky is dark all
    // the same at every moment that is told.
    for (double zona = -12; zona <= 14; zona += 6.5) {
        SCOPED_TRACE(zona);
        const LugarPrueba lugar{"Madrid by another clock", 40.4168, -3.7038, zona};
        const ContextoBusqueda c = Contexto(lugar);
        const QString texto = modViaLactea::MejoresNochesVL(c, 2026);
        EXPECT_EQ(texto.toStdString(), literalBusquedas::MejoresNochesVL(c, 2026).toStdString());
        for (const QString& l : LineasDe(texto)) {
            const auto f = fechaSerie::LeerFechaHora(l);
            if (!f) {
                continue; // the message of an empty year
            }
            const double jd =
                modAstro::DiaJuliano(f->anio, f->mes, f->dia, (f->hora + f->minuto / 60.0) / 24) - zona / 24;
            double alt = 0, az = 0;
            literal::AzAltCuerpo(jd, lugar.lat, lugar.lon, false, alt, az);
            EXPECT_LT(alt, -17.99) << l.toStdString();
        }
    }
}

TEST(modViaLactea, ColumnasDeUnaLinea)
{
    const QString texto = modViaLactea::MejoresNochesVL(Contexto(kMadrid), 2026);
    ASSERT_TRUE(texto.endsWith(QStringLiteral("\r\n")));
    for (const QString& l : LineasDe(texto)) {
        SCOPED_TRACE(l.toStdString());
        ASSERT_TRUE(fechaSerie::LeerFechaHora(l).has_value());
        EXPECT_EQ(l.mid(16, 3), QStringLiteral("   "));
        EXPECT_EQ(l.mid(19, 5), QStringLiteral("V.L. "));
        EXPECT_TRUE(l.mid(24, 7).trimmed().endsWith(QChar(0xB0)));
        EXPECT_NE(l[31], QLatin1Char(' '));
        EXPECT_EQ(l.mid(43, 5), QStringLiteral("Luna "));
        const QString luna = l.mid(43, 16).trimmed();
        EXPECT_TRUE(luna.endsWith(QStringLiteral("% abajo")) || luna.endsWith(QStringLiteral("% arriba")));
        const QString calidad = l.mid(59);
        EXPECT_TRUE(calidad == QStringLiteral("Excelente") || calidad == QStringLiteral("Muy buena") ||
                    calidad == QStringLiteral("Buena"));
    }
}

TEST(modViaLactea, MensajesYAniosFueraDelIntervalo)
{
    ContextoBusqueda c = Contexto(kMadrid);
    c.TieneObs = false;
    std::vector<std::int16_t> calidad(5, 3);
    EXPECT_EQ(modViaLactea::MejoresNochesVL(c, 2026),
              QStringLiteral("(Define primero un observador en el mapa)"));
    EXPECT_FALSE(modViaLactea::SerieAnualVL(c, 2024, calidad));
    EXPECT_EQ(calidad, std::vector<std::int16_t>(366, 0));
    c.TieneObs = true;
    for (const std::int16_t anio : {std::int16_t(1899), std::int16_t(2201)}) {
        EXPECT_EQ(modViaLactea::MejoresNochesVL(c, anio), QStringLiteral("(Anyo no valido)"));
        calidad.assign(3, 2);
        EXPECT_FALSE(modViaLactea::SerieAnualVL(c, anio, calidad));
        EXPECT_EQ(std::count(calidad.begin(), calidad.end(), 0), static_cast<long>(calidad.size()));
    }
    c.lat = 70;
    EXPECT_EQ(modViaLactea::MejoresNochesVL(c, 2026),
              QStringLiteral("(Sin noches recomendables: revisa el observador y el anyo)"));
}

TEST(modViaLactea, ElVeranoDelNorteNoTieneNoche)
{
    const LugarPrueba estocolmo{"Stockholm", 59.33, 18.07, 1};
    const auto calidad = Serie(estocolmo, 2026);
    for (int i = Indice(5, 10); i < Indice(8, 1); ++i) {
        EXPECT_EQ(calidad[i], 0) << i;
    }
    EXPECT_EQ(modViaLactea::MejoresNochesVL(Contexto(estocolmo), 2026).size(),
              QStringLiteral("(Sin noches recomendables: revisa el observador y el anyo)").size());
}

TEST(modViaLactea, ACincuentaGradosNadaPasaDeBuena)
{
    // The centre culminates at 90 - 50 - 28.9 = 11 degrees, half of what counts in full.
    const LugarPrueba praga{"50 degrees north", 50, 14.4, 1};
    const auto calidad = Serie(praga, 2026);
    EXPECT_EQ(*std::max_element(calidad.begin(), calidad.end()), 2);
    const QStringList lineas = Noches(praga, 2026);
    ASSERT_GT(lineas.size(), 3);
    for (const QString& l : lineas) {
        EXPECT_TRUE(l.endsWith(QStringLiteral("Buena"))) << l.toStdString();
    }
}

TEST(modViaLactea, LaLunaLlenaArribaLoApagaTodo)
{
    // Full Moon of 29 June 2026, high all night beside the centre.
    const auto calidad = Serie(kMadrid, 2026);
    EXPECT_EQ(calidad[Indice(6, 29)], 0);
    EXPECT_EQ(calidad[Indice(6, 30)], 0);
    EXPECT_EQ(calidad[Indice(6, 14)], 4); // new Moon of 15 June
}

TEST(modViaLactea, ACincoGradosSeColoreaPeroNoSeLista)
{
    // At 54 degrees the centre stands some 5 degrees high at the end of the last dark nights: 5 / 22 = 0.23
    // without a Moon, "Regular", and not above the 8 degrees of the list.
    const LugarPrueba lugar{"54 degrees north", 54, 12.6, 1};
    const auto calidad = Serie(lugar, 2026);
    EXPECT_EQ(*std::max_element(calidad.begin(), calidad.end()), 1);
    EXPECT_EQ(std::count(calidad.begin(), calidad.end(), 1), 5);
    EXPECT_TRUE(Noches(lugar, 2026)[0].startsWith(QLatin1Char('(')));
}

struct CasoNivel
{
    double puntuacion;
    std::int16_t nivel;
    const char* palabra;
};

// Each threshold belongs to the better level.
constexpr CasoNivel kNiveles[] = {
    {1.0, 4, "Excelente"}, {0.72, 4, "Excelente"}, {0.7199, 3, "Muy buena"}, {0.52, 3, "Muy buena"},
    {0.5199, 2, "Buena"},  {0.36, 2, "Buena"},     {0.3599, 1, "Regular"},   {0.18, 1, "Regular"},
    {0.1799, 0, "Mala"},   {0.0, 0, "Mala"},
};

TEST(modViaLactea, NivelesYPalabras)
{
    for (const CasoNivel& c : kNiveles) {
        SCOPED_TRACE(c.puntuacion);
        EXPECT_EQ(modViaLactea::NivelDe(c.puntuacion), c.nivel);
        EXPECT_EQ(modViaLactea::PalabraDeNivel(c.nivel), QLatin1String(c.palabra));
    }
    EXPECT_EQ(modViaLactea::PalabraDeNivel(-3), QLatin1String("Mala"));
    EXPECT_EQ(modViaLactea::PalabraDeNivel(9), QLatin1String("Excelente"));
}

TEST(modViaLactea, UnNivelPorNocheDelAnio)
{
    EXPECT_EQ(Serie(kMadrid, 2024).size(), 366u);
    EXPECT_EQ(Serie(kMadrid, 2026).size(), 365u);
    EXPECT_EQ(Serie(kMadrid, 2100).size(), 365u);
}

} // namespace

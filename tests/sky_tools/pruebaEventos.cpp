#include "lineas.h"
#include "literalBusquedas.h"
#include "lugares.h"

#include "fechaSerie.h"
#include "modEventos.h"
#include "modTextoEclipse.h"

#include <gtest/gtest.h>

namespace {

const LugarPrueba& kMadrid = kLugares[0];

QStringList Eventos(const LugarPrueba& l, std::int16_t anio)
{
    return LineasDe(modEventos::EventosCelestes(Contexto(l), anio));
}

bool Hay(const QStringList& lineas, const QString& trozo)
{
    return !lineas.filter(trozo).isEmpty();
}

TEST(modEventos, LosMismosTextosQueElBarridoLlano)
{
    const std::int16_t anios[] = {1900, 1953, 1999, 2000, 2024, 2026, 2027, 2100, 2199, 2200};
    for (const LugarPrueba& lugar : kLugares) {
        for (const std::int16_t anio : anios) {
            SCOPED_TRACE(::testing::Message() << lugar.nombre << ", " << anio);
            ContextoBusqueda c = Contexto(lugar);
            EXPECT_EQ(modEventos::EventosCelestes(c, anio).toStdString(),
                      literalBusquedas::EventosCelestes(c, anio).toStdString());
            c.TieneObs = false;
            EXPECT_EQ(modEventos::EventosCelestes(c, anio).toStdString(),
                      literalBusquedas::EventosCelestes(c, anio).toStdString());
        }
    }
}

TEST(modEventos, TresSiglosDesdeMadrid)
{
    for (int anio = 1901; anio <= 2200; anio += 4) {
        SCOPED_TRACE(anio);
        const ContextoBusqueda c = Contexto(kMadrid);
        EXPECT_EQ(modEventos::EventosCelestes(c, static_cast<std::int16_t>(anio)).toStdString(),
                  literalBusquedas::EventosCelestes(c, static_cast<std::int16_t>(anio)).toStdString());
    }
}

TEST(modEventos, ColumnasDeUnaLinea)
{
    const QString texto = modEventos::EventosCelestes(Contexto(kMadrid), 2026);
    ASSERT_TRUE(texto.endsWith(QStringLiteral("\r\n")));
    QString previa;
    for (const QString& l : LineasDe(texto)) {
        SCOPED_TRACE(l.toStdString());
        ASSERT_TRUE(fechaSerie::LeerFechaHora(l).has_value());
        EXPECT_EQ(l[10], QLatin1Char(' '));
        EXPECT_EQ(l.mid(16, 2), QStringLiteral("  "));
        EXPECT_NE(l[18], QLatin1Char(' '));
        const bool lluvia = l.mid(18).startsWith(QStringLiteral("Lluvia de meteoros: "));
        EXPECT_EQ(l.mid(11, 5) == QStringLiteral("     "), lluvia);
        const QString orden = l.mid(6, 4) + l.mid(3, 2) + l.left(2) + l.mid(11, 5);
        EXPECT_LE(previa, orden);
        previa = orden;
    }
}

TEST(modEventos, LosDiezEnjambres)
{
    const QStringList lineas = Eventos(kMadrid, 2031);
    const char* const kEsperadas[] = {
        "03/01/2031        Lluvia de meteoros: Cuadrantidas  (~110 met/h)",
        "22/04/2031        Lluvia de meteoros: Liridas  (~18 met/h)",
        "06/05/2031        Lluvia de meteoros: Eta Acuaridas  (~50 met/h)",
        "30/07/2031        Lluvia de meteoros: Delta Acuaridas  (~25 met/h)",
        "12/08/2031        Lluvia de meteoros: Perseidas  (~100 met/h)",
        "08/10/2031        Lluvia de meteoros: Draconidas  (~10 met/h)",
        "21/10/2031        Lluvia de meteoros: Orionidas  (~20 met/h)",
        "17/11/2031        Lluvia de meteoros: Leonidas  (~15 met/h)",
        "14/12/2031        Lluvia de meteoros: Geminidas  (~120 met/h)",
        "22/12/2031        Lluvia de meteoros: Ursidas  (~10 met/h)",
    };
    for (const char* e : kEsperadas) {
        EXPECT_TRUE(lineas.contains(QLatin1String(e))) << e;
    }
    EXPECT_EQ(lineas.filter(QStringLiteral("met/h")).size(), 10);
}

TEST(modEventos, AniosFueraDelIntervalo)
{
    for (const int anio : {1899, 2201, 0, -1, 32767}) {
        EXPECT_EQ(modEventos::EventosCelestes(Contexto(kMadrid), static_cast<std::int16_t>(anio)),
                  QStringLiteral("(Anyo no valido)"));
    }
    EXPECT_GT(Eventos(kMadrid, 1900).size(), 80);
    EXPECT_GT(Eventos(kMadrid, 2200).size(), 80);
}

TEST(modEventos, Superlunas)
{
    // Full Moons of 2026 less than a day and a half from a perigee of the sweep.
    const QStringList super = Eventos(kMadrid, 2026).filter(QStringLiteral("SUPERLUNA"));
    ASSERT_EQ(super.size(), 3);
    EXPECT_TRUE(super[0].startsWith(QStringLiteral("03/01/2026")));
    EXPECT_TRUE(super[1].startsWith(QStringLiteral("24/11/2026")));
    EXPECT_TRUE(super[2].startsWith(QStringLiteral("24/12/2026")));
    for (const QString& l : super) {
        EXPECT_TRUE(l.endsWith(QStringLiteral("  (SUPERLUNA)")));
        EXPECT_EQ(l.mid(18, 10), QStringLiteral("Luna llena"));
    }
    // A total eclipse on a supermoon: both are told, the supermoon last (28 September 2015).
    const QStringList ambos = Eventos(kMadrid, 2015).filter(QStringLiteral("Eclipse de Luna total"));
    EXPECT_TRUE(Hay(ambos, QStringLiteral("(visible)  (SUPERLUNA)")));
}

TEST(modEventos, LaZonaPuedeSacarUnSucesoDelAnio)
{
    // The first quarter of 2028 in UT's last hours: a day ahead it is already the new year, and the other
    // way.
    int fuera = 0;
    for (int anio = 1900; anio <= 2200; ++anio) {
        ContextoBusqueda c = Contexto(kMadrid);
        c.TieneObs = false;
        c.zona = 13;
        const auto ultimo = fechaSerie::LeerFechaHora(
            LineasDe(modEventos::EventosCelestes(c, static_cast<std::int16_t>(anio))).back());
        ASSERT_TRUE(ultimo.has_value());
        if (ultimo->anio == anio + 1) {
            EXPECT_EQ(ultimo->mes, 1);
            EXPECT_EQ(ultimo->dia, 1);
            ++fuera;
        }
    }
    EXPECT_GT(fuera, 5);
}

TEST(modEventos, EclipsesDe2026SegunElLugar)
{
    const QStringList madrid = Eventos({"Madrid in summer", 40.4168, -3.7038, 2}, 2026);
    EXPECT_TRUE(Hay(madrid, QStringLiteral("Luna nueva  Eclipse de Sol total mag 1")));
    EXPECT_TRUE(Hay(madrid, QStringLiteral(" 19:39-21:13")));
    EXPECT_TRUE(
        Hay(madrid, QStringLiteral("17/02/2026 14:03  Luna nueva  Eclipse de Sol (no visible aqui)")));
    EXPECT_TRUE(Hay(madrid, QStringLiteral(" 11:52-15:19 (Luna bajo el horizonte)")));
    EXPECT_TRUE(Hay(madrid, QStringLiteral(" 04:35-07:53 (visible)")));
    const QStringList nuevaYork = Eventos({"New York", 40.71, -74.0, -4}, 2026);
    EXPECT_TRUE(Hay(nuevaYork, QStringLiteral("Luna nueva  Eclipse de Sol parcial mag 0")));
    EXPECT_TRUE(Hay(nuevaYork, QStringLiteral("05:52-09:19 (parcialmente visible)")));

    ContextoBusqueda c = Contexto(kMadrid);
    c.TieneObs = false;
    const QStringList nadie = LineasDe(modEventos::EventosCelestes(c, 2026));
    EXPECT_TRUE(Hay(nadie, QStringLiteral("Luna nueva  (posible eclipse de Sol)")));
    const QStringList luna = nadie.filter(QStringLiteral("Eclipse de Luna total"));
    ASSERT_EQ(luna.size(), 1);
    EXPECT_TRUE(luna[0].endsWith(QStringLiteral("10:52-14:19"))); // no word on its visibility
}

TEST(modTextoEclipse, ElPenumbralNoTieneMagnitud)
{
    ContextoBusqueda c = Contexto(kMadrid);
    c.TieneObs = false;
    const QStringList lineas =
        LineasDe(modEventos::EventosCelestes(c, 2027)).filter(QStringLiteral("penumbral"));
    ASSERT_FALSE(lineas.isEmpty());
    for (const QString& l : lineas) {
        EXPECT_FALSE(l.contains(QStringLiteral("mag")));
        EXPECT_EQ(l.mid(18, 38), QStringLiteral("Luna llena  Eclipse de Luna penumbral "));
    }
}

TEST(modTextoEclipse, SinEclipseNoHayTexto)
{
    const ContextoBusqueda c = Contexto(kMadrid);
    EXPECT_TRUE(
        modTextoEclipse::CircunstanciasEclipseSol(c, 2461059.33).isEmpty()); // new Moon of January 2026
    EXPECT_TRUE(
        modTextoEclipse::CircunstanciasEclipseLuna(c, 2461043.92).isEmpty()); // full Moon of January 2026
}

} // namespace

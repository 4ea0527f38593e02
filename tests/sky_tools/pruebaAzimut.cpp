#include "lineas.h"
#include "literalBusquedas.h"
#include "lugares.h"

#include "Efemerides.h"
#include "fechaSerie.h"
#include "modAstro.h"
#include "modAzimut.h"
#include "modFormato.h"

#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace {

const LugarPrueba& kMadrid = kLugares[0];
const LugarPrueba& kSydney = kLugares[2];
const LugarPrueba& kLongyearbyen = kLugares[3];

struct CasoDiferencia
{
    const char* frase;
    double a, b, esperada;
};

// By hand.
constexpr CasoDiferencia kDiferencias[] = {
    {"plain", 100, 90, 10},
    {"over the north, clockwise", 1, 359, 2},
    {"over the north, the other way", 359, 1, -2},
    {"half a turn keeps its sign", 180, 0, 180},
    {"minus half a turn too", 0, 180, -180},
    {"a little more than half a turn", 181, 0, -179},
    {"many turns", 3610, 5, 5},
};

TEST(modAzimut, DiferenciaAngular)
{
    for (const CasoDiferencia& c : kDiferencias) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(modAzimut::DiferenciaAngular(c.a, c.b), c.esperada);
        EXPECT_EQ(literalBusquedas::DiferenciaAngular(c.a, c.b), c.esperada);
    }
}

TEST(modAzimut, LasMismasLineasQueLaBusquedaLlana)
{
    for (const LugarPrueba& lugar : kLugares) {
        for (const double azimut : {0.0, 90.0, 180.0, 271.3, 359.9}) {
            for (const bool luna : {false, true}) {
                SCOPED_TRACE(::testing::Message()
                             << lugar.nombre << ", " << azimut << (luna ? ", Moon" : ", Sun"));
                const ContextoBusqueda c = Contexto(lugar, {2026, 5, 20});
                const QString esperado = literalBusquedas::BuscarAzimut(c, luna, azimut, 60);
                EXPECT_EQ(modAzimut::BuscarAzimut(c, luna, azimut, 60).toStdString(), esperado.toStdString());
            }
        }
    }
}

TEST(modAzimut, ColumnasDeUnaLinea)
{
    const QString texto = modAzimut::BuscarAzimut(Contexto(kMadrid, {2026, 6, 1}), false, 180, 30);
    ASSERT_TRUE(texto.endsWith(QStringLiteral("\r\n")));
    const QStringList lineas = LineasDe(texto);
    ASSERT_EQ(lineas.size(), 30); // one noon a day
    const QString coma = modFormato::SeparadoresSistema().decimal;
    for (const QString& l : lineas) {
        SCOPED_TRACE(l.toStdString());
        EXPECT_TRUE(fechaSerie::LeerFechaHora(l).has_value());
        EXPECT_EQ(l.mid(16, 3), QStringLiteral("   "));
        EXPECT_EQ(l.indexOf(QChar(0xB0)), 23); // "72.3" from column 20
        EXPECT_EQ(l.mid(30), QStringLiteral("180") + coma + QStringLiteral("0") + QChar(0xB0));
        EXPECT_EQ(l[21], coma[0]);
    }
    EXPECT_TRUE(lineas[0].startsWith(QStringLiteral("01/06/2026 13:")));
}

TEST(modAzimut, ElSolEnElNorteDesdeElSur)
{
    // South of the tropics the Sun passes due north at local noon, up every day.
    const QStringList lineas = LineasDe(modAzimut::BuscarAzimut(Contexto(kSydney), false, 0, 365));
    ASSERT_EQ(lineas.size(), 365);
    for (const QString& l : lineas) {
        const auto f = fechaSerie::LeerFechaHora(l);
        ASSERT_TRUE(f.has_value());
        EXPECT_TRUE(f->hora == 11 || f->hora == 12) << l.toStdString(); // the zone's noon within 25 minutes
    }
    // A tenth of a degree on either side of the fold prints with the azimuth's own value.
    EXPECT_TRUE(lineas[0].endsWith(QStringLiteral("0") + QChar(0xB0)));
}

TEST(modAzimut, PorDebajoDelHorizonteNoSeImprime)
{
    EXPECT_EQ(modAzimut::BuscarAzimut(Contexto(kMadrid), false, 0, 365),
              QStringLiteral("(Sin resultados en el rango)"));
    // Under the midnight Sun the same direction has one a night; the one that slips past midnight, from 21 to
    // 23 June, leaves a day without.
    const QStringList noches =
        LineasDe(modAzimut::BuscarAzimut(Contexto(kLongyearbyen, {2026, 6, 1}), false, 0, 30));
    EXPECT_EQ(noches.size(), 29);
    EXPECT_TRUE(noches.filter(QStringLiteral("22/06/2026")).isEmpty());
}

TEST(modAzimut, MensajesSinFinDeLinea)
{
    ContextoBusqueda c = Contexto(kMadrid);
    c.TieneObs = false;
    EXPECT_EQ(modAzimut::BuscarAzimut(c, true, 90, 10),
              QStringLiteral("(Define primero un observador en el mapa)"));
    for (const std::int16_t anio : {std::int16_t(1899), std::int16_t(2201), std::int16_t(0)}) {
        EXPECT_EQ(modAzimut::BuscarAzimut(Contexto(kMadrid, {anio, 1, 1}), true, 90, 10),
                  QStringLiteral("(Fecha del programa no valida)"));
    }
    for (const std::int16_t anio : {std::int16_t(1900), std::int16_t(2200)}) {
        EXPECT_EQ(LineasDe(modAzimut::BuscarAzimut(Contexto(kMadrid, {anio, 7, 1}), false, 180, 10)).size(),
                  10);
    }
    EXPECT_EQ(modAzimut::BuscarAzimut(Contexto(kMadrid), true, 90, 0),
              QStringLiteral("(Sin resultados en el rango)"));
    EXPECT_EQ(modAzimut::BuscarAzimut(Contexto(kMadrid), true, 90, -5),
              QStringLiteral("(Sin resultados en el rango)"));
}

TEST(modAzimut, ElAzimutDaLaVuelta)
{
    const ContextoBusqueda c = Contexto(kMadrid, {2026, 4, 1});
    const QString este = modAzimut::BuscarAzimut(c, false, 90, 40);
    EXPECT_GT(LineasDe(este).size(), 20);
    EXPECT_EQ(modAzimut::BuscarAzimut(c, false, 450, 40), este);
    EXPECT_EQ(modAzimut::BuscarAzimut(c, false, -270, 40), este);
    for (const double loco :
         {1e300, -1e300, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_FALSE(modAzimut::BuscarAzimut(c, false, loco, 2).isEmpty()); // and it ends
    }
}

TEST(modAzimut, DosMilUnaLineasYNiUnaMas)
{
    const ContextoBusqueda c = Contexto(kMadrid);
    const QString texto = modAzimut::BuscarAzimut(c, false, 180, 2500);
    EXPECT_EQ(LineasDe(texto).size(), modAzimut::kLineasMaximas);
    EXPECT_EQ(texto, literalBusquedas::BuscarAzimut(c, false, 180, 2500));
}

TEST(modAzimut, UnaMuestraExactaCuentaDosVeces)
{
    // The azimuth asked for is that of a sample: the difference there is exactly 0, and its sign differs
    // both from the one before and from the one after.
    const ContextoBusqueda c = Contexto(kMadrid, {2026, 6, 1});
    const double base = modAstro::DiaJuliano(2026, 6, 1, 0) + 0 - c.zona / 24;
    double t = 0;
    for (int k = 0; k < 150; ++k) {
        t += 1.0 / 288.0;
    }
    double altitud = 0, azimut = 0;
    modAstro::TramoCuerpo(false, base).AzAlt(base + t, modAstro::Observador(c.lat, c.lon), altitud, azimut);
    ASSERT_GT(altitud, 0);
    const QStringList lineas = LineasDe(modAzimut::BuscarAzimut(c, false, azimut, 1));
    ASSERT_EQ(lineas.size(), 2);
    EXPECT_EQ(lineas[0], lineas[1]);
    EXPECT_TRUE(lineas[0].startsWith(QStringLiteral("01/06/2026 12:30")));
}

TEST(modAzimut, ElBrincoDelCenitSePierde)
{
    // Where the Sun passes the zenith it swings from east to west between two samples: more than 90 degrees.
    ContextoBusqueda c = Contexto(kMadrid, {2026, 6, 21});
    c.lat = 23.44;
    const QString texto = modAzimut::BuscarAzimut(c, false, 180, 1);
    EXPECT_EQ(texto, literalBusquedas::BuscarAzimut(c, false, 180, 1));
    EXPECT_EQ(texto, QStringLiteral("(Sin resultados en el rango)"));
    c.lat = 26; // passes two and a half degrees south of the zenith: slow enough
    EXPECT_EQ(LineasDe(modAzimut::BuscarAzimut(c, false, 180, 1)).size(), 1);
}

TEST(modAzimut, DosCrucesEnUnDiaSeImprimenLosDos)
{
    // Between the tropics the June Sun rises, swings a little to the south and turns back to culminate in the
    // north: it passes an azimuth of 70 twice in a morning.
    ContextoBusqueda c = Contexto(kMadrid, {2026, 6, 20});
    c.lat = 15;
    c.lon = 0;
    c.zona = 0;
    const QString texto = modAzimut::BuscarAzimut(c, false, 70, 3);
    EXPECT_EQ(texto, literalBusquedas::BuscarAzimut(c, false, 70, 3));
    const QStringList lineas = LineasDe(texto);
    ASSERT_EQ(lineas.size(), 6);
    EXPECT_TRUE(lineas[0].startsWith(QStringLiteral("20/06/2026 07:02")));
    EXPECT_TRUE(lineas[1].startsWith(QStringLiteral("20/06/2026 09:45")));
    // The Moon at high latitudes does likewise.
    EXPECT_EQ(modAzimut::BuscarAzimut(Contexto(kLongyearbyen), true, 200, 365),
              literalBusquedas::BuscarAzimut(Contexto(kLongyearbyen), true, 200, 365));
}

TEST(modAzimut, RutaCieloCentradaEnElInstante)
{
    std::array<double, modAzimut::kMuestrasRuta> az{}, alt{};
    const ContextoBusqueda c = Contexto(kMadrid, {2026, 8, 12}, 20.5);
    for (const bool luna : {false, true}) {
        ASSERT_EQ(modAzimut::RutaCielo(c, luna, az, alt), 144);
        const double jd = modAstro::DiaJuliano(2026, 8, 12, 0) + (20.5 - c.zona) / 24;
        double altitud = 0, azimut = 0;
        modAstro::AzAltCuerpo(jd, c.lat, c.lon, luna, altitud, azimut);
        EXPECT_NEAR(az[72], azimut, 1e-6);
        EXPECT_NEAR(alt[72], altitud, 1e-6);
        modAstro::AzAltCuerpo(jd - 0.5, c.lat, c.lon, luna, altitud, azimut);
        EXPECT_NEAR(az[0], azimut, 1e-6);
    }
}

TEST(modAzimut, RutaCieloSinObservadorNoEscribe)
{
    std::array<double, modAzimut::kMuestrasRuta> az, alt;
    az.fill(7);
    alt.fill(8);
    ContextoBusqueda c = Contexto(kMadrid);
    c.TieneObs = false;
    EXPECT_EQ(modAzimut::RutaCielo(c, false, az, alt), 0);
    c.TieneObs = true;
    EXPECT_EQ(modAzimut::RutaCielo(c, false, std::span(az).first(143), alt), 0);
    EXPECT_EQ(az[0], 7);
    EXPECT_EQ(alt[143], 8);
}

} // namespace

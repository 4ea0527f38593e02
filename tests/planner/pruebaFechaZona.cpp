#include "animacion.h"
#include "fechaPlanificador.h"
#include "zona.h"

#include "modFormato.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <random>

namespace {

// A region with central European summer time, by its rule of 1996: from the last Sunday of March to the
// last of October, changing at 01:00 UTC.
std::optional<std::int64_t> DesfaseCentroeuropeo(std::int64_t utc)
{
    using namespace std::chrono;
    const sys_seconds t{seconds{utc}};
    const year anio = year_month_day{floor<days>(t)}.year();
    const sys_seconds empieza = sys_days{anio / March / Sunday[last]} + hours{1};
    const sys_seconds acaba = sys_days{anio / October / Sunday[last]} + hours{1};
    return t >= empieza && t < acaba ? 7200 : 3600;
}

const zona::RelojLocal kEuropa{DesfaseCentroeuropeo, [] { return std::int64_t{3600}; }};

zona::RelojLocal SinReglas(std::int64_t diferencia)
{
    return {[](std::int64_t) -> std::optional<std::int64_t> { return std::nullopt; },
            [diferencia] { return diferencia; }};
}

double ProponerEuropa(std::int16_t a, std::int16_t m, std::int16_t d)
{
    return zona::CalcularZonaParaFecha(a, m, d, kEuropa);
}

bool NadiePregunta()
{
    ADD_FAILURE() << "a question was asked";
    return false;
}

// The number with the separator of the system that runs the test.
QString Regional(QString texto)
{
    return texto.replace(QLatin1Char('.'), modFormato::SeparadoresSistema().decimal);
}

} // namespace

// --- Dates ---

struct CasoFecha
{
    const char* frase;
    std::int16_t anio, mes, dia;
    bool valida, paraZona;
};

// Calendar facts; the limits are the planner's.
constexpr CasoFecha kFechas[] = {
    {"30 February is typed on the way, never computed", 2026, 2, 30, false, true},
    {"29 February of a common year", 2026, 2, 29, false, true},
    {"29 February of a leap year", 2028, 2, 29, true, true},
    {"2000 is a leap year", 2000, 2, 29, true, true},
    {"1900 is none", 1900, 2, 29, false, true},
    {"2100 is none", 2100, 2, 29, false, true},
    {"1899 is refused", 1899, 12, 31, false, false},
    {"1900 is the first year", 1900, 1, 1, true, true},
    {"2200 is the last", 2200, 12, 31, true, true},
    {"2201 is refused", 2201, 1, 1, false, false},
    {"month 0", 2026, 0, 1, false, false},
    {"month 13", 2026, 13, 1, false, false},
    {"day 0", 2026, 5, 0, false, false},
    {"31 April", 2026, 4, 31, false, true},
    {"day 32", 2026, 5, 32, false, false},
    {"empty boxes read 0", 0, 0, 0, false, false},
    {"the ends of the boxes' range", -32768, -32768, -32768, false, false},
    {"and the other end", 32767, 32767, 32767, false, false},
};

TEST(fechaPlanificador, FechasQueAcepta)
{
    for (const CasoFecha& c : kFechas) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(fechaPlanificador::FechaValida(c.anio, c.mes, c.dia), c.valida);
        EXPECT_EQ(fechaPlanificador::FechaSirveParaZona(c.anio, c.mes, c.dia), c.paraZona);
    }
}

TEST(fechaPlanificador, LosMesesSumanElAnio)
{
    for (int anio = 1900; anio <= 2200; ++anio) {
        int dias = 0;
        for (std::int16_t mes = 1; mes <= 12; ++mes)
            dias += fechaPlanificador::DiasMes(static_cast<std::int16_t>(anio), mes);
        EXPECT_EQ(dias, std::chrono::year{anio}.is_leap() ? 366 : 365) << anio;
    }
    EXPECT_EQ(fechaPlanificador::DiasMes(2026, 0), 0);
    EXPECT_EQ(fechaPlanificador::DiasMes(2026, 13), 0);
}

// --- Animation ---

struct CasoPaso
{
    const char* frase;
    int valor, velocidad, minimo, siguiente;
};

// By hand.
constexpr CasoPaso kPasos[] = {
    {"1430 with speed 15 wraps to 5 of the same date", 1430, 15, 0, 5},
    {"a plain step", 720, 5, 0, 725},
    {"one minute", 0, 1, 0, 1},
    {"1439 is reached", 1434, 5, 0, 1439},
    {"exactly midnight wraps to 0", 1435, 5, 0, 0},
    {"the bar's end, 24:00, goes on past midnight", 1440, 60, 0, 60},
    {"a minimum above the wrapped value holds", 1439, 1, 30, 30},
    {"the minimum itself never passes 23:59", 0, 1, 1440, 1439},
};

TEST(animacion, SiguienteMinuto)
{
    for (const CasoPaso& c : kPasos) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(animacion::SiguienteMinuto(c.valor, c.velocidad, c.minimo), c.siguiente);
    }
}

TEST(animacion, NuncaSaleDelDiaYSiempreAvanza)
{
    for (int valor = 0; valor <= 1440; ++valor)
        for (int velocidad = 1; velocidad <= 60; ++velocidad) {
            const int v = animacion::SiguienteMinuto(valor, velocidad, 0);
            ASSERT_GE(v, 0);
            ASSERT_LE(v, 1439);
            ASSERT_EQ((v - valor - velocidad) % 1440, 0) << valor << " + " << velocidad;
        }
}

// --- Zone of a date ---

TEST(zona, LaZonaSigueElHorarioDeVerano)
{
    EXPECT_EQ(ProponerEuropa(2026, 1, 15), 1.0);
    EXPECT_EQ(ProponerEuropa(2026, 7, 15), 2.0);
    EXPECT_EQ(ProponerEuropa(2026, 3, 28), 1.0);
    EXPECT_EQ(ProponerEuropa(2026, 3, 29), 2.0) << "changed by 12:00 UTC of that Sunday";
    EXPECT_EQ(ProponerEuropa(2026, 10, 25), 1.0);
}

TEST(zona, SePreguntaPorLasDoceUtcDeEseDia)
{
    std::int64_t pedido = 0;
    const zona::RelojLocal reloj{[&pedido](std::int64_t utc) -> std::optional<std::int64_t> {
                                     pedido = utc;
                                     return 19800;
                                 },
                                 [] { return std::int64_t{0}; }};
    EXPECT_EQ(zona::CalcularZonaParaFecha(2026, 8, 12, reloj), 5.5);
    EXPECT_EQ(pedido, 1786536000) << "2026-08-12 12:00 UTC";
    zona::CalcularZonaParaFecha(1970, 1, 1, reloj);
    EXPECT_EQ(pedido, 43200);
}

struct CasoDesfase
{
    const char* frase;
    std::int64_t segundos;
    double horas;
};

// Offsets of the tz database; 561 s is local mean time of Paris, 1172 s that of Amsterdam until 1937.
constexpr CasoDesfase kDesfases[] = {
    {"Nepal", 20700, 5.75},
    {"Newfoundland", -12600, -3.5},
    {"odd seconds go to the nearest minute, 9", 561, 9.0 / 60.0},
    {"and 20", 1172, 20.0 / 60.0},
    {"half a minute goes to the even one", 90, 2.0 / 60.0},
    {"Kiribati, beyond half a day", 50400, 14.0},
};

TEST(zona, ElDesfaseSeDaEnMinutosEnteros)
{
    for (const CasoDesfase& c : kDesfases) {
        SCOPED_TRACE(c.frase);
        const zona::RelojLocal reloj{[&c](std::int64_t) -> std::optional<std::int64_t> { return c.segundos; },
                                     [] { return std::int64_t{0}; }};
        EXPECT_DOUBLE_EQ(zona::CalcularZonaParaFecha(2026, 1, 1, reloj), c.horas);
    }
}

// The two clock faces may stand on different days; the difference folds into half a day either side.
constexpr CasoDesfase kDiferencias[] = {
    {"an hour east", 3600, 1.0},
    {"five and a half hours west", -19800, -5.5},
    {"local already tomorrow", 3600 - 86400, 1.0},
    {"local still yesterday", 86400 - 18000, -5.0},
    {"half a day stays", 43200, 12.0},
    {"half a day west stays", -43200, -12.0},
    {"a second of lag between the two readings is rounded away", 7199, 2.0},
    {"whole days do not matter", 3600 + 5 * 86400, 1.0},
};

TEST(zona, SinReglasSirveLaDiferenciaDeLosRelojes)
{
    for (const CasoDesfase& c : kDiferencias) {
        SCOPED_TRACE(c.frase);
        EXPECT_DOUBLE_EQ(zona::CalcularZonaParaFecha(2026, 7, 1, SinReglas(c.segundos)), c.horas);
    }
}

TEST(zona, TextoDeLaZona)
{
    EXPECT_EQ(zona::TextoZona(2.0), QStringLiteral("2"));
    EXPECT_EQ(zona::TextoZona(0.0), QStringLiteral("0"));
    EXPECT_EQ(zona::TextoZona(-0.0), QStringLiteral("0"));
    EXPECT_EQ(zona::TextoZona(-10.0), QStringLiteral("-10"));
    EXPECT_EQ(zona::TextoZona(5.5), Regional(QStringLiteral("5.5")));
    EXPECT_EQ(zona::TextoZona(-3.5), Regional(QStringLiteral("-3.5")));
    EXPECT_EQ(zona::TextoZona(5.75), Regional(QStringLiteral("5.75")));
}

TEST(zona, LoEscritoSeLeeIgual)
{
    constexpr double kQuinceCifras = 5e-14; // hours; the fifteenth digit of a number above 10
    for (int minutos = -14 * 60; minutos <= 14 * 60; ++minutos) {
        const double z = minutos / 60.0;
        EXPECT_NEAR(zona::LeerZona(zona::TextoZona(z)), z, kQuinceCifras);
    }
    EXPECT_EQ(zona::LeerZona(QStringLiteral("5,5")), 5.5);
    EXPECT_EQ(zona::LeerZona(QStringLiteral("5.5")), 5.5);
    EXPECT_EQ(zona::LeerZona(QStringLiteral("hola")), 0.0);
    EXPECT_EQ(zona::LeerZona(QString()), 0.0);
}

// --- The state machine ---

class ZonaEnMadrid : public ::testing::Test
{
protected:
    void SetUp() override { caja = z.Iniciar(ProponerEuropa(2026, 1, 15)); }

    // What the window does on a change of date.
    void Fecha(std::int16_t a, std::int16_t m, std::int16_t d)
    {
        if (const auto texto = z.AlCambiarFecha(a, m, d, caja, ProponerEuropa)) {
            caja = *texto;
            ++escrituras;
        }
    }

    // What it does when the user has typed a text; answers whether it recomputes.
    bool Teclear(const QString& texto, bool respuesta)
    {
        caja = texto;
        const auto r = z.ConfirmarZona(caja, [this, respuesta] {
            ++preguntas;
            return respuesta;
        });
        if (r.reponer) {
            z.ZonaEnEdicion = true;
            caja = *r.reponer;
            EXPECT_TRUE(z.ConfirmarZona(caja, NadiePregunta).aceptada) << "the box's own change event";
            z.ZonaEnEdicion = false;
        }
        return r.aceptada;
    }

    ZonaPlanificador z;
    QString caja;
    int preguntas = 0;
    int escrituras = 0;
};

TEST_F(ZonaEnMadrid, AlEmpezarMuestraLaPropuesta)
{
    EXPECT_EQ(caja, QStringLiteral("1"));
    EXPECT_EQ(z.ZonaActual, 1.0);
    EXPECT_EQ(z.TextoZonaAceptado, caja);
    EXPECT_EQ(z.TextoZonaFoco, caja);
}

TEST_F(ZonaEnMadrid, LaZonaAutomaticaSigueALaFecha)
{
    Fecha(2026, 7, 15);
    EXPECT_EQ(caja, QStringLiteral("2"));
    EXPECT_EQ(z.ZonaActual, 2.0);
    EXPECT_EQ(z.TextoZonaAceptado, QStringLiteral("2"));
    EXPECT_EQ(z.TextoZonaFoco, QStringLiteral("2"));
    Fecha(2026, 8, 15);
    EXPECT_EQ(escrituras, 1) << "the same proposal is not written again";
    Fecha(2026, 12, 1);
    EXPECT_EQ(caja, QStringLiteral("1"));
}

TEST_F(ZonaEnMadrid, LaZonaTecleadaSeQueda)
{
    EXPECT_TRUE(Teclear(QStringLiteral("5.5"), true));
    Fecha(2026, 7, 15);
    EXPECT_EQ(caja, QStringLiteral("5.5"));
    EXPECT_EQ(z.ZonaActual, 1.0) << "the last proposal is kept";
    EXPECT_EQ(escrituras, 0);
}

TEST_F(ZonaEnMadrid, UnaFechaAMediasNoCambiaLaZona)
{
    Fecha(20, 7, 15);
    Fecha(2026, 0, 15);
    Fecha(2026, 7, 32);
    Fecha(2201, 7, 15);
    EXPECT_EQ(escrituras, 0);
    Fecha(2026, 6, 31);
    EXPECT_EQ(caja, QStringLiteral("2")) << "any day up to 31 counts here";
}

TEST_F(ZonaEnMadrid, AMedioTeclearNoPregunta)
{
    for (const char* texto : {"-", "+", "1.", "1,", "", "   ", "-3,", " 1. "})
        EXPECT_FALSE(Teclear(QLatin1String(texto), true)) << '"' << texto << '"';
    EXPECT_EQ(preguntas, 0);
    EXPECT_EQ(z.TextoZonaAceptado, QStringLiteral("1"));
}

TEST_F(ZonaEnMadrid, UnaZonaNuevaPreguntaUnaVez)
{
    EXPECT_TRUE(Teclear(QStringLiteral("1.5"), true));
    EXPECT_EQ(preguntas, 1);
    EXPECT_EQ(z.TextoZonaAceptado, QStringLiteral("1.5"));
    EXPECT_EQ(z.TextoZonaFoco, QStringLiteral("1.5"));
    EXPECT_TRUE(Teclear(QStringLiteral("1.5"), true)) << "leaving the box";
    EXPECT_TRUE(Teclear(QStringLiteral(" 1.5 "), true)) << "blanks do not count";
    EXPECT_EQ(preguntas, 1);
}

TEST_F(ZonaEnMadrid, ElNoDevuelveElTextoSinPreguntarOtraVez)
{
    EXPECT_FALSE(Teclear(QStringLiteral("1.5"), false));
    EXPECT_EQ(caja, QStringLiteral("1"));
    EXPECT_EQ(preguntas, 1);
    EXPECT_TRUE(Teclear(caja, true)) << "leaving the box afterwards";
    EXPECT_EQ(preguntas, 1);
}

TEST_F(ZonaEnMadrid, ConLaPreguntaAbiertaNoHayOtra)
{
    int abiertas = 0;
    const auto r = z.ConfirmarZona(QStringLiteral("7"), [&] {
        ++abiertas;
        EXPECT_FALSE(z.ConfirmarZona(QStringLiteral("7"), NadiePregunta).aceptada); // the box lost the focus
        return true;
    });
    EXPECT_TRUE(r.aceptada);
    EXPECT_EQ(abiertas, 1);
    EXPECT_TRUE(Teclear(QStringLiteral("8"), true)) << "and the next one is asked again";
    EXPECT_EQ(preguntas, 1);
}

TEST_F(ZonaEnMadrid, ElFocoGuardaElTexto)
{
    z.AlGanarFoco(QStringLiteral(" 1"));
    EXPECT_EQ(z.TextoZonaFoco, QStringLiteral(" 1"));
    EXPECT_EQ(z.TextoZonaAceptado, QStringLiteral("1"));
}

TEST_F(ZonaEnMadrid, ElTextoDeLaPropuestaValeAunqueSeEscribaDeOtroModo)
{
    EXPECT_TRUE(Teclear(QStringLiteral("1.00001"), true));
    Fecha(2026, 7, 15);
    EXPECT_EQ(caja, QStringLiteral("2")) << "within 0.0001 of the proposal it is still automatic";
}

// Whatever a user does, a step ends with at most one question, and the box holds the accepted text, a half
// typed one, or a confirmed one.
TEST_F(ZonaEnMadrid, CualquierSecuenciaAcaba)
{
    std::mt19937 azar(20260812);
    const QString textos[] = {QStringLiteral("1"),    QStringLiteral("2"),   QStringLiteral("-"),
                              QStringLiteral("5,5"),  QStringLiteral("1,"),  QString(),
                              QStringLiteral("hola"), QStringLiteral("-3.5")};
    for (int paso = 0; paso < 20000; ++paso) {
        const int antes = preguntas;
        if (azar() % 2 == 0) {
            Fecha(static_cast<std::int16_t>(1890 + azar() % 320), static_cast<std::int16_t>(azar() % 14),
                  static_cast<std::int16_t>(azar() % 33));
            EXPECT_EQ(preguntas, antes);
        } else {
            const QString texto = textos[azar() % std::size(textos)];
            const bool si = azar() % 2 == 0;
            const bool aceptada = Teclear(texto, si);
            ASSERT_LE(preguntas - antes, 1);
            if (aceptada) {
                ASSERT_EQ(caja.trimmed(), z.TextoZonaAceptado.trimmed());
            } else if (preguntas > antes) {
                ASSERT_EQ(caja, z.TextoZonaAceptado);
            }
        }
        ASSERT_TRUE(std::isfinite(z.ZonaActual));
        ASSERT_FALSE(z.ZonaEnEdicion);
    }
}

#include "tarjetas.h"

#include "modFormato.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

namespace {

// A day in which everything happens, in the order of construction, an hour apart (UT).
modAstro::MomentosDia DiaCompleto()
{
    modAstro::MomentosDia m;
    double* const momentos[] = {&m.AstroAlba,    &m.NauticoAlba,  &m.CivilAlba,  &m.SolOrto,
                                &m.DoradaAM,     &m.SolTransito,  &m.DoradaPM,   &m.SolOcaso,
                                &m.CivilOcaso,   &m.NauticoOcaso, &m.AstroOcaso, &m.LunaOrto,
                                &m.LunaTransito, &m.LunaOcaso};
    int hora = 4;
    for (double* momento : momentos)
        *momento = hora++ / 24.0;
    m.SolAzOrto = 89.994;
    m.SolAzOcaso = 270.0;
    m.SolAzTransito = 180.0;
    m.SolAltTransito = 49.555;
    m.LunaAzOrto = 110.0;
    m.LunaAzOcaso = 250.0;
    m.LunaAzTransito = 179.0;
    m.LunaAltTransito = 30.0;
    m.LunaIlum = 0.98765;
    return m;
}

QString Coma(const char* texto)
{
    return QString::fromUtf8(texto).replace(QLatin1Char('.'), QLatin1Char(','));
}

} // namespace

// --- Hours and texts ---

struct CasoHora
{
    const char* frase;
    double fraccion, zona, hora;
};

// By hand.
constexpr CasoHora kHoras[] = {
    {"absent", -1.0, 2.0, -1.0},
    {"06:00 UT in zone 2", 0.25, 2.0, 8.0},
    {"past midnight comes back", 0.95833333333333337, 2.0, 1.0},
    {"before midnight goes to the day's end", 0.125, -5.0, 22.0},
    {"midnight itself is 0, not 24", 0.0, 0.0, 0.0},
    {"an hour of a zone that was typed wildly", 0.5, 1000.0, 4.0},
};

TEST(tarjetas, HoraLocal)
{
    for (const CasoHora& c : kHoras) {
        SCOPED_TRACE(c.frase);
        EXPECT_NEAR(tarjetas::HoraLocal(c.fraccion, c.zona), c.hora, 1e-9);
    }
}

TEST(tarjetas, LaHoraLocalQuedaEnElDia)
{
    for (int i = 0; i < 2000; ++i)
        for (double zona : {-14.0, -3.5, -1e-17, 0.0, 1e-300, 5.75, 14.0, 1e300}) {
            const double h = tarjetas::HoraLocal(i / 2000.0, zona);
            ASSERT_GE(h, 0.0) << i << ' ' << zona;
            ASSERT_LT(h, 24.0) << i << ' ' << zona;
        }
}

TEST(tarjetas, TextoAngulo)
{
    EXPECT_EQ(tarjetas::TextoAngulo(123.456), QStringLiteral("123,46°")) << "a comma in every region";
    EXPECT_EQ(tarjetas::TextoAngulo(0.0), QStringLiteral("0,00°"));
    EXPECT_EQ(tarjetas::TextoAngulo(-0.01), QString());
    EXPECT_EQ(tarjetas::TextoAngulo(-999.0), QString());
}

struct CasoReloj
{
    const char* frase;
    double hora;
    const char* texto;
};

constexpr CasoReloj kRelojes[] = {
    {"whole", 8.0, "08:00"},
    {"half an hour", 8.5, "08:30"},
    {"minutes are rounded", 8.0 + 29.6 / 60, "08:30"},
    {"60 minutes carry over", 6.0 + 59.6 / 60, "07:00"},
    {"59.4 minutes do not", 6.0 + 59.4 / 60, "06:59"},
    {"into the last midnight", 23.0 + 59.9 / 60, "24:00"},
    {"the first minute", 0.0, "00:00"},
};

TEST(tarjetas, ElRelojLlevaSesentaMinutos)
{
    for (const CasoReloj& c : kRelojes) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(tarjetas::TextoRelojTarjeta(c.hora), QLatin1String(c.texto));
    }
}

// --- The cards of a day ---

TEST(tarjetas, LosCatorceSucesosConSusLineas)
{
    const auto t = tarjetas::ConstruirTarjetas(DiaCompleto(), 0.0);
    const QString ilum = modFormato::Format(98.765, u"0.00") + QLatin1Char('%');
    const struct
    {
        const char* nombre;
        QString linea3, linea4;
    } esperadas[] = {
        {"Inicio astro", {}, {}},
        {"Inicio náutico", {}, {}},
        {"Inicio civil", {}, {}},
        {"Salida sol", Coma("89.99°"), {}},
        {"Hora dorada", {}, {}},
        {"Tránsito sol", Coma("180.00°"), Coma("49.56°")},
        {"Hora dorada", {}, {}},
        {"Puesta sol", Coma("270.00°"), {}},
        {"Fin civil", {}, {}},
        {"Fin náutico", {}, {}},
        {"Fin astro", {}, {}},
        {"Salida luna", Coma("110.00°"), ilum},
        {"Tráns. luna", Coma("179.00°"), Coma("30.00°")},
        {"Puesta luna", Coma("250.00°"), ilum},
    };
    ASSERT_EQ(t.size(), std::size(esperadas));
    for (std::size_t i = 0; i < t.size(); ++i) {
        SCOPED_TRACE(esperadas[i].nombre);
        EXPECT_EQ(t[i].nombre, QString::fromUtf8(esperadas[i].nombre));
        EXPECT_NEAR(t[i].hora, 4.0 + static_cast<double>(i), 1e-9);
        EXPECT_EQ(t[i].linea3, esperadas[i].linea3);
        EXPECT_EQ(t[i].linea4, esperadas[i].linea4);
    }
}

TEST(tarjetas, UnaNocheSinPuestaDeLunaDejaTreceMasAnchas)
{
    auto m = DiaCompleto();
    const auto catorce = tarjetas::Colocar(tarjetas::ConstruirTarjetas(m, 0.0), 1001.0);
    m.LunaOcaso = -1.0;
    m.LunaAzOcaso = -1.0;
    const auto cartas = tarjetas::ConstruirTarjetas(m, 0.0);
    ASSERT_EQ(cartas.size(), 13U);
    const auto trece = tarjetas::Colocar(cartas, 1001.0);
    EXPECT_DOUBLE_EQ(trece.celdas[0].x2 - trece.celdas[0].x1, 75.0);
    EXPECT_GT(trece.celdas[0].x2, catorce.celdas[0].x2);
}

TEST(tarjetas, LaZonaGiraElOrden)
{
    const auto t = tarjetas::ConstruirTarjetas(DiaCompleto(), 12.0);
    EXPECT_EQ(t.front().nombre, QStringLiteral("Fin civil")) << "12:00 UT is midnight in zone 12";
    EXPECT_EQ(t.back().nombre, QStringLiteral("Puesta sol"));
}

TEST(tarjetas, AIgualHoraQuedaElOrdenDeConstruccion)
{
    auto m = DiaCompleto();
    m.LunaOrto = m.SolOcaso = m.DoradaAM;
    const auto t = tarjetas::ConstruirTarjetas(m, 0.0);
    std::vector<QString> juntas;
    for (const TarjetaEvento& carta : t)
        if (carta.hora == tarjetas::HoraLocal(m.DoradaAM, 0.0))
            juntas.push_back(carta.nombre);
    EXPECT_EQ(juntas, (std::vector<QString>{QStringLiteral("Hora dorada"), QStringLiteral("Puesta sol"),
                                            QStringLiteral("Salida luna")}));
}

TEST(tarjetas, UnDiaSinSucesosNoTieneTarjetas)
{
    const auto cartas = tarjetas::ConstruirTarjetas(modAstro::MomentosDia{}, 2.0);
    EXPECT_TRUE(cartas.empty());
    EXPECT_TRUE(tarjetas::Colocar(cartas, 700.0).celdas.empty());
}

TEST(tarjetas, SiempreOrdenadas)
{
    std::mt19937 azar(1);
    std::uniform_real_distribution<double> fraccion(-0.3, 1.0), zona(-14.0, 14.0);
    for (int vez = 0; vez < 500; ++vez) {
        modAstro::MomentosDia m;
        for (double* momento :
             {&m.AstroAlba, &m.SolOrto, &m.DoradaAM, &m.SolTransito, &m.SolOcaso, &m.LunaOrto, &m.LunaOcaso})
            *momento = fraccion(azar);
        const auto t = tarjetas::ConstruirTarjetas(m, zona(azar));
        for (std::size_t i = 0; i < t.size(); ++i) {
            ASSERT_GE(t[i].hora, 0.0);
            ASSERT_LT(t[i].hora, 24.0);
            ASSERT_LE(t[i > 0 ? i - 1 : i].hora, t[i].hora);
        }
    }
}

// --- Names ---

TEST(tarjetas, LosNombresConYSinAcentos)
{
    EXPECT_EQ(tarjetas::ClaveTarjeta(QStringLiteral("Inicio náutico")),
              QStringLiteral("main.card.inicio_naut"));
    EXPECT_EQ(tarjetas::ClaveTarjeta(QStringLiteral("Inicio nautico")),
              QStringLiteral("main.card.inicio_naut"));
    EXPECT_EQ(tarjetas::ClaveTarjeta(QStringLiteral("Fin náutico")), QStringLiteral("main.card.fin_naut"));
    EXPECT_EQ(tarjetas::ClaveTarjeta(QStringLiteral("Fin nautico")), QStringLiteral("main.card.fin_naut"));
    EXPECT_EQ(tarjetas::ClaveTarjeta(QStringLiteral("Eclipse")), QString());
    EXPECT_EQ(tarjetas::ClaveCortaTarjeta(QStringLiteral("Hora dorada")),
              QStringLiteral("main.card.corto.hora_dorada"));
    EXPECT_EQ(tarjetas::ClaveCortaTarjeta(QStringLiteral("Salida sol")), QString());
}

TEST(tarjetas, CadaTarjetaTieneSuClave)
{
    std::set<QString> claves;
    for (const TarjetaEvento& carta : tarjetas::ConstruirTarjetas(DiaCompleto(), 0.0)) {
        EXPECT_FALSE(tarjetas::ClaveTarjeta(carta.nombre).isEmpty()) << carta.nombre.toStdString();
        claves.insert(tarjetas::ClaveTarjeta(carta.nombre));
    }
    EXPECT_EQ(claves.size(), 13U) << "the two golden hours share theirs";
}

// --- Clicks ---

TEST(tarjetas, ElHuecoEntreDosNoDaNada)
{
    const auto tabla = tarjetas::Colocar(tarjetas::ConstruirTarjetas(DiaCompleto(), 0.0), 700.0);
    EXPECT_EQ(tabla.HoraEn(1, 10), tabla.celdas[0].hora);
    EXPECT_EQ(tabla.HoraEn(49, 10), tabla.celdas[0].hora);
    EXPECT_EQ(tabla.HoraEn(50, 10), std::nullopt);
    EXPECT_EQ(tabla.HoraEn(51, 10), tabla.celdas[1].hora);
    EXPECT_EQ(tabla.HoraEn(0, 10), std::nullopt);
    EXPECT_EQ(tabla.HoraEn(699, 10), tabla.celdas[13].hora);
    EXPECT_EQ(tabla.HoraEn(700, 10), std::nullopt);
    EXPECT_EQ(tabla.HoraEn(-5, 10), std::nullopt);
}

TEST(tarjetas, SoloCuentaLaBandaDeTarjetas)
{
    const auto tabla = tarjetas::Colocar(tarjetas::ConstruirTarjetas(DiaCompleto(), 0.0), 700.0);
    EXPECT_TRUE(tabla.HoraEn(25, 0).has_value());
    EXPECT_TRUE(tabla.HoraEn(25, 70).has_value());
    EXPECT_FALSE(tabla.HoraEn(25, 71).has_value());
    EXPECT_FALSE(tabla.HoraEn(25, -1).has_value());
    EXPECT_FALSE(TablaTarjetas{}.HoraEn(25, 10).has_value());
}

#include "modSucesos.h"

#include "literalAstro.h"
#include "modAstro.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <iterator>

namespace {

using modSucesos::Suceso;
using modSucesos::Tipo;

double Jd(int anio, int mes, int dia, int hora, int minuto)
{
    return modAstro::DiaJuliano(static_cast<std::int16_t>(anio), static_cast<std::int16_t>(mes),
                                static_cast<std::int16_t>(dia), (hora + minuto / 60.0) / 24.0);
}

bool EsFase(const Suceso& s)
{
    return s.tipo <= Tipo::CuartoMenguante;
}

bool EsApside(const Suceso& s)
{
    return s.tipo == Tipo::Perigeo || s.tipo == Tipo::Apogeo;
}

template <class Cual> std::vector<Suceso> Filtrar(const std::vector<Suceso>& todos, Cual cual)
{
    std::vector<Suceso> r;
    std::copy_if(todos.begin(), todos.end(), std::back_inserter(r), cual);
    return r;
}

double MasCercano(const std::vector<Suceso>& sucesos, Tipo tipo, double jd)
{
    double mejor = 1e9;
    for (const Suceso& s : sucesos) {
        if (s.tipo == tipo) {
            mejor = std::min(mejor, std::fabs(s.jd - jd));
        }
    }
    return mejor;
}

struct CasoFecha
{
    const char* frase;
    Tipo tipo;
    int mes, dia, hora, minuto;
    double minutos; // allowed
};

// US Naval Observatory, "Phases of the Moon" and "Earth's Seasons", 2026, Universal Time. Phases differ by
// Delta-T (69 s), the missing nutation and the straight line inside six hours: under 5 minutes. The Sun's
// 0.01 degree is a quarter of an hour at the equinoxes; solstices stand on a sample, three hours at most.
constexpr CasoFecha k2026[] = {
    {"full Moon of January", Tipo::LunaLlena, 1, 3, 10, 3, 5},
    {"new Moon of February, annular eclipse", Tipo::LunaNueva, 2, 17, 12, 1, 5},
    {"full Moon of March, total eclipse", Tipo::LunaLlena, 3, 3, 11, 38, 5},
    {"full Moon at the end of May", Tipo::LunaLlena, 5, 31, 8, 45, 5},
    {"new Moon of August, total eclipse", Tipo::LunaNueva, 8, 12, 17, 37, 5},
    {"full Moon of August, partial eclipse", Tipo::LunaLlena, 8, 28, 4, 18, 5},
    {"full Moon of December", Tipo::LunaLlena, 12, 24, 1, 28, 5},
    {"equinox of March", Tipo::EquinoccioMarzo, 3, 20, 14, 46, 15},
    {"solstice of June", Tipo::SolsticioJunio, 6, 21, 8, 25, 180},
    {"equinox of September", Tipo::EquinoccioSeptiembre, 9, 23, 0, 5, 15},
    {"solstice of December", Tipo::SolsticioDiciembre, 12, 21, 20, 50, 180},
};

TEST(modSucesos, FechasDeUnAnuario)
{
    const std::vector<Suceso> sucesos = modSucesos::SucesosDelAnio(2026);
    for (const CasoFecha& c : k2026) {
        SCOPED_TRACE(c.frase);
        EXPECT_LT(MasCercano(sucesos, c.tipo, Jd(2026, c.mes, c.dia, c.hora, c.minuto)) * 1440, c.minutos);
    }
}

TEST(modSucesos, ElFraccionDeUnCuartoSobreLaMuestraEsUno)
{
    // A full Moon at a sample exactly: the quarter counts from there, so the change is seen at it.
    EXPECT_EQ(modSucesos::FraccionDeCuarto(2, 0.49, 0.5), 1.0);
    EXPECT_EQ(modSucesos::FraccionDeCuarto(1, 0.25, 0.26), 0.0);
    // The new Moon is where the fraction wraps past 1.
    EXPECT_NEAR(modSucesos::FraccionDeCuarto(0, 0.998, 0.006), 0.25, 1e-12);
    // Rounding cannot push it out of its step.
    EXPECT_EQ(modSucesos::FraccionDeCuarto(2, 0.51, 0.52), 0.0);
}

TEST(modSucesos, ElAnioVaDeCeroACeroHorasUT)
{
    for (int anio = 1900; anio <= 2200; anio += 3) {
        SCOPED_TRACE(anio);
        const double inicio = Jd(anio, 1, 1, 0, 0);
        const double fin = Jd(anio + 1, 1, 1, 0, 0);
        for (const Suceso& s : modSucesos::SucesosDelAnio(static_cast<std::int16_t>(anio))) {
            EXPECT_GE(s.jd, inicio);
            EXPECT_LE(s.jd, fin);
        }
    }
}

TEST(modSucesos, LasFasesSeSiguenSinSaltarNinguna)
{
    for (int anio = 1900; anio <= 2200; anio += 3) {
        SCOPED_TRACE(anio);
        const auto fases = Filtrar(modSucesos::SucesosDelAnio(static_cast<std::int16_t>(anio)), EsFase);
        ASSERT_GE(fases.size(), 48u);
        ASSERT_LE(fases.size(), 51u);
        for (std::size_t i = 1; i < fases.size(); ++i) {
            EXPECT_EQ(static_cast<int>(fases[i].tipo), (static_cast<int>(fases[i - 1].tipo) + 1) % 4);
            EXPECT_GT(fases[i].jd - fases[i - 1].jd,
                      6.4); // shortest and longest quarters are 6.6 and 8.2 days
            EXPECT_LT(fases[i].jd - fases[i - 1].jd, 8.4);
        }
    }
}

TEST(modSucesos, PerigeosYApogeosSeAlternan)
{
    for (int anio = 1900; anio <= 2200; anio += 3) {
        SCOPED_TRACE(anio);
        const auto apsides = Filtrar(modSucesos::SucesosDelAnio(static_cast<std::int16_t>(anio)), EsApside);
        ASSERT_GE(apsides.size(), 25u);
        for (std::size_t i = 0; i < apsides.size(); ++i) {
            const bool perigeo = apsides[i].tipo == Tipo::Perigeo;
            EXPECT_GT(apsides[i].distanciaKm, perigeo ? 356000 : 404000);
            EXPECT_LT(apsides[i].distanciaKm, perigeo ? 371000 : 407000);
            if (i > 0) {
                EXPECT_NE(apsides[i].tipo, apsides[i - 1].tipo);
            }
        }
    }
}

TEST(modSucesos, CadaAnioTieneSusCuatroEstaciones)
{
    for (int anio = 1900; anio <= 2200; ++anio) {
        SCOPED_TRACE(anio);
        const auto sucesos = modSucesos::SucesosDelAnio(static_cast<std::int16_t>(anio));
        for (const Tipo t : {Tipo::EquinoccioMarzo, Tipo::SolsticioJunio, Tipo::EquinoccioSeptiembre,
                             Tipo::SolsticioDiciembre}) {
            EXPECT_EQ(
                std::count_if(sucesos.begin(), sucesos.end(), [t](const Suceso& s) { return s.tipo == t; }),
                1);
        }
    }
}

// The jumps must not lose or move anything: each year against a walk over every sample, with the plain
// astronomy of the tests.
TEST(modSucesos, LosSaltosNoPierdenNada)
{
    for (int anio = 1900; anio <= 2200; anio += 12) {
        SCOPED_TRACE(anio);
        std::vector<Suceso> todos;
        std::vector<double> fase, km, delta;
        const double inicio = Jd(anio, 1, 1, 0, 0);
        const double fin = Jd(anio + 1, 1, 1, 0, 0);
        for (double t = inicio; t < fin + 0.001; t += modSucesos::kPaso) {
            double f, iluminada, d, alfa, decl, ua, tsg;
            literal::FaseLunar(t, f, iluminada, d);
            literal::PosicionSol(t, alfa, decl, ua, tsg);
            fase.push_back(f);
            km.push_back(d);
            delta.push_back(decl);
        }
        const auto contar = [](const std::vector<Suceso>& s, Tipo a, Tipo b) {
            return std::count_if(s.begin(), s.end(),
                                 [=](const Suceso& x) { return x.tipo == a || x.tipo == b; });
        };
        const auto ours = modSucesos::SucesosDelAnio(static_cast<std::int16_t>(anio));
        long cuartos = 0, giros = 0;
        for (std::size_t i = 1; i < fase.size(); ++i) {
            const int q = static_cast<int>(std::floor(4 * fase[i]));
            if (q != static_cast<int>(std::floor(4 * fase[i - 1]))) {
                ++cuartos;
                const double t = inicio + (static_cast<double>(i) - 1) * modSucesos::kPaso +
                                 modSucesos::kPaso * modSucesos::FraccionDeCuarto(q, fase[i - 1], fase[i]);
                EXPECT_LT(MasCercano(ours, static_cast<Tipo>(q), t), 1e-7);
            }
            if (i >= 2) {
                const bool perigeo = km[i - 1] < km[i - 2] && km[i - 1] < km[i];
                const bool apogeo = km[i - 1] > km[i - 2] && km[i - 1] > km[i];
                if (perigeo || apogeo) {
                    ++giros;
                    const double t = inicio + (static_cast<double>(i) - 1) * modSucesos::kPaso;
                    EXPECT_EQ(MasCercano(ours, perigeo ? Tipo::Perigeo : Tipo::Apogeo, t), 0);
                }
            }
        }
        EXPECT_EQ(static_cast<long>(Filtrar(ours, EsFase).size()), cuartos);
        EXPECT_EQ(contar(ours, Tipo::Perigeo, Tipo::Apogeo), giros);
    }
}

TEST(modSucesos, LaUltimaMuestraEsElPrimerInstanteDelAnioSiguiente)
{
    // A quarter that falls in the last six hours of the year is seen only at 0h of the next.
    int vistos = 0;
    for (int anio = 1900; anio <= 2199; ++anio) {
        const double fin = Jd(anio + 1, 1, 1, 0, 0);
        double antes, ahora, iluminada, d;
        literal::FaseLunar(fin - modSucesos::kPaso, antes, iluminada, d);
        literal::FaseLunar(fin, ahora, iluminada, d);
        if (std::floor(4 * antes) != std::floor(4 * ahora)) {
            SCOPED_TRACE(anio);
            const auto fases = Filtrar(modSucesos::SucesosDelAnio(static_cast<std::int16_t>(anio)), EsFase);
            ASSERT_FALSE(fases.empty());
            EXPECT_GT(fases.back().jd, fin - modSucesos::kPaso);
            ++vistos;
        }
    }
    EXPECT_GT(vistos, 3);
}

} // namespace

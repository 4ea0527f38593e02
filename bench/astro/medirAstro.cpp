// The astronomy core against the plain versions that the tests keep, in one process, on the same dates
// and places. After the usual lines comes a table of the ratios with what each must reach; the exit code
// is 1 when one falls short.
#include "Efemerides.h"
#include "PerfilHorizonte.h"
#include "literalAstro.h"
#include "modAstro.h"
#include "modAstroEstado.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>

namespace {

constexpr double kJd = 2461041.5; // 2026 January 1
constexpr double kLat[] = {40.4168, -33.8688, 60.17, 5.0, 69.65};

// One of 1024 days and places, so that no branch settles on one case.
struct Caso
{
    double jd, lat, lon;
    std::int16_t mes, dia;
};

constexpr std::array<Caso, 1024> kCasos = [] {
    std::array<Caso, 1024> casos{};
    for (int n = 0; n < 1024; ++n)
        casos[n] = {kJd + 0.37 * n, kLat[n % 5], -170.0 + 17.3 * (n % 20),
                    static_cast<std::int16_t>(1 + n % 12), static_cast<std::int16_t>(1 + n % 28)};
    return casos;
}();

template <class F> void Repetir(benchmark::State& estado, F f)
{
    unsigned n = 0;
    for (auto _ : estado)
        benchmark::DoNotOptimize(f(kCasos[n++ % kCasos.size()]));
}

template <class F> void Pareja(const std::string& nombre, F literalF, F productoF)
{
    for (const auto& [quien, f] : {std::pair{"literal", literalF}, std::pair{"product", productoF}})
        benchmark::RegisterBenchmark((nombre + "/" + quien).c_str(),
                                     [f = f](benchmark::State& e) { Repetir(e, f); })
            ->Repetitions(5)
            ->MinTime(0.1)
            ->ReportAggregatesOnly(false);
}

using Medida = double (*)(const Caso&);

void Registrar()
{
    Pareja<Medida>(
        "AzAltCuerpo Moon",
        [](const Caso& c) {
            double altitud, azimut;
            literal::AzAltCuerpo(c.jd, c.lat, c.lon, true, altitud, azimut);
            return altitud + azimut;
        },
        [](const Caso& c) {
            double altitud, azimut;
            modAstro::AzAltCuerpo(c.jd, c.lat, c.lon, true, altitud, azimut);
            return altitud + azimut;
        });
    Pareja<Medida>(
        "AzAltCuerpo Sun",
        [](const Caso& c) {
            double altitud, azimut;
            literal::AzAltCuerpo(c.jd, c.lat, c.lon, false, altitud, azimut);
            return altitud + azimut;
        },
        [](const Caso& c) {
            double altitud, azimut;
            modAstro::AzAltCuerpo(c.jd, c.lat, c.lon, false, altitud, azimut);
            return altitud + azimut;
        });
    Pareja<Medida>(
        "CalcularMomentosDia",
        [](const Caso& c) {
            return literal::CalcularMomentosDia(2026, c.mes, c.dia, 12, 1, c.lat, c.lon, false)[2];
        },
        [](const Caso& c) {
            return modAstro::CalcularMomentosDia(2026, c.mes, c.dia, 12, 1, c.lat, c.lon, false).SolOrto;
        });
    Pareja<Medida>(
        "CalcularMomentosDia, real horizon",
        [](const Caso& c) {
            return literal::CalcularMomentosDia(2026, c.mes, c.dia, 12, 1, c.lat, c.lon, true)[2];
        },
        [](const Caso& c) {
            return modAstro::CalcularMomentosDia(2026, c.mes, c.dia, 12, 1, c.lat, c.lon, true).SolOrto;
        });
    Pareja<Medida>(
        "CalcularCurvasDia",
        [](const Caso& c) {
            double suma = 0;
            for (int i = 0; i < 144; ++i) {
                double altitud, azimut;
                literal::AzAltCuerpo(c.jd + i / 144.0, c.lat, c.lon, false, altitud, azimut);
                suma += altitud;
                literal::AzAltCuerpo(c.jd + i / 144.0, c.lat, c.lon, true, altitud, azimut);
                suma += altitud;
            }
            return suma;
        },
        [](const Caso& c) {
            modAstroEstado::CalcularCurvasDia(2026, c.mes, c.dia, c.lat, c.lon, 1);
            return modAstroEstado::TrayectoriaLuna().altitud[7];
        });
    Pareja<Medida>(
        "FaseLunar",
        [](const Caso& c) {
            double fase, iluminada, distancia;
            literal::FaseLunar(c.jd, fase, iluminada, distancia);
            return fase;
        },
        [](const Caso& c) {
            double fase, iluminada, distancia;
            modAstro::FaseLunar(c.jd, fase, iluminada, distancia);
            return fase;
        });
}

// Mountains of up to 12 degrees with teeth of a degree, the same in both.
std::array<double, 720> Montanas()
{
    std::array<double, 720> h;
    for (int i = 0; i < 720; ++i)
        h[i] = 6 + 5 * std::sin(i * 0.0175) + (i % 7) / 6.0;
    return h;
}

// What each ratio must reach; 0 where nothing is asked.
const std::map<std::string, double> kExigido = {
    {"AzAltCuerpo Moon", 7},
    {"AzAltCuerpo Sun", 2},
    {"CalcularMomentosDia", 60},
    {"CalcularMomentosDia, real horizon", 30},
};

class Razones : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& informe) override
    {
        for (const Run& run : informe) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            const std::string nombre = run.run_name.function_name;
            const double ns = run.GetAdjustedRealTime();
            const auto [it, nuevo] = mejor.try_emplace(nombre, ns);
            it->second = std::min(it->second, ns);
            if (nuevo)
                orden.push_back(nombre);
        }
        ConsoleReporter::ReportRuns(informe);
    }

    // The fastest of the repetitions of both, and their ratio. True when all reach what they must.
    bool Tabla() const
    {
        bool bien = true;
        std::printf("\n%-36s %12s %12s %9s %9s\n", "", "literal ns", "product ns", "ratio", "at least");
        for (const std::string& nombre : orden) {
            const std::size_t barra = nombre.rfind("/literal");
            if (barra == std::string::npos)
                continue;
            const std::string base = nombre.substr(0, barra);
            const auto producto = mejor.find(base + "/product");
            if (producto == mejor.end())
                continue;
            const double razon = mejor.at(nombre) / producto->second;
            const auto exigido = kExigido.find(base);
            const double minimo = exigido == kExigido.end() ? 0 : exigido->second;
            std::printf("%-36s %12.0f %12.0f %9.2f %9.0f%s\n", base.c_str(), mejor.at(nombre),
                        producto->second, razon, minimo, razon < minimo ? "  TOO SLOW" : "");
            bien = bien && razon >= minimo;
        }
        return bien;
    }

private:
    std::map<std::string, double> mejor;
    std::vector<std::string> orden;
};

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    literal::PonerHorizonte(Montanas());
    modAstroEstado::EstablecerPerfil(Montanas(), 0, 0);
    Registrar();
    Razones razones;
    benchmark::RunSpecifiedBenchmarks(&razones);
    benchmark::Shutdown();
    return razones.Tabla() ? 0 : 1;
}

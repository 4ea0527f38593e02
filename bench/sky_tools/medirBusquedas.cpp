// Searches of the year against the plain versions that the tests keep, in one process: time and ratio.
//
// Each figure is the best of several runs; the lines of both are compared, so a wrong answer cannot look
// fast.
#include "literalBusquedas.h"

#include "modAzimut.h"
#include "modEventos.h"
#include "modViaLactea.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <utility>

namespace {

std::pair<double, QString> Medir(int veces, const std::function<QString()>& busqueda)
{
    double mejor = 1e9;
    QString texto;
    for (int i = 0; i < veces; ++i) {
        const auto inicio = std::chrono::steady_clock::now();
        texto = busqueda();
        const std::chrono::duration<double, std::milli> ms = std::chrono::steady_clock::now() - inicio;
        mejor = std::min(mejor, ms.count());
    }
    return {mejor, texto};
}

bool Comparar(const char* nombre, double exigido, const std::function<QString()>& literal,
              const std::function<QString()>& rapida)
{
    const auto [msL, textoL] = Medir(3, literal);
    const auto [msR, textoR] = Medir(15, rapida);
    const bool igual = textoL == textoR;
    const double razon = msL / msR;
    std::printf("%-34s %10.2f ms %10.3f ms %8.1f x  (at least %.0f)  %s\n", nombre, msL, msR, razon, exigido,
                igual ? "same lines" : "DIFFERENT LINES");
    return igual && razon >= exigido;
}

QString TextoDe(const std::vector<std::int16_t>& calidad)
{
    QString t;
    for (const std::int16_t nivel : calidad) {
        t += QString::number(nivel);
    }
    return t;
}

} // namespace

int main()
{
    const ContextoBusqueda madrid{true, 40.4168, -3.7038, 1.0, {2026, 1, 1}, 12.0};
    std::printf("%-34s %13s %13s\n", "search", "literal", "ours");
    bool bien = true;
    bien &= Comparar(
        "Moon at azimuth 90, 1100 days", 50,
        [&] { return literalBusquedas::BuscarAzimut(madrid, true, 90, 1100); },
        [&] { return modAzimut::BuscarAzimut(madrid, true, 90, 1100); });
    bien &= Comparar(
        "Sun at azimuth 90, 1100 days", 5,
        [&] { return literalBusquedas::BuscarAzimut(madrid, false, 90, 1100); },
        [&] { return modAzimut::BuscarAzimut(madrid, false, 90, 1100); });
    bien &= Comparar(
        "events of 2026", 5, [&] { return literalBusquedas::EventosCelestes(madrid, 2026); },
        [&] { return modEventos::EventosCelestes(madrid, 2026); });
    bien &= Comparar(
        "best nights of 2026", 5, [&] { return literalBusquedas::MejoresNochesVL(madrid, 2026); },
        [&] { return modViaLactea::MejoresNochesVL(madrid, 2026); });
    std::vector<std::int16_t> calidad;
    bien &= Comparar(
        "strip of 2026", 5,
        [&] {
            literalBusquedas::SerieAnualVL(madrid, 2026, calidad);
            return TextoDe(calidad);
        },
        [&] {
            modViaLactea::SerieAnualVL(madrid, 2026, calidad);
            return TextoDe(calidad);
        });
    return bien ? 0 : 1;
}

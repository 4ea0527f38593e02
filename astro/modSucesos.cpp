#include "modSucesos.h"

#include "Efemerides.h"
#include "modAstro.h"

#include <algorithm>
#include <cmath>

namespace modSucesos {

namespace {

// What the walk met, and at which sample it noticed.
struct Hallazgo
{
    int muestra = 0;
    Suceso suceso;
};

// The Moon gains at most 15.4 degrees a day on the stars and the Sun at least 0.95, so the elongation
// grows by less than 14.5 degrees a day; as a fraction of a turn per step, with room to spare for the
// obliquity that the phase is read with.
constexpr double kFasePorPaso = 15.0 / 360.0 * kPaso;

// Largest second derivatives, per day squared. Of the Moon's distance, km: the sum over the distance terms
// of amplitude times squared rate is below 2100 (1087 of it from the first, 535 from the variation). Of the
// Sun's declination, radians: obliquity times the square of its motion at perihelion.
constexpr double kCurvaturaKm = 2400.0;
constexpr double kCurvaturaDelta = 1.5e-4;

// Fastest change of the Sun's declination in a step, radians (0.0073 a day at the equinoxes).
constexpr double kDeltaPorPaso = 0.0075 * kPaso;

class Rejilla
{
public:
    explicit Rejilla(std::int16_t anio)
        : inicio(modAstro::DiaJuliano(anio, 1, 1, 0)),
          muestras(
              static_cast<int>((modAstro::DiaJuliano(static_cast<std::int16_t>(anio + 1), 1, 1, 0) - inicio) /
                               kPaso) +
              1)
    {
    }

    int Muestras() const { return muestras; }
    double Instante(int i) const { return inicio + i * kPaso; }

    double Fase(int i) const
    {
        double fase = 0, iluminada = 0;
        modAstro::FaseDeVectores(modAstro::VectorSol(Instante(i)), modAstro::VectorLuna(Instante(i)), fase,
                                 iluminada);
        return fase;
    }

    double Distancia(int i) const
    {
        const modAstro::Vector3 v = modAstro::VectorLuna(Instante(i));
        return std::sqrt(v.x * v.x + v.y * v.y + v.z * v.z);
    }

    double Declinacion(int i) const
    {
        double alfa = 0, delta = 0, distancia = 0;
        modAstro::VectorAEcuatorial(modAstro::VectorSol(Instante(i)), alfa, delta, distancia);
        return delta;
    }

private:
    double inicio;
    int muestras;
};

void BuscarFases(const Rejilla& r, std::vector<Hallazgo>& hallazgos)
{
    constexpr Tipo kCuartos[] = {Tipo::LunaNueva, Tipo::CuartoCreciente, Tipo::LunaLlena,
                                 Tipo::CuartoMenguante};
    int i = 0;
    double antes = r.Fase(0);
    for (;;) {
        const int cuarto = static_cast<int>(std::floor(antes * 4.0));
        // The samples up to this one lie in the same quarter, unless it is the very next.
        i += std::max(1, static_cast<int>(((cuarto + 1) * 0.25 - antes) / kFasePorPaso));
        if (i >= r.Muestras()) {
            return;
        }
        const double ahora = r.Fase(i);
        const int q = static_cast<int>(std::floor(ahora * 4.0));
        if (q != cuarto) {
            // Only a step of one sample can change the quarter, so `antes` is the sample before.
            const double t = r.Instante(i - 1) + kPaso * FraccionDeCuarto(q, antes, ahora);
            hallazgos.push_back({i, {t, kCuartos[q & 3], 0}});
        }
        antes = ahora;
    }
}

// Turning points of a quantity among three neighbouring samples.
//   valor      the quantity at a sample
//   curvatura  bound of its second derivative, per day squared
//   anotar     takes a sample, its value and whether it is a maximum
template <class Valor, class Anotar>
void BuscarExtremos(const Rejilla& r, Valor valor, double curvatura, Anotar anotar)
{
    const double cambioPorPaso = curvatura * kPaso * kPaso;
    int i = 1;
    double previo = valor(0);
    double actual = valor(1);
    while (i + 1 < r.Muestras()) {
        // The difference of neighbours changes by less than cambioPorPaso a step: until it can reach zero
        // there is no turning point.
        const int salto = static_cast<int>(std::fabs(actual - previo) / cambioPorPaso);
        if (salto > 1) {
            i += salto;
            if (i + 1 >= r.Muestras()) {
                return;
            }
            previo = valor(i - 1);
            actual = valor(i);
            continue;
        }
        const double siguiente = valor(i + 1);
        if ((actual < previo && actual < siguiente) || (actual > previo && actual > siguiente)) {
            anotar(i, actual, actual > previo);
        }
        previo = actual;
        actual = siguiente;
        ++i;
    }
}

void BuscarEquinoccios(const Rejilla& r, std::vector<Hallazgo>& hallazgos)
{
    int i = 0;
    double antes = r.Declinacion(0);
    for (;;) {
        // All samples up to this one lie on the same side of the equator, unless it is the very next.
        i += std::max(1, static_cast<int>(std::fabs(antes) / kDeltaPorPaso));
        if (i >= r.Muestras()) {
            return;
        }
        const double ahora = r.Declinacion(i);
        if ((antes < 0 && ahora >= 0) || (antes > 0 && ahora <= 0)) {
            const double t = r.Instante(i - 1) + kPaso * (antes / (antes - ahora));
            const Tipo tipo = ahora < antes ? Tipo::EquinoccioSeptiembre : Tipo::EquinoccioMarzo;
            hallazgos.push_back({i, {t, tipo, 0}});
        }
        antes = ahora;
    }
}

} // namespace

double FraccionDeCuarto(int q, double antes, double ahora)
{
    const double f = q != 0 ? (q * 0.25 - antes) / (ahora - antes) : (1.0 - antes) / (ahora + 1.0 - antes);
    return std::clamp(f, 0.0, 1.0);
}

std::vector<Suceso> SucesosDelAnio(std::int16_t anio)
{
    const Rejilla r(anio);
    // One sample may notice several events; they come in this order.
    std::vector<Hallazgo> hallazgos;
    BuscarFases(r, hallazgos);
    BuscarEquinoccios(r, hallazgos);
    BuscarExtremos(
        r, [&r](int i) { return r.Distancia(i); }, kCurvaturaKm,
        [&](int i, double km, bool maximo) {
            hallazgos.push_back({i + 1, {r.Instante(i), maximo ? Tipo::Apogeo : Tipo::Perigeo, km}});
        });
    BuscarExtremos(
        r, [&r](int i) { return r.Declinacion(i); }, kCurvaturaDelta,
        [&](int i, double, bool maximo) {
            const Tipo tipo = maximo ? Tipo::SolsticioJunio : Tipo::SolsticioDiciembre;
            hallazgos.push_back({i + 1, {r.Instante(i), tipo, 0}});
        });
    std::stable_sort(hallazgos.begin(), hallazgos.end(),
                     [](const Hallazgo& a, const Hallazgo& b) { return a.muestra < b.muestra; });

    std::vector<Suceso> sucesos;
    sucesos.reserve(hallazgos.size());
    for (const Hallazgo& h : hallazgos) {
        sucesos.push_back(h.suceso);
    }
    return sucesos;
}

} // namespace modSucesos

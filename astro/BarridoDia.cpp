#include "BarridoDia.h"

#include "PerfilHorizonte.h"
#include "SenoCoseno.h"
#include "modAstro.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace modAstro {

namespace {

constexpr int kMuestras = 720;
constexpr double kPaso = 1.0 / kMuestras; // two minutes, days

// The moments of the samples, by repeated addition of the step.
constexpr std::array<double, kMuestras + 1> kMomentos = [] {
    std::array<double, kMuestras + 1> t{};
    for (int k = 1; k <= kMuestras; ++k)
        t[k] = t[k - 1] + kPaso;
    return t;
}();
static_assert(kMomentos[kMuestras] <= 1.0 && kMomentos[kMuestras] + kPaso > 1.0);

// Below this difference of sines the polynomial does not decide between two altitudes.
constexpr double kDuda = 1e-10;

// Beside the greatest altitude the curve is so flat that below this difference of sines the polynomial's
// rounding, not the sky, would choose: a wrong choice costs up to a tenth of a second.
constexpr double kDudaMaximo = 1e-11;

// Sine of an altitude aimed at; beyond the zenith and the nadir no body ever reaches it.
double SenoObjetivo(double objetivo)
{
    if (objetivo >= 90)
        return 2;
    return objetivo <= -90 ? -2 : SenoCoseno(objetivo).sen;
}

double SenoDe(const VectorHorizontal& v)
{
    return v.cenit / std::sqrt(v.norte * v.norte + v.este * v.este + v.cenit * v.cenit);
}

// Samples that may be left out: as many as it takes to use up a difference at the greatest rate.
int Salto(double diferencia, double cota)
{
    const double n = diferencia / cota;
    return n < kMuestras ? std::max(1, static_cast<int>(n)) : kMuestras;
}

} // namespace

// Bounds of the first two derivatives of the sine of the altitude. The sky turns 6.301 radians a day, seen
// along the parallel of the place; what is added is the body's own motion (Sun 0.018, Moon 0.27 radian a
// day), and for the Moon, a sixtieth of the way nearer, the observer's motion makes all 4 % quicker.
BarridoDia::BarridoDia(bool luna, double inicio, double latGrados, double lonGrados)
    : tramo(luna, inicio), obs(latGrados, lonGrados), lat(latGrados), lon(lonGrados), jd0(inicio),
      cotaRitmo((luna ? 6.6 * std::fabs(obs.cosLat) + 0.3 : 6.32 * std::fabs(obs.cosLat) + 0.01) * kPaso),
      cotaCurva((luna ? 52 * std::fabs(obs.cosLat) + 0.2 : 40.2 * std::fabs(obs.cosLat) + 0.01) * kPaso *
                kPaso)
{
}

void BarridoDia::AzAlt(double t, double& altitud, double& azimut) const
{
    tramo.AzAlt(jd0 + t, obs, altitud, azimut);
}

double BarridoDia::Seno(double t) const
{
    return SenoDe(tramo.EnHorizonte(t, obs));
}

// A sample stands where the Julian day can stand.
double BarridoDia::SenoMuestra(int k) const
{
    return Seno((jd0 + kMomentos[k]) - jd0);
}

// Whether sample k reaches an altitude. Equal counts as reached, so a close call goes to AzAltCuerpo.
bool BarridoDia::Encima(int k, double seno, double senoObjetivo, double objetivo) const
{
    if (std::fabs(seno - senoObjetivo) > kDuda)
        return seno > senoObjetivo;
    double altitud, azimut;
    AzAltCuerpo(jd0 + kMomentos[k], lat, lon, tramo.EsLuna(), altitud, azimut);
    return altitud >= objetivo;
}

void BarridoDia::Cruces(std::span<CruceDia> cruces) const
{
    struct Vista
    {
        CruceDia* cruce;
        double seno;
        bool encima;
    };
    constexpr std::size_t kMaxObjetivos = 8;
    std::array<Vista, kMaxObjetivos> vistas;
    const std::size_t n = std::min(cruces.size(), kMaxObjetivos);
    int k = 0;
    double seno = SenoMuestra(0);
    for (std::size_t i = 0; i < n; ++i) {
        const double objetivo = SenoObjetivo(cruces[i].objetivo);
        vistas[i] = {&cruces[i], objetivo, Encima(0, seno, objetivo, cruces[i].objetivo)};
    }
    for (;;) {
        constexpr double kNinguno = 4; // more than any two sines differ
        double cerca = kNinguno;       // to the nearest altitude that is still looked for
        for (std::size_t i = 0; i < n; ++i)
            if (vistas[i].cruce->orto < 0 || vistas[i].cruce->ocaso < 0)
                cerca = std::min(cerca, std::fabs(seno - vistas[i].seno));
        k += Salto(cerca, cotaRitmo);
        if (cerca == kNinguno || k > kMuestras)
            return;
        seno = SenoMuestra(k);
        for (std::size_t i = 0; i < n; ++i) {
            Vista& v = vistas[i];
            const bool encima = Encima(k, seno, v.seno, v.cruce->objetivo);
            double& momento = encima ? v.cruce->orto : v.cruce->ocaso;
            if (encima != v.encima && momento < 0)
                momento = Cruce(k, v.seno);
            v.encima = encima;
        }
    }
}

// The crossing between samples k - 1 and k: false position with the Illinois rule, which needs four or
// five places where halving needs twenty.
double BarridoDia::Cruce(int k, double senoObjetivo) const
{
    double a = kMomentos[k] - kPaso;
    double b = kMomentos[k];
    double fa = Seno(a) - senoObjetivo;
    double fb = Seno(b) - senoObjetivo;
    if (fa * fb > 0) // the crossing lies within the rounding of a Julian day at one end
        return Mitades(k, std::fabs(fa) < std::fabs(fb) ? a : b);
    double raiz = b;
    for (int i = 0; i < 60 && fa != fb; ++i) {
        const double previa = raiz;
        raiz = b - fb * (b - a) / (fb - fa);
        const double f = Seno(raiz) - senoObjetivo;
        if (f == 0 || std::fabs(raiz - previa) < 1e-13)
            break;
        if (f * fb < 0) {
            a = b;
            fa = fb;
        } else {
            fa /= 2;
        }
        b = raiz;
        fb = f;
    }
    return Mitades(k, raiz);
}

// Where 20 halvings of the bracket before sample k would end, each deciding at the Julian day that the
// middle rounds to: RefinarCruce's answer, without evaluating anything.
double BarridoDia::Mitades(int k, double raiz) const
{
    double bajo = kMomentos[k] - kPaso;
    double alto = kMomentos[k];
    for (int i = 0; i < 20; ++i) {
        const double medio = (bajo + alto) / 2;
        ((jd0 + medio) - jd0 < raiz ? bajo : alto) = medio;
    }
    return (bajo + alto) / 2;
}

// The threshold moves with the azimuth, so samples are left out only while the body stands clear of the
// whole skyline; beside it every sample counts.
void BarridoDia::CrucesHorizonte(CruceDia& cruce) const
{
    double minimo, maximo;
    modAstroEstado::LimitesHorizonte(minimo, maximo);
    const double senoMinimo = SenoObjetivo(cruce.objetivo + minimo);
    const double senoMaximo = SenoObjetivo(cruce.objetivo + maximo);
    const auto sobra = [&](double t) {
        double altitud, azimut;
        AzAlt(t, altitud, azimut);
        return altitud - cruce.objetivo - modAstroEstado::HorizonteEnAzimut(azimut);
    };
    bool antes = false;
    for (int k = 0; k <= kMuestras;) {
        const VectorHorizontal v = tramo.EnHorizonte((jd0 + kMomentos[k]) - jd0, obs);
        const double seno = SenoDe(v);
        const double lejos = std::max(senoMinimo - seno, seno - senoMaximo);
        bool encima = seno > senoMaximo;
        if (lejos <= kDuda) {
            double altitud, azimut;
            VectorAAltAz(v, altitud, azimut);
            double umbral = cruce.objetivo + modAstroEstado::HorizonteEnAzimut(azimut);
            if (std::fabs(altitud - umbral) < kDuda * kRadAGrados) {
                AzAltCuerpo(jd0 + kMomentos[k], lat, lon, tramo.EsLuna(), altitud, azimut);
                umbral = cruce.objetivo + modAstroEstado::HorizonteEnAzimut(azimut);
            }
            encima = altitud >= umbral;
        }
        double& momento = encima ? cruce.orto : cruce.ocaso;
        if (k > 0 && encima != antes && momento < 0) {
            momento = Bisecar(kMomentos[k] - kPaso, kMomentos[k], sobra);
            if (cruce.orto >= 0 && cruce.ocaso >= 0)
                return;
        }
        antes = encima;
        k += Salto(lejos, cotaRitmo);
    }
}

// From the series, at the Julian day that jd0 + t rounds to.
double BarridoDia::SenoDirecto(double t) const
{
    return SenoDe(tramo.EsLuna() ? HorizonteLuna(jd0 + t, obs) : HorizonteSol(jd0 + t, obs));
}

double BarridoDia::Maximo(double objetivo) const
{
    // The best sample. Its neighbours' difference changes sign there, and from far off the sign it cannot
    // change for many samples.
    int mejor = 0;
    double senoMejor = -2;
    bool subia = true; // so that a descent from the first sample on counts as a summit
    for (int k = 1; k <= kMuestras;) {
        const double seno = SenoMuestra(k);
        const double cambio = k < kMuestras ? SenoMuestra(k + 1) - seno : -1;
        const bool sube = cambio > 0;
        if (subia && !sube && seno > senoMejor) {
            mejor = k;
            senoMejor = seno;
        }
        subia = sube;
        const int salto = Salto(std::fabs(cambio), cotaCurva);
        k = k < kMuestras ? std::min(k + salto, kMuestras) : kMuestras + 1;
    }
    if (mejor == 0)
        return -1;
    const double s = SenoObjetivo(objetivo);
    if (std::fabs(senoMejor - s) > kDuda) {
        if (senoMejor < s)
            return -1;
    } else {
        double altitud, azimut;
        AzAltCuerpo(jd0 + kMomentos[mejor], lat, lon, tramo.EsLuna(), altitud, azimut);
        if (!(altitud > objetivo))
            return -1;
    }
    // A ternary search between its neighbours.
    double bajo = std::max(0.0, kMomentos[mejor] - kPaso);
    double alto = std::min(1.0, kMomentos[mejor] + kPaso);
    for (int i = 0; i < 32; ++i) {
        const double m1 = bajo + (alto - bajo) / 3;
        const double m2 = alto - (alto - bajo) / 3;
        double s1 = Seno(m1);
        double s2 = Seno(m2);
        if (std::fabs(s1 - s2) < kDudaMaximo) {
            s1 = SenoDirecto(m1);
            s2 = SenoDirecto(m2);
        }
        if (s1 < s2)
            bajo = m1;
        else
            alto = m2;
    }
    return (bajo + alto) / 2;
}

} // namespace modAstro

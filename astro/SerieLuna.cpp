#include "SerieLuna.h"

#include "SenoCoseno.h"
#include "TerminosLuna.h"

#include <array>
#include <cstddef>
#include <utility>

namespace modAstro {

namespace {

// std::complex would check every product for infinities.
struct Complejo
{
    double re, im;
};

constexpr Complejo operator*(Complejo a, Complejo b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}

constexpr Complejo operator*(double k, Complejo a)
{
    return {k * a.re, k * a.im};
}

constexpr Complejo Conjugado(Complejo a)
{
    return {a.re, -a.im};
}

Complejo Unidad(double grados)
{
    const SenCos u = SenoCoseno(grados);
    return {u.cos, u.sen};
}

constexpr int kMaxD = 4, kMaxM = 2, kMaxMp = 4, kMaxF = 3; // largest multipliers in the tables
constexpr int kGrupos = (kMaxD + 1) * (2 * kMaxM + 1);

// A row of either table; the latitude terms have no cosine.
struct Fila
{
    int d, m, mp, f;
    double seno, coseno;
};

// The 60 terms of a table sorted by their multipliers of D and M: group g is d = g / 5, m = g % 5 - 2 and
// holds the rows inicio[g] to inicio[g + 1]. One product then serves a whole group.
struct Plan
{
    std::array<Fila, 60> filas{};
    std::array<int, kGrupos + 1> inicio{};
};

template <class Tabla, class AFila> constexpr Plan Ordenar(const Tabla& tabla, AFila aFila)
{
    Plan plan;
    int n = 0;
    for (int g = 0; g < kGrupos; ++g) {
        plan.inicio[g] = n;
        for (const auto& k : tabla)
            if (k.d == g / 5 && k.m == g % 5 - kMaxM)
                plan.filas[n++] = aFila(k);
    }
    plan.inicio[kGrupos] = n;
    return plan;
}

constexpr Plan kLongitud = Ordenar(kTerminosLongitud, [](const TerminoLongitud& k) {
    return Fila{k.d, k.m, k.mp, k.f, double(k.longitud), double(k.distancia)};
});
constexpr Plan kLatitud = Ordenar(kTerminosLatitud, [](const TerminoLatitud& k) {
    return Fila{k.d, k.m, k.mp, k.f, double(k.latitud), 0.0};
});
static_assert(kLongitud.inicio[kGrupos] == 60 && kLatitud.inicio[kGrupos] == 60);

// Powers of the unit numbers of the four arguments. Those of M carry the eccentricity factor. The
// products of M' and F are kept for f >= 0; the others are their conjugates.
struct Potencias
{
    std::array<Complejo, kMaxD + 1> d;
    std::array<Complejo, 2 * kMaxM + 1> m;                           // m = -2..2 at m + 2
    std::array<std::array<Complejo, 2 * kMaxMp + 1>, kMaxF + 1> mpf; // [f][mp + 4]

    Potencias(Complejo ud, Complejo um, Complejo ump, Complejo uf, double e)
    {
        d = {Complejo{1, 0}, ud};
        for (int k = 2; k <= kMaxD; ++k)
            d[k] = d[k / 2] * d[k - k / 2];
        m[kMaxM] = {1, 0};
        m[kMaxM + 1] = e * um;
        m[kMaxM + 2] = m[kMaxM + 1] * m[kMaxM + 1];
        m[kMaxM - 1] = Conjugado(m[kMaxM + 1]);
        m[kMaxM - 2] = Conjugado(m[kMaxM + 2]);
        std::array<Complejo, kMaxF + 1> f{Complejo{1, 0}, uf, uf * uf};
        f[3] = f[2] * uf;
        auto& mp = mpf[0];
        mp[kMaxMp] = {1, 0};
        mp[kMaxMp + 1] = ump;
        for (int k = 2; k <= kMaxMp; ++k)
            mp[kMaxMp + k] = mp[kMaxMp + k / 2] * mp[kMaxMp + k - k / 2];
        for (int k = 1; k <= kMaxMp; ++k)
            mp[kMaxMp - k] = Conjugado(mp[kMaxMp + k]);
        for (int k = 1; k <= kMaxF; ++k) {
            constexpr int kAncho[kMaxF + 1] = {4, 3, 2, 1}; // largest M' that occurs beside each F
            for (int j = -kAncho[k]; j <= kAncho[k]; ++j)
                mpf[k][kMaxMp + j] = mp[kMaxMp + j] * f[k];
        }
    }
};

// Amplitudes times powers, summed over a group: the sine amplitudes, and the cosine ones.
struct SumaGrupo
{
    Complejo seno, coseno;
};

// Everything about a term but the powers is known to the compiler, so this unrolls into plain
// multiplications and additions, real and imaginary part side by side in one register.
template <const Plan& P, int I> inline void SumarFila(const Potencias& u, SumaGrupo& s)
{
    constexpr Fila k = P.filas[I];
    constexpr int kSigno = k.f < 0 ? -1 : 1;
    const Complejo p = u.mpf[kSigno * k.f][kMaxMp + kSigno * k.mp];
    if constexpr (k.seno != 0)
        s.seno = {s.seno.re + k.seno * p.re, s.seno.im + kSigno * k.seno * p.im};
    if constexpr (k.coseno != 0)
        s.coseno = {s.coseno.re + k.coseno * p.re, s.coseno.im + kSigno * k.coseno * p.im};
}

template <const Plan& P, int G, std::size_t... I>
inline void SumarGrupo(const Potencias& u, SumaGrupo& destino, std::index_sequence<I...>)
{
    SumaGrupo s{{0, 0}, {0, 0}};
    (SumarFila<P, P.inicio[G] + static_cast<int>(I)>(u, s), ...);
    destino = s;
}

template <const Plan& P, std::size_t... G>
inline void SumarGrupos(const Potencias& u, std::array<SumaGrupo, kGrupos>& sumas, std::index_sequence<G...>)
{
    (SumarGrupo<P, static_cast<int>(G)>(
         u, sumas[G], std::make_index_sequence<static_cast<std::size_t>(P.inicio[G + 1] - P.inicio[G])>{}),
     ...);
}

// Sine and cosine sums of a whole table.
struct Sumas
{
    double seno = 0, coseno = 0;
};

template <const Plan& P> Sumas Sumar(const Potencias& u)
{
    std::array<SumaGrupo, kGrupos> grupos;
    SumarGrupos<P>(u, grupos, std::make_index_sequence<kGrupos>{});
    Sumas sumas;
    for (int g = 0; g < kGrupos; ++g) {
        if (P.inicio[g] == P.inicio[g + 1])
            continue;
        const Complejo dm = u.d[g / 5] * u.m[g % 5];
        const SumaGrupo& s = grupos[g];
        sumas.seno += dm.re * s.seno.im + dm.im * s.seno.re;
        sumas.coseno += dm.re * s.coseno.re - dm.im * s.coseno.im;
    }
    return sumas;
}

} // namespace

EclipticaLuna SumarSerieLuna(double t)
{
    const double lpGrados = SinVueltas(218.3164477 + 481267.88123421 * t);
    const Complejo lp = Unidad(lpGrados);
    const Complejo d = Unidad(297.8501921 + 445267.1114034 * t);
    const Complejo m = Unidad(357.5291092 + 35999.0502909 * t);
    const Complejo mp = Unidad(134.9633964 + 477198.8675055 * t);
    const Complejo f = Unidad(93.272095 + 483202.0175233 * t);
    const double e = 1 - (0.002516 + 0.0000074 * t) * t;

    const Potencias u(d, m, mp, f, e);
    const Sumas longitud = Sumar<kLongitud>(u);
    const Sumas latitud = Sumar<kLatitud>(u);

    // Additive terms: Venus (A1), Jupiter (A2), the flattening of the Earth (L'), and A3.
    const Complejo a1 = Unidad(119.75 + 131.849 * t);
    const Complejo a2 = Unidad(53.09 + 479264.29 * t);
    const Complejo a3 = Unidad(313.45 + 481266.484 * t);
    const double sumaL = longitud.seno + 3958 * a1.im + 1962 * (lp * Conjugado(f)).im + 318 * a2.im;
    const double sumaB = latitud.seno - 2235 * lp.im + 382 * a3.im +
                         175 * ((a1 * Conjugado(f)).im + (a1 * f).im) + 127 * (lp * Conjugado(mp)).im -
                         115 * (lp * mp).im;
    return {lpGrados + sumaL / 1000000, sumaB / 1000000, 385000.56 + longitud.coseno / 1000};
}

} // namespace modAstro

#include "modViaLactea.h"

#include "Efemerides.h"
#include "fechaSerie.h"
#include "modAstro.h"
#include "modFormato.h"
#include "palabras.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace modViaLactea {

namespace {

constexpr double kAlfaCentro = 4.649644393775488; // radians
constexpr double kDeltaCentro = -0.5050284723570787;

constexpr double kNocheAstronomica = -18; // Sun's altitude below which the sky is dark, degrees
constexpr double kAltitudPlena = 22;      // the centre at this height counts fully
constexpr double kAltitudLista = 8;       // a night of the list has the centre above this
constexpr double kAltitudFranja = 0;      // a night of the strip, above this
constexpr std::int16_t kNivelLista = 2;

constexpr int kMuestras = 21;
constexpr double kMediaHora = 0.5 / 24.0;

// Offsets of the samples from local midnight, days: a running sum, which the printed moment follows to its
// last bit.
const std::array<double, kMuestras>& Desfases()
{
    static const std::array<double, kMuestras> desfases = [] {
        std::array<double, kMuestras> d{};
        d[0] = -4.0 / 24.0;
        for (int k = 1; k < kMuestras; ++k) {
            d[k] = d[k - 1] + kMediaHora;
        }
        return d;
    }();
    return desfases;
}

// The moment of a night at which the centre stands highest in a dark sky.
struct Momento
{
    bool hay = false;
    double jd = 0;
    double altitud = 0; // of the centre, degrees
    double azimut = 0;
};

// The nights of a place. Each asks the Sun only from the highest sample down to the first dark one.
class Noches
{
public:
    explicit Noches(const ContextoBusqueda& c)
        : lat(c.lat), lon(c.lon), obs(c.lat, c.lon), senos(obs.senLat * std::sin(kDeltaCentro)),
          cosenos(obs.cosLat * std::cos(kDeltaCentro))
    {
    }

    // None unless the centre stands above `minima` degrees in a dark sky.
    //   base   Julian day of the local midnight inside the night
    Momento Mejor(double base, double minima) const
    {
        const double senoMinimo = std::sin(minima * modAstro::kGradosARad) - 1e-9;
        std::array<double, kMuestras> seno = SenosDeAltitud(base);
        for (;;) {
            const auto mayor = std::max_element(seno.begin(), seno.end());
            if (*mayor < senoMinimo) {
                return {};
            }
            const double jd = base + Desfases()[mayor - seno.begin()];
            if (CieloOscuro(jd)) {
                return EnMomento(jd, minima);
            }
            *mayor = -2; // out of the race
        }
    }

    struct Nota
    {
        double puntuacion = 0; // 0 to 1
        double iluminada = 0;  // of the Moon's disc, 0 to 1
        bool lunaArriba = false;
    };

    Nota Puntuar(const Momento& m) const
    {
        Nota n;
        double altitud = 0, azimut = 0, fase = 0;
        modAstro::VectorAAltAz(modAstro::HorizonteLuna(m.jd, obs), altitud, azimut);
        modAstro::FaseDeVectores(modAstro::VectorSol(m.jd), modAstro::VectorLuna(m.jd), fase, n.iluminada);
        n.lunaArriba = !(altitud < 0);
        const double sinLuna = n.lunaArriba ? std::max(0.0, 1 - 1.05 * n.iluminada) : 1.0;
        n.puntuacion = sinLuna * std::min(1.0, m.altitud / kAltitudPlena);
        return n;
    }

private:
    // Sines of the centre's altitude at the samples: one hour angle, then equal turns of the Earth.
    std::array<double, kMuestras> SenosDeAltitud(double base) const
    {
        static const double giro = 360.98564736629 * modAstro::kGradosARad * kMediaHora;
        static const double cosGiro = std::cos(giro), senGiro = std::sin(giro);
        const double h =
            lon * modAstro::kGradosARad + modAstro::TiempoSidereo(base + Desfases()[0]) - kAlfaCentro;
        double c = std::cos(h), s = std::sin(h);
        std::array<double, kMuestras> seno;
        for (double& x : seno) {
            x = senos + cosenos * c;
            const double otroC = c * cosGiro - s * senGiro;
            s = s * cosGiro + c * senGiro;
            c = otroC;
        }
        return seno;
    }

    bool CieloOscuro(double jd) const
    {
        double altitud = 0, azimut = 0;
        modAstro::VectorAAltAz(modAstro::HorizonteSol(jd, obs), altitud, azimut);
        return altitud < kNocheAstronomica;
    }

    Momento EnMomento(double jd, double minima) const
    {
        Momento m{true, jd, 0, 0};
        modAstro::EcuatorialAHorizontal(kAlfaCentro, kDeltaCentro, modAstro::TiempoSidereo(jd), lat, lon,
                                        m.azimut, m.altitud);
        m.hay = m.altitud > minima;
        return m;
    }

    double lat, lon; // degrees
    modAstro::Observador obs;
    double senos;   // sin(lat) sin(delta), and
    double cosenos; // cos(lat) cos(delta): sine of the altitude = senos + cosenos cos(hour angle)
};

bool AnioValido(std::int16_t anio)
{
    return anio >= modAstro::kAnioMinimo && anio <= modAstro::kAnioMaximo;
}

double Medianoche(std::int16_t anio, int noche, double zona)
{
    return modAstro::DiaJuliano(anio, 1, 1, 0) + noche - zona / 24;
}

QString Linea(const Momento& m, const Noches::Nota& n, std::int16_t nivel, double zona)
{
    const auto columna = [](const QString& t, int ancho) {
        return t.leftJustified(ancho, QLatin1Char(' '), true);
    };
    const QChar grado(palabras::kGrado);
    const QString compas = QString::fromStdString(modAstro::Compas8(m.azimut));
    return columna(fechaSerie::TextoFechaHora(fechaSerie::FechaDeSerie(fechaSerie::SerieDeJd(m.jd, zona))),
                   19) +
           columna(QLatin1String("V.L. ") + modFormato::Format(m.altitud, u"0") + grado, 12) +
           columna(compas + QLatin1Char(' ') + modFormato::Format(m.azimut, u"0") + grado, 12) +
           columna(QLatin1String("Luna ") + modFormato::Format(n.iluminada * 100, u"0") +
                       QLatin1String(n.lunaArriba ? "% arriba" : "% abajo"),
                   16) +
           PalabraDeNivel(nivel) + palabras::kFinLinea;
}

} // namespace

std::int16_t NivelDe(double puntuacion)
{
    constexpr double kDesde[] = {0.18, 0.36, 0.52, 0.72};
    return static_cast<std::int16_t>(
        std::count_if(std::begin(kDesde), std::end(kDesde), [=](double d) { return puntuacion >= d; }));
}

QLatin1String PalabraDeNivel(std::int16_t nivel)
{
    constexpr QLatin1String kPalabras[kNiveles] = {QLatin1String("Mala"), QLatin1String("Regular"),
                                                   QLatin1String("Buena"), QLatin1String("Muy buena"),
                                                   QLatin1String("Excelente")};
    return kPalabras[std::clamp<int>(nivel, 0, kNiveles - 1)];
}

QString MejoresNochesVL(const ContextoBusqueda& c, std::int16_t anio)
{
    if (!c.TieneObs) {
        return palabras::kSinObservador;
    }
    if (!AnioValido(anio)) {
        return palabras::kAnioNoValido;
    }
    const Noches noches(c);
    QString texto;
    for (int i = 0; i < fechaSerie::DiasAnio(anio); ++i) {
        const Momento m = noches.Mejor(Medianoche(anio, i, c.zona), kAltitudLista);
        if (!m.hay) {
            continue;
        }
        const Noches::Nota n = noches.Puntuar(m);
        const std::int16_t nivel = NivelDe(n.puntuacion);
        if (nivel >= kNivelLista) {
            texto += Linea(m, n, nivel, c.zona);
        }
    }
    return texto.isEmpty() ? palabras::kSinNoches : texto;
}

bool SerieAnualVL(const ContextoBusqueda& c, std::int16_t anio, std::vector<std::int16_t>& calidad)
{
    calidad.assign(fechaSerie::DiasAnio(anio), 0);
    if (!c.TieneObs || !AnioValido(anio)) {
        return false;
    }
    const Noches noches(c);
    for (int i = 0; i < static_cast<int>(calidad.size()); ++i) {
        const Momento m = noches.Mejor(Medianoche(anio, i, c.zona), kAltitudFranja);
        if (m.hay) {
            calidad[i] = NivelDe(noches.Puntuar(m).puntuacion);
        }
    }
    return true;
}

} // namespace modViaLactea

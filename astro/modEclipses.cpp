#include "modEclipses.h"

#include "Efemerides.h"
#include "modAstro.h"

#include <algorithm>
#include <cmath>

namespace modEclipses {

namespace {

constexpr double kMinuto = 1.0 / 1440.0;
// Half lengths of the walks, days; the upper ends are a hair longer so that the sum of so many minutes
// cannot lose the last one.
constexpr double kDesdeSol = -3.5 / 24.0, kHastaSol = 3.5001 / 24.0;
constexpr double kDesdeLuna = -3.7 / 24.0, kHastaLuna = 3.7001 / 24.0;

constexpr double kSemidiametroSolUA = 0.26656; // of the Sun at 1 AU, degrees
constexpr double kParalajeSol = 0.00244;       // degrees
constexpr double kAtmosfera = 1.02;            // the Earth's air enlarges its shadow
constexpr double kRadioLunaKm = 1737.4;
constexpr double kRadioLunaTerrestres = 0.272384; // in Earth radii, as the topocentric disc is measured

// How much two discs can close up in a minute, degrees. The Moon gains 0.0107 on the stars at perigee,
// the Sun recedes 0.0007, the observer adds 0.0046 by parallax, and the flat measure of the separation
// stretches it all by at most 1.1.
constexpr double kAcercamiento = 0.02;

// A body's equatorial place: right ascension and declination in radians, distance in the unit of its vector.
struct Cuerpo
{
    double alfa = 0, delta = 0, distancia = 0;

    explicit Cuerpo(const modAstro::Vector3& v) { modAstro::VectorAEcuatorial(v, alfa, delta, distancia); }
};

// Degrees between a place and another near it, on a plane that touches the sphere at the second.
double Separacion(double alfa, double delta, double alfa0, double delta0)
{
    const double x = std::cos(delta0) * modAstro::ReducirAPi(alfa - alfa0);
    const double y = delta - delta0;
    return std::sqrt(x * x + y * y) * modAstro::kRadAGrados;
}

// Minutes that may be passed over while two things are apart by so many degrees more than they touch at.
int MinutosLibres(double holgura)
{
    return holgura > 0 ? static_cast<int>(holgura / kAcercamiento) : 0;
}

struct Contacto
{
    bool hubo = false;
    double inicio = 0;
    double fin = 0;

    void Anotar(double j)
    {
        if (!hubo) {
            inicio = j;
        }
        hubo = true;
        fin = j;
    }
};

// The Moon's vector from the observer's place, km.
modAstro::Vector3 DesdeElLugar(const modAstro::Vector3& luna, double tsg, const modAstro::Observador& obs)
{
    const double theta = obs.lon * modAstro::kGradosARad + tsg;
    return {luna.x - obs.kmEje * std::cos(theta), luna.y - obs.kmEje * std::sin(theta),
            luna.z - obs.kmEcuador};
}

// Altitude in degrees without parallax.
double AltitudGeocentrica(const Cuerpo& c, double j, const Lugar& lugar)
{
    double azimut = 0, altitud = 0;
    modAstro::EcuatorialAHorizontal(c.alfa, c.delta, modAstro::TiempoSidereo(j), lugar.lat, lugar.lon, azimut,
                                    altitud);
    return altitud;
}

} // namespace

EclipseSol CircunstanciasEclipseSol(double jd, const Lugar& lugar)
{
    EclipseSol e;
    if (std::fabs(modAstro::LatitudEclipticaLuna(jd)) > kLatitudMaximaSol) {
        return e;
    }
    if (!lugar.hay) {
        e.clase = Clase::Posible;
        return e;
    }

    const modAstro::Observador obs(lugar.lat, lugar.lon);
    Contacto contacto;
    double minima = 999, sol = 0, luna = 0; // least separation, and the semidiameters then
    int libres = 0;
    for (double dt = kDesdeSol; dt <= kHastaSol; dt += kMinuto) {
        if (libres > 0) {
            --libres;
            continue;
        }
        const double j = jd + dt;
        const Cuerpo s(modAstro::VectorSol(j));
        if (!(AltitudGeocentrica(s, j, lugar) > kAltitudMinimaSol)) {
            continue;
        }
        const Cuerpo l(DesdeElLugar(modAstro::VectorLuna(j), modAstro::TiempoSidereo(j), obs));
        const double semiS = kSemidiametroSolUA / s.distancia;
        const double semiL =
            modAstro::ArcoSeno(kRadioLunaTerrestres * modAstro::kRadioTierraKm / l.distancia) *
            modAstro::kRadAGrados;
        const double sep = Separacion(l.alfa, l.delta, s.alfa, s.delta);
        if (sep < semiS + semiL) {
            contacto.Anotar(j);
        }
        if (sep < minima) {
            minima = sep;
            sol = semiS;
            luna = semiL;
            e.maximo = j;
        }
        libres = MinutosLibres(sep - semiS - semiL);
    }
    if (!contacto.hubo) {
        e.clase = Clase::NoVisible;
        return e;
    }
    e.inicio = contacto.inicio;
    e.fin = contacto.fin;
    e.magnitud = std::max(0.0, (sol + luna - minima) / (2.0 * sol));
    if (std::fabs(luna - sol) >= minima) {
        e.clase = luna < sol ? Clase::Anular : Clase::Total;
    } else {
        e.clase = Clase::Parcial;
    }
    return e;
}

EclipseLuna CircunstanciasEclipseLuna(double jd, const Lugar& lugar)
{
    EclipseLuna e;
    if (std::fabs(modAstro::LatitudEclipticaLuna(jd)) > kLatitudMaximaLuna) {
        return e;
    }

    Contacto penumbra, umbra;
    double minima = 999, radioU = 0, radioP = 0, luna = 0; // least separation, and the radii then
    double altitudMaximo = -99;
    bool algoVisible = false;
    int libres = 0;
    for (double dt = kDesdeLuna; dt <= kHastaLuna; dt += kMinuto) {
        if (libres > 0) {
            --libres;
            continue;
        }
        const double j = jd + dt;
        const Cuerpo s(modAstro::VectorSol(j));
        const Cuerpo l(modAstro::VectorLuna(j));
        const double sep = Separacion(l.alfa, l.delta, s.alfa + modAstro::kPi, -s.delta);
        const double paralaje = modAstro::kRadioTierraKm / l.distancia * modAstro::kRadAGrados;
        const double semiL = kRadioLunaKm / l.distancia * modAstro::kRadAGrados;
        const double semiS = kSemidiametroSolUA / s.distancia;
        const double u = kAtmosfera * (paralaje + kParalajeSol - semiS);
        const double v = kAtmosfera * (paralaje + kParalajeSol + semiS);
        libres = MinutosLibres(sep - v - semiL);
        if (sep < v + semiL || sep < minima) {
            const double altitud = lugar.hay ? AltitudGeocentrica(l, j, lugar) : -99;
            if (sep < v + semiL) {
                penumbra.Anotar(j);
                algoVisible = algoVisible || altitud > 0;
            }
            if (sep < u + semiL) {
                umbra.Anotar(j);
            }
            if (sep < minima) {
                minima = sep;
                radioU = u;
                radioP = v;
                luna = semiL;
                altitudMaximo = altitud;
                e.maximo = j;
            }
        }
    }
    if (!penumbra.hubo) {
        return e;
    }

    const bool penumbral = radioU + luna < minima;
    const Contacto& contacto = penumbral ? penumbra : umbra;
    e.inicio = contacto.inicio;
    e.fin = contacto.fin;
    e.magnitud = std::max(0.0, ((penumbral ? radioP : radioU) + luna - minima) / (2.0 * luna));
    if (penumbral) {
        e.clase = Clase::Penumbral;
    } else {
        e.clase = radioU - luna >= minima ? Clase::Total : Clase::Parcial;
    }
    if (lugar.hay) {
        e.vista = altitudMaximo > 0 ? Vista::Visible : algoVisible ? Vista::EnParte : Vista::BajoHorizonte;
    }
    return e;
}

} // namespace modEclipses

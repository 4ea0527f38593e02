// The quick solver against the plain one: every event of days spread over the year, three centuries, all
// latitudes and zones.
#include "PerfilHorizonte.h"
#include "literalAstro.h"
#include "modAstro.h"

#include <array>
#include <cmath>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace modAstro;

// Halving leaves a crossing known to 0.66e-9 day either side; the Julian day's last bit adds 0.23e-9.
constexpr double kCruce = 1.4e-9; // day
// The greatest altitude is flat: 3e-7 day change it by less than the plain formulas' rounding. On the
// Earth's axis the altitude follows the declination alone and is flatter still.
constexpr double kTransito = 3e-7;
constexpr double kTransitoPolo = 3e-6;
constexpr double kPosicion = 1e-9;    // degree, same instant
constexpr double kAzimutCruce = 5e-7; // degree: a crossing's error times the turning of the sky
constexpr double kGiro = 361.0;       // degrees a day

constexpr bool EsTransito(int k)
{
    return k == 3 || k == 18;
}

constexpr bool EsMomento(int k)
{
    return (k >= 2 && k <= 14) || (k >= 17 && k <= 19);
}

void Comparar(std::int16_t anio, std::int16_t mes, std::int16_t dia, double hora, double zona, double lat,
              double lon, bool horizonte)
{
    SCOPED_TRACE(::testing::Message() << anio << "-" << mes << "-" << dia << " " << hora << "h zone " << zona
                                      << " at " << lat << ", " << lon << (horizonte ? " skyline" : ""));
    const std::array<double, 31> a =
        literal::CalcularMomentosDia(anio, mes, dia, hora, zona, lat, lon, horizonte);
    const MomentosDia m = CalcularMomentosDia(anio, mes, dia, hora, zona, lat, lon, horizonte);
    double b[31];
    std::memcpy(b, &m, sizeof b);
    const double transito = std::fabs(lat) > 89.95 ? kTransitoPolo : kTransito;
    for (int k = 0; k < 31; ++k) {
        SCOPED_TRACE(::testing::Message() << "field " << k);
        const bool ausente = k == 28 || k == 30 ? a[k] < -998 : (EsMomento(k) || k >= 23) && a[k] < 0;
        if (ausente) {
            ASSERT_EQ(a[k], b[k]) << "present in one, absent in the other";
            continue;
        }
        if (EsMomento(k)) {
            ASSERT_GE(b[k], 0.0) << "absent, present in the plain solver";
            ASSERT_NEAR(std::remainder(a[k] - b[k], 1.0), 0, EsTransito(k) ? transito : kCruce);
            ASSERT_EQ(literal::FormatearHora(a[k], zona), FormatearHora(b[k], zona));
        } else if (k == 20 || k == 21) {
            ASSERT_NEAR(std::remainder(a[k] - b[k], 1.0), 0, 1e-11);
        } else if (k == 22) {
            ASSERT_NEAR(a[k], b[k], 1e-6); // a millimetre
        } else if (k == 1 || k == 16) {
            ASSERT_NEAR(a[k], b[k], kPosicion);
        } else if (k == 0 || k == 15) {
            ASSERT_NEAR(std::remainder(a[k] - b[k], 360.0) * std::cos(a[k + 1] * kGradosARad), 0, kPosicion);
        } else if (k == 28 || k == 30) {
            ASSERT_NEAR(a[k], b[k], 1e-8);
        } else if (k == 27 || k == 29) {
            // The azimuth of a transit turns quicker the nearer it is to the zenith.
            ASSERT_NEAR(std::remainder(a[k] - b[k], 360.0) * std::cos(a[k + 1] * kGradosARad), 0,
                        transito * kGiro);
        } else if (!horizonte) {
            ASSERT_NEAR(std::remainder(a[k] - b[k], 360.0), 0, kAzimutCruce);
        } else {
            // A crossing high on a skyline turns quicker than one at the horizon.
            ASSERT_NEAR(std::remainder(a[k] - b[k], 360.0) * std::cos(70 * kGradosARad), 0, kAzimutCruce);
        }
    }
}

constexpr double kLatitudes[] = {-90,  -89.9, -85, -78,  -66.6, -60,  -45, -33.9, -23.4, -10, 0,  0.5,  10,
                                 23.4, 40.42, 51,  60.2, 65.7,  66.6, 69,  71,    78,    85,  89, 89.9, 90};

// Calls with days spread over one year per latitude so that together they cover every day, years over the
// whole range, and longitudes, zones and hours of all kinds.
void RecorrerDias(int salto, const std::function<void(std::int16_t anio, std::int16_t dia, double hora,
                                                      double zona, double lat, double lon)>& probar)
{
    int n = 0;
    for (const double lat : kLatitudes)
        for (int dia = 1 + n % salto; dia <= 365; dia += salto) {
            ++n;
            const double lon = (n * 37) % 361 - 180.0;
            const double zona = n % 5 == 0 ? (n % 105) * 0.25 - 12 : std::nearbyint(lon / 15);
            const double hora = (n % 97) * 0.25;
            const int anio = n % 2 == 0 ? 2026 : 1900 + (n * 7) % 301;
            probar(static_cast<std::int16_t>(anio), static_cast<std::int16_t>(dia), hora, zona, lat, lon);
            if (::testing::Test::HasFatalFailure())
                return;
        }
}

TEST(Comparada, DiasDeTodoElAnioEnTodasLasLatitudes)
{
    RecorrerDias(
        7, [](std::int16_t anio, std::int16_t dia, double hora, double zona, double lat, double lon) {
            Comparar(anio, 1, dia, hora, zona, lat, lon, false); // day n of January is day n of the year
        });
}

TEST(Comparada, ConHorizonteReal)
{
    const std::function<double(int)> perfiles[] = {
        [](int i) { return 4 + 3 * std::sin(i * 0.05) + (i % 37) * 0.05; }, // hills
        [](int i) { return (i * 7919 % 720) / 12.0 - 3; },                  // needles up to 57 degrees
        [](int i) { return -2.0 + (i % 90 < 3 ? 15.0 : 0.0); },             // a sea with towers
    };
    for (const auto& perfil : perfiles) {
        std::array<double, 720> h;
        for (int i = 0; i < 720; ++i)
            h[i] = perfil(i);
        literal::PonerHorizonte(h);
        modAstroEstado::EstablecerPerfil(h, 0, 0);
        RecorrerDias(31, [](std::int16_t anio, std::int16_t dia, double hora, double zona, double lat,
                            double lon) { Comparar(anio, 1, dia, hora, zona, lat, lon, true); });
    }
    modAstroEstado::BorrarPerfil();
}

// Both public searches on altitudes of every kind, also where the body barely reaches them.
TEST(Comparada, BuscarCruceAltitud)
{
    int n = 0;
    for (double lat = -84; lat <= 84; lat += 12)
        for (const double objetivo : {-50.0, -20.0, -0.833, 0.0, 7.0, 25.0, 60.0}) {
            const bool luna = ++n % 2 == 0;
            const double jd0 = DiaJuliano(2026, 1, 1, 0) + 3.3 * n;
            const double lon = (n * 53) % 361 - 180.0;
            double a[3], b[3];
            literal::BuscarCruceAltitud(jd0, lat, lon, objetivo, luna, false, a[0], a[1], a[2]);
            BuscarCruceAltitud(jd0, lat, lon, objetivo, luna, false, b[0], b[1], b[2]);
            SCOPED_TRACE(::testing::Message() << lat << " target " << objetivo << " luna " << luna);
            for (int k = 0; k < 3; ++k) {
                ASSERT_EQ(a[k] < 0, b[k] < 0);
                ASSERT_NEAR(a[k], b[k], k == 1 ? kTransito : kCruce);
            }
            if (a[0] >= 0) {
                ASSERT_NEAR(
                    literal::RefinarCruce(jd0, a[0] - 0.001, a[0] + 0.001, objetivo, lat, lon, luna, false),
                    RefinarCruce(jd0, a[0] - 0.001, a[0] + 0.001, objetivo, lat, lon, luna, false), kCruce);
            }
        }
}

TEST(Comparada, Relojes)
{
    for (double f = -0.01; f < 1; f += 0.000377)
        for (const double zona : {-12.0, -3.5, 0.0, 5.75, 14.0}) {
            ASSERT_EQ(FormatearHora(f, zona), literal::FormatearHora(f, zona));
            ASSERT_EQ(HoraDeDiaJuliano(2461000.5 + f, zona), literal::HoraDeDiaJuliano(2461000.5 + f, zona));
            ASSERT_NEAR(AjustarFraccion(f, zona), literal::AjustarFraccion(f, zona), 1e-15);
        }
    for (double az = -400; az < 800; az += 0.7)
        ASSERT_EQ(Compas8(az), literal::Compas8(az));
}

} // namespace

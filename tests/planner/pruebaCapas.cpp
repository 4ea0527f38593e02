#include "LienzoQueRecuerda.h"
#include "capas.h"
#include "tablaEclipse2026.h"
#include "tablaPrueba.h"

#include "modAstro.h"
#include "modFormato.h"
#include "modPlanetas.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using modOpenGL::RGB;
using Tipo = LienzoQueRecuerda::Tipo;
using Forma = LienzoQueRecuerda::Forma;

namespace {

constexpr double kUnPixel = 1.0; // places are rounded to whole pixels

// Madrid in the middle of a picture of 1280 x 800 at zoom 6, with nothing switched on.
EscenaMapa Madrid()
{
    EscenaMapa e;
    e.vista = {-3.7038, 40.4168, 6, 1280, 800};
    e.tieneObs = true;
    e.obsLat = 40.4168;
    e.obsLon = -3.7038;
    e.fecha = {2026, 6, 21};
    e.juliano = JulianoDeLaInterfaz(e.fecha, 12.0, 2.0);
    return e;
}

template <typename Pintor> LienzoQueRecuerda Pintar(Pintor pintor, const EscenaMapa& e)
{
    LienzoQueRecuerda lienzo;
    pintor(lienzo, e);
    return lienzo;
}

// Azimuth of a line's far end from its start.
double Azimut(const Forma& f)
{
    return modAstro::Norm360(std::atan2(f.x2 - f.x1, f.y1 - f.y2) * 180.0 / M_PI);
}

QString Regional(const char* texto)
{
    return QString::fromUtf8(texto).replace(QLatin1Char('.'), modFormato::SeparadoresSistema().decimal);
}

constexpr std::int32_t kSol = RGB(255, 160, 0);
constexpr std::int32_t kLuna = RGB(200, 200, 255);

} // namespace

// --- Julian day of the controls

struct CasoJuliano
{
    const char* frase;
    std::int16_t anio, mes, dia;
    double hora, zona, esperado;
};

// 2026-08-12 0 h UT is JD 2461264.5 (from 2000-01-01 12 h, 2451545, by counting days).
constexpr CasoJuliano kJulianos[] = {
    {"20:30 in zone 2 is minute 1110", 2026, 8, 12, 20.5, 2.0, 2461264.5 + 1110.0 / 1440.0},
    {"before the day's start the hour folds, the date stays", 2026, 8, 12, 1.0, 2.0, 2461264.5 + 23.0 / 24.0},
    {"past its end as well", 2026, 8, 12, 23.0, -2.0, 2461264.5 + 1.0 / 24.0},
    {"24:00 folds to 0 h", 2026, 8, 12, 24.0, 0.0, 2461264.5},
    {"year 1899 is J2000", 1899, 8, 12, 3.0, 0.0, 2451545.0},
    {"year 2201 too", 2201, 1, 1, 3.0, 0.0, 2451545.0},
    {"an empty year box", 0, 0, 0, 3.0, 0.0, 2451545.0},
};

TEST(escenaMapa, JulianoDeLaInterfaz)
{
    constexpr double kTolerancia = 1e-9; // days, the grain of a Julian day
    for (const CasoJuliano& c : kJulianos) {
        SCOPED_TRACE(c.frase);
        EXPECT_NEAR(JulianoDeLaInterfaz({c.anio, c.mes, c.dia}, c.hora, c.zona), c.esperado, kTolerancia);
    }
}

// --- Alignment

struct CasoBrillo
{
    const char* frase;
    double az, a1, a2, distancia;
};

// By hand.
constexpr CasoBrillo kBrillos[] = {
    {"the nearer of the two", 100.0, 90.0, 103.0, 3.0},
    {"over north", 359.0, 2.0, 200.0, 3.0},
    {"and back", 1.0, 200.0, 358.5, 2.5},
    {"opposite", 0.0, 180.0, 180.0, 180.0},
    {"an absent rising is passed over", 100.0, -1.0, 130.0, 30.0},
    {"an absent setting as well", 100.0, 90.0, -1.0, 10.0},
    {"polar summer: nothing to compare", 100.0, -1.0, -1.0, 999.0},
    {"no direction now", -1.0, 90.0, 270.0, 999.0},
};

TEST(capas, BrilloAlineacion)
{
    for (const CasoBrillo& c : kBrillos) {
        SCOPED_TRACE(c.frase);
        EXPECT_DOUBLE_EQ(capas::BrilloAlineacion(c.az, c.a1, c.a2), c.distancia);
    }
}

TEST(capas, ElHaloCreceAlAcercarseALaPuesta)
{
    auto e = Madrid();
    e.ahora.SolAzOcaso = 300.0;
    double anterior = 0.0;
    for (double d = 6.0; d >= 0.0; d -= 0.5) {
        e.ahora.SolAzActual = 300.0 - d;
        const auto discos = Pintar(capas::PintarDirecciones, e).De(Tipo::Disco);
        if (d == 6.0) {
            EXPECT_TRUE(discos.empty()) << "6 degrees is not near";
            continue;
        }
        ASSERT_EQ(discos.size(), 1U) << d;
        EXPECT_EQ(discos[0].color, RGB(255, 153, 0));
        EXPECT_EQ(discos[0].medida, 65.0);
        EXPECT_EQ(discos[0].x1, 640.0);
        EXPECT_EQ(discos[0].y1, 400.0);
        EXPECT_GT(discos[0].alfa, anterior);
        EXPECT_NEAR(discos[0].alfa, 0.45 * (6.0 - d) / 6.0, 1e-12);
        anterior = discos[0].alfa;
    }
    e.ahora.SolAzActual = -1.0;
    e.ahora.LunaAzActual = 100.0;
    e.ahora.LunaAzOrto = 102.0;
    const auto luna = Pintar(capas::PintarDirecciones, e).De(Tipo::Disco);
    ASSERT_EQ(luna.size(), 1U);
    EXPECT_EQ(luna[0].color, RGB(120, 180, 255));
}

// --- Directions

struct CasoAncho
{
    const char* frase;
    double alt, ancho;
    bool trazo;
};

// The table of widths, at its ends.
constexpr CasoAncho kAnchos[] = {
    {"not computed", -999.0, 1.5, false}, {"the bound of not computed", -998.0, 1.5, false},
    {"deep night", -40.0, 1.5, true},     {"just under -6", -6.001, 1.5, true},
    {"-6 itself", -6.0, 2.5, true},       {"just under the horizon", -0.001, 2.5, true},
    {"the horizon", 0.0, 4.0, false},     {"low light", 5.999, 4.0, false},
    {"6 and above", 6.0, 3.0, false},     {"zenith", 90.0, 3.0, false},
};

TEST(capas, ElAnchoDiceLaAlturaDelAstro)
{
    for (const CasoAncho& c : kAnchos) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(capas::AnchoLineaAstro(c.alt), c.ancho);
        auto e = Madrid();
        e.ahora.SolAzActual = 123.0;
        e.ahora.SolAltActual = c.alt;
        const auto lineas = Pintar(capas::PintarDirecciones, e).Lineas(kSol);
        ASSERT_EQ(lineas.size(), c.trazo ? 2U : 1U);
        EXPECT_EQ(lineas[0].medida, c.ancho);
        EXPECT_NEAR(Azimut(lineas[0]), 123.0, 1e-9);
        if (c.trazo) {
            EXPECT_EQ(lineas[1].medida, 1.0);
            EXPECT_NEAR(Azimut(lineas[1]), 303.0, 1e-9) << "through the mark, the other way";
        }
    }
}

TEST(capas, LasDireccionesSalenDelMapa)
{
    auto e = Madrid();
    e.obsLat = 55.0; // far up in the picture
    for (double az = 0.0; az < 360.0; az += 7.5) {
        e.ahora.LunaAzActual = az;
        e.ahora.LunaAltActual = 20.0;
        const auto lineas = Pintar(capas::PintarDirecciones, e).Lineas(kLuna);
        ASSERT_EQ(lineas.size(), 1U);
        const Forma& f = lineas[0];
        EXPECT_NEAR(Azimut(f), az, 1e-9);
        EXPECT_TRUE(f.x2 < 0.0 || f.x2 > 1280.0 || f.y2 < 0.0 || f.y2 > 800.0) << az;
        EXPECT_NEAR(std::hypot(f.x2 - f.x1, f.y2 - f.y1), 1280.0 + 800.0 + 100.0, 1e-9);
    }
}

TEST(capas, LosCuatroSucesosConSuColor)
{
    auto e = Madrid();
    e.ahora.SolAzOrto = 58.0;
    e.ahora.SolAzOcaso = 302.0;
    e.ahora.LunaAzOrto = 110.0;
    e.ahora.LunaAzOcaso = 0.0;
    const auto lienzo = Pintar(capas::PintarDirecciones, e);
    const struct
    {
        std::int32_t color;
        double az;
    } casos[] = {{RGB(255, 215, 0), 58.0},
                 {RGB(255, 80, 30), 302.0},
                 {RGB(180, 220, 240), 110.0},
                 {RGB(200, 160, 220), 0.0}};
    ASSERT_EQ(lienzo.formas.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(lienzo.formas[i].color, casos[i].color);
        EXPECT_EQ(lienzo.formas[i].medida, 4.0);
        EXPECT_NEAR(std::remainder(Azimut(lienzo.formas[i]) - casos[i].az, 360.0), 0.0, 1e-9);
    }
}

TEST(capas, EnElVeranoPolarNoHaySucesosNiHalo)
{
    auto e = Madrid();
    const auto m = modAstro::CalcularMomentosDia(2026, 6, 21, 12.0, 2.0, 78.22, 15.65, false);
    e.ahora = DeMomentosDia(m);
    e.ahora.LunaAzActual = e.ahora.LunaAzOrto = e.ahora.LunaAzOcaso = -1.0;
    const auto lienzo = Pintar(capas::PintarDirecciones, e);
    ASSERT_EQ(lienzo.formas.size(), 1U) << "the Sun's own line alone";
    EXPECT_EQ(lienzo.formas[0].color, kSol);
}

TEST(capas, SinObservadorNoHayNadaSuyo)
{
    auto e = Madrid();
    e.tieneObs = false;
    e.ahora = {100.0, 10.0, 200.0, 10.0, 99.0, 260.0, 199.0, 300.0};
    e.viaLactea = e.trayectorias = e.mostrarObjetivo = e.tieneTgt = true;
    static const modAstroEstado::Trayectoria camino{};
    e.sol = e.luna = &camino;
    for (auto pintor : {capas::PintarDirecciones, capas::PintarViaLactea, capas::PintarTrayectorias,
                        capas::PintarLineaObjetivo, capas::PintarObservador})
        EXPECT_TRUE(Pintar(pintor, e).formas.empty());
    EXPECT_EQ(Pintar(capas::PintarObjetivo, e).formas.size(), 1U) << "the target stands for itself";
}

// --- Marks

TEST(capas, LasMarcasYSuLinea)
{
    auto e = Madrid();
    e.tieneTgt = e.mostrarObjetivo = true;
    e.tgtLat = 41.0;
    e.tgtLon = -2.0;
    std::int32_t x = 0, y = 0;
    modMap::LonLatAPixelVista(e.vista, e.tgtLon, e.tgtLat, x, y);

    const auto obs = Pintar(capas::PintarObservador, e).formas;
    ASSERT_EQ(obs.size(), 1U);
    EXPECT_EQ(obs[0].tipo, Tipo::Pin);
    EXPECT_EQ(obs[0].medida, 6.0);
    EXPECT_EQ(obs[0].color, RGB(220, 30, 30));
    EXPECT_EQ(obs[0].contorno, RGB(0, 0, 0));
    EXPECT_EQ(QPointF(obs[0].x1, obs[0].y1), QPointF(640, 400));

    const auto tgt = Pintar(capas::PintarObjetivo, e).formas;
    ASSERT_EQ(tgt.size(), 1U);
    EXPECT_EQ(tgt[0].color, RGB(30, 90, 220));
    EXPECT_EQ(QPointF(tgt[0].x1, tgt[0].y1), QPointF(x, y));

    const auto linea = Pintar(capas::PintarLineaObjetivo, e).formas;
    ASSERT_EQ(linea.size(), 1U);
    EXPECT_EQ(linea[0].medida, 1.0);
    EXPECT_EQ(QPointF(linea[0].x2, linea[0].y2), QPointF(x, y));

    e.mostrarObjetivo = false;
    EXPECT_TRUE(Pintar(capas::PintarObjetivo, e).formas.empty());
    EXPECT_TRUE(Pintar(capas::PintarLineaObjetivo, e).formas.empty());
}

// --- Day paths

namespace {

// A body that stands at one azimuth and climbs from -30 degrees at midnight to 60 at noon and back.
modAstroEstado::Trayectoria Columpio(double az)
{
    modAstroEstado::Trayectoria t;
    for (std::size_t i = 0; i < t.altitud.size(); ++i) {
        t.azimut[i] = az;
        t.altitud[i] = 60.0 - 90.0 * std::abs(static_cast<double>(i) - 72.0) / 72.0;
    }
    return t;
}

} // namespace

TEST(capas, LosCaminosDelDia)
{
    const auto este = Columpio(90.0), sur = Columpio(180.0);
    auto e = Madrid();
    e.trayectorias = true;
    e.sol = &este;
    e.luna = &sur;
    const auto lienzo = Pintar(capas::PintarTrayectorias, e);
    const auto claras = lienzo.Lineas(RGB(255, 215, 60)), apagadas = lienzo.Lineas(RGB(120, 90, 0));
    EXPECT_EQ(claras.size() + apagadas.size(), 143U);
    for (const Forma& f : claras)
        EXPECT_EQ(f.medida, 1.5);
    for (const Forma& f : apagadas)
        EXPECT_EQ(f.medida, 1.0);
    // Samples at or above -0.833: those within 48.67 of the middle, 24 to 120, so 96 segments between them.
    EXPECT_EQ(claras.size(), 96U);
    for (const Forma& f : claras) {
        EXPECT_NEAR(f.y1, 400.0, 1e-9) << "due east";
        EXPECT_GE(f.x1, 640.0 + 180.0 * std::cos(60.0 * M_PI / 180.0) - 1e-9);
        EXPECT_LE(f.x1, 640.0 + 180.0);
    }
    EXPECT_EQ(lienzo.Lineas(RGB(220, 230, 255)).size(), 96U);
    EXPECT_EQ(lienzo.Lineas(RGB(110, 120, 150)).size(), 47U);
}

TEST(capas, CadaHoraTieneSuPunto)
{
    const auto t = Columpio(90.0);
    auto e = Madrid();
    e.trayectorias = true;
    e.sol = e.luna = &t;
    std::vector<Forma> puntos;
    for (const Forma& f : Pintar(capas::PintarTrayectorias, e).De(Tipo::Disco))
        if (f.color != RGB(66, 70, 86)) // the dark edge of a bright one
            puntos.push_back(f);
    ASSERT_EQ(puntos.size(), 48U);
    EXPECT_EQ(puntos[0].medida, 2.0) << "midnight, below";
    EXPECT_EQ(puntos[0].color, RGB(120, 90, 0));
    EXPECT_NEAR(puntos[12].medida, 7.0 * std::sin(60.0 * M_PI / 180.0) + 2.5, 1e-9) << "noon";
    EXPECT_EQ(puntos[12].color, RGB(255, 215, 60));
    EXPECT_NEAR(puntos[12].x1, 640.0 + 90.0, 1e-9) << "180 cos 60";
    EXPECT_EQ(puntos[36].color, RGB(220, 230, 255));
}

TEST(capas, LasHorasDeSeisADieciocho)
{
    modAstroEstado::Trayectoria t;
    t.altitud.fill(30.0);
    t.azimut.fill(270.0);
    modAstroEstado::Trayectoria bajo = t;
    bajo.altitud.fill(-0.834);
    auto e = Madrid();
    e.trayectorias = true;
    e.sol = &t;
    e.luna = &bajo;
    const auto lienzo = Pintar(capas::PintarTrayectorias, e);
    std::set<QString> horas;
    const double x = 640.0 - 180.0 * std::cos(30.0 * M_PI / 180.0);
    for (const Forma& f : lienzo.De(Tipo::Texto)) {
        horas.insert(f.texto);
        EXPECT_EQ(f.medida, 8.0);
        if (f.color == RGB(255, 215, 60)) {
            EXPECT_NEAR(f.x1, x + 8.0, 1e-9);
            EXPECT_NEAR(f.y1, 400.0 - 6.0, 1e-9);
        }
    }
    EXPECT_EQ(horas.size(), 13U) << "none for the body below -0.833";
    EXPECT_EQ(*horas.begin(), QStringLiteral("06:00"));
    EXPECT_EQ(*horas.rbegin(), QStringLiteral("18:00"));
}

TEST(capas, SinCurvasValidasNoHayCaminos)
{
    auto e = Madrid();
    e.trayectorias = true;
    EXPECT_TRUE(Pintar(capas::PintarTrayectorias, e).formas.empty());
    const auto t = Columpio(90.0);
    e.sol = e.luna = &t;
    e.trayectorias = false;
    EXPECT_TRUE(Pintar(capas::PintarTrayectorias, e).formas.empty());
}

// --- Milky Way

TEST(capas, ElArcoQuedaDentroDelDisco)
{
    auto e = Madrid();
    e.viaLactea = true;
    constexpr double kRadio = 0.35 * 800.0;
    const double kBorde = kRadio * std::cos(3.0 * M_PI / 180.0) / (1.0 - std::sin(3.0 * M_PI / 180.0));
    std::size_t puntos = 0;
    for (int hora = 0; hora < 24; ++hora) {
        e.juliano = JulianoDeLaInterfaz(e.fecha, hora, 2.0);
        const auto lienzo = Pintar(capas::PintarViaLactea, e);
        for (const Forma& f : lienzo.Lineas(RGB(255, 204, 100))) {
            ASSERT_LE(std::hypot(f.x2 - 640.0, f.y2 - 400.0), kBorde + 1e-9);
            ASSERT_EQ(f.medida, 2.0);
            ++puntos;
        }
        ASSERT_EQ(lienzo.De(Tipo::Circulo).size(), 1U) << "the centre is always there";
    }
    EXPECT_GT(puntos, 24U * 40U) << "about half of 120 at any hour";
}

// The galactic centre of this drawing is right ascension 96.3, declination -60.2 (see modPlanetas.h): never
// up over Madrid, always up over 70 S.
TEST(capas, ElCentroBajoElHorizonteVaAlBorde)
{
    auto e = Madrid();
    e.viaLactea = true;
    const auto lienzo = Pintar(capas::PintarViaLactea, e);
    const Forma centro = lienzo.De(Tipo::Circulo)[0];
    EXPECT_EQ(centro.medida, 12.0);
    EXPECT_EQ(centro.color, RGB(120, 70, 30));
    EXPECT_EQ(centro.contorno, RGB(180, 140, 80));
    EXPECT_NEAR(std::hypot(centro.x1 - 640.0, centro.y1 - 400.0), 1.05 * 0.35 * 800.0, 1e-9);
    EXPECT_TRUE(lienzo.De(Tipo::Texto)[0].texto.startsWith(QLatin1String("GC -")));
    EXPECT_TRUE(lienzo.De(Tipo::Texto)[0].texto.endsWith(QChar(u'°')));
}

TEST(capas, ElCentroSobreElHorizonteEstaEnSuSitio)
{
    auto e = Madrid();
    e.viaLactea = true;
    e.obsLat = -70.0;
    e.vista.lat = -70.0;
    const auto lienzo = Pintar(capas::PintarViaLactea, e);
    const Forma centro = lienzo.De(Tipo::Circulo)[0];
    EXPECT_EQ(centro.color, RGB(255, 153, 0));
    EXPECT_EQ(centro.contorno, RGB(255, 230, 140));
    double alfa = 0, delta = 0, az = 0, alt = 0;
    modAstro::EcuatorialAGalactico(0.0, 0.0, alfa, delta);
    modAstro::EcuatorialAHorizontal(alfa, delta, modAstro::TiempoSidereo(e.juliano), -70.0, e.obsLon, az,
                                    alt);
    EXPECT_NEAR(delta * 180.0 / M_PI, -60.2, 0.05);
    ASSERT_GT(alt, 30.0);
    EXPECT_NEAR(std::hypot(centro.x1 - 640.0, centro.y1 - 400.0),
                280.0 * std::tan((90.0 - alt) / 2.0 * M_PI / 180.0), 1e-6)
        << "cos / (1 + sin) is the tangent of half the zenith distance";
    EXPECT_NEAR(modAstro::Norm360(std::atan2(centro.x1 - 640.0, 400.0 - centro.y1) * 180.0 / M_PI), az, 1e-9);
    const auto texto = lienzo.De(Tipo::Texto)[0].texto;
    EXPECT_EQ(texto, QStringLiteral("GC +%1°").arg(std::lround(alt)));
}

TEST(capas, LaViaLacteaSoloSiSePide)
{
    EXPECT_TRUE(Pintar(capas::PintarViaLactea, Madrid()).formas.empty());
}

// --- Terminator

namespace {

// The world at zoom 2 in a picture as large, seen at a date and UT hour.
EscenaMapa Mundo(std::int16_t mes, std::int16_t dia, double ut)
{
    EscenaMapa e;
    e.vista = {0.0, 0.0, 2, 1024, 1024};
    e.fecha = {2026, mes, dia};
    e.juliano = JulianoDeLaInterfaz(e.fecha, ut, 0.0);
    e.terminador = true;
    return e;
}

double AltitudSol(const EscenaMapa& e, double lat, double lon)
{
    double alt = 0, az = 0;
    modAstro::AzAltCuerpo(e.juliano, lat, lon, false, alt, az);
    return alt;
}

constexpr std::int32_t kLineaTerminador = RGB(255, 200, 100);

// A picture pixel lies in one of the flat night quads, whose left and right sides are upright.
bool EnNoche(const LienzoQueRecuerda& lienzo, double x, double y)
{
    for (const Forma& f : lienzo.De(Tipo::Cuadrilatero)) {
        const auto& q = f.esquinas;
        if (x < q[0].x || x >= q[1].x)
            continue;
        const double t = (x - q[0].x) / (q[1].x - q[0].x);
        const double a = q[0].y + (q[1].y - q[0].y) * t, b = q[3].y + (q[2].y - q[3].y) * t;
        if (y >= std::min(a, b) && y < std::max(a, b))
            return true;
    }
    return false;
}

} // namespace

TEST(capas, LaNocheCubreDondeElSolEstaBajo)
{
    constexpr double kFranja =
        1.5; // degrees: a chord of two degrees of longitude strays that far near a pole
    const struct
    {
        std::int16_t mes, dia;
    } fechas[] = {{6, 21}, {12, 21}, {2, 10}, {9, 1}};
    for (const auto& f : fechas)
        for (double ut : {0.0, 7.3, 15.9}) {
            const auto e = Mundo(f.mes, f.dia, ut);
            const auto lienzo = Pintar(capas::PintarTerminador, e);
            for (double lat = -80.0; lat <= 80.0; lat += 8.0)
                for (double lon = -178.0; lon < 178.0; lon += 11.0) {
                    const double alt = AltitudSol(e, lat, lon);
                    if (std::abs(alt) < kFranja)
                        continue;
                    std::int32_t x = 0, y = 0;
                    modMap::LonLatAPixelVista(e.vista, lon, lat, x, y);
                    ASSERT_EQ(EnNoche(lienzo, x + 0.5, y), alt < 0.0)
                        << f.mes << ' ' << ut << " h: " << lat << ' ' << lon << ' ' << alt;
                }
        }
}

TEST(capas, LaLineaDelTerminadorSigueAlSolEnElHorizonte)
{
    const auto e = Mundo(6, 21, 9.0);
    const auto lienzo = Pintar(capas::PintarTerminador, e);
    const auto linea = lienzo.Lineas(kLineaTerminador);
    ASSERT_GT(linea.size(), 180U) << "every two degrees across the world and its margins";
    for (const Forma& f : linea) {
        EXPECT_EQ(f.medida, 1.5);
        double lon = 0, lat = 0;
        modMap::PixelVistaALonLat(e.vista, static_cast<std::int32_t>(f.x1), static_cast<std::int32_t>(f.y1),
                                  lon, lat);
        if (std::abs(lat) < 84.0) {
            EXPECT_NEAR(AltitudSol(e, lat, lon), 0.0, 0.4) << "a pixel is 0.35 degrees";
        }
    }
    for (const Forma& f : lienzo.De(Tipo::Cuadrilatero)) {
        EXPECT_DOUBLE_EQ(f.colores[0].b, 0.15);
        EXPECT_DOUBLE_EQ(f.colores[0].a, 0.32);
        EXPECT_DOUBLE_EQ(f.colores[0].r + f.colores[0].g, 0.0);
    }
}

// The instant at which the declination of the Sun passes 0 in March 2026, by halving.
TEST(capas, EnElEquinoccioHayDosMeridianos)
{
    double a = modAstro::DiaJuliano(2026, 3, 19, 0.0), b = modAstro::DiaJuliano(2026, 3, 22, 0.0);
    double lat = 0, lon = 0;
    for (int i = 0; i < 60; ++i) {
        modAstro::PuntoSubsolar((a + b) / 2, lat, lon);
        (lat < 0.0 ? a : b) = (a + b) / 2;
    }
    auto e = Mundo(3, 20, 12.0);
    e.juliano = b;
    const auto lienzo = Pintar(capas::PintarTerminador, e);
    const auto lineas = lienzo.Lineas(kLineaTerminador);
    std::set<double> equis;
    for (const Forma& f : lineas) {
        EXPECT_EQ(f.x1, f.x2) << "upright";
        equis.insert(f.x1);
    }
    EXPECT_EQ(equis.size(), 2U) << "the world is as wide as the picture";
    modAstro::PuntoSubsolar(b, lat, lon);
    for (const double meridiano : {lon + 90.0, lon - 90.0}) {
        std::int32_t x = 0, y = 0;
        modMap::LonLatAPixelVista(e.vista, std::remainder(meridiano, 360.0), 0.0, x, y);
        EXPECT_TRUE(equis.count(x) == 1) << meridiano;
        for (const double paso : {-8.0, 8.0}) {
            const double l = std::remainder(meridiano + paso, 360.0);
            modMap::LonLatAPixelVista(e.vista, l, 30.0, x, y);
            EXPECT_EQ(EnNoche(lienzo, x, y), std::abs(std::remainder(l - lon, 360.0)) > 90.0) << l;
        }
    }
    for (const Forma& f : lienzo.formas) {
        ASSERT_TRUE(std::isfinite(f.x1) && std::isfinite(f.y1));
        for (const auto& q : f.esquinas)
            ASSERT_TRUE(std::isfinite(q.x) && std::isfinite(q.y));
    }
}

TEST(capas, LasFasesSolasNoDibujanNada)
{
    auto e = Mundo(6, 21, 9.0);
    e.terminador = false;
    e.fasesTerminador = true;
    EXPECT_TRUE(Pintar(capas::PintarTerminador, e).formas.empty());
}

TEST(capas, LaNocheGraduadaTieneElColorDeCadaAltitud)
{
    auto e = Mundo(6, 21, 9.0);
    const auto lisa = Pintar(capas::PintarTerminador, e);
    e.fasesTerminador = true;
    const auto lienzo = Pintar(capas::PintarTerminador, e);
    ASSERT_GT(lienzo.formas.size(), lisa.formas.size() + 1000U);
    const std::size_t graduadas = lienzo.formas.size() - lisa.formas.size();
    for (std::size_t i = 0; i < graduadas; ++i) {
        const Forma& f = lienzo.formas[i];
        ASSERT_EQ(f.tipo, Tipo::Cuadrilatero) << "the graded night comes first";
        double suma = 0.0;
        for (std::size_t k = 0; k < 4; ++k) {
            suma += f.colores[k].a;
            double lon = 0, lat = 0;
            modMap::PixelVistaALonLat(e.vista, static_cast<std::int32_t>(f.esquinas[k].x),
                                      static_cast<std::int32_t>(f.esquinas[k].y), lon, lat);
            const auto esperado = capas::ColorCrepusculo(AltitudSol(e, lat, lon));
            ASSERT_NEAR(f.colores[k].a, esperado.a, 0.012) << "within a pixel: " << lat << ' ' << lon;
        }
        ASSERT_GT(suma, 0.0) << "a cell in daylight is left out";
    }
}

struct CasoCrepusculo
{
    const char* frase;
    double alt, r, g, b, a;
};

// The table's rows, and the middle between two of them.
constexpr CasoCrepusculo kCrepusculos[] = {
    {"day", 40.0, 0.16, 0.24, 0.42, 0.0},    {"the horizon", 0.0, 0.16, 0.24, 0.42, 0.0},
    {"-3", -3.0, 0.16, 0.24, 0.42, 0.08},    {"-6", -6.0, 0.16, 0.24, 0.42, 0.16},
    {"-9", -9.0, 0.115, 0.185, 0.36, 0.195}, {"-12", -12.0, 0.07, 0.13, 0.30, 0.23},
    {"-18", -18.0, 0.03, 0.07, 0.20, 0.29},  {"-21", -21.0, 0.015, 0.035, 0.16, 0.315},
    {"-24", -24.0, 0.0, 0.0, 0.12, 0.34},    {"midnight", -60.0, 0.0, 0.0, 0.12, 0.34},
};

TEST(capas, ColorCrepusculo)
{
    for (const CasoCrepusculo& c : kCrepusculos) {
        SCOPED_TRACE(c.frase);
        const auto color = capas::ColorCrepusculo(c.alt);
        EXPECT_NEAR(color.r, c.r, 1e-12);
        EXPECT_NEAR(color.g, c.g, 1e-12);
        EXPECT_NEAR(color.b, c.b, 1e-12);
        EXPECT_NEAR(color.a, c.a, 1e-12);
    }
}

TEST(capas, AlMoverElMapaElTerminadorNoTiembla)
{
    auto e = Mundo(6, 21, 9.0);
    e.vista.zoom = 5;
    e.vista.ancho = 1280;
    const auto antes = Pintar(capas::PintarTerminador, e);
    e.vista.lon += 0.7;
    const auto despues = Pintar(capas::PintarTerminador, e);
    const double dx = 0.7 / 360.0 * 256.0 * 32.0;
    std::set<long> equis;
    for (const Forma& f : antes.Lineas(kLineaTerminador))
        equis.insert(std::lround(f.x1 - dx));
    int comunes = 0, todas = 0;
    for (const Forma& f : despues.Lineas(kLineaTerminador)) {
        ++todas;
        for (long d = -1; d <= 1; ++d)
            comunes += static_cast<int>(equis.count(std::lround(f.x1) + d));
    }
    EXPECT_GE(comunes, todas - 2) << "its points stay on the ground";
}

TEST(capas, EnCadaZoomLosPuntosSonFinitos)
{
    for (std::int16_t z = 2; z <= 18; ++z)
        for (double lat : {-85.05, 0.0, 40.0, 85.05}) {
            auto e = Mundo(6, 21, 9.0);
            e.fasesTerminador = true;
            e.vista = {190.0, lat, z, 1280, 800};
            const auto lienzo = Pintar(capas::PintarTerminador, e);
            for (const Forma& f : lienzo.formas)
                for (const auto& q : f.esquinas)
                    ASSERT_TRUE(std::isfinite(q.x) && std::isfinite(q.y)) << z << ' ' << lat;
            ASSERT_LT(lienzo.formas.size(), 10000U);
        }
}

// --- Eclipse

namespace {

EscenaMapa Eclipse(double ut)
{
    auto e = Madrid();
    e.fecha = {2026, 8, 12};
    e.juliano = JulianoDeLaInterfaz(e.fecha, ut, 0.0);
    return e;
}

} // namespace

TEST(tablaEclipse2026, FilasYHuecos)
{
    SombraEclipse s;
    EXPECT_FALSE(SombraEclipse2026(1019.999, s));
    EXPECT_FALSE(SombraEclipse2026(1114.001, s));
    EXPECT_FALSE(SombraEclipse2026(std::nan(""), s));
    ASSERT_TRUE(SombraEclipse2026(1020.0, s));
    EXPECT_EQ(s.lat, 75.0783);
    EXPECT_EQ(s.lon, 113.4517);
    EXPECT_EQ(s.anchoKm, 269.0);
    ASSERT_TRUE(SombraEclipse2026(1114.0, s));
    EXPECT_EQ(s.lat, 38.68);
    EXPECT_EQ(s.lon, 5.415);
    EXPECT_EQ(s.anchoKm, 262.0);
    ASSERT_TRUE(SombraEclipse2026(1109.0, s)) << "between 43.3717, -6.1883 and 41.8167, -3.185";
    EXPECT_NEAR(s.lat, 42.5942, 1e-9);
    EXPECT_NEAR(s.lon, -4.68665, 1e-9);
    EXPECT_NEAR(s.anchoKm, 299.0, 1e-9);
}

TEST(tablaEclipse2026, ElCaminoBajaHaciaElSurSinSaltos)
{
    for (std::size_t i = 1; i < TablaEclipse2026.size(); ++i) {
        const auto &a = TablaEclipse2026[i - 1], &b = TablaEclipse2026[i];
        EXPECT_LE(std::abs(b.anchoKm - a.anchoKm), 24.0) << i;
        EXPECT_LE(std::abs(b.lat - a.lat), 7.2) << i;
        if (i > 5) {
            EXPECT_LT(b.lat, a.lat) << i;
        }
    }
}

TEST(capas, ALas1830LaSombraEstaSobreEspana)
{
    const auto e = Eclipse(18.5);
    const auto discos = Pintar(capas::PintarEclipse2026, e).formas;
    ASSERT_EQ(discos.size(), 3U);
    double lon = 0, lat = 0;
    modMap::PixelVistaALonLat(e.vista, static_cast<std::int32_t>(discos[2].x1),
                              static_cast<std::int32_t>(discos[2].y1), lon, lat);
    EXPECT_NEAR(lat, 41.8167, 0.02) << "row of minute 1110";
    EXPECT_NEAR(lon, -3.185, 0.02);
    const double p = 256.0 * 64.0 / (std::cos(41.8167 * M_PI / 180.0) * 40075.016686);
    EXPECT_NEAR(discos[2].medida, 294.0 / 2.0 * p, 1e-3);
    EXPECT_NEAR(discos[1].medida, 3.0 * 294.0 / 2.0 * p, 1e-3);
    EXPECT_NEAR(discos[0].medida, 1.8 * 650.0 * p, 1e-2);
    const double opacidades[] = {0.1, 0.18, 0.45};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(discos[i].alfa, opacidades[i]);
        EXPECT_EQ(discos[i].segmentos, 72);
        EXPECT_EQ(discos[i].color, 0);
    }
}

TEST(capas, SoloEseDiaYMientrasPasa)
{
    EXPECT_TRUE(Pintar(capas::PintarEclipse2026, Eclipse(17.0)).formas.empty()) << "latitude above 66";
    EXPECT_TRUE(Pintar(capas::PintarEclipse2026, Eclipse(16.9)).formas.empty());
    EXPECT_TRUE(Pintar(capas::PintarEclipse2026, Eclipse(18.6)).formas.empty());
    EXPECT_EQ(Pintar(capas::PintarEclipse2026, Eclipse(1114.0 / 60.0)).formas.size(), 3U)
        << "the last minute";
    for (const FechaCivil& f : {FechaCivil{2025, 8, 12}, FechaCivil{2027, 8, 12}, FechaCivil{2026, 8, 13},
                                FechaCivil{2026, 7, 12}}) {
        auto e = Eclipse(18.5);
        e.fecha = f;
        EXPECT_TRUE(Pintar(capas::PintarEclipse2026, e).formas.empty());
        e.juliano = JulianoDeLaInterfaz(f, 18.5, 0.0);
        EXPECT_TRUE(Pintar(capas::PintarEclipse2026, e).formas.empty());
    }
    auto globo = Eclipse(18.5);
    globo.vista.zoom = 1;
    EXPECT_TRUE(Pintar(capas::PintarEclipse2026, globo).formas.empty());
    auto zona = Eclipse(0.0);
    zona.juliano = JulianoDeLaInterfaz(zona.fecha, 20.5, 2.0);
    EXPECT_EQ(Pintar(capas::PintarEclipse2026, zona).formas.size(), 3U) << "20:30 in zone 2";
}

// --- Notice

TEST(capas, ElAvisoEstaEnElCentroConDosLineas)
{
    tablaPrueba::Cargar();
    auto e = Madrid();
    e.descargas = 3;
    EXPECT_TRUE(Pintar(capas::PintarAvisoDescargas, e).formas.empty()) << "nothing under way";
    e.hayDescargas = true;
    const struct
    {
        int n;
        const char* segunda;
    } casos[] = {{0, "bajando"}, {1, "una"}, {2, "quedan 2"}, {1234, "quedan 1234"}};
    for (const auto& c : casos) {
        e.descargas = c.n;
        const auto lienzo = Pintar(capas::PintarAvisoDescargas, e);
        const auto textos = lienzo.De(Tipo::Texto);
        ASSERT_EQ(textos.size(), 2U);
        EXPECT_EQ(textos[0].texto, QStringLiteral("bajando"));
        EXPECT_EQ(textos[1].texto, QLatin1String(c.segunda));
        EXPECT_EQ(textos[0].medida, 11.0);
        EXPECT_TRUE(textos[0].negrita);
        EXPECT_EQ(textos[1].medida, 9.0);
        EXPECT_FALSE(textos[1].negrita);
        EXPECT_EQ(textos[0].color, RGB(255, 205, 100));
        EXPECT_EQ(textos[1].color, RGB(235, 238, 245));
        const auto caja = lienzo.De(Tipo::Cuadrilatero)[0].esquinas;
        EXPECT_EQ(caja[2].y - caja[0].y, 58.0);
        EXPECT_EQ(caja[2].x - caja[0].x, 210.0) << "short texts keep the least width";
        EXPECT_EQ((caja[0].x + caja[2].x) / 2.0, 640.0);
        EXPECT_EQ((caja[0].y + caja[2].y) / 2.0, 400.0);
        EXPECT_EQ(textos[0].y1, caja[0].y + 10.0);
        EXPECT_EQ(textos[1].y1, caja[0].y + 31.0);
        const auto reglas = lienzo.De(Tipo::Rectangulo);
        ASSERT_EQ(reglas.size(), 2U);
        for (const Forma& regla : reglas) {
            EXPECT_EQ(regla.color, RGB(255, 190, 65));
            EXPECT_EQ(regla.y2 - regla.y1, 1.0);
        }
    }
}

// --- Scale

struct CasoEscala
{
    const char* frase;
    double mpp, metros;
};

// By hand: the largest of 1, 2, 5 times a power of ten not above 100 pixels.
constexpr CasoEscala kEscalas[] = {
    {"exactly 100 pixels", 10.0, 1000.0}, {"just under", 9.99, 500.0},      {"one metre", 0.01, 1.0},
    {"nothing so small", 0.0099, 0.0},    {"a whole world", 156543.0, 1e7}, {"the end of the list", 1e9, 5e8},
};

TEST(capas, MetrosEscala)
{
    for (const CasoEscala& c : kEscalas) {
        SCOPED_TRACE(c.frase);
        EXPECT_EQ(capas::MetrosEscala(c.mpp), c.metros);
    }
}

TEST(capas, RotulosDeLaEscala)
{
    EXPECT_EQ(capas::RotuloMetrico(500.0), QStringLiteral("500 m"));
    EXPECT_EQ(capas::RotuloMetrico(1000.0), QStringLiteral("1 km"));
    EXPECT_EQ(capas::RotuloMetrico(200000.0), QStringLiteral("200 km"));
    EXPECT_EQ(capas::RotuloImperial(500.0), QStringLiteral("1640 ft")) << "0.3106855 miles";
    EXPECT_EQ(capas::RotuloImperial(1000.0), QStringLiteral("3281 ft"));
    EXPECT_EQ(capas::RotuloImperial(2000.0), Regional("1.24 mi"));
    EXPECT_EQ(capas::RotuloImperial(200000.0), Regional("124.27 mi"));
}

TEST(capas, LaBarraMideLoQueDice)
{
    for (std::int16_t z = 2; z <= 18; ++z)
        for (double lat : {0.0, 40.0, -70.0, 84.0}) {
            auto e = Madrid();
            e.vista.zoom = z;
            e.vista.lat = lat;
            const auto barras = Pintar(capas::PintarEscala, e).De(Tipo::Rectangulo);
            ASSERT_EQ(barras.size(), 3U) << z << ' ' << lat;
            const double ancho = barras[0].x2 - barras[0].x1;
            EXPECT_EQ(barras[0].x1, 12.0);
            EXPECT_GE(ancho, 39.0) << "1, 2, 5: never under 40 of 100";
            EXPECT_LE(ancho, 100.0);
            const double mpp = modMap::MetrosPorPixel(e.vista);
            EXPECT_NEAR(ancho * mpp, capas::MetrosEscala(mpp), mpp * kUnPixel);
            EXPECT_LT(barras[0].y2, 800.0);
        }
}

TEST(capas, EnUnMapaBajoNoHayEscala)
{
    auto e = Madrid();
    e.vista.alto = 49;
    EXPECT_TRUE(Pintar(capas::PintarEscala, e).formas.empty());
    e.vista.alto = 50;
    EXPECT_FALSE(Pintar(capas::PintarEscala, e).formas.empty());
    e.vista.lat = 90.0; // a bar of no metres at all
    EXPECT_TRUE(Pintar(capas::PintarEscala, e).formas.empty());
}

// --- Credit

TEST(capas, LaAtribucionEstaAbajoALaDerecha)
{
    auto e = Madrid();
    EXPECT_TRUE(Pintar(capas::PintarAtribucion, e).formas.empty());
    e.atribucion = QStringLiteral("Mapa: unos | Estilo: otros");
    const auto una = Pintar(capas::PintarAtribucion, e);
    ASSERT_EQ(una.De(Tipo::Texto).size(), 1U);
    EXPECT_EQ(una.De(Tipo::Texto)[0].texto, e.atribucion);
    const auto franja = una.De(Tipo::Cuadrilatero)[0];
    EXPECT_EQ(franja.esquinas[2].x, 1280.0);
    EXPECT_EQ(franja.esquinas[2].y, 800.0);
    EXPECT_GT(franja.colores[0].r, 0.9) << "pale";
    e.vista.ancho = 140;
    const auto dos = Pintar(capas::PintarAtribucion, e).De(Tipo::Texto);
    ASSERT_EQ(dos.size(), 2U) << "a narrow map breaks it";
    EXPECT_EQ(dos[0].texto, QStringLiteral("Mapa: unos"));
    EXPECT_EQ(dos[1].texto, QStringLiteral("Estilo: otros"));
    EXPECT_LT(dos[0].y1, dos[1].y1);
}

// --- Order

TEST(capas, ElOrdenDeLasCapas)
{
    tablaPrueba::Cargar();
    const auto camino = Columpio(90.0);
    auto e = Eclipse(18.5);
    e.terminador = e.fasesTerminador = e.viaLactea = e.trayectorias = e.mostrarObjetivo = e.tieneTgt = true;
    e.tgtLat = 41.0;
    e.tgtLon = -3.0;
    e.sol = e.luna = &camino;
    e.ahora = {100.0, 10.0, 200.0, 10.0, 99.0, 260.0, 199.0, 300.0};
    e.hayDescargas = true;
    e.descargas = 2;
    e.atribucion = QStringLiteral("credito");
    const auto lienzo = Pintar(capas::PintarCapas, e);
    std::vector<Forma> esperadas;
    for (auto pintor : {capas::PintarEclipse2026, capas::PintarTerminador, capas::PintarViaLactea,
                        capas::PintarLineaObjetivo, capas::PintarDirecciones, capas::PintarTrayectorias,
                        capas::PintarObservador, capas::PintarObjetivo, capas::PintarAvisoDescargas,
                        capas::PintarEscala, capas::PintarAtribucion}) {
        const auto parte = Pintar(pintor, e).formas;
        EXPECT_FALSE(parte.empty());
        esperadas.insert(esperadas.end(), parte.begin(), parte.end());
    }
    ASSERT_EQ(lienzo.formas.size(), esperadas.size());
    for (std::size_t i = 0; i < esperadas.size(); ++i) {
        ASSERT_EQ(lienzo.formas[i].tipo, esperadas[i].tipo) << i;
        ASSERT_EQ(lienzo.formas[i].x1, esperadas[i].x1) << i;
        ASSERT_EQ(lienzo.formas[i].color, esperadas[i].color) << i;
    }
    EXPECT_EQ(lienzo.formas.back().texto, QStringLiteral("credito")) << "never covered";
}

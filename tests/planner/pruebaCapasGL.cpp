// The overlays on the real surface, read back pixel by pixel.
#include "capas.h"
#include "gl/VentanaGL.h"

#include "modAstro.h"

#include <cmath>

using modOpenGL::RGB;

namespace {

constexpr int kTolerancia = 6; // of 255: blending and interpolation in 8 bits
constexpr int kGris = 0x808080;

class CapasGL : public VentanaGL
{
protected:
    // The observer in the middle of the surface, on bare grey ground.
    static EscenaMapa Escena()
    {
        EscenaMapa e;
        e.vista = {-3.7038, 40.4168, 6, kAncho, kAlto};
        e.tieneObs = true;
        e.obsLat = 40.4168;
        e.obsLon = -3.7038;
        e.fecha = {2026, 8, 12};
        e.juliano = JulianoDeLaInterfaz(e.fecha, 12.0, 2.0);
        return e;
    }

    template <typename Pintor> static QImage Pintar(Pintor pintor, const EscenaMapa& e)
    {
        modOpenGL::PrepararViewport(kAncho, kAlto);
        {
            LienzoGL lienzo;
            pintor(lienzo, e);
        }
        modOpenGL::PresentarFrame();
        return modOpenGL::LeerFrame();
    }

    static void EsperarColor(const QImage& imagen, int x, int y, std::int32_t color, const char* frase)
    {
        const QRgb c = imagen.pixel(x, y);
        EXPECT_NEAR(qRed(c), color & 255, kTolerancia) << frase << " at " << x << ',' << y;
        EXPECT_NEAR(qGreen(c), (color >> 8) & 255, kTolerancia) << frase << " at " << x << ',' << y;
        EXPECT_NEAR(qBlue(c), (color >> 16) & 255, kTolerancia) << frase << " at " << x << ',' << y;
    }
};

// Grey ground under a colour of this opacity.
std::int32_t SobreGris(double r, double g, double b, double a)
{
    const auto canal = [a](double v) {
        return static_cast<int>(std::lround(v * 255.0 * a + 128.0 * (1.0 - a)));
    };
    return RGB(canal(r), canal(g), canal(b));
}

} // namespace

TEST_F(CapasGL, LasDireccionesLlevanSuColor)
{
    auto e = Escena();
    e.ahora = {90.0, 3.0, 180.0, -3.0, 45.0, 315.0, -1.0, -1.0};
    const QImage imagen = Pintar(capas::PintarDirecciones, e);
    EsperarColor(imagen, 250, 120, RGB(255, 160, 0), "the Sun, due east, 4 pixels wide");
    EsperarColor(imagen, 250, 118, RGB(255, 160, 0), "its upper edge");
    EXPECT_EQ(Pixel(imagen, 250, 114), kGris);
    EsperarColor(imagen, 160, 200, RGB(200, 200, 255), "the Moon, due south");
    EXPECT_NE(Pixel(imagen, 160, 40), kGris) << "its stroke to the north";
    EsperarColor(imagen, 160 + 60, 120 - 60, RGB(255, 215, 0), "sunrise, north-east");
    EsperarColor(imagen, 160 - 60, 120 - 60, RGB(255, 80, 30), "sunset, north-west");
    EXPECT_EQ(Pixel(imagen, 60, 120), kGris) << "nothing due west";
}

TEST_F(CapasGL, ElHaloSeMezclaConElMapa)
{
    auto e = Escena();
    e.ahora.SolAzActual = 90.0;
    e.ahora.SolAltActual = 1.0;
    e.ahora.SolAzOrto = 90.0;
    const QImage imagen = Pintar(capas::PintarDirecciones, e);
    EsperarColor(imagen, 130, 120, SobreGris(1.0, 0.6, 0.0, 0.45), "inside");
    EXPECT_EQ(Pixel(imagen, 160 - 70, 120), kGris) << "outside its 65 pixels";
}

TEST_F(CapasGL, LasMarcas)
{
    auto e = Escena();
    e.tieneTgt = e.mostrarObjetivo = true;
    modMap::PixelVistaALonLat(e.vista, 260, 60, e.tgtLon, e.tgtLat);
    const QImage imagen = Pintar(
        [](LienzoMapa& l, const EscenaMapa& s) {
            capas::PintarObservador(l, s);
            capas::PintarObjetivo(l, s);
        },
        e);
    EsperarColor(imagen, 164, 120, RGB(220, 30, 30), "observer");
    EsperarColor(imagen, 264, 60, RGB(30, 90, 220), "target");
    EXPECT_EQ(Pixel(imagen, 172, 120), kGris);
}

TEST_F(CapasGL, LaNocheOscureceSuMitad)
{
    auto e = Escena();
    e.vista = {0.0, 0.0, 2, kAncho, kAlto};
    e.terminador = true;
    e.fecha = {2026, 6, 21};
    e.juliano = JulianoDeLaInterfaz(e.fecha, 12.0, 0.0); // the Sun stands over longitude 0
    const QImage lisa = Pintar(capas::PintarTerminador, e);
    double alt = 0, az = 0;
    for (int y = 4; y < kAlto; y += 13)
        for (int x = 4; x < kAncho; x += 17) {
            double lon = 0, lat = 0;
            modMap::PixelVistaALonLat(e.vista, x, y, lon, lat);
            modAstro::AzAltCuerpo(e.juliano, lat, lon, false, alt, az);
            if (std::abs(alt) > 2.0) {
                EsperarColor(lisa, x, y, alt > 0.0 ? kGris : SobreGris(0.0, 0.0, 0.15, 0.32), "flat night");
            }
        }
    e.fasesTerminador = true;
    e.juliano = JulianoDeLaInterfaz(e.fecha, 0.0, 0.0); // midnight over longitude 0
    const QImage graduada = Pintar(capas::PintarTerminador, e);
    double lon = 0, lat = 0;
    modMap::PixelVistaALonLat(e.vista, 160, 200, lon, lat);
    modAstro::AzAltCuerpo(e.juliano, lat, lon, false, alt, az);
    ASSERT_LT(alt, -24.0);
    // 0.34 of the darkest colour over grey, then 0.32 of the flat night over that.
    const double gris = 128.0 / 255.0;
    const double rojo = gris * 0.66 * 0.68, azul = (gris * 0.66 + 0.12 * 0.34) * 0.68 + 0.15 * 0.32;
    EsperarColor(
        graduada, 160, 200,
        RGB(static_cast<int>(rojo * 255.0), static_cast<int>(rojo * 255.0), static_cast<int>(azul * 255.0)),
        "deep night");
}

TEST_F(CapasGL, LaSombraDelEclipse)
{
    auto e = Escena();
    e.juliano = JulianoDeLaInterfaz(e.fecha, 20.5, 2.0);
    e.vista.lat = 41.8167;
    e.vista.lon = -3.185;
    const QImage imagen = Pintar(capas::PintarEclipse2026, e);
    const double tres = 128.0 * 0.9 * 0.82 * 0.55;
    EsperarColor(imagen, 160, 120,
                 RGB(static_cast<int>(tres), static_cast<int>(tres), static_cast<int>(tres)),
                 "umbra, three discs deep");
    EXPECT_GT(qRed(imagen.pixel(5, 5)), static_cast<int>(tres) + 20) << "penumbra";
    EXPECT_LT(qRed(imagen.pixel(5, 5)), 128);
}

TEST_F(CapasGL, LaEscalaYElAviso)
{
    auto e = Escena();
    e.hayDescargas = true;
    e.descargas = 5;
    const QImage imagen = Pintar(
        [](LienzoMapa& l, const EscenaMapa& s) {
            capas::PintarAvisoDescargas(l, s);
            capas::PintarEscala(l, s);
        },
        e);
    EsperarColor(imagen, 70, 91, RGB(255, 190, 65), "upper rule of the notice");
    EsperarColor(imagen, 70, 148, RGB(255, 190, 65), "lower rule");
    EsperarColor(imagen, 60, 120, SobreGris(0.04, 0.055, 0.085, 0.82), "its ground");
    EsperarColor(imagen, 20, 240 - 12 - 20, RGB(255, 255, 255), "the bar");
    EsperarColor(imagen, 12, 240 - 12 - 23, RGB(255, 255, 255), "its tick");
}

TEST_F(CapasGL, SinTexturaNiBufferNuevoEnUnaVistaQuieta)
{
    auto e = Escena();
    e.terminador = e.fasesTerminador = e.viaLactea = true;
    e.ahora = {90.0, 3.0, 180.0, -3.0, 45.0, 315.0, 10.0, 200.0};
    e.atribucion = QStringLiteral("credito");
    for (int i = 0; i < 3; ++i) // both frame buffers, the letters, the batch at its full size
        Pintar(capas::PintarCapas, e);
    const auto antes = modOpenGL::Contadores();
    for (int i = 0; i < 5; ++i)
        Pintar(capas::PintarCapas, e);
    const auto despues = modOpenGL::Contadores();
    EXPECT_EQ(despues.texturasCreadas, antes.texturasCreadas);
    EXPECT_EQ(despues.buffersCreados, antes.buffersCreados);
    EXPECT_LE(despues.dibujos, 12);
}

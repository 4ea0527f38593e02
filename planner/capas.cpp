// capas: their order, and the marks.
#include "capas.h"

using modOpenGL::RGB;

namespace capas {

namespace {

constexpr double kRadioMarca = 6.0; // pixels
constexpr std::int32_t kObservador = RGB(220, 30, 30);
constexpr std::int32_t kObjetivo = RGB(30, 90, 220);
constexpr std::int32_t kNegro = RGB(0, 0, 0);

QPoint Pixel(const modMap::VistaMapa& vista, double lat, double lon)
{
    std::int32_t x = 0, y = 0;
    modMap::LonLatAPixelVista(vista, lon, lat, x, y);
    return {x, y};
}

} // namespace

void PintarCapas(LienzoMapa& lienzo, const EscenaMapa& e)
{
    PintarEclipse2026(lienzo, e);
    PintarTerminador(lienzo, e);
    PintarViaLactea(lienzo, e);
    PintarLineaObjetivo(lienzo, e);
    PintarDirecciones(lienzo, e);
    PintarTrayectorias(lienzo, e);
    PintarObservador(lienzo, e);
    PintarObjetivo(lienzo, e);
    PintarAvisoDescargas(lienzo, e);
    PintarEscala(lienzo, e);
    PintarAtribucion(lienzo, e);
}

QPoint PixelObservador(const EscenaMapa& e)
{
    return Pixel(e.vista, e.obsLat, e.obsLon);
}

QPoint PixelObjetivo(const EscenaMapa& e)
{
    return Pixel(e.vista, e.tgtLat, e.tgtLon);
}

void PintarLineaObjetivo(LienzoMapa& lienzo, const EscenaMapa& e)
{
    if (!e.mostrarObjetivo || !e.tieneTgt || !e.tieneObs)
        return;
    const QPoint o = PixelObservador(e), t = PixelObjetivo(e);
    lienzo.Linea(o.x(), o.y(), t.x(), t.y(), kObjetivo, 1.0);
}

void PintarObservador(LienzoMapa& lienzo, const EscenaMapa& e)
{
    if (!e.tieneObs)
        return;
    const QPoint o = PixelObservador(e);
    lienzo.Pin(o.x(), o.y(), kRadioMarca, kObservador, kNegro);
}

void PintarObjetivo(LienzoMapa& lienzo, const EscenaMapa& e)
{
    if (!e.mostrarObjetivo || !e.tieneTgt)
        return;
    const QPoint t = PixelObjetivo(e);
    lienzo.Pin(t.x(), t.y(), kRadioMarca, kObjetivo, kNegro);
}

} // namespace capas

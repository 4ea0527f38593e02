#include "modMap.h"

#include "modDescargas.h"
#include "modGeo.h"
#include "modHTTP.h"
#include "modOpenGL.h"

#include <algorithm>

namespace modMap {
namespace {

constexpr std::int16_t kZoomMapa = 2; // below it the globe shows
constexpr int kNivelesAncestro = 6;
constexpr double kLadoHijo = modGeo::kLadoTile / 2.0;

QString& Diagnostico()
{
    static QString linea;
    return linea;
}

} // namespace

std::vector<TileVisible> TilesDeVista(const VistaMapa& vista)
{
    std::vector<TileVisible> tiles;
    if (vista.zoom < kZoomMapa || vista.ancho <= 0 || vista.alto <= 0)
        return tiles;
    double cx = 0;
    double cy = 0;
    modGeo::LonLatAPixel(vista.lon, vista.lat, vista.zoom, cx, cy);
    const double izquierda = cx - vista.ancho / 2.0;
    const double arriba = cy - vista.alto / 2.0;
    std::int32_t x0 = 0;
    std::int32_t y0 = 0;
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    std::int32_t n = 0;
    RangoTilesVista(vista, x0, y0, x1, y1, n);
    y0 = std::max(y0, 0);
    y1 = std::min(y1, n - 1);
    for (std::int32_t y = y0; y <= y1; ++y)
        for (std::int64_t x = x0; x <= x1; ++x)
            tiles.push_back({vista.zoom, ColumnaEnMundo(static_cast<std::int32_t>(x), n), y,
                             static_cast<float>(static_cast<double>(x) * modGeo::kLadoTile - izquierda),
                             static_cast<float>(y * modGeo::kLadoTile - arriba)});
    return tiles;
}

void CargarTilesVisibles(const VistaMapa& vista)
{
    int bien = 0;
    int sinFichero = 0;
    int sinTextura = 0;
    for (const TileVisible& t : TilesDeVista(vista)) {
        if (!modHTTP::TileEnCache(t.z, t.x, t.y))
            ++sinFichero;
        else if (modOpenGL::ObtenerTextura(modHTTP::RutaTile(t.z, t.x, t.y)) != 0)
            ++bien;
        else
            ++sinTextura;
    }
    Diagnostico() = QStringLiteral("z=%1 OK:%2 dl_fail:%3 paint_fail:%4")
                        .arg(vista.zoom)
                        .arg(bien)
                        .arg(sinFichero)
                        .arg(sinTextura);
}

QString LineaDiagnosticoTiles()
{
    return Diagnostico();
}

void PintarMapa(const VistaMapa& vista)
{
    modOpenGL::PrepararViewport(vista.ancho, vista.alto);
    for (const TileVisible& t : TilesDeVista(vista)) {
        const std::int32_t textura = modOpenGL::BuscarTextura(modHTTP::RutaTile(t.z, t.x, t.y));
        if (textura != 0)
            modOpenGL::DibujarTesela(textura, t.sx, t.sy);
        else
            PintarTileAusente(t.z, t.x, t.y, t.sx, t.sy);
    }
}

void PintarTileAusente(std::int16_t z, std::int32_t x, std::int32_t y, float sx, float sy)
{
    for (int d = 1; d <= kNivelesAncestro && d <= z; ++d) {
        const std::int32_t f = 1 << d;
        const std::int32_t textura =
            modOpenGL::BuscarTextura(modHTTP::RutaTile(static_cast<std::int16_t>(z - d), x / f, y / f));
        if (textura == 0)
            continue;
        const double parte = 1.0 / f;
        const double s = (x % f) * parte;
        const double t = (y % f) * parte;
        modOpenGL::DibujarTeselaParcial(textura, sx, sy, modGeo::kLadoTile, modGeo::kLadoTile, s, t,
                                        s + parte, t + parte);
        return;
    }
    for (std::int32_t j = 0; j < 2; ++j)
        for (std::int32_t i = 0; i < 2; ++i) {
            const std::int32_t textura = modOpenGL::BuscarTextura(
                modHTTP::RutaTile(static_cast<std::int16_t>(z + 1), 2 * x + i, 2 * y + j));
            if (textura != 0)
                modOpenGL::DibujarTeselaParcial(textura, sx + i * kLadoHijo, sy + j * kLadoHijo, kLadoHijo,
                                                kLadoHijo, 0.0, 0.0, 1.0, 1.0);
        }
}

void EncolarTilesVisibles(const VistaMapa& vista)
{
    for (const TileVisible& t : TilesDeVista(vista)) {
        const QString ruta = modHTTP::RutaTile(t.z, t.x, t.y);
        if (modOpenGL::BuscarTextura(ruta) == 0 && !modHTTP::TileEnCache(t.z, t.x, t.y))
            modDescargas::EncolarDescarga(modHTTP::UrlTile(t.z, t.x, t.y), ruta);
    }
}

void LiberarTexturasMapa()
{
    modOpenGL::VaciarTexturas();
}

} // namespace modMap

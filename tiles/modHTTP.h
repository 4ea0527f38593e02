// modHTTP: where tiles come from and where they are kept.
//
// Five public sources of raster tiles, none with a key or a login, and one directory tree that holds every
// tile ever fetched. The tree has no index and no dates of its own: a tile on disk is used for ever, and is
// what the map shows without a network.
//
// Arguments come in the order z, x, y whatever order a server wants; x is the column wrapped into the world.
// Paths use the platform's separator. Nothing here opens a connection, and nothing throws.
//
// Mirror: with the environment variable QUINTALUZ_TESELAS set to a base address when IniciarHTTP runs, every
// source is asked there, as <base>/<key><path of the source>; for http://127.0.0.1:8000 for example
//   http://127.0.0.1:8000/osm/6/31/24.png
//   http://127.0.0.1:8000/topo/6/31/24.png
//   http://127.0.0.1:8000/esri/ArcGIS/rest/services/World_Imagery/MapServer/tile/6/24/31
//   http://127.0.0.1:8000/lp/wmts/epsg3857/best/.../GoogleMapsCompatible_Level8/6/24/31.png
//   http://127.0.0.1:8000/dem/elevation-tiles-prod/terrarium/6/31/24.png
#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace modHTTP {

struct FuenteTeselas
{
    const char* clave;      // directory in the cache
    const char* servidor;   // scheme and host
    const char* ruta;       // path, up to the first number
    const char* extension;  // after the last number
    bool filaAntes;         // the address has z, y, x
    std::int64_t minimo;    // bytes from which a file on disk counts as a tile
    const char* atribucion; // credit that the server's rules ask for, "" for none on the map
};

enum Fuente
{
    kOsm,
    kTopo,
    kEsri,
    kLuces,
    kElevacion,
    kFuentes
};

// The table, by Fuente. Base maps come first, in the order of the provider index.
const std::array<FuenteTeselas, kFuentes>& TablaFuentes();

// Sets the cache root, adding the separator at its end if it has none, and reads the mirror. An empty text
// means no cache: nothing counts as cached and nothing is stored.
void IniciarHTTP(const QString& carpeta);
void CerrarHTTP();

// The root with its separator; empty before IniciarHTTP.
QString RutaCacheBase();

// The selected base map, by modGeo::ProveedorMapa: 1 "topo", 2 "esri", any other "osm".
Fuente FuenteMapa();
QString ClaveProveedorTile();
QString AtribucionMapa(); // credit of the selected base map, as shown on it

// Address of a tile; the short forms are the selected base map's, the night lights' and the elevation's.
QString UrlFuente(Fuente fuente, std::int16_t z, std::int32_t x, std::int32_t y);
QString UrlTile(std::int16_t z, std::int32_t x, std::int32_t y);

// File of a tile: <root><key>/<z>/<x>/<y>.png, always .png whatever the content. It is also the tile's
// identity in the download queue and in the texture registry.
QString RutaFuente(Fuente fuente, std::int16_t z, std::int32_t x, std::int32_t y);
QString RutaTile(std::int16_t z, std::int32_t x, std::int32_t y);
QString RutaTileLP(std::int16_t z, std::int32_t x, std::int32_t y);
QString RutaTileDEM(std::int16_t z, std::int32_t x, std::int32_t y);

// A plain file of at least 101 bytes (night lights: 51) stands there. Its content is not looked at.
bool TileEnCache(std::int16_t z, std::int32_t x, std::int32_t y);
bool TileLPEnCache(std::int16_t z, std::int32_t x, std::int32_t y);
bool TileDEMEnCache(std::int16_t z, std::int32_t x, std::int32_t y);

// The path, made absolute and plain, lies under the cache root.
bool DentroDeCache(const QString& ruta);

// Creates what is missing of a directory path, or of the directories of a file path. A failure is silent:
// the file then does not open.
void AsegurarCarpeta(const QString& ruta);
void CrearCarpetasDeRuta(const QString& ruta);

// Writes a tile at its final path, from the first byte on and without cutting the file: a longer old file
// keeps its tail. False if the path leaves the cache, the file does not open or a write fails; after a
// failed write the file is removed.
bool EscribirTesela(const QString& ruta, const QByteArray& cuerpo);

} // namespace modHTTP

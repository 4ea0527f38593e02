// modMap: the base map on the OpenGL surface.
//
// Two steps that never mix: CargarTilesVisibles reads the disk into textures, PintarMapa draws textures and
// touches neither disk nor network. A tile that is not there yet is stood in for by what the texture
// registry still holds: its nearest ancestor up to six levels above, stretched, or else its four children.
// The key of a texture is the tile's path in the cache.
#pragma once

#include "VistaMapa.h"

#include <QString>

#include <cstdint>
#include <vector>

namespace modMap {

// A tile that a view shows: its numbers, the column wrapped into the world, and where its corner stands in
// the picture, in pixels. A wide view at a low zoom shows one tile several times.
struct TileVisible
{
    std::int16_t z = 0;
    std::int32_t x = 0;
    std::int32_t y = 0;
    float sx = 0;
    float sy = 0;
};

// The tiles of a view in the order of every walk: rows from the top, each from the left; rows outside the
// world are left out. Below zoom 2, where the globe shows, there are none.
std::vector<TileVisible> TilesDeVista(const VistaMapa& vista);

// Loads the visible tiles that are on disk; decoding shares the machine's cores. Writes the diagnosis.
void CargarTilesVisibles(const VistaMapa& vista);

// What the last load found, as "z=6 OK:12 dl_fail:3 paint_fail:0": tiles with a texture, tiles not on disk,
// files that gave no texture. A tile shown twice counts twice. Empty before the first load.
QString LineaDiagnosticoTiles();

// Starts a frame and draws the visible tiles; overlays follow, and whoever called presents the frame. Below
// zoom 2 the frame stays empty.
void PintarMapa(const VistaMapa& vista);

// The stand-in for tile (z, x, y), x wrapped, with its corner at (sx, sy); draws nothing if there is none.
void PintarTileAusente(std::int16_t z, std::int32_t x, std::int32_t y, float sx, float sy);

// Queues every visible tile that has no texture and no file, rows from the top, each from the left. Below
// zoom 2 none.
void EncolarTilesVisibles(const VistaMapa& vista);

// Forgets all tile textures: after a change of base map, after files were deleted, at the end.
void LiberarTexturasMapa();

} // namespace modMap

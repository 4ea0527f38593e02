// cacheGlobo: very large images decoded and scaled once, then kept as raw pixels on disk.
//
// The file, all integers little-endian:
//   offset  size              field
//   0       4                 width, signed
//   4       4                 height, signed
//   8       4                 the bytes "RGBA"
//   12      width*height*4    pixels R, G, B, A, rows from the top
// It is valid only if the mark matches, both sides are 1 to 16384 and its length is exactly
// 12 + width*height*4. Its name carries the source's length in bytes, which is the whole of the
// invalidation; files of other lengths are left alone.
#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace cacheGlobo {

struct Imagen
{
    int ancho = 0;
    int alto = 0;
    std::vector<std::uint8_t> bytes; // as in modGDIPlus
};

// <carpeta>/cache_globo_<base name>_<length>_<maxAncho>x<maxAlto>.raw, the length being 0 for a missing
// source.
QString NombreCache(const QString& carpeta, const QString& origen, int maxAncho, int maxAlto);

// False for an absent or invalid file; `imagen` is then untouched.
bool LeerCache(const QString& ruta, Imagen& imagen);

// Writes the file, making its folder if missing. On failure false, and no file is left.
bool EscribirCache(const QString& ruta, const Imagen& imagen);

// Pixels of `origen` at maxAncho x maxAlto at most: from a valid cache file in `carpeta`, otherwise decoded
// and the file written; a cache that cannot be written is no failure. False if the image cannot be read.
bool CargarConCache(const QString& carpeta, const QString& origen, int maxAncho, int maxAlto, Imagen& imagen);

} // namespace cacheGlobo

// modGDIPlus: the image reader under the OpenGL surface.
//
// Buffers hold width * height * 4 bytes in the order R, G, B, A (not premultiplied), rows from the top, no
// padding. What a file is, is decided by its content, never by its name: a tile named .png may be a JPEG.
// PNG, JPEG, BMP and GIF (first picture) are read. Functions answer false on failure, leave their outputs
// as they were and tell the step in UltimoErrorGDIPlus as "<operation>: <step> status=<n>", where n is
//   2 bad arguments   3 out of memory or too large   7 damaged content   10 no such file
//   13 unknown content
// LeerTamanoImagen and CargarBytesRGBA may run on any thread; the error text is kept
// per thread.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

class QPainter;

namespace modGDIPlus {

// Checks that PNG and JPEG can be decoded: "GdiplusStartup status=13" if not. A second call changes
// nothing.
bool IniciarGDIPlus();
void CerrarGDIPlus();

QString UltimoErrorGDIPlus();

// Size in pixels from the header alone.
bool LeerTamanoImagen(const QString& ruta, int& ancho, int& alto);

// Decodes a file. With ladoMaximo above 0 an image with a longer side is refused (status 3) before a
// single pixel is decoded.
bool CargarBytesRGBA(const QString& ruta, int& ancho, int& alto, std::vector<std::uint8_t>& bytes,
                     int ladoMaximo = 0);

// Decodes and, if the image is larger than the maxima in either direction, scales it down by one factor
// for both sides, every source pixel counting; never enlarged. Sides are rounded to the nearest pixel,
// halves to even, at least 1. Images up to 1 GiB decoded are accepted here.
bool ObtenerBytesRGBAEscalado(const QString& ruta, int maxAncho, int maxAlto, int& ancho, int& alto,
                              std::vector<std::uint8_t>& bytes);

// Draws a buffer at the origin of the painter. False if the buffer is too short for the size.
bool DibujarBytesRGBA(QPainter& p, int ancho, int alto, const std::vector<std::uint8_t>& bytes);

} // namespace modGDIPlus

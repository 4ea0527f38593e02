// trazo: strokes, discs and quads as triangles, with smooth edges.
//
// Core OpenGL draws neither wide nor smooth lines, and drivers differ where they do. So every shape is cut
// into triangles here, and an edge is a strip one device pixel wide over which opacity falls to 0, centred
// on the true edge. Pure functions over a growing mesh: no context, no state; the same pixels everywhere.
//
// Coordinates are picture pixels, x right, y down, with fraction; a coordinate that is not finite, or a
// size that is not above 0, adds nothing.
#pragma once

#include <cstdint>
#include <vector>

namespace trazo {

// Red, green, blue and opacity, one byte each in this order in memory.
struct Tinta
{
    std::uint8_t r = 255, g = 255, b = 255, a = 255;
    bool operator==(const Tinta&) const = default;
};

struct Vertice
{
    float x, y; // picture pixels
    float u, v; // texture coordinates
    Tinta tinta;
};

// Triangles over shared vertices, three indices each.
struct Malla
{
    std::vector<Vertice> vertices;
    std::vector<std::uint32_t> indices;
};

// How the shapes of one frame are cut.
struct Lapiz
{
    float pixel = 1.0F;   // side of a device pixel in picture pixels: 1 / device pixel ratio
    bool suave = true;    // false: hard edges, no ramp
    float uBlanco = 0.0F; // texture coordinates of an opaque white texel, for untextured shapes
    float vBlanco = 0.0F;
    float ancho = 1e6F; // visible picture; lines are cut to it, so that far ends keep their precision
    float alto = 1e6F;
};

struct Punto
{
    double x, y;
};

// Opacity 0 to 1 (cut to that range) on a packed colour with red in the low byte.
Tinta TintaDe(std::int32_t color, double opacidad = 1.0);

// Cuts the segment to the rectangle (x0, y0)-(x1, y1) by Liang and Barsky (ACM TOG 3, 1984, p. 1).
// False, and nothing changed, if no part lies inside.
bool RecortarSegmento(Punto& a, Punto& b, double x0, double y0, double x1, double y1);

// Straight line with square ends at the two points. Its summed opacity across is its width, also below one
// pixel, where the middle fades instead. Two equal points add nothing.
void Linea(Malla& m, const Lapiz& lapiz, Punto a, Punto b, double ancho, Tinta tinta);

// Filled regular polygon of `segmentos` sides (3 or more) with its corners on the circle.
void Disco(Malla& m, const Lapiz& lapiz, Punto centro, double radio, int segmentos, Tinta tinta);

// Ring of the given width centred on that same polygon.
void Anillo(Malla& m, const Lapiz& lapiz, Punto centro, double radio, double ancho, int segmentos,
            Tinta tinta);

// Quad by its corners in order around it, one ink per corner. Hard edges: neighbours that share an edge
// leave neither gap nor seam.
void Cuadrilatero(Malla& m, const Lapiz& lapiz, const Punto (&esquinas)[4], const Tinta (&tintas)[4]);

// Upright textured rectangle: (u0, v0) at the top left corner, (u1, v1) at the bottom right.
void Estampa(Malla& m, Punto origen, double ancho, double alto, float u0, float v0, float u1, float v1,
             Tinta tinta);

} // namespace trazo

// disposicion: where the five parts of the planner's window stand.
//
// The two frames hold the sides; map, timeline and scrub strip share the middle, one under the other.
// Sizes are told in twips (1/1440 inch), 15 to a logical pixel, and answered in logical pixels.
#pragma once

#include <QRect>
#include <QSize>

#include <optional>

namespace disposicion {

inline constexpr int kTwipsPorPixel = 15;
inline constexpr int kAnchoMinimo = 8000;  // twips; a narrower client area is left as it is
inline constexpr int kAltoMinimo = 3000;   // twips
inline constexpr int kAltoTimeline = 3090; // twips
inline constexpr int kAltoScrub = 293;     // twips
inline constexpr int kMapaMinimo = 200;    // twips, in either direction

struct Disposicion
{
    QRect frame1; // left: place, target, date, layers
    QRect frame2; // right: Sun and Moon
    QRect mapa;
    QRect timeline;
    QRect scrub;
};

// Places the parts in a client area of the given size.
//   cliente          logical pixels
//   ancho1, ancho2   widths of the two frames, logical pixels
// Nothing when the area is too small to move anything.
std::optional<Disposicion> CalcularDisposicion(QSize cliente, int ancho1, int ancho2);

} // namespace disposicion

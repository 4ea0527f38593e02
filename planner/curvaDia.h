// curvaDia: an antialiased line through one height per pixel column.
//
// The curves of a day are gentle functions of time, so the line's coverage of a column is known without
// stroking a path: a bar as high as the line is thick, stretched by its slope. Several times faster than a
// path stroke, and the same pixels everywhere.
#pragma once

#include <QImage>
#include <QRgb>

#include <span>

namespace curvaDia {

// Blends the line over a layer of format ARGB32_Premultiplied. What leaves the layer is cut off.
//   y       middle of the line at the middle of each column, pixels of the layer from its top edge; as
//           many values as columns are drawn
//   grosor  pixels
//   color   not premultiplied; its alpha counts
void Trazar(QImage& capa, std::span<const double> y, double grosor, QRgb color);

} // namespace curvaDia

// comparar: golden pictures. A picture is held against tests/patrones/<name>.png.
#pragma once

#include <QImage>
#include <QString>

#include <gtest/gtest.h>

namespace comparar {

// A channel may be this far off without counting: other versions of the software renderer and of the font
// rasteriser round soft edges otherwise, by up to a tenth of the range.
inline constexpr int kUmbralCanal = 24; // of 255

// Share of pixels that may count. Pictures of one renderer are equal, save for the decimal separator, which
// follows the region: comma and point are equally wide in DejaVu Sans, so a picture differs by 2 to 8
// pixels. A direction of the map in another colour, 3 pixels wide and 200 long, is 0.24 %.
inline constexpr double kFraccionMaxima = 0.001;

// Mean difference of a channel over the whole picture, of 255: a ground slightly off everywhere.
inline constexpr double kMediaMaxima = 1.0;

// Success when the pattern has the picture's size and the differences stay within the three limits. A miss
// leaves <name>.actual.png and, for equal sizes, <name>.diff.png (white: counts) in the build tree's folder
// patrones and says where. With ACTUALIZAR_PATRONES=1 in the environment the picture becomes the pattern,
// for somebody to look at before it is committed.
::testing::AssertionResult Patron(const QImage& imagen, const QString& nombre);

} // namespace comparar

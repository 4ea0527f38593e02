// modColor: colours as the settings file and the drawing tables hold them, one 32-bit number with red in
// the low byte, green and blue above it, the high byte 0.
#pragma once

#include <QColor>

#include <cstdint>

namespace modColor {

// Channels 0 to 255.
constexpr std::uint32_t Empaquetar(std::uint32_t r, std::uint32_t g, std::uint32_t b)
{
    return r | (g << 8) | (b << 16);
}

inline std::uint32_t Empaquetar(const QColor& c)
{
    return Empaquetar(static_cast<std::uint32_t>(c.red()), static_cast<std::uint32_t>(c.green()),
                      static_cast<std::uint32_t>(c.blue()));
}

inline QColor Desempaquetar(std::uint32_t c)
{
    return QColor::fromRgb(static_cast<int>(c & 255U), static_cast<int>((c >> 8) & 255U),
                           static_cast<int>((c >> 16) & 255U));
}

} // namespace modColor

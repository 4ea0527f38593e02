// color: packed colours, 32-bit integers with red in the low byte.
//
//   bits 0-7 red, 8-15 green, 16-23 blue; the rest is 0. Opacity travels apart, 0 to 1.
#pragma once

#include <cstdint>

// Some platforms define RGB as a macro with this very meaning; a function serves every one of them.
#ifdef RGB
#undef RGB
#endif

namespace modOpenGL {

// Packs three components, each 0 to 255.
constexpr std::int32_t RGB(int r, int g, int b)
{
    return static_cast<std::int32_t>((r & 255) | ((g & 255) << 8) | ((b & 255) << 16));
}

// Splits a packed colour into components 0 to 1: each byte divided by 255.
constexpr void ColorAFloat(std::int32_t color, float& r, float& g, float& b)
{
    r = static_cast<float>(color & 255) / 255.0F;
    g = static_cast<float>((color >> 8) & 255) / 255.0F;
    b = static_cast<float>((color >> 16) & 255) / 255.0F;
}

} // namespace modOpenGL

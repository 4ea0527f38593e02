// paleta: the colours of the interface, in one place.
//
// Neutral dark greys carry the controls so that map, curves and numbers carry the colour, and eyes used
// to the night are spared. One warm accent marks focus and what is switched on. Every text colour
// reaches a contrast of at least 4.5 to 1 on the surface that it stands on.
#pragma once

#include <QColor>

namespace paleta {

inline constexpr QColor kVentana{30, 31, 33};      // behind everything
inline constexpr QColor kPanel{38, 39, 42};        // grouped controls, menus
inline constexpr QColor kCampo{23, 24, 26};        // fields that take text, lists
inline constexpr QColor kBoton{54, 56, 60};        // push buttons
inline constexpr QColor kBotonEncima{66, 68, 73};  // the same under the pointer
inline constexpr QColor kBorde{70, 73, 78};        // hairlines
inline constexpr QColor kTexto{222, 223, 225};     // values
inline constexpr QColor kTextoTenue{160, 163, 168}; // captions
inline constexpr QColor kTextoInerte{112, 115, 120}; // disabled
inline constexpr QColor kAcento{226, 160, 63};     // focus, checked, section heads
inline constexpr QColor kAcentoOscuro{120, 84, 32}; // selection
inline constexpr QColor kMapaVacio{127, 127, 127}; // the map where no tile has come

} // namespace paleta

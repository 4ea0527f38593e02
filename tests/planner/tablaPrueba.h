// tablaPrueba: a language table of the tests' own, so that texts can be compared whole.
//
// Each text is its key's last words in short; values are easy to tell from captions. Call before the first
// Traducir of the process; further calls do nothing.
#pragma once

namespace tablaPrueba {

void Cargar();

} // namespace tablaPrueba

// modGrafico: the one look of all windows, and their fonts.
//
// Roles that a window gives its labels by their property "rol":
//   "seccion"   head of a group of controls, in the accent colour (also any label named "cabezaSeccion")
//   "leyenda"   caption, quieter than a value
//   "estado"    status line of a tool
// A label without one is a value. A QPushButton with the property "rol" = "principal" is the window's main
// action.
#pragma once

#include <QFont>

class QApplication;
class QWidget;

namespace modGrafico {

// The font that windows are designed with; a control that still has it gets the modern one at load.
inline constexpr char kFuenteDiseno[] = "MS Sans Serif";
inline constexpr char kFuenteModerna[] = "Verdana";
inline constexpr int kPixelesFuente = 12; // logical pixels

QFont FuenteDiseno();

// The first thing of a window's load: the window and those of its controls whose family is the design font
// get the modern one; sizes stay. "picMap", "picTimeline" and "picScrub" draw their own text and keep theirs,
// as does a control with any other font.
void AplicarFuentes(QWidget* ventana);

// Palette, style sheet and font of the whole application, once, before the first window. Every line is
// drawn in whole logical pixels or as a vector, so it stays sharp at any scale.
void AplicarTema(QApplication& aplicacion);

// A font whose characters all have one width, for lists in fixed columns.
QFont FuenteFija();

} // namespace modGrafico

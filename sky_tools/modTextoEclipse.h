// modTextoEclipse: the circumstances of an eclipse as the line that follows a new or a full Moon.
//
// The words are Spanish in every language. Clock times are local; the magnitude has two decimals with the
// system's separator.
#pragma once

#include "contextoBusqueda.h"

#include <QString>

namespace modTextoEclipse {

//   jd   Julian day (UT) of new Moon
// Empty when there is no eclipse; "(posible eclipse de Sol)" without an observer; "Eclipse de Sol (no
// visible aqui)"; else "Eclipse de Sol parcial mag 0.93 19:34-21:25".
QString CircunstanciasEclipseSol(const ContextoBusqueda& c, double jd);

//   jd   Julian day (UT) of full Moon
// Empty when there is no eclipse; else "Eclipse de Luna total mag 1.15 09:51-13:18", without a magnitude
// when penumbral, and with an observer " (visible)", " (parcialmente visible)" or " (Luna bajo el
// horizonte)".
QString CircunstanciasEclipseLuna(const ContextoBusqueda& c, double jd);

} // namespace modTextoEclipse

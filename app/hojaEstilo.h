// hojaEstilo: the application's style sheet, written with the colours of paleta.
#pragma once

#include <QString>

namespace hojaEstilo {

QString Texto();

} // namespace hojaEstilo

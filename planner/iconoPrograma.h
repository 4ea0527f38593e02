// iconoPrograma: the program's icon, a waxing Moon on the night, painted for every size.
#pragma once

#include <QIcon>

QIcon IconoPrograma();

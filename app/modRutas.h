// modRutas: where the program's data lies.
//
// Every data path starts at one directory, so that a portable copy, an installed one and a test each see
// their own files. Paths are QDir style (forward slashes on every system) unless told otherwise.
#pragma once

#include <QString>

namespace modRutas {

// The data directory, absolute, without a trailing separator: the environment variable
// QUINTALUZ_APPPATH when it is set and not empty, otherwise the directory of the executable.
QString AppPath();

// AppPath joined with a relative path whose separators may be "/" or "\" and which may begin with one.
// An empty text gives AppPath itself. Nothing is looked up on disk.
QString RutaDatos(QStringView relativa);

} // namespace modRutas

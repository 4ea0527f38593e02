// modIni: "[Section]" and "Key=Value" text files, read and written so that a person's own lines survive.
//
// Rules, those of the classic profile files:
//   - sections and keys compare without case; of two equal ones the first holds
//   - a section head is "[name]" (what follows the "]" is ignored); a line before any head belongs to none
//   - the value is all after the first "=", without the blanks around it and without one pair of equal
//     quotes, ' or ", around the rest; at most 511 characters of it are answered
//   - ";" begins a comment line; comments, unknown lines and empty ones stay, in their order
//   - the file is UTF-8 where valid, else Windows-1252; it keeps its encoding (and byte order mark) as long
//     as every character fits; a new file is UTF-8. Lines end in CR LF when written.
// Nothing here throws or shows anything.
#pragma once

#include "modCodificacion.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace modIni {

inline constexpr int kValorMaximo = 511; // characters

// A file in memory, line by line as it stands.
struct Documento
{
    std::vector<QString> lineas;
    bool marcaOrden = false;  // begins with a UTF-8 byte order mark
    bool windows1252 = false; // was no valid UTF-8
};

Documento Analizar(QByteArrayView bytes);
QByteArray Componer(const Documento& documento);

// The value of a key, empty when nothing stands behind its "="; none when section or key is missing.
std::optional<QString> Valor(const Documento& documento, QStringView seccion, QStringView clave);

// Sets a value, in place where the key stands, else at the end of its section, else in a new section at
// the end of the file. Line ends inside the value become blanks; a value that reading would strip (blanks
// or quotes at both ends) is put in quotes. False leaves the document as it was: the section's name is empty
// or holds
// "]" or a line end, or the key is empty, begins with "[" or ";", holds "=" or a line end, or has blanks at
// its ends.
bool Poner(Documento& documento, QStringView seccion, QStringView clave, QStringView valor);

// False leaves `documento` empty: there is no such file, it cannot be read or is no text file of
// reasonable size (4 MiB).
bool Leer(const QString& ruta, Documento& documento);

// Writes the whole file aside and renames it; where no file can be made beside it, writes into the
// existing one and puts the old bytes back if that fails. An equal file is not touched. False: not
// saved, the old file is whole.
bool Guardar(const QString& ruta, const Documento& documento);

} // namespace modIni

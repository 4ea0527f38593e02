// modCodificacion: the bytes of our text files as text, and back.
//
// Files are UTF-8; older ones and those of a plain editor are Windows-1252. Which it is shows in the bytes:
// what is no valid UTF-8 is Windows-1252. The five bytes which that table leaves empty stand for the control
// characters of the same number, so every byte string survives the way there and back.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <vector>

namespace modCodificacion {

// Well-formed UTF-8: no overlong forms, no surrogates, at most U+10FFFF. The empty text is.
bool EsUtf8(QByteArrayView bytes);

// UTF-8 when valid, else Windows-1252. A leading byte order mark is dropped.
QString Decodificar(QByteArrayView bytes);

QString DeWindows1252(QByteArrayView bytes);

// False leaves `bytes` untouched: the text holds a character outside the table.
bool AWindows1252(QStringView texto, QByteArray& bytes);

// The lines of a text, ended by CR LF, LF or CR. No line for what follows the last line end when that is
// empty. The views live as long as the text.
std::vector<QStringView> Lineas(const QString& texto);

} // namespace modCodificacion

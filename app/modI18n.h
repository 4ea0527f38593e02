// modI18n: every visible text has a key; the tables of three languages give the words.
//
// A table is a flat file "recursos/lang_xx.ini" of key=value lines, UTF-8 (Windows-1252 when it is no
// valid UTF-8). "#" begins a comment line; a line without "=" is skipped; the last of two equal keys
// holds; blanks around the key and before the value are dropped. Spanish fills what another language
// lacks, an empty value included. The text of a missing key is the key in square brackets, so that a gap
// shows on the screen. Module state: the current language; one thread.
#pragma once

#include <QAnyStringView>
#include <QByteArrayView>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace modI18n {

using Tabla = QHash<QString, QString>;

// Makes a language current. The code is trimmed and lower-cased; anything but "es", "en", "fr" is "es".
// False: its table could not be read or is empty, and the texts are Spanish (or bracketed keys).
bool CargarIdioma(QStringView codigo);

// "es", "en" or "fr".
QString IdiomaActualCodigo();

// The text of a key in the current language, else in Spanish, else "[key]".
QString Traducir(QAnyStringView clave);

// The text with its placeholders filled: parameter i, counted from 1, replaces every "%i", in ascending
// order.
QString TraducirCon(QAnyStringView clave, const QStringList& parametros);

// The same, as one writes it: TraducirCon("main.dyn.cursor", lat, lon).
template <typename... Parametros> QString TraducirCon(QAnyStringView clave, const Parametros&... parametros)
{
    return TraducirCon(clave, QStringList{QString(parametros)...});
}

// The rules of a table's text, without files: never fails, skips damaged lines.
Tabla AnalizarTabla(QByteArrayView bytes);

// A table file under the data directory: at its relative path, then beside the executable by its name
// alone. None when neither can be opened.
std::optional<Tabla> LeerTablaIdioma(const QString& relativa);

} // namespace modI18n

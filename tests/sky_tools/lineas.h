// The lines of a result text, and the numbers in them, for tests.
#pragma once

#include <QString>
#include <QStringList>

// Every line must end in CR LF; the answer has them without it.
inline QStringList LineasDe(const QString& texto)
{
    QStringList lineas = texto.split(QStringLiteral("\r\n"));
    if (lineas.back().isEmpty()) {
        lineas.removeLast();
    }
    return lineas;
}

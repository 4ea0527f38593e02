// LineaEstado: the status line of a tool. It keeps what it says as a key with its parameters, so that it can
// say the same in another language.
#pragma once

#include <QLabel>
#include <QStringList>

class LineaEstado : public QLabel
{
    Q_OBJECT

public:
    explicit LineaEstado(QWidget* padre = nullptr);

    // Shows the text of a key, a string literal, with its placeholders filled.
    void Decir(const char* clave, const QStringList& parametros = {});
    void Callar();
    // The same again in the present language.
    void Retraducir();

private:
    const char* clave = nullptr; // null while it is silent
    QStringList parametros;
};

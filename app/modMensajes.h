// modMensajes: the one place that shows message boxes.
//
// Texts arrive translated and are shown as plain text. The boxes are modal and keep timers running. A
// test puts its own responder in their place.
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace modMensajes {

enum class Clase
{
    Informacion, // one button
    Aviso,       // the same with the warning sign
    Pregunta     // Yes and No
};

struct Mensaje
{
    Clase clase = Clase::Informacion;
    QString texto;
    QString titulo;
};

void Informar(QWidget* padre, const QString& texto, const QString& titulo);
void Avisar(QWidget* padre, const QString& texto, const QString& titulo);

// True for Yes. No is the default button; Escape and the close box mean No.
bool Preguntar(QWidget* padre, const QString& texto, const QString& titulo);

// Answers in place of the boxes, which then do not appear; an empty function brings them back. The answer
// counts for questions only.
void PonerRespondedor(std::function<bool(const Mensaje&)> respondedor);

} // namespace modMensajes

// MarcoLateral: what the two side frames share: a scrolling column of sections, as wide as its words need.
#pragma once

#include "Seccion.h"

#include <QScrollArea>

class MarcoLateral : public QScrollArea
{
    Q_OBJECT

public:
    // Width that the column needs with the texts of the moment, logical pixels, room for a scroll bar
    // included. Layouts notice a new text with the next event; this asks them at once.
    int AnchoNecesario() const;

protected:
    static constexpr int kMargen = 12; // around the content, logical pixels

    MarcoLateral(const char* nombre, QWidget* padre);

    Seccion* NuevaSeccion(const char* nombre);
    // Last step of a constructor.
    void Cerrar();

    QWidget* contenido = nullptr;

private:
    QVBoxLayout* columna = nullptr;
};

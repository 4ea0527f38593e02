// Seccion: a titled group of controls in a side frame, head in the accent colour over a hairline.
#pragma once

#include <QLabel>
#include <QVBoxLayout>
#include <QWidget>

class Seccion : public QWidget
{
    Q_OBJECT

public:
    explicit Seccion(const char* nombre, QWidget* padre = nullptr);

    void setTitulo(const QString& titulo);
    // Rows go here, top to bottom.
    QVBoxLayout* Filas() { return filas; }

private:
    QLabel* cabeza = nullptr;
    QVBoxLayout* filas = nullptr;
};

// ListaLineas: a list of fixed-column lines under a header that lines up with them.
//
// Lines are shown in a font of one width, character n of each under character n of the header, whatever
// frame and padding the style gives the list. A line opens by double click and by Enter alike.
#pragma once

#include <QListWidget>

class QLabel;

class ListaLineas : public QListWidget
{
    Q_OBJECT

public:
    explicit ListaLineas(QWidget* padre = nullptr);

    // Replaces the lines by those of a text; its lines end in CR LF and empty ones are dropped. Answers
    // how many stand.
    int PonerTexto(const QString& texto);

    // The label above the list that holds the column heads: it takes the list's font and follows its margin
    // and its horizontal scrolling.
    void Encabezar(QLabel* cabecera);

    // Pixels that so many characters take, with margins and scroll bar: a width at which nothing is cut.
    int AnchoPara(int caracteres) const;

Q_SIGNALS:
    void Abierta(const QString& linea);  // double click or Enter
    void Senalada(const QString& linea); // click, or moved to with the keyboard

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void AlinearCabecera();

    QLabel* lblCabecera = nullptr;
};

// EtiquetaDato: one line of a panel, caption on the left and numbers in columns on the right.
//
// The line is one plain text, the same that a screen reader says and a test reads, for example
// "Hora dorada AM:  07:12  /  PM:  18:40". Two blanks part its pieces; the last piece ends at the right
// edge and, in a line of two values, the first value ends at a fixed column, so that the numbers of a
// panel line up whatever their captions.
#pragma once

#include <QFontMetrics>
#include <QStringList>
#include <QWidget>

class EtiquetaDato : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    explicit EtiquetaDato(const char* nombre, QWidget* padre = nullptr);

    // What two blanks part.
    static QStringList Piezas(const QString& linea);

    QString text() const { return texto; }
    void setText(const QString& nuevo);

    // Width at which no piece of a text touches its neighbour, logical pixels.
    int AnchoDe(const QString& texto) const;

    // The widest text that the line will show: it decides the line's width, so that the panel keeps its
    // measure whatever the day.
    void PonerModelo(const QString& ancho);
    // The mark of the second value ("PM:") in the present language: lines of two values that bear none
    // keep its room, so that first values end at one column.
    void PonerMarca(const QString& nueva);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* evento) override;

private:
    // Right ends of the pieces behind the caption, from the last to the first, as distances from the
    // right edge; then where the caption has to end.
    QList<int> FinesDesdeLaDerecha(const QStringList& partes, const QFontMetrics& medida) const;

    QString texto;
    QString modelo;
    QString marca;
    QStringList piezas;
};

#include "ListaLineas.h"

#include "modGrafico.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace {

constexpr int kSangria = 6; // pixels before the first character
constexpr int kHolgura = 3; // above and below a line

// Paints the text itself, so that its place does not hang on the style.
class PintorLinea : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* p, const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override
    {
        QStyleOptionViewItem o = opcion;
        initStyleOption(&o, indice);
        const QString texto = o.text;
        o.text.clear();
        o.widget->style()->drawControl(QStyle::CE_ItemViewItem, &o, p, o.widget);
        p->save();
        p->setFont(o.font);
        p->setPen(o.palette.color(QPalette::Text));
        p->drawText(o.rect.adjusted(kSangria, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                    texto);
        p->restore();
    }

    QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override
    {
        const QString texto = indice.data().toString();
        return {2 * kSangria + opcion.fontMetrics.horizontalAdvance(texto),
                opcion.fontMetrics.height() + 2 * kHolgura};
    }
};

} // namespace

ListaLineas::ListaLineas(QWidget* padre) : QListWidget(padre)
{
    setFont(modGrafico::FuenteFija());
    setItemDelegate(new PintorLinea(this));
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    connect(this, &QListWidget::itemDoubleClicked, this,
            [this](const QListWidgetItem* i) { Q_EMIT Abierta(i->text()); });
    connect(this, &QListWidget::itemClicked, this,
            [this](const QListWidgetItem* i) { Q_EMIT Senalada(i->text()); });
    connect(this, &QListWidget::currentTextChanged, this, [this](const QString& linea) {
        if (hasFocus() && !linea.isEmpty()) {
            Q_EMIT Senalada(linea);
        }
    });
}

int ListaLineas::PonerTexto(const QString& texto)
{
    clear();
    addItems(texto.split(QStringLiteral("\r\n"), Qt::SkipEmptyParts));
    return count();
}

void ListaLineas::Encabezar(QLabel* cabecera)
{
    lblCabecera = cabecera;
    lblCabecera->setFont(font());
    lblCabecera->setTextFormat(Qt::PlainText);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, &ListaLineas::AlinearCabecera);
    AlinearCabecera();
}

int ListaLineas::AnchoPara(int caracteres) const
{
    return fontMetrics().horizontalAdvance(QString(caracteres, QLatin1Char('0'))) + 2 * kSangria +
           verticalScrollBar()->sizeHint().width() + 2 * (frameWidth() + 4);
}

void ListaLineas::AlinearCabecera()
{
    if (lblCabecera != nullptr) {
        const int x = mapTo(window(), QPoint(0, 0)).x() - lblCabecera->mapTo(window(), QPoint(0, 0)).x() +
                      viewport()->x();
        lblCabecera->setIndent(0);
        lblCabecera->setContentsMargins(x + kSangria - horizontalScrollBar()->value(), 0, 0, 0);
    }
}

void ListaLineas::keyPressEvent(QKeyEvent* evento)
{
    const bool intro = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (intro && currentItem() != nullptr) {
        Q_EMIT Abierta(currentItem()->text()); // and the window's default button stays out of it
        return;
    }
    QListWidget::keyPressEvent(evento);
}

void ListaLineas::resizeEvent(QResizeEvent* evento)
{
    QListWidget::resizeEvent(evento);
    AlinearCabecera();
}

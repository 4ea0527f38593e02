#include "hojaEstilo.h"

#include "paleta.h"

#include <QHash>

namespace hojaEstilo {

namespace {

// "@name" stands for a colour. Check boxes, radio buttons and combo boxes carry drawn signs; EstiloNoche
// paints them.
constexpr char kHoja[] = R"(
QToolTip { background: @panel; color: @texto; border: 1px solid @borde; padding: 3px 5px; }

QLabel { background: transparent; }
QLabel[rol="leyenda"], QLabel[rol="estado"] { color: @tenue; }
QLabel[rol="seccion"], QLabel#cabezaSeccion {
    color: @acento; font-weight: bold; padding: 0px 0px 3px 0px;
    border: none; border-bottom: 1px solid @borde;
}
QGroupBox { border: 1px solid @borde; border-radius: 3px; margin-top: 9px; padding: 9px 7px 7px 7px; }
QGroupBox::title { subcontrol-origin: margin; left: 8px; padding: 0px 4px; color: @acento; }

QLineEdit, QPlainTextEdit, QTextEdit {
    background: @campo; color: @texto; border: 1px solid @borde; border-radius: 3px; padding: 3px 5px;
    selection-background-color: @acentoOscuro; selection-color: @texto;
}
QLineEdit:hover { border-color: @inerte; }
QLineEdit:focus, QPlainTextEdit:focus, QTextEdit:focus {
    border-color: @acento;
}
QLineEdit:disabled { background: @ventana; color: @inerte; }

QPushButton {
    background: @boton; color: @texto; border: 1px solid @borde; border-radius: 3px;
    padding: 4px 10px; min-height: 16px; outline: none;
}
QPushButton:hover { background: @encima; }
QPushButton:pressed { background: @campo; }
QPushButton:checked { background: @acentoOscuro; border-color: @acento; }
QPushButton:default, QPushButton[rol="principal"] { border-color: @inerte; }
QPushButton:focus { border-color: @acento; }
QPushButton:disabled { background: @ventana; color: @inerte; border-color: @boton; }

QMenuBar { background: @panel; color: @texto; border: none; border-bottom: 1px solid @borde; }
QMenuBar::item { background: transparent; padding: 5px 10px; }
QMenuBar::item:selected { background: @encima; }
QMenuBar::item:pressed { background: @acentoOscuro; }
QMenu { background: @panel; color: @texto; border: 1px solid @borde; padding: 4px 0px; }
QMenu::item { padding: 5px 28px 5px 26px; background: transparent; }
QMenu::item:selected { background: @acentoOscuro; }
QMenu::item:disabled { color: @inerte; background: transparent; }
QMenu::separator { height: 1px; background: @borde; margin: 4px 8px; }

QAbstractItemView {
    background: @campo; color: @texto; border: 1px solid @borde; outline: none;
    selection-background-color: @acentoOscuro; selection-color: @texto;
}
QAbstractItemView:focus { border-color: @acento; }
QListView { padding: 2px; }
QHeaderView::section {
    background: @panel; color: @tenue; border: none; border-bottom: 1px solid @borde; padding: 3px 5px;
}

QScrollArea { background: transparent; border: none; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 0px; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0px; }
QScrollBar::handle { background: @borde; border: 3px solid @ventana; border-radius: 6px; }
QScrollBar::handle:vertical { min-height: 32px; }
QScrollBar::handle:horizontal { min-width: 32px; }
QScrollBar::handle:hover { background: @inerte; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }

QProgressBar {
    background: @campo; color: @texto; border: 1px solid @borde; border-radius: 3px; text-align: center;
}
QProgressBar::chunk { background: @acentoOscuro; }

QTabBar::tab { background: @panel; color: @tenue; border: 1px solid @borde; padding: 5px 12px; }
QTabBar::tab:selected { color: @texto; border-bottom-color: @acento; }
QTabWidget::pane { border: 1px solid @borde; }
)";

} // namespace

QString Texto()
{
    const QHash<QString, QColor> colores{
        {QStringLiteral("ventana"), paleta::kVentana},
        {QStringLiteral("panel"), paleta::kPanel},
        {QStringLiteral("campo"), paleta::kCampo},
        {QStringLiteral("boton"), paleta::kBoton},
        {QStringLiteral("encima"), paleta::kBotonEncima},
        {QStringLiteral("borde"), paleta::kBorde},
        {QStringLiteral("texto"), paleta::kTexto},
        {QStringLiteral("tenue"), paleta::kTextoTenue},
        {QStringLiteral("inerte"), paleta::kTextoInerte},
        {QStringLiteral("acento"), paleta::kAcento},
        {QStringLiteral("acentoOscuro"), paleta::kAcentoOscuro},
    };
    const QString hoja = QString::fromLatin1(kHoja);
    QString r;
    r.reserve(hoja.size());
    for (qsizetype i = 0; i < hoja.size(); ++i) {
        if (hoja[i] != QLatin1Char('@')) {
            r += hoja[i];
            continue;
        }
        qsizetype fin = i + 1;
        while (fin < hoja.size() && hoja[fin].isLetter()) {
            ++fin;
        }
        r += colores.value(hoja.mid(i + 1, fin - i - 1)).name();
        i = fin - 1;
    }
    return r;
}

} // namespace hojaEstilo

#include "modMensajes.h"

#include "modI18n.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

using modI18n::Traducir;

namespace modMensajes {

namespace {

std::function<bool(const Mensaje&)>& respondedor()
{
    static std::function<bool(const Mensaje&)> r;
    return r;
}

bool Mostrar(QWidget* padre, const Mensaje& m)
{
    if (respondedor()) {
        return respondedor()(m);
    }
    QMessageBox caja(padre);
    caja.setObjectName(QStringLiteral("cajaMensaje"));
    caja.setTextFormat(Qt::PlainText);
    caja.setText(m.texto);
    caja.setWindowTitle(m.titulo);
    if (m.clase != Clase::Pregunta) {
        caja.setIcon(m.clase == Clase::Aviso ? QMessageBox::Warning : QMessageBox::Information);
        caja.addButton(Traducir("msg.aceptar"), QMessageBox::AcceptRole);
        caja.exec();
        return true;
    }
    caja.setIcon(QMessageBox::Question);
    const QPushButton* si = caja.addButton(Traducir("msg.si"), QMessageBox::YesRole);
    QPushButton* no = caja.addButton(Traducir("msg.no"), QMessageBox::NoRole);
    caja.setDefaultButton(no);
    caja.setEscapeButton(no);
    caja.exec();
    return caja.clickedButton() == si;
}

} // namespace

void Informar(QWidget* padre, const QString& texto, const QString& titulo)
{
    Mostrar(padre, {Clase::Informacion, texto, titulo});
}

void Avisar(QWidget* padre, const QString& texto, const QString& titulo)
{
    Mostrar(padre, {Clase::Aviso, texto, titulo});
}

bool Preguntar(QWidget* padre, const QString& texto, const QString& titulo)
{
    return Mostrar(padre, {Clase::Pregunta, texto, titulo});
}

void PonerRespondedor(std::function<bool(const Mensaje&)> nuevo)
{
    respondedor() = std::move(nuevo);
}

} // namespace modMensajes

#include "frmAcercaDe.h"

#include "modGrafico.h"
#include "modI18n.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using modI18n::Traducir;

namespace {

const QString kProducto = QStringLiteral("Quintaluz");
const QString kVersion = QStringLiteral("1.05");
constexpr int kMargen = 24;
constexpr int kPuntosNombre = 22; // pixels of the product's name

} // namespace

frmAcercaDe::frmAcercaDe(QWidget* padre) : QDialog(padre)
{
    setObjectName(QStringLiteral("frmAcercaDe"));
    setModal(true);
    ConstruirControles();
    ConectarSenales();
    modGrafico::AplicarFuentes(this);
    Retraducir();
}

void frmAcercaDe::ConstruirControles()
{
    lblNombre = new QLabel(kProducto, this);
    lblNombre->setObjectName(QStringLiteral("lblNombre"));
    QFont grande = lblNombre->font();
    grande.setPixelSize(kPuntosNombre);
    lblNombre->setFont(grande);
    lblVersion = new QLabel(this);
    lblVersion->setObjectName(QStringLiteral("lblVersion"));
    lblQueEs = new QLabel(this);
    lblQueEs->setObjectName(QStringLiteral("lblQueEs"));
    cmdCerrar = new QPushButton(this);
    cmdCerrar->setObjectName(QStringLiteral("cmdCerrar"));
    cmdCerrar->setDefault(true);

    auto* pie = new QHBoxLayout;
    pie->addStretch(1);
    pie->addWidget(cmdCerrar);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(kMargen, kMargen, kMargen, kMargen);
    columna->setSpacing(6);
    columna->addWidget(lblNombre);
    columna->addWidget(lblVersion);
    columna->addSpacing(8);
    columna->addWidget(lblQueEs);
    columna->addSpacing(16);
    columna->addLayout(pie);
    columna->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAcercaDe::ConectarSenales()
{
    connect(cmdCerrar, &QPushButton::clicked, this, &QDialog::accept);
}

void frmAcercaDe::Retraducir()
{
    setWindowTitle(Traducir("acercade.titulo"));
    lblVersion->setText(QStringLiteral("Vers. ") + kVersion);
    lblQueEs->setText(Traducir("acercade.que_es"));
    cmdCerrar->setText(Traducir("acercade.cerrar"));
}

#include "frmFasesLuna.h"

#include "Lienzo.h"
#include "Planificador.h"
#include "modAstro.h"
#include "modFormato.h"
#include "modI18n.h"
#include "modReloj.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using modI18n::Traducir;

namespace {

constexpr QSize kRueda(480, 480); // fixed: discs of 17 pixels just fit the ring of a month of 30 days

} // namespace

frmFasesLuna::frmFasesLuna(Planificador& planificador, QWidget* padre)
    : VentanaHerramienta("frmFasesLuna", "fasesluna.titulo", AlCerrar::Descargar, padre), plan(planificador)
{
    ConstruirControles();
    ConectarSenales();
    Preparar();
    PrefijarFecha();
    Mostrar();
}

void frmFasesLuna::ConstruirControles()
{
    auto* lblMes = Crear<QLabel>("lblMes");
    cmbMes = Crear<QComboBox>("cmbMes");
    for (std::int16_t mes = 1; mes <= 12; ++mes) {
        cmbMes->addItem(ruedaFases::NombreMes(mes));
    }
    cmbMes->setMaxVisibleItems(12);
    Rotular(lblMes, "fasesluna.lbl.mes", cmbMes);
    auto* lblAno = Crear<QLabel>("lblAno");
    txtAno = Crear<QLineEdit>("txtAno");
    txtAno->setMaximumWidth(80);
    Rotular(lblAno, "fasesluna.lbl.ano", txtAno);
    cmdMostrar = CrearPrincipal("cmdMostrar", "fasesluna.btn.mostrar");
    picRueda = Crear<Lienzo>("picRueda");
    picRueda->setFixedSize(kRueda);
    picRueda->AlPintar([this](QPainter& p, const QRectF& r) {
        ruedaFases::RuedaFases rueda = datos;
        if (!picRueda->hasFocus()) {
            rueda.senalado = 0;
        }
        ruedaFases::PintarRueda(p, r, rueda);
    });
    TeclasDe(picRueda, [this](const QKeyEvent& tecla) { return TeclaEnRueda(tecla); });
    Nombrar(picRueda, "fasesluna.titulo");
    auto* lblInstr = CrearRotulo("lblInstr", "fasesluna.lbl.instr", "leyenda");
    auto* cmdCerrar = CrearCerrar("fasesluna.btn.cerrar");

    auto* cabeza = new QHBoxLayout;
    cabeza->addWidget(lblMes);
    cabeza->addWidget(cmbMes);
    cabeza->addSpacing(12);
    cabeza->addWidget(lblAno);
    cabeza->addWidget(txtAno);
    cabeza->addWidget(cmdMostrar);
    cabeza->addStretch(1);
    auto* pie = new QHBoxLayout;
    pie->addWidget(lblInstr, 1);
    pie->addWidget(cmdCerrar);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(14, 14, 14, 14);
    todo->addLayout(cabeza);
    todo->addSpacing(6);
    todo->addWidget(picRueda, 0, Qt::AlignHCenter);
    todo->addLayout(pie);
    todo->setSizeConstraint(QLayout::SetFixedSize);
}

void frmFasesLuna::ConectarSenales()
{
    connect(cmdMostrar, &QPushButton::clicked, this, &frmFasesLuna::Mostrar);
    const auto pulsar = [this](Qt::MouseButton boton, const QPointF& donde) {
        const auto anillo = ruedaFases::MedirAnillo(picRueda->rect(), static_cast<int>(datos.fases.size()));
        const int dia = ruedaFases::DiaEnPunto(anillo, donde);
        if (boton == Qt::LeftButton && dia > 0) {
            IrADia(dia);
        }
    };
    connect(picRueda, &Lienzo::Pulsado, this, pulsar);
    connect(picRueda, &Lienzo::DobleClic, this, pulsar);
}

void frmFasesLuna::RetraducirResto()
{
    if (!datos.aviso.isEmpty()) {
        datos.aviso = Traducir("fasesluna.ano_no_valido");
        picRueda->update();
    }
}

void frmFasesLuna::PrefijarFecha()
{
    const QDate hoy = modReloj::Ahora().date();
    const std::int16_t anio = modFormato::LeerEntero16(plan.TextoAnio());
    const bool valido = anio >= modAstro::kAnioMinimo && anio <= modAstro::kAnioMaximo;
    txtAno->setText(QString::number(valido ? anio : hoy.year()));
    cmbMes->setCurrentIndex(hoy.month() - 1);
}

void frmFasesLuna::Mostrar()
{
    datos = ruedaFases::HacerRueda(modFormato::LeerEntero16(txtAno->text()),
                                   static_cast<std::int16_t>(cmbMes->currentIndex() + 1), plan.Zona(),
                                   Traducir("fasesluna.ano_no_valido"));
    picRueda->update();
}

void frmFasesLuna::IrADia(int dia)
{
    datos.senalado = dia;
    picRueda->update();
    plan.IrAFechaHora(datos.anio, datos.mes, static_cast<std::int16_t>(dia), 12, 0);
}

// Arrows walk round the ring, Enter and the space bar go to the day.
bool frmFasesLuna::TeclaEnRueda(const QKeyEvent& tecla)
{
    const int dias = static_cast<int>(datos.fases.size());
    if (dias == 0) {
        return false;
    }
    int dia = std::max(1, datos.senalado);
    switch (tecla.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        dia = dia > 1 ? dia - 1 : dias;
        break;
    case Qt::Key_Right:
    case Qt::Key_Down:
        dia = dia < dias ? dia + 1 : 1;
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        IrADia(dia);
        return true;
    default:
        return false;
    }
    datos.senalado = dia;
    picRueda->update();
    return true;
}

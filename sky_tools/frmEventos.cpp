#include "frmEventos.h"

#include "Lienzo.h"
#include "LineaEstado.h"
#include "ListaLineas.h"
#include "Planificador.h"
#include "RelojDeArena.h"
#include "fechaSerie.h"
#include "irALinea.h"
#include "modAstro.h"
#include "modFormato.h"

#include <QDate>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using calendario::Dia;

namespace {

constexpr int kColumnas = 96;          // characters of the longest event: a partial eclipse of a supermoon
constexpr QSize kCalendario(800, 300); // a Moon of some 11 pixels of radius
constexpr int kAltoLista = 180;
constexpr QSize kTamano(900, 700);

} // namespace

frmEventos::frmEventos(Planificador& planificador, QWidget* padre)
    : VentanaHerramienta("frmEventos", "eventos.titulo", AlCerrar::Descargar, padre), plan(planificador)
{
    ConstruirControles();
    ConectarSenales();
    Preparar();
    txtAno->setText(plan.TextoAnio());
    txtAno->selectAll();
}

void frmEventos::ConstruirControles()
{
    auto* lblAno = Crear<QLabel>("lblAno");
    txtAno = Crear<QLineEdit>("txtAno");
    txtAno->setMaximumWidth(80);
    Rotular(lblAno, "eventos.lbl.ano", txtAno);
    cmdCalcular = CrearPrincipal("cmdCalcular", "eventos.btn.calcular");
    picCal = Crear<Lienzo>("picCal");
    picCal->setMinimumSize(kCalendario);
    picCal->AlPintar([this](QPainter& p, const QRectF& r) {
        calendario::CalendarioAnual c = datos;
        if (!picCal->hasFocus()) {
            c.senalado.reset();
        }
        calendario::PintarCalendario(p, r, c);
    });
    TeclasDe(picCal, [this](const QKeyEvent& tecla) { return TeclaEnCalendario(tecla); });
    auto* lblCal = Crear<QLabel>("lblCal");
    Rotular(lblCal, "eventos.lbl.cal", picCal);
    auto* lblLeyenda = CrearRotulo("lblLeyenda", "eventos.lbl.leyenda", "leyenda");
    lblLeyenda->setWordWrap(true);
    lblLeyenda->setFixedHeight(2 * lblLeyenda->fontMetrics().lineSpacing()); // the longest takes two lines
    lblLeyenda->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    auto* lblCabecera = CrearRotulo("lblCabecera", "eventos.lbl.cabecera", "leyenda");
    lstEventos = Crear<ListaLineas>("lstEventos");
    lstEventos->setMinimumWidth(lstEventos->AnchoPara(kColumnas));
    lstEventos->setMinimumHeight(kAltoLista);
    lstEventos->Encabezar(lblCabecera);
    auto* lblTitulo = Crear<QLabel>("lblTitulo");
    Rotular(lblTitulo, "eventos.lbl.titulo", lstEventos);
    lblEstado = Crear<LineaEstado>("lblEstado");
    auto* cmdCerrar = CrearCerrar("eventos.btn.cerrar");

    auto* cabeza = new QHBoxLayout;
    cabeza->addWidget(lblAno);
    cabeza->addWidget(txtAno);
    cabeza->addWidget(cmdCalcular);
    cabeza->addStretch(1);
    auto* pie = new QHBoxLayout;
    pie->addWidget(lblEstado, 1);
    pie->addWidget(cmdCerrar);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(14, 14, 14, 14);
    todo->addLayout(cabeza);
    todo->addSpacing(6);
    todo->addWidget(lblCal);
    todo->addWidget(picCal, 3);
    todo->addWidget(lblLeyenda);
    todo->addSpacing(8);
    todo->addWidget(lblTitulo);
    todo->addWidget(lblCabecera);
    todo->addWidget(lstEventos, 2);
    todo->addLayout(pie);
    resize(kTamano);
}

void frmEventos::ConectarSenales()
{
    connect(cmdCalcular, &QPushButton::clicked, this, &frmEventos::Calcular);
    connect(lstEventos, &ListaLineas::Abierta, this, [this](const QString& l) { IrALinea(plan, l); });
    const auto pulsar = [this](Qt::MouseButton boton, const QPointF& donde) {
        const auto dia = DiaBajo(donde);
        if (boton == Qt::LeftButton && dia) {
            IrADia(*dia);
        }
    };
    connect(picCal, &Lienzo::Pulsado, this, pulsar);
    connect(picCal, &Lienzo::DobleClic, this, pulsar); // a second day clicked in haste
    connect(picCal, &Lienzo::Movido, this,
            [this](Qt::MouseButtons, const QPointF& donde) { picCal->setToolTip(TextoDia(DiaBajo(donde))); });
}

void frmEventos::RetraducirResto()
{
    lblEstado->Retraducir();
}

void frmEventos::Calcular()
{
    const std::int16_t anio = modFormato::LeerEntero16(txtAno->text());
    if (anio < modAstro::kAnioMinimo || anio > modAstro::kAnioMaximo) {
        lblEstado->Decir("eventos.estado.ano_no_valido");
        return;
    }
    lstEventos->clear();
    lblEstado->Decir("eventos.estado.calculando");
    QString texto;
    {
        const RelojDeArena espera;
        texto = plan.EventosCelestes(anio);
        datos = calendario::HacerCalendario(anio, plan.Zona(), texto);
    }
    picCal->update();
    lstEventos->PonerTexto(texto);
    lblEstado->Decir("eventos.estado.eventos", {QString::number(lstEventos->count())});
}

std::optional<Dia> frmEventos::DiaBajo(const QPointF& punto) const
{
    if (datos.anio < modAstro::kAnioMinimo) {
        return std::nullopt;
    }
    return calendario::DiaEnPunto(calendario::MedirRejilla(QFontMetricsF(picCal->font()), picCal->rect()),
                                  datos.anio, punto);
}

void frmEventos::IrADia(const Dia& dia)
{
    datos.senalado = dia;
    picCal->update();
    plan.IrAFechaHora(datos.anio, dia.mes, dia.dia, 12, 0);
}

// Arrows move the mark by a day or a month, Enter and the space bar go to its date.
bool frmEventos::TeclaEnCalendario(const QKeyEvent& tecla)
{
    if (datos.anio < modAstro::kAnioMinimo) {
        return false;
    }
    const Dia actual = datos.senalado.value_or(Dia{1, 1});
    QDate fecha(datos.anio, actual.mes, actual.dia);
    switch (tecla.key()) {
    case Qt::Key_Left:
        fecha = fecha.addDays(-1);
        break;
    case Qt::Key_Right:
        fecha = fecha.addDays(1);
        break;
    case Qt::Key_Up:
        fecha = fecha.addMonths(-1);
        break;
    case Qt::Key_Down:
        fecha = fecha.addMonths(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        IrADia(actual);
        return true;
    default:
        return false;
    }
    if (fecha.year() == datos.anio) {
        datos.senalado =
            Dia{static_cast<std::int16_t>(fecha.month()), static_cast<std::int16_t>(fecha.day())};
        picCal->update();
    }
    return true;
}

QString frmEventos::TextoDia(const std::optional<Dia>& dia) const
{
    if (!dia) {
        return {};
    }
    const QDate fecha(datos.anio, dia->mes, dia->dia);
    const QLocale regional = QLocale::system();
    return regional.dayName(fecha.dayOfWeek()) + QStringLiteral(", %1 de ").arg(dia->dia) +
           regional.monthName(dia->mes) + QStringLiteral(" de %1").arg(datos.anio);
}

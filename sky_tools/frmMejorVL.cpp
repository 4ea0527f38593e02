#include "frmMejorVL.h"

#include "Lienzo.h"
#include "LineaEstado.h"
#include "ListaLineas.h"
#include "Planificador.h"
#include "RelojDeArena.h"
#include "fechaSerie.h"
#include "irALinea.h"
#include "modAstro.h"
#include "modFormato.h"
#include "modI18n.h"
#include "modViaLactea.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

using modI18n::Traducir;

namespace {

constexpr int kColumnas = 72;     // 59 of the fixed columns and the longest quality word
constexpr QSize kFranja(600, 70); // a night takes some two pixels
constexpr int kAltoLista = 260;

// The date of a night: 0 is 1 January.
fechaSerie::FechaHora FechaDeNoche(std::int16_t anio, int noche)
{
    return fechaSerie::FechaDeSerie(fechaSerie::SerieDeFecha(anio, 1, 1) + noche);
}

} // namespace

frmMejorVL::frmMejorVL(Planificador& planificador, QWidget* padre)
    : VentanaHerramienta("frmMejorVL", "mejorvl.titulo", AlCerrar::Descargar, padre), plan(planificador)
{
    ConstruirControles();
    ConectarSenales();
    Preparar();
    txtAno->setText(plan.TextoAnio());
    txtAno->selectAll();
}

QWidget* frmMejorVL::ConstruirLeyenda()
{
    auto* caja = new QWidget(this);
    auto* fila = new QHBoxLayout(caja);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(6);
    for (std::int16_t nivel = modViaLactea::kNiveles - 1; nivel >= 0; --nivel) {
        auto* muestra = new Lienzo(caja);
        muestra->setFixedSize(11, 11);
        muestra->AlPintar(
            [nivel](QPainter& p, const QRectF& r) { p.fillRect(r, franjaVL::ColorNivel(nivel)); });
        auto* palabra = new QLabel(QString(modViaLactea::PalabraDeNivel(nivel)), caja);
        palabra->setProperty("rol", QStringLiteral("leyenda"));
        fila->addWidget(muestra);
        fila->addWidget(palabra);
        fila->addSpacing(8);
    }
    return caja;
}

void frmMejorVL::ConstruirControles()
{
    auto* lblAno = Crear<QLabel>("lblAno");
    txtAno = Crear<QLineEdit>("txtAno");
    txtAno->setMaximumWidth(80);
    Rotular(lblAno, "mejorvl.lbl.ano", txtAno);
    cmdCalcular = CrearPrincipal("cmdCalcular", "mejorvl.btn.calcular");
    picFranja = Crear<Lienzo>("picFranja");
    picFranja->setMinimumSize(kFranja);
    picFranja->AlPintar([this](QPainter& p, const QRectF& r) {
        franjaVL::FranjaAnual f = datos;
        if (!picFranja->hasFocus()) {
            f.senalada = -1;
        }
        franjaVL::PintarFranja(p, r, f);
    });
    TeclasDe(picFranja, [this](const QKeyEvent& tecla) { return TeclaEnFranja(tecla); });
    auto* lblFranja = Crear<QLabel>("lblFranja");
    Rotular(lblFranja, "mejorvl.lbl.franja", picFranja);
    lblFranjaInfo = Crear<QLabel>("lblFranjaInfo");
    auto* lblCabecera = CrearRotulo("lblCabecera", "mejorvl.lbl.cabecera", "leyenda");
    lstNoches = Crear<ListaLineas>("lstNoches");
    lstNoches->setMinimumWidth(lstNoches->AnchoPara(kColumnas));
    lstNoches->setMinimumHeight(kAltoLista);
    lstNoches->Encabezar(lblCabecera);
    auto* lblTitulo = Crear<QLabel>("lblTitulo");
    Rotular(lblTitulo, "mejorvl.lbl.titulo", lstNoches);
    lblEstado = Crear<LineaEstado>("lblEstado");
    auto* cmdCerrar = CrearCerrar("mejorvl.btn.cerrar");

    auto* cabeza = new QHBoxLayout;
    cabeza->addWidget(lblAno);
    cabeza->addWidget(txtAno);
    cabeza->addWidget(cmdCalcular);
    cabeza->addStretch(1);
    auto* bajoFranja = new QHBoxLayout;
    bajoFranja->addWidget(lblFranjaInfo, 1);
    bajoFranja->addWidget(ConstruirLeyenda());
    auto* pie = new QHBoxLayout;
    pie->addWidget(lblEstado, 1);
    pie->addWidget(cmdCerrar);
    auto* todo = new QVBoxLayout(this);
    todo->setContentsMargins(14, 14, 14, 14);
    todo->addLayout(cabeza);
    todo->addSpacing(6);
    todo->addWidget(lblFranja);
    todo->addWidget(picFranja);
    todo->addLayout(bajoFranja);
    todo->addSpacing(8);
    todo->addWidget(lblTitulo);
    todo->addWidget(lblCabecera);
    todo->addWidget(lstNoches, 1);
    todo->addLayout(pie);
}

void frmMejorVL::ConectarSenales()
{
    connect(cmdCalcular, &QPushButton::clicked, this, &frmMejorVL::Calcular);
    connect(lstNoches, &ListaLineas::Abierta, this, [this](const QString& l) { IrALinea(plan, l); });
    connect(lstNoches, &ListaLineas::Senalada, this, &frmMejorVL::SenalarLinea);
    const auto nocheEn = [this](const QPointF& donde) {
        return franjaVL::NocheEn(donde.x(), picFranja->width(), static_cast<int>(datos.calidad.size()));
    };
    connect(picFranja, &Lienzo::Movido, this, [this, nocheEn](Qt::MouseButtons, const QPointF& donde) {
        if (HayFranja()) {
            MostrarNoche(nocheEn(donde));
        }
    });
    const auto pulsar = [this, nocheEn](Qt::MouseButton boton, const QPointF& donde) {
        if (boton == Qt::LeftButton && HayFranja()) {
            IrANoche(nocheEn(donde));
        }
    };
    connect(picFranja, &Lienzo::Pulsado, this, pulsar);
    connect(picFranja, &Lienzo::DobleClic, this, pulsar);
}

void frmMejorVL::RetraducirResto()
{
    datos.aviso = Traducir("mejorvl.franja.vacia");
    picFranja->update();
    lblEstado->Retraducir();
}

void frmMejorVL::Calcular()
{
    const std::int16_t anio = modFormato::LeerEntero16(txtAno->text());
    if (anio < modAstro::kAnioMinimo || anio > modAstro::kAnioMaximo) {
        lblEstado->Decir("mejorvl.estado.ano_no_valido");
        return;
    }
    lstNoches->clear();
    lblFranjaInfo->clear();
    lblEstado->Decir("mejorvl.estado.calculando");
    QString texto;
    {
        const RelojDeArena espera;
        datos.anio = plan.SerieAnualVL(anio, datos.calidad) ? anio : 0;
        datos.senalada = -1;
        picFranja->update();
        texto = plan.MejoresNochesVL(anio);
    }
    lstNoches->PonerTexto(texto);
    lblEstado->Decir("mejorvl.estado.noches", {QString::number(lstNoches->count())});
}

void frmMejorVL::MostrarNoche(int noche)
{
    lblFranjaInfo->setText(fechaSerie::TextoFecha(FechaDeNoche(datos.anio, noche)) + QLatin1String("  -  ") +
                           modViaLactea::PalabraDeNivel(datos.calidad[noche]));
}

void frmMejorVL::IrANoche(int noche)
{
    datos.senalada = noche;
    picFranja->update();
    MostrarNoche(noche);
    const fechaSerie::FechaHora f = FechaDeNoche(datos.anio, noche);
    plan.IrAFechaHora(f.anio, f.mes, f.dia, 1, 0);
}

void frmMejorVL::SenalarLinea(const QString& linea)
{
    const auto f = fechaSerie::LeerFechaHora(linea);
    if (!f || !HayFranja()) {
        return;
    }
    // The first night's best moment may lie on 31 December of the year before.
    const double noche =
        fechaSerie::SerieDeFecha(f->anio, f->mes, f->dia) - fechaSerie::SerieDeFecha(datos.anio, 1, 1);
    MostrarNoche(static_cast<int>(std::clamp(noche, 0.0, static_cast<double>(datos.calidad.size() - 1))));
}

// Arrows move the mark by a night, page keys by a month of them; Enter and the space bar go to its date.
bool frmMejorVL::TeclaEnFranja(const QKeyEvent& tecla)
{
    if (!HayFranja()) {
        return false;
    }
    int noche = std::max(0, datos.senalada);
    switch (tecla.key()) {
    case Qt::Key_Left:
        noche -= 1;
        break;
    case Qt::Key_Right:
        noche += 1;
        break;
    case Qt::Key_PageUp:
        noche -= 30;
        break;
    case Qt::Key_PageDown:
        noche += 30;
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
        IrANoche(noche);
        return true;
    default:
        return false;
    }
    datos.senalada = std::clamp(noche, 0, static_cast<int>(datos.calidad.size()) - 1);
    picFranja->update();
    MostrarNoche(datos.senalada);
    return true;
}

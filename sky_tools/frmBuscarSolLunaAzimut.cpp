#include "frmBuscarSolLunaAzimut.h"

#include "Lienzo.h"
#include "LineaEstado.h"
#include "ListaLineas.h"
#include "Planificador.h"
#include "RelojDeArena.h"
#include "irALinea.h"
#include "modAzimut.h"
#include "modFormato.h"
#include "modI18n.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>

using modI18n::Traducir;

namespace {

constexpr double kDiasMaximos = 1100;
constexpr int kColumnas = 40; // characters of a result line, with room to spare
constexpr QSize kBrujula(300, 300);
constexpr int kSeparacion = 6;

} // namespace

frmBuscarSolLunaAzimut::frmBuscarSolLunaAzimut(Planificador& planificador, QWidget* padre)
    : VentanaHerramienta("frmBuscarSolLunaAzimut", "buscarsollunaazimut.titulo", AlCerrar::Descargar, padre),
      plan(planificador)
{
    ConstruirControles();
    ConectarSenales();
    Preparar();
    DibujarBrujula();
}

QWidget* frmBuscarSolLunaAzimut::ConstruirPeticion()
{
    auto* caja = new QWidget(this);
    auto* rejilla = new QGridLayout(caja);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setVerticalSpacing(8);
    const auto fila = [&](int n, const char* nombre, const char* clave, QWidget* campo, const char* ayuda) {
        auto* rotulo = Crear<QLabel>(nombre);
        Rotular(rotulo, clave, campo);
        rejilla->addWidget(rotulo, n, 0);
        rejilla->addWidget(campo, n, 1);
        if (ayuda != nullptr) {
            rejilla->addWidget(CrearRotulo((std::string(nombre) + "Ayuda").c_str(), ayuda, "leyenda"), n, 2);
        }
    };
    cmbCuerpo = Crear<QComboBox>("cmbCuerpo");
    cmbCuerpo->addItems({QString(), QString()});
    txtAzimut = Crear<QLineEdit>("txtAzimut");
    txtAzimut->setText(QStringLiteral("90"));
    txtDias = Crear<QLineEdit>("txtDias");
    txtDias->setText(QStringLiteral("365"));
    for (QLineEdit* t : {txtAzimut, txtDias}) {
        t->setMinimumWidth(80);
        t->setMaximumWidth(110);
    }
    fila(0, "lblCuerpo", "buscarsollunaazimut.lbl.cuerpo", cmbCuerpo, nullptr);
    fila(1, "lblAzimut", "buscarsollunaazimut.lbl.az", txtAzimut, "buscarsollunaazimut.lbl.az_ayuda");
    fila(2, "lblDias", "buscarsollunaazimut.lbl.dias", txtDias, "buscarsollunaazimut.lbl.dias_ayuda");
    cmdBuscar = CrearPrincipal("cmdBuscar", "buscarsollunaazimut.btn.buscar");
    rejilla->addWidget(cmdBuscar, 3, 1);
    rejilla->setColumnStretch(2, 1);
    return caja;
}

void frmBuscarSolLunaAzimut::ConstruirControles()
{
    QWidget* peticion = ConstruirPeticion();
    picBrujula = Crear<Lienzo>("picBrujula");
    picBrujula->setMinimumSize(kBrujula);
    picBrujula->AlPintar([this](QPainter& p, const QRectF& r) { brujula::PintarBrujula(p, r, datos); });
    Nombrar(picBrujula, "buscarsollunaazimut.lbl.brujula");
    auto* lblCabecera = CrearRotulo("lblCabecera", "buscarsollunaazimut.lbl.cabecera", "leyenda");
    lstResultados = Crear<ListaLineas>("lstResultados");
    lstResultados->setMinimumWidth(lstResultados->AnchoPara(kColumnas));
    lstResultados->Encabezar(lblCabecera);
    auto* lblTitulo = Crear<QLabel>("lblTitulo");
    Rotular(lblTitulo, "buscarsollunaazimut.lbl.titulo", lstResultados);
    lblEstado = Crear<LineaEstado>("lblEstado");
    auto* cmdCerrar = CrearCerrar("buscarsollunaazimut.btn.cerrar");

    // Spacings are named, since a layout without one takes its parent's.
    auto* izquierda = new QVBoxLayout;
    izquierda->setSpacing(kSeparacion);
    izquierda->addWidget(peticion);
    izquierda->addSpacing(10);
    izquierda->addWidget(CrearRotulo("lblBrujula", "buscarsollunaazimut.lbl.brujula"));
    izquierda->addWidget(picBrujula, 1);
    izquierda->addWidget(CrearRotulo("lblBrujulaInfo", "buscarsollunaazimut.lbl.brujula_info", "leyenda"), 0,
                         Qt::AlignHCenter);
    auto* derecha = new QVBoxLayout;
    derecha->setSpacing(kSeparacion);
    derecha->addWidget(lblTitulo);
    derecha->addWidget(lblCabecera);
    derecha->addWidget(lstResultados, 1);
    auto* pie = new QHBoxLayout;
    pie->addWidget(lblEstado, 1);
    pie->addWidget(cmdCerrar);
    derecha->addLayout(pie);
    auto* todo = new QHBoxLayout(this);
    todo->setContentsMargins(14, 14, 14, 14);
    todo->setSpacing(18);
    todo->addLayout(izquierda);
    todo->addLayout(derecha, 1);
}

void frmBuscarSolLunaAzimut::ConectarSenales()
{
    connect(cmdBuscar, &QPushButton::clicked, this, &frmBuscarSolLunaAzimut::Buscar);
    connect(lstResultados, &ListaLineas::Abierta, this, [this](const QString& l) { IrALinea(plan, l); });
}

void frmBuscarSolLunaAzimut::RetraducirResto()
{
    cmbCuerpo->setItemText(0, Traducir("buscarsollunaazimut.cuerpo.sol"));
    cmbCuerpo->setItemText(1, Traducir("buscarsollunaazimut.cuerpo.luna"));
    lblEstado->Retraducir();
}

void frmBuscarSolLunaAzimut::Buscar()
{
    const double azimut = modFormato::LeerNumero(txtAzimut->text());
    const double dias =
        std::clamp(std::nearbyint(modFormato::LeerNumero(txtDias->text())), 1.0, kDiasMaximos);
    const bool luna = cmbCuerpo->currentIndex() == 1;
    lstResultados->clear();
    lblEstado->Decir("buscarsollunaazimut.estado.buscando");
    QString texto;
    {
        const RelojDeArena espera;
        texto = plan.BuscarAzimut(luna, azimut, static_cast<std::int32_t>(dias));
        DibujarBrujula();
    }
    lstResultados->PonerTexto(texto);
    lblEstado->Decir("buscarsollunaazimut.estado.resultados", {QString::number(lstResultados->count())});
}

void frmBuscarSolLunaAzimut::DibujarBrujula()
{
    std::array<double, modAzimut::kMuestrasRuta> azimutes{}, altitudes{};
    datos.luna = cmbCuerpo->currentIndex() == 1;
    datos.azimut = modFormato::LeerNumero(txtAzimut->text());
    datos.ruta.clear();
    const int muestras = plan.RutaCielo(datos.luna, azimutes, altitudes);
    for (int i = 0; i < muestras; ++i) {
        datos.ruta.push_back({azimutes[i], altitudes[i]});
    }
    picBrujula->update();
}

#include "MarcoPlan.h"

#include "modFormato.h"
#include "modI18n.h"

#include <QGridLayout>
#include <QHBoxLayout>

using modI18n::Traducir;
using modI18n::TraducirCon;

namespace {

constexpr int kEntreControles = 6; // logical pixels

QHBoxLayout* Fila()
{
    auto* fila = new QHBoxLayout;
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(kEntreControles);
    return fila;
}

QPushButton* Boton(const char* nombre, QWidget* padre)
{
    auto* boton = new QPushButton(padre);
    boton->setObjectName(QLatin1String(nombre));
    boton->setAutoDefault(false);
    return boton;
}

QCheckBox* Casilla(const char* nombre, QWidget* padre)
{
    auto* casilla = new QCheckBox(padre);
    casilla->setObjectName(QLatin1String(nombre));
    return casilla;
}

QLabel* Rotulo(const char* nombre, QWidget* padre)
{
    auto* rotulo = new QLabel(padre);
    rotulo->setObjectName(QLatin1String(nombre));
    return rotulo;
}

void Rotular(QWidget* control, const char* clave)
{
    const QString texto = Traducir(QLatin1String(clave));
    control->setToolTip(texto);
    control->setAccessibleDescription(texto);
}

} // namespace

MarcoPlan::MarcoPlan(QWidget* padre) : MarcoLateral("Frame1", padre)
{
    ConstruirLugar();
    ConstruirFecha();
    ConstruirAnimacion();
    ConstruirMapa();
    Cerrar();
}

QLineEdit* MarcoPlan::NuevaCaja(const char* nombre, int caracteres)
{
    auto* caja = new QLineEdit(contenido);
    caja->setObjectName(QLatin1String(nombre));
    caja->setMaxLength(caracteres);
    return caja;
}

void MarcoPlan::ConstruirLugar()
{
    secObservador = NuevaSeccion("secObservador");
    lblObsCoord = new EtiquetaDato("lblObsCoord", contenido);
    txtGoto = NuevaCaja("txtGoto", 200);
    txtGoto->setText(QStringLiteral("40.4168, -3.7038"));
    cmdGoto = Boton("cmdGoto", contenido);
    secObservador->Filas()->addWidget(lblObsCoord);
    auto* fila = Fila();
    fila->addWidget(txtGoto, 1);
    fila->addWidget(cmdGoto);
    secObservador->Filas()->addLayout(fila);

    secObjetivo = NuevaSeccion("secObjetivo");
    lblTgtCoord = new EtiquetaDato("lblTgtCoord", contenido);
    lblDist = new EtiquetaDato("lblDist", contenido);
    lblBearing = new EtiquetaDato("lblBearing", contenido);
    for (EtiquetaDato* linea : {lblTgtCoord, lblDist, lblBearing})
        secObjetivo->Filas()->addWidget(linea);
}

void MarcoPlan::ConstruirFecha()
{
    secFecha = NuevaSeccion("secFecha");
    lblAnio = Rotulo("lblAnio", contenido);
    lblMes = Rotulo("lblMes", contenido);
    lblDia = Rotulo("lblDia", contenido);
    lblZona = Rotulo("lblZona", contenido);
    txtYear = NuevaCaja("txtYear", 6);
    txtMonth = NuevaCaja("txtMonth", 6);
    txtDay = NuevaCaja("txtDay", 6);
    txtTZ = NuevaCaja("txtTZ", 12);
    auto* rejilla = new QGridLayout;
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setHorizontalSpacing(kEntreControles);
    rejilla->setVerticalSpacing(2);
    int columnaCaja = 0;
    for (const auto& [rotulo, caja] :
         {std::pair{lblAnio, txtYear}, {lblMes, txtMonth}, {lblDia, txtDay}, {lblZona, txtTZ}}) {
        rotulo->setBuddy(caja);
        caja->setAlignment(Qt::AlignRight);
        rejilla->addWidget(rotulo, 0, columnaCaja);
        rejilla->addWidget(caja, 1, columnaCaja);
        rejilla->setColumnStretch(columnaCaja, columnaCaja == 0 || columnaCaja == 3 ? 3 : 2);
        ++columnaCaja;
    }
    secFecha->Filas()->addLayout(rejilla);

    lblHour = new EtiquetaDato("lblHour", contenido);
    cmdAhora = Boton("cmdAhora", contenido);
    auto* fila = Fila();
    fila->addWidget(lblHour, 1);
    fila->addSpacing(kEntreControles);
    fila->addWidget(cmdAhora);
    secFecha->Filas()->addLayout(fila);
    hsbHour = new BarraMinutos("hsbHour", 0, 1440, 60, contenido);
    hsbHour->setValue(720);
    secFecha->Filas()->addWidget(hsbHour);
}

void MarcoPlan::ConstruirAnimacion()
{
    secAnimacion = NuevaSeccion("secAnimacion");
    cmdAnimDia = Boton("cmdAnimDia", contenido);
    lblVelocidad = Rotulo("lblVelocidad", contenido);
    lblVelocidadValor = Rotulo("lblVelocidadValor", contenido);
    lblVelocidadValor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    hsbAnimVel = new BarraMinutos("hsbAnimVel", 1, 60, 5, contenido);
    hsbAnimVel->setValue(5);
    lblVelocidad->setBuddy(hsbAnimVel);
    auto* fila = Fila();
    fila->addWidget(cmdAnimDia, 1);
    fila->addSpacing(kEntreControles);
    fila->addWidget(lblVelocidad);
    fila->addWidget(lblVelocidadValor);
    secAnimacion->Filas()->addLayout(fila);
    secAnimacion->Filas()->addWidget(hsbAnimVel);
}

void MarcoPlan::ConstruirMapa()
{
    secCapas = NuevaSeccion("secCapas");
    chkMostrarObjetivo = Casilla("chkMostrarObjetivo", contenido);
    chkTrayectoriaCeleste = Casilla("chkTrayectoriaCeleste", contenido);
    chkViaLactea = Casilla("chkViaLactea", contenido);
    chkTerminador = Casilla("chkTerminador", contenido);
    chkTerminadorFases = Casilla("chkTerminadorFases", contenido);
    chkHorizonteReal = Casilla("chkHorizonteReal", contenido);
    for (QCheckBox* casilla : {chkMostrarObjetivo, chkTrayectoriaCeleste, chkViaLactea, chkTerminador,
                               chkTerminadorFases, chkHorizonteReal})
        secCapas->Filas()->addWidget(casilla);
    chkHorizonteReal->hide();

    secMapa = NuevaSeccion("secMapa");
    cmbProvider = new QComboBox(contenido);
    cmbProvider->setObjectName(QStringLiteral("cmbProvider"));
    cmdZoomIn = Boton("cmdZoomIn", contenido);
    cmdZoomOut = Boton("cmdZoomOut", contenido);
    cmdCentrar = Boton("cmdCentrar", contenido);
    cmdGloboMapa = Boton("cmdGloboMapa", contenido);
    lblCursor = new EtiquetaDato("lblCursor", contenido);
    secMapa->Filas()->addWidget(cmbProvider);
    auto* fila = Fila();
    fila->addWidget(cmdZoomOut, 1);
    fila->addWidget(cmdZoomIn, 1);
    fila->addWidget(cmdCentrar, 2);
    secMapa->Filas()->addLayout(fila);
    secMapa->Filas()->addWidget(cmdGloboMapa);
    secMapa->Filas()->addWidget(lblCursor);
    cmdGloboMapa->hide();
}

void MarcoPlan::Retraducir(bool tocando)
{
    secObservador->setTitulo(Traducir("main.sec.observador"));
    secObjetivo->setTitulo(Traducir("main.sec.objetivo"));
    secFecha->setTitulo(Traducir("main.sec.fecha"));
    secAnimacion->setTitulo(Traducir("main.sec.animacion"));
    secCapas->setTitulo(Traducir("main.sec.capas"));
    secMapa->setTitulo(Traducir("main.sec.mapa"));

    lblAnio->setText(Traducir("main.lbl.anio"));
    lblMes->setText(Traducir("main.lbl.mes"));
    lblDia->setText(Traducir("main.lbl.dia"));
    lblZona->setText(Traducir("main.lbl.zona"));
    lblVelocidad->setText(Traducir("main.lbl.velocidad"));

    chkMostrarObjetivo->setText(Traducir("main.chk.mostrar_objetivo"));
    chkTrayectoriaCeleste->setText(Traducir("main.chk.trayectoria"));
    chkViaLactea->setText(Traducir("main.chk.via_lactea"));
    chkTerminador->setText(Traducir("main.chk.terminador"));
    chkTerminadorFases->setText(Traducir("main.chk.terminador_fases"));
    chkHorizonteReal->setText(Traducir("main.chk.horizonte_real"));

    cmdGoto->setText(Traducir("main.btn.ir"));
    cmdAhora->setText(Traducir("main.btn.ahora"));
    cmdZoomIn->setText(Traducir("main.btn.acercar"));
    cmdZoomOut->setText(Traducir("main.btn.alejar"));
    cmdCentrar->setText(Traducir("main.btn.centrar"));
    cmdGloboMapa->setText(Traducir("main.btn.globo_mapa"));
    RotularAnimacion(tocando);

    Rotular(txtGoto, "main.tip.goto");
    Rotular(txtTZ, "main.tip.zona");
    Rotular(cmdAhora, "main.tip.ahora");
    Rotular(hsbHour, "main.tip.hora");
    Rotular(cmdAnimDia, "main.tip.anim_dia");
    Rotular(chkTrayectoriaCeleste, "main.tip.trayectoria");
    Rotular(chkViaLactea, "main.tip.via_lactea");
    Rotular(chkTerminador, "main.tip.terminador");
    Rotular(chkTerminadorFases, "main.tip.terminador_fases");
    Rotular(cmdZoomIn, "main.tip.acercar");
    Rotular(cmdZoomOut, "main.tip.alejar");

    txtGoto->setAccessibleName(Traducir("main.lbl.ir_a"));
    hsbHour->setAccessibleName(Traducir("main.acc.hora"));
    hsbAnimVel->setAccessibleName(Traducir("main.acc.velocidad"));
    MedirLineas();
    cmbProvider->setAccessibleName(Traducir("main.lbl.proveedor"));
    cmdZoomIn->setAccessibleName(Traducir("main.tip.acercar"));
    cmdZoomOut->setAccessibleName(Traducir("main.tip.alejar"));
}

void MarcoPlan::RotularAnimacion(bool tocando)
{
    cmdAnimDia->setText(Traducir(tocando ? "main.btn.parar" : "main.btn.play"));
}

// Each line is given the widest text of its kind in the present language.
void MarcoPlan::MedirLineas()
{
    const textosPanel::TextosObjetivo lejos = textosPanel::Objetivo(-88.8888, -168.8888, true, 88.8888, 11.1);
    lblObsCoord->PonerModelo(textosPanel::Coordenadas(-88.8888, -188.8888));
    lblTgtCoord->PonerModelo(textosPanel::Coordenadas(-88.8888, -188.8888));
    lblDist->PonerModelo(lejos.Dist);
    lblBearing->PonerModelo(lejos.Bearing);
    lblHour->PonerModelo(textosPanel::TextoHoraLocal(22.0));
    lblCursor->PonerModelo(TraducirCon("main.dyn.cursor", modFormato::Format(-88.8888, u"0.0000"),
                                       modFormato::Format(-188.8888, u"0.0000")));
}

void MarcoPlan::MostrarObjetivo(const textosPanel::TextosObjetivo& t)
{
    lblTgtCoord->setText(t.Coord);
    lblDist->setText(t.Dist);
    lblBearing->setText(t.Bearing);
}

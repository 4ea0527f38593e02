// frmMain: the map. The pointer, the wheel, the buttons and the keys move the view and pin the marks;
// tiles and overlays are painted by their own modules.
#include "frmMain.h"

#include "capas.h"
#include "textosPanel.h"

#include "modAstroEstado.h"
#include "modColor.h"
#include "modDescargas.h"
#include "modFormato.h"
#include "modGeo.h"
#include "modHTTP.h"
#include "modI18n.h"
#include "modMap.h"
#include "modOpenGL.h"
#include "paleta.h"

#include <QApplication>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>

#include <cstdlib>

using modI18n::TraducirCon;
using punteroMapa::Accion;

namespace {

constexpr int kSondeoMs = 140;  // poll of the download queue
constexpr int kPasoTeclas = 64; // pixels that an arrow key pans
constexpr int kMuesca = 120;    // turn of one notch of the wheel
constexpr int kGrosorFoco = 2;  // frame of the focused map, pixels

void PintarFoco(LienzoMapa& lienzo, int w, int h)
{
    const auto color = std::int32_t(modColor::Empaquetar(paleta::kAcento));
    lienzo.Rectangulo(0, 0, w, kGrosorFoco, color);
    lienzo.Rectangulo(0, h - kGrosorFoco, w, h, color);
    lienzo.Rectangulo(0, 0, kGrosorFoco, h, color);
    lienzo.Rectangulo(w - kGrosorFoco, 0, w, h, color);
}

} // namespace

void frmMain::ConectarMapa()
{
    picMap->setFocusPolicy(Qt::StrongFocus);
    picMap->setMouseTracking(true);
    picMap->setContextMenuPolicy(Qt::PreventContextMenu);
    picMap->installEventFilter(this);
    connect(picMap, &SuperficieGL::ContextoRehecho, this, &frmMain::RefrescarTodo);

    tmrClick = new QTimer(this);
    tmrClick->setSingleShot(true);
    connect(tmrClick, &QTimer::timeout, this, [this] { FijarObservador(clic); });
    tmrDescargas = new QTimer(this);
    tmrDescargas->setInterval(kSondeoMs);
    connect(tmrDescargas, &QTimer::timeout, this, &frmMain::SondearDescargas);

    connect(plan->cmdGoto, &QPushButton::clicked, this, &frmMain::IrALugar);
    connect(plan->txtGoto, &QLineEdit::returnPressed, this, &frmMain::IrALugar);
    connect(plan->cmdZoomIn, &QPushButton::clicked, this, [this] { ZoomCentrado(+1); });
    connect(plan->cmdZoomOut, &QPushButton::clicked, this, [this] { ZoomCentrado(-1); });
    connect(plan->cmdCentrar, &QPushButton::clicked, this, [this] {
        if (!estado.TieneObs)
            return;
        estado.vista.lat = estado.obsLat;
        estado.vista.lon = estado.obsLon;
        RefrescarTodo();
    });
    connect(plan->cmbProvider, &QComboBox::currentIndexChanged, this, [this](int indice) {
        modGeo::EstablecerProveedorMapa(std::int16_t(indice));
        modMap::LiberarTexturasMapa();
        RefrescarTodo();
    });
    for (QCheckBox* casilla : {plan->chkMostrarObjetivo, plan->chkTrayectoriaCeleste, plan->chkViaLactea})
        connect(casilla, &QCheckBox::toggled, this, &frmMain::RepintarMapa);
    connect(plan->chkTerminador, &QCheckBox::toggled, this, [this](bool puesta) {
        estado.TerminadorActivo = puesta;
        RepintarMapa();
    });
    connect(plan->chkTerminadorFases, &QCheckBox::toggled, this, [this](bool puesta) {
        estado.FasesTerminadorActivas = puesta;
        RepintarMapa();
    });
    connect(plan->chkHorizonteReal, &QCheckBox::toggled, this, [this] { RecalcularPaneles(false); });
}

// --- Painting

void frmMain::RepintarMapa()
{
    if (estado.Cerrando)
        return;
    modMap::PintarMapa(estado.vista);
    {
        LienzoGL lienzo;
        capas::PintarCapas(lienzo, Escena());
        if (focoVisible && picMap->hasFocus())
            PintarFoco(lienzo, estado.vista.ancho, estado.vista.alto);
    }
    modOpenGL::PresentarFrame();
    picScrub->update();
}

// What the overlays read, gathered from state and controls.
EscenaMapa frmMain::Escena() const
{
    EscenaMapa e;
    e.vista = estado.vista;
    e.tieneObs = estado.TieneObs;
    e.obsLat = estado.obsLat;
    e.obsLon = estado.obsLon;
    e.tieneTgt = estado.TieneTgt;
    e.tgtLat = estado.TgtLat;
    e.tgtLon = estado.TgtLon;
    e.mostrarObjetivo = plan->chkMostrarObjetivo->isChecked();
    e.trayectorias = plan->chkTrayectoriaCeleste->isChecked();
    e.viaLactea = plan->chkViaLactea->isChecked();
    e.terminador = estado.TerminadorActivo;
    e.fasesTerminador = estado.FasesTerminadorActivas;
    e.fecha = Fecha();
    e.juliano = JulianoDeLaInterfaz(e.fecha, Hora(), Zona());
    e.ahora = actuales;
    if (modAstroEstado::TrayectoriasValidas()) {
        e.sol = &modAstroEstado::TrayectoriaSol();
        e.luna = &modAstroEstado::TrayectoriaLuna();
    }
    e.hayDescargas = modDescargas::HayDescargasPendientes();
    e.descargas = modDescargas::ContarDescargasPendientes();
    e.atribucion = modHTTP::AtribucionMapa();
    return e;
}

// --- Downloads

void frmMain::ProgramarDescargas(bool limpiar)
{
    if (estado.vista.zoom <= 1)
        return;
    if (limpiar)
        modDescargas::VaciarColaDescargas();
    modMap::EncolarTilesVisibles(estado.vista);
    if (modDescargas::HayDescargasPendientes())
        tmrDescargas->start();
    else
        tmrDescargas->stop();
}

// One poll of the queue. The pointer is the hourglass while anything is under way.
void frmMain::SondearDescargas()
{
    if (estado.Cerrando) {
        tmrDescargas->stop();
        return;
    }
    if (estado.vista.zoom <= 1) {
        modDescargas::VaciarColaDescargas();
        tmrDescargas->stop();
        PonerEspera(false);
        return;
    }
    PonerEspera(true);
    if (modDescargas::SondearDescargas() >= 1 && !estado.Pintando) {
        const EnPintura guardia(estado);
        modMap::CargarTilesVisibles(estado.vista);
        RepintarMapa();
        ActualizarTitulo({});
    }
    if (!modDescargas::HayDescargasPendientes()) {
        tmrDescargas->stop();
        PonerEspera(false);
        RepintarMapa();
    }
}

void frmMain::PonerEspera(bool esperando)
{
    if (esperando == esperandoTiles)
        return;
    esperandoTiles = esperando;
    if (esperando)
        setCursor(Qt::BusyCursor);
    else
        unsetCursor();
}

// --- Marks

void frmMain::ObservadorCambiado()
{
    estado.TieneObs = true;
    plan->chkHorizonteReal->setChecked(false);
    RecalcularPaneles(false);
    RepintarMapa();
}

void frmMain::FijarObservador(QPoint donde)
{
    modMap::PixelVistaALonLat(estado.vista, donde.x(), donde.y(), estado.obsLon, estado.obsLat);
    ObservadorCambiado();
}

void frmMain::FijarObjetivo(QPoint donde)
{
    modMap::PixelVistaALonLat(estado.vista, donde.x(), donde.y(), estado.TgtLon, estado.TgtLat);
    estado.TieneTgt = true;
    plan->chkMostrarObjetivo->setChecked(true);
    RecalcularPaneles(false);
    RepintarMapa();
}

void frmMain::ActivarDestino()
{
    estado.TieneTgt = true;
    RepintarMapa();
}

std::optional<QPoint> frmMain::PixelDe(bool hay, double lat, double lon) const
{
    if (!hay)
        return std::nullopt;
    std::int32_t x = 0;
    std::int32_t y = 0;
    modMap::LonLatAPixelVista(estado.vista, lon, lat, x, y);
    return QPoint(x, y);
}

// --- Pointer and keys

bool frmMain::EventoMapa(QEvent* evento)
{
    switch (evento->type()) {
    case QEvent::MouseButtonPress:
        PulsarMapa(static_cast<QMouseEvent*>(evento));
        return true;
    case QEvent::MouseMove:
        MoverMapa(static_cast<QMouseEvent*>(evento)->position().toPoint());
        return true;
    case QEvent::MouseButtonRelease:
        if (static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton)
            Ejecutar(puntero.Soltar(static_cast<QMouseEvent*>(evento)->position().toPoint()));
        return true;
    case QEvent::MouseButtonDblClick:
        if (static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton)
            DobleClicMapa();
        return true;
    case QEvent::KeyPress:
        return TeclaMapa(static_cast<QKeyEvent*>(evento));
    default:
        return false;
    }
}

void frmMain::PulsarMapa(QMouseEvent* evento)
{
    const QPoint donde = evento->position().toPoint();
    ultimo = donde;
    if (evento->button() == Qt::RightButton) {
        FijarObjetivo(donde);
    } else if (evento->button() == Qt::LeftButton) {
        Ejecutar(puntero.Pulsar(donde, evento->modifiers().testFlag(Qt::ShiftModifier),
                                PixelDe(estado.TieneObs, estado.obsLat, estado.obsLon),
                                PixelDe(estado.TieneTgt, estado.TgtLat, estado.TgtLon)));
    }
}

void frmMain::MoverMapa(QPoint donde)
{
    double lon = 0;
    double lat = 0;
    modMap::PixelVistaALonLat(estado.vista, donde.x(), donde.y(), lon, lat);
    plan->lblCursor->setText(TraducirCon("main.dyn.cursor", modFormato::Format(lat, u"0.0000"),
                                         modFormato::Format(lon, u"0.0000")));
    Ejecutar(puntero.Mover(donde));
}

void frmMain::Ejecutar(const punteroMapa::Respuesta& r)
{
    switch (r.accion) {
    case Accion::Nada:
        break;
    case Accion::FijarObservador:
        FijarObservador(r.donde);
        break;
    case Accion::FijarObjetivo:
        FijarObjetivo(r.donde);
        break;
    case Accion::MoverObservador: // no recomputation until the mark is let go
        modMap::PixelVistaALonLat(estado.vista, r.donde.x(), r.donde.y(), estado.obsLon, estado.obsLat);
        RepintarMapa();
        plan->lblObsCoord->setText(textosPanel::Coordenadas(estado.obsLat, estado.obsLon));
        break;
    case Accion::MoverObjetivo:
        modMap::PixelVistaALonLat(estado.vista, r.donde.x(), r.donde.y(), estado.TgtLon, estado.TgtLat);
        RepintarMapa();
        plan->lblTgtCoord->setText(textosPanel::Coordenadas(estado.TgtLat, estado.TgtLon));
        break;
    case Accion::Desplazar:
        modMap::DesplazarVista(estado.vista, r.delta.x(), r.delta.y());
        modMap::CargarTilesVisibles(estado.vista);
        ProgramarDescargas(false);
        RepintarMapa();
        break;
    case Accion::SoltarObservador:
    case Accion::SoltarObjetivo:
        plan->chkHorizonteReal->setChecked(false);
        RecalcularPaneles(false);
        RepintarMapa();
        break;
    case Accion::FinDesplazar:
        ProgramarDescargas(true);
        break;
    case Accion::ClicPendiente:
        clic = r.donde;
        tmrClick->start(punteroMapa::EsperaClic(QGuiApplication::styleHints()->mouseDoubleClickInterval()));
        break;
    }
}

void frmMain::DobleClicMapa()
{
    tmrClick->stop();
    modMap::ZoomEnPunto(estado.vista, ultimo.x(), ultimo.y(), +1);
    RefrescarTodo();
}

// The keys do from the middle of the map what the pointer does anywhere.
bool frmMain::TeclaMapa(QKeyEvent* evento)
{
    const QPoint centro(estado.vista.ancho / 2, estado.vista.alto / 2);
    QPoint paso;
    switch (evento->key()) {
    case Qt::Key_Left:
        paso = {kPasoTeclas, 0};
        break;
    case Qt::Key_Right:
        paso = {-kPasoTeclas, 0};
        break;
    case Qt::Key_Up:
        paso = {0, kPasoTeclas};
        break;
    case Qt::Key_Down:
        paso = {0, -kPasoTeclas};
        break;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        ZoomCentrado(+1);
        return true;
    case Qt::Key_Minus:
        ZoomCentrado(-1);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (evento->modifiers().testFlag(Qt::ShiftModifier))
            FijarObjetivo(centro);
        else
            FijarObservador(centro);
        return true;
    default:
        return false;
    }
    modMap::DesplazarVista(estado.vista, paso.x(), paso.y());
    RefrescarTodo();
    return true;
}

// The wheel zooms under the pointer, a level to a notch, and never leaves the map for the globe. Smooth
// wheels and touch pads send parts of a notch, which add up.
void frmMain::RuedaEvento(int delta, const QPointF& enPantalla)
{
    if (estado.Cerrando || estado.Pintando)
        return;
    const QPoint donde = picMap->mapFromGlobal(enPantalla).toPoint();
    if (!picMap->rect().contains(donde))
        return;
    if ((delta > 0) != (ruedaPendiente > 0))
        ruedaPendiente = 0;
    ruedaPendiente += delta;
    if (std::abs(ruedaPendiente) < kMuesca)
        return;
    const std::int16_t d = ruedaPendiente > 0 ? 1 : -1;
    ruedaPendiente = 0;
    if (d < 0 && estado.vista.zoom < 3)
        return;
    modMap::ZoomEnPunto(estado.vista, donde.x(), donde.y(), d);
    RefrescarTodo();
}

void frmMain::ZoomCentrado(std::int16_t d)
{
    if (d < 0 && estado.vista.zoom <= 2)
        return;
    modMap::ZoomEnPunto(estado.vista, estado.vista.ancho / 2, estado.vista.alto / 2, d);
    RefrescarTodo();
}

// The go-to box takes "latitude, longitude" in decimal degrees; a piece that is no number reads as 0.
void frmMain::IrALugar()
{
    const QStringList piezas = plan->txtGoto->text().split(QLatin1Char(','));
    if (piezas.size() < 2)
        return;
    estado.obsLat = modFormato::LeerNumero(piezas[0].trimmed());
    estado.obsLon = modFormato::LeerNumero(piezas[1].trimmed());
    estado.TieneObs = true;
    estado.vista.lat = estado.obsLat;
    estado.vista.lon = estado.obsLon;
    plan->chkHorizonteReal->setChecked(false);
    RefrescarTodo();
}

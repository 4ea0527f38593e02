// frmMain: construction, the order of starting and the order of ending.
#include "frmMain.h"

#include "disposicion.h"

#include "lunaPintor.h"
#include "modBombeo.h"
#include "modConfig.h"
#include "modDescargas.h"
#include "modGDIPlus.h"
#include "modGeo.h"
#include "modGrafico.h"
#include "modHTTP.h"
#include "modI18n.h"
#include "modMap.h"
#include "modMensajes.h"
#include "modOpenGL.h"
#include "modReloj.h"
#include "modRueda.h"
#include "modRutas.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QScreen>

using modConfig::ConfigApp;
using modI18n::Traducir;
using modI18n::TraducirCon;

namespace {

constexpr int kZoomInicial = 6;
constexpr QSize kTamanoInicial{1360, 860}; // logical pixels, held to the screen
constexpr QSize kBordesVentana{16, 56};    // what title bar and borders may take
constexpr QSize kTamanoMinimo{720, 480};
constexpr int kRondasEspera = 100; // pumps that Exit grants a refresh that is still running

Lienzo* NuevoLienzo(const char* nombre, QWidget* padre)
{
    auto* lienzo = new Lienzo(padre);
    lienzo->setObjectName(QLatin1String(nombre));
    return lienzo;
}

} // namespace

frmMain::frmMain(QWidget* padre) : QMainWindow(padre)
{
    setObjectName(QStringLiteral("frmMain"));
    ConstruirControles();
    ConstruirMenu();
    ConectarSenales();
    OrdenarTabulacion();
}

frmMain::~frmMain() = default;

void frmMain::ConstruirControles()
{
    cliente = new QWidget(this);
    cliente->setObjectName(QStringLiteral("cliente"));
    plan = new MarcoPlan(cliente);
    astros = new MarcoAstros(cliente);
    picMap = new SuperficieGL(cliente);
    picMap->setObjectName(QStringLiteral("picMap"));
    picTimeline = NuevoLienzo("picTimeline", cliente);
    picScrub = NuevoLienzo("picScrub", cliente);
    setCentralWidget(cliente);
    setMinimumSize(kTamanoMinimo);
    cliente->installEventFilter(this); // its size places the parts
}

void frmMain::ConectarSenales()
{
    ConectarFecha();
    ConectarTimeline();
    ConectarMapa();
    astros->picLuna->AlPintar([this](QPainter& p, const QRectF& r) {
        if (faseLuna >= 0)
            lunaPintor::PintarLunaPanel(p, int(r.width()), int(r.height()), faseLuna);
    });
}

void frmMain::OrdenarTabulacion()
{
    const QList<QWidget*> orden{plan->txtGoto,
                                plan->cmdGoto,
                                plan->txtYear,
                                plan->txtMonth,
                                plan->txtDay,
                                plan->txtTZ,
                                plan->cmdAhora,
                                plan->hsbHour,
                                plan->cmdAnimDia,
                                plan->hsbAnimVel,
                                plan->chkMostrarObjetivo,
                                plan->chkTrayectoriaCeleste,
                                plan->chkViaLactea,
                                plan->chkTerminador,
                                plan->chkTerminadorFases,
                                plan->chkHorizonteReal,
                                plan->cmbProvider,
                                plan->cmdZoomOut,
                                plan->cmdZoomIn,
                                plan->cmdCentrar,
                                plan->cmdGloboMapa,
                                picMap,
                                picTimeline};
    for (qsizetype i = 1; i < orden.size(); ++i)
        setTabOrder(orden[i - 1], orden[i]);
}

void frmMain::Cargar()
{
    modGrafico::AplicarFuentes(this);

    modConfig::ConfigPorDefecto();
    modConfig::LeerConfig();
    modI18n::CargarIdioma(ConfigApp().Idioma);
    estado.vista.zoom = kZoomInicial;
    Retraducir();

    if (!modGDIPlus::IniciarGDIPlus())
        modMensajes::Avisar(this, TraducirCon("msg.gdi_error", modGDIPlus::UltimoErrorGDIPlus()),
                            Traducir("app.titulo"));
    modHTTP::IniciarHTTP(modRutas::RutaDatos(u"cache_tiles"));
    modGeo::EstablecerProveedorMapa(0);
    LlenarEstado();
    actuales = {};
    PonerRelojYZona();

    // A screen with no room to spare is filled, so that no edge of the window hangs over it.
    const QSize libre = screen()->availableSize() - kBordesVentana;
    resize(kTamanoInicial.boundedTo(libre));
    if (size() == kTamanoInicial)
        show();
    else
        showMaximized();
    modBombeo::Bombear();
    if (estado.Cerrando)
        return;

    if (!modOpenGL::CrearContextoGL(picMap))
        modMensajes::Avisar(this, TraducirCon("msg.opengl_error", modOpenGL::UltimoErrorGL()),
                            Traducir("app.titulo"));
    modRueda::InstalarRueda(this, [this](int delta, const QPointF& donde) { RuedaEvento(delta, donde); });

    RefrescarTodo();
    modBombeo::Bombear();
}

void frmMain::LlenarEstado()
{
    const auto& config = ConfigApp();
    estado.obsLat = config.ObsLat;
    estado.obsLon = config.ObsLon;
    estado.TieneObs = config.ObsTiene;
    estado.TgtLat = config.TgtLat;
    estado.TgtLon = config.TgtLon;
    estado.TieneTgt = false; // whatever the file holds
    estado.vista.lon = config.ObsLon;
    estado.vista.lat = config.ObsLat;
    estado.vista.zoom = kZoomInicial;
    estado.vista.ancho = picMap->width();
    estado.vista.alto = picMap->height();
}

void frmMain::PonerRelojYZona()
{
    const QDateTime ahora = modReloj::Ahora();
    const FechaCivil hoy{std::int16_t(ahora.date().year()), std::int16_t(ahora.date().month()),
                         std::int16_t(ahora.date().day())};
    estado.EscribiendoFecha = true;
    EscribirFecha(hoy);
    plan->hsbHour->setValue(ahora.time().hour() * 60 + ahora.time().minute());
    estado.EscribiendoFecha = false;
    EscribirZona(
        zonaPlan.Iniciar(zona::CalcularZonaParaFecha(hoy.anio, hoy.mes, hoy.dia, zona::RelojDelSistema())));
}

// The parts follow the client area; the map's new size goes into the view and everything is refreshed.
void frmMain::Recolocar()
{
    if (isMinimized())
        return;
    const auto d =
        disposicion::CalcularDisposicion(cliente->size(), plan->AnchoNecesario(), astros->AnchoNecesario());
    if (!d)
        return;
    plan->setGeometry(d->frame1);
    astros->setGeometry(d->frame2);
    picMap->setGeometry(d->mapa);
    picTimeline->setGeometry(d->timeline);
    picScrub->setGeometry(d->scrub);
    estado.vista.ancho = d->mapa.width();
    estado.vista.alto = d->mapa.height();
    if (isVisible())
        RefrescarTodo();
}

// The frame of the focused picture shows only to those who came there by key.
void frmMain::MarcarFoco(Qt::FocusReason razon, bool ganado)
{
    focoVisible = ganado && (razon == Qt::TabFocusReason || razon == Qt::BacktabFocusReason ||
                             razon == Qt::ShortcutFocusReason || razon == Qt::OtherFocusReason);
    picTimeline->update();
    RepintarMapa();
}

bool frmMain::eventFilter(QObject* objeto, QEvent* evento)
{
    if (objeto == cliente && evento->type() == QEvent::Resize)
        Recolocar();

    if (objeto == picTimeline && evento->type() == QEvent::KeyPress && !estado.Cerrando &&
        TeclaTimeline(*static_cast<QKeyEvent*>(evento)))
        return true;
    if ((objeto == picMap || objeto == picTimeline) &&
        (evento->type() == QEvent::FocusIn || evento->type() == QEvent::FocusOut))
        MarcarFoco(static_cast<QFocusEvent*>(evento)->reason(), evento->type() == QEvent::FocusIn);
    if (objeto == picMap && !estado.Cerrando && EventoMapa(evento))
        return true;

    if (objeto == plan->txtTZ && (evento->type() == QEvent::FocusIn || evento->type() == QEvent::FocusOut)) {
        // Another window coming forward, the question itself included, is no leaving of the box.
        const auto razon = static_cast<QFocusEvent*>(evento)->reason();
        const bool deVentana = razon == Qt::ActiveWindowFocusReason || razon == Qt::PopupFocusReason ||
                               razon == Qt::MenuBarFocusReason;
        if (!deVentana && evento->type() == QEvent::FocusIn)
            zonaPlan.AlGanarFoco(plan->txtTZ->text());
        else if (!deVentana && !estado.Cerrando)
            QTimer::singleShot(0, this, [this] { // the focus has moved on before anything is asked
                if (!estado.Cerrando && ConfirmarZona())
                    RecalcularPaneles(false);
            });
    }
    return QMainWindow::eventFilter(objeto, evento);
}

// Exit by command asks; the window's own close box does not.
void frmMain::Salir()
{
    if (!modMensajes::Preguntar(this, Traducir("msg.salir.pregunta"), Traducir("msg.salir.titulo")))
        return;
    estado.Cerrando = true;
    for (int ronda = 0; estado.Pintando && ronda < kRondasEspera; ++ronda)
        modBombeo::Bombear();
    close();
}

void frmMain::DetenerTemporizadores()
{
    for (QTimer* temporizador : {tmrAnimDia, tmrClick, tmrDescargas})
        temporizador->stop();
}

// Whatever started the closing: the wheel hook goes first, then the other windows, then the settings are
// written and the services let go in the reverse order of their start.
void frmMain::closeEvent(QCloseEvent* evento)
{
    estado.Cerrando = true;
    DetenerTemporizadores();
    modRueda::QuitarRueda();
    CerrarHerramientas();
    GuardarAlSalir();
    LiberarServicios();
    evento->accept();
}

void frmMain::LiberarServicios()
{
    modMap::LiberarTexturasMapa();
    modOpenGL::LiberarContextoGL();
    modDescargas::CerrarColaDescargas();
    modHTTP::CerrarHTTP();
    modGDIPlus::CerrarGDIPlus();
}

void frmMain::CerrarHerramientas()
{
    const QWidgetList ventanas = QApplication::topLevelWidgets();
    for (auto v = ventanas.rbegin(); v != ventanas.rend(); ++v)
        if (*v != this && (*v)->isWindow() && (*v)->isVisible())
            (*v)->close();
}

// The target's coordinates stay in the file from earlier runs, but no start shows them.
void frmMain::GuardarAlSalir()
{
    auto& config = ConfigApp();
    config.ObsLat = estado.obsLat;
    config.ObsLon = estado.obsLon;
    config.ObsTiene = estado.TieneObs;
    config.TgtLat = estado.TgtLat;
    config.TgtLon = estado.TgtLon;
    config.TgtTiene = false;
    modConfig::GuardarConfig();
}

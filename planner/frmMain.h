// frmMain: the planner's window, the one long-lived object of the program.
//
// It owns observer, target, date, hour, zone and view, and is a switchboard: each event of the user runs
// a fixed sequence of a few routines, and what these compute or paint lives in pure modules beside it.
//   frmMain.cpp          construction, start and end
//   frmMainPaneles.cpp   recomputation: panels, day curves, timeline
//   frmMainFecha.cpp     date, hour, zone, animation
//   frmMainTimeline.cpp  the pointer on timeline and scrub strip
//   frmMainMapa.cpp      the map and what moves it
//   frmMainMenu.cpp      menu, language, manual
//   frmMainHerramientas.cpp  tools and the searches they ask for
#pragma once

#include "MarcoAstros.h"
#include "MarcoPlan.h"
#include "escenaMapa.h"
#include "estadoPlanificador.h"
#include "franjaScrub.h"
#include "lineaTiempo.h"
#include "punteroMapa.h"
#include "zona.h"

#include "Lienzo.h"
#include "Planificador.h"
#include "SuperficieGL.h"

#include <QMainWindow>
#include <QPointer>
#include <QTimer>

#include <functional>
#include <optional>

class frmBuscarSolLunaAzimut;
class frmEventos;
class frmFasesLuna;
class frmMejorVL;

class frmMain : public QMainWindow, public Planificador
{
    Q_OBJECT

public:
    explicit frmMain(QWidget* padre = nullptr);
    ~frmMain() override;

    // The load event: settings, words, state, clock and zone, the window shown, the first refresh.
    void Cargar();

    // Planificador
    double obsLat() const override { return estado.obsLat; }
    double obsLon() const override { return estado.obsLon; }
    bool TieneObs() const override { return estado.TieneObs; }
    double TgtLat() const override { return estado.TgtLat; }
    double TgtLon() const override { return estado.TgtLon; }
    bool TieneTgt() const override { return estado.TieneTgt; }
    FechaCivil Fecha() const override;
    QString TextoAnio() const override { return plan->txtYear->text(); }
    double Hora() const override { return plan->hsbHour->value() / 60.0; }
    double Zona() const override;
    void IrAFechaHora(std::int16_t anio, std::int16_t mes, std::int16_t dia, std::int16_t hora,
                      std::int16_t minuto) override;
    void ActivarDestino() override;
    QString BuscarAzimut(bool luna, double azimut, std::int32_t dias) const override;
    int RutaCielo(bool luna, std::span<double> azimutes, std::span<double> altitudes) const override;
    QString EventosCelestes(std::int16_t anio) const override;
    QString MejoresNochesVL(std::int16_t anio) const override;
    bool SerieAnualVL(std::int16_t anio, std::vector<std::int16_t>& calidad) const override;

    // Astronomy and panel texts. With `soloPaneles` the day curves and the timeline stay as they are.
    // Nothing without an observer; an invalid date updates the clock and leaves everything else.
    void RecalcularPaneles(bool soloPaneles);
    // The map with its overlays, and the scrub strip; no astronomy.
    void RepintarMapa();
    // Both, and what the view needs. Refuses re-entry.
    void RefrescarTodo();
    // The caption, with " - " and `detalle` behind it when there is any.
    void ActualizarTitulo(const QString& detalle);
    // Every text again, in the present language.
    void Retraducir();

    // Opens a document; the system's own way unless another is put here.
    void PonerAbridor(std::function<void(const QString& ruta)> otro) { abridor = std::move(otro); }

    const EstadoPlanificador& Estado() const { return estado; }
    const MomentosActuales& Actuales() const { return actuales; }

protected:
    void closeEvent(QCloseEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    // Construction
    void ConstruirControles();
    void ConstruirMenu();
    void ConectarSenales();
    void ConectarFecha();
    void ConectarTimeline();
    void ConectarMapa();
    void OrdenarTabulacion();

    // Start and end
    void LlenarEstado();
    void PonerRelojYZona();
    void Recolocar();
    void MarcarFoco(Qt::FocusReason razon, bool ganado);
    void DetenerTemporizadores();
    void CerrarHerramientas();
    void GuardarAlSalir();
    void LiberarServicios();
    void Salir();

    // Panels
    void MostrarPaneles(const modAstro::MomentosDia& m, double zona);
    void MostrarGuiones();
    void PintarTimeline(const modAstro::MomentosDia& m, double zona);

    // Date, hour, zone, animation
    void EscribirFecha(const FechaCivil& fecha);
    void EscribirZona(const QString& texto);
    void SeguirZona();
    bool ConfirmarZona();
    void CambioFecha();
    void CambioHora();
    void ArrastreHora();
    void AlternarAnimacion();
    void AvanzarAnimacion();

    // Timeline and scrub strip
    void ClicTimeline(const QPointF& donde);
    bool TeclaTimeline(const QKeyEvent& tecla);
    void ArrastrarScrub(const QPointF& donde);
    void SoltarScrub();

    // Map
    EscenaMapa Escena() const;
    void ProgramarDescargas(bool limpiar);
    void SondearDescargas();
    void PonerEspera(bool esperando);
    void ObservadorCambiado();
    void FijarObservador(QPoint donde);
    void FijarObjetivo(QPoint donde);
    std::optional<QPoint> PixelDe(bool hay, double lat, double lon) const;
    bool EventoMapa(QEvent* evento);
    void PulsarMapa(QMouseEvent* evento);
    void MoverMapa(QPoint donde);
    void DobleClicMapa();
    bool TeclaMapa(QKeyEvent* evento);
    void Ejecutar(const punteroMapa::Respuesta& r);
    void RuedaEvento(int delta, const QPointF& enPantalla);
    void ZoomCentrado(std::int16_t d);
    void IrALugar();

    // Menu
    void ElegirIdioma(const QString& codigo);
    void AbrirManual();
    void MostrarAcercaDe();

    // Tools
    void ConstruirHerramientas();
    void RetraducirHerramientas();

    std::function<void(const QString&)> abridor;
    EstadoPlanificador estado;
    MomentosActuales actuales;
    ZonaPlanificador zonaPlan;
    DatosTimeline datosTimeline;
    CacheTimeline cacheTimeline;
    TablaTarjetas tarjetas; // hit table of the cards last painted
    FranjaScrub franja;
    double faseLuna = -1; // of the disc shown; negative while there is none
    bool arrastrandoScrub = false;
    bool focoVisible = false; // the focused picture wears its frame
    punteroMapa::PunteroMapa puntero;
    QPoint ultimo;               // last press on the map, for the double click
    int ruedaPendiente = 0;      // turn of the wheel short of a notch
    QPoint clic;                 // of the pending click
    bool esperandoTiles = false; // the pointer is the hourglass

    QWidget* cliente = nullptr;
    MarcoPlan* plan = nullptr;
    MarcoAstros* astros = nullptr;
    SuperficieGL* picMap = nullptr;
    Lienzo* picTimeline = nullptr;
    Lienzo* picScrub = nullptr;
    QTimer* tmrAnimDia = nullptr;
    QTimer* tmrClick = nullptr;     // runs between a quiet release and the click it may be
    QTimer* tmrDescargas = nullptr; // polls the download queue

    QMenu* mnuHerr = nullptr;
    QList<QAction*> entradasHerramientas; // each with its key as data
    QAction* mnuSalir = nullptr;
    QMenu* mnuIdioma = nullptr;
    QAction* mnuIdES = nullptr;
    QAction* mnuIdEN = nullptr;
    QAction* mnuIdFR = nullptr;
    QMenu* mnuAyuda = nullptr;
    QAction* mnuAyudaUso = nullptr;
    QAction* mnuAcerca = nullptr;

    QPointer<frmBuscarSolLunaAzimut> buscarAzimut; // null while the tool is not loaded
    QPointer<frmEventos> eventos;
    QPointer<frmMejorVL> mejorVL;
    QPointer<frmFasesLuna> fasesLuna;
};

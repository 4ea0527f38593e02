// frmMain: recomputation. Panels are always made whole; the day curves only when their key has changed.
#include "frmMain.h"

#include "fechaPlanificador.h"
#include "textosPanel.h"

#include "PerfilHorizonte.h"
#include "modAstroEstado.h"
#include "modConfig.h"
#include "modI18n.h"

#include "modDescargas.h"
#include "modMap.h"

using modI18n::Traducir;

void frmMain::RecalcularPaneles(bool soloPaneles)
{
    if (!estado.TieneObs || estado.Cerrando)
        return;
    const FechaCivil fecha = Fecha();
    const double zona = Zona();
    const double hora = Hora();
    plan->lblHour->setText(textosPanel::TextoHoraLocal(hora));
    if (!fechaPlanificador::FechaValida(fecha.anio, fecha.mes, fecha.dia))
        return;

    const bool usarHorizonte = plan->chkHorizonteReal->isChecked() &&
                               modAstroEstado::HorizonteValidoPara(estado.obsLat, estado.obsLon);
    const modAstro::MomentosDia m = modAstro::CalcularMomentosDia(
        fecha.anio, fecha.mes, fecha.dia, hora, zona, estado.obsLat, estado.obsLon, usarHorizonte);
    actuales = DeMomentosDia(m);
    MostrarPaneles(m, zona);
    if (soloPaneles)
        return;

    if (modAstroEstado::CurvasDiaCaducadas(fecha.anio, fecha.mes, fecha.dia, estado.obsLat, estado.obsLon,
                                           zona)) {
        modAstroEstado::CalcularCurvasDia(fecha.anio, fecha.mes, fecha.dia, estado.obsLat, estado.obsLon,
                                          zona);
        estado.TirasScrubObsoletas = true;
    }
    PintarTimeline(m, zona);
}

void frmMain::MostrarPaneles(const modAstro::MomentosDia& m, double zona)
{
    faseLuna = m.LunaFase;
    astros->Mostrar(textosPanel::Astros(m, zona));

    plan->lblObsCoord->setText(textosPanel::Coordenadas(estado.obsLat, estado.obsLon));
    plan->MostrarObjetivo(
        textosPanel::Objetivo(estado.obsLat, estado.obsLon, estado.TieneTgt, estado.TgtLat, estado.TgtLon));
}

// Dashes in every place, as long as there is no observer.
void frmMain::MostrarGuiones()
{
    astros->Mostrar(textosPanel::AstrosVacios());
    plan->lblHour->setText(textosPanel::TextoHoraLocalVacia());
    plan->lblObsCoord->setText(textosPanel::CoordenadasVacias());
    plan->MostrarObjetivo(textosPanel::Objetivo(0, 0, false, 0, 0));
    plan->lblCursor->setText(textosPanel::CoordenadasVacias());
}

void frmMain::PintarTimeline(const modAstro::MomentosDia& m, double zona)
{
    datosTimeline = lineaTiempo::Datos(m, zona, Hora(), actuales);
    picTimeline->update();
}

void frmMain::RefrescarTodo()
{
    if (estado.Cerrando || estado.Pintando)
        return;
    const EnPintura guardia(estado);
    RecalcularPaneles(false);
    RepintarMapa();
    if (estado.vista.zoom > 1) {
        modMap::CargarTilesVisibles(estado.vista);
        RepintarMapa();
        ProgramarDescargas(true);
        if (modDescargas::HayDescargasPendientes())
            RepintarMapa(); // the notice shows
    }
    ActualizarTitulo({});
}

void frmMain::ActualizarTitulo(const QString& detalle)
{
    const QString titulo = Traducir("app.titulo");
    setWindowTitle(detalle.isEmpty() ? titulo : titulo + QStringLiteral(" - ") + detalle);
}

// frmMain: the tools of the menu, and the searches that they ask of the planner.
#include "frmMain.h"

#include "frmBuscarSolLunaAzimut.h"
#include "frmEventos.h"
#include "frmFasesLuna.h"
#include "frmMejorVL.h"
#include "lanzador.h"
#include "modAzimut.h"
#include "modEventos.h"
#include "modI18n.h"
#include "modViaLactea.h"

#include <QMenu>

using modI18n::Traducir;

void frmMain::ConstruirHerramientas()
{
    const auto entrada = [this](const char* nombre, const char* clave, auto mostrar) {
        QAction* accion = mnuHerr->addAction(QString());
        accion->setObjectName(QLatin1String(nombre));
        accion->setData(QLatin1String(clave));
        connect(accion, &QAction::triggered, this, mostrar);
        entradasHerramientas.append(accion);
    };
    entrada("mnuHerrBuscar", "menu.herr.buscar",
            [this] { lanzador::MostrarHerramienta(buscarAzimut, *this, this); });
    entrada("mnuHerrEventos", "menu.herr.eventos",
            [this] { lanzador::MostrarHerramienta(eventos, *this, this); });
    entrada("mnuHerrMejorVL", "menu.herr.mejorvl",
            [this] { lanzador::MostrarHerramienta(mejorVL, *this, this); });
    entrada("mnuHerrFases", "menu.herr.fases",
            [this] { lanzador::MostrarHerramienta(fasesLuna, *this, this); });
    mnuHerr->addSeparator();
}

void frmMain::RetraducirHerramientas()
{
    for (QAction* accion : entradasHerramientas)
        accion->setText(Traducir(accion->data().toString()));
}

QString frmMain::BuscarAzimut(bool luna, double azimut, std::int32_t dias) const
{
    return modAzimut::BuscarAzimut(LeerContexto(*this), luna, azimut, dias);
}

int frmMain::RutaCielo(bool luna, std::span<double> azimutes, std::span<double> altitudes) const
{
    return modAzimut::RutaCielo(LeerContexto(*this), luna, azimutes, altitudes);
}

QString frmMain::EventosCelestes(std::int16_t anio) const
{
    return modEventos::EventosCelestes(LeerContexto(*this), anio);
}

QString frmMain::MejoresNochesVL(std::int16_t anio) const
{
    return modViaLactea::MejoresNochesVL(LeerContexto(*this), anio);
}

bool frmMain::SerieAnualVL(std::int16_t anio, std::vector<std::int16_t>& calidad) const
{
    return modViaLactea::SerieAnualVL(LeerContexto(*this), anio, calidad);
}

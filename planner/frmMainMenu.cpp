// frmMain: menu, language, manual, about box.
#include "frmMain.h"

#include "frmAcercaDe.h"
#include "lanzador.h"
#include "modConfig.h"
#include "modI18n.h"
#include "modRutas.h"
#include "textosPanel.h"

#include <QActionGroup>
#include <QDesktopServices>
#include <QFile>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QUrl>

using modI18n::Traducir;

void frmMain::ConstruirMenu()
{
    const auto entrada = [this](QMenu* menu, const char* nombre) {
        QAction* accion = menu->addAction(QString());
        accion->setObjectName(QLatin1String(nombre));
        return accion;
    };
    mnuHerr = menuBar()->addMenu(QString());
    mnuHerr->setObjectName(QStringLiteral("mnuHerr"));
    ConstruirHerramientas();
    mnuSalir = entrada(mnuHerr, "mnuSalir");
    mnuSalir->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    mnuSalir->setMenuRole(QAction::QuitRole);

    mnuIdioma = menuBar()->addMenu(QString());
    mnuIdioma->setObjectName(QStringLiteral("mnuIdioma"));
    auto* idiomas = new QActionGroup(this);
    for (const auto& [accion, nombre, codigo] :
         {std::tuple{&mnuIdES, "mnuIdES", "es"}, {&mnuIdEN, "mnuIdEN", "en"}, {&mnuIdFR, "mnuIdFR", "fr"}}) {
        *accion = entrada(mnuIdioma, nombre);
        (*accion)->setCheckable(true);
        (*accion)->setData(QLatin1String(codigo));
        idiomas->addAction(*accion);
    }
    connect(idiomas, &QActionGroup::triggered, this,
            [this](QAction* accion) { ElegirIdioma(accion->data().toString()); });

    mnuAyuda = menuBar()->addMenu(QString());
    mnuAyuda->setObjectName(QStringLiteral("mnuAyuda"));
    mnuAyudaUso = entrada(mnuAyuda, "mnuAyudaUso");
    mnuAyudaUso->setShortcut(QKeySequence(Qt::Key_F1));
    mnuAcerca = entrada(mnuAyuda, "mnuAcerca");
    mnuAcerca->setMenuRole(QAction::AboutRole);

    connect(mnuSalir, &QAction::triggered, this, &frmMain::Salir);
    connect(mnuAyudaUso, &QAction::triggered, this, &frmMain::AbrirManual);
    connect(mnuAcerca, &QAction::triggered, this, &frmMain::MostrarAcercaDe);
}

void frmMain::Retraducir()
{
    ActualizarTitulo({});

    mnuHerr->setTitle(Traducir("menu.herramientas"));
    RetraducirHerramientas();
    mnuSalir->setText(Traducir("menu.salir"));
    mnuIdioma->setTitle(Traducir("menu.idioma"));
    mnuIdES->setText(Traducir("menu.idioma.es"));
    mnuIdEN->setText(Traducir("menu.idioma.en"));
    mnuIdFR->setText(Traducir("menu.idioma.fr"));
    mnuAyuda->setTitle(Traducir("menu.ayuda"));
    mnuAyudaUso->setText(Traducir("menu.ayuda.usar"));
    mnuAcerca->setText(Traducir("menu.acerca"));
    const QString codigo = modI18n::IdiomaActualCodigo();
    for (QAction* idioma : {mnuIdES, mnuIdEN, mnuIdFR})
        idioma->setChecked(idioma->data().toString() == codigo);

    {
        const QSignalBlocker callada(plan->cmbProvider);
        const int elegido = plan->cmbProvider->currentIndex();
        plan->cmbProvider->clear();
        plan->cmbProvider->addItems(
            {Traducir("main.provider.osm"), Traducir("main.provider.topo"), Traducir("main.provider.esri")});
        plan->cmbProvider->setCurrentIndex(elegido >= 0 && elegido <= 2 ? elegido : 0);
    }
    plan->Retraducir(tmrAnimDia->isActive());
    astros->Retraducir();
    picMap->setAccessibleName(Traducir("main.acc.mapa"));
    picTimeline->setAccessibleName(Traducir("main.acc.timeline"));
    picScrub->setAccessibleName(Traducir("main.acc.scrub"));
    picScrub->setToolTip(Traducir("main.tip.scrub"));
    picTimeline->setToolTip(Traducir("main.tip.timeline"));

    MostrarGuiones();
    RecalcularPaneles(false);
    Recolocar(); // the frames take the width that the new words need
}

void frmMain::ElegirIdioma(const QString& codigo)
{
    modConfig::ConfigApp().Idioma = codigo;
    modI18n::CargarIdioma(codigo);
    Retraducir();
    lanzador::RetraducirVentanas(this);
    modConfig::GuardarConfig();
    RepintarMapa();
}

// The manual in the present language, or the Spanish one; what opens it is the system's affair.
void frmMain::AbrirManual()
{
    const auto ruta = [](const QString& lang) {
        return modRutas::RutaDatos(QStringLiteral("ayuda/%1/quintaluz_manual_%1.html").arg(lang));
    };
    QString manual = ruta(modI18n::IdiomaActualCodigo());
    if (!QFile::exists(manual))
        manual = ruta(QStringLiteral("es"));
    if (abridor)
        abridor(manual);
    else
        QDesktopServices::openUrl(QUrl::fromLocalFile(manual));
}

void frmMain::MostrarAcercaDe()
{
    frmAcercaDe acerca(this);
    acerca.exec();
}

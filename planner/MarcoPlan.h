// MarcoPlan (Frame1): the left frame, what the photographer sets.
//
// From top to bottom in the order of a plan: where one stands, what one aims at, when, the playing of the
// day, what the map shows. The frame only holds the controls and words; the window connects them.
#pragma once

#include "BarraMinutos.h"
#include "EtiquetaDato.h"
#include "MarcoLateral.h"
#include "textosPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

class MarcoPlan : public MarcoLateral
{
    Q_OBJECT

public:
    explicit MarcoPlan(QWidget* padre = nullptr);

    // Every fixed caption from its key. `tocando` tells whether the day is being played.
    void Retraducir(bool tocando);
    // The caption of the play button alone.
    void RotularAnimacion(bool tocando);
    void MostrarObjetivo(const textosPanel::TextosObjetivo& t);

    EtiquetaDato* lblObsCoord = nullptr;
    QLineEdit* txtGoto = nullptr;
    QPushButton* cmdGoto = nullptr;

    EtiquetaDato* lblTgtCoord = nullptr;
    EtiquetaDato* lblDist = nullptr;
    EtiquetaDato* lblBearing = nullptr;

    QLineEdit* txtYear = nullptr;
    QLineEdit* txtMonth = nullptr;
    QLineEdit* txtDay = nullptr;
    QLineEdit* txtTZ = nullptr;
    QPushButton* cmdAhora = nullptr;
    EtiquetaDato* lblHour = nullptr;
    BarraMinutos* hsbHour = nullptr;

    QPushButton* cmdAnimDia = nullptr;
    QLabel* lblVelocidad = nullptr;
    QLabel* lblVelocidadValor = nullptr;
    BarraMinutos* hsbAnimVel = nullptr;

    QCheckBox* chkMostrarObjetivo = nullptr;
    QCheckBox* chkTrayectoriaCeleste = nullptr;
    QCheckBox* chkViaLactea = nullptr;
    QCheckBox* chkTerminador = nullptr;
    QCheckBox* chkTerminadorFases = nullptr;
    QCheckBox* chkHorizonteReal = nullptr; // hidden while no skyline can be computed

    QComboBox* cmbProvider = nullptr;
    QPushButton* cmdZoomIn = nullptr;
    QPushButton* cmdZoomOut = nullptr;
    QPushButton* cmdCentrar = nullptr;
    QPushButton* cmdGloboMapa = nullptr; // hidden while there is no globe
    EtiquetaDato* lblCursor = nullptr;

private:
    void ConstruirLugar();
    void ConstruirFecha();
    void ConstruirAnimacion();
    void ConstruirMapa();
    void MedirLineas();
    QLineEdit* NuevaCaja(const char* nombre, int caracteres);

    Seccion* secObservador = nullptr;
    Seccion* secObjetivo = nullptr;
    Seccion* secFecha = nullptr;
    Seccion* secAnimacion = nullptr;
    Seccion* secCapas = nullptr;
    Seccion* secMapa = nullptr;
    QLabel* lblAnio = nullptr;
    QLabel* lblMes = nullptr;
    QLabel* lblDia = nullptr;
    QLabel* lblZona = nullptr;
};

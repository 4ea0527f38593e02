// frmBuscarSolLunaAzimut: on which days Sun or Moon stand in a given direction, as a list that leads the
// planner to each, beside a compass with the body's path of the shown day.
#pragma once

#include "VentanaHerramienta.h"
#include "brujula.h"

class Lienzo;
class LineaEstado;
class ListaLineas;
class Planificador;
class QComboBox;
class QLineEdit;

class frmBuscarSolLunaAzimut : public VentanaHerramienta
{
    Q_OBJECT

public:
    explicit frmBuscarSolLunaAzimut(Planificador& planificador, QWidget* padre = nullptr);

private:
    void ConstruirControles();
    QWidget* ConstruirPeticion();
    void ConectarSenales();
    void RetraducirResto() override;
    void Buscar();         // read, search, show
    void DibujarBrujula(); // fill datos, ask picBrujula to repaint

    Planificador& plan;
    brujula::DatosBrujula datos;

    QComboBox* cmbCuerpo = nullptr;
    QLineEdit* txtAzimut = nullptr;
    QLineEdit* txtDias = nullptr;
    QPushButton* cmdBuscar = nullptr;
    Lienzo* picBrujula = nullptr;
    ListaLineas* lstResultados = nullptr;
    LineaEstado* lblEstado = nullptr;
};

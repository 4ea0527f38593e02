// frmFasesLuna: the Moon of every day of a month as a ring of discs; a click on one takes the planner there.
#pragma once

#include "VentanaHerramienta.h"
#include "ruedaFases.h"

class Lienzo;
class Planificador;
class QComboBox;
class QLineEdit;

class frmFasesLuna : public VentanaHerramienta
{
    Q_OBJECT

public:
    explicit frmFasesLuna(Planificador& planificador, QWidget* padre = nullptr);

private:
    void ConstruirControles();
    void ConectarSenales();
    void RetraducirResto() override;
    void PrefijarFecha();
    void Mostrar(); // read, compute, show
    void IrADia(int dia);
    bool TeclaEnRueda(const QKeyEvent& tecla);

    Planificador& plan;
    ruedaFases::RuedaFases datos;

    QComboBox* cmbMes = nullptr;
    QLineEdit* txtAno = nullptr;
    QPushButton* cmdMostrar = nullptr;
    Lienzo* picRueda = nullptr;
};

// frmMejorVL: the best nights of a year for the Milky Way's centre, as a list and as a strip of colours.
#pragma once

#include "VentanaHerramienta.h"
#include "franjaVL.h"

class Lienzo;
class LineaEstado;
class ListaLineas;
class Planificador;
class QLineEdit;

class frmMejorVL : public VentanaHerramienta
{
    Q_OBJECT

public:
    explicit frmMejorVL(Planificador& planificador, QWidget* padre = nullptr);

private:
    void ConstruirControles();
    QWidget* ConstruirLeyenda();
    void ConectarSenales();
    void RetraducirResto() override;
    void Calcular(); // read, compute, show

    bool HayFranja() const { return datos.anio != 0; }
    void MostrarNoche(int noche);
    void IrANoche(int noche);
    void SenalarLinea(const QString& linea);
    bool TeclaEnFranja(const QKeyEvent& tecla);

    Planificador& plan;
    franjaVL::FranjaAnual datos;

    QLineEdit* txtAno = nullptr;
    QPushButton* cmdCalcular = nullptr;
    Lienzo* picFranja = nullptr;
    QLabel* lblFranjaInfo = nullptr;
    ListaLineas* lstNoches = nullptr;
    LineaEstado* lblEstado = nullptr;
};

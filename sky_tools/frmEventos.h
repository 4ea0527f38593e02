// frmEventos: the dated events of the sky in a year, as a list and on a calendar of Moons; each leads the
// planner to its date.
#pragma once

#include "VentanaHerramienta.h"
#include "calendario.h"

#include <optional>

class Lienzo;
class LineaEstado;
class ListaLineas;
class Planificador;
class QLineEdit;

class frmEventos : public VentanaHerramienta
{
    Q_OBJECT

public:
    explicit frmEventos(Planificador& planificador, QWidget* padre = nullptr);

private:
    void ConstruirControles();
    void ConectarSenales();
    void RetraducirResto() override;
    void Calcular(); // read, compute, show

    std::optional<calendario::Dia> DiaBajo(const QPointF& punto) const;
    void IrADia(const calendario::Dia& dia);
    bool TeclaEnCalendario(const QKeyEvent& tecla);
    QString TextoDia(const std::optional<calendario::Dia>& dia) const;

    Planificador& plan;
    calendario::CalendarioAnual datos;

    QLineEdit* txtAno = nullptr;
    QPushButton* cmdCalcular = nullptr;
    Lienzo* picCal = nullptr;
    ListaLineas* lstEventos = nullptr;
    LineaEstado* lblEstado = nullptr;
};

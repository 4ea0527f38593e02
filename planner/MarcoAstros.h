// MarcoAstros (Frame2): the right frame, what the day of Sun and Moon looks like from the observer.
//
// Each line is one text made elsewhere; the frame only shows it. picLuna shows the Moon's disc.
#pragma once

#include "EtiquetaDato.h"
#include "Seccion.h"
#include "textosPanel.h"

#include "Lienzo.h"

#include <QScrollArea>

#include <utility>
#include <vector>

class MarcoAstros : public QScrollArea
{
    Q_OBJECT

public:
    explicit MarcoAstros(QWidget* padre = nullptr);

    void Retraducir();
    void Mostrar(const textosPanel::TextosAstros& t);
    // Width that the widest day needs in the present language, logical pixels; it does not change with
    // the day that is shown.
    int AnchoNecesario() const;

    EtiquetaDato* lblSunRise = nullptr;
    EtiquetaDato* lblSunTransit = nullptr;
    EtiquetaDato* lblSunSet = nullptr;
    EtiquetaDato* lblSunAz = nullptr;
    EtiquetaDato* lblSunAlt = nullptr;
    EtiquetaDato* lblGold = nullptr;
    EtiquetaDato* lblBlue = nullptr;
    EtiquetaDato* lblCivil = nullptr;
    EtiquetaDato* lblNaut = nullptr;
    EtiquetaDato* lblAstro = nullptr;

    EtiquetaDato* lblMoonRise = nullptr;
    EtiquetaDato* lblMoonTransit = nullptr;
    EtiquetaDato* lblMoonSet = nullptr;
    EtiquetaDato* lblMoonAz = nullptr;
    EtiquetaDato* lblMoonAlt = nullptr;
    EtiquetaDato* lblMoonPhase = nullptr;
    EtiquetaDato* lblMoonIllum = nullptr;
    EtiquetaDato* lblMoonDist = nullptr;
    Lienzo* picLuna = nullptr;

private:
    // The lines with the texts that belong to them.
    std::vector<std::pair<EtiquetaDato*, QString>> Repartir(const textosPanel::TextosAstros& t) const;

    void MedirLineas();

    QWidget* contenido = nullptr;
    Seccion* secSol = nullptr;
    Seccion* secLuna = nullptr;
};

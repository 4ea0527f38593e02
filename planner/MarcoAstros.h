// MarcoAstros (Frame2): the right frame, what the day of Sun and Moon looks like from the observer.
//
// Each line is one text made elsewhere; the frame only shows it. picLuna shows the Moon's disc.
#pragma once

#include "EtiquetaDato.h"
#include "MarcoLateral.h"
#include "textosPanel.h"

#include "Lienzo.h"

#include <utility>
#include <vector>

class MarcoAstros : public MarcoLateral
{
    Q_OBJECT

public:
    explicit MarcoAstros(QWidget* padre = nullptr);

    void Retraducir();
    void Mostrar(const textosPanel::TextosAstros& t);

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

    Seccion* secSol = nullptr;
    Seccion* secLuna = nullptr;
};

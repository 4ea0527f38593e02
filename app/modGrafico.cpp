#include "modGrafico.h"

#include "EstiloNoche.h"
#include "hojaEstilo.h"
#include "paleta.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <utility>
#include <vector>

namespace modGrafico {

namespace {

bool DibujaSuTexto(const QWidget* w)
{
    const QString nombre = w->objectName();
    return nombre == QLatin1String("picMap") || nombre == QLatin1String("picTimeline") ||
           nombre == QLatin1String("picScrub");
}

void CambiarFamilia(QWidget* w, const char* familia)
{
    QFont f = w->font();
    f.setFamilies({QLatin1String(familia)});
    w->setFont(f);
}

QPalette PaletaNoche()
{
    QPalette p;
    p.setColor(QPalette::Window, paleta::kVentana);
    p.setColor(QPalette::WindowText, paleta::kTexto);
    p.setColor(QPalette::Base, paleta::kCampo);
    p.setColor(QPalette::AlternateBase, paleta::kPanel);
    p.setColor(QPalette::Text, paleta::kTexto);
    p.setColor(QPalette::PlaceholderText, paleta::kTextoTenue);
    p.setColor(QPalette::Button, paleta::kBoton);
    p.setColor(QPalette::ButtonText, paleta::kTexto);
    p.setColor(QPalette::BrightText, paleta::kAcento);
    p.setColor(QPalette::ToolTipBase, paleta::kPanel);
    p.setColor(QPalette::ToolTipText, paleta::kTexto);
    p.setColor(QPalette::Highlight, paleta::kAcentoOscuro);
    p.setColor(QPalette::HighlightedText, paleta::kTexto);
    p.setColor(QPalette::Link, paleta::kAcento);
    p.setColor(QPalette::LinkVisited, paleta::kAcento);
    p.setColor(QPalette::Light, paleta::kBotonEncima);
    p.setColor(QPalette::Midlight, paleta::kBoton);
    p.setColor(QPalette::Mid, paleta::kBorde);
    p.setColor(QPalette::Dark, paleta::kCampo);
    p.setColor(QPalette::Shadow, Qt::black);
    for (const auto rol :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText}) {
        p.setColor(QPalette::Disabled, rol, paleta::kTextoInerte);
    }
    p.setColor(QPalette::Disabled, QPalette::Highlight, paleta::kBoton);
    return p;
}

} // namespace

QFont FuenteDiseno()
{
    QFont f(QString::fromLatin1(kFuenteDiseno));
    f.setPixelSize(kPixelesFuente);
    return f;
}

void AplicarFuentes(QWidget* ventana)
{
    if (ventana == nullptr) {
        return;
    }
    // A control without a font of its own follows the window's, so the pictures are told theirs first.
    const QString diseno = QString::fromLatin1(kFuenteDiseno);
    std::vector<QWidget*> cambian;
    for (QWidget* w : ventana->findChildren<QWidget*>()) {
        if (w->font().family() != diseno) {
            continue;
        }
        if (DibujaSuTexto(w)) {
            CambiarFamilia(w, kFuenteDiseno);
        } else {
            cambian.push_back(w);
        }
    }
    if (ventana->font().family() == diseno) {
        CambiarFamilia(ventana, kFuenteModerna);
    }
    for (QWidget* w : cambian) {
        if (w->font().family() == diseno) {
            CambiarFamilia(w, kFuenteModerna);
        }
    }
}

void AplicarTema(QApplication& aplicacion)
{
    QFont f(QString::fromLatin1(kFuenteModerna));
    f.setPixelSize(kPixelesFuente);
    aplicacion.setStyle(new EstiloNoche);
    aplicacion.setPalette(PaletaNoche());
    aplicacion.setFont(f);
    aplicacion.setStyleSheet(hojaEstilo::Texto());
}

QFont FuenteFija()
{
    QFont f = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    f.setPixelSize(kPixelesFuente);
    return f;
}

} // namespace modGrafico

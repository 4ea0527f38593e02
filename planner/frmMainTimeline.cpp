// frmMain: the pointer on the timeline's cards and on the scrub strip. Both are views on the hour bar.
#include "frmMain.h"

#include "paleta.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

void frmMain::ConectarTimeline()
{
    picTimeline->AlPintar([this](QPainter& p, const QRectF& r) {
        if (datosTimeline.lista)
            tarjetas = cacheTimeline.Pintar(p, r.width(), r.height(), datosTimeline);
        else
            p.fillRect(r, lineaTiempo::kFondo);
        if (focoVisible && picTimeline->hasFocus()) {
            p.setPen(paleta::kAcento);
            p.drawRect(r.adjusted(0, 0, -1, -1));
        }
    });
    picTimeline->setFocusPolicy(Qt::StrongFocus);
    picTimeline->installEventFilter(this); // keys
    connect(picTimeline, &Lienzo::Pulsado, this, [this](Qt::MouseButton boton, const QPointF& donde) {
        if (boton == Qt::LeftButton)
            ClicTimeline(donde);
    });

    picScrub->AlPintar([this](QPainter& p, const QRectF& r) {
        p.fillRect(r, lineaTiempo::kFondo);
        franja.Pintar(p, r.width(), r.height(), plan->hsbHour->value(), estado.TirasScrubObsoletas);
        estado.TirasScrubObsoletas = false;
    });
    connect(picScrub, &Lienzo::Pulsado, this, [this](Qt::MouseButton boton, const QPointF& donde) {
        if (boton != Qt::LeftButton)
            return;
        arrastrandoScrub = true;
        ArrastrarScrub(donde);
    });
    connect(picScrub, &Lienzo::Movido, this, [this](Qt::MouseButtons, const QPointF& donde) {
        if (arrastrandoScrub)
            ArrastrarScrub(donde);
    });
    connect(picScrub, &Lienzo::Soltado, this, [this](Qt::MouseButton boton, const QPointF&) {
        if (boton == Qt::LeftButton)
            SoltarScrub();
    });
}

void frmMain::ClicTimeline(const QPointF& donde)
{
    if (estado.Cerrando)
        return;
    if (const auto hora = tarjetas.HoraEn(donde.x(), donde.y()))
        plan->hsbHour->setValue(
            std::clamp(int(std::nearbyint(*hora * 60)), plan->hsbHour->minimum(), plan->hsbHour->maximum()));
}

// Left and Right go from card to card, and round the day's ends.
bool frmMain::TeclaTimeline(const QKeyEvent& tecla)
{
    if (tecla.key() != Qt::Key_Left && tecla.key() != Qt::Key_Right)
        return false;
    if (const auto hora = tarjetas.HoraVecina(Hora(), tecla.key() == Qt::Key_Right))
        plan->hsbHour->setValue(int(std::nearbyint(*hora * 60)));
    return true;
}

void frmMain::ArrastrarScrub(const QPointF& donde)
{
    if (picScrub->width() <= 0)
        return;
    const int valor = int(std::nearbyint(donde.x() * 1440 / picScrub->width()));
    plan->hsbHour->setValue(std::clamp(valor, 0, 1440));
}

void frmMain::SoltarScrub()
{
    if (!arrastrandoScrub)
        return;
    arrastrandoScrub = false;
    RecalcularPaneles(false);
    RepintarMapa();
}

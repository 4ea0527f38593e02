#include "disposicion.h"

namespace disposicion {

std::optional<Disposicion> CalcularDisposicion(QSize cliente, int ancho1, int ancho2)
{
    const int anchoTwips = cliente.width() * kTwipsPorPixel;
    const int altoTwips = cliente.height() * kTwipsPorPixel;
    if (anchoTwips < kAnchoMinimo || altoTwips < kAltoMinimo)
        return std::nullopt;

    const int anchoMapa = anchoTwips - (ancho1 + ancho2) * kTwipsPorPixel;
    const int altoMapa = altoTwips - kAltoScrub - kAltoTimeline;
    if (anchoMapa < kMapaMinimo || altoMapa < kMapaMinimo)
        return std::nullopt;

    // The map takes whole pixels; the fraction that is left goes to the strip at the foot.
    const int ancho = anchoMapa / kTwipsPorPixel;
    const int alto = altoMapa / kTwipsPorPixel;
    const int altoTimeline = kAltoTimeline / kTwipsPorPixel;
    const int altoScrub = cliente.height() - alto - altoTimeline;

    Disposicion d;
    d.frame1 = QRect(0, 0, ancho1, cliente.height());
    d.frame2 = QRect(cliente.width() - ancho2, 0, ancho2, cliente.height());
    d.mapa = QRect(ancho1, 0, ancho, alto);
    d.timeline = QRect(ancho1, alto, ancho, altoTimeline);
    d.scrub = QRect(ancho1, alto + altoTimeline, ancho, altoScrub);
    return d;
}

} // namespace disposicion

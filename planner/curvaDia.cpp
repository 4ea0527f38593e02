#include "curvaDia.h"

#include <algorithm>
#include <cmath>

namespace curvaDia {

namespace {

// Premultiplied source over destination, the source's alpha scaled by a coverage of 0 to 1.
QRgb Sobre(QRgb fondo, QRgb color, double cobertura)
{
    const double a = qAlpha(color) / 255.0 * cobertura;
    const auto canal = [a](int encima, int debajo) {
        return static_cast<int>(std::lround(encima * a + debajo * (1.0 - a)));
    };
    return qRgba(canal(qRed(color), qRed(fondo)), canal(qGreen(color), qGreen(fondo)),
                 canal(qBlue(color), qBlue(fondo)), canal(255, qAlpha(fondo)));
}

} // namespace

void Trazar(QImage& capa, std::span<const double> y, double grosor, QRgb color)
{
    const std::size_t n = std::min(y.size(), static_cast<std::size_t>(capa.width()));
    const qsizetype paso = capa.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
    auto* pixeles = reinterpret_cast<QRgb*>(capa.bits());
    for (std::size_t x = 0; x < n; ++x) {
        const std::size_t antes = x > 0 ? x - 1 : x;
        const std::size_t despues = x + 1 < n ? x + 1 : x;
        const double pendiente =
            despues > antes ? (y[despues] - y[antes]) / static_cast<double>(despues - antes) : 0.0;
        const double medio = grosor / 2.0 * std::sqrt(1.0 + pendiente * pendiente);
        const double arriba = std::clamp(y[x] - medio, 0.0, static_cast<double>(capa.height()));
        const double abajo = std::clamp(y[x] + medio, 0.0, static_cast<double>(capa.height()));
        for (int fila = static_cast<int>(arriba); fila < abajo; ++fila) {
            const double cobertura = std::min(abajo, fila + 1.0) - std::max<double>(arriba, fila);
            QRgb& pixel = pixeles[fila * paso + static_cast<qsizetype>(x)];
            pixel = Sobre(pixel, color, cobertura);
        }
    }
}

} // namespace curvaDia

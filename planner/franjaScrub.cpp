#include "franjaScrub.h"

#include "cielo.h"
#include "rotulos.h"

#include "modAstroEstado.h"
#include "modFormato.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace {

constexpr QColor kBlanco{255, 255, 255};
constexpr double kAire = 4.0;            // pixels beside the text
constexpr QColor kTras{20, 24, 34, 205}; // behind the clock

// Colours of n columns, n > 1: the first shows the first sample, the last stands just before the end.
std::vector<QRgb> ColoresDe(std::span<const double> alt, std::size_t n)
{
    constexpr double kUltima = 143.9; // sample at the last column
    std::vector<QRgb> colores(n);
    for (std::size_t x = 0; x < n; ++x) {
        const double i = static_cast<double>(x) * kUltima / static_cast<double>(n - 1);
        const std::size_t primera = std::min(static_cast<std::size_t>(i), alt.size() - 1);
        const std::size_t segunda = std::min(primera + 1, alt.size() - 1);
        colores[x] = cielo::ColorScrub(alt[primera] +
                                       (alt[segunda] - alt[primera]) * (i - static_cast<double>(primera)));
    }
    return colores;
}

} // namespace

QString franjaScrub::TextoMarca(int minuto)
{
    return QLatin1String("<<  ") + modFormato::TextoReloj(minuto) + QLatin1String("  >>");
}

void FranjaScrub::Pintar(QPainter& p, double ancho, double alto, std::span<const double> altSol, int minuto,
                         bool obsoletas)
{
    const double columnas = std::ceil(ancho * std::max(p.deviceTransform().m11(), 1.0));
    if (altSol.empty() || !(ancho >= 2.0) || !(alto > 0.0))
        return;
    if (obsoletas || ancho != anchoPrevio || alto != altoPrevio ||
        columnas != static_cast<double>(colores.size())) {
        colores = ColoresDe(altSol, static_cast<std::size_t>(columnas));
        anchoPrevio = ancho;
        altoPrevio = alto;
    }

    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    const QImage fila(reinterpret_cast<const uchar*>(colores.data()), static_cast<int>(colores.size()), 1,
                      QImage::Format_RGB32);
    p.drawImage(QRectF(0.0, 0.0, ancho, alto), fila);

    p.setFont(rotulos::Fuente(p.font(), 9));
    const QString texto = franjaScrub::TextoMarca(minuto);
    const QFontMetricsF fm(p.font());
    const double x = std::clamp(std::round(minuto * ancho / 1440.0), 0.0, ancho - 1.0);
    const double w = std::ceil(fm.horizontalAdvance(texto)) + 2.0 * kAire;
    const double h = std::min(std::ceil(fm.capHeight()) + 6.0, alto);
    const QRectF caja(std::round(std::max(std::min(x + 0.5 - w / 2.0, ancho - w), 0.0)),
                      std::round((alto - h) / 2.0), w, h);
    const bool tapaTexto = x >= caja.left() + kAire && x <= caja.right() - kAire;
    const QRectF linea(x, 0.0, 1.0, alto);
    p.fillRect(linea, kBlanco);
    p.fillRect(caja, kTras);
    if (!tapaTexto) // at the ends of the day the line stands beside the text
        p.fillRect(linea, kBlanco);
    rotulos::Escribir(p, caja, Qt::AlignCenter, texto, kBlanco);
    p.restore();
}

void FranjaScrub::Pintar(QPainter& p, double ancho, double alto, int minuto, bool obsoletas)
{
    if (modAstroEstado::TrayectoriasValidas())
        Pintar(p, ancho, alto, modAstroEstado::TrayectoriaSol().altitud, minuto, obsoletas);
}

#include "pintorTarjetas.h"

#include "modI18n.h"
#include "rotulos.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace pintorTarjetas {

namespace {

constexpr QColor kCarta{53, 58, 76};
constexpr QColor kNombre{190, 196, 210};
constexpr QColor kReloj{255, 255, 255};
constexpr QColor kDetalle{176, 183, 199};
constexpr QColor kMarco{255, 255, 255};

constexpr double kAire = 2.0; // pixels between text and the side of its card

struct Raya
{
    QLatin1String nombre;
    QColor color;
};

const Raya kRayas[] = {
    {QLatin1String("Salida sol"), QColor(255, 215, 0)},
    {QLatin1String("Puesta sol"), QColor(255, 80, 30)},
    {QLatin1String("Salida luna"), QColor(180, 220, 240)},
    {QLatin1String("Puesta luna"), QColor(200, 160, 220)},
};

const QColor* ColorRaya(const QString& nombre)
{
    for (const Raya& r : kRayas)
        if (r.nombre == nombre)
            return &r.color;
    return nullptr;
}

// Name of a card as wide as it may be in a letter: the full name, else its short form.
QString NombreQueCabe(const TarjetaEvento& carta, const QFontMetricsF& fm, double ancho)
{
    const QString nombre = modI18n::Traducir(tarjetas::ClaveTarjeta(carta.nombre));
    if (fm.horizontalAdvance(nombre) <= ancho)
        return nombre;
    const QString corta = tarjetas::ClaveCortaTarjeta(carta.nombre);
    return corta.isEmpty() ? nombre : modI18n::Traducir(corta);
}

// One line of every card in one letter.
struct Linea
{
    QFont fuente;
    std::vector<QString> textos;
};

constexpr int kEstrechos[] = {100, 90, 80, 72}; // percent of the letter's width

// What becomes of a text that is too wide in the smallest letter: a cut number would lie.
enum class SiNoCabe
{
    Elidir,
    Omitir,
};

// The first letter in which every text fits: sizes in points from the largest, each in its widths. In the
// last one, what still does not fit is elided or left out.
template <typename Texto>
Linea Componer(const QFont& base, std::initializer_list<int> tamanos, std::size_t n, double ancho,
               SiNoCabe siNoCabe, const Texto& texto)
{
    Linea linea;
    for (const int tamano : tamanos) {
        for (const int estrecho : kEstrechos) {
            linea.fuente = rotulos::Fuente(base, tamano);
            linea.fuente.setStretch(estrecho);
            const QFontMetricsF fm(linea.fuente);
            linea.textos.clear();
            bool caben = true;
            for (std::size_t i = 0; i < n; ++i) {
                linea.textos.push_back(texto(i, fm));
                caben = caben && fm.horizontalAdvance(linea.textos.back()) <= ancho;
            }
            if (caben)
                return linea;
        }
    }
    const QFontMetricsF fm(linea.fuente);
    for (QString& t : linea.textos)
        if (fm.horizontalAdvance(t) > ancho)
            t = siNoCabe == SiNoCabe::Elidir ? fm.elidedText(t, Qt::ElideRight, ancho) : QString();
    return linea;
}

void PintarCarta(QPainter& p, const TablaTarjetas::Celda& celda, const QString& nombre)
{
    // Whole pixels, so that neighbours keep their gap and frames stay sharp.
    const double x1 = std::round(celda.x1);
    const QRectF r(x1, 0.0, std::max(std::round(celda.x2) - x1, 1.0), tarjetas::kAlto);
    const QColor* raya = ColorRaya(nombre);
    if (raya == nullptr) {
        p.fillRect(r, kCarta);
        return;
    }
    p.fillRect(r, kMarco);
    const QRectF dentro = r.adjusted(1, 1, -1, -1);
    p.fillRect(dentro, kCarta);
    p.fillRect(QRectF(dentro.left(), dentro.bottom() - 6, dentro.width(), 2), *raya);
    p.fillRect(QRectF(dentro.left(), dentro.bottom() - 3, dentro.width(), 2), *raya);
}

} // namespace

void Pintar(QPainter& p, const std::vector<TarjetaEvento>& cartas, const TablaTarjetas& tabla)
{
    if (cartas.empty())
        return;
    for (std::size_t i = 0; i < cartas.size(); ++i)
        PintarCarta(p, tabla.celdas[i], cartas[i].nombre);

    const double ancho = tabla.celdas[0].x2 - tabla.celdas[0].x1 - 2.0 * kAire;
    if (ancho < 1.0)
        return;
    const auto escribir = [&](const Linea& linea, double y, const QColor& color) {
        p.setFont(linea.fuente);
        for (std::size_t i = 0; i < cartas.size(); ++i) {
            const TablaTarjetas::Celda& c = tabla.celdas[i];
            rotulos::Escribir(p, QRectF(c.x1, y, c.x2 - c.x1, 20.0), Qt::AlignHCenter | Qt::AlignTop,
                              linea.textos[i], color);
        }
    };
    const std::size_t n = cartas.size();
    const QFont base = p.font();
    const auto nombre = [&](std::size_t i, const QFontMetricsF& fm) {
        return NombreQueCabe(cartas[i], fm, ancho);
    };
    const auto reloj = [&](std::size_t i, const QFontMetricsF&) {
        return tarjetas::TextoRelojTarjeta(cartas[i].hora);
    };
    const auto linea3 = [&](std::size_t i, const QFontMetricsF&) { return cartas[i].linea3; };
    const auto linea4 = [&](std::size_t i, const QFontMetricsF&) { return cartas[i].linea4; };
    escribir(Componer(base, {7}, n, ancho, SiNoCabe::Elidir, nombre), 2.0, kNombre);
    escribir(Componer(base, {9, 8, 7}, n, ancho, SiNoCabe::Omitir, reloj), 16.0, kReloj);
    escribir(Componer(base, {7, 6}, n, ancho, SiNoCabe::Omitir, linea3), 36.0, kDetalle);
    escribir(Componer(base, {7, 6}, n, ancho, SiNoCabe::Omitir, linea4), 50.0, kDetalle);
}

} // namespace pintorTarjetas

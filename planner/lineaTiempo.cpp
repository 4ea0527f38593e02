#include "lineaTiempo.h"

#include "cielo.h"
#include "curvaDia.h"
#include "pintorTarjetas.h"
#include "rotulos.h"

#include "modColor.h"
#include "modConfig.h"
#include "modFormato.h"

#include <QFontMetricsF>
#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace lineaTiempo {

namespace {

using Altitudes = std::array<double, modAstroEstado::kMuestrasDia>;

constexpr int kMuestras = modAstroEstado::kMuestrasDia;

constexpr QColor kRejillaAltitud{200, 205, 215};
constexpr QColor kRejillaHora{190, 195, 205};
constexpr QColor kEtiqueta{245, 245, 245};
constexpr QColor kHorizonte{220, 220, 220};
constexpr QColor kEtiquetaHora{180, 185, 195};
constexpr QColor kCaja{20, 24, 34};
constexpr QColor kCajaLectura{20, 24, 34, 190};
constexpr QColor kBlanco{255, 255, 255};
constexpr QColor kBordeCurva{12, 16, 28, 110}; // sets the curves off from a sky as light as they are

constexpr double kAltoReloj = 16.0;
constexpr double kAltoLectura = 12.0; // one line of the readouts

// Device pixels per logical one across the picture.
double Escala(const QPainter& p)
{
    return std::max(p.deviceTransform().m11(), 1.0);
}

void PintarCielo(QPainter& p, double ancho, double alto, const Altitudes& alt)
{
    const int columnas = std::max(static_cast<int>(std::ceil(ancho * Escala(p))), 1);
    QImage fila(columnas, 1, QImage::Format_RGB32);
    auto* pixel = reinterpret_cast<QRgb*>(fila.scanLine(0));
    for (int x = 0; x < columnas; ++x)
        pixel[x] = cielo::ColorCielo(AltitudEn(alt, x, columnas));
    p.drawImage(QRectF(0.0, kArriba, ancho, alto - kPie - kArriba), fila);
}

void PintarRejilla(QPainter& p, double ancho, double alto)
{
    const double abajo = alto - kPie;
    for (int alt = -90; alt <= 90; alt += 30)
        p.fillRect(QRectF(0.0, std::round(AltitudAY(alt, alto)), ancho, 1.0), kRejillaAltitud);
    for (int h = 0; h <= 24; h += 3)
        p.fillRect(QRectF(std::min(std::round(h * ancho / 24.0), ancho - 1.0), kArriba, 1.0, abajo - kArriba),
                   kRejillaHora);
    p.setFont(rotulos::Fuente(p.font(), 7));
    for (int alt = -90; alt <= 90; alt += 30)
        rotulos::EscribirConHalo(p, QRectF(4.0, std::round(AltitudAY(alt, alto)) + 2.0, 40.0, 12.0),
                                 Qt::AlignLeft | Qt::AlignTop, modFormato::Format(alt, u"0") + QChar(u'°'),
                                 kEtiqueta);
}

void PintarHorizonte(QPainter& p, double ancho, double alto)
{
    const double y = std::round(AltitudAY(0.0, alto));
    p.fillRect(QRectF(0.0, y, ancho, 1.0), kHorizonte);
    p.setFont(rotulos::Fuente(p.font(), 7));
    rotulos::EscribirConHalo(p, QRectF(40.0, y - 14.0, 120.0, 12.0), Qt::AlignLeft | Qt::AlignBottom,
                             QStringLiteral("Horizonte: +0,00°"), kHorizonte);
}

// Both curves with their dark edges, one point per device column, as a layer over the plot.
void PintarCurvas(QPainter& p, double ancho, double alto, const DatosTimeline& datos)
{
    const double escala = Escala(p);
    const int columnas = std::max(static_cast<int>(std::ceil(ancho * escala)), 1);
    QImage capa(columnas, static_cast<int>(std::ceil((alto - kPie - kArriba) * escala)),
                QImage::Format_ARGB32_Premultiplied);
    capa.setDevicePixelRatio(escala);
    capa.fill(Qt::transparent);
    std::vector<double> y(static_cast<std::size_t>(columnas));
    const auto curva = [&](const Altitudes& alt, const QColor& color) {
        for (int x = 0; x < columnas; ++x)
            y[static_cast<std::size_t>(x)] =
                (AltitudAY(AltitudEn(alt, x, columnas), alto) + 0.5 - kArriba) * escala;
        curvaDia::Trazar(capa, y, 4.0 * escala, kBordeCurva.rgba());
        curvaDia::Trazar(capa, y, 2.0 * escala, color.rgba());
    };
    curva(datos.altSol, datos.colorSol);
    curva(datos.altLuna, datos.colorLuna);
    p.drawImage(QPointF(0.0, kArriba), capa);
}

void PintarHoras(QPainter& p, double ancho, double alto)
{
    p.setFont(rotulos::Fuente(p.font(), 7));
    for (int h = 2; h <= 23; h += 3)
        rotulos::Escribir(p, QRectF(h * ancho / 24.0 - 25.0, alto - kPie + 2.0, 50.0, 12.0),
                          Qt::AlignHCenter | Qt::AlignTop,
                          modFormato::Format(h, u"00") + QLatin1String(":00"), kEtiquetaHora);
}

// One readout: the body's name, then altitude and azimuth, each flush right in its own column so that the
// figures of Sun and Moon stand one above the other.
struct Lectura
{
    QString nombre;
    QString altitud;
    QString azimut;
    QColor color;
};

Lectura Leer(const QString& nombre, double alt, double az, const QColor& color)
{
    const auto grados = [](double v) { return modFormato::Format(v, u"0.00") + QChar(u'°'); };
    return {nombre, grados(alt), grados(az), color};
}

// The line of the present hour, its clock and the readouts hang together like a flag: to the right of the
// line, or to the left where they would leave the picture.
void PintarHoraActual(QPainter& p, double ancho, double alto, const DatosTimeline& datos)
{
    const double x = std::clamp(std::round(datos.hora * ancho / 24.0), 0.0, ancho - 1.0);
    p.fillRect(QRectF(x, kArriba, 1.0, alto - kPie - kArriba), kBlanco);

    const auto mitad = [x, ancho](double w) { return x + w <= ancho ? x : std::max(x + 1.0 - w, 0.0); };
    const QFont letraReloj = rotulos::Fuente(p.font(), 9);
    const QString reloj = modFormato::TextoReloj(static_cast<int>(std::nearbyint(datos.hora * 60.0)));
    const double anchoReloj = std::ceil(QFontMetricsF(letraReloj).horizontalAdvance(reloj)) + 12.0;
    const QRectF caja(mitad(anchoReloj), kArriba, anchoReloj, kAltoReloj);
    p.fillRect(caja, kBlanco);
    p.fillRect(caja.adjusted(1, 1, -1, -1), kCaja);
    p.setFont(letraReloj);
    rotulos::Escribir(p, caja, Qt::AlignCenter, reloj, kBlanco);

    if (datos.ahora.SolAltActual <= -998.0 || datos.ahora.LunaAltActual <= -998.0)
        return;
    const Lectura lecturas[] = {
        Leer(QStringLiteral("Sol  "), datos.ahora.SolAltActual, datos.ahora.SolAzActual, datos.colorSol),
        Leer(QStringLiteral("Luna "), datos.ahora.LunaAltActual, datos.ahora.LunaAzActual, datos.colorLuna),
    };
    const QFont letra = rotulos::Fuente(p.font(), 7);
    const QFontMetricsF fm(letra);
    // Columns as wide as their widest number, so that nothing shifts while the hour moves.
    const double wNombre = fm.horizontalAdvance(lecturas[1].nombre);
    const double wAltitud = fm.horizontalAdvance(QStringLiteral("-00,00°"));
    const double wAzimut = fm.horizontalAdvance(QStringLiteral("  000,00°"));
    const double anchoLectura = std::ceil(wNombre + wAltitud + wAzimut) + 10.0;
    const double xLectura = x + 1.0 + anchoLectura <= ancho ? x + 1.0 : std::max(x - anchoLectura, 0.0);
    const double yLectura = kArriba + kAltoReloj;
    p.fillRect(QRectF(xLectura, yLectura, anchoLectura, 2.0 * kAltoLectura + 3.0), kCajaLectura);
    p.setFont(letra);
    double y = yLectura + 1.0;
    for (const Lectura& l : lecturas) {
        double izquierda = xLectura + 5.0;
        const auto columna = [&](double w, int alineacion, const QString& texto) {
            rotulos::Escribir(p, QRectF(izquierda, y, w, kAltoLectura), alineacion | Qt::AlignVCenter, texto,
                              l.color);
            izquierda += w;
        };
        columna(wNombre, Qt::AlignLeft, l.nombre);
        columna(wAltitud, Qt::AlignRight, l.altitud);
        columna(wAzimut, Qt::AlignRight, l.azimut);
        y += kAltoLectura;
    }
}

} // namespace

DatosTimeline Datos(const modAstro::MomentosDia& m, double zona, double hora, const MomentosActuales& ahora)
{
    DatosTimeline d;
    d.lista = true;
    d.tarjetas = tarjetas::ConstruirTarjetas(m, zona);
    d.curvas = modAstroEstado::TrayectoriasValidas();
    d.altSol = modAstroEstado::TrayectoriaSol().altitud;
    d.altLuna = modAstroEstado::TrayectoriaLuna().altitud;
    d.colorSol = modColor::Desempaquetar(modConfig::ConfigApp().ColorCurvaSol);
    d.colorLuna = modColor::Desempaquetar(modConfig::ConfigApp().ColorCurvaLuna);
    d.hora = hora;
    d.ahora = ahora;
    return d;
}

double AltitudAY(double alt, double alto)
{
    return kArriba + (90.0 - alt) / 180.0 * (alto - kPie - kArriba);
}

double AltitudEn(const Altitudes& alt, double x, double ancho)
{
    const double i = x * kMuestras / ancho;
    const double entera = std::clamp(std::floor(i), 0.0, kMuestras - 1.0);
    const auto primera = static_cast<std::size_t>(entera);
    const std::size_t segunda = std::min(primera + 1, static_cast<std::size_t>(kMuestras - 1));
    return alt[primera] + (alt[segunda] - alt[primera]) * (i - entera);
}

namespace {

bool HayGrafico(double ancho, double alto)
{
    return ancho >= 2.0 && alto - kPie - kArriba >= kMinimo;
}

} // namespace

void PintarGrafico(QPainter& p, double ancho, double alto, const DatosTimeline& datos)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    p.fillRect(QRectF(0.0, 0.0, ancho, alto), kFondo);
    if (HayGrafico(ancho, alto)) {
        if (datos.curvas)
            PintarCielo(p, ancho, alto, datos.altSol);
        PintarRejilla(p, ancho, alto);
        PintarHorizonte(p, ancho, alto);
        if (datos.curvas)
            PintarCurvas(p, ancho, alto, datos);
        PintarHoras(p, ancho, alto);
    }
    p.restore();
}

TablaTarjetas PintarTarjetas(QPainter& p, double ancho, const DatosTimeline& datos)
{
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    TablaTarjetas tabla = tarjetas::Colocar(datos.tarjetas, ancho);
    pintorTarjetas::Pintar(p, datos.tarjetas, tabla);
    p.restore();
    return tabla;
}

void PintarAhora(QPainter& p, double ancho, double alto, const DatosTimeline& datos)
{
    if (!HayGrafico(ancho, alto))
        return;
    p.save();
    p.setRenderHint(QPainter::Antialiasing, false);
    PintarHoraActual(p, ancho, alto, datos);
    p.restore();
}

bool HaySitio(double ancho, double alto)
{
    return ancho >= 2.0 && alto >= 1.0;
}

TablaTarjetas PintarTimeline(QPainter& p, double ancho, double alto, const DatosTimeline& datos)
{
    if (!HaySitio(ancho, alto))
        return {};
    PintarGrafico(p, ancho, alto, datos);
    TablaTarjetas tabla = PintarTarjetas(p, ancho, datos);
    PintarAhora(p, ancho, alto, datos);
    return tabla;
}

} // namespace lineaTiempo

TablaTarjetas CacheTimeline::Pintar(QPainter& p, double ancho, double alto, const DatosTimeline& datos)
{
    if (!lineaTiempo::HaySitio(ancho, alto))
        return {};
    const double escala = p.device()->devicePixelRatioF();
    const QSize tamano = (QSizeF(ancho, alto) * escala).toSize();
    const bool vale = grafico.size() == tamano && curvas == datos.curvas && colorSol == datos.colorSol &&
                      colorLuna == datos.colorLuna && altSol == datos.altSol && altLuna == datos.altLuna;
    if (!vale) {
        grafico = QPixmap(tamano);
        grafico.setDevicePixelRatio(escala);
        QPainter pintor(&grafico);
        pintor.setFont(p.font());
        lineaTiempo::PintarGrafico(pintor, ancho, alto, datos);
        curvas = datos.curvas;
        colorSol = datos.colorSol;
        colorLuna = datos.colorLuna;
        altSol = datos.altSol;
        altLuna = datos.altLuna;
    }
    p.drawPixmap(QPointF(0, 0), grafico);
    TablaTarjetas tabla = lineaTiempo::PintarTarjetas(p, ancho, datos);
    lineaTiempo::PintarAhora(p, ancho, alto, datos);
    return tabla;
}

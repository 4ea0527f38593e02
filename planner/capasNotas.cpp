// capas: what is written over the map: notice of downloads, scale, credit.
#include "capas.h"

#include "modFormato.h"
#include "modI18n.h"

#include <QStringList>

#include <algorithm>
#include <cmath>

using modFormato::Format;
using modOpenGL::RGB;

namespace capas {

// --- Notice

void PintarAvisoDescargas(LienzoMapa& lienzo, const EscenaMapa& e)
{
    constexpr double kAlto = 58.0, kAire = 42.0, kAnchoMinimo = 210.0;
    constexpr std::int32_t kRegla = RGB(255, 190, 65);
    constexpr int kLetra1 = 11, kLetra2 = 9;

    if (!e.hayDescargas)
        return;
    const QString primera = modI18n::Traducir("descarga.aviso_0");
    const QString segunda = e.descargas >= 2
                                ? modI18n::TraducirCon("descarga.aviso_n", QString::number(e.descargas))
                            : e.descargas == 1 ? modI18n::Traducir("descarga.aviso_1")
                                               : primera;
    const double w1 = lienzo.MedirTexto(primera, kLetra1, true);
    const double w2 = lienzo.MedirTexto(segunda, kLetra2, false);
    const double ancho = std::max(std::max(w1, w2) + kAire, kAnchoMinimo);
    const double x = std::floor((e.vista.ancho - ancho) / 2.0);
    const double y = std::floor((e.vista.alto - kAlto) / 2.0);
    lienzo.Velo(x, y, x + ancho, y + kAlto, {0.04, 0.055, 0.085, 0.82});
    lienzo.Rectangulo(x, y, x + ancho, y + 1.0, kRegla);
    lienzo.Rectangulo(x, y + kAlto - 1.0, x + ancho, y + kAlto, kRegla);
    lienzo.Texto(primera, std::floor(x + (ancho - w1) / 2.0), y + 10.0, RGB(255, 205, 100), kLetra1, true);
    lienzo.Texto(segunda, std::floor(x + (ancho - w2) / 2.0), y + 31.0, RGB(235, 238, 245), kLetra2, false);
}

// --- Scale bar

double MetrosEscala(double metrosPorPixel)
{
    constexpr double kPixelesObjetivo = 100.0;
    double mejor = 0.0, potencia = 1.0;
    for (int k = 0; k <= 8; ++k, potencia *= 10.0)
        for (const double cifra : {1.0, 2.0, 5.0})
            if (cifra * potencia <= kPixelesObjetivo * metrosPorPixel)
                mejor = cifra * potencia;
    return mejor;
}

QString RotuloMetrico(double metros)
{
    if (metros < 1000.0)
        return Format(metros, u"0") + QLatin1String(" m");
    return Format(metros / 1000.0, u"0.###") + QLatin1String(" km");
}

QString RotuloImperial(double metros)
{
    const double millas = metros / 1000.0 * 0.621371;
    if (millas < 1.0)
        return Format(millas * 5280.0, u"0") + QLatin1String(" ft");
    return Format(millas, u"0.##") + QLatin1String(" mi");
}

void PintarEscala(LienzoMapa& lienzo, const EscenaMapa& e)
{
    constexpr double kIzquierda = 12.0, kAbajo = 12.0; // pixels of the bar from the picture's edges
    constexpr double kMinimo = 20.0, kMaximo = 300.0;  // pixels; other bars are not drawn
    constexpr double kAltoFondo = 40.0, kAire = 8.0;
    constexpr double kTope = 4.0; // half an end tick
    constexpr int kLetra = 8;
    constexpr std::int32_t kBlanco = RGB(255, 255, 255);

    if (e.vista.alto < 50)
        return;
    const double mpp = modMap::MetrosPorPixel(e.vista);
    const double metros = MetrosEscala(mpp);
    const double barra = std::round(metros / mpp);
    if (!(barra >= kMinimo && barra <= kMaximo))
        return;

    const QString arriba = RotuloMetrico(metros), abajo = RotuloImperial(metros);
    const double w1 = lienzo.MedirTexto(arriba, kLetra, false), w2 = lienzo.MedirTexto(abajo, kLetra, false);
    const double ancho = std::max({barra, w1, w2});
    const double yFondo = e.vista.alto - kAbajo;
    const double yBarra = yFondo - kAltoFondo / 2.0;
    const double x1 = kIzquierda, x2 = kIzquierda + barra;
    lienzo.Velo(x1 - kAire, yFondo - kAltoFondo, x1 + ancho + kAire, yFondo, {0.05, 0.06, 0.09, 0.62});
    lienzo.Rectangulo(x1, yBarra - 1.0, x2, yBarra + 1.0, kBlanco);
    lienzo.Rectangulo(x1, yBarra - kTope, x1 + 2.0, yBarra + kTope, kBlanco);
    lienzo.Rectangulo(x2 - 2.0, yBarra - kTope, x2, yBarra + kTope, kBlanco);
    lienzo.Texto(arriba, std::floor(x1 + (ancho - w1) / 2.0), yFondo - kAltoFondo + 1.0, kBlanco, kLetra,
                 false);
    lienzo.Texto(abajo, std::floor(x1 + (ancho - w2) / 2.0), yBarra + kTope, kBlanco, kLetra, false);
}

// --- Credit

void PintarAtribucion(LienzoMapa& lienzo, const EscenaMapa& e)
{
    constexpr int kLetra = 8;
    constexpr double kAltoLinea = 15.0, kAire = 5.0;
    constexpr std::int32_t kTinta = RGB(40, 42, 48);

    if (e.atribucion.isEmpty())
        return;
    // A narrow map takes the credit in pieces, one under the other.
    QStringList lineas{e.atribucion};
    if (lienzo.MedirTexto(e.atribucion, kLetra, false) + 2.0 * kAire > e.vista.ancho)
        lineas = e.atribucion.split(QStringLiteral(" | "));
    double ancho = 0.0;
    for (const QString& linea : lineas)
        ancho = std::max(ancho, static_cast<double>(lienzo.MedirTexto(linea, kLetra, false)));
    const double x = e.vista.ancho - ancho - 2.0 * kAire;
    double y = e.vista.alto - static_cast<double>(lineas.size()) * kAltoLinea;
    lienzo.Velo(x, y, e.vista.ancho, e.vista.alto, {0.96, 0.96, 0.95, 0.78});
    for (const QString& linea : lineas) {
        lienzo.Texto(linea, std::floor(x + kAire), y, kTinta, kLetra, false);
        y += kAltoLinea;
    }
}

} // namespace capas

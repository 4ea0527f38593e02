#include "comparar.h"

#include <QDir>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace comparar {

namespace {

struct Diferencia
{
    qint64 fuera = 0; // pixels over the threshold
    double media = 0;
    QImage imagen;
};

Diferencia Medir(const QImage& a, const QImage& b)
{
    Diferencia d;
    d.imagen = QImage(a.size(), QImage::Format_RGB32);
    double suma = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            const int r = std::abs(qRed(p) - qRed(q));
            const int v = std::abs(qGreen(p) - qGreen(q));
            const int z = std::abs(qBlue(p) - qBlue(q));
            const bool cuenta = std::max({r, v, z}) > kUmbralCanal;
            d.fuera += cuenta ? 1 : 0;
            suma += (r + v + z) / 3.0;
            d.imagen.setPixel(x, y, cuenta ? qRgb(255, 255, 255) : qRgb(r * 5, v * 5, z * 5));
        }
    d.media = suma / std::max(1.0, double(a.width()) * a.height());
    return d;
}

} // namespace

::testing::AssertionResult Patron(const QImage& imagen, const QString& nombre)
{
    if (imagen.isNull())
        return ::testing::AssertionFailure() << nombre.toStdString() << ": there is no picture";
    QImage actual = imagen.convertToFormat(QImage::Format_RGB32);
    actual.setDevicePixelRatio(1.0);
    const QString ruta = QStringLiteral(QUINTALUZ_FUENTES "/tests/patrones/%1.png").arg(nombre);
    if (qgetenv("ACTUALIZAR_PATRONES") == "1")
        return actual.save(ruta) ? ::testing::AssertionSuccess()
                                 : ::testing::AssertionFailure() << "cannot write " << ruta.toStdString();

    const QDir salida(QStringLiteral(QUINTALUZ_CONSTRUIDO "/patrones"));
    const QString base = salida.filePath(nombre);
    const auto guardar = [&] {
        salida.mkpath(QStringLiteral("."));
        actual.save(base + QLatin1String(".actual.png"));
    };
    const QImage patron = QImage(ruta).convertToFormat(QImage::Format_RGB32);
    if (patron.size() != actual.size()) {
        guardar();
        return ::testing::AssertionFailure()
               << ruta.toStdString() << " is " << patron.width() << "x" << patron.height() << ", the picture "
               << actual.width() << "x" << actual.height() << "; see " << base.toStdString() << ".actual.png";
    }
    const Diferencia d = Medir(actual, patron);
    const double fraccion = double(d.fuera) / (double(actual.width()) * actual.height());
    if (fraccion <= kFraccionMaxima && d.media <= kMediaMaxima)
        return ::testing::AssertionSuccess();
    guardar();
    d.imagen.save(base + QLatin1String(".diff.png"));
    return ::testing::AssertionFailure()
           << nombre.toStdString() << ": " << d.fuera << " pixels differ, " << fraccion * 100.0
           << " % (at most " << kFraccionMaxima * 100.0 << "), mean difference " << d.media << " (at most "
           << kMediaMaxima << "); see " << base.toStdString() << ".actual.png and .diff.png";
}

} // namespace comparar

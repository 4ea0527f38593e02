// medir_planificador: what the running planner costs a person's patience.
//
// The real window, 1280x800 of map, every overlay on, tiles in the cache, no network. Each line: median of
// the repetitions, its limit, and their ratio. Every frame is waited for until the driver has drawn it.
#include "frmMain.h"

#include "modConfig.h"
#include "modGrafico.h"
#include "modMap.h"
#include "modOpenGL.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QSurfaceFormat>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <thread>
#include <vector>

namespace {

using Reloj = std::chrono::steady_clock;

constexpr QSize kMapa{1280, 800};
constexpr int kRepeticiones = 60;
constexpr int kPausaMs = 12;

double Desde(Reloj::time_point antes)
{
    return std::chrono::duration<double, std::milli>(Reloj::now() - antes).count();
}

// With a pause before each, what the display server still owes to the one before does not count.
double Mediana(const std::function<void(int)>& trabajo, int pausaMs = 0)
{
    std::vector<double> tiempos;
    for (int i = 0; i < kRepeticiones; ++i) {
        if (pausaMs > 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(pausaMs));
        const auto antes = Reloj::now();
        trabajo(i);
        tiempos.push_back(Desde(antes));
    }
    std::nth_element(tiempos.begin(), tiempos.begin() + kRepeticiones / 2, tiempos.end());
    return tiempos[kRepeticiones / 2];
}

void Linea(const char* que, double valor, double limite, const char* unidad)
{
    std::printf("%-52s %9.2f %-3s limit %7.1f   %5.2f\n", que, valor, unidad, limite, valor / limite);
}

// The view around Madrid at zoom 6, as the planner would have kept it.
void LlenarCache(const QString& carpeta)
{
    for (int x = 27; x <= 35; ++x) {
        QDir().mkpath(carpeta + QStringLiteral("/cache_tiles/osm/6/%1").arg(x));
        for (int y = 20; y <= 28; ++y) {
            QImage imagen(256, 256, QImage::Format_RGB32);
            imagen.fill(QColor(170 + x, 200 + y, 220));
            QPainter p(&imagen);
            for (int i = 0; i < 40; ++i) {
                p.setPen(QColor(120 + i * 3, 90 + x * 3, 80 + y * 4));
                p.drawLine(i * 37 % 256, i * 61 % 256, i * 91 % 256, i * 23 % 256);
            }
            p.end();
            imagen.save(carpeta + QStringLiteral("/cache_tiles/osm/6/%1/%2.png").arg(x).arg(y));
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    const auto comienzo = Reloj::now();
    QSurfaceFormat formato;
    formato.setVersion(3, 3);
    formato.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(formato);
    QApplication aplicacion(argc, argv);

    const auto preparacion = Reloj::now();
    QTemporaryDir carpeta;
    QDir().mkpath(carpeta.filePath(QStringLiteral("recursos")));
    for (const char* codigo : {"es", "en", "fr"})
        QFile::copy(QStringLiteral(QUINTALUZ_FUENTES "/recursos/lang_%1.ini").arg(QLatin1String(codigo)),
                    carpeta.filePath(QStringLiteral("recursos/lang_%1.ini").arg(QLatin1String(codigo))));
    LlenarCache(carpeta.path());
    qputenv("QUINTALUZ_APPPATH", carpeta.path().toUtf8());
    qputenv("QUINTALUZ_TESELAS", "http://127.0.0.1:9");
    const double noCuenta = Desde(preparacion);

    modGrafico::AplicarTema(aplicacion);
    frmMain ventana;
    ventana.Cargar();
    modOpenGL::EsperarGL();
    const double arranque = Desde(comienzo) - noCuenta;

    auto* mapa = ventana.findChild<QWidget*>(QStringLiteral("picMap"));
    ventana.resize(ventana.size() + kMapa - mapa->size());
    QCoreApplication::processEvents();
    for (QCheckBox* casilla : ventana.findChildren<QCheckBox*>())
        casilla->setChecked(true);
    QCoreApplication::processEvents();
    ventana.RefrescarTodo();
    modOpenGL::EsperarGL();

    std::printf("map %d x %d, %s\n", mapa->width(), mapa->height(),
                qPrintable(modMap::LineaDiagnosticoTiles()));
    Linea("process start to first painted map", arranque, 600, "ms");

    const auto antes = modOpenGL::Contadores();
    const double frame = Mediana([&](int) {
        ventana.RepintarMapa();
        modOpenGL::EsperarGL();
    });
    const auto despues = modOpenGL::Contadores();
    Linea("one frame, every overlay on", frame, 16, "ms");
    const auto tiles = modMap::TilesDeVista(ventana.Estado().vista).size();
    Linea("draw calls of it", despues.dibujos, double(tiles) + 12, "");
    Linea("textures and buffers created in 60 of them",
          double(despues.texturasCreadas - antes.texturasCreadas + despues.buffersCreados -
                 antes.buffersCreados),
          1, "");

    auto* barra = ventana.findChild<QSlider*>(QStringLiteral("hsbHour"));
    const auto unPaso = [&](int i) {
        barra->setValue(300 + i * 7);
        QCoreApplication::processEvents();
        modOpenGL::EsperarGL();
    };
    Linea("one step of the hour bar, shown", Mediana(unPaso, kPausaMs), 16, "ms");
    Linea("the same, one after the other without a pause", Mediana(unPaso), 16, "ms");
    ventana.close();
    return 0;
}

// medir_mapa: what a frame of the map costs, and a view from cold.
//
//   medir_mapa [CARPETA]     tiles of CARPETA/z/x/y.png instead of painted ones
//
// Each line: median of the repetitions, its limit, and their ratio. Software GL draws on other threads, so
// every frame is waited for; "shown" adds the copy to the control and the window's composition.
#include "SuperficieGL.h"
#include "modHTTP.h"
#include "modMap.h"
#include "modOpenGL.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPainter>
#include <QSurfaceFormat>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>
#include <random>
#include <vector>

namespace {

constexpr int kAncho = 1280;
constexpr int kAlto = 800;

double Milisegundos(const std::function<void()>& trabajo)
{
    const auto antes = std::chrono::steady_clock::now();
    trabajo();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - antes).count();
}

double Mediana(int veces, const std::function<void()>& antes, const std::function<void()>& trabajo)
{
    std::vector<double> tiempos;
    for (int i = 0; i < veces; ++i) {
        antes();
        tiempos.push_back(Milisegundos(trabajo));
    }
    std::nth_element(tiempos.begin(), tiempos.begin() + veces / 2, tiempos.end());
    return tiempos[static_cast<std::size_t>(veces / 2)];
}

void Linea(const char* que, double ms, double limite)
{
    std::printf("%-52s %8.2f ms   limit %6.1f ms   %5.2f\n", que, ms, limite, ms / limite);
}

// A tile like a map's: areas, roads, names, in a palette of 256 colours.
void PintarTesela(const QString& ruta, unsigned semilla)
{
    std::mt19937 azar(semilla);
    const auto hasta = [&azar](int n) { return static_cast<int>(azar() % static_cast<unsigned>(n)); };
    QImage imagen(256, 256, QImage::Format_RGB32);
    imagen.fill(qRgb(242, 239, 233));
    QPainter p(&imagen);
    p.setRenderHint(QPainter::Antialiasing);
    const QColor areas[] = {{173, 209, 158}, {170, 211, 223}, {238, 240, 213}, {224, 223, 223}};
    for (int i = 0; i < 12; ++i) {
        QPolygon poligono;
        for (int k = 0; k < 9; ++k)
            poligono << QPoint(hasta(300) - 20, hasta(300) - 20);
        p.setPen(Qt::NoPen);
        p.setBrush(areas[hasta(4)]);
        p.drawPolygon(poligono);
    }
    for (int i = 0; i < 30; ++i) {
        p.setPen(QPen(QColor(220 + hasta(35), 150 + hasta(80), 110 + hasta(100)), 1 + hasta(4)));
        p.drawLine(hasta(256), hasta(256), hasta(256), hasta(256));
    }
    p.setPen(QColor(60, 60, 60));
    for (int i = 0; i < 12; ++i)
        p.drawText(hasta(200), hasta(256), QStringLiteral("Lugar %1").arg(hasta(900)));
    p.end();
    QDir().mkpath(QFileInfo(ruta).path());
    imagen.convertToFormat(QImage::Format_Indexed8).save(ruta, "PNG");
}

void PintarFrame(const modMap::VistaMapa& vista, int paso)
{
    modMap::PintarMapa(vista);
    modOpenGL::ModoVectorGL();
    const double cx = vista.ancho / 2.0;
    const double cy = vista.alto / 2.0;
    for (int i = 0; i < 288; ++i) { // two day paths
        const double a = (i + paso) * 0.0218;
        const double r = i < 144 ? 180.0 : 160.0;
        modOpenGL::LineaGL(cx + r * std::cos(a), cy + r * std::sin(a), cx + r * std::cos(a + 0.0218),
                           cy + r * std::sin(a + 0.0218), modOpenGL::RGB(255, 215, 60), 1.5);
        if (i % 6 == 0)
            modOpenGL::DiscoAlfaGL(cx + r * std::cos(a), cy + r * std::sin(a), 4.0,
                                   modOpenGL::RGB(255, 215, 60), 1.0);
    }
    for (int i = 0; i < 112; ++i)
        modOpenGL::LineaGL(cx, cy, cx + 2200.0 * std::sin(i * 0.056), cy - 2200.0 * std::cos(i * 0.056),
                           modOpenGL::RGB(200, 200, 255), i % 2 == 0 ? 4.0 : 1.0);
    for (int i = 0; i < 15; ++i)
        modOpenGL::DibujarTextoGL(QStringLiteral("%1:00").arg(i, 2, 10, QLatin1Char('0')), cx + i * 12.0,
                                  cy + i * 9.0, 0, 8);
    modOpenGL::DiscoAlfaGL(cx, cy, 65.0, modOpenGL::RGB(255, 153, 0), 0.4);
    modOpenGL::PinGL(cx, cy, 6.0, modOpenGL::RGB(220, 30, 30), 0);
    modOpenGL::PresentarFrame();
}

} // namespace

int main(int argc, char** argv)
{
    QSurfaceFormat formato;
    formato.setVersion(3, 3);
    formato.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(formato);
    const QApplication aplicacion(argc, argv);
    SuperficieGL superficie;
    superficie.resize(kAncho, kAlto);
    superficie.show();
    QApplication::processEvents();
    if (!modOpenGL::CrearContextoGL(&superficie)) {
        std::printf("%s\n", qPrintable(modOpenGL::UltimoErrorGL()));
        return 1;
    }

    const QTemporaryDir carpeta;
    modHTTP::IniciarHTTP(carpeta.path());
    const modMap::VistaMapa vista{.lon = -3.7038, .lat = 40.4168, .zoom = 6, .ancho = kAncho, .alto = kAlto};
    const modMap::VistaMapa amplia{.lon = -3.7038, .lat = 40.4168, .zoom = 6, .ancho = 1792, .alto = 1100};
    const auto preparar = [&](const modMap::VistaMapa& v) {
        for (const modMap::TileVisible& t : modMap::TilesDeVista(v)) {
            const QString ruta = modHTTP::RutaTile(t.z, t.x, t.y);
            const QString dada = QStringLiteral("%1/%2/%3/%4.png")
                                     .arg(QString::fromLocal8Bit(argc > 1 ? argv[1] : ""))
                                     .arg(t.z)
                                     .arg(t.x)
                                     .arg(t.y);
            if (QFile::exists(ruta))
                continue;
            modHTTP::CrearCarpetasDeRuta(ruta);
            if (!QFile::copy(dada, ruta))
                PintarTesela(ruta, static_cast<unsigned>(t.x * 131 + t.y));
        }
        return static_cast<int>(modMap::TilesDeVista(v).size());
    };
    const int visibles = preparar(vista);
    const int frios = preparar(amplia);

    const auto nada = [] {};
    const auto vaciar = [] { modMap::LiberarTexturasMapa(); };
    const auto enFrio = [&](const modMap::VistaMapa& v) {
        return [&v] {
            modMap::CargarTilesVisibles(v);
            modMap::PintarMapa(v);
            modOpenGL::PresentarFrame();
            modOpenGL::EsperarGL();
        };
    };
    const double frio = Mediana(15, vaciar, enFrio(amplia));

    modMap::CargarTilesVisibles(vista);
    int paso = 0;
    const auto frame = [&] {
        PintarFrame(vista, ++paso);
        modOpenGL::EsperarGL();
    };
    Mediana(5, nada, frame); // warm
    const double solo = Mediana(120, nada, frame);
    const modOpenGL::ContadoresGL contadores = modOpenGL::Contadores();
    const double mostrado = Mediana(
        120, [] {},
        [&] {
            PintarFrame(vista, ++paso);
            QApplication::processEvents();
            modOpenGL::EsperarGL();
        });
    const double cpu = Mediana(
        120, [] { modOpenGL::EsperarGL(); }, [&] { PintarFrame(vista, ++paso); });

    std::printf("map %d x %d, %d tiles, 400 lines, 49 discs, 15 texts\n", kAncho, kAlto, visibles);
    Linea("frame: tiles, overlays", solo, 16.0);
    Linea("frame, shown", mostrado, 16.0);
    Linea("frame, caller's share before the driver works", cpu, 16.0);
    std::printf("  %d draw calls (limit %d), %d vertices\n", contadores.dibujos, visibles + 12,
                contadores.vertices);
    char titulo[64];
    std::snprintf(titulo, sizeof titulo, "%d cached tiles from cold, painted", frios);
    Linea(titulo, frio, 150.0);
    modOpenGL::LiberarContextoGL();
    modHTTP::CerrarHTTP();
    return 0;
}

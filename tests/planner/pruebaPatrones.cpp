// Whole views of the planner against pictures that somebody has looked at: the real window, tiles painted
// here, a date given. The map is 640 x 420 pixels in every one.
#include "BancoVentana.h"

#include "comun/comparar.h"
#include "modDescargas.h"
#include "modGeo.h"
#include "modOpenGL.h"

#include <QDir>
#include <QFont>
#include <QFontDatabase>
#include <QPainter>
#include <QtTest/QTest>

#include <cmath>

namespace {

constexpr QSize kMapa{640, 420};
constexpr int kEspera = 15000; // ms, at most
constexpr int kAlrededor = 4;  // tiles written on each side of the observer's

// Pale ground by turns, the tile's edge, and a wedge that tells up from down and left from right. Whole
// pixels and no soft edges, so that every machine paints the same.
QImage Tesela(std::int32_t x, std::int32_t y)
{
    QImage imagen(256, 256, QImage::Format_RGB32);
    imagen.fill((x + y) % 2 == 0 ? QColor(226, 222, 205) : QColor(205, 219, 226));
    QPainter p(&imagen);
    for (int fila = 0; fila < 64; ++fila)
        p.fillRect(20, 20 + fila, 96 - fila, 1, QColor(190, 205 - x * 7 % 40, 180 - y * 7 % 40));
    p.fillRect(0, 0, 256, 1, QColor(160, 165, 170));
    p.fillRect(0, 0, 1, 256, QColor(160, 165, 170));
    return imagen;
}

} // namespace

class Patrones : public BancoVentana
{
protected:
    static void SetUpTestSuite()
    {
        // Families of the window that are missing here get the one that the patterns were drawn with.
        for (const char* familia : {"Tahoma", "Verdana", "MS Sans Serif", "Segoe UI"})
            QFont::insertSubstitution(QLatin1String(familia), QStringLiteral("DejaVu Sans"));
        BancoVentana::SetUpTestSuite();
    }

    void SetUp() override
    {
        BancoVentana::SetUp();
        ASSERT_TRUE(QFontDatabase::families().contains(QStringLiteral("DejaVu Sans")));
    }

    // The window with tiles around the place and a map of kMapa.
    void Preparar(double lat, double lon, int zoom)
    {
        EscribirTeselas(lat, lon, zoom);
        frmMain& v = Abrir();
        auto* mapa = Control<QWidget>("picMap");
        v.resize(v.size() + kMapa - mapa->size());
        ASSERT_TRUE(QTest::qWaitFor([&] { return mapa->size() == kMapa; }, kEspera));
        IrA(QStringLiteral("%1, %2").arg(lat).arg(lon));
        const char* boton = zoom > v.Estado().vista.zoom ? "cmdZoomIn" : "cmdZoomOut";
        while (v.Estado().vista.zoom != zoom)
            Control<QPushButton>(boton)->click();
        for (const char* casilla : {"chkMostrarObjetivo", "chkTrayectoriaCeleste", "chkViaLactea",
                                    "chkTerminador", "chkTerminadorFases"})
            Poner(casilla, false);
    }

    void EscribirTeselas(double lat, double lon, int zoom) const
    {
        double px = 0;
        double py = 0;
        modGeo::LonLatAPixel(lon, lat, std::int16_t(zoom), px, py);
        const int lado = 1 << zoom;
        const int cx = int(px / 256);
        const int cy = int(py / 256);
        for (int i = cx - kAlrededor; i <= cx + kAlrededor; ++i) {
            const int x = (i + lado) % lado;
            const QString columna =
                carpeta.filePath(QStringLiteral("cache_tiles/osm/%1/%2").arg(zoom).arg(x));
            QDir().mkpath(columna);
            for (int y = std::max(0, cy - kAlrededor); y <= std::min(lado - 1, cy + kAlrededor); ++y)
                ASSERT_TRUE(Tesela(x, y).save(columna + QStringLiteral("/%1.png").arg(y)));
        }
    }

    void Poner(const char* casilla, bool puesta) const { Control<QCheckBox>(casilla)->setChecked(puesta); }

    // The map once nothing is under way.
    QImage Mapa()
    {
        EXPECT_TRUE(QTest::qWaitFor([] { return !modDescargas::HayDescargasPendientes(); }, kEspera));
        ventana->RefrescarTodo();
        return modOpenGL::LeerFrame();
    }

    QImage Foto(const char* lienzo) const { return Control<QWidget>(lienzo)->grab().toImage(); }
};

// Summer solstice, the hour before sunset: the low Sun's wide line beside that of its setting, the day's
// paths, a target in the south-west.
TEST_F(Patrones, MadridWithDayPathsAndTarget)
{
    Preparar(40.4168, -3.7038, 6);
    Poner("chkTrayectoriaCeleste", true);
    QTest::mouseClick(Control<QWidget>("picMap"), Qt::RightButton, {}, {250, 290});
    ventana->IrAFechaHora(2026, 6, 21, 20, 12);
    EXPECT_DOUBLE_EQ(ventana->Zona(), 2.0);
    EXPECT_TRUE(comparar::Patron(Mapa(), "madrid_trayectorias"));
    EXPECT_TRUE(comparar::Patron(Foto("picTimeline"), "madrid_linea_tiempo"));
    EXPECT_TRUE(comparar::Patron(Foto("picScrub"), "madrid_franja"));
}

// 17 h UT in November: dusk runs across Europe, its bands widen to the north.
TEST_F(Patrones, TerminatorWithGradedNight)
{
    Preparar(40.4168, -3.7038, 3);
    Poner("chkTerminador", true);
    Poner("chkTerminadorFases", true);
    ventana->IrAFechaHora(2026, 11, 21, 18, 0);
    EXPECT_DOUBLE_EQ(ventana->Zona(), 1.0);
    EXPECT_TRUE(comparar::Patron(Mapa(), "terminador_fases"));
}

// 18:30 UT: the umbra covers the north of Castile, and the Moon's direction that of the Sun.
TEST_F(Patrones, EclipseOf2026OverSpain)
{
    Preparar(42.0, -5.0, 5);
    ventana->IrAFechaHora(2026, 8, 12, 20, 30);
    EXPECT_DOUBLE_EQ(ventana->Zona(), 2.0);
    EXPECT_TRUE(comparar::Patron(Mapa(), "eclipse_2026"));
}

// The arc over the observer, and the mark of longitude 0, which is below the horizon, on the disc's rim.
TEST_F(Patrones, MilkyWayOfAJulyNight)
{
    Preparar(40.4168, -3.7038, 6);
    Poner("chkViaLactea", true);
    ventana->IrAFechaHora(2026, 7, 14, 23, 50);
    EXPECT_TRUE(comparar::Patron(Mapa(), "via_lactea_julio"));
}

// The map of the real window with real mouse, wheel and key events, over a tile server of the test's own.
#include "BancoVentana.h"

#include "ServidorTeselas.h"
#include "modDescargas.h"
#include "modGeo.h"
#include "modHTTP.h"
#include "modOpenGL.h"

#include <QBuffer>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QMouseEvent>
#include <QOpenGLDebugLogger>
#include <QWheelEvent>
#include <QtTest/QTest>

namespace {

constexpr int kEspera = 15000; // ms, at most

// A tile of one colour that tells its place: red the column, green the row, blue the zoom.
QByteArray Tesela(std::int32_t z, std::int32_t x, std::int32_t y)
{
    QImage imagen(256, 256, QImage::Format_RGB32);
    imagen.fill(QColor(x * 4 % 256, y * 4 % 256, 40 + z * 8));
    for (int i = 0; i < 40; ++i) // some noise, so that no tile is too short a file
        imagen.setPixelColor(200 + i, 250, QColor(i * 6, 255 - i * 5, i * i % 256));
    QByteArray bytes;
    QBuffer salida(&bytes);
    imagen.save(&salida, "PNG");
    return bytes;
}

} // namespace

class frmMainMapa : public BancoVentana
{
protected:
    void SetUp() override
    {
        BancoVentana::SetUp();
        servidor = std::make_unique<ServidorTeselas>(
            [](const ServidorTeselas::Tesela& t) { return Tesela(t.z, t.x, t.y); });
        ASSERT_TRUE(servidor->Escuchar());
        qputenv("QUINTALUZ_TESELAS", servidor->Base().toUtf8());
    }

    void TearDown() override
    {
        BancoVentana::TearDown();
        servidor.reset();
    }

    QWidget* Mapa() const { return ventana->findChild<QWidget*>("picMap"); }
    const modMap::VistaMapa& Vista() const { return ventana->Estado().vista; }
    bool EsperarMapa() const
    {
        return QTest::qWaitFor([] { return !modDescargas::HayDescargasPendientes(); }, kEspera);
    }
    static QColor Pixel(QPoint donde)
    {
        const QImage frame = modOpenGL::LeerFrame();
        return frame.isNull() ? QColor() : frame.pixelColor(donde * int(frame.devicePixelRatio()));
    }
    QPoint Marca(double lat, double lon) const
    {
        std::int32_t x = 0;
        std::int32_t y = 0;
        modMap::LonLatAPixelVista(Vista(), lon, lat, x, y);
        return {x, y};
    }
    void Rueda(QPoint donde, int delta)
    {
        QWheelEvent evento(donde, Mapa()->mapToGlobal(donde), {}, {0, delta}, Qt::NoButton, Qt::NoModifier,
                           Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(ventana.get(),
                                    &evento); // a synthetic turn does not climb to it by itself
    }

    std::unique_ptr<ServidorTeselas> servidor;
};

TEST_F(frmMainMapa, TheMapFillsInByItselfAndStaysOnDisk)
{
    Abrir();
    ASSERT_TRUE(modOpenGL::ContextoGLListo()) << modOpenGL::UltimoErrorGL().toStdString();
    ASSERT_TRUE(EsperarMapa());
    // The tile of Madrid at zoom 6 is 31/24; a pixel away from every overlay tells its colour.
    const double cx = (-3.7038 + 180) / 360 * 64;
    EXPECT_EQ(int(cx), 31);
    EXPECT_TRUE(QFile::exists(carpeta.filePath("cache_tiles/osm/6/31/24.png")));
    EXPECT_LE(servidor->SimultaneasMaximo(), 6);
    const QPoint esquina(12, 12);
    double lon = 0;
    double lat = 0;
    modMap::PixelVistaALonLat(Vista(), esquina.x(), esquina.y(), lon, lat);
    double px = 0;
    double py = 0;
    modGeo::LonLatAPixel(lon, lat, 6, px, py);
    EXPECT_EQ(Pixel(esquina), QColor(int(px / 256) * 4 % 256, int(py / 256) * 4 % 256, 88));
}

TEST_F(frmMainMapa, AQuietClickPinsTheObserverAfterItsWait)
{
    Abrir();
    const double antes = ventana->obsLon();
    const QPoint donde(200, 150);
    QTest::mousePress(Mapa(), Qt::LeftButton, {}, donde);
    QTest::mouseMove(Mapa(), donde + QPoint(2, 1));
    QTest::mouseRelease(Mapa(), Qt::LeftButton, {}, donde + QPoint(2, 1));
    EXPECT_DOUBLE_EQ(ventana->obsLon(), antes) << "a double click may still follow";
    ASSERT_TRUE(QTest::qWaitFor([&] { return ventana->obsLon() != antes; }, 2000));
    EXPECT_EQ(Marca(ventana->obsLat(), ventana->obsLon()), donde + QPoint(2, 1));
    EXPECT_TRUE(Texto("lblObsCoord").startsWith(QString::number(int(ventana->obsLat()))));
}

TEST_F(frmMainMapa, ThreePixelsPan)
{
    Abrir();
    const double lat = ventana->obsLat();
    const double centro = Vista().lon;
    QTest::mousePress(Mapa(), Qt::LeftButton, {}, {300, 200});
    QTest::mouseMove(Mapa(), {303, 200});
    QTest::mouseRelease(Mapa(), Qt::LeftButton, {}, {303, 200});
    EXPECT_NEAR(centro - Vista().lon, 3 * 360.0 / (256 * 64), 1e-9);
    QTest::qWait(300);
    EXPECT_DOUBLE_EQ(ventana->obsLat(), lat);
}

TEST_F(frmMainMapa, ADoubleClickZoomsAndLeavesTheObserver)
{
    Abrir();
    const double lon = ventana->obsLon();
    const QPoint donde(150, 120);
    double lonAntes = 0;
    double latAntes = 0;
    modMap::PixelVistaALonLat(Vista(), donde.x(), donde.y(), lonAntes, latAntes);
    QTest::mouseClick(Mapa(), Qt::LeftButton, {}, donde);
    QTest::mouseDClick(Mapa(), Qt::LeftButton, {}, donde);
    QTest::qWait(300);
    EXPECT_EQ(Vista().zoom, 7);
    EXPECT_DOUBLE_EQ(ventana->obsLon(), lon);
    double lonDespues = 0;
    double latDespues = 0;
    modMap::PixelVistaALonLat(Vista(), donde.x(), donde.y(), lonDespues, latDespues);
    EXPECT_NEAR(lonDespues, lonAntes, 1e-9) << "the place under the pointer stays";
}

TEST_F(frmMainMapa, ShiftClickPinsAtOnceAndTheRightButtonPinsTheTarget)
{
    Abrir();
    QTest::mouseClick(Mapa(), Qt::LeftButton, Qt::ShiftModifier, {100, 90});
    EXPECT_EQ(Marca(ventana->obsLat(), ventana->obsLon()), QPoint(100, 90));
    EXPECT_FALSE(ventana->TieneTgt());
    QTest::mouseClick(Mapa(), Qt::RightButton, {}, {220, 180});
    EXPECT_TRUE(ventana->TieneTgt());
    EXPECT_TRUE(Control<QCheckBox>("chkMostrarObjetivo")->isChecked());
    EXPECT_EQ(Marca(ventana->TgtLat(), ventana->TgtLon()), QPoint(220, 180));
    EXPECT_FALSE(Texto("lblDist").contains("--"));
    EXPECT_EQ(Pixel({220 + 4, 180}), QColor(30, 90, 220)) << "the target's mark";
}

TEST_F(frmMainMapa, DraggingAMarkMovesItAndRecomputesAtTheRelease)
{
    Abrir();
    const QPoint obs = Marca(ventana->obsLat(), ventana->obsLon());
    const QString salida = Texto("lblSunRise");
    QTest::mousePress(Mapa(), Qt::LeftButton, {}, obs + QPoint(5, 5));
    QTest::mouseMove(Mapa(), obs + QPoint(160, 0));
    EXPECT_EQ(Marca(ventana->obsLat(), ventana->obsLon()), obs + QPoint(160, 0));
    EXPECT_EQ(Texto("lblSunRise"), salida) << "no recomputation until the button is released";
    QTest::mouseRelease(Mapa(), Qt::LeftButton, {}, obs + QPoint(160, 0));
    EXPECT_NE(Texto("lblSunRise"), salida);
}

TEST_F(frmMainMapa, WithBothMarksUnderThePointerTheTargetIsDragged)
{
    Abrir();
    const QPoint obs = Marca(ventana->obsLat(), ventana->obsLon());
    QTest::mouseClick(Mapa(), Qt::RightButton, {}, obs + QPoint(3, 0));
    const double lat = ventana->obsLat();
    QTest::mousePress(Mapa(), Qt::LeftButton, {}, obs);
    QTest::mouseMove(Mapa(), obs + QPoint(0, 60));
    QTest::mouseRelease(Mapa(), Qt::LeftButton, {}, obs + QPoint(0, 60));
    EXPECT_DOUBLE_EQ(ventana->obsLat(), lat);
    EXPECT_EQ(Marca(ventana->TgtLat(), ventana->TgtLon()), obs + QPoint(0, 60));
}

TEST_F(frmMainMapa, TheWheelZoomsUnderThePointerAndNeverLeavesTheMap)
{
    Abrir();
    const QPoint donde(77, 201);
    double lonAntes = 0;
    double latAntes = 0;
    modMap::PixelVistaALonLat(Vista(), donde.x(), donde.y(), lonAntes, latAntes);
    Rueda(donde, 120);
    EXPECT_EQ(Vista().zoom, 7);
    double lonDespues = 0;
    double latDespues = 0;
    modMap::PixelVistaALonLat(Vista(), donde.x(), donde.y(), lonDespues, latDespues);
    EXPECT_NEAR(lonDespues, lonAntes, 1e-9);
    EXPECT_NEAR(latDespues, latAntes, 1e-9);
    for (int i = 0; i < 12; ++i)
        Rueda(donde, -120);
    EXPECT_EQ(Vista().zoom, 2);
    for (int i = 0; i < 30; ++i)
        Rueda(donde, 120);
    EXPECT_EQ(Vista().zoom, 18);
}

TEST_F(frmMainMapa, PartsOfANotchAddUp)
{
    Abrir();
    for (int i = 0; i < 7; ++i)
        Rueda({50, 50}, 15);
    EXPECT_EQ(Vista().zoom, 6);
    Rueda({50, 50}, 15);
    EXPECT_EQ(Vista().zoom, 7);
    Rueda({50, 50}, 90);
    Rueda({50, 50}, -120);
    EXPECT_EQ(Vista().zoom, 6) << "turning back forgets what was pending";
}

TEST_F(frmMainMapa, TheWheelBesideTheMapDoesNothing)
{
    Abrir();
    Rueda({-20, 50}, 120);
    Rueda({50, Mapa()->height() + 5}, 120);
    EXPECT_EQ(Vista().zoom, 6);
}

TEST_F(frmMainMapa, TheButtonsZoomAndCentre)
{
    Abrir();
    QTest::mouseClick(Control<QPushButton>("cmdZoomIn"), Qt::LeftButton);
    EXPECT_EQ(Vista().zoom, 7);
    for (int i = 0; i < 8; ++i)
        QTest::mouseClick(Control<QPushButton>("cmdZoomOut"), Qt::LeftButton);
    EXPECT_EQ(Vista().zoom, 2);
    QTest::mouseClick(Control<QPushButton>("cmdZoomIn"), Qt::LeftButton);
    QTest::mousePress(Mapa(), Qt::LeftButton, {}, {300, 200});
    QTest::mouseMove(Mapa(), {200, 260});
    QTest::mouseRelease(Mapa(), Qt::LeftButton, {}, {200, 260});
    EXPECT_NE(Vista().lon, ventana->obsLon());
    QTest::mouseClick(Control<QPushButton>("cmdCentrar"), Qt::LeftButton);
    EXPECT_DOUBLE_EQ(Vista().lon, ventana->obsLon());
    EXPECT_DOUBLE_EQ(Vista().lat, ventana->obsLat());
    EXPECT_FALSE(Control<QPushButton>("cmdGloboMapa")->isVisible());
}

TEST_F(frmMainMapa, TheKeysPanZoomAndPin)
{
    Abrir();
    Mapa()->setFocus();
    const double lon = Vista().lon;
    QTest::keyClick(Mapa(), Qt::Key_Right);
    EXPECT_GT(Vista().lon, lon);
    QTest::keyClick(Mapa(), Qt::Key_Plus);
    EXPECT_EQ(Vista().zoom, 7);
    QTest::keyClick(Mapa(), Qt::Key_Minus);
    EXPECT_EQ(Vista().zoom, 6);
    QTest::keyClick(Mapa(), Qt::Key_Return);
    EXPECT_NEAR(ventana->obsLon(), Vista().lon, 0.02);
    QTest::keyClick(Mapa(), Qt::Key_Return, Qt::ShiftModifier);
    EXPECT_TRUE(ventana->TieneTgt());
}

TEST_F(frmMainMapa, TheCursorLineTellsThePlaceUnderThePointer)
{
    Abrir();
    const auto mover = [this](QPointF donde) { // whatever pointer the display has
        QMouseEvent evento(QEvent::MouseMove, donde, Mapa()->mapToGlobal(donde), Qt::NoButton, Qt::NoButton,
                           Qt::NoModifier);
        QCoreApplication::sendEvent(Mapa(), &evento);
    };
    mover({10, 10});
    const QString primera = Texto("lblCursor");
    EXPECT_FALSE(primera.contains("--"));
    mover({400, 300});
    EXPECT_NE(Texto("lblCursor"), primera);
}

TEST_F(frmMainMapa, ChangingTheProviderKeepsTheOldTilesOnDisk)
{
    Abrir();
    ASSERT_TRUE(EsperarMapa());
    Control<QComboBox>("cmbProvider")->setCurrentIndex(1);
    ASSERT_TRUE(EsperarMapa());
    EXPECT_TRUE(QFile::exists(carpeta.filePath("cache_tiles/topo/6/31/24.png")));
    EXPECT_TRUE(QFile::exists(carpeta.filePath("cache_tiles/osm/6/31/24.png")));
    servidor->Olvidar();
    Control<QComboBox>("cmbProvider")->setCurrentIndex(0);
    QTest::qWait(300);
    EXPECT_TRUE(servidor->Vistas().isEmpty()) << "going back shows what is on disk";
}

TEST_F(frmMainMapa, FailuresSayNothingAndHarmNothing)
{
    using Falla = ServidorTeselas::Falla;
    for (const Falla falla : {Falla::NoExiste, Falla::Prohibido, Falla::Corto, Falla::Html, Falla::Jpeg,
                              Falla::Cortado, Falla::Enorme}) {
        SCOPED_TRACE(int(falla));
        servidor->Fallar(falla);
        Abrir({900, 620});
        EXPECT_TRUE(EsperarMapa());
        EXPECT_TRUE(mensajes.isEmpty());
        EXPECT_FALSE(QFile::exists(carpeta.filePath("cache_tiles/osm/6/31/24.png")));
        CerrarVentana();
    }
}

TEST_F(frmMainMapa, ACacheThatCannotBeWrittenIsNoTrouble)
{
    QFile archivo(carpeta.filePath("cache_tiles"));
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write("a file where a directory is wanted");
    archivo.close();
    Abrir();
    EXPECT_TRUE(EsperarMapa());
    EXPECT_TRUE(mensajes.isEmpty());
    EXPECT_EQ(Pixel({12, 12}), QColor(128, 128, 128));
}

TEST_F(frmMainMapa, ResizingPanningAndClosingWhileTilesComeIsSafe)
{
    servidor->Retrasar(15);
    Abrir();
    for (int i = 0; i < 200; ++i) {
        ventana->resize(760 + i * 37 % 500, 500 + i * 53 % 400);
        if (i % 10 == 0)
            Control<QComboBox>("cmbProvider")->setCurrentIndex(i / 10 % 3);
        QCoreApplication::processEvents();
    }
    servidor->Fallar(ServidorTeselas::Falla::Mudo);
    Control<QPushButton>("cmdZoomIn")->click();
    QTest::qWait(200);
    EXPECT_TRUE(modDescargas::HayDescargasPendientes());
    CerrarVentana();
    SUCCEED();
}

TEST_F(frmMainMapa, MovingTheWindowsSurfaceToAnotherWindowRestoresTheMap)
{
    Abrir();
    ASSERT_TRUE(EsperarMapa());
    const QColor antes = Pixel({12, 12});
    QWidget otra;
    otra.resize(ventana->size());
    QWidget* mapa = Mapa();
    QWidget* casa = mapa->parentWidget();
    mapa->setParent(&otra);
    otra.show();
    mapa->show();
    QTest::qWait(100);
    mapa->setParent(casa);
    mapa->show();
    QTest::qWait(200);
    EXPECT_EQ(Pixel({12, 12}), antes);
}

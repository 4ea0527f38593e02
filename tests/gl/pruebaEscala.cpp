// The same picture with two device pixels to a logical one; run with QT_SCALE_FACTOR=2.
#include "VentanaGL.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

using namespace modOpenGL;

constexpr int kGris = 0x808080;

class Escala : public VentanaGL
{
};

TEST_F(Escala, ElFrameTieneElDobleDePixelesYLasMedidasSiguenSiendoLogicas)
{
    ASSERT_EQ(superficie->devicePixelRatioF(), 2.0) << "this test wants QT_SCALE_FACTOR=2";
    PrepararViewport(kAncho, kAlto);
    ModoVectorGL();
    RectanguloGL(10, 20, 30, 25, RGB(255, 0, 0));
    LineaGL(0, 100, kAncho, 100, RGB(255, 255, 255), 1.0); // two device pixels, sharp
    PresentarFrame();
    const QImage f = LeerFrame();
    ASSERT_EQ(f.size(), QSize(2 * kAncho, 2 * kAlto));
    EXPECT_EQ(f.devicePixelRatio(), 2.0);
    EXPECT_EQ(Pixel(f, 19, 45), kGris);
    EXPECT_EQ(Pixel(f, 20, 40), 0xFF0000);
    EXPECT_EQ(Pixel(f, 59, 49), 0xFF0000);
    EXPECT_EQ(Pixel(f, 60, 45), kGris);
    EXPECT_EQ(Pixel(f, 300, 198), kGris);
    EXPECT_EQ(Pixel(f, 300, 199), 0xFFFFFF);
    EXPECT_EQ(Pixel(f, 300, 200), 0xFFFFFF);
    EXPECT_EQ(Pixel(f, 300, 201), kGris);
    EXPECT_EQ(superficie->grab().toImage().pixelColor(20, 40), QColor(255, 0, 0));
}

TEST_F(Escala, UnaTeselaOcupaElDobleYElTextoSeRasterizaFino)
{
    const QTemporaryDir carpeta;
    const QString ruta = QDir(carpeta.path()).filePath(QStringLiteral("tesela.png"));
    QImage imagen(256, 256, QImage::Format_RGB32);
    imagen.fill(qRgb(1, 200, 3));
    ASSERT_TRUE(imagen.save(ruta));
    PrepararViewport(kAncho, kAlto);
    DibujarTesela(ObtenerTextura(ruta), 10.4, -100);
    ModoVectorGL();
    DibujarTextoGL(QStringLiteral("HHHH"), 20, 180, 0, 20, true);
    PresentarFrame();
    const QImage f = LeerFrame();
    EXPECT_EQ(Pixel(f, 19, 10), kGris);
    EXPECT_EQ(Pixel(f, 20, 10), 0x01C803);
    EXPECT_EQ(Pixel(f, 531, 311), 0x01C803);
    EXPECT_EQ(Pixel(f, 532, 10), kGris);
    EXPECT_EQ(Pixel(f, 20, 312), kGris);
    // Doubling a coarse picture would make every pixel of a row equal its neighbour.
    int impares = 0;
    int negros = 0;
    for (int y = 360; y < 420; ++y)
        for (int x = 40; x < 300; x += 2) {
            impares += Pixel(f, x, y) != Pixel(f, x + 1, y) ? 1 : 0;
            negros += Pixel(f, x, y) == 0 ? 1 : 0;
        }
    EXPECT_GT(impares, 10);
    EXPECT_GT(negros, 100);
}

TEST_F(Escala, UnFrameCapturadoConservaSusPixeles)
{
    PrepararViewport(kAncho, kAlto);
    ModoVectorGL();
    LineaGL(3, 0, 300, 200, RGB(255, 255, 255), 1.5);
    PresentarFrame();
    const QImage antes = LeerFrame();
    const std::int32_t id = CapturarFrame(kAncho, kAlto);
    PrepararViewport(kAncho, kAlto);
    DibujarFrameCapturado(id, kAncho, kAlto, 1.0);
    PresentarFrame();
    EXPECT_EQ(LeerFrame(), antes);
    BorrarFrameCapturado(id);
}

} // namespace

// The life of the context: made once, lost and made again, and the frames that are shown, kept back or
// captured meanwhile.
#include "VentanaGL.h"

#include <QDir>
#include <QTemporaryDir>

namespace {

using namespace modOpenGL;

// Both roads from the frame to the screen.
class Contexto : public VentanaGL, public ::testing::WithParamInterface<SuperficieGL::Camino>
{
protected:
    Contexto() { camino = GetParam(); }

    // A frame of one colour.
    static void Pintar(std::int32_t color)
    {
        PrepararViewport(kAncho, kAlto);
        RectanguloGL(0, 0, kAncho, kAlto, color);
    }

    // What the control really shows.
    int EnPantalla(int x, int y)
    {
        return static_cast<int>(superficie->grab().toImage().pixel(x, y) & 0xFFFFFFU);
    }
};

TEST_P(Contexto, CrearOtraVezNoCambiaNada)
{
    const ContadoresGL antes = Contadores();
    EXPECT_TRUE(CrearContextoGL(superficie));
    EXPECT_TRUE(CrearContextoGL(nullptr)) << "the one that exists answers";
    EXPECT_EQ(Contadores().texturasCreadas, antes.texturasCreadas);
    EXPECT_EQ(Contadores().buffersCreados, antes.buffersCreados);
}

TEST_P(Contexto, LaPantallaMuestraElUltimoFramePresentado)
{
    Pintar(RGB(10, 20, 30));
    PresentarFrame();
    EXPECT_EQ(Pixel(LeerFrame(), 100, 100), 0x0A141E);
    EXPECT_EQ(EnPantalla(100, 100), 0x0A141E);
    Pintar(RGB(40, 50, 60));
    EXPECT_EQ(EnPantalla(100, 100), 0x0A141E) << "a frame in the making does not show";
    PresentarFrame();
    EXPECT_EQ(EnPantalla(100, 100), 0x28323C);
}

TEST_P(Contexto, SuprimirRetieneElFrameYPresentarSiempreLoMuestra)
{
    Pintar(RGB(255, 0, 0));
    PresentarFrame();
    SuprimirPresentacion(true);
    EXPECT_TRUE(PresentacionSuprimida());
    Pintar(RGB(0, 255, 0));
    PresentarFrame();
    EXPECT_EQ(EnPantalla(5, 5), 0xFF0000);
    EXPECT_EQ(Pixel(LeerFrame(), 5, 5), 0xFF0000);
    RectanguloGL(0, 0, 10, 10, RGB(0, 0, 255)); // goes on over the frame that was kept back
    PresentarSiempre();
    EXPECT_EQ(EnPantalla(5, 5), 0x0000FF);
    EXPECT_EQ(EnPantalla(50, 50), 0x00FF00);
    SuprimirPresentacion(false);
    Pintar(RGB(9, 9, 9));
    PresentarFrame();
    EXPECT_EQ(EnPantalla(5, 5), 0x090909);
}

TEST_P(Contexto, UnFrameCapturadoVuelveDerechoYMezclado)
{
    PrepararViewport(kAncho, kAlto);
    RectanguloGL(0, 0, kAncho, 40, RGB(255, 0, 0)); // red above, blue below
    RectanguloGL(0, 40, kAncho, kAlto, RGB(0, 0, 255));
    PresentarFrame();
    Pintar(RGB(255, 255, 255)); // being drawn: not what is captured
    const std::int32_t id = CapturarFrame(kAncho, kAlto);
    ASSERT_NE(id, 0);
    PresentarFrame();

    Pintar(RGB(0, 0, 0));
    DibujarFrameCapturado(id, kAncho, kAlto, 1.0);
    PresentarFrame();
    QImage f = LeerFrame();
    EXPECT_EQ(Pixel(f, 100, 10), 0xFF0000);
    EXPECT_EQ(Pixel(f, 100, 39), 0xFF0000);
    EXPECT_EQ(Pixel(f, 100, 40), 0x0000FF);

    Pintar(RGB(0, 0, 0));
    DibujarFrameCapturado(id, kAncho, kAlto, 0.5);
    DibujarFrameCapturado(id, kAncho, kAlto, 0.0);
    PresentarFrame();
    f = LeerFrame();
    EXPECT_NEAR((Pixel(f, 100, 10) >> 16) & 255, 128, 1);

    BorrarFrameCapturado(id);
    Pintar(RGB(0, 0, 0));
    DibujarFrameCapturado(id, kAncho, kAlto, 1.0); // gone: draws nothing
    BorrarFrameCapturado(id);
    PresentarFrame();
    EXPECT_EQ(Pixel(LeerFrame(), 100, 10), 0);
}

TEST_P(Contexto, SinFrameNoHayCaptura)
{
    EXPECT_EQ(CapturarFrame(kAncho, kAlto), 0);
    EXPECT_TRUE(LeerFrame().isNull());
    Pintar(0);
    PresentarFrame();
    EXPECT_EQ(CapturarFrame(0, 10), 0);
    EXPECT_EQ(CapturarFrame(10, -1), 0);
    const std::int32_t mayor = CapturarFrame(kAncho + 50, kAlto + 50);
    EXPECT_NE(mayor, 0) << "cut to what there is";
    BorrarFrameCapturado(mayor);
}

TEST_P(Contexto, UnFrameMenorQueElControlQuedaArribaIzquierda)
{
    Pintar(RGB(0, 200, 0));
    PresentarFrame();
    superficie->resize(kAncho + 60, kAlto + 40);
    EXPECT_EQ(EnPantalla(0, 0), 0x00C800);
    EXPECT_EQ(EnPantalla(kAncho - 1, kAlto - 1), 0x00C800);
    EXPECT_EQ(EnPantalla(kAncho + 10, 10), 0x808080);
    EXPECT_EQ(EnPantalla(10, kAlto + 10), 0x808080);
    superficie->resize(kAncho - 60, kAlto - 40);
    EXPECT_EQ(EnPantalla(0, 0), 0x00C800);
}

TEST_P(Contexto, UnContextoPerdidoSeRehace)
{
    const QTemporaryDir carpeta;
    const QString ruta = QDir(carpeta.path()).filePath(QStringLiteral("tesela.png"));
    QImage imagen(256, 256, QImage::Format_RGB32);
    imagen.fill(qRgb(1, 200, 3));
    ASSERT_TRUE(imagen.save(ruta));
    const auto pintar = [&] {
        PrepararViewport(kAncho, kAlto);
        DibujarTesela(ObtenerTextura(ruta), 0, 0);
        ModoVectorGL();
        DibujarTextoGL(QStringLiteral("MMMM"), 260, 0, 0, 12, true);
        PresentarFrame();
    };
    pintar();
    const QImage antes = LeerFrame();
    ASSERT_EQ(Pixel(antes, 10, 10), 0x01C803);

    int rehecho = 0;
    QObject::connect(superficie, &SuperficieGL::ContextoRehecho, superficie, [&rehecho] { ++rehecho; });
    QWidget otra;
    otra.resize(kAncho + 50, kAlto + 50);
    for (int vez = 1; vez <= 3; ++vez) {
        SCOPED_TRACE(vez);
        superficie->HacerActual();
        registro.reset();
        if (superficie->EsCompuesta()) { // lost with the old window
            QWidget* destino = vez % 2 == 1 ? &otra : ventana.get();
            superficie->setParent(destino);
            if (!ContextoGLListo()) { // until the new window shows: nothing to draw with, nothing happens
                PrepararViewport(kAncho, kAlto);
                LineaGL(0, 0, 10, 10, 0, 1);
                PresentarFrame();
            }
            superficie->show();
            destino->show();
        } else { // lost with the driver
            superficie->RehacerContexto();
        }
        ASSERT_TRUE(QTest::qWaitFor([] { return ContextoGLListo(); }));
        ASSERT_TRUE(QTest::qWaitFor([&] { return rehecho == vez; }));
        EscucharErrores();
        EXPECT_EQ(TexturasRegistradas(), 0);
        EXPECT_TRUE(LeerFrame().isNull());
        pintar();
        EXPECT_EQ(LeerFrame(), antes);
        EXPECT_EQ(EnPantalla(10, 10), 0x01C803);
    }
    superficie->setParent(ventana.get());
}

TEST_P(Contexto, CambiarDeVentanaConservaLaImagenAlVolverAPintar)
{
    Pintar(RGB(5, 6, 7));
    PresentarFrame();
    superficie->HacerActual();
    registro.reset();
    QWidget otra;
    otra.resize(kAncho, kAlto);
    superficie->setParent(&otra);
    superficie->show();
    otra.show();
    ASSERT_TRUE(QTest::qWaitFor([] { return ContextoGLListo(); }));
    EscucharErrores();
    Pintar(RGB(8, 9, 10));
    PresentarFrame();
    EXPECT_EQ(EnPantalla(10, 10), 0x08090A);
    superficie->setParent(ventana.get());
}

TEST_P(Contexto, TrasLiberarNadaHaceNada)
{
    registro.reset();
    LiberarContextoGL();
    LiberarContextoGL();
    EXPECT_FALSE(ContextoGLListo());
    Pintar(0);
    ModoVectorGL();
    LineaGL(0, 0, 10, 10, 0, 1);
    PinGL(5, 5, 5, 0, 0);
    DibujarTextoGL(QStringLiteral("x"), 0, 0, 0, 10);
    PresentarSiempre();
    EXPECT_EQ(ObtenerTextura(QStringLiteral("nada.png")), 0);
    EXPECT_EQ(CargarTexturaGlobo(QStringLiteral("nada.png")), 0);
    EXPECT_EQ(CapturarFrame(10, 10), 0);
    VaciarTexturas();
    EXPECT_TRUE(LeerFrame().isNull());
    EXPECT_GT(MedirTextoGL(QStringLiteral("x"), 10, false), 0) << "measuring needs no context";
    EXPECT_TRUE(CrearContextoGL(superficie)) << "and it can begin again";
    EscucharErrores();
    Pintar(RGB(7, 7, 7));
    PresentarFrame();
    EXPECT_EQ(Pixel(LeerFrame(), 1, 1), 0x070707);
}

TEST_P(Contexto, CerrarLaVentanaSueltaElContexto)
{
    Pintar(RGB(7, 7, 7));
    PresentarFrame();
    superficie->HacerActual();
    registro.reset();
    ventana.reset(); // nobody called LiberarContextoGL
    EXPECT_FALSE(ContextoGLListo());
    Pintar(0);
    PresentarFrame();
    SetUp();
}

TEST_P(Contexto, DoscientosTamanos)
{
    const ContadoresGL antes = Contadores();
    for (int i = 0; i < 200; ++i) {
        const int w = 50 + i * 37 % 700;
        const int h = 40 + i * 53 % 500;
        superficie->resize(w, h);
        PrepararViewport(w, h);
        RectanguloGL(0, 0, w, h, RGB(i, 0, 0));
        PresentarFrame();
        if (i % 20 == 0)
            QApplication::processEvents();
        const QImage f = LeerFrame();
        ASSERT_EQ(f.size(), QSize(w, h));
        ASSERT_EQ(Pixel(f, w - 1, h - 1), i << 16);
    }
    EXPECT_LE(Contadores().buffersCreados - antes.buffersCreados, 2) << "the second frame buffer, once";
}

TEST_P(Contexto, UnTamanoVacioNoHaceNada)
{
    Pintar(RGB(7, 7, 7));
    PresentarFrame();
    PrepararViewport(0, 10);
    PrepararViewport(10, -5);
    EXPECT_EQ(Pixel(LeerFrame(), 1, 1), 0x070707);
}

INSTANTIATE_TEST_SUITE_P(Caminos, Contexto,
                         ::testing::Values(SuperficieGL::Camino::Compuesto, SuperficieGL::Camino::Leido));

} // namespace

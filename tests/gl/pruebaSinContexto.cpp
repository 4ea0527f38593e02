// A machine without OpenGL: the step that failed is named, and everything else keeps quiet.
#include "SuperficieGL.h"
#include "modOpenGL.h"
#include "paleta.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace {

using namespace modOpenGL;

// Ways to have no context, by the environment that ctest sets.
QString Esperado()
{
    if (qEnvironmentVariableIsSet("MESA_GL_VERSION_OVERRIDE"))
        return QStringLiteral("ChoosePixelFormat fallo");
    return QStringLiteral("wglCreateContext fallo");
}

TEST(SinContexto, SinSuperficieNoHayDispositivo)
{
    EXPECT_FALSE(CrearContextoGL(nullptr));
    EXPECT_EQ(UltimoErrorGL(), QStringLiteral("GetDC fallo (hWnd=0)"));
}

TEST(SinContexto, ElPasoQueFalloSeNombraYTodoLoDemasCalla)
{
    QWidget ventana;
    ventana.resize(400, 300);
    auto* superficie = new SuperficieGL(&ventana);
    superficie->resize(320, 240);
    ventana.show();
    QTest::qWait(50);
    ASSERT_FALSE(CrearContextoGL(superficie));
    EXPECT_EQ(UltimoErrorGL(), Esperado());
    EXPECT_FALSE(ContextoGLListo());
    PrepararViewport(320, 240);
    ModoVectorGL();
    LineaGL(0, 0, 10, 10, 0, 1);
    CuadrilateroGL({{0, 0}, {9, 0}, {9, 9}, {0, 9}}, {1, 1, 1, 1});
    DibujarTextoGL(QStringLiteral("x"), 0, 0, 0, 10);
    PresentarFrame();
    EXPECT_TRUE(LeerFrame().isNull());
    EXPECT_EQ(ObtenerTextura(QStringLiteral("x.png")), 0);
    superficie->update();
    QTest::qWait(50);
    EXPECT_EQ(superficie->grab().toImage().pixelColor(100, 100), paleta::kMapaVacio);
}

} // namespace

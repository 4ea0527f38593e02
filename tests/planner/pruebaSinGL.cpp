// A machine without OpenGL: one message, and everything but the map works.
#include "BancoVentana.h"

#include "modI18n.h"
#include "modOpenGL.h"

#include <QtTest/QTest>

class frmMainSinGL : public BancoVentana
{
};

TEST_F(frmMainSinGL, OneMessageAndThePanelsWork)
{
    Abrir();
    ASSERT_FALSE(modOpenGL::ContextoGLListo());
    ASSERT_EQ(mensajes.size(), 1);
    EXPECT_EQ(mensajes[0].texto, modI18n::TraducirCon("msg.opengl_error", modOpenGL::UltimoErrorGL()));
    EXPECT_EQ(mensajes[0].titulo, modI18n::Traducir("app.titulo"));
    EXPECT_FALSE(Texto("lblSunRise").contains("--"));
    Control<QSlider>("hsbHour")->setValue(300);
    EXPECT_TRUE(Texto("lblHour").contains("05:00"));
    QTest::mouseClick(Control<QWidget>("picMap"), Qt::RightButton, {}, {50, 60});
    EXPECT_TRUE(ventana->TieneTgt()) << "the map still takes the pointer";
    Control<QPushButton>("cmdZoomIn")->click();
    EXPECT_EQ(mensajes.size(), 1);
}

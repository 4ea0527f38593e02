// VentanaGL: a shown OpenGL surface for tests, with the driver's own error log listening.
//
// Any message of high or medium severity fails the test that provoked it.
#pragma once

#include "SuperficieGL.h"
#include "modOpenGL.h"

#include <QApplication>
#include <QOpenGLContext>
#include <QOpenGLDebugLogger>
#include <QSurfaceFormat>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

class VentanaGL : public ::testing::Test
{
protected:
    static constexpr int kAncho = 320;
    static constexpr int kAlto = 240;

    void SetUp() override
    {
        QSurfaceFormat formato = QSurfaceFormat::defaultFormat();
        formato.setOption(QSurfaceFormat::DebugContext);
        QSurfaceFormat::setDefaultFormat(formato);
        ventana = std::make_unique<QWidget>();
        ventana->resize(kAncho + 100, kAlto + 100);
        superficie = new SuperficieGL(ventana.get(), camino);
        superficie->setGeometry(0, 0, kAncho, kAlto);
        ventana->show();
        ASSERT_TRUE(QTest::qWaitFor([this] { return superficie->Contexto() != nullptr; }));
        ASSERT_TRUE(modOpenGL::CrearContextoGL(superficie)) << qPrintable(modOpenGL::UltimoErrorGL());
        EscucharErrores();
    }

    void TearDown() override
    {
        superficie->HacerActual(); // whose log it is
        registro.reset();
        modOpenGL::LiberarContextoGL();
        ventana.reset();
    }

    // Listens to the context of the moment; again after it was made anew.
    void EscucharErrores()
    {
        superficie->HacerActual();
        registro = std::make_unique<QOpenGLDebugLogger>();
        ASSERT_TRUE(registro->initialize());
        QObject::connect(registro.get(), &QOpenGLDebugLogger::messageLogged,
                         [](const QOpenGLDebugMessage& m) {
                             if (m.severity() == QOpenGLDebugMessage::HighSeverity ||
                                 m.severity() == QOpenGLDebugMessage::MediumSeverity)
                                 ADD_FAILURE() << qPrintable(m.message());
                         });
        registro->startLogging(QOpenGLDebugLogger::SynchronousLogging);
    }

    // Colour of the frame on show at a device pixel, 0xRRGGBB.
    static int Pixel(const QImage& imagen, int x, int y)
    {
        return static_cast<int>(imagen.pixel(x, y) & 0xFFFFFFU);
    }

    SuperficieGL::Camino camino = SuperficieGL::Camino::Automatico;
    std::unique_ptr<QWidget> ventana;
    SuperficieGL* superficie = nullptr; // child of the window
    std::unique_ptr<QOpenGLDebugLogger> registro;
};

// SuperficieGL: the picture control of the map, an OpenGL 3.3 core surface.
//
// It shows the last frame that modOpenGL presented and computes nothing by itself: a paint event shows that
// frame again. There are two roads from the frame to the screen:
//
//   Compuesto  a QOpenGLWidget inside copies the frame, and the window is composed by the graphics card.
//   Leido      the frame is drawn in a context of our own, read back and painted like any other picture.
//
// Where OpenGL is software the second costs a third of the first (composing draws the whole window twice
// more), and it is the only one where there may be no OpenGL at all: Qt ends the program when it has to
// compose a window and finds no driver. So a context is tried before a QOpenGLWidget is made.
//
// Without a context the control is an empty grey rectangle that takes the mouse and the keys as ever.
#pragma once

#include <QImage>
#include <QString>
#include <QWidget>

#include <memory>

class QOffscreenSurface;
class QOpenGLContext;
class QOpenGLWidget;

class SuperficieGL : public QWidget
{
    Q_OBJECT

public:
    enum class Camino
    {
        Automatico, // Compuesto on a graphics card, Leido on a software driver
        Compuesto,
        Leido,
    };

    explicit SuperficieGL(QWidget* padre = nullptr, Camino camino = Camino::Automatico);
    ~SuperficieGL() override;

    // The context that frames are drawn in; null if there is none (yet).
    QOpenGLContext* Contexto() const;

    // Makes it current; false if it refuses.
    bool HacerActual();
    void SoltarActual();

    // Why Contexto() is null, in the words of modOpenGL::CrearContextoGL; empty while it is not.
    QString PorQueNo() const;

    // The front frame has changed.
    void Mostrar();

    // Throws the context away and makes a new one, as after a reset of the driver. The road Compuesto cannot:
    // there Qt does it when the control moves to another window.
    void RehacerContexto();

    bool EsCompuesta() const { return compuesta != nullptr; }

Q_SIGNALS:
    // The context was made anew after modOpenGL had been using the old one: every texture is gone and the
    // frame is empty grey. Load and paint again.
    void ContextoRehecho();

protected:
    void paintEvent(QPaintEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;

private:
    void CrearContextoPropio();
    void SoltarContextoPropio();

    QString error;
    std::unique_ptr<QOffscreenSurface> lugar; // road Leido
    std::unique_ptr<QOpenGLContext> propio;   // road Leido
    QOpenGLWidget* compuesta = nullptr;       // road Compuesto; child
    QImage frame;                             // road Leido: the front frame as last read
    bool frameViejo = true;                   // it must be read again
};

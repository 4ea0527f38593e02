// SuperficieGL: the picture control of the map, an OpenGL 3.3 core surface.
//
// It shows the last frame that modOpenGL presented and computes nothing by itself: a paint event copies
// that frame again. Where OpenGL cannot be had it stays an empty grey rectangle and takes the mouse and the
// keys like any other control.
#pragma once

#include <QOpenGLWidget>

class SuperficieGL : public QOpenGLWidget
{
    Q_OBJECT

public:
    explicit SuperficieGL(QWidget* padre = nullptr);
    ~SuperficieGL() override;

Q_SIGNALS:
    // The context was made anew (the control moved to another window) after modOpenGL had been using the
    // old one: every texture is gone and the frame is empty grey. Load and paint again.
    void ContextoRehecho();

protected:
    void initializeGL() override;
    void paintGL() override;
};

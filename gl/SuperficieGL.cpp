#include "SuperficieGL.h"

#include "EstadoGL.h"

#include <QOpenGLContext>
#include <QSurfaceFormat>

SuperficieGL::SuperficieGL(QWidget* padre) : QOpenGLWidget(padre)
{
    QSurfaceFormat formato = QSurfaceFormat::defaultFormat();
    formato.setVersion(3, 3);
    formato.setProfile(QSurfaceFormat::CoreProfile);
    formato.setSwapInterval(0); // frames follow the hand and the timers, not the screen
    setFormat(formato);
    setMouseTracking(true);
}

SuperficieGL::~SuperficieGL()
{
    if (context() != nullptr)
        disconnect(context(), nullptr, this, nullptr);
    modOpenGL::OlvidarSuperficie(this);
}

void SuperficieGL::initializeGL()
{
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this,
            [this] { modOpenGL::PerderContexto(this); });
    if (modOpenGL::RehacerContexto(this))
        QMetaObject::invokeMethod(this, &SuperficieGL::ContextoRehecho, Qt::QueuedConnection);
}

void SuperficieGL::paintGL()
{
    const QSizeF lado = QSizeF(size()) * devicePixelRatioF();
    modOpenGL::CopiarFrente(this, defaultFramebufferObject(), qRound(lado.width()), qRound(lado.height()));
}

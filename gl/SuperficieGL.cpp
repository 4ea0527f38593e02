#include "SuperficieGL.h"

#include "EstadoGL.h"
#include "paleta.h"

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLWidget>
#include <QPainter>
#include <QSurfaceFormat>

#include <utility>

namespace {

QSurfaceFormat Formato()
{
    QSurfaceFormat formato = QSurfaceFormat::defaultFormat();
    formato.setVersion(3, 3);
    formato.setProfile(QSurfaceFormat::CoreProfile);
    formato.setSwapInterval(0); // frames follow the hand and the timers, not the screen
    return formato;
}

// The driver of the current context draws on the processor.
bool EsSoftware(QOpenGLContext& contexto)
{
    const auto* nombre = reinterpret_cast<const char*>(contexto.functions()->glGetString(GL_RENDERER));
    const QString texto = QString::fromLatin1(nombre);
    for (const char* software : {"llvmpipe", "softpipe", "swrast", "Software Rasterizer", "SwiftShader",
                                 "GDI Generic", "Basic Render"})
        if (texto.contains(QLatin1String(software), Qt::CaseInsensitive))
            return true;
    return false;
}

// The QOpenGLWidget of the road Compuesto. The mouse passes through to the control.
class Compuesta : public QOpenGLWidget
{
public:
    explicit Compuesta(SuperficieGL* padre) : QOpenGLWidget(padre), superficie(padre)
    {
        setFormat(Formato());
        setAttribute(Qt::WA_TransparentForMouseEvents);
    }

    ~Compuesta() override
    {
        if (context() != nullptr)
            disconnect(context(), nullptr, this, nullptr);
    }

protected:
    void initializeGL() override
    {
        connect(context(), &QOpenGLContext::aboutToBeDestroyed, this,
                [this] { modOpenGL::PerderContexto(superficie); });
        if (modOpenGL::RehacerContexto(superficie))
            QMetaObject::invokeMethod(superficie, &SuperficieGL::ContextoRehecho, Qt::QueuedConnection);
    }

    void paintGL() override
    {
        const QSizeF lado = QSizeF(size()) * devicePixelRatioF();
        modOpenGL::CopiarFrente(superficie, defaultFramebufferObject(), qRound(lado.width()),
                                qRound(lado.height()));
    }

private:
    SuperficieGL* superficie;
};

} // namespace

SuperficieGL::SuperficieGL(QWidget* padre, Camino camino) : QWidget(padre)
{
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    CrearContextoPropio();
    if (propio == nullptr || camino == Camino::Leido)
        return;
    const bool software = EsSoftware(*propio);
    propio->doneCurrent();
    if (software && camino == Camino::Automatico)
        return;
    SoltarContextoPropio();
    compuesta = new Compuesta(this);
}

SuperficieGL::~SuperficieGL()
{
    modOpenGL::OlvidarSuperficie(this);
    delete std::exchange(compuesta, nullptr);
    SoltarContextoPropio();
}

void SuperficieGL::CrearContextoPropio()
{
    error.clear();
    propio = std::make_unique<QOpenGLContext>();
    propio->setFormat(Formato());
    if (!propio->create()) {
        error = QStringLiteral("wglCreateContext fallo");
    } else if (propio->isOpenGLES() || propio->format().version() < qMakePair(3, 3)) {
        error = QStringLiteral("ChoosePixelFormat fallo");
    } else {
        lugar = std::make_unique<QOffscreenSurface>();
        lugar->setFormat(propio->format());
        lugar->create();
        if (!propio->makeCurrent(lugar.get()))
            error = QStringLiteral("wglMakeCurrent fallo");
    }
    if (!error.isEmpty())
        SoltarContextoPropio();
}

void SuperficieGL::SoltarContextoPropio()
{
    propio.reset();
    lugar.reset();
}

QOpenGLContext* SuperficieGL::Contexto() const
{
    return compuesta != nullptr ? compuesta->context() : propio.get();
}

bool SuperficieGL::HacerActual()
{
    QOpenGLContext* contexto = Contexto();
    if (contexto == nullptr)
        return false;
    if (QOpenGLContext::currentContext() == contexto)
        return true;
    if (compuesta != nullptr)
        compuesta->makeCurrent();
    else if (!propio->makeCurrent(lugar.get()))
        return false;
    return QOpenGLContext::currentContext() == contexto;
}

void SuperficieGL::SoltarActual()
{
    if (QOpenGLContext* contexto = Contexto();
        contexto != nullptr && contexto == QOpenGLContext::currentContext())
        contexto->doneCurrent();
}

QString SuperficieGL::PorQueNo() const
{
    if (Contexto() != nullptr)
        return {};
    return error.isEmpty() ? QStringLiteral("GetDC fallo (hWnd=%1)").arg(window()->winId()) : error;
}

void SuperficieGL::Mostrar()
{
    frameViejo = true;
    if (compuesta != nullptr)
        compuesta->update();
    else
        update();
}

void SuperficieGL::RehacerContexto()
{
    if (compuesta != nullptr)
        return;
    modOpenGL::PerderContexto(this);
    SoltarContextoPropio();
    CrearContextoPropio();
    frameViejo = true;
    if (propio != nullptr && modOpenGL::RehacerContexto(this))
        QMetaObject::invokeMethod(this, &SuperficieGL::ContextoRehecho, Qt::QueuedConnection);
}

// The control may have another size than the last frame for a moment, while it is being resized: the frame
// then stays at the top left and the rest is empty grey.
void SuperficieGL::paintEvent(QPaintEvent*)
{
    if (compuesta != nullptr)
        return;
    if (std::exchange(frameViejo, false))
        modOpenGL::LeerFrente(this, frame);
    QPainter p(this);
    const QSizeF cubierto = frame.deviceIndependentSize();
    if (cubierto.width() < width() || cubierto.height() < height())
        p.fillRect(rect(), frame.isNull() ? paleta::kMapaVacio : QColor(128, 128, 128));
    if (!frame.isNull())
        p.drawImage(QPointF(0.0, 0.0), frame);
}

void SuperficieGL::resizeEvent(QResizeEvent*)
{
    if (compuesta != nullptr)
        compuesta->setGeometry(rect());
}

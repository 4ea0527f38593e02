// Context, frames and their two buffers.
#include "modOpenGL.h"

#include "EstadoGL.h"
#include "SuperficieGL.h"

#include <QOpenGLContext>

#include <algorithm>
#include <cmath>
#include <utility>

namespace modOpenGL {
namespace {

constexpr float kGrisVacio = 0.5F;
constexpr GLenum kOrdenQImage = 0x8367; // GL_UNSIGNED_INT_8_8_8_8_REV: 0xAARRGGBB with GL_BGRA

bool AjustarBuffer(EstadoGL& e, BufferFrame& b, int ancho, int alto)
{
    if (b.fbo == 0) {
        e.gl->glGenFramebuffers(1, &b.fbo);
        e.gl->glGenTextures(1, &b.color);
        e.contadores.buffersCreados += 2;
    }
    e.gl->glBindFramebuffer(GL_FRAMEBUFFER, b.fbo);
    if (b.ancho == ancho && b.alto == alto)
        return true;
    // Asked for in the order of a QImage, which spares software drivers a conversion when it is read.
    e.gl->glBindTexture(GL_TEXTURE_2D, b.color);
    e.gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    e.gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    e.gl->glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, ancho, alto, 0, GL_BGRA, kOrdenQImage, nullptr);
    e.gl->glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, b.color, 0);
    b.ancho = ancho;
    b.alto = alto;
    return e.gl->glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

void SoltarBuffer(EstadoGL& e, BufferFrame& b)
{
    if (b.fbo != 0) {
        e.gl->glDeleteFramebuffers(1, &b.fbo);
        e.gl->glDeleteTextures(1, &b.color);
    }
    b = {};
}

// Everything that a live context holds for us. The context must be current.
bool Construir(EstadoGL& e)
{
    e.gl = e.superficie->Contexto()->extraFunctions();
    if (!AjustarBuffer(e, e.fondo, 1, 1) || !e.lote.Crear(e.gl)) {
        e.ultimoError = QStringLiteral("SetPixelFormat fallo fmt=%1").arg(GL_RGBA8);
        return false;
    }
    e.contadores.buffersCreados += 2;
    e.atlas.Crear(e.gl, e.superficie->devicePixelRatioF());
    ++e.contadores.texturasCreadas;
    e.listo = true;
    return true;
}

void Derribar(EstadoGL& e)
{
    e.listo = false;
    if (e.gl == nullptr)
        return;
    e.lote.Liberar();
    for (const GLuint t : std::as_const(e.registro))
        e.gl->glDeleteTextures(1, &t);
    for (const GLuint t : std::as_const(e.sueltas))
        e.gl->glDeleteTextures(1, &t);
    e.registro.clear();
    e.sueltas.clear();
    e.lados.clear();
    e.atlas.Liberar();
    SoltarBuffer(e, e.fondo);
    SoltarBuffer(e, e.frente);
    e.hayFrente = false;
    e.ancho = 0.0;
    e.gl = nullptr;
}

} // namespace

EstadoGL& Estado()
{
    static EstadoGL estado;
    return estado;
}

bool EstadoGL::HacerActual()
{
    if (!listo)
        return false;
    if (superficie->HacerActual())
        return true;
    superficie->RehacerContexto(); // the driver was reset
    return listo && superficie->HacerActual();
}

void EstadoGL::Volcar()
{
    if (lote.Vacio())
        return;
    gl->glBindFramebuffer(GL_FRAMEBUFFER, fondo.fbo);
    gl->glViewport(0, 0, fondo.ancho, fondo.alto);
    lote.Dibujar(fondo.ancho / fondo.escala, fondo.alto / fondo.escala, contadores.dibujos,
                 contadores.vertices);
}

// ---- Context

bool CrearContextoGL(SuperficieGL* superficie)
{
    EstadoGL& e = Estado();
    if (e.listo)
        return true;
    if (superficie == nullptr || superficie->Contexto() == nullptr) {
        e.ultimoError =
            superficie == nullptr ? QStringLiteral("GetDC fallo (hWnd=0)") : superficie->PorQueNo();
        return false;
    }
    if (!superficie->HacerActual()) {
        e.ultimoError = QStringLiteral("wglMakeCurrent fallo");
        return false;
    }
    e.superficie = superficie;
    if (Construir(e))
        return true;
    LiberarContextoGL();
    return false;
}

void LiberarContextoGL()
{
    EstadoGL& e = Estado();
    if (e.superficie != nullptr) {
        e.superficie->HacerActual();
        Derribar(e);
        e.superficie->SoltarActual();
    }
    e.superficie = nullptr;
    e.suprimida = false;
}

bool ContextoGLListo()
{
    return Estado().listo;
}

QString UltimoErrorGL()
{
    return Estado().ultimoError;
}

bool RehacerContexto(SuperficieGL* superficie)
{
    EstadoGL& e = Estado();
    if (e.superficie != superficie || !superficie->HacerActual())
        return false;
    if (Construir(e))
        return true;
    Derribar(e);
    return false;
}

void PerderContexto(SuperficieGL* superficie)
{
    EstadoGL& e = Estado();
    if (e.superficie != superficie)
        return;
    superficie->HacerActual();
    Derribar(e);
    superficie->SoltarActual();
}

void OlvidarSuperficie(SuperficieGL* superficie)
{
    if (Estado().superficie == superficie)
        LiberarContextoGL();
}

// ---- Frames

void PrepararViewport(int ancho, int alto)
{
    EstadoGL& e = Estado();
    if (!e.listo || ancho <= 0 || alto <= 0)
        return;
    e.lote.Vaciar();
    e.ancho = 0.0; // until the frame is ready nothing draws
    if (!e.HacerActual()) {
        e.ultimoError = QStringLiteral("wglMakeCurrent fallo en PrepararViewport");
        return;
    }
    const double escala = e.superficie->devicePixelRatioF();
    if (escala != e.atlas.Escala())
        e.atlas.Vaciar(escala);
    const auto enPixeles = [escala](int lado) {
        return std::max(1, static_cast<int>(std::lround(lado * escala)));
    };
    if (!AjustarBuffer(e, e.fondo, enPixeles(ancho), enPixeles(alto))) {
        e.ultimoError = QStringLiteral("SetPixelFormat fallo fmt=%1").arg(GL_RGBA8);
        return;
    }
    e.fondo.escala = escala;
    e.ancho = ancho;
    e.alto = alto;
    e.vector = false;
    e.contadores.dibujos = 0;
    e.contadores.vertices = 0;
    e.lapiz = {.pixel = static_cast<float>(1.0 / escala),
               .suave = false,
               .uBlanco = e.atlas.Blanco(),
               .vBlanco = e.atlas.Blanco(),
               .ancho = static_cast<float>(ancho),
               .alto = static_cast<float>(alto)};
    e.gl->glViewport(0, 0, e.fondo.ancho, e.fondo.alto);
    e.gl->glDisable(GL_SCISSOR_TEST);
    e.gl->glClearColor(kGrisVacio, kGrisVacio, kGrisVacio, 1.0F);
    e.gl->glClear(GL_COLOR_BUFFER_BIT);
}

namespace {

void Presentar(bool mostrar)
{
    EstadoGL& e = Estado();
    if (!e.HacerActual())
        return;
    e.Volcar();
    e.gl->glFlush();
    ++e.contadores.frames;
    if (!mostrar)
        return;
    std::swap(e.fondo, e.frente);
    e.hayFrente = true;
    e.superficie->Mostrar();
}

} // namespace

void PresentarFrame()
{
    Presentar(!Estado().suprimida);
}

void PresentarSiempre()
{
    Presentar(true);
}

void SuprimirPresentacion(bool suprimir)
{
    Estado().suprimida = suprimir;
}

bool PresentacionSuprimida()
{
    return Estado().suprimida;
}

void CopiarFrente(SuperficieGL* superficie, unsigned int destino, int ancho, int alto)
{
    EstadoGL& e = Estado();
    QOpenGLExtraFunctions* gl = superficie->Contexto()->extraFunctions();
    const bool mia = e.listo && e.superficie == superficie && e.hayFrente;
    gl->glBindFramebuffer(GL_DRAW_FRAMEBUFFER, destino);
    if (!mia || e.frente.ancho < ancho || e.frente.alto < alto) {
        gl->glClearColor(kGrisVacio, kGrisVacio, kGrisVacio, 1.0F);
        gl->glClear(GL_COLOR_BUFFER_BIT);
    }
    if (!mia)
        return;
    const int w = std::min(ancho, e.frente.ancho);
    const int h = std::min(alto, e.frente.alto);
    gl->glBindFramebuffer(GL_READ_FRAMEBUFFER, e.frente.fbo); // top row first there, last here
    gl->glBlitFramebuffer(0, 0, w, h, 0, alto, w, alto - h, GL_COLOR_BUFFER_BIT, GL_NEAREST);
    gl->glBindFramebuffer(GL_FRAMEBUFFER, destino);
}

void LeerFrente(SuperficieGL* superficie, QImage& imagen)
{
    EstadoGL& e = Estado();
    if (e.superficie != superficie || !e.hayFrente || !e.HacerActual() || !e.hayFrente) {
        imagen = {};
        return;
    }
    if (imagen.size() != QSize(e.frente.ancho, e.frente.alto))
        imagen = QImage(e.frente.ancho, e.frente.alto, QImage::Format_RGB32);
    e.gl->glBindFramebuffer(GL_READ_FRAMEBUFFER, e.frente.fbo);
    e.gl->glPixelStorei(GL_PACK_ALIGNMENT, 4);
    e.gl->glReadPixels(0, 0, e.frente.ancho, e.frente.alto, GL_BGRA, kOrdenQImage, imagen.bits());
    imagen.setDevicePixelRatio(e.frente.escala);
}

std::int32_t CapturarFrame(int ancho, int alto)
{
    EstadoGL& e = Estado();
    if (ancho <= 0 || alto <= 0 || !e.HacerActual() || !e.hayFrente)
        return 0;
    const int w = std::min(e.frente.ancho, static_cast<int>(std::lround(ancho * e.frente.escala)));
    const int h = std::min(e.frente.alto, static_cast<int>(std::lround(alto * e.frente.escala)));
    if (w <= 0 || h <= 0)
        return 0;
    const GLuint textura = e.CrearTextura(w, h, nullptr);
    e.gl->glBindFramebuffer(GL_READ_FRAMEBUFFER, e.frente.fbo);
    e.gl->glBindTexture(GL_TEXTURE_2D, textura);
    e.gl->glCopyTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 0, 0, w, h);
    e.gl->glBindFramebuffer(GL_READ_FRAMEBUFFER, e.fondo.fbo);
    e.sueltas.insert(textura);
    return static_cast<std::int32_t>(textura);
}

void DibujarFrameCapturado(std::int32_t id, int ancho, int alto, double alfa)
{
    EstadoGL& e = Estado();
    if (!e.HacerActual() || !e.lados.contains(static_cast<GLuint>(id)) || !(alfa > 0.0))
        return;
    const auto textura = static_cast<GLuint>(id);
    trazo::Estampa(e.lote.Abrir(textura, true, e.Exacta(textura, ancho, alto)), {0.0, 0.0}, ancho, alto, 0.0F,
                   0.0F, 1.0F, 1.0F, trazo::TintaDe(RGB(255, 255, 255), alfa));
}

void BorrarFrameCapturado(std::int32_t id)
{
    BorrarTexturaGlobo(id);
}

QImage LeerFrame()
{
    QImage imagen;
    if (Estado().superficie != nullptr)
        LeerFrente(Estado().superficie, imagen);
    return imagen;
}

// ---- Measuring

ContadoresGL Contadores()
{
    return Estado().contadores;
}

void EsperarGL()
{
    if (Estado().HacerActual())
        Estado().gl->glFinish();
}

} // namespace modOpenGL

// The registry of tile textures and the large ones beside it.
#include "EstadoGL.h"
#include "cacheGlobo.h"
#include "modGDIPlus.h"
#include "modRutas.h"

namespace modOpenGL {
namespace {

constexpr qsizetype kRegistroMaximo = 512;
constexpr int kLadoTile = 1024; // pixels; no map server sends more
constexpr int kAnchoGlobo = 8192;
constexpr int kAltoGlobo = 4096;

} // namespace

GLuint EstadoGL::CrearTextura(int ladoX, int ladoY, const void* pixeles)
{
    GLuint textura = 0;
    gl->glGenTextures(1, &textura);
    gl->glBindTexture(GL_TEXTURE_2D, textura);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    gl->glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    gl->glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA8, ladoX, ladoY, 0, GL_RGBA, GL_UNSIGNED_BYTE, pixeles);
    ++contadores.texturasCreadas;
    lados.insert(textura, {ladoX, ladoY});
    return textura;
}

void EstadoGL::BorrarTextura(GLuint textura)
{
    Volcar();
    lados.remove(textura);
    gl->glDeleteTextures(1, &textura);
}

bool EstadoGL::Exacta(GLuint textura, double w, double h) const
{
    const QSize lado = lados.value(textura);
    return w * fondo.escala == lado.width() && h * fondo.escala == lado.height();
}

std::int32_t ObtenerTextura(const QString& ruta)
{
    EstadoGL& e = Estado();
    if (!e.HacerActual())
        return 0;
    if (const auto hallada = e.registro.constFind(ruta); hallada != e.registro.constEnd())
        return static_cast<std::int32_t>(*hallada);
    if (e.registro.size() > kRegistroMaximo)
        VaciarTexturas();
    int ancho = 0;
    int alto = 0;
    std::vector<std::uint8_t> bytes;
    if (!modGDIPlus::CargarBytesRGBA(ruta, ancho, alto, bytes, kLadoTile))
        return 0;
    const GLuint textura = e.CrearTextura(ancho, alto, bytes.data());
    if (textura != 0)
        e.registro.insert(ruta, textura);
    return static_cast<std::int32_t>(textura);
}

std::int32_t BuscarTextura(const QString& ruta)
{
    return static_cast<std::int32_t>(Estado().registro.value(ruta, 0));
}

void VaciarTexturas()
{
    EstadoGL& e = Estado();
    if (!e.HacerActual())
        return;
    e.Volcar();
    for (const GLuint textura : std::as_const(e.registro)) {
        e.lados.remove(textura);
        e.gl->glDeleteTextures(1, &textura);
    }
    e.registro.clear();
}

int TexturasRegistradas()
{
    return static_cast<int>(Estado().registro.size());
}

std::int32_t CargarTexturaGlobo(const QString& ruta)
{
    EstadoGL& e = Estado();
    if (!e.HacerActual())
        return 0;
    cacheGlobo::Imagen imagen;
    if (!cacheGlobo::CargarConCache(modRutas::RutaDatos(u"recursos"), ruta, kAnchoGlobo, kAltoGlobo,
                                    imagen)) {
        e.ultimoError = QStringLiteral("CargarTexturaGlobo: ObtenerBytesRGBAEscalado fallo");
        return 0;
    }
    const GLuint textura = e.CrearTextura(imagen.ancho, imagen.alto, imagen.bytes.data());
    if (textura != 0)
        e.sueltas.insert(textura);
    return static_cast<std::int32_t>(textura);
}

void BorrarTexturaGlobo(std::int32_t id)
{
    EstadoGL& e = Estado();
    if (id > 0 && e.HacerActual() && e.sueltas.remove(static_cast<GLuint>(id)))
        e.BorrarTextura(static_cast<GLuint>(id));
}

} // namespace modOpenGL

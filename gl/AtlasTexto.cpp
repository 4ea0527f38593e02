#include "AtlasTexto.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace {

constexpr int kBlanco = 4;                   // side of the white corner, texels
constexpr qsizetype kEtiquetasMaximo = 4096; // also bounds those that are remembered as not drawn

QFont Fuente(const ClaveTexto& clave)
{
    QFont fuente(QStringLiteral("Tahoma"));
    fuente.setPixelSize(std::max(1, clave.tamano * 4 / 3));
    fuente.setWeight(clave.negrita ? QFont::Bold : QFont::Normal);
    return fuente;
}

} // namespace

size_t qHash(const ClaveTexto& c, size_t semilla)
{
    return qHashMulti(semilla, c.texto, c.tamano, c.negrita);
}

bool Estantes::Reservar(int ancho, int alto, int& x, int& y)
{
    if (ancho > lado)
        return false;
    // A shelf serves if it is high enough and not much too high.
    for (Estante& e : estantes) {
        if (alto <= e.alto && 2 * alto > e.alto && e.ocupado + ancho <= lado) {
            x = e.ocupado;
            y = e.y;
            e.ocupado += ancho;
            return true;
        }
    }
    if (siguiente + alto > lado)
        return false;
    x = 0;
    y = siguiente;
    estantes.append({siguiente, alto, ancho});
    siguiente += alto;
    return true;
}

MedidaTexto MedirTexto(const ClaveTexto& clave)
{
    const QFontMetricsF metrica(Fuente(clave));
    return {static_cast<int>(std::ceil(metrica.horizontalAdvance(clave.texto))),
            static_cast<int>(std::ceil(metrica.height()))};
}

QImage RasterizarTexto(const ClaveTexto& clave, double escala)
{
    const MedidaTexto medida = MedirTexto(clave);
    const int ancho = medida.ancho + 2;
    const int alto = medida.alto + 2;
    if (ancho < 4 || alto < 4 || ancho > 1024 || alto > 256)
        return {};
    QImage imagen(static_cast<int>(std::ceil(ancho * escala)), static_cast<int>(std::ceil(alto * escala)),
                  QImage::Format_Grayscale8);
    if (imagen.isNull())
        return {};
    imagen.setDevicePixelRatio(escala);
    imagen.fill(Qt::black);
    QPainter p(&imagen);
    const QFont fuente = Fuente(clave);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(fuente);
    p.setPen(Qt::white);
    p.drawText(QPointF(1.0, 1.0 + QFontMetricsF(fuente).ascent()), clave.texto);
    p.end();
    return imagen;
}

void AtlasTexto::Crear(QOpenGLExtraFunctions* funciones, double escala_)
{
    gl = funciones;
    GLint maximo = 0;
    gl->glGetIntegerv(GL_MAX_TEXTURE_SIZE, &maximo);
    lado = std::min(maximo, 2048);
    gl->glGenTextures(1, &textura);
    gl->glBindTexture(GL_TEXTURE_2D, textura);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    // One channel of coverage reads as white with that opacity, as every other texture reads.
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_R, GL_ONE);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_G, GL_ONE);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_B, GL_ONE);
    gl->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_A, GL_RED);
    gl->glTexImage2D(GL_TEXTURE_2D, 0, GL_R8, lado, lado, 0, GL_RED, GL_UNSIGNED_BYTE, nullptr);
    const std::vector<std::uint8_t> blanco(kBlanco * kBlanco, 255);
    gl->glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    gl->glTexSubImage2D(GL_TEXTURE_2D, 0, 0, 0, kBlanco, kBlanco, GL_RED, GL_UNSIGNED_BYTE, blanco.data());
    Vaciar(escala_);
}

void AtlasTexto::Liberar()
{
    if (gl != nullptr && textura != 0)
        gl->glDeleteTextures(1, &textura);
    textura = 0;
    gl = nullptr;
    etiquetas.clear();
}

void AtlasTexto::Vaciar(double escala_)
{
    escala = escala_;
    etiquetas.clear();
    estantes = Estantes(lado);
    int x = 0;
    int y = 0;
    estantes.Reservar(kBlanco, kBlanco, x, y); // the white corner
}

const AtlasTexto::Etiqueta* AtlasTexto::Buscar(const ClaveTexto& clave) const
{
    const auto e = etiquetas.constFind(clave);
    return e == etiquetas.constEnd() ? nullptr : &*e;
}

const AtlasTexto::Etiqueta* AtlasTexto::Poner(const ClaveTexto& clave)
{
    if (etiquetas.size() >= kEtiquetasMaximo)
        return nullptr;
    const QImage imagen = RasterizarTexto(clave, escala);
    if (imagen.isNull() || imagen.width() > lado || imagen.height() > lado)
        return &*etiquetas.insert(clave, Etiqueta{});
    int x = 0;
    int y = 0;
    // One texel of distance, so that no label bleeds into its neighbour.
    if (!estantes.Reservar(std::min(lado, imagen.width() + 1), std::min(lado, imagen.height() + 1), x, y))
        return nullptr;
    // The rows of an 8-bit picture are padded to 4 bytes.
    gl->glBindTexture(GL_TEXTURE_2D, textura);
    gl->glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    gl->glTexSubImage2D(GL_TEXTURE_2D, 0, x, y, imagen.width(), imagen.height(), GL_RED, GL_UNSIGNED_BYTE,
                        imagen.constBits());
    gl->glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    const auto t = static_cast<float>(lado);
    const Etiqueta e{static_cast<float>(x) / t,
                     static_cast<float>(y) / t,
                     static_cast<float>(x + imagen.width()) / t,
                     static_cast<float>(y + imagen.height()) / t,
                     imagen.width() / escala,
                     imagen.height() / escala};
    return &*etiquetas.insert(clave, e);
}

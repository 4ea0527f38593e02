// Tiles, shapes and texts into the batch.
#include "EstadoGL.h"

#include <algorithm>
#include <cmath>

namespace modOpenGL {
namespace {

constexpr int kLadosPin = 20;
constexpr int kLadosCentro = 8;
constexpr double kContornoPin = 1.5; // pixels
constexpr std::int32_t kBlanco = RGB(255, 255, 255);

// A frame is being drawn with a live context.
bool Dibujando(const EstadoGL& e)
{
    return e.listo && e.ancho > 0.0;
}

trazo::Tinta TintaDe(const ColorGL& c)
{
    const auto byte = [](double parte) {
        return static_cast<std::uint8_t>(std::lround(std::clamp(parte, 0.0, 1.0) * 255.0));
    };
    return {byte(c.r), byte(c.g), byte(c.b), byte(c.a)};
}

void Estampar(EstadoGL& e, std::int32_t textura, double x, double y, double ancho, double alto, double s0,
              double t0, double s1, double t1, double alfa, bool mezcla)
{
    if (textura <= 0 || x > e.ancho || y > e.alto || x + ancho < 0.0 || y + alto < 0.0)
        return;
    const auto id = static_cast<GLuint>(textura);
    const double escala = e.fondo.escala;
    const bool exacta = s0 == 0.0 && t0 == 0.0 && s1 == 1.0 && t1 == 1.0 &&
                        std::floor(x * escala) == x * escala && std::floor(y * escala) == y * escala &&
                        e.Exacta(id, ancho, alto);
    trazo::Estampa(e.lote.Abrir(id, mezcla, exacta), {x, y}, ancho, alto, static_cast<float>(s0),
                   static_cast<float>(t0), static_cast<float>(s1), static_cast<float>(t1),
                   trazo::TintaDe(kBlanco, alfa));
}

} // namespace

void ModoTexturaGL()
{
    Estado().vector = false;
    Estado().lapiz.suave = false;
}

void ModoVectorGL()
{
    Estado().vector = true;
    Estado().lapiz.suave = true;
}

void DibujarTesela(std::int32_t textura, double x, double y)
{
    DibujarTeselaParcial(textura, x, y, 256.0, 256.0, 0.0, 0.0, 1.0, 1.0);
}

void DibujarTeselaParcial(std::int32_t textura, double x, double y, double ancho, double alto, double s0,
                          double t0, double s1, double t1)
{
    EstadoGL& e = Estado();
    if (Dibujando(e))
        Estampar(e, textura, std::floor(x + 0.5), std::floor(y + 0.5), ancho, alto, s0, t0, s1, t1, 1.0,
                 e.vector);
}

void TexturaAlfaGL(std::int32_t textura, double x, double y, double lado, double alfa)
{
    EstadoGL& e = Estado();
    if (Dibujando(e) && alfa > 0.0)
        Estampar(e, textura, x, y, lado, lado, 0.0, 0.0, 1.0, 1.0, alfa, true);
}

void LineaGL(double x1, double y1, double x2, double y2, std::int32_t color, double ancho)
{
    EstadoGL& e = Estado();
    if (Dibujando(e))
        trazo::Linea(e.Formas(), e.lapiz, {x1, y1}, {x2, y2}, ancho, trazo::TintaDe(color));
}

void RectanguloGL(double x1, double y1, double x2, double y2, std::int32_t color)
{
    EstadoGL& e = Estado();
    if (!Dibujando(e))
        return;
    const trazo::Tinta t = trazo::TintaDe(color);
    trazo::Cuadrilatero(e.Formas(), e.lapiz, {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}, {t, t, t, t});
}

void CirculoGL(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno)
{
    EstadoGL& e = Estado();
    if (!Dibujando(e))
        return;
    trazo::Malla& m = e.Formas();
    trazo::Disco(m, e.lapiz, {x, y}, radio, kLadosPin, trazo::TintaDe(relleno));
    trazo::Anillo(m, e.lapiz, {x, y}, radio, kContornoPin, kLadosPin, trazo::TintaDe(contorno));
}

void PinGL(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno)
{
    EstadoGL& e = Estado();
    if (!Dibujando(e))
        return;
    CirculoGL(x, y, radio, relleno, contorno);
    trazo::Disco(e.Formas(), e.lapiz, {x, y}, radio / 3.0, kLadosCentro, trazo::TintaDe(kBlanco));
}

void DiscoAlfaGL(double x, double y, double radio, std::int32_t color, double alfa, int segmentos)
{
    EstadoGL& e = Estado();
    if (Dibujando(e) && alfa > 0.0)
        trazo::Disco(e.FormasMezcladas(), e.lapiz, {x, y}, radio, segmentos, trazo::TintaDe(color, alfa));
}

void CuadrilateroGL(const EsquinaGL (&esquinas)[4], const ColorGL& color)
{
    CuadrilateroGL(esquinas, {color, color, color, color});
}

void CuadrilateroGL(const EsquinaGL (&esquinas)[4], const ColorGL (&colores)[4])
{
    EstadoGL& e = Estado();
    if (!Dibujando(e) ||
        std::none_of(std::begin(colores), std::end(colores), [](const ColorGL& c) { return c.a > 0.0; }))
        return;
    trazo::Punto puntos[4];
    trazo::Tinta tintas[4];
    for (int i = 0; i < 4; ++i) {
        puntos[i] = {esquinas[i].x, esquinas[i].y};
        tintas[i] = TintaDe(colores[i]);
    }
    trazo::Cuadrilatero(e.Areas(), e.lapiz, puntos, tintas);
}

int MedirTextoGL(const QString& texto, int tamano, bool negrita)
{
    return MedirTexto({texto, tamano, negrita}).ancho;
}

void DibujarTextoGL(const QString& texto, double x, double y, std::int32_t color, int tamano, bool negrita)
{
    EstadoGL& e = Estado();
    if (texto.isEmpty() || !std::isfinite(x) || !std::isfinite(y) || !Dibujando(e) || !e.HacerActual())
        return;
    const ClaveTexto clave{texto, tamano, negrita};
    const AtlasTexto::Etiqueta* etiqueta = e.atlas.Buscar(clave);
    if (etiqueta == nullptr) {
        etiqueta = e.atlas.Poner(clave);
        if (etiqueta == nullptr) { // full: draw what wants the old labels, then start again
            e.Volcar();
            e.atlas.Vaciar(e.atlas.Escala());
            etiqueta = e.atlas.Poner(clave);
        }
        if (etiqueta != nullptr && etiqueta->ancho > 0.0)
            ++e.contadores.subidasTexto;
    }
    if (etiqueta == nullptr || !(etiqueta->ancho > 0.0))
        return;
    const double escala = e.atlas.Escala();
    const trazo::Punto origen{std::floor(x * escala + 0.5) / escala, std::floor(y * escala + 0.5) / escala};
    trazo::Estampa(e.FormasMezcladas(), origen, etiqueta->ancho, etiqueta->alto, etiqueta->u0, etiqueta->v0,
                   etiqueta->u1, etiqueta->v1, trazo::TintaDe(color));
}

} // namespace modOpenGL

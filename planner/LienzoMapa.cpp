#include "LienzoMapa.h"

void LienzoMapa::Velo(double x1, double y1, double x2, double y2, const Color& color)
{
    Cuadrilatero({{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}, color);
}

void LienzoMapa::TextoConSombra(const QString& texto, double x, double y, std::int32_t color, int tamano,
                                bool negrita)
{
    Texto(texto, x + 1.0, y + 1.0, modOpenGL::RGB(16, 18, 24), tamano, negrita);
    Texto(texto, x, y, color, tamano, negrita);
}

LienzoGL::LienzoGL()
{
    modOpenGL::ModoVectorGL();
}

LienzoGL::~LienzoGL()
{
    modOpenGL::ModoTexturaGL();
}

void LienzoGL::Linea(double x1, double y1, double x2, double y2, std::int32_t color, double ancho)
{
    modOpenGL::LineaGL(x1, y1, x2, y2, color, ancho);
}

void LienzoGL::Rectangulo(double x1, double y1, double x2, double y2, std::int32_t color)
{
    modOpenGL::RectanguloGL(x1, y1, x2, y2, color);
}

void LienzoGL::Pin(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno)
{
    modOpenGL::PinGL(x, y, radio, relleno, contorno);
}

void LienzoGL::Circulo(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno)
{
    modOpenGL::CirculoGL(x, y, radio, relleno, contorno);
}

void LienzoGL::DiscoAlfa(double x, double y, double radio, std::int32_t color, double alfa, int segmentos)
{
    modOpenGL::DiscoAlfaGL(x, y, radio, color, alfa, segmentos);
}

void LienzoGL::Cuadrilatero(const Esquina (&esquinas)[4], const Color& color)
{
    modOpenGL::CuadrilateroGL(esquinas, color);
}

void LienzoGL::Cuadrilatero(const Esquina (&esquinas)[4], const Color (&colores)[4])
{
    modOpenGL::CuadrilateroGL(esquinas, colores);
}

int LienzoGL::MedirTexto(const QString& texto, int tamano, bool negrita)
{
    return modOpenGL::MedirTextoGL(texto, tamano, negrita);
}

void LienzoGL::Texto(const QString& texto, double x, double y, std::int32_t color, int tamano, bool negrita)
{
    modOpenGL::DibujarTextoGL(texto, x, y, color, tamano, negrita);
}

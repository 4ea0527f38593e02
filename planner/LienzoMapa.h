// LienzoMapa: what the map's overlays draw on, and nothing more.
//
// A thin face of the OpenGL primitives. The overlays know this class only, so a test can put a surface that
// remembers in its place and read which shapes a scene gives. Coordinates are logical pixels of the
// picture, y down; colours packed with red in the low byte; text sizes in points, a text's place is the top
// left corner of its box.
#pragma once

#include "modOpenGL.h"

class LienzoMapa
{
public:
    using Esquina = modOpenGL::EsquinaGL;
    using Color = modOpenGL::ColorGL;

    virtual ~LienzoMapa() = default;

    virtual void Linea(double x1, double y1, double x2, double y2, std::int32_t color, double ancho) = 0;
    virtual void Rectangulo(double x1, double y1, double x2, double y2, std::int32_t color) = 0;
    virtual void Pin(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno) = 0;
    virtual void Circulo(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno) = 0;
    virtual void DiscoAlfa(double x, double y, double radio, std::int32_t color, double alfa,
                           int segmentos) = 0;
    virtual void Cuadrilatero(const Esquina (&esquinas)[4], const Color& color) = 0;
    virtual void Cuadrilatero(const Esquina (&esquinas)[4], const Color (&colores)[4]) = 0;
    virtual int MedirTexto(const QString& texto, int tamano, bool negrita) = 0;
    virtual void Texto(const QString& texto, double x, double y, std::int32_t color, int tamano,
                       bool negrita) = 0;

    // A translucent upright rectangle.
    void Velo(double x1, double y1, double x2, double y2, const Color& color);

    // Text over a dark shadow one pixel down and right, readable on pale and on dark ground.
    void TextoConSombra(const QString& texto, double x, double y, std::int32_t color, int tamano,
                        bool negrita);
};

// The frame being drawn by modOpenGL. Opens the overlay stage and closes it when it goes; PrepararViewport
// comes before it and PresentarFrame after it.
class LienzoGL final : public LienzoMapa
{
public:
    LienzoGL();
    ~LienzoGL() override;
    LienzoGL(const LienzoGL&) = delete;
    LienzoGL& operator=(const LienzoGL&) = delete;

    void Linea(double x1, double y1, double x2, double y2, std::int32_t color, double ancho) override;
    void Rectangulo(double x1, double y1, double x2, double y2, std::int32_t color) override;
    void Pin(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno) override;
    void Circulo(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno) override;
    void DiscoAlfa(double x, double y, double radio, std::int32_t color, double alfa, int segmentos) override;
    void Cuadrilatero(const Esquina (&esquinas)[4], const Color& color) override;
    void Cuadrilatero(const Esquina (&esquinas)[4], const Color (&colores)[4]) override;
    int MedirTexto(const QString& texto, int tamano, bool negrita) override;
    void Texto(const QString& texto, double x, double y, std::int32_t color, int tamano,
               bool negrita) override;
};

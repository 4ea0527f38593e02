// AtlasTexto: every label of the map in one texture.
//
// A label is rasterised once, as coverage, and found again by text, size and weight; all texts of a frame,
// and the untextured shapes too (through a white corner), so share one draw call. When the texture is full
// it starts again empty.
#pragma once

#include <QHash>
#include <QImage>
#include <QString>

#include <QOpenGLExtraFunctions>

// Places rectangles on shelves, as high as their first rectangle, from the top left. Pure.
class Estantes
{
public:
    explicit Estantes(int lado_ = 0) : lado(lado_) {}
    // Top left corner for a rectangle; false if it no longer fits.
    bool Reservar(int ancho, int alto, int& x, int& y);

private:
    struct Estante
    {
        int y, alto, ocupado;
    };
    int lado;
    int siguiente = 0; // first free row
    QList<Estante> estantes;
};

struct ClaveTexto
{
    QString texto;
    int tamano = 0; // points at 96 dpi
    bool negrita = false;
    bool operator==(const ClaveTexto&) const = default;
};

size_t qHash(const ClaveTexto& c, size_t semilla = 0);

// Width of a text and height of its line, whole logical pixels.
struct MedidaTexto
{
    int ancho = 0;
    int alto = 0;
};

MedidaTexto MedirTexto(const ClaveTexto& clave);

// Coverage of the text, 8 bits a pixel, one logical pixel inside a box of the measured extent plus 2 each
// way; `escala` device pixels to a logical one. Null if the box is under 4 pixels, wider than 1024 or
// higher than 256.
QImage RasterizarTexto(const ClaveTexto& clave, double escala);

class AtlasTexto
{
public:
    struct Etiqueta
    {
        float u0 = 0, v0 = 0, u1 = 0, v1 = 0;
        double ancho = 0, alto = 0; // logical pixels; 0: not drawn
    };

    void Crear(QOpenGLExtraFunctions* funciones, double escala);
    void Liberar();

    GLuint Textura() const { return textura; }
    float Blanco() const { return 2.0F / static_cast<float>(lado); } // u and v of a white texel
    double Escala() const { return escala; }

    // The label if it is there; never draws.
    const Etiqueta* Buscar(const ClaveTexto& clave) const;
    // Rasterises and sends it. Null if the texture is full: call Vaciar once nothing waits to be drawn.
    const Etiqueta* Poner(const ClaveTexto& clave);
    // Forgets all labels and, from now on, makes them for this scale.
    void Vaciar(double escala);

private:
    QOpenGLExtraFunctions* gl = nullptr;
    GLuint textura = 0;
    int lado = 2048;
    double escala = 1.0;
    Estantes estantes;
    QHash<ClaveTexto, Etiqueta> etiquetas;
};

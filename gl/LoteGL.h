// LoteGL: the one batch of a frame, on the side of the driver.
//
// Shapes go into a mesh, cut into orders wherever texture or blending changes; drawing sends the mesh into
// one vertex and one index buffer, which live as long as the context and only grow, and issues one draw
// call per order. A texture drawn texel on pixel is read without filtering: the same colours for half the
// price on a software driver. Everything but Malla() wants the context current.
#pragma once

#include "trazo.h"

#include <QOpenGLExtraFunctions>
#include <QOpenGLShaderProgram>
#include <QOpenGLVertexArrayObject>

#include <memory>
#include <vector>

class LoteGL
{
public:
    // Program and buffers; false if the shaders do not build.
    bool Crear(QOpenGLExtraFunctions* funciones);
    void Liberar();

    // Drops what was not drawn.
    void Vaciar();
    bool Vacio() const { return malla.indices.empty(); }

    // The mesh, with an order open for this texture (0: none, the colours alone) and blending; `exacta`
    // promises that texels fall on whole device pixels one to one. A reference is good until the next call.
    trazo::Malla& Abrir(GLuint textura, bool mezcla, bool exacta);

    // Draws into the bound frame buffer with the projection (0, 0) top left to (ancho, alto), then empties
    // the batch. Adds to the two counts.
    void Dibujar(double ancho, double alto, int& dibujos, int& vertices);

private:
    struct Orden
    {
        GLuint textura;
        bool mezcla;
        bool exacta;
        std::size_t desde; // first index
    };
    struct Programa
    {
        std::unique_ptr<QOpenGLShaderProgram> sombreador;
        int uEscala = -1, uOpaco = -1;

        bool Crear(const char* fragmentos);
    };
    void Enviar();

    QOpenGLExtraFunctions* gl = nullptr;
    // Large areas in plain colour do without reading a texel per pixel, which a software driver feels.
    Programa conTextura, liso;
    std::unique_ptr<QOpenGLVertexArrayObject> formato;
    GLuint bufferVertices = 0, bufferIndices = 0;
    GLuint sinFiltro = 0;                           // sampler: nearest texel
    GLsizeiptr cabenVertices = 0, cabenIndices = 0; // bytes
    trazo::Malla malla;
    std::vector<Orden> ordenes;
};

// EstadoGL: all that modOpenGL keeps, in one place. Private to gl/.
//
// The wish for a context (superficie set) outlives the context itself: when the control moves to another
// window Perder gives the objects back, Rehacer builds them for the new context.
#pragma once

#include "AtlasTexto.h"
#include "LoteGL.h"
#include "modOpenGL.h"

#include <QHash>
#include <QSet>
#include <QSize>
#include <QString>

#include <QOpenGLExtraFunctions>

namespace modOpenGL {

// One of our two frame buffers; its sides in device pixels. Its first row is the top one, as in every
// picture.
struct BufferFrame
{
    GLuint fbo = 0;
    GLuint color = 0; // texture, RGBA8
    int ancho = 0;
    int alto = 0;
    double escala = 1.0; // device pixels to a logical one
};

struct EstadoGL
{
    SuperficieGL* superficie = nullptr;
    QOpenGLExtraFunctions* gl = nullptr; // of the live context, otherwise null
    bool listo = false;
    bool suprimida = false;
    QString ultimoError;

    BufferFrame fondo;  // being drawn
    BufferFrame frente; // on show
    bool hayFrente = false;
    double ancho = 0, alto = 0; // logical size of the frame being drawn
    bool vector = false;        // overlay stage
    trazo::Lapiz lapiz;
    LoteGL lote;
    AtlasTexto atlas;

    QHash<QString, GLuint> registro; // path to texture
    QSet<GLuint> sueltas;            // large textures and captured frames
    QHash<GLuint, QSize> lados;      // of both kinds, in texels
    ContadoresGL contadores;

    // The context current; false if there is none or it refuses.
    bool HacerActual();
    // Draws the batch into the back buffer.
    void Volcar();
    // Texture with linear filters and clamped edges, level 0 only; pixels R, G, B, A or null.
    GLuint CrearTextura(int lado_x, int lado_y, const void* pixeles);
    // Deletes it after drawing what may still want it.
    void BorrarTextura(GLuint textura);
    // The whole of a texture, drawn in so many picture pixels from a whole device pixel on, comes out texel
    // on pixel.
    bool Exacta(GLuint textura, double w, double h) const;
    // A mesh for untextured shapes and texts, which always do.
    trazo::Malla& Formas() { return lote.Abrir(atlas.Textura(), vector, true); }
    // For areas in plain colour.
    trazo::Malla& Areas() { return lote.Abrir(0, true, true); }
    trazo::Malla& FormasMezcladas() { return lote.Abrir(atlas.Textura(), true, true); }
};

EstadoGL& Estado();

// What SuperficieGL reports and asks.
bool RehacerContexto(SuperficieGL* superficie); // true if this surface was in use and is ready again
void PerderContexto(SuperficieGL* superficie);
void CopiarFrente(SuperficieGL* superficie, unsigned int destino, int ancho, int alto);
void LeerFrente(SuperficieGL* superficie, QImage& imagen); // null without a front frame
void OlvidarSuperficie(SuperficieGL* superficie);

} // namespace modOpenGL

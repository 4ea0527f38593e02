// modOpenGL: the OpenGL surface that paints the map.
//
// One module, one surface, one thread: everything here belongs to the user-interface thread. A frame goes
//
//     PrepararViewport(w, h);    // context current, our own back buffer, grey 0.5, batch empty
//     ...primitives...           // triangles into one batch; nothing reaches the driver yet
//     PresentarFrame();          // batch drawn, back and front change places, the control is updated
//
// and may start anywhere, not only inside a paint event: the control shows the front buffer whenever the
// window system asks. Both buffers are ours, width x height times the device pixel ratio.
//
// Coordinates are logical pixels of the picture, origin at the top left, y down, with fraction: pixel n
// covers n to n + 1. Colours are packed integers with red in the low byte (color.h); opacity is apart, 0 to
// 1. Before CrearContextoGL succeeds, and while a context is lost, every function below does nothing and
// those that answer say false, 0 or an empty picture. No function shows a message or throws.
//
// Primitives that follow one another with the same texture share a draw call; quads count as one texture, all
// other untextured shapes and the texts as another. In a steady view a frame creates no texture and no
// buffer.
#pragma once

#include "color.h"

#include <QImage>
#include <QString>

#include <cstdint>

class SuperficieGL;

namespace modOpenGL {

// ---- Context

// Takes the surface and builds what frames need. A second call answers true and changes nothing. On failure
// false, and UltimoErrorGL tells the step:
//   "GetDC fallo (hWnd=N)"        no surface, or one on the road Compuesto that is not shown yet
//   "ChoosePixelFormat fallo"     the driver is older than OpenGL 3.3
//   "SetPixelFormat fallo fmt=N"  the frame buffers (format N, a GL enumerant) or the shaders failed
//   "wglCreateContext fallo"      no context could be created
//   "wglMakeCurrent fallo"        it was created but does not become current
bool CrearContextoGL(SuperficieGL* superficie);

// Gives everything back: textures, buffers, the hold on the surface. Harmless without a context.
void LiberarContextoGL();

bool ContextoGLListo();

// Text of the last failure, empty at start; kept until the next one.
QString UltimoErrorGL();

// ---- Frames

// Starts a frame of the given logical size: context current, viewport, pixel projection, grey 0.5, texture
// mode. If the context does not become current, "wglMakeCurrent fallo en PrepararViewport" and nothing
// more. A size that is not above 0 does nothing.
void PrepararViewport(int ancho, int alto);

// Draws what is pending and shows the frame, unless presentation is suppressed: then it is drawn and kept
// back, and primitives may go on over it.
void PresentarFrame();

// The same, shown in any case.
void PresentarSiempre();

// While true PresentarFrame shows nothing; a transition holds it.
void SuprimirPresentacion(bool suprimir);
bool PresentacionSuprimida();

// Copies the frame on show, not the one being drawn, into a new texture; 0 on failure. The size is the
// logical one, and the copy is cut to what the frame holds.
std::int32_t CapturarFrame(int ancho, int alto);

// Draws a captured frame over the whole picture, blended by `alfa`.
void DibujarFrameCapturado(std::int32_t id, int ancho, int alto, double alfa);

void BorrarFrameCapturado(std::int32_t id);

// The frame on show, opaque, with its device pixel ratio; null if there is none.
QImage LeerFrame();

// ---- Textures

// Texture of an image file, loaded if absent; 0 if it cannot be read or a side is above 1024 pixels. When
// the registry holds more than 512 textures it is emptied whole before the load.
std::int32_t ObtenerTextura(const QString& ruta);

// The same without ever loading.
std::int32_t BuscarTextura(const QString& ruta);

// Deletes every texture of the registry.
void VaciarTexturas();

int TexturasRegistradas();

// Texture of a very large image, brought down to 8192 x 4096 at most through the raw cache of
// cacheGlobo.h. 0 on failure, with a text in UltimoErrorGL. Not in the registry: it lives until
// BorrarTexturaGlobo, LiberarContextoGL or the loss of the context.
std::int32_t CargarTexturaGlobo(const QString& ruta);
void BorrarTexturaGlobo(std::int32_t id);

// ---- Primitives

// Texture stage, the one a frame starts in: tiles replace what lies under them, shapes have hard edges.
void ModoTexturaGL();

// Overlay stage: everything blends, lines and marks get their smooth edges.
void ModoVectorGL();

// A 256 x 256 tile, its corner moved to the nearest whole pixel, floor(x + 0.5).
void DibujarTesela(std::int32_t textura, double x, double y);

// The same with a size and the part (s0, t0)-(s1, t1) of the texture, 0 to 1 from its top left.
void DibujarTeselaParcial(std::int32_t textura, double x, double y, double ancho, double alto, double s0,
                          double t0, double s1, double t1);

// Square of a texture, blended by `alfa`; nothing for alfa not above 0.
void TexturaAlfaGL(std::int32_t textura, double x, double y, double lado, double alfa);

// Width in pixels, with fraction.
void LineaGL(double x1, double y1, double x2, double y2, std::int32_t color, double ancho);

// Filled upright rectangle between two corners, opaque, hard edges.
void RectanguloGL(double x1, double y1, double x2, double y2, std::int32_t color);

// Map mark: disc of 20 sides, its outline 1.5 pixels wide, and a white centre of 8 sides, a third of the
// radius.
void PinGL(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno);

// The same without the white centre.
void CirculoGL(double x, double y, double radio, std::int32_t relleno, std::int32_t contorno);

// Translucent disc of `segmentos` sides; nothing for radius or opacity not above 0.
void DiscoAlfaGL(double x, double y, double radio, std::int32_t color, double alfa, int segmentos = 36);

struct EsquinaGL
{
    double x = 0, y = 0;
};

struct ColorGL // components 0 to 1
{
    double r = 0, g = 0, b = 0, a = 1;
};

// Filled quad, corners in order around it, hard edges, so that neighbours join without a seam. Nothing for
// an opacity not above 0.
void CuadrilateroGL(const EsquinaGL (&esquinas)[4], const ColorGL& color);

// The same with one colour per corner, shaded between them; nothing if no opacity is above 0.
void CuadrilateroGL(const EsquinaGL (&esquinas)[4], const ColorGL (&colores)[4]);

// ---- Text

// "Tahoma" at size * 4 / 3 pixels (integer division), so `tamano` is in points at 96 dpi; where the family
// is missing the system's substitute serves.

// Width in whole pixels; needs no context.
int MedirTextoGL(const QString& texto, int tamano, bool negrita);

// One line with the top left corner of its box at (x, y), brought to whole device pixels; the glyphs begin
// one pixel inside it. A box (the measured extent plus 2 each way) under 4 pixels, wider than 1024 or
// higher than 256 is not drawn.
void DibujarTextoGL(const QString& texto, double x, double y, std::int32_t color, int tamano,
                    bool negrita = false);

// ---- Measuring

struct ContadoresGL
{
    std::int64_t frames = 0; // presented or kept back
    std::int64_t texturasCreadas = 0;
    std::int64_t buffersCreados = 0; // vertex, index and frame buffers
    std::int64_t subidasTexto = 0;   // labels rasterised and sent
    int dibujos = 0;                 // draw calls of the last frame
    int vertices = 0;                // vertices of the last frame
};

// Counted since the program's start.
ContadoresGL Contadores();

// Waits until the driver has drawn everything, for timings.
void EsperarGL();

} // namespace modOpenGL

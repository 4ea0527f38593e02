#include "LoteGL.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace {

constexpr char kVertices[] = R"(#version 330 core
layout(location = 0) in vec2 posicion;
layout(location = 1) in vec2 coordenada;
layout(location = 2) in vec4 tinta;
uniform vec2 escala;
out vec2 st;
out vec4 color;
void main()
{
    gl_Position = vec4(posicion * escala - 1.0, 0.0, 1.0); // the frame's first row is its top
    st = coordenada;
    color = tinta;
}
)";

// Without blending a transparent texel replaces what lies under it, and the frame stays opaque.
constexpr char kFragmentos[] = R"(#version 330 core
in vec2 st;
in vec4 color;
uniform sampler2D textura;
uniform float opaco;
out vec4 salida;
void main()
{
    salida = color * texture(textura, st);
    salida.a = max(salida.a, opaco);
}
)";

constexpr char kFragmentosLisos[] = R"(#version 330 core
in vec2 st;
in vec4 color;
uniform float opaco;
out vec4 salida;
void main()
{
    salida = vec4(color.rgb, max(color.a, opaco));
}
)";

constexpr GLsizeiptr kCabidaInicial = 256 * 1024; // bytes: some 13 000 vertices, more than a usual frame

} // namespace

bool LoteGL::Programa::Crear(const char* fragmentos)
{
    sombreador = std::make_unique<QOpenGLShaderProgram>();
    if (!sombreador->addShaderFromSourceCode(QOpenGLShader::Vertex, kVertices) ||
        !sombreador->addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentos) || !sombreador->link()) {
        sombreador.reset();
        return false;
    }
    uEscala = sombreador->uniformLocation("escala");
    uOpaco = sombreador->uniformLocation("opaco");
    return true;
}

bool LoteGL::Crear(QOpenGLExtraFunctions* funciones)
{
    gl = funciones;
    if (!conTextura.Crear(kFragmentos) || !liso.Crear(kFragmentosLisos))
        return false;
    conTextura.sombreador->bind();
    conTextura.sombreador->setUniformValue("textura", 0);

    formato = std::make_unique<QOpenGLVertexArrayObject>();
    if (!formato->create())
        return false;
    formato->bind();
    gl->glGenBuffers(1, &bufferVertices);
    gl->glGenBuffers(1, &bufferIndices);
    gl->glBindBuffer(GL_ARRAY_BUFFER, bufferVertices);
    gl->glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, bufferIndices);
    cabenVertices = cabenIndices = kCabidaInicial;
    gl->glBufferData(GL_ARRAY_BUFFER, cabenVertices, nullptr, GL_STREAM_DRAW);
    gl->glBufferData(GL_ELEMENT_ARRAY_BUFFER, cabenIndices, nullptr, GL_STREAM_DRAW);
    const auto atributo = [this](GLuint lugar, GLint partes, GLenum tipo, std::size_t desde) {
        gl->glEnableVertexAttribArray(lugar);
        gl->glVertexAttribPointer(lugar, partes, tipo, tipo == GL_UNSIGNED_BYTE, sizeof(trazo::Vertice),
                                  reinterpret_cast<const void*>(desde));
    };
    atributo(0, 2, GL_FLOAT, offsetof(trazo::Vertice, x));
    atributo(1, 2, GL_FLOAT, offsetof(trazo::Vertice, u));
    atributo(2, 4, GL_UNSIGNED_BYTE, offsetof(trazo::Vertice, tinta));
    formato->release();
    conTextura.sombreador->release();

    gl->glGenSamplers(1, &sinFiltro);
    gl->glSamplerParameteri(sinFiltro, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    gl->glSamplerParameteri(sinFiltro, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    gl->glSamplerParameteri(sinFiltro, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    gl->glSamplerParameteri(sinFiltro, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    return true;
}

void LoteGL::Liberar()
{
    Vaciar();
    if (gl == nullptr)
        return;
    if (bufferVertices != 0)
        gl->glDeleteBuffers(1, &bufferVertices);
    if (bufferIndices != 0)
        gl->glDeleteBuffers(1, &bufferIndices);
    if (sinFiltro != 0)
        gl->glDeleteSamplers(1, &sinFiltro);
    bufferVertices = bufferIndices = sinFiltro = 0;
    formato.reset();
    conTextura.sombreador.reset();
    liso.sombreador.reset();
    gl = nullptr;
}

void LoteGL::Vaciar()
{
    malla.vertices.clear();
    malla.indices.clear();
    ordenes.clear();
}

trazo::Malla& LoteGL::Abrir(GLuint textura, bool mezcla, bool exacta)
{
    if (ordenes.empty() || ordenes.back().textura != textura || ordenes.back().mezcla != mezcla ||
        ordenes.back().exacta != exacta)
        ordenes.push_back({textura, mezcla, exacta, malla.indices.size()});
    return malla;
}

void LoteGL::Enviar()
{
    const auto enviar = [this](GLenum cual, GLsizeiptr& caben, const void* datos, std::size_t bytes) {
        const auto largo = static_cast<GLsizeiptr>(bytes);
        if (largo > caben) {
            caben = std::max(largo, 2 * caben);
            gl->glBufferData(cual, caben, nullptr, GL_STREAM_DRAW);
        }
        void* destino = gl->glMapBufferRange(cual, 0, largo, GL_MAP_WRITE_BIT | GL_MAP_INVALIDATE_BUFFER_BIT);
        if (destino == nullptr)
            return false;
        std::memcpy(destino, datos, bytes);
        return gl->glUnmapBuffer(cual) == GL_TRUE;
    };
    gl->glBindBuffer(GL_ARRAY_BUFFER, bufferVertices); // the index buffer belongs to the vertex array
    if (!enviar(GL_ARRAY_BUFFER, cabenVertices, malla.vertices.data(),
                malla.vertices.size() * sizeof(trazo::Vertice)) ||
        !enviar(GL_ELEMENT_ARRAY_BUFFER, cabenIndices, malla.indices.data(),
                malla.indices.size() * sizeof(std::uint32_t)))
        ordenes.clear(); // the driver lost the memory: this frame stays as it is
}

void LoteGL::Dibujar(double ancho, double alto, int& dibujos, int& vertices)
{
    if (gl == nullptr || Vacio()) {
        Vaciar();
        return;
    }
    for (const Programa* p : {&liso, &conTextura}) {
        p->sombreador->bind();
        p->sombreador->setUniformValue(p->uEscala, static_cast<float>(2.0 / ancho),
                                       static_cast<float>(2.0 / alto));
    }
    const Programa* enUso = &conTextura;
    formato->bind();
    Enviar();
    gl->glActiveTexture(GL_TEXTURE0);
    gl->glDisable(GL_DEPTH_TEST);
    gl->glBlendFuncSeparate(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA, GL_ONE, GL_ONE_MINUS_SRC_ALPHA);
    for (std::size_t i = 0; i < ordenes.size(); ++i) {
        const Orden& o = ordenes[i];
        const std::size_t hasta = i + 1 < ordenes.size() ? ordenes[i + 1].desde : malla.indices.size();
        if (hasta == o.desde)
            continue;
        if (o.mezcla)
            gl->glEnable(GL_BLEND);
        else
            gl->glDisable(GL_BLEND);
        const Programa* suyo = o.textura == 0 ? &liso : &conTextura;
        if (suyo != enUso)
            suyo->sombreador->bind();
        enUso = suyo;
        enUso->sombreador->setUniformValue(enUso->uOpaco, o.mezcla ? 0.0F : 1.0F);
        gl->glBindTexture(GL_TEXTURE_2D, o.textura);
        gl->glBindSampler(0, o.exacta ? sinFiltro : 0);
        gl->glDrawElements(GL_TRIANGLES, static_cast<GLsizei>(hasta - o.desde), GL_UNSIGNED_INT,
                           reinterpret_cast<const void*>(o.desde * sizeof(std::uint32_t)));
        ++dibujos;
    }
    vertices += static_cast<int>(malla.vertices.size());
    gl->glDisable(GL_BLEND);
    gl->glBindSampler(0, 0);
    gl->glBindTexture(GL_TEXTURE_2D, 0);
    formato->release();
    enUso->sombreador->release();
    Vaciar();
}

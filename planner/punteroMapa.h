// punteroMapa: what the pointer on the map means, without widgets.
//
// The window tells presses, moves and releases in picture pixels and executes what is answered. A press
// near a mark drags it, the target before the observer; elsewhere it is a pending click until the pointer
// has moved 3 pixels in either direction, and a pan from then on.
#pragma once

#include <QPoint>

#include <cstdint>
#include <optional>

namespace punteroMapa {

inline constexpr int kRadioMarca = 12;    // pixels within which a mark is grabbed
inline constexpr int kUmbralArrastre = 3; // pixels that turn a click into a pan

// True when two pixels are at most 12 apart.
bool PuntoSobreMarca(QPoint marca, QPoint puntero);

// Wait before a quiet click counts as one, for a double click may follow: a quarter of the system's
// double-click time plus 20, milliseconds.
int EsperaClic(int tiempoDobleClic);

enum class Accion
{
    Nada,
    FijarObservador, // at once, at the pointer
    FijarObjetivo,   // at once, at the pointer
    MoverObservador, // the mark follows the pointer
    MoverObjetivo,
    Desplazar,        // pan by `delta`
    SoltarObservador, // a dragged mark was let go
    SoltarObjetivo,
    FinDesplazar,  // a pan ended
    ClicPendiente, // a quiet press and release at `donde`
};

struct Respuesta
{
    Accion accion = Accion::Nada;
    QPoint delta{};
    QPoint donde{};
};

class PunteroMapa
{
public:
    // Left press. The marks are the pixels of observer and target, where they are pinned.
    Respuesta Pulsar(QPoint donde, bool mayusculas, std::optional<QPoint> observador,
                     std::optional<QPoint> objetivo);
    Respuesta Mover(QPoint donde);
    Respuesta Soltar(QPoint donde);

    // A button is held on the map or on a mark.
    bool Activo() const { return modo != Modo::Ninguno; }

private:
    enum class Modo : std::int16_t
    {
        Ninguno = 0,
        ClicODesplazar = 1,
        Observador = 2,
        Objetivo = 3,
    };

    Modo modo = Modo::Ninguno;
    bool huboMovimiento = false;
    QPoint arrastre; // last pan position
};

} // namespace punteroMapa

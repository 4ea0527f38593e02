// modRueda: routes the mouse wheel to the main window.
//
// The window itself hears every wheel turn over it that no child of it has taken (a slider or a list does).
// One window at a time; the event goes on its usual way afterwards.
#pragma once

#include <QPointF>

#include <cstdint>
#include <functional>

class QWidget;

namespace modRueda {

// A turn: 120 to a notch, positive away from the user; and the pointer's place on the screen, logical pixels.
using Manejador = std::function<void(int delta, const QPointF& enPantalla)>;

// Installing again removes the former one first. A handler that throws harms nothing. A window that dies
// without QuitarRueda leaves nothing behind.
void InstalarRueda(QWidget* ventana, Manejador manejador);

// Harmless when nothing is installed. After it returns the handler is not called again.
void QuitarRueda();

// The turn in the high word of a wheel message, sign-extended from 16 bits: 0xFF88 is -120.
constexpr int DeltaDePalabra(std::uint32_t parametro)
{
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(parametro >> 16));
}

} // namespace modRueda

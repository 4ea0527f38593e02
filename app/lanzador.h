// lanzador: how the planner shows its tools and tells them of a new language.
//
// A tool is created on its first use, shown beside the planner without blocking it, and there is one
// object of each: showing it again brings it forward. Whether closing unloads it or hides it is the tool's
// own matter; the planner keeps a QPointer, which a tool that unloads itself leaves null.
#pragma once

#include <QPointer>

#include <utility>

class QWidget;

namespace lanzador {

// Shows a window and puts it before the others, out of its icon if need be.
void TraerAlFrente(QWidget& ventana);

// The tool, created with the arguments when there is none, shown and in front.
template <class T, class... Argumentos>
T& MostrarHerramienta(QPointer<T>& herramienta, Argumentos&&... argumentos)
{
    if (herramienta.isNull()) {
        herramienta = new T(std::forward<Argumentos>(argumentos)...);
    }
    TraerAlFrente(*herramienta);
    return *herramienta;
}

// Retraducir of every loaded window, shown or hidden, but one; a window that offers none is passed over.
void RetraducirVentanas(const QWidget* menos = nullptr);

} // namespace lanzador

#include "punteroMapa.h"

#include <cstdlib>

namespace punteroMapa {

bool PuntoSobreMarca(QPoint marca, QPoint puntero)
{
    const QPoint d = puntero - marca;
    return std::abs(d.x()) <= kRadioMarca && std::abs(d.y()) <= kRadioMarca &&
           d.x() * d.x() + d.y() * d.y() <= kRadioMarca * kRadioMarca;
}

int EsperaClic(int tiempoDobleClic)
{
    return tiempoDobleClic / 4 + 20;
}

Respuesta PunteroMapa::Pulsar(QPoint donde, bool mayusculas, std::optional<QPoint> observador,
                              std::optional<QPoint> objetivo)
{
    modo = Modo::Ninguno;
    if (observador && PuntoSobreMarca(*observador, donde))
        modo = Modo::Observador;
    if (objetivo && PuntoSobreMarca(*objetivo, donde))
        modo = Modo::Objetivo;
    if (modo != Modo::Ninguno)
        return {};
    if (mayusculas)
        return {Accion::FijarObservador, {}, donde};
    modo = Modo::ClicODesplazar;
    arrastre = donde;
    huboMovimiento = false;
    return {};
}

Respuesta PunteroMapa::Mover(QPoint donde)
{
    switch (modo) {
    case Modo::Ninguno:
        return {};
    case Modo::Observador:
        return {Accion::MoverObservador, {}, donde};
    case Modo::Objetivo:
        return {Accion::MoverObjetivo, {}, donde};
    case Modo::ClicODesplazar:
        break;
    }
    const QPoint d = donde - arrastre;
    if (!huboMovimiento && std::abs(d.x()) < kUmbralArrastre && std::abs(d.y()) < kUmbralArrastre)
        return {};
    huboMovimiento = true;
    arrastre = donde;
    return {Accion::Desplazar, d, donde};
}

Respuesta PunteroMapa::Soltar(QPoint donde)
{
    Accion accion = Accion::Nada;
    switch (modo) {
    case Modo::Ninguno:
        break;
    case Modo::Observador:
        accion = Accion::SoltarObservador;
        break;
    case Modo::Objetivo:
        accion = Accion::SoltarObjetivo;
        break;
    case Modo::ClicODesplazar:
        accion = huboMovimiento ? Accion::FinDesplazar : Accion::ClicPendiente;
        break;
    }
    modo = Modo::Ninguno;
    huboMovimiento = false;
    return {accion, {}, donde};
}

} // namespace punteroMapa

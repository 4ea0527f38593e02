#include "modBombeo.h"

#include <QCoreApplication>

#include <utility>

namespace modBombeo {

namespace {

std::function<void()>& bomba()
{
    static std::function<void()> b;
    return b;
}

} // namespace

void Bombear()
{
    if (bomba()) {
        bomba()();
    } else if (QCoreApplication::instance() != nullptr) {
        QCoreApplication::processEvents();
    }
}

void BombearMientras(const std::function<bool()>& condicion, int rondas)
{
    for (int i = 0; i < rondas && condicion(); ++i) {
        Bombear();
    }
}

void PonerBomba(std::function<void()> nueva)
{
    bomba() = std::move(nueva);
}

} // namespace modBombeo

// modBombeo: the one place that delivers waiting events inside longer work.
//
// Whoever pumps can be re-entered: by a click, a timer, the closing of the window. Deferred deletions wait
// for the main loop.
#pragma once

#include <functional>

namespace modBombeo {

// Delivers what is waiting and returns; nothing without an application object.
void Bombear();

// Pumps while the condition holds, at most `rondas` times.
void BombearMientras(const std::function<bool()>& condicion, int rondas);

// Replaces the pump (a test counts or injects); an empty function brings the system's back.
void PonerBomba(std::function<void()> bomba);

} // namespace modBombeo

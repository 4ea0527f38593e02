// irALinea: what opening a result line does in every list of the searches.
#pragma once

#include <QStringView>

class Planificador;

// Takes the planner to the date and time that the line begins with. A line without them, such as a message
// in parentheses, does nothing.
void IrALinea(Planificador& plan, QStringView linea);

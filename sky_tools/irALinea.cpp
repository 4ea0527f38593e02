#include "irALinea.h"

#include "Planificador.h"
#include "fechaSerie.h"

void IrALinea(Planificador& plan, QStringView linea)
{
    if (const auto f = fechaSerie::LeerFechaHora(linea)) {
        plan.IrAFechaHora(f->anio, f->mes, f->dia, f->hora, f->minuto);
    }
}

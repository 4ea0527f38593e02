#include "LineaEstado.h"

#include "modI18n.h"

LineaEstado::LineaEstado(QWidget* padre) : QLabel(padre)
{
    setProperty("rol", QStringLiteral("estado"));
}

void LineaEstado::Decir(const char* nueva, const QStringList& conParametros)
{
    clave = nueva;
    parametros = conParametros;
    Retraducir();
}

void LineaEstado::Callar()
{
    clave = nullptr;
    clear();
}

void LineaEstado::Retraducir()
{
    if (clave != nullptr)
        setText(modI18n::TraducirCon(clave, parametros));
}

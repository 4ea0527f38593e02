#include "Seccion.h"

namespace {

constexpr int kEntreFilas = 5; // logical pixels

} // namespace

Seccion::Seccion(const char* nombre, QWidget* padre) : QWidget(padre)
{
    setObjectName(QLatin1String(nombre));
    cabeza = new QLabel(this);
    cabeza->setObjectName(QStringLiteral("cabezaSeccion"));
    cabeza->setIndent(0);
    filas = new QVBoxLayout(this);
    filas->setContentsMargins(0, 0, 0, 0);
    filas->setSpacing(kEntreFilas);
    filas->addWidget(cabeza);
}

void Seccion::setTitulo(const QString& titulo)
{
    cabeza->setText(titulo);
    setAccessibleName(titulo);
}

#include "VentanaHerramienta.h"

#include "modGrafico.h"
#include "modI18n.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

VentanaHerramienta::VentanaHerramienta(const char* nombre, const char* claveTitulo, AlCerrar alCerrar,
                                       QWidget* padre)
    : QDialog(padre, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                         Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      titulo(claveTitulo)
{
    setObjectName(QLatin1String(nombre));
    setAttribute(Qt::WA_DeleteOnClose, alCerrar == AlCerrar::Descargar);
}

void VentanaHerramienta::Retraducir()
{
    setWindowTitle(modI18n::Traducir(titulo));
    for (const Rotulo& r : rotulos) {
        r.poner(modI18n::Traducir(r.clave));
    }
    RetraducirResto();
}

QPushButton* VentanaHerramienta::CrearPrincipal(const char* nombre, const char* clave)
{
    auto* boton = Crear<QPushButton>(nombre);
    boton->setProperty("rol", QStringLiteral("principal"));
    boton->setDefault(true);
    Rotular(boton, clave);
    return boton;
}

QPushButton* VentanaHerramienta::CrearCerrar(const char* clave)
{
    auto* boton = Crear<QPushButton>("cmdCerrar");
    Rotular(boton, clave);
    connect(boton, &QPushButton::clicked, this, &QWidget::close);
    return boton;
}

QLabel* VentanaHerramienta::CrearRotulo(const char* nombre, const char* clave, const char* rol)
{
    auto* etiqueta = Crear<QLabel>(nombre);
    if (rol != nullptr) {
        etiqueta->setProperty("rol", QLatin1String(rol));
    }
    Rotular(etiqueta, clave);
    return etiqueta;
}

void VentanaHerramienta::Rotular(QLabel* etiqueta, const char* clave, QWidget* de)
{
    rotulos.push_back({[etiqueta](const QString& t) { etiqueta->setText(t); }, clave});
    if (de != nullptr) {
        etiqueta->setBuddy(de);
        Nombrar(de, clave);
    }
}

void VentanaHerramienta::Rotular(QAbstractButton* boton, const char* clave)
{
    rotulos.push_back({[boton](const QString& t) { boton->setText(t); }, clave});
    Nombrar(boton, clave);
}

void VentanaHerramienta::Nombrar(QWidget* control, const char* clave)
{
    rotulos.push_back({[control](const QString& t) { control->setAccessibleName(NombreLlano(t)); }, clave});
}

void VentanaHerramienta::Preparar()
{
    modGrafico::AplicarFuentes(this);
    Retraducir();
}

void VentanaHerramienta::TeclasDe(QWidget* lienzo, std::function<bool(const QKeyEvent&)> manejar)
{
    lienzo->setFocusPolicy(Qt::StrongFocus);
    lienzo->installEventFilter(this);
    teclas.insert(lienzo, std::move(manejar));
}

bool VentanaHerramienta::eventFilter(QObject* objeto, QEvent* evento)
{
    const auto it = teclas.constFind(objeto);
    if (it != teclas.constEnd()) {
        switch (evento->type()) {
        case QEvent::KeyPress:
            if ((*it)(*static_cast<QKeyEvent*>(evento))) {
                return true;
            }
            break;
        case QEvent::FocusIn:
        case QEvent::FocusOut: // the mark of the keyboard comes and goes
            static_cast<QWidget*>(objeto)->update();
            break;
        default:
            break;
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

QString NombreLlano(const QString& rotulo)
{
    QString t = rotulo;
    t.remove(QLatin1Char('&'));
    t = t.trimmed();
    while (t.endsWith(QLatin1Char(':')) || t.endsWith(QLatin1Char(' ')) || t.endsWith(QChar(0x00A0))) {
        t.chop(1);
    }
    return t;
}

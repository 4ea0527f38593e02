// VentanaHerramienta: what all tool windows have in common.
//
// A tool derives from it, builds its controls with Crear, names their texts with Rotular, connects them and
// ends its constructor with Preparar. It then needs no Retraducir of its own unless it composes texts:
//
//   frmEjemplo::frmEjemplo(Planificador& p, QWidget* padre)
//       : VentanaHerramienta("frmEjemplo", "ejemplo.titulo", AlCerrar::Descargar, padre), plan(p)
//   {
//       ConstruirControles();  // widgets, layout, and the keys of their texts
//       ConectarSenales();     // the only connect() calls
//       Preparar();            // fonts, texts
//   }
//
// The keyboard: Enter presses the default button, Escape closes, Tab reaches every control, a canvas
// included once it has TeclasDe.
#pragma once

#include "Retraducible.h"

#include <QDialog>
#include <QHash>
#include <QString>

#include <functional>
#include <vector>

class QAbstractButton;
class QKeyEvent;
class QLabel;
class QPushButton;

class VentanaHerramienta : public QDialog, public Retraducible
{
    Q_OBJECT

public:
    void Retraducir() final;

protected:
    enum class AlCerrar
    {
        Descargar, // closing deletes the window and all it holds
        Esconder   // closing hides it; it keeps its state
    };

    VentanaHerramienta(const char* nombre, const char* claveTitulo, AlCerrar alCerrar, QWidget* padre);

    // A child with its object name.
    template <class W> W* Crear(const char* nombre)
    {
        auto* w = new W(this);
        w->setObjectName(QLatin1String(nombre));
        return w;
    }

    // The button of the tool's main action, which Enter presses, and the one that closes.
    QPushButton* CrearPrincipal(const char* nombre, const char* clave);
    QPushButton* CrearCerrar(const char* clave);
    // A label in one of the roles of modGrafico ("leyenda", "estado", ...).
    QLabel* CrearRotulo(const char* nombre, const char* clave, const char* rol = nullptr);

    // The key of a control's text. A label with `de` leads there by its mnemonic and names it to screen
    // readers.
    void Rotular(QLabel* etiqueta, const char* clave, QWidget* de = nullptr);
    void Rotular(QAbstractButton* boton, const char* clave);
    // The key of the name by which screen readers call a control that has no caption of its own.
    void Nombrar(QWidget* control, const char* clave);

    // Last step of a constructor: fonts and texts.
    void Preparar();
    // Texts that are composed, and items of combo boxes; runs after the captions.
    virtual void RetraducirResto() {}

    // Makes a canvas reachable by Tab and hands it its keys; `manejar` answers whether the key was for it.
    void TeclasDe(QWidget* lienzo, std::function<bool(const QKeyEvent&)> manejar);

    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    struct Rotulo
    {
        std::function<void(const QString&)> poner;
        const char* clave;
    };

    const char* titulo;
    std::vector<Rotulo> rotulos;
    QHash<const QObject*, std::function<bool(const QKeyEvent&)>> teclas;
};

// A caption without mnemonic mark and final colon: "&Año:" is "Año".
QString NombreLlano(const QString& rotulo);

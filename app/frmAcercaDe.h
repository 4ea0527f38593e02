// frmAcercaDe: the about box, modal, with the product's name and version.
#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

class frmAcercaDe : public QDialog
{
    Q_OBJECT

public:
    explicit frmAcercaDe(QWidget* padre = nullptr);
    Q_INVOKABLE void Retraducir(); // every caption, from the "acercade." keys

private:
    void ConstruirControles(); // widgets and layout; no text, no signals
    void ConectarSenales();

    QLabel* lblNombre = nullptr;
    QLabel* lblVersion = nullptr;
    QLabel* lblQueEs = nullptr;
    QPushButton* cmdCerrar = nullptr;
};

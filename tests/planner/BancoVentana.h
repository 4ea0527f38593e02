// BancoVentana: the real window over a data directory, a clock and answers of the test's own.
//
// The day is 21 June 2026, 10:15 local time in a zone with summer time (UTC+2 from April to October, UTC+1
// otherwise). Tiles are asked at an address where nobody listens.
#pragma once

#include "frmMain.h"

#include "modMensajes.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

class BancoVentana : public ::testing::Test
{
protected:
    static void SetUpTestSuite();
    void SetUp() override;
    void TearDown() override;

    // The window, opened as the program opens it; 1280x800 unless told.
    frmMain& Abrir(QSize tamano = {1280, 800});
    void CerrarVentana();

    template <typename T> T* Control(const char* nombre) const
    {
        T* control = ventana->findChild<T*>(QLatin1String(nombre));
        EXPECT_NE(control, nullptr) << nombre;
        return control;
    }
    QString Texto(const char* nombre) const; // of an EtiquetaDato
    // Replaces a box's text as a person does: select all, type, one key at a time.
    void Teclear(const char* caja, const QString& texto);
    // Sets it whole, as pasting does.
    void Pegar(const char* caja, const QString& texto);
    void IrA(const QString& lugar); // the go-to box

    QString Ini() const; // text of the settings file
    void EscribirIni(const QString& texto);
    void CopiarRecursos(); // language files into the data directory

    QTemporaryDir carpeta;
    std::unique_ptr<frmMain> ventana;
    QList<modMensajes::Mensaje> mensajes; // shown so far
    bool respuesta = true;                // to questions
    QDateTime ahora{QDate(2026, 6, 21), QTime(10, 15)};
};

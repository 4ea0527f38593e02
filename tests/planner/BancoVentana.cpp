#include "BancoVentana.h"

#include "modAstroEstado.h"
#include "modGrafico.h"
#include "modI18n.h"
#include "modReloj.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QtTest/QTest>

void BancoVentana::SetUpTestSuite()
{
    static bool hecho = false;
    if (!hecho)
        modGrafico::AplicarTema(*qApp);
    hecho = true;
}

void BancoVentana::CopiarRecursos()
{
    const QDir origen(QStringLiteral(QUINTALUZ_FUENTES "/recursos"));
    QDir(carpeta.path()).mkpath(QStringLiteral("recursos"));
    for (const QString& nombre : origen.entryList({QStringLiteral("lang_*.ini")}))
        QFile::copy(origen.filePath(nombre), carpeta.filePath(QStringLiteral("recursos/") + nombre));
}

void BancoVentana::SetUp()
{
    ASSERT_TRUE(carpeta.isValid());
    CopiarRecursos();
    qputenv("QUINTALUZ_APPPATH", carpeta.path().toUtf8());
    qputenv("QUINTALUZ_TESELAS", "http://127.0.0.1:9");
    modReloj::PonerFuente({[this] { return ahora; }, [this] { return ahora.addSecs(-7200); },
                           [](std::int64_t utc) -> std::optional<std::int64_t> {
                               const int mes = QDateTime::fromSecsSinceEpoch(utc, Qt::UTC).date().month();
                               return mes >= 4 && mes <= 10 ? 7200 : 3600;
                           }});
    modMensajes::PonerRespondedor([this](const modMensajes::Mensaje& m) {
        mensajes.append(m);
        return respuesta;
    });
}

void BancoVentana::TearDown()
{
    CerrarVentana();
    modMensajes::PonerRespondedor({});
    modReloj::PonerFuente({});
    modAstroEstado::OlvidarCurvasDia();
    modI18n::CargarIdioma(u"es");
    qunsetenv("QUINTALUZ_APPPATH");
    qunsetenv("QUINTALUZ_TESELAS");
}

frmMain& BancoVentana::Abrir(QSize tamano)
{
    ventana = std::make_unique<frmMain>();
    ventana->Cargar();
    ventana->resize(tamano);
    EXPECT_TRUE(QTest::qWaitForWindowExposed(ventana.get()));
    QCoreApplication::processEvents();
    return *ventana;
}

void BancoVentana::CerrarVentana()
{
    if (!ventana)
        return;
    ventana->close();
    ventana.reset();
    QCoreApplication::processEvents();
}

QString BancoVentana::Texto(const char* nombre) const
{
    const auto* etiqueta = Control<EtiquetaDato>(nombre);
    return etiqueta ? etiqueta->text() : QString();
}

void BancoVentana::Teclear(const char* caja, const QString& texto)
{
    auto* linea = Control<QLineEdit>(caja);
    linea->setFocus();
    linea->selectAll();
    QTest::keyClicks(linea, texto);
}

void BancoVentana::Pegar(const char* caja, const QString& texto)
{
    Control<QLineEdit>(caja)->setText(texto);
}

void BancoVentana::IrA(const QString& lugar)
{
    Control<QLineEdit>("txtGoto")->setText(lugar);
    QTest::mouseClick(Control<QPushButton>("cmdGoto"), Qt::LeftButton);
}

QString BancoVentana::Ini() const
{
    QFile archivo(carpeta.filePath(QStringLiteral("Quintaluz.ini")));
    return archivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(archivo.readAll()) : QString();
}

void BancoVentana::EscribirIni(const QString& texto)
{
    QFile archivo(carpeta.filePath(QStringLiteral("Quintaluz.ini")));
    ASSERT_TRUE(archivo.open(QIODevice::WriteOnly));
    archivo.write(texto.toUtf8());
}

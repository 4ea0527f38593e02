// The tools of the menu over the real planner: one object of each, and clicks that move its date.
#include "BancoVentana.h"

#include "Lienzo.h"
#include "ListaLineas.h"
#include "calendario.h"
#include "frmBuscarSolLunaAzimut.h"
#include "frmEventos.h"
#include "frmFasesLuna.h"
#include "frmMejorVL.h"
#include "ruedaFases.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QtTest/QTest>

namespace {

class Herramientas : public BancoVentana
{
protected:
    void Elegir(const char* entrada) { Control<QAction>(entrada)->trigger(); }

    // The loaded tools of a class, shown or not.
    template <class T> QList<T*> Cargadas() const
    {
        QList<T*> tools;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* t = qobject_cast<T*>(w))
                tools.append(t);
        return tools;
    }

    template <class T> T* Mostrar(const char* entrada)
    {
        Elegir(entrada);
        const auto tools = Cargadas<T>();
        EXPECT_EQ(tools.size(), 1);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(tools[0]));
        return tools[0];
    }

    template <class W> static W* De(QWidget* tool, const char* nombre)
    {
        W* w = tool->findChild<W*>(QLatin1String(nombre));
        EXPECT_NE(w, nullptr) << nombre;
        return w;
    }

    static void DobleClicEn(ListaLineas* lista, const char* trozo)
    {
        for (int i = 0; i < lista->count(); ++i) {
            if (!lista->item(i)->text().contains(QLatin1String(trozo)))
                continue;
            lista->scrollToItem(lista->item(i));
            const QPoint donde = lista->visualItemRect(lista->item(i)).center();
            QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, donde);
            QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, donde);
            return;
        }
        ADD_FAILURE() << "no line has " << trozo;
    }

    // What the planner's boxes show, "year-month-day minutes".
    std::string Momento() const
    {
        return (Control<QLineEdit>("txtYear")->text() + '-' + Control<QLineEdit>("txtMonth")->text() + '-' +
                Control<QLineEdit>("txtDay")->text() + ' ' +
                QString::number(Control<QSlider>("hsbHour")->value()))
            .toStdString();
    }
};

TEST_F(Herramientas, UnEventoLlevaElPlanificadorASuHora)
{
    Abrir();
    auto* tool = Mostrar<frmEventos>("mnuHerrEventos");
    EXPECT_FALSE(tool->isModal());
    EXPECT_EQ(tool->parentWidget(), ventana.get());
    QTest::mouseClick(De<QPushButton>(tool, "cmdCalcular"), Qt::LeftButton);
    DobleClicEn(De<ListaLineas>(tool, "lstEventos"), "Eclipse de Sol total");
    EXPECT_EQ(Momento(), "2026-8-12 " + std::to_string(19 * 60 + 38));
    auto* cal = De<Lienzo>(tool, "picCal");
    const auto celda =
        calendario::MedirRejilla(QFontMetricsF(cal->font()), cal->rect()).Celda(calendario::Dia{12, 24});
    QTest::mouseClick(cal, Qt::LeftButton, {}, celda.center().toPoint());
    EXPECT_EQ(Momento(), "2026-12-24 720");
}

TEST_F(Herramientas, ElAzimutBuscadoEsElQueElPanelMuestra)
{
    Abrir();
    auto* tool = Mostrar<frmBuscarSolLunaAzimut>("mnuHerrBuscar");
    QTest::mouseClick(De<QPushButton>(tool, "cmdBuscar"), Qt::LeftButton);
    auto* lista = De<ListaLineas>(tool, "lstResultados");
    ASSERT_GT(lista->count(), 100);
    DobleClicEn(lista, "22/06/2026");
    EXPECT_EQ(Momento().substr(0, 10), "2026-6-22 ");
    EXPECT_NEAR(ventana->Actuales().SolAzActual, 90, 0.2); // to the minute that the hour bar can stand on
}

TEST_F(Herramientas, NochesYRuedaLlevanALaFecha)
{
    Abrir();
    auto* noches = Mostrar<frmMejorVL>("mnuHerrMejorVL");
    QTest::mouseClick(De<QPushButton>(noches, "cmdCalcular"), Qt::LeftButton);
    auto* franja = De<Lienzo>(noches, "picFranja");
    QTest::mouseClick(franja, Qt::LeftButton, {},
                      QPoint(static_cast<int>(franja->width() * 164.5 / 365), 20));
    EXPECT_EQ(Momento(), "2026-6-14 60");
    auto* fases = Mostrar<frmFasesLuna>("mnuHerrFases");
    auto* rueda = De<Lienzo>(fases, "picRueda");
    QTest::mouseClick(rueda, Qt::LeftButton, {},
                      ruedaFases::MedirAnillo(rueda->rect(), 30).Dia(29).toPoint());
    EXPECT_EQ(Momento(), "2026-6-29 720");
}

TEST_F(Herramientas, CadaUnaEsUnSoloObjetoYSigueElIdioma)
{
    Abrir();
    auto* primera = Mostrar<frmEventos>("mnuHerrEventos");
    EXPECT_EQ(Mostrar<frmEventos>("mnuHerrEventos"), primera);
    Elegir("mnuIdFR");
    EXPECT_EQ(primera->windowTitle(), QStringLiteral("Événements célestes de l’année"));
    QTest::keyClick(primera, Qt::Key_Escape);
    QTest::qWait(1); // deferred deletion
    EXPECT_TRUE(Cargadas<frmEventos>().isEmpty());
    EXPECT_EQ(Mostrar<frmEventos>("mnuHerrEventos")->windowTitle(),
              QStringLiteral("Événements célestes de l’année"));
}

TEST_F(Herramientas, SeVanConElPlanificador)
{
    Abrir();
    Mostrar<frmEventos>("mnuHerrEventos");
    Mostrar<frmFasesLuna>("mnuHerrFases");
    CerrarVentana();
    QTest::qWait(1);
    EXPECT_TRUE(Cargadas<frmEventos>().isEmpty());
    EXPECT_TRUE(Cargadas<frmFasesLuna>().isEmpty());
}

} // namespace

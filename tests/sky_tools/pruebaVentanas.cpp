// The four windows of the searches through their real widgets, against a planner that writes down where it
// is sent.
#include "PlanificadorFalso.h"

#include "Lienzo.h"
#include "ListaLineas.h"
#include "calendario.h"
#include "fechaSerie.h"
#include "frmBuscarSolLunaAzimut.h"
#include "frmEventos.h"
#include "frmFasesLuna.h"
#include "frmMejorVL.h"
#include "lanzador.h"
#include "modGrafico.h"
#include "modI18n.h"
#include "modReloj.h"
#include "ruedaFases.h"

#include <QApplication>
#include <QComboBox>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

namespace {

using Ida = std::array<int, 5>;

class Ventanas : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        qputenv("QUINTALUZ_APPPATH", QUINTALUZ_FUENTES);
        modGrafico::AplicarTema(*qApp);
    }

    void SetUp() override
    {
        ASSERT_TRUE(modI18n::CargarIdioma(u"es"));
        modReloj::Fuente f;
        f.local = [] { return QDateTime(QDate(2027, 2, 10), QTime(9, 30)); };
        modReloj::PonerFuente(f);
    }

    void TearDown() override { modReloj::PonerFuente({}); }

    template <class T> T* Abrir()
    {
        auto* v = new T(plan);
        v->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(v));
        v->activateWindow();
        abiertas.emplace_back(v);
        return v;
    }

    template <class W> static W* Control(QWidget* v, const char* nombre)
    {
        W* w = v->findChild<W*>(QLatin1String(nombre));
        EXPECT_NE(w, nullptr) << nombre;
        return w;
    }

    static void Pulsar(QWidget* v, const char* boton)
    {
        QTest::mouseClick(Control<QPushButton>(v, boton), Qt::LeftButton);
    }

    static void Escribir(QWidget* v, const char* caja, const QString& texto)
    {
        auto* t = Control<QLineEdit>(v, caja);
        t->selectAll();
        QTest::keyClicks(t, texto.isEmpty() ? QStringLiteral(" ") : texto);
    }

    static QString Estado(QWidget* v) { return Control<QLabel>(v, "lblEstado")->text(); }

    static void DobleClicEnLinea(ListaLineas* lista, int fila)
    {
        lista->scrollToItem(lista->item(fila));
        const QPoint donde = lista->visualItemRect(lista->item(fila)).center();
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, donde);
        QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, donde);
    }

    static int FilaCon(ListaLineas* lista, const char* trozo)
    {
        for (int i = 0; i < lista->count(); ++i) {
            if (lista->item(i)->text().contains(QLatin1String(trozo))) {
                return i;
            }
        }
        ADD_FAILURE() << "no line has " << trozo;
        return 0;
    }

    PlanificadorFalso plan;
    std::vector<QPointer<QWidget>> abiertas;

public:
    ~Ventanas() override
    {
        for (const auto& v : abiertas) {
            delete v.data();
        }
    }
};

// --- azimuth search ---

TEST_F(Ventanas, BuscarPideLoQueEstaEscrito)
{
    auto* v = Abrir<frmBuscarSolLunaAzimut>();
    auto* lista = Control<ListaLineas>(v, "lstResultados");
    EXPECT_EQ(Control<QLineEdit>(v, "txtAzimut")->text(), QStringLiteral("90"));
    EXPECT_EQ(Control<QLineEdit>(v, "txtDias")->text(), QStringLiteral("365"));
    Control<QComboBox>(v, "cmbCuerpo")->setCurrentIndex(1);
    Escribir(v, "txtAzimut", QStringLiteral("135,5"));
    Escribir(v, "txtDias", QStringLiteral("40"));
    bool esperaba = false;
    plan.alBuscar = [&] {
        esperaba = QApplication::overrideCursor() != nullptr &&
                   QApplication::overrideCursor()->shape() == Qt::WaitCursor;
        EXPECT_EQ(Estado(v), QStringLiteral("Buscando..."));
        EXPECT_EQ(lista->count(), 0);
    };
    Pulsar(v, "cmdBuscar");
    EXPECT_TRUE(esperaba);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(plan.peticion.luna);
    EXPECT_EQ(plan.peticion.azimut, 135.5);
    EXPECT_EQ(plan.peticion.dias, 40);
    EXPECT_GT(lista->count(), 10);
    EXPECT_EQ(Estado(v), QString::number(lista->count()) + QStringLiteral(" resultado(s)"));

    DobleClicEnLinea(lista, 3);
    const auto f = fechaSerie::LeerFechaHora(lista->item(3)->text());
    ASSERT_EQ(plan.idas.size(), 1u);
    EXPECT_EQ(plan.idas[0], (Ida{f->anio, f->mes, f->dia, f->hora, f->minuto}));
}

struct CasoDias
{
    const char* texto;
    std::int32_t dias;
};

TEST_F(Ventanas, LosDiasVanDeUnoAMilCien)
{
    auto* v = Abrir<frmBuscarSolLunaAzimut>();
    for (const CasoDias& c : {CasoDias{"0", 1},
                              {"-4", 1},
                              {"nada", 1},
                              {"1", 1},
                              {"1100", 1100},
                              {"99999", 1100},
                              {"1e99", 1100},
                              {"2,6", 3}}) {
        SCOPED_TRACE(c.texto);
        Escribir(v, "txtDias", QLatin1String(c.texto));
        Pulsar(v, "cmdBuscar");
        EXPECT_EQ(plan.peticion.dias, c.dias);
    }
    Escribir(v, "txtAzimut", QStringLiteral("norte"));
    Pulsar(v, "cmdBuscar");
    EXPECT_EQ(plan.peticion.azimut, 0);
}

TEST_F(Ventanas, UnMensajeEsUnaLineaQueNoLlevaANingunSitio)
{
    plan.hayObs = false;
    auto* v = Abrir<frmBuscarSolLunaAzimut>();
    Pulsar(v, "cmdBuscar");
    auto* lista = Control<ListaLineas>(v, "lstResultados");
    ASSERT_EQ(lista->count(), 1);
    EXPECT_EQ(lista->item(0)->text(), QStringLiteral("(Define primero un observador en el mapa)"));
    EXPECT_EQ(Estado(v), QStringLiteral("1 resultado(s)"));
    DobleClicEnLinea(lista, 0);
    EXPECT_TRUE(plan.idas.empty());
}

// --- keyboard ---

TEST_F(Ventanas, IntroCalculaYEnLaListaAbre)
{
    auto* v = Abrir<frmEventos>();
    auto* lista = Control<ListaLineas>(v, "lstEventos");
    QTest::keyClick(Control<QLineEdit>(v, "txtAno"), Qt::Key_Return);
    ASSERT_GT(lista->count(), 80);
    lista->setFocus();
    lista->setCurrentRow(FilaCon(lista, "Perseidas"));
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Enter}) {
        plan.idas.clear();
        const int antes = lista->count();
        QTest::keyClick(lista, tecla);
        ASSERT_EQ(plan.idas.size(), 1u);
        EXPECT_EQ(plan.idas[0], (Ida{2026, 8, 12, 0, 0})); // a shower has no time: midnight
        EXPECT_EQ(lista->count(), antes);                  // and nothing was computed again
        EXPECT_EQ(lista->currentRow(), FilaCon(lista, "Perseidas"));
    }
}

TEST_F(Ventanas, EscapeYCerrarDescarganLaVentana)
{
    QPointer<frmEventos> eventos = Abrir<frmEventos>();
    QTest::keyClick(eventos, Qt::Key_Escape);
    QTest::qWait(1); // deferred deletion
    EXPECT_TRUE(eventos.isNull());
    QPointer<frmFasesLuna> fases = Abrir<frmFasesLuna>();
    Pulsar(fases, "cmdCerrar");
    QTest::qWait(1);
    EXPECT_TRUE(fases.isNull());
    QPointer<frmMejorVL> noches = Abrir<frmMejorVL>();
    noches->close();
    QTest::qWait(1);
    EXPECT_TRUE(noches.isNull());
}

TEST_F(Ventanas, ElTabuladorLlegaATodo)
{
    const auto recorrer = [](QWidget* v, QWidget* primero) {
        primero->setFocus();
        QStringList vistos;
        for (int i = 0; i < 20; ++i) {
            vistos << QApplication::focusWidget()->objectName();
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            if (QApplication::focusWidget() == primero) {
                break;
            }
        }
        v->close();
        return vistos;
    };
    auto* b = Abrir<frmBuscarSolLunaAzimut>();
    EXPECT_EQ(recorrer(b, Control<QWidget>(b, "cmbCuerpo")).join(QLatin1Char(' ')),
              QStringLiteral("cmbCuerpo txtAzimut txtDias cmdBuscar lstResultados cmdCerrar"));
    auto* e = Abrir<frmEventos>();
    EXPECT_EQ(recorrer(e, Control<QWidget>(e, "txtAno")).join(QLatin1Char(' ')),
              QStringLiteral("txtAno cmdCalcular picCal lstEventos cmdCerrar"));
    auto* m = Abrir<frmMejorVL>();
    EXPECT_EQ(recorrer(m, Control<QWidget>(m, "txtAno")).join(QLatin1Char(' ')),
              QStringLiteral("txtAno cmdCalcular picFranja lstNoches cmdCerrar"));
    auto* f = Abrir<frmFasesLuna>();
    EXPECT_EQ(recorrer(f, Control<QWidget>(f, "cmbMes")).join(QLatin1Char(' ')),
              QStringLiteral("cmbMes txtAno cmdMostrar picRueda cmdCerrar"));
}

// --- events ---

QPoint EnCalendario(QWidget* cal, std::int16_t mes, std::int16_t dia)
{
    return calendario::MedirRejilla(QFontMetricsF(cal->font()), cal->rect())
        .Celda({mes, dia})
        .center()
        .toPoint();
}

TEST_F(Ventanas, EventosEmpiezaVaciaConElAnioDelPlanificador)
{
    plan.textoAnio = QStringLiteral("1987");
    auto* v = Abrir<frmEventos>();
    EXPECT_EQ(Control<QLineEdit>(v, "txtAno")->text(), QStringLiteral("1987"));
    EXPECT_EQ(Estado(v), QString());
    EXPECT_EQ(Control<ListaLineas>(v, "lstEventos")->count(), 0);
    auto* cal = Control<Lienzo>(v, "picCal");
    QTest::mouseClick(cal, Qt::LeftButton, {}, EnCalendario(cal, 5, 5));
    EXPECT_TRUE(plan.idas.empty()); // nothing is computed, so there is nowhere to go
}

TEST_F(Ventanas, EventosCuentaYLleva)
{
    auto* v = Abrir<frmEventos>();
    auto* lista = Control<ListaLineas>(v, "lstEventos");
    auto* cal = Control<Lienzo>(v, "picCal");
    bool esperaba = false;
    plan.alBuscar = [&] {
        esperaba = QApplication::overrideCursor() != nullptr;
        EXPECT_EQ(Estado(v), QStringLiteral("Calculando..."));
    };
    Pulsar(v, "cmdCalcular");
    EXPECT_TRUE(esperaba);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(Estado(v), QString::number(lista->count()) + QStringLiteral(" evento(s)"));
    EXPECT_GT(lista->count(), 80);

    DobleClicEnLinea(lista, FilaCon(lista, "Eclipse de Sol total"));
    DobleClicEnLinea(lista, FilaCon(lista, "Geminidas"));
    QTest::mouseClick(cal, Qt::LeftButton, {}, EnCalendario(cal, 12, 31));
    QTest::mouseClick(cal, Qt::LeftButton, {}, EnCalendario(cal, 2, 28));
    const std::vector<Ida> esperadas{
        {2026, 8, 12, 19, 38}, {2026, 12, 14, 0, 0}, {2026, 12, 31, 12, 0}, {2026, 2, 28, 12, 0}};
    EXPECT_EQ(plan.idas, esperadas);
    // Days that February has not, and the names beside the grid.
    QTest::mouseClick(cal, Qt::LeftButton, {}, EnCalendario(cal, 2, 30));
    QTest::mouseClick(cal, Qt::LeftButton, {}, EnCalendario(cal, 2, 31));
    QTest::mouseClick(cal, Qt::LeftButton, {}, QPoint(3, 60));
    QTest::mouseClick(cal, Qt::LeftButton, {}, QPoint(300, 2));
    EXPECT_EQ(plan.idas, esperadas);
    // The year of a click is the computed one, whatever the box says since.
    Escribir(v, "txtAno", QStringLiteral("2030"));
    QTest::mouseClick(cal, Qt::LeftButton, {}, EnCalendario(cal, 7, 4));
    EXPECT_EQ(plan.idas.back(), (Ida{2026, 7, 4, 12, 0}));
}

TEST_F(Ventanas, EventosDiceQueDiaHayBajoElPuntero)
{
    auto* v = Abrir<frmEventos>();
    Pulsar(v, "cmdCalcular");
    auto* cal = Control<Lienzo>(v, "picCal");
    QTest::mouseMove(cal, EnCalendario(cal, 8, 12));
    const QLocale regional = QLocale::system();
    EXPECT_EQ(cal->toolTip(), regional.dayName(3) + QStringLiteral(", 12 de ") + regional.monthName(8) +
                                  QStringLiteral(" de 2026")); // a Wednesday
    QTest::mouseMove(cal, QPoint(2, 2));
    EXPECT_EQ(cal->toolTip(), QString());
    QTest::mouseMove(cal, EnCalendario(cal, 2, 30));
    EXPECT_EQ(cal->toolTip(), QString());
}

struct CasoAnio
{
    const char* texto;
    bool vale;
};
constexpr CasoAnio kAnios[] = {{"1900", true}, {"2200", true},  {"1899", false}, {"2201", false},
                               {"", false},    {"nada", false}, {"99999", false}};

TEST_F(Ventanas, EventosYNochesRechazanElAnioAntesDeBuscar)
{
    int busquedas = 0;
    plan.alBuscar = [&busquedas] { ++busquedas; };
    for (const char* cual : {"eventos", "noches"}) {
        QWidget* v = cual[0] == 'e' ? static_cast<QWidget*>(Abrir<frmEventos>()) : Abrir<frmMejorVL>();
        for (const CasoAnio& c : kAnios) {
            SCOPED_TRACE(::testing::Message() << cual << " " << c.texto);
            busquedas = 0;
            Escribir(v, "txtAno", QLatin1String(c.texto));
            Pulsar(v, "cmdCalcular");
            EXPECT_EQ(busquedas, c.vale ? 1 : 0);
            EXPECT_EQ(Estado(v) == QStringLiteral("Año no válido."), !c.vale) << Estado(v).toStdString();
        }
    }
}

TEST_F(Ventanas, ElCalendarioConElTeclado)
{
    auto* v = Abrir<frmEventos>();
    Pulsar(v, "cmdCalcular");
    auto* cal = Control<Lienzo>(v, "picCal");
    cal->setFocus();
    for (const Qt::Key t : {Qt::Key_Right, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left}) {
        QTest::keyClick(cal, t);
    }
    QTest::keyClick(cal, Qt::Key_Return);
    ASSERT_EQ(plan.idas.size(), 1u);
    EXPECT_EQ(plan.idas[0], (Ida{2026, 2, 2, 12, 0}));
    // At the first and the last day of the year it stays.
    for (int i = 0; i < 5; ++i) {
        QTest::keyClick(cal, Qt::Key_Up);
        QTest::keyClick(cal, Qt::Key_Left);
    }
    QTest::keyClick(cal, Qt::Key_Space);
    EXPECT_EQ(plan.idas.back(), (Ida{2026, 1, 1, 12, 0}));
    EXPECT_NE(v->focusWidget(), nullptr);
}

// --- Milky Way nights ---

TEST_F(Ventanas, NochesConFranjaYLista)
{
    auto* v = Abrir<frmMejorVL>();
    auto* franja = Control<Lienzo>(v, "picFranja");
    auto* info = Control<QLabel>(v, "lblFranjaInfo");
    auto* lista = Control<ListaLineas>(v, "lstNoches");
    QTest::mouseClick(franja, Qt::LeftButton, {}, QPoint(100, 20));
    EXPECT_TRUE(plan.idas.empty()); // nothing computed yet
    Pulsar(v, "cmdCalcular");
    EXPECT_EQ(Estado(v), QString::number(lista->count()) + QStringLiteral(" noche(s) recomendada(s)"));
    EXPECT_GT(lista->count(), 60);

    // 14 June 2026 is night 164 of 365.
    const double ancho = franja->width();
    const auto x = [ancho](int noche) { return static_cast<int>(ancho * (noche + 0.5) / 365); };
    QTest::mouseMove(franja, QPoint(x(164), 20));
    EXPECT_EQ(info->text(), QStringLiteral("14/06/2026  -  Excelente"));
    QTest::mouseMove(franja, QPoint(x(0), 20));
    EXPECT_EQ(info->text(), QStringLiteral("01/01/2026  -  Mala"));
    QTest::mouseClick(franja, Qt::LeftButton, {}, QPoint(x(164), 20));
    ASSERT_EQ(plan.idas.size(), 1u);
    EXPECT_EQ(plan.idas[0], (Ida{2026, 6, 14, 1, 0}));

    const int fila = FilaCon(lista, "Excelente");
    const QString linea = lista->item(fila)->text();
    lista->scrollToItem(lista->item(fila));
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                      lista->visualItemRect(lista->item(fila)).center());
    EXPECT_EQ(info->text(), linea.left(10) + QStringLiteral("  -  Excelente"));
    EXPECT_EQ(plan.idas.size(), 1u);
    DobleClicEnLinea(lista, fila);
    const auto f = fechaSerie::LeerFechaHora(linea);
    ASSERT_EQ(plan.idas.size(), 2u);
    EXPECT_EQ(plan.idas[1], (Ida{f->anio, f->mes, f->dia, f->hora, f->minuto}));
}

TEST_F(Ventanas, UnaNocheDelAnioAnteriorEsLaPrimera)
{
    // A zone that does not fit the place puts the first night's best moment on 31 December.
    auto* v = Abrir<frmMejorVL>();
    Pulsar(v, "cmdCalcular");
    auto* lista = Control<ListaLineas>(v, "lstNoches");
    lista->PonerTexto(QStringLiteral("31/12/2025 23:30   V.L. 30\r\n05/01/2027 01:00   V.L. 30\r\n"));
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(0)).center());
    EXPECT_TRUE(Control<QLabel>(v, "lblFranjaInfo")->text().startsWith(QStringLiteral("01/01/2026")));
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, lista->visualItemRect(lista->item(1)).center());
    EXPECT_TRUE(Control<QLabel>(v, "lblFranjaInfo")->text().startsWith(QStringLiteral("31/12/2026")));
}

TEST_F(Ventanas, NochesSinObservador)
{
    plan.hayObs = false;
    auto* v = Abrir<frmMejorVL>();
    Pulsar(v, "cmdCalcular");
    auto* lista = Control<ListaLineas>(v, "lstNoches");
    ASSERT_EQ(lista->count(), 1);
    EXPECT_EQ(Estado(v), QStringLiteral("1 noche(s) recomendada(s)"));
    DobleClicEnLinea(lista, 0);
    QTest::mouseClick(Control<Lienzo>(v, "picFranja"), Qt::LeftButton, {}, QPoint(100, 20));
    EXPECT_TRUE(plan.idas.empty());
    EXPECT_EQ(Control<QLabel>(v, "lblFranjaInfo")->text(), QString());
}

TEST_F(Ventanas, LaFranjaConElTeclado)
{
    auto* v = Abrir<frmMejorVL>();
    Pulsar(v, "cmdCalcular");
    auto* franja = Control<Lienzo>(v, "picFranja");
    franja->setFocus();
    QTest::keyClick(franja, Qt::Key_PageDown);
    QTest::keyClick(franja, Qt::Key_Right);
    EXPECT_TRUE(Control<QLabel>(v, "lblFranjaInfo")->text().startsWith(QStringLiteral("01/02/2026")));
    QTest::keyClick(franja, Qt::Key_Enter);
    ASSERT_EQ(plan.idas.size(), 1u);
    EXPECT_EQ(plan.idas[0], (Ida{2026, 2, 1, 1, 0}));
    for (int i = 0; i < 20; ++i) {
        QTest::keyClick(franja, Qt::Key_PageDown);
    }
    QTest::keyClick(franja, Qt::Key_Space);
    EXPECT_EQ(plan.idas.back(), (Ida{2026, 12, 31, 1, 0}));
}

// --- wheel ---

QPoint EnRueda(QWidget* rueda, int dias, int dia)
{
    return ruedaFases::MedirAnillo(rueda->rect(), dias).Dia(dia).toPoint();
}

TEST_F(Ventanas, LaRuedaEmpiezaEnElMesDelReloj)
{
    auto* v = Abrir<frmFasesLuna>(); // the clock says February 2027, the planner August 2026
    EXPECT_EQ(Control<QComboBox>(v, "cmbMes")->currentText(), QStringLiteral("Febrero"));
    EXPECT_EQ(Control<QComboBox>(v, "cmbMes")->count(), 12);
    EXPECT_EQ(Control<QLineEdit>(v, "txtAno")->text(), QStringLiteral("2026"));
    auto* rueda = Control<Lienzo>(v, "picRueda");
    QTest::mouseClick(rueda, Qt::LeftButton, {}, EnRueda(rueda, 28, 20));
    ASSERT_EQ(plan.idas.size(), 1u);
    EXPECT_EQ(plan.idas[0], (Ida{2026, 2, 20, 12, 0}));
    for (const char* malo : {"1899", "2201", "", "x"}) {
        plan.textoAnio = QLatin1String(malo);
        EXPECT_EQ(Control<QLineEdit>(Abrir<frmFasesLuna>(), "txtAno")->text(), QStringLiteral("2027"))
            << malo;
    }
}

TEST_F(Ventanas, LaRuedaGuardaElAnioConQueSePinto)
{
    auto* v = Abrir<frmFasesLuna>();
    auto* rueda = Control<Lienzo>(v, "picRueda");
    Escribir(v, "txtAno", QStringLiteral("2031"));
    QTest::mouseClick(rueda, Qt::LeftButton, {}, EnRueda(rueda, 28, 1));
    EXPECT_EQ(plan.idas.back(), (Ida{2026, 2, 1, 12, 0}));
    Control<QComboBox>(v, "cmbMes")->setCurrentIndex(6);
    Pulsar(v, "cmdMostrar");
    QTest::mouseClick(rueda, Qt::LeftButton, {}, EnRueda(rueda, 31, 31));
    EXPECT_EQ(plan.idas.back(), (Ida{2031, 7, 31, 12, 0}));
    // The title in the middle is no day.
    const auto antes = plan.idas;
    QTest::mouseClick(rueda, Qt::LeftButton, {}, rueda->rect().center());
    EXPECT_EQ(plan.idas, antes);
    Escribir(v, "txtAno", QStringLiteral("2201"));
    QTest::keyClick(Control<QLineEdit>(v, "txtAno"), Qt::Key_Return);
    QTest::mouseClick(rueda, Qt::LeftButton, {}, EnRueda(rueda, 31, 1));
    EXPECT_EQ(plan.idas, antes); // no wheel, no days
}

TEST_F(Ventanas, LaRuedaConElTeclado)
{
    auto* v = Abrir<frmFasesLuna>();
    auto* rueda = Control<Lienzo>(v, "picRueda");
    rueda->setFocus();
    QTest::keyClick(rueda, Qt::Key_Left); // from day 1 back round the ring
    QTest::keyClick(rueda, Qt::Key_Return);
    QTest::keyClick(rueda, Qt::Key_Right);
    QTest::keyClick(rueda, Qt::Key_Down);
    QTest::keyClick(rueda, Qt::Key_Space);
    const std::vector<Ida> esperadas{{2026, 2, 28, 12, 0}, {2026, 2, 2, 12, 0}};
    EXPECT_EQ(plan.idas, esperadas);
}

// --- one object per tool ---

TEST_F(Ventanas, CadaHerramientaEsUnSoloObjeto)
{
    QPointer<frmEventos> eventos;
    frmEventos* primera = &lanzador::MostrarHerramienta(eventos, plan);
    abiertas.emplace_back(primera);
    EXPECT_TRUE(primera->isVisible());
    EXPECT_FALSE(primera->isModal());
    Escribir(primera, "txtAno", QStringLiteral("1999"));
    primera->showMinimized();
    EXPECT_EQ(&lanzador::MostrarHerramienta(eventos, plan), primera);
    EXPECT_FALSE(primera->isMinimized());
    EXPECT_EQ(Control<QLineEdit>(primera, "txtAno")->text(), QStringLiteral("1999"));
    primera->close();
    QTest::qWait(1);
    EXPECT_TRUE(eventos.isNull());
    abiertas.emplace_back(&lanzador::MostrarHerramienta(eventos, plan)); // closing discarded everything
    EXPECT_EQ(Control<QLineEdit>(eventos, "txtAno")->text(), QStringLiteral("2026"));
}

// --- languages and looks ---

class PorIdioma : public Ventanas, public ::testing::WithParamInterface<const char*>
{
protected:
    std::vector<QWidget*> AbrirTodas()
    {
        return {Abrir<frmBuscarSolLunaAzimut>(), Abrir<frmEventos>(), Abrir<frmMejorVL>(),
                Abrir<frmFasesLuna>()};
    }
};

INSTANTIATE_TEST_SUITE_P(Idiomas, PorIdioma, ::testing::Values("es", "en", "fr"),
                         [](const auto& caso) { return std::string(caso.param); });

void Calcular(QWidget* v)
{
    for (const char* boton : {"cmdBuscar", "cmdCalcular", "cmdMostrar"}) {
        if (auto* b = v->findChild<QPushButton*>(QLatin1String(boton))) {
            b->click();
        }
    }
}

TEST_P(PorIdioma, NingunTextoFaltaNiSeCorta)
{
    const auto todas = AbrirTodas();
    // The language changes under open windows, as the menu does it.
    ASSERT_TRUE(modI18n::CargarIdioma(QLatin1String(GetParam()).toString()));
    lanzador::RetraducirVentanas();
    for (QWidget* v : todas) {
        SCOPED_TRACE(v->objectName().toStdString());
        Calcular(v);
        QTest::qWait(20);
        QStringList textos{v->windowTitle()};
        for (auto* l : v->findChildren<QLabel*>()) {
            textos << l->text() << l->accessibleName();
            if (l->isVisible() && !l->wordWrap()) {
                EXPECT_GE(l->width(), l->sizeHint().width()) << l->text().toStdString();
            }
            if (l->wordWrap()) {
                EXPECT_GE(l->height(), l->heightForWidth(l->width())) << l->text().toStdString();
            }
        }
        for (auto* b : v->findChildren<QAbstractButton*>()) {
            textos << b->text() << b->accessibleName();
            EXPECT_GE(b->width(), b->sizeHint().width()) << b->text().toStdString();
        }
        for (auto* c : v->findChildren<QComboBox*>()) {
            textos << c->itemText(0) << c->itemText(1) << c->accessibleName();
        }
        for (const QString& t : textos) {
            EXPECT_FALSE(t.contains(QLatin1Char('['))) << t.toStdString();
        }
        for (auto* lista : v->findChildren<ListaLineas*>()) {
            EXPECT_EQ(lista->horizontalScrollBar()->maximum(), 0);
            EXPECT_GT(lista->count(), 20);
        }
        // Nothing reaches over a neighbour.
        const auto hijos = v->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
        for (const QWidget* a : hijos) {
            for (const QWidget* b : hijos) {
                if (a < b && a->isVisible() && b->isVisible()) {
                    EXPECT_FALSE(a->geometry().intersects(b->geometry()))
                        << a->objectName().toStdString() << " and " << b->objectName().toStdString();
                }
            }
        }
    }
}

TEST_P(PorIdioma, TodoControlTieneNombre)
{
    ASSERT_TRUE(modI18n::CargarIdioma(QLatin1String(GetParam()).toString()));
    for (QWidget* v : AbrirTodas()) {
        for (auto* w : v->findChildren<QWidget*>()) {
            if (w->focusPolicy() == Qt::NoFocus || w->objectName().isEmpty() ||
                w->objectName().startsWith(QLatin1String("qt_"))) {
                continue;
            }
            EXPECT_FALSE(w->accessibleName().isEmpty()) << w->objectName().toStdString();
            EXPECT_FALSE(w->accessibleName().contains(QLatin1Char('&'))) << w->objectName().toStdString();
        }
    }
}

struct CasoCabecera
{
    const char* clave;
    std::vector<int> columnas; // where the fields of the lines begin
};

TEST_P(PorIdioma, LasCabecerasTienenLasColumnasDeLasLineas)
{
    ASSERT_TRUE(modI18n::CargarIdioma(QLatin1String(GetParam()).toString()));
    const CasoCabecera casos[] = {{"buscarsollunaazimut.lbl.cabecera", {0, 19, 30}},
                                  {"eventos.lbl.cabecera", {0, 11, 18}},
                                  {"mejorvl.lbl.cabecera", {0, 19, 31, 43, 59}}};
    for (const CasoCabecera& c : casos) {
        const QString t = modI18n::Traducir(c.clave);
        SCOPED_TRACE(t.toStdString());
        for (const int columna : c.columnas) {
            ASSERT_GT(t.size(), columna);
            EXPECT_NE(t[columna], QLatin1Char(' '));
            if (columna > 0) {
                EXPECT_EQ(t[columna - 1], QLatin1Char(' '));
            }
        }
    }
}

// First column of a widget's picture with something else than its background.
int PrimeraTinta(QWidget* ventana, QWidget* w)
{
    const QImage imagen = ventana->grab().toImage();
    const QRect r(w->mapTo(ventana, QPoint(0, 0)), w->size());
    const QColor fondo = imagen.pixelColor(r.right() - 20, r.center().y());
    for (int x = r.left(); x <= r.right(); ++x) {
        for (int y = r.top() + 3; y < std::min(r.bottom(), r.top() + 16); ++y) {
            const QColor c = imagen.pixelColor(x, y);
            if (std::abs(c.red() - fondo.red()) > 50) {
                return x;
            }
        }
    }
    return -1;
}

TEST_F(Ventanas, LaCabeceraSeAlineaConLasLineas)
{
    auto* v = Abrir<frmEventos>();
    auto* lista = Control<ListaLineas>(v, "lstEventos");
    auto* cabecera = Control<QLabel>(v, "lblCabecera");
    EXPECT_EQ(cabecera->font().family(), lista->font().family());
    EXPECT_EQ(cabecera->fontMetrics().horizontalAdvance(QStringLiteral("0000")),
              lista->fontMetrics().horizontalAdvance(QStringLiteral("iiii")));
    for (const QString& texto : {QStringLiteral("H"), QStringLiteral("          H")}) {
        cabecera->setText(texto);
        lista->PonerTexto(texto);
        QTest::qWait(20);
        const int deCabecera = PrimeraTinta(v, cabecera);
        ASSERT_GT(deCabecera, 0);
        EXPECT_EQ(deCabecera, PrimeraTinta(v, lista->viewport()));
    }
}

TEST_F(Ventanas, RetraducirPasaPorAltoLoQueNoSabe)
{
    QWidget sinTextos; // a window without Retraducir
    auto* v = Abrir<frmMejorVL>();
    auto* otra = Abrir<frmFasesLuna>();
    ASSERT_TRUE(modI18n::CargarIdioma(u"en"));
    lanzador::RetraducirVentanas(otra);
    EXPECT_EQ(v->windowTitle(), QStringLiteral("Best Milky Way nights"));
    EXPECT_EQ(otra->windowTitle(), QStringLiteral("Fases de la Luna del mes"));
    // A computed status follows the language too, the result lines do not.
    Pulsar(v, "cmdCalcular");
    ASSERT_TRUE(modI18n::CargarIdioma(u"fr"));
    lanzador::RetraducirVentanas();
    EXPECT_TRUE(Estado(v).endsWith(QStringLiteral(" nuit(s) recommandée(s)")));
    EXPECT_TRUE(Control<ListaLineas>(v, "lstNoches")->item(0)->text().contains(QStringLiteral("Luna ")));
}

} // namespace

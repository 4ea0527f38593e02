// The planner's window through its real controls: date, hour, zone, place, panels, words, start and end.
#include "BancoVentana.h"

#include "disposicion.h"

#include "modAstroEstado.h"
#include "modConfig.h"
#include "modFormato.h"
#include "modI18n.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QtTest/QTest>

using modFormato::Format;

namespace {

const char* const kPaneles[] = {"lblSunRise",   "lblSunTransit",  "lblSunSet",   "lblSunAz",   "lblSunAlt",
                                "lblGold",      "lblBlue",        "lblCivil",    "lblNaut",    "lblAstro",
                                "lblMoonRise",  "lblMoonTransit", "lblMoonSet",  "lblMoonAz",  "lblMoonAlt",
                                "lblMoonPhase", "lblMoonIllum",   "lblMoonDist", "lblObsCoord"};

// Every word on the screen: labels, buttons, boxes, menus, tool tips, names for a screen reader.
QStringList TextosVisibles(const QWidget& raiz)
{
    QStringList textos{raiz.windowTitle()};
    const auto anadir = [&textos](const QString& t) {
        if (!t.isEmpty())
            textos.append(t);
    };
    for (const QWidget* w : raiz.findChildren<QWidget*>()) {
        anadir(w->toolTip());
        anadir(w->accessibleName());
        anadir(w->accessibleDescription());
        anadir(w->property("text").toString());
        if (const auto* combo = qobject_cast<const QComboBox*>(w))
            for (int i = 0; i < combo->count(); ++i)
                anadir(combo->itemText(i));
    }
    for (const QAction* accion : raiz.findChildren<QAction*>())
        anadir(accion->text());
    return textos;
}

// The Alt+letter of a caption, upper case; null without one.
QChar Mnemotecnico(const QString& texto)
{
    for (qsizetype i = 0; i + 1 < texto.size(); ++i) {
        if (texto[i] != QLatin1Char('&'))
            continue;
        if (texto[i + 1] != QLatin1Char('&'))
            return texto[i + 1].toUpper();
        ++i;
    }
    return {};
}

} // namespace

class frmMainVentana : public BancoVentana
{
protected:
    // All lines of the panels as one text.
    std::string Paneles() const
    {
        std::string foto;
        for (const char* nombre : kPaneles)
            foto += Texto(nombre).toStdString() + '\n';
        return foto;
    }
};

// ---- Start

TEST_F(frmMainVentana, OpensOnTheSystemsDayAndTheConfiguredPlace)
{
    Abrir();
    EXPECT_EQ(ventana->windowTitle(), modI18n::Traducir("app.titulo"));
    EXPECT_EQ(Control<QLineEdit>("txtYear")->text(), "2026");
    EXPECT_EQ(Control<QLineEdit>("txtMonth")->text(), "6");
    EXPECT_EQ(Control<QLineEdit>("txtDay")->text(), "21");
    EXPECT_EQ(Control<QLineEdit>("txtTZ")->text(), "2");
    EXPECT_EQ(Control<QSlider>("hsbHour")->value(), 10 * 60 + 15);
    EXPECT_EQ(Control<QLineEdit>("txtGoto")->text(), "40.4168, -3.7038");
    EXPECT_EQ(Texto("lblObsCoord"), Format(40.4168, u"0.0000") + ", " + Format(-3.7038, u"0.0000"));
    EXPECT_TRUE(ventana->TieneObs());
    EXPECT_FALSE(ventana->TieneTgt());
    EXPECT_EQ(ventana->Estado().vista.zoom, 6);
    EXPECT_TRUE(mensajes.isEmpty());
}

// Madrid, 21 June 2026, by hand: declination 23.436, equation of time -1 m 50 s, so the Sun culminates at
// 12:00 + 14 m 49 s + 1 m 50 s UT, 14:17 CEST; cos H = (sin -0.833 - sin 40.4168 sin 23.436) / (cos 40.4168
// cos 23.436) = -0.38994, H = 7 h 31 m 48 s, and it rises at 06:45 CEST.
TEST_F(frmMainVentana, PanelsTellTheDayOfMadrid)
{
    Abrir();
    EXPECT_TRUE(Texto("lblSunRise").contains("06:45")) << Texto("lblSunRise").toStdString();
    EXPECT_TRUE(Texto("lblSunTransit").contains("14:17")) << Texto("lblSunTransit").toStdString();
    EXPECT_TRUE(Texto("lblHour").contains("10:15")) << Texto("lblHour").toStdString();
    for (const char* nombre : kPaneles) {
        EXPECT_FALSE(Texto(nombre).isEmpty()) << nombre;
        EXPECT_FALSE(Texto(nombre).contains("%") &&
                     !Texto(nombre).contains(QRegularExpression("\\d\\s*\u00a0?%")))
            << Texto(nombre).toStdString();
    }
}

TEST_F(frmMainVentana, WithoutAnObserverInTheFilePanelsStayEmptyAndTheMapStandsAtTheSavedPlace)
{
    EscribirIni("[Observador]\r\nTiene=0\r\nLat=10,5\r\nLon=20.25\r\n");
    Abrir();
    EXPECT_FALSE(ventana->TieneObs());
    EXPECT_DOUBLE_EQ(ventana->Estado().vista.lat, 10.5);
    EXPECT_DOUBLE_EQ(ventana->Estado().vista.lon, 20.25);
    EXPECT_TRUE(Texto("lblSunRise").contains("--"));
    EXPECT_TRUE(Texto("lblHour").contains("--"));
    const QString antes = Texto("lblHour");
    Control<QSlider>("hsbHour")->setValue(600);
    EXPECT_EQ(Texto("lblHour"), antes) << "with no observer the hour label stays too";
    EXPECT_FALSE(modAstroEstado::TrayectoriasValidas());
}

// ---- Date

TEST_F(frmMainVentana, The30thOfFebruaryUpdatesTheClockAndNothingElse)
{
    Abrir();
    Pegar("txtMonth", "2");
    const auto antes = Paneles();
    const QString reloj = Texto("lblHour");
    Pegar("txtDay", "30");
    Control<QSlider>("hsbHour")->setValue(333);
    EXPECT_EQ(Paneles(), antes);
    EXPECT_NE(Texto("lblHour"), reloj);
    EXPECT_TRUE(Texto("lblHour").contains("05:33"));
}

TEST_F(frmMainVentana, YearsOutside1900To2200AreRefused)
{
    Abrir();
    for (const char* anio : {"1899", "2201", "", "abc", "99999", "-5"}) {
        SCOPED_TRACE(anio);
        Pegar("txtYear", "2026");
        const auto antes = Paneles();
        Pegar("txtYear", anio);
        EXPECT_EQ(Paneles(), antes);
    }
    for (const char* anio : {"1900", "2200"}) {
        SCOPED_TRACE(anio);
        const auto antes = Paneles();
        Pegar("txtYear", anio);
        EXPECT_NE(Paneles(), antes);
    }
    EXPECT_TRUE(mensajes.isEmpty()) << "an invalid date says nothing";
}

TEST_F(frmMainVentana, TypingADateKeyByKeyEndsOnThatDay)
{
    Abrir();
    Teclear("txtYear", "2027");
    Teclear("txtMonth", "12");
    Teclear("txtDay", "31");
    EXPECT_EQ(ventana->Fecha().anio, 2027);
    EXPECT_EQ(ventana->Fecha().mes, 12);
    EXPECT_EQ(ventana->Fecha().dia, 31);
    EXPECT_EQ(Control<QLineEdit>("txtTZ")->text(), "1") << "winter time was proposed on the way";
    EXPECT_FALSE(modAstroEstado::CurvasDiaCaducadas(2027, 12, 31, ventana->obsLat(), ventana->obsLon(), 1.0));
}

TEST_F(frmMainVentana, APolarDayShowsDashesAndKeepsTheAzimuthsNegative)
{
    Abrir();
    IrA("78.2, 15.6");
    EXPECT_TRUE(Texto("lblSunRise").contains("--:--"));
    EXPECT_TRUE(Texto("lblSunSet").contains("--:--"));
    EXPECT_FALSE(Texto("lblSunTransit").contains("--:--"));
    EXPECT_LT(ventana->Actuales().SolAzOrto, 0);
    EXPECT_LT(ventana->Actuales().SolAzOcaso, 0);
}

TEST_F(frmMainVentana, NowTakesTheSystemsClock)
{
    Abrir();
    Pegar("txtYear", "1999");
    ahora = QDateTime(QDate(2026, 12, 24), QTime(23, 59));
    QTest::mouseClick(Control<QPushButton>("cmdAhora"), Qt::LeftButton);
    EXPECT_EQ(ventana->Fecha().anio, 2026);
    EXPECT_EQ(ventana->Fecha().dia, 24);
    EXPECT_EQ(Control<QSlider>("hsbHour")->value(), 23 * 60 + 59);
    EXPECT_EQ(Control<QLineEdit>("txtTZ")->text(), "1");
}

TEST_F(frmMainVentana, GoingToADateWritesEveryControlAndRecomputesOnce)
{
    Abrir();
    ventana->IrAFechaHora(2026, 12, 3, 17, 5);
    EXPECT_EQ(Control<QLineEdit>("txtDay")->text(), "3");
    EXPECT_EQ(Control<QLineEdit>("txtTZ")->text(), "1");
    EXPECT_EQ(Control<QSlider>("hsbHour")->value(), 17 * 60 + 5);
    EXPECT_TRUE(Texto("lblHour").contains("17:05"));
    EXPECT_FALSE(modAstroEstado::CurvasDiaCaducadas(2026, 12, 3, ventana->obsLat(), ventana->obsLon(), 1.0));
    ventana->IrAFechaHora(2026, 12, 3, 30, 0);
    EXPECT_EQ(Control<QSlider>("hsbHour")->value(), 1440) << "held to the bar's range";
}

// ---- Zone

TEST_F(frmMainVentana, HalfTypedZonesAskNothing)
{
    Abrir();
    for (const char* texto : {"", "-", "+", "1.", "1,"}) {
        Pegar("txtTZ", texto);
        EXPECT_TRUE(mensajes.isEmpty()) << texto;
    }
}

TEST_F(frmMainVentana, AZoneSetWholeAsksOnceAndCounts)
{
    Abrir();
    const QString antes = Texto("lblSunRise");
    Pegar("txtTZ", "1.5");
    ASSERT_EQ(mensajes.size(), 1);
    EXPECT_EQ(mensajes[0].clase, modMensajes::Clase::Pregunta);
    EXPECT_EQ(mensajes[0].texto, modI18n::Traducir("msg.tz.confirmar.pregunta"));
    EXPECT_DOUBLE_EQ(ventana->Zona(), 1.5);
    EXPECT_NE(Texto("lblSunRise"), antes);
    EXPECT_TRUE(Texto("lblSunRise").contains("06:15"));
}

TEST_F(frmMainVentana, RefusingAZoneRestoresTheOldTextWithoutAskingAgain)
{
    Abrir();
    respuesta = false;
    const auto antes = Paneles();
    Pegar("txtTZ", "5,5");
    EXPECT_EQ(mensajes.size(), 1);
    EXPECT_EQ(Control<QLineEdit>("txtTZ")->text(), "2");
    EXPECT_EQ(Paneles(), antes);
    Control<QLineEdit>("txtYear")->setFocus();
    QTest::qWait(20);
    EXPECT_EQ(mensajes.size(), 1);
}

TEST_F(frmMainVentana, AnAutomaticZoneFollowsTheDateAndATypedOneStays)
{
    Abrir();
    Pegar("txtMonth", "1");
    EXPECT_EQ(Control<QLineEdit>("txtTZ")->text(), "1");
    Pegar("txtMonth", "7");
    EXPECT_EQ(Control<QLineEdit>("txtTZ")->text(), "2");
    EXPECT_TRUE(mensajes.isEmpty());
    Pegar("txtTZ", "-3");
    EXPECT_EQ(mensajes.size(), 1);
    Pegar("txtMonth", "1");
    EXPECT_EQ(Control<QLineEdit>("txtTZ")->text(), "-3");
    EXPECT_EQ(mensajes.size(), 1);
}

TEST_F(frmMainVentana, LeavingAHalfTypedZoneKeepsTheProgramRunning)
{
    Abrir();
    Teclear("txtTZ", "-");
    Control<QLineEdit>("txtYear")->setFocus();
    QTest::qWait(20);
    EXPECT_TRUE(mensajes.isEmpty());
    EXPECT_DOUBLE_EQ(ventana->Zona(), 0.0) << "a text that is no number reads as 0";
}

// ---- Place

TEST_F(frmMainVentana, TheGoToBoxMovesObserverAndMap)
{
    Abrir();
    IrA("  -33.8568 , 151.2153, 7");
    EXPECT_DOUBLE_EQ(ventana->obsLat(), -33.8568);
    EXPECT_DOUBLE_EQ(ventana->obsLon(), 151.2153);
    EXPECT_DOUBLE_EQ(ventana->Estado().vista.lat, -33.8568);
    EXPECT_EQ(ventana->Estado().vista.zoom, 6);
    IrA("48.8584");
    EXPECT_DOUBLE_EQ(ventana->obsLat(), -33.8568) << "one piece does nothing";
    IrA("uno, 2.5");
    EXPECT_DOUBLE_EQ(ventana->obsLat(), 0.0);
    EXPECT_DOUBLE_EQ(ventana->obsLon(), 2.5);
}

TEST_F(frmMainVentana, PlacesBeyondTheEarthCrashNothing)
{
    Abrir();
    for (const char* lugar :
         {"90, 0", "-90, 0", "1e300, 1e300", "-1e18, 5", "89.9999999999, 1e9", "inf, nan"}) {
        SCOPED_TRACE(lugar);
        IrA(lugar);
        Control<QSlider>("hsbHour")->setValue(300);
        QCoreApplication::processEvents();
    }
}

TEST_F(frmMainVentana, AStepOfHalfATenthOfAMilliDegreeKeepsTheCurves)
{
    Abrir();
    IrA("40, -3");
    const double muestra = modAstroEstado::TrayectoriaSol().altitud[70];
    IrA("40.00005, -3");
    EXPECT_EQ(modAstroEstado::TrayectoriaSol().altitud[70], muestra);
    EXPECT_EQ(Texto("lblObsCoord"), Format(40.00005, u"0.0000") + ", " + Format(-3, u"0.0000"));
    IrA("40.5, -3");
    EXPECT_NE(modAstroEstado::TrayectoriaSol().altitud[70], muestra);
}

// ---- Hour bar, timeline, scrub strip

TEST_F(frmMainVentana, DraggingTheHourBarMovesClockAndPanels)
{
    Abrir();
    auto* barra = Control<BarraMinutos>("hsbHour");
    QSignalSpy arrastres(barra, &BarraMinutos::Scroll);
    QSignalSpy cambios(barra, &BarraMinutos::Change);
    barra->setValue(720);
    cambios.clear();
    const QPoint centro = barra->rect().center();
    QTest::mousePress(barra, Qt::LeftButton, {}, centro);
    ASSERT_TRUE(barra->isSliderDown()) << "the thumb stands in the middle at noon";
    QTest::mouseMove(barra, centro + QPoint(30, 0));
    QTest::mouseMove(barra, centro + QPoint(50, 0));
    EXPECT_GE(arrastres.size(), 1);
    EXPECT_EQ(cambios.size(), 0);
    EXPECT_GT(barra->value(), 720);
    const int minuto = barra->value();
    const QString reloj = QStringLiteral("%1:%2")
                              .arg(minuto / 60, 2, 10, QLatin1Char('0'))
                              .arg(minuto % 60, 2, 10, QLatin1Char('0'));
    EXPECT_TRUE(Texto("lblHour").contains(reloj));
    QTest::mouseRelease(barra, Qt::LeftButton, {}, centro + QPoint(50, 0));
    EXPECT_EQ(cambios.size(), 1);
}

TEST_F(frmMainVentana, TheHourBarAnswersToTheKeys)
{
    Abrir();
    auto* barra = Control<QSlider>("hsbHour");
    barra->setFocus();
    barra->setValue(600);
    QTest::keyClick(barra, Qt::Key_Right);
    EXPECT_EQ(barra->value(), 601);
    QTest::keyClick(barra, Qt::Key_PageUp);
    EXPECT_EQ(barra->value(), 661);
    QTest::keyClick(barra, Qt::Key_Home);
    EXPECT_EQ(barra->value(), 0);
    QTest::keyClick(barra, Qt::Key_End);
    EXPECT_EQ(barra->value(), 1440);
    EXPECT_TRUE(Texto("lblHour").contains("24:00"));
}

TEST_F(frmMainVentana, DraggingTheScrubStripSetsTheHour)
{
    Abrir();
    auto* tira = Control<QWidget>("picScrub");
    auto* barra = Control<QSlider>("hsbHour");
    const int w = tira->width();
    QTest::mousePress(tira, Qt::LeftButton, {}, QPoint(w / 4, 8));
    EXPECT_NEAR(barra->value(), 360, 2);
    QTest::mouseMove(tira, QPoint(w / 2, 8));
    EXPECT_NEAR(barra->value(), 720, 2);
    QTest::mouseMove(tira, QPoint(w + 80, 8));
    EXPECT_EQ(barra->value(), 1440) << "held to the day beyond the edge";
    QTest::mouseRelease(tira, Qt::LeftButton, {}, QPoint(w + 80, 8));
    QTest::mouseMove(tira, QPoint(10, 8));
    EXPECT_EQ(barra->value(), 1440) << "a move without the button does nothing";
    QTest::mousePress(tira, Qt::RightButton, {}, QPoint(10, 8));
    EXPECT_EQ(barra->value(), 1440);
}

TEST_F(frmMainVentana, AClickOnACardGoesToItsHour)
{
    Abrir();
    auto* linea = Control<QWidget>("picTimeline");
    linea->grab(); // the cards are known once they are painted
    auto* barra = Control<QSlider>("hsbHour");
    barra->setValue(1000);
    const int w = linea->width();
    QTest::mouseClick(linea, Qt::LeftButton, {}, QPoint(3, 30));
    const int primera = barra->value();
    EXPECT_NE(primera, 1000);
    QTest::mouseClick(linea, Qt::LeftButton, {}, QPoint(w - 4, 30));
    EXPECT_GT(barra->value(), primera) << "cards stand in the order of their hours";
    const int ultima = barra->value();
    QTest::mouseClick(linea, Qt::LeftButton, {}, QPoint(3, 120));
    EXPECT_EQ(barra->value(), ultima) << "under the cards nothing is hit";
    QTest::mouseClick(linea, Qt::RightButton, {}, QPoint(3, 30));
    EXPECT_EQ(barra->value(), ultima);
}

TEST_F(frmMainVentana, TheArrowKeysGoFromCardToCard)
{
    Abrir();
    auto* linea = Control<QWidget>("picTimeline");
    linea->grab();
    linea->setFocus();
    auto* barra = Control<QSlider>("hsbHour");
    barra->setValue(0);
    int antes = 0;
    for (int i = 0; i < 10; ++i) {
        QTest::keyClick(linea, Qt::Key_Right);
        EXPECT_GT(barra->value(), antes);
        antes = barra->value();
    }
    QTest::keyClick(linea, Qt::Key_Left);
    EXPECT_LT(barra->value(), antes);
    barra->setValue(1440);
    QTest::keyClick(linea, Qt::Key_Right);
    EXPECT_LT(barra->value(), 600) << "behind the last card the first follows";
}

TEST_F(frmMainVentana, TheTimelineShowsTheSkyAndTheHourLine)
{
    Abrir();
    auto* linea = Control<QWidget>("picTimeline");
    Control<QSlider>("hsbHour")->setValue(720);
    const QImage imagen = linea->grab().toImage();
    const int x = int(std::lround(imagen.width() * 0.5));
    bool blanca = false;
    for (int dx = -1; dx <= 1; ++dx)
        blanca = blanca || imagen.pixelColor(x + dx, imagen.height() - 30).lightness() > 240;
    EXPECT_TRUE(blanca);
    EXPECT_GT(imagen.pixelColor(imagen.width() * 5 / 8 + 7, 150).lightness(),
              imagen.pixelColor(7, 150).lightness() + 60)
        << "the afternoon's sky is lighter than midnight's";
}

// ---- Animation

TEST_F(frmMainVentana, PlayingWrapsRoundMidnightOfTheSameDate)
{
    Abrir();
    auto* barra = Control<QSlider>("hsbHour");
    auto* velocidad = Control<QSlider>("hsbAnimVel");
    velocidad->setValue(15);
    EXPECT_EQ(Control<QLabel>("lblVelocidadValor")->text(), "15");
    barra->setValue(1430);
    auto* boton = Control<QPushButton>("cmdAnimDia");
    EXPECT_EQ(boton->text(), modI18n::Traducir("main.btn.play"));
    QSignalSpy cambios(barra, &QSlider::valueChanged);
    QTest::mouseClick(boton, Qt::LeftButton);
    EXPECT_EQ(boton->text(), modI18n::Traducir("main.btn.parar"));
    ASSERT_TRUE(cambios.wait(2000));
    EXPECT_EQ(barra->value(), 5);
    EXPECT_EQ(ventana->Fecha().dia, 21);
    velocidad->setValue(60);
    ASSERT_TRUE(cambios.wait(2000));
    EXPECT_EQ(barra->value(), 65) << "a new speed counts from the next tick";
    barra->setValue(1000);
    ASSERT_TRUE(cambios.wait(2000));
    EXPECT_EQ(barra->value(), 1060) << "a drag is overtaken from where it ended";
    QTest::mouseClick(boton, Qt::LeftButton);
    cambios.clear();
    QTest::qWait(450);
    EXPECT_EQ(cambios.size(), 0);
    EXPECT_EQ(boton->text(), modI18n::Traducir("main.btn.play"));
}

// ---- Language

TEST_F(frmMainVentana, NoWindowShowsABracketInAnyLanguage)
{
    Abrir();
    for (const char* entrada : {"mnuIdEN", "mnuIdFR", "mnuIdES"}) {
        Control<QAction>(entrada)->trigger();
        EXPECT_TRUE(Control<QAction>(entrada)->isChecked());
        for (const QString& texto : TextosVisibles(*ventana))
            EXPECT_FALSE(texto.contains('[')) << entrada << ": " << texto.toStdString();
    }
}

TEST_F(frmMainVentana, ChangingTheLanguageWhilePlayingKeepsTheDayPlaying)
{
    Abrir();
    auto* boton = Control<QPushButton>("cmdAnimDia");
    QTest::mouseClick(boton, Qt::LeftButton);
    Control<QComboBox>("cmbProvider")->setCurrentIndex(1);
    Control<QAction>("mnuIdFR")->trigger();
    EXPECT_EQ(modI18n::IdiomaActualCodigo(), "fr");
    EXPECT_EQ(boton->text(), modI18n::Traducir("main.btn.parar"));
    EXPECT_EQ(Control<QComboBox>("cmbProvider")->currentIndex(), 1) << "the selection is kept";
    QSignalSpy cambios(Control<QSlider>("hsbHour"), &QSlider::valueChanged);
    EXPECT_TRUE(cambios.wait(2000));
    EXPECT_TRUE(Ini().contains("Idioma=fr")) << Ini().toStdString();
}

TEST_F(frmMainVentana, AnUnknownLanguageInTheFileIsSpanish)
{
    EscribirIni("[Interfaz]\r\nIdioma=de\r\n");
    Abrir();
    EXPECT_EQ(modI18n::IdiomaActualCodigo(), "es");
    EXPECT_TRUE(Control<QAction>("mnuIdES")->isChecked());
}

TEST_F(frmMainVentana, NothingIsClippedInAnyLanguageAtAnySize)
{
    Abrir();
    for (const QSize tamano : {QSize(1280, 776), QSize(1920, 1056), QSize(960, 516)}) {
        ventana->resize(tamano);
        for (const char* entrada : {"mnuIdES", "mnuIdEN", "mnuIdFR"}) {
            SCOPED_TRACE(entrada);
            Control<QAction>(entrada)->trigger();
            QTest::qWait(1);
            for (const char* marco : {"Frame1", "Frame2"}) {
                for (const QWidget* w : Control<QWidget>(marco)->findChildren<QWidget*>()) {
                    if (!w->isVisible() || w->objectName().isEmpty())
                        continue;
                    if (qobject_cast<const EtiquetaDato*>(w) || qobject_cast<const QCheckBox*>(w) ||
                        qobject_cast<const QPushButton*>(w) || qobject_cast<const QLabel*>(w)) {
                        EXPECT_GE(w->width(), w->minimumSizeHint().width()) << w->objectName().toStdString();
                    }
                }
                auto* area = Control<QScrollArea>(marco);
                EXPECT_LE(area->widget()->minimumSizeHint().width(), area->viewport()->width()) << marco;
            }
        }
    }
}

// ---- Keyboard and screen readers

TEST_F(frmMainVentana, EveryControlIsReachedByTabAndHasAName)
{
    Abrir();
    QSet<QWidget*> recorridos;
    QWidget* w = Control<QLineEdit>("txtGoto");
    for (int i = 0; i < 200 && !recorridos.contains(w); ++i) {
        recorridos.insert(w);
        w = w->nextInFocusChain();
    }
    for (QWidget* control : ventana->findChildren<QWidget*>()) {
        if (!(control->focusPolicy() & Qt::TabFocus) || !control->isVisible() ||
            control->objectName().isEmpty() || control->objectName().startsWith("qt_"))
            continue;
        EXPECT_TRUE(recorridos.contains(control)) << control->objectName().toStdString();
        QString nombre = control->accessibleName();
        if (nombre.isEmpty())
            nombre = control->property("text").toString();
        bool conRotulo = false;
        for (const QLabel* rotulo : ventana->findChildren<QLabel*>())
            conRotulo = conRotulo || rotulo->buddy() == control;
        EXPECT_TRUE(conRotulo || !nombre.isEmpty()) << control->objectName().toStdString();
    }
}

TEST_F(frmMainVentana, MnemonicsDoNotClash)
{
    Abrir();
    for (const char* entrada : {"mnuIdES", "mnuIdEN", "mnuIdFR"}) {
        Control<QAction>(entrada)->trigger();
        QMap<QChar, QString> vistos;
        const auto anotar = [&](const QString& texto) {
            const QChar letra = Mnemotecnico(texto);
            if (letra.isNull())
                return;
            EXPECT_FALSE(vistos.contains(letra))
                << entrada << ": " << texto.toStdString() << " / " << vistos.value(letra).toStdString();
            vistos.insert(letra, texto);
        };
        for (const QAction* menu : ventana->menuBar()->actions())
            anotar(menu->text());
        for (const QWidget* w : ventana->findChildren<QWidget*>())
            if (qobject_cast<const QAbstractButton*>(w) || qobject_cast<const QLabel*>(w))
                anotar(w->property("text").toString());
    }
}

TEST_F(frmMainVentana, F1OpensTheManualOfTheLanguageOrTheSpanishOne)
{
    Abrir();
    QDir(carpeta.path()).mkpath("ayuda/es");
    QFile manual(carpeta.filePath("ayuda/es/quintaluz_manual_es.html"));
    ASSERT_TRUE(manual.open(QIODevice::WriteOnly));
    manual.close();
    QString abierto;
    ventana->PonerAbridor([&abierto](const QString& ruta) { abierto = ruta; });
    Control<QAction>("mnuIdFR")->trigger();
    Control<QAction>("mnuAyudaUso")->trigger();
    EXPECT_TRUE(abierto.endsWith("ayuda/es/quintaluz_manual_es.html")) << abierto.toStdString();
    EXPECT_EQ(Control<QAction>("mnuAyudaUso")->shortcut(), QKeySequence(Qt::Key_F1));
}

// ---- End

TEST_F(frmMainVentana, TheCloseBoxAsksNothing)
{
    Abrir();
    ventana->close();
    EXPECT_TRUE(mensajes.isEmpty());
    EXPECT_TRUE(ventana->Estado().Cerrando);
}

TEST_F(frmMainVentana, ExitAsksAndNoLeavesThePlannerOpen)
{
    Abrir();
    respuesta = false;
    Control<QAction>("mnuSalir")->trigger();
    ASSERT_EQ(mensajes.size(), 1);
    EXPECT_EQ(mensajes[0].texto, modI18n::Traducir("msg.salir.pregunta"));
    EXPECT_FALSE(ventana->Estado().Cerrando);
    EXPECT_TRUE(ventana->isVisible());
    respuesta = true;
    Control<QAction>("mnuSalir")->trigger();
    EXPECT_FALSE(ventana->isVisible());
    EXPECT_EQ(Control<QAction>("mnuSalir")->shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
}

TEST_F(frmMainVentana, TheNextStartFindsThePlaceAgainAndNoTarget)
{
    EscribirIni("; mine\r\n[Objetivo]\r\nTiene=1\r\nLat=41\r\nLon=-4\r\n[Otra]\r\nx=y\r\n");
    Abrir();
    EXPECT_FALSE(ventana->TieneTgt()) << "the saved flag is not applied";
    IrA("43.3623, -8.4115");
    CerrarVentana();
    const QString ini = Ini();
    EXPECT_TRUE(ini.contains("; mine\r\n"));
    EXPECT_TRUE(ini.contains("[Otra]\r\nx=y\r\n"));
    EXPECT_TRUE(ini.contains("Tiene=0\r\nLat=41\r\nLon=-4\r\n")) << ini.toStdString();
    Abrir();
    EXPECT_DOUBLE_EQ(ventana->obsLat(), 43.3623);
    EXPECT_DOUBLE_EQ(ventana->obsLon(), -8.4115);
    EXPECT_FALSE(ventana->TieneTgt());
}

TEST_F(frmMainVentana, ClosingWhilePlayingStopsTheDay)
{
    Abrir();
    QTest::mouseClick(Control<QPushButton>("cmdAnimDia"), Qt::LeftButton);
    QSignalSpy cambios(Control<QSlider>("hsbHour"), &QSlider::valueChanged);
    ventana->close();
    QTest::qWait(450);
    EXPECT_EQ(cambios.size(), 0);
}

// Clock, pump, message boxes and wheel: the places where a test can stand in for the world.
#include "modBombeo.h"
#include "modI18n.h"
#include "modMensajes.h"
#include "modReloj.h"
#include "modRueda.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

// Answers the next message box with the button of that role, from inside its event loop.
template <typename Mirar> void AlAparecerCaja(Mirar mirar)
{
    QTimer::singleShot(0, qApp, [mirar] {
        auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(caja, nullptr);
        mirar(caja);
    });
}

QAbstractButton* Boton(QMessageBox* caja, QMessageBox::ButtonRole papel)
{
    for (QAbstractButton* b : caja->buttons()) {
        if (caja->buttonRole(b) == papel) {
            return b;
        }
    }
    return nullptr;
}

void Girar(QWidget* w, int delta)
{
    const QPointF aqui(5, 5);
    QWheelEvent e(aqui, w->mapToGlobal(aqui), {}, QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                  Qt::NoScrollPhase, false);
    QApplication::sendEvent(w, &e);
}

} // namespace

TEST(modReloj, UnaFuenteDecideLaFecha)
{
    modReloj::Fuente f;
    f.local = [] { return QDateTime(QDate(2026, 8, 12), QTime(20, 30), Qt::UTC); };
    f.utc = [] { return QDateTime(QDate(2026, 8, 12), QTime(18, 30), Qt::UTC); };
    f.desfase = [](std::int64_t utc) -> std::optional<std::int64_t> {
        return utc == 0 ? std::optional<std::int64_t>(3600) : std::nullopt;
    };
    modReloj::PonerFuente(f);
    EXPECT_EQ(modReloj::Ahora().date(), QDate(2026, 8, 12));
    EXPECT_EQ(modReloj::Ahora().time(), QTime(20, 30));
    EXPECT_EQ(modReloj::DiferenciaPresente(), 7200);
    EXPECT_EQ(modReloj::DesfaseEn(0), 3600);
    EXPECT_FALSE(modReloj::DesfaseEn(1).has_value());
    EXPECT_EQ(modReloj::SegundosUtc(), 1786559400.0);
    modReloj::PonerFuente({});
}

TEST(modReloj, ElSistemaConoceSuDesfase)
{
    // Whatever the zone of this machine, it is within 14 hours of UTC, in summer and winter.
    for (const std::int64_t utc : {1768478400LL, 1784116800LL}) { // 15 January and 15 July 2026, 12:00 UTC
        const auto d = modReloj::DesfaseEn(utc);
        ASSERT_TRUE(d.has_value());
        EXPECT_LE(std::abs(*d), 14 * 3600);
        EXPECT_EQ(*d % 60, 0);
    }
}

TEST(modReloj, HorarioDeVeranoDeMadrid)
{
    const QByteArray antes = qgetenv("TZ");
    const bool habia = qEnvironmentVariableIsSet("TZ");
    qputenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3"); // rule text: no zone database is needed
    EXPECT_EQ(modReloj::DesfaseEn(1768478400), 3600);
    EXPECT_EQ(modReloj::DesfaseEn(1784116800), 7200);
    habia ? qputenv("TZ", antes) : qunsetenv("TZ");
}

TEST(modBombeo, EntregaLoQueEspera)
{
    bool llego = false;
    QMetaObject::invokeMethod(
        qApp, [&] { llego = true; }, Qt::QueuedConnection);
    EXPECT_FALSE(llego);
    modBombeo::Bombear();
    EXPECT_TRUE(llego);
}

TEST(modBombeo, BombeaUnNumeroLimitadoDeVeces)
{
    int rondas = 0;
    modBombeo::PonerBomba([&] { ++rondas; });
    modBombeo::BombearMientras([] { return true; }, 100);
    EXPECT_EQ(rondas, 100);
    modBombeo::BombearMientras([&] { return rondas < 103; }, 100);
    EXPECT_EQ(rondas, 103);
    modBombeo::BombearMientras([] { return false; }, 100);
    EXPECT_EQ(rondas, 103);
    modBombeo::PonerBomba({});
}

TEST(modMensajes, UnRespondedorContestaPorLaPersona)
{
    QList<modMensajes::Mensaje> vistos;
    modMensajes::PonerRespondedor([&](const modMensajes::Mensaje& m) {
        vistos << m;
        return vistos.size() == 2;
    });
    EXPECT_FALSE(modMensajes::Preguntar(nullptr, QStringLiteral("a"), QStringLiteral("b")));
    EXPECT_TRUE(modMensajes::Preguntar(nullptr, QStringLiteral("a"), QStringLiteral("b")));
    modMensajes::Informar(nullptr, QStringLiteral("c"), QStringLiteral("d"));
    modMensajes::Avisar(nullptr, QStringLiteral("e"), QStringLiteral("f"));
    modMensajes::PonerRespondedor({});
    ASSERT_EQ(vistos.size(), 4);
    EXPECT_EQ(vistos[0].clase, modMensajes::Clase::Pregunta);
    EXPECT_EQ(vistos[0].texto, QStringLiteral("a"));
    EXPECT_EQ(vistos[0].titulo, QStringLiteral("b"));
    EXPECT_EQ(vistos[2].clase, modMensajes::Clase::Informacion);
    EXPECT_EQ(vistos[3].clase, modMensajes::Clase::Aviso);
}

TEST(modMensajes, LaPreguntaOfreceNoPrimero)
{
    AlAparecerCaja([](QMessageBox* caja) {
        EXPECT_EQ(caja->icon(), QMessageBox::Question);
        EXPECT_EQ(caja->text(), QStringLiteral("<b>texto</b>"));
        EXPECT_EQ(caja->textFormat(), Qt::PlainText);
        EXPECT_EQ(caja->buttons().size(), 2);
        EXPECT_TRUE(caja->buttonRole(caja->defaultButton()) == QMessageBox::NoRole);
        QTest::keyClick(caja, Qt::Key_Return);
    });
    EXPECT_FALSE(modMensajes::Preguntar(nullptr, QStringLiteral("<b>texto</b>"), QStringLiteral("t")));

    AlAparecerCaja([](QMessageBox* caja) { Boton(caja, QMessageBox::YesRole)->click(); });
    EXPECT_TRUE(modMensajes::Preguntar(nullptr, QStringLiteral("x"), QStringLiteral("t")));

    AlAparecerCaja([](QMessageBox* caja) { QTest::keyClick(caja, Qt::Key_Escape); });
    EXPECT_FALSE(modMensajes::Preguntar(nullptr, QStringLiteral("x"), QStringLiteral("t")));

    AlAparecerCaja([](QMessageBox* caja) { caja->close(); });
    EXPECT_FALSE(modMensajes::Preguntar(nullptr, QStringLiteral("x"), QStringLiteral("t")));
}

TEST(modMensajes, LaInformacionTieneUnBoton)
{
    AlAparecerCaja([](QMessageBox* caja) {
        EXPECT_EQ(caja->icon(), QMessageBox::Information);
        EXPECT_EQ(caja->buttons().size(), 1);
        EXPECT_EQ(caja->windowTitle(), QStringLiteral("t"));
        QTest::keyClick(caja, Qt::Key_Escape);
    });
    modMensajes::Informar(nullptr, QStringLiteral("x"), QStringLiteral("t"));
}

TEST(modRueda, LaPalabraAltaLlevaSigno)
{
    EXPECT_EQ(modRueda::DeltaDePalabra(0xFF880000U), -120);
    EXPECT_EQ(modRueda::DeltaDePalabra(0x00780000U), 120);
    EXPECT_EQ(modRueda::DeltaDePalabra(0x8000FFFFU), -32768);
    EXPECT_EQ(modRueda::DeltaDePalabra(0x7FFF0000U), 32767);
    EXPECT_EQ(modRueda::DeltaDePalabra(0x0000FF88U), 0) << "the low word holds keys";
}

TEST(modRueda, LlegaALaVentanaTambienDesdeSusHijos)
{
    QWidget ventana;
    QWidget hijo(&ventana);
    hijo.resize(50, 50);
    ventana.resize(100, 100);
    ventana.show();
    QList<int> giros;
    QPointF donde;
    modRueda::InstalarRueda(&ventana, [&](int delta, const QPointF& p) {
        giros << delta;
        donde = p;
    });
    Girar(&ventana, 120);
    Girar(&ventana, -120);
    EXPECT_EQ(giros, (QList<int>{120, -120}));
    EXPECT_EQ(donde, ventana.mapToGlobal(QPointF(5, 5)));
    // The system's own wheel event over a child goes up to the window when the child leaves it.
    const QPointF aqui(20, 20);
    QWheelEvent e(aqui, hijo.mapToGlobal(aqui), {}, {0, 240}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                  false);
    QSpontaneKeyEvent::setSpontaneous(&e);
    qApp->notify(&hijo, &e);
    ASSERT_EQ(giros.size(), 3);
    EXPECT_EQ(giros.last(), 240);
    modRueda::QuitarRueda();
    Girar(&ventana, 120);
    EXPECT_EQ(giros.size(), 3);
}

TEST(modRueda, InstalarDosVecesLlamaUnaVez)
{
    QWidget ventana;
    int primera = 0;
    int segunda = 0;
    modRueda::InstalarRueda(&ventana, [&](int, const QPointF&) { ++primera; });
    modRueda::InstalarRueda(&ventana, [&](int, const QPointF&) { ++segunda; });
    Girar(&ventana, 120);
    EXPECT_EQ(primera, 0);
    EXPECT_EQ(segunda, 1);
    modRueda::QuitarRueda();
    modRueda::QuitarRueda();
    Girar(&ventana, 120);
    EXPECT_EQ(segunda, 1);
}

TEST(modRueda, UnManejadorQueFallaNoEscapa)
{
    QWidget ventana;
    int llamadas = 0;
    modRueda::InstalarRueda(&ventana, [&](int, const QPointF&) {
        ++llamadas;
        throw std::runtime_error("fallo");
    });
    EXPECT_NO_THROW(Girar(&ventana, 120));
    modRueda::InstalarRueda(&ventana, [&](int, const QPointF&) {
        ++llamadas;
        throw 1;
    });
    EXPECT_NO_THROW(Girar(&ventana, 120));
    EXPECT_EQ(llamadas, 2);
    modRueda::QuitarRueda();
}

TEST(modRueda, UnManejadorPuedeQuitarse)
{
    QWidget ventana;
    int llamadas = 0;
    modRueda::InstalarRueda(&ventana, [&](int, const QPointF&) {
        ++llamadas;
        modRueda::QuitarRueda();
    });
    Girar(&ventana, 120);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    Girar(&ventana, 120);
    EXPECT_EQ(llamadas, 1);
}

TEST(modRueda, UnaVentanaQueMuereSinQuitarlaNoDejaNada)
{
    {
        QWidget ventana;
        modRueda::InstalarRueda(&ventana, [](int, const QPointF&) {});
    }
    modRueda::QuitarRueda();
    QWidget otra;
    int llamadas = 0;
    modRueda::InstalarRueda(&otra, [&](int, const QPointF&) { ++llamadas; });
    Girar(&otra, 120);
    EXPECT_EQ(llamadas, 1);
    modRueda::QuitarRueda();
    modRueda::InstalarRueda(nullptr, {});
}

TEST(modRueda, ElGiroSigueSuCamino)
{
    class Ventana : public QWidget
    {
    public:
        int giros = 0;

    protected:
        void wheelEvent(QWheelEvent*) override { ++giros; }
    } ventana;
    modRueda::InstalarRueda(&ventana, [](int, const QPointF&) {});
    Girar(&ventana, 120);
    EXPECT_EQ(ventana.giros, 1);
    modRueda::QuitarRueda();
}

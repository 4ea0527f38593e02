// Fonts, theme, the drawing surface and the about box.
#include "Lienzo.h"
#include "frmAcercaDe.h"
#include "hojaEstilo.h"
#include "modGrafico.h"
#include "modI18n.h"
#include "paleta.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <stdexcept>

namespace {

QWidget* Hijo(QWidget* padre, const char* nombre)
{
    auto* w = new QLabel(padre);
    w->setObjectName(QLatin1String(nombre));
    return w;
}

// Relative luminance and contrast as the Web Content Accessibility Guidelines 2.1 define them.
double Luminancia(const QColor& c)
{
    const auto canal = [](double v) { return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4); };
    return 0.2126 * canal(c.redF()) + 0.7152 * canal(c.greenF()) + 0.0722 * canal(c.blueF());
}

double Contraste(const QColor& a, const QColor& b)
{
    const double la = Luminancia(a) + 0.05;
    const double lb = Luminancia(b) + 0.05;
    return std::max(la, lb) / std::min(la, lb);
}

bool TieneColor(const QImage& imagen, const QColor& color)
{
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            const QColor c = imagen.pixelColor(x, y);
            if (std::abs(c.red() - color.red()) < 12 && std::abs(c.green() - color.green()) < 12 &&
                std::abs(c.blue() - color.blue()) < 12) {
                return true;
            }
        }
    }
    return false;
}

class Tema : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { modGrafico::AplicarTema(*qApp); }
};

} // namespace

TEST(modGrafico, LaFuenteDeDisenoPasaALaModerna)
{
    QWidget ventana;
    ventana.setFont(modGrafico::FuenteDiseno());
    QWidget* etiqueta = Hijo(&ventana, "lblHour");
    QWidget* mapa = Hijo(&ventana, "picMap");
    QWidget* linea = Hijo(&ventana, "picTimeline");
    QWidget* franja = Hijo(&ventana, "picScrub");
    QWidget* otra = Hijo(&ventana, "lblOtra");
    QFont propia(QStringLiteral("DejaVu Serif"));
    propia.setPixelSize(20);
    otra->setFont(propia);
    QWidget* conTamano = Hijo(&ventana, "lblGrande");
    QFont grande = modGrafico::FuenteDiseno();
    grande.setPixelSize(30);
    conTamano->setFont(grande);
    QTimer reloj(&ventana); // has no font and is passed over

    modGrafico::AplicarFuentes(&ventana);
    EXPECT_EQ(ventana.font().family(), QStringLiteral("Verdana"));
    EXPECT_EQ(ventana.font().pixelSize(), 12);
    EXPECT_EQ(etiqueta->font().family(), QStringLiteral("Verdana"));
    EXPECT_EQ(etiqueta->font().pixelSize(), 12);
    for (const QWidget* dibujo : {mapa, linea, franja}) {
        EXPECT_EQ(dibujo->font().family(), QStringLiteral("MS Sans Serif"));
    }
    EXPECT_EQ(otra->font().family(), QStringLiteral("DejaVu Serif"));
    EXPECT_EQ(otra->font().pixelSize(), 20);
    EXPECT_EQ(conTamano->font().family(), QStringLiteral("Verdana"));
    EXPECT_EQ(conTamano->font().pixelSize(), 30);
    modGrafico::AplicarFuentes(nullptr);
}

TEST(modGrafico, UnaVentanaConOtraFuenteLaConserva)
{
    QWidget ventana;
    ventana.setFont(QFont(QStringLiteral("DejaVu Serif")));
    QWidget* vieja = Hijo(&ventana, "lblVieja");
    vieja->setFont(modGrafico::FuenteDiseno());
    modGrafico::AplicarFuentes(&ventana);
    EXPECT_EQ(ventana.font().family(), QStringLiteral("DejaVu Serif"));
    EXPECT_EQ(vieja->font().family(), QStringLiteral("Verdana"));
}

TEST(modGrafico, LaFuenteFijaTieneUnSoloAncho)
{
    const QFontMetricsF m(modGrafico::FuenteFija());
    EXPECT_EQ(m.horizontalAdvance(QStringLiteral("iiii")), m.horizontalAdvance(QStringLiteral("MMMM")));
}

TEST(paleta, LosTextosSeLeen)
{
    for (const QColor& fondo : {paleta::kVentana, paleta::kPanel, paleta::kCampo, paleta::kBoton}) {
        EXPECT_GE(Contraste(paleta::kTexto, fondo), 7.0) << fondo.name().toStdString();
        EXPECT_GE(Contraste(paleta::kTextoTenue, fondo), 4.5) << fondo.name().toStdString();
        EXPECT_GE(Contraste(paleta::kAcento, fondo), 4.5) << fondo.name().toStdString();
    }
    EXPECT_GE(Contraste(paleta::kTexto, paleta::kAcentoOscuro), 4.5);
}

TEST(hojaEstilo, CadaColorTieneValor)
{
    const QString hoja = hojaEstilo::Texto();
    EXPECT_FALSE(hoja.contains(u'@'));
    EXPECT_FALSE(hoja.contains(QLatin1String("#000000"))) << "an unknown name gives an invalid colour, black";
    EXPECT_EQ(hoja.count(u'{'), hoja.count(u'}'));
    EXPECT_TRUE(hoja.contains(paleta::kAcento.name()));
}

// The keyboard's place shows on every kind of control, and only there.
TEST_F(Tema, ElFocoSeVe)
{
    QWidget ventana;
    auto* columna = new QVBoxLayout(&ventana);
    const QList<QWidget*> controles{new QLineEdit(&ventana), new QPushButton(QStringLiteral("x"), &ventana),
                                    new QCheckBox(QStringLiteral("x"), &ventana), new QComboBox(&ventana),
                                    new QSlider(Qt::Horizontal, &ventana)};
    auto* refugio = new QLineEdit(&ventana);
    for (QWidget* c : controles) {
        columna->addWidget(c);
    }
    columna->addWidget(refugio);
    ventana.show();
    ventana.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    for (QWidget* c : controles) {
        SCOPED_TRACE(c->metaObject()->className());
        refugio->setFocus(Qt::TabFocusReason);
        EXPECT_FALSE(TieneColor(c->grab().toImage(), paleta::kAcento));
        c->setFocus(Qt::TabFocusReason);
        EXPECT_TRUE(TieneColor(c->grab().toImage(), paleta::kAcento));
    }
}

TEST_F(Tema, UnaCasillaMarcadaSeDistingue)
{
    QCheckBox casilla(QStringLiteral("x"));
    const QImage vacia = casilla.grab().toImage();
    casilla.setChecked(true);
    const QImage marcada = casilla.grab().toImage();
    EXPECT_FALSE(TieneColor(vacia, paleta::kAcentoOscuro));
    EXPECT_TRUE(TieneColor(marcada, paleta::kAcentoOscuro));
    casilla.setEnabled(false);
    EXPECT_FALSE(TieneColor(casilla.grab().toImage(), paleta::kAcentoOscuro));
}

TEST_F(Tema, LaBarraDeLaHoraLlenaLoAndado)
{
    QSlider barra(Qt::Horizontal);
    barra.setRange(0, 1440);
    barra.resize(200, 24);
    const auto columna = [&](int x) {
        const QImage imagen = barra.grab().toImage();
        for (int y = 0; y < imagen.height(); ++y) {
            if (imagen.pixelColor(x, y) == paleta::kAcentoOscuro) {
                return true;
            }
        }
        return false;
    };
    barra.setValue(720);
    EXPECT_TRUE(columna(50));
    EXPECT_FALSE(columna(150));
    barra.setValue(1440);
    EXPECT_TRUE(columna(150));
}

TEST(Lienzo, PintaLoQueSeLeDice)
{
    Lienzo lienzo;
    lienzo.resize(40, 30);
    QRectF visto;
    lienzo.AlPintar([&](QPainter& p, const QRectF& r) {
        visto = r;
        EXPECT_FALSE(p.testRenderHint(QPainter::Antialiasing));
        p.fillRect(r, QColor(10, 200, 30));
    });
    const QImage imagen = lienzo.grab().toImage();
    EXPECT_EQ(visto, QRectF(0, 0, 40, 30));
    EXPECT_EQ(imagen.pixelColor(0, 0), QColor(10, 200, 30));
    EXPECT_EQ(imagen.pixelColor(39, 29), QColor(10, 200, 30));
}

TEST(Lienzo, UnPintorQueFallaNoEscapa)
{
    Lienzo lienzo;
    lienzo.resize(10, 10);
    lienzo.AlPintar([](QPainter&, const QRectF&) { throw std::runtime_error("fallo"); });
    EXPECT_NO_THROW(lienzo.grab());
    lienzo.AlPintar({});
    EXPECT_NO_THROW(lienzo.grab());
}

TEST(Lienzo, CuentaLoQueHaceElRaton)
{
    Lienzo lienzo;
    lienzo.resize(100, 80);
    lienzo.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&lienzo));
    QSignalSpy pulsado(&lienzo, &Lienzo::Pulsado);
    QSignalSpy movido(&lienzo, &Lienzo::Movido);
    QSignalSpy soltado(&lienzo, &Lienzo::Soltado);
    QSignalSpy doble(&lienzo, &Lienzo::DobleClic);
    QSignalSpy fuera(&lienzo, &Lienzo::RatonFuera);

    QTest::mouseMove(&lienzo, {5, 6});
    QTest::mousePress(&lienzo, Qt::RightButton, Qt::ShiftModifier, {10, 20});
    QTest::mouseMove(&lienzo, {30, 40});
    QTest::mouseRelease(&lienzo, Qt::RightButton, Qt::NoModifier, {31, 41});
    ASSERT_EQ(pulsado.size(), 1);
    EXPECT_EQ(pulsado[0][0].value<Qt::MouseButton>(), Qt::RightButton);
    EXPECT_EQ(pulsado[0][1].toPointF(), QPointF(10, 20));
    EXPECT_EQ(pulsado[0][2].value<Qt::KeyboardModifiers>(), Qt::ShiftModifier);
    ASSERT_GE(movido.size(), 2);
    EXPECT_EQ(movido.first()[1].toPointF(), QPointF(5, 6)) << "also without a pressed button";
    EXPECT_EQ(movido.last()[1].toPointF(), QPointF(30, 40));
    ASSERT_EQ(soltado.size(), 1);
    EXPECT_EQ(soltado[0][1].toPointF(), QPointF(31, 41));

    QTest::mouseDClick(&lienzo, Qt::LeftButton, {}, {7, 8});
    ASSERT_EQ(doble.size(), 1);
    EXPECT_EQ(doble[0][1].toPointF(), QPointF(7, 8));

    QEvent salida(QEvent::Leave);
    QApplication::sendEvent(&lienzo, &salida);
    EXPECT_EQ(fuera.size(), 1);
}

TEST(Lienzo, DiceSuTamanoNuevo)
{
    Lienzo lienzo;
    lienzo.show();
    QSignalSpy tamano(&lienzo, &Lienzo::CambioTamano);
    lienzo.resize(123, 45);
    QCoreApplication::processEvents();
    ASSERT_FALSE(tamano.isEmpty());
    EXPECT_EQ(tamano.last()[0].toSize(), QSize(123, 45));
}

TEST(frmAcercaDe, DiceNombreYVersionYSeCierraConElTeclado)
{
    qputenv("QUINTALUZ_APPPATH", QUINTALUZ_FUENTES);
    for (const auto& [codigo, titulo] : {std::pair{u"es", u"Acerca de Quintaluz"},
                                         {u"en", u"About Quintaluz"},
                                         {u"fr", u"À propos de Quintaluz"}}) {
        ASSERT_TRUE(modI18n::CargarIdioma(codigo));
        for (const int tecla : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter}) {
            frmAcercaDe acerca;
            EXPECT_TRUE(acerca.isModal());
            EXPECT_EQ(acerca.windowTitle(), QString::fromUtf16(titulo));
            QStringList textos;
            for (const QLabel* l : acerca.findChildren<QLabel*>()) {
                textos << l->text();
                EXPECT_FALSE(l->text().contains(u'['));
            }
            EXPECT_TRUE(textos.contains(QStringLiteral("Quintaluz")));
            EXPECT_TRUE(textos.contains(QStringLiteral("Vers. 1.05")));
            acerca.show();
            QTest::keyClick(&acerca, static_cast<Qt::Key>(tecla));
            EXPECT_FALSE(acerca.isVisible());
        }
    }
    frmAcercaDe acerca;
    ASSERT_TRUE(modI18n::CargarIdioma(u"en"));
    EXPECT_TRUE(QMetaObject::invokeMethod(&acerca, "Retraducir"));
    EXPECT_EQ(acerca.windowTitle(), QStringLiteral("About Quintaluz"));
    acerca.show();
    acerca.findChild<QPushButton*>()->click();
    EXPECT_FALSE(acerca.isVisible());
    qunsetenv("QUINTALUZ_APPPATH");
}

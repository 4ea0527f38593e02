#include "modColor.h"
#include "modConfig.h"
#include "modFormato.h"
#include "modRutas.h"

#include "app/carpetaTemporal.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using modColor::Empaquetar;
using modConfig::Ajustes;
using modConfig::ConfigApp;

namespace {

const QString kIni = QStringLiteral("Quintaluz.ini");

class modConfigPrueba : public ::testing::Test
{
protected:
    void SetUp() override { modConfig::ConfigPorDefecto(); }

    // Defaults, then this file over them.
    const Ajustes& Con(const QByteArray& fichero)
    {
        carpeta.Escribir(kIni, fichero);
        modConfig::ConfigPorDefecto();
        modConfig::LeerConfig();
        return ConfigApp();
    }

    QString Ini(QStringView seccion, QStringView clave)
    {
        return modConfig::LeerIni(seccion, clave, QStringLiteral("?"));
    }

    CarpetaTemporal carpeta;
};

struct CasoColor
{
    const char* frase;
    const char* texto;
    std::uint32_t color;
};

// By hand.
constexpr CasoColor kColores[] = {
    {"six hexadecimal digits are RRGGBB", "FFC800", Empaquetar(255, 200, 0)},
    {"lower case too", "0a0b0c", Empaquetar(10, 11, 12)},
    {"a decimal number is the packed colour", "51455", Empaquetar(255, 200, 0)},
    {"six decimal digits are hexadecimal", "051455", Empaquetar(5, 20, 85)},
    {"a letter beyond F makes it a decimal number", "GFC800", 0},
    {"the same in the middle", "12G456", 12},
    {"a negative number is no colour", "-1", 0},
    {"more than 24 bits are no colour", "16777216", 0},
    {"the last of 24 bits", "16777215", Empaquetar(255, 255, 255)},
    {"blanks and quotes around it", "  \"FFC800\" ", Empaquetar(255, 200, 0)},
    {"nothing is the default", "", Empaquetar(255, 200, 0)},
    {"words are 0", "rojo", 0},
};

} // namespace

TEST_F(modConfigPrueba, SinFicheroValenLosValoresPorDefecto)
{
    modConfig::LeerConfig();
    const Ajustes& c = ConfigApp();
    EXPECT_EQ(c.ColorCurvaSol, Empaquetar(255, 200, 0));
    EXPECT_EQ(c.ColorCurvaLuna, Empaquetar(235, 235, 220));
    EXPECT_TRUE(c.ObsTiene);
    EXPECT_EQ(c.ObsLat, 40.4168);
    EXPECT_EQ(c.ObsLon, -3.7038);
    EXPECT_TRUE(c.TexturaGlobo.isEmpty());
    EXPECT_EQ(c.TransicionMapa, 1);
    EXPECT_FALSE(c.TgtTiene);
    EXPECT_EQ(c.TgtLat, 0.0);
    EXPECT_EQ(c.TgtLon, 0.0);
    EXPECT_TRUE(c.InfoConsejos);
    EXPECT_EQ(c.Idioma, QStringLiteral("es"));
}

TEST_F(modConfigPrueba, LaComaDecimalDelFicheroSeLee)
{
    const Ajustes& c = Con("[Observador]\r\nLat=40,4168\r\nLon=-3.5\r\n");
    EXPECT_EQ(c.ObsLat, 40.4168);
    EXPECT_EQ(c.ObsLon, -3.5);
}

TEST_F(modConfigPrueba, Colores)
{
    for (const CasoColor& k : kColores) {
        SCOPED_TRACE(k.frase);
        EXPECT_EQ(Con(QByteArray("[Colores]\r\nCurvaSol=") + k.texto + "\r\n").ColorCurvaSol, k.color);
    }
}

TEST_F(modConfigPrueba, TodosLosCampos)
{
    const Ajustes& c =
        Con("[Colores]\nCurvaLuna=010203\n[Observador]\nTiene=0\nLat=-33.5\nLon=151,25\n"
            "[Globo]\nTextura=recursos\\mundo_texturas\\a.jpg\n[Mapa]\nTransicion=2\n"
            "[Objetivo]\nTiene=1\nLat=-33,6\nLon=150\n[Interfaz]\nInfoConsejos=0\nIdioma= fr \n");
    EXPECT_EQ(c.ColorCurvaLuna, Empaquetar(1, 2, 3));
    EXPECT_FALSE(c.ObsTiene);
    EXPECT_EQ(c.ObsLat, -33.5);
    EXPECT_EQ(c.ObsLon, 151.25);
    EXPECT_EQ(c.TexturaGlobo, carpeta.Ruta(QStringLiteral("recursos/mundo_texturas/a.jpg")));
    EXPECT_EQ(c.TransicionMapa, 2);
    EXPECT_TRUE(c.TgtTiene);
    EXPECT_EQ(c.TgtLat, -33.6);
    EXPECT_EQ(c.TgtLon, 150.0);
    EXPECT_FALSE(c.InfoConsejos);
    EXPECT_EQ(c.Idioma, QStringLiteral("fr"));
}

TEST_F(modConfigPrueba, SoloUnUnoEsVerdad)
{
    EXPECT_FALSE(Con("[Observador]\nTiene=true\n").ObsTiene);
    EXPECT_FALSE(Con("[Observador]\nTiene=01\n").ObsTiene);
    EXPECT_TRUE(Con("[Observador]\nTiene= 1 \n").ObsTiene);
    EXPECT_TRUE(Con("[Observador]\nTiene=\n").ObsTiene) << "nothing there: the default";
}

TEST_F(modConfigPrueba, LasCoordenadasDelObjetivoPidenSuMarca)
{
    const Ajustes& c = Con("[Objetivo]\nTiene=0\nLat=10\nLon=20\n");
    EXPECT_FALSE(c.TgtTiene);
    EXPECT_EQ(c.TgtLat, 0.0);
    EXPECT_EQ(c.TgtLon, 0.0);
}

TEST_F(modConfigPrueba, LoQueNoEsUnLugarSeIgnora)
{
    const Ajustes& c = Con("[Observador]\nLat=90.01\nLon=-1e9\n[Mapa]\nTransicion=1e30\n");
    EXPECT_EQ(c.ObsLat, 40.4168);
    EXPECT_EQ(c.ObsLon, -3.7038);
    EXPECT_EQ(c.TransicionMapa, 0);
}

TEST_F(modConfigPrueba, GuardarEscribeElRegistroEnOrden)
{
    Ajustes& c = ConfigApp();
    c.ObsLat = 0.5;
    c.ObsLon = -3.0;
    c.ColorCurvaSol = Empaquetar(1, 0xAB, 0);
    modConfig::GuardarConfig();
    const QString medio =
        QStringLiteral("0") + modFormato::SeparadoresSistema().decimal + QStringLiteral("5");
    EXPECT_EQ(carpeta.Leer(kIni).toStdString(),
              ("[Colores]\r\nCurvaSol=01AB00\r\nCurvaLuna=EBEBDC\r\n[Observador]\r\nTiene=1\r\nLat=" +
               medio.toUtf8() +
               "\r\nLon=-3\r\n[Objetivo]\r\nTiene=0\r\n[Mapa]\r\nTransicion=1\r\n"
               "[Interfaz]\r\nInfoConsejos=1\r\nIdioma=es\r\n")
                  .toStdString());
}

TEST_F(modConfigPrueba, IdaYVuelta)
{
    Ajustes& c = ConfigApp();
    c.ColorCurvaLuna = Empaquetar(9, 8, 7);
    c.ObsTiene = false;
    c.ObsLat = -0.1234567890123456;
    c.ObsLon = 179.99999999999997;
    c.TexturaGlobo = carpeta.Ruta(QStringLiteral("recursos/mundo_texturas/mi tierra.jpg"));
    c.TransicionMapa = 0;
    c.TgtTiene = true;
    c.TgtLat = 41.0;
    c.TgtLon = -4.5;
    c.InfoConsejos = false;
    c.Idioma = QStringLiteral("en");
    const Ajustes antes = c;
    modConfig::GuardarConfig();
    EXPECT_EQ(Ini(u"Globo", u"Textura"), QStringLiteral("recursos/mundo_texturas/mi tierra.jpg"));
    modConfig::ConfigPorDefecto();
    modConfig::LeerConfig();
    EXPECT_EQ(c.ColorCurvaSol, antes.ColorCurvaSol);
    EXPECT_EQ(c.ColorCurvaLuna, antes.ColorCurvaLuna);
    EXPECT_EQ(c.ObsTiene, antes.ObsTiene);
    EXPECT_EQ(c.ObsLat, antes.ObsLat);
    EXPECT_EQ(c.ObsLon, antes.ObsLon);
    EXPECT_EQ(c.TexturaGlobo, antes.TexturaGlobo);
    EXPECT_EQ(c.TransicionMapa, antes.TransicionMapa);
    EXPECT_EQ(c.TgtTiene, antes.TgtTiene);
    EXPECT_EQ(c.TgtLat, antes.TgtLat);
    EXPECT_EQ(c.TgtLon, antes.TgtLon);
    EXPECT_EQ(c.InfoConsejos, antes.InfoConsejos);
    EXPECT_EQ(c.Idioma, antes.Idioma);
}

// At the exit the target's flag is cleared; the coordinates of an earlier run stay in the file.
TEST_F(modConfigPrueba, ElObjetivoViejoQuedaEnElFichero)
{
    Con("; mío\r\n[Objetivo]\r\nTiene=1\r\nLat=10,5\r\nLon=20\r\nNota=x\r\n");
    ConfigApp().TgtTiene = false;
    modConfig::GuardarConfig();
    EXPECT_TRUE(
        carpeta.Leer(kIni).startsWith("; mío\r\n[Objetivo]\r\nTiene=0\r\nLat=10,5\r\nLon=20\r\nNota=x\r\n"));
}

TEST_F(modConfigPrueba, UnaTexturaVaciaDejaLaDelFichero)
{
    Con("[Globo]\r\nTextura=a.jpg\r\n");
    ConfigApp().TexturaGlobo.clear();
    modConfig::GuardarConfig();
    EXPECT_EQ(Ini(u"Globo", u"Textura"), QStringLiteral("a.jpg"));
}

TEST_F(modConfigPrueba, GuardarDondeNoSePuedeCalla)
{
    QDir(carpeta.Ruta(QString())).mkdir(kIni);
    modConfig::GuardarConfig();
    EXPECT_TRUE(QFileInfo(carpeta.Ruta(kIni)).isDir());
}

TEST_F(modConfigPrueba, LeerYEscribirUnValor)
{
    EXPECT_EQ(modConfig::LeerIni(u"Mi", u"clave", QStringLiteral("nada")), QStringLiteral("nada"));
    modConfig::EscribirIni(u"Mi", u"clave", u"C:\\fotos\\a,b");
    EXPECT_EQ(modConfig::LeerIni(u"mi", u"CLAVE"), QStringLiteral("C:\\fotos\\a,b"));
    modConfig::EscribirIni(u"Mi", u"otra", u"");
    EXPECT_EQ(modConfig::LeerIni(u"Mi", u"otra", QStringLiteral("nada")), QString()) << "the key is there";
}

TEST_F(modConfigPrueba, RutasRelativasYAbsolutas)
{
    using modConfig::RutaAbsolutaApp;
    using modConfig::RutaRelativaApp;
    const QString base = modRutas::AppPath();
    EXPECT_EQ(RutaRelativaApp(base + QStringLiteral("/recursos/a.jpg")), QStringLiteral("recursos/a.jpg"));
    EXPECT_EQ(RutaRelativaApp(base.toUpper() + QStringLiteral("/a.jpg")), QStringLiteral("a.jpg"));
    EXPECT_EQ(RutaRelativaApp(base + QStringLiteral("2/a.jpg")), base + QStringLiteral("2/a.jpg"));
    EXPECT_EQ(RutaRelativaApp(QStringLiteral("D:\\a.jpg")), QStringLiteral("D:\\a.jpg"));
    EXPECT_EQ(RutaAbsolutaApp(QStringLiteral("recursos\\a.jpg")), base + QStringLiteral("/recursos/a.jpg"));
    EXPECT_EQ(RutaAbsolutaApp(QStringLiteral("\\a.jpg")), base + QStringLiteral("/a.jpg"));
    EXPECT_EQ(RutaAbsolutaApp(QStringLiteral("D:\\a.jpg")), QStringLiteral("D:\\a.jpg"));
    EXPECT_EQ(RutaAbsolutaApp(QStringLiteral("\\\\nas\\a.jpg")), QStringLiteral("\\\\nas\\a.jpg"));
    EXPECT_EQ(RutaAbsolutaApp(QString()), QString());
    EXPECT_EQ(RutaAbsolutaApp(QStringLiteral("a")), QStringLiteral("a"));
}

TEST_F(modConfigPrueba, LaCarpetaDeDatosSigueAlEntorno)
{
    EXPECT_EQ(modRutas::AppPath(), QDir(carpeta.Ruta(QString())).absolutePath());
    EXPECT_EQ(modRutas::RutaDatos(u"\\recursos\\a.dat"),
              modRutas::AppPath() + QStringLiteral("/recursos/a.dat"));
    EXPECT_EQ(modRutas::RutaDatos(u"recursos/a.dat"),
              modRutas::AppPath() + QStringLiteral("/recursos/a.dat"));
    EXPECT_EQ(modRutas::RutaDatos(u""), modRutas::AppPath());
    qputenv("QUINTALUZ_APPPATH", QByteArray());
    EXPECT_EQ(modRutas::AppPath(), QCoreApplication::applicationDirPath());
}

TEST(modColor, IdaYVuelta)
{
    EXPECT_EQ(Empaquetar(0x11, 0x22, 0x33), 0x332211U);
    EXPECT_EQ(modColor::Desempaquetar(0x332211), QColor(0x11, 0x22, 0x33));
    EXPECT_EQ(Empaquetar(QColor(255, 200, 0)), 51455U);
}

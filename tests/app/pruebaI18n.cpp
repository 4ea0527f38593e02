#include "modI18n.h"

#include "app/carpetaTemporal.h"

#include <gtest/gtest.h>

#include <random>

using modI18n::AnalizarTabla;
using modI18n::CargarIdioma;
using modI18n::Tabla;
using modI18n::Traducir;
using modI18n::TraducirCon;

namespace {

struct CasoLinea
{
    const char* frase;
    const char* linea;
    const char* clave; // null: the line gives nothing
    const char* valor;
};

// By hand, from the rules of the table files.
constexpr CasoLinea kLineas[] = {
    {"plain", "a.b=uno", "a.b", "uno"},
    {"the first sign parts key and value", "a = b = c", "a", "b = c"},
    {"leading blanks of the value are lost", "a=   uno dos", "a", "uno dos"},
    {"trailing blanks are lost", "a=uno \t ", "a", "uno"},
    {"blanks before the key", "\t a =uno", "a", "uno"},
    {"an empty value is kept as such", "a=", "a", ""},
    {"a comment", "# a=uno", nullptr, nullptr},
    {"a comment behind blanks", "   #a=uno", nullptr, nullptr},
    {"no sign", "a uno", nullptr, nullptr},
    {"a heading has no sign", "[main]", nullptr, nullptr},
    {"a bracket means nothing special", "[a]=uno", "[a]", "uno"},
    {"a semicolon begins no comment", ";a=uno", ";a", "uno"},
    {"two blanks inside stay", "a=Salida:  %1", "a", "Salida:  %1"},
    {"UTF-8",
     "a=Espa\xC3\xB1"
     "a",
     "a",
     "Espa\xC3\xB1"
     "a"},
    {"Windows-1252 where it is no UTF-8",
     "a=Espa\xF1"
     "a",
     "a",
     "Espa\xC3\xB1"
     "a"},
    {"nothing", "", nullptr, nullptr},
};

// The state of the module stays over tests, so each test loads what it needs; the Spanish fallback is kept
// for the session, and all tests here share one.
constexpr char kEspanol[] = "# es\r\na=hola\r\nsolo=solo aqui\r\nvacio=\r\ndos=%1 y %2, %1\r\nlleno=si\r\n";

class modI18nPrueba : public ::testing::Test
{
protected:
    void SetUp() override
    {
        carpeta.Escribir(QStringLiteral("recursos/lang_es.ini"), kEspanol);
        carpeta.Escribir(QStringLiteral("recursos/lang_en.ini"), "a=hello\nlleno=\n");
    }

    CarpetaTemporal carpeta;
};

} // namespace

TEST(modI18n, Lineas)
{
    for (const CasoLinea& c : kLineas) {
        SCOPED_TRACE(c.frase);
        const Tabla t = AnalizarTabla(QByteArray(c.linea) + "\r\n");
        ASSERT_EQ(t.size(), c.clave != nullptr ? 1 : 0);
        if (c.clave != nullptr) {
            EXPECT_EQ(t.value(QString::fromUtf8(c.clave), QStringLiteral("?")).toStdString(), c.valor);
        }
    }
}

TEST(modI18n, LaUltimaDeDosClavesVale)
{
    EXPECT_EQ(AnalizarTabla("a=uno\nb=x\na=dos\n").value(QStringLiteral("a")), QStringLiteral("dos"));
}

TEST(modI18n, UnaMarcaDeOrdenAlPrincipioNoEsParteDeLaClave)
{
    EXPECT_EQ(AnalizarTabla("\xEF\xBB\xBF"
                            "a=uno")
                  .value(QStringLiteral("a")),
              QStringLiteral("uno"));
}

TEST(modI18n, BytesAlAzarNoRompenNada)
{
    std::mt19937 azar(1987);
    static const QByteArray kFrecuentes("=#[]\r\n \tab%1\xC3\xB1\xFF\0", 17);
    for (int i = 0; i < 20000; ++i) {
        QByteArray bytes;
        const auto n = azar() % 80;
        for (unsigned k = 0; k < n; ++k) {
            bytes.append(azar() % 4 != 0 ? kFrecuentes[static_cast<qsizetype>(azar() % 17)]
                                         : static_cast<char>(azar() & 0xFF));
        }
        const Tabla t = AnalizarTabla(bytes);
        ASSERT_LE(t.size(), bytes.count('='));
        for (auto it = t.cbegin(); it != t.cend(); ++it) {
            ASSERT_FALSE(it.key().contains(u'=')) << bytes.toHex().toStdString();
            ASSERT_FALSE(it.key().startsWith(u'#')) << bytes.toHex().toStdString();
            ASSERT_FALSE(it.value().contains(u'\n')) << bytes.toHex().toStdString();
            ASSERT_EQ(it.value().trimmed(), it.value()) << bytes.toHex().toStdString();
        }
        // What was understood, written out again, is understood alike.
        QByteArray otra;
        for (auto it = t.cbegin(); it != t.cend(); ++it) {
            otra += it.key().toUtf8() + "=" + it.value().toUtf8() + "\n";
        }
        ASSERT_EQ(AnalizarTabla(otra), t) << bytes.toHex().toStdString();
    }
}

TEST_F(modI18nPrueba, ElIdiomaYSuReserva)
{
    ASSERT_TRUE(CargarIdioma(u" EN "));
    EXPECT_EQ(modI18n::IdiomaActualCodigo(), QStringLiteral("en"));
    EXPECT_EQ(Traducir("a"), QStringLiteral("hello"));
    EXPECT_EQ(Traducir("solo"), QStringLiteral("solo aqui")) << "a key only in Spanish";
    EXPECT_EQ(Traducir("lleno"), QStringLiteral("si")) << "an empty value falls through";
    EXPECT_EQ(Traducir("vacio"), QStringLiteral("[vacio]")) << "empty in both";
    EXPECT_EQ(Traducir("no.hay"), QStringLiteral("[no.hay]"));
    EXPECT_EQ(Traducir(""), QStringLiteral("[]"));
}

TEST_F(modI18nPrueba, UnCodigoDesconocidoEsEspanol)
{
    for (const char16_t* codigo : {u"de", u"", u"es-ES", u"english", u"../en"}) {
        EXPECT_TRUE(CargarIdioma(codigo));
        EXPECT_EQ(modI18n::IdiomaActualCodigo(), QStringLiteral("es"));
        EXPECT_EQ(Traducir("a"), QStringLiteral("hola"));
    }
}

TEST_F(modI18nPrueba, SinFicheroHablaLaReserva)
{
    ASSERT_TRUE(CargarIdioma(u"es"));
    EXPECT_FALSE(CargarIdioma(u"fr"));
    EXPECT_EQ(modI18n::IdiomaActualCodigo(), QStringLiteral("fr"));
    EXPECT_EQ(Traducir("a"), QStringLiteral("hola"));
}

TEST_F(modI18nPrueba, ElFicheroPuedeEstarJuntoAlPrograma)
{
    carpeta.Escribir(QStringLiteral("lang_fr.ini"), "a=bonjour\n");
    EXPECT_TRUE(CargarIdioma(u"fr"));
    EXPECT_EQ(Traducir("a"), QStringLiteral("bonjour"));
    EXPECT_TRUE(modI18n::LeerTablaIdioma(QStringLiteral("recursos\\lang_fr.ini")).has_value());
    EXPECT_FALSE(modI18n::LeerTablaIdioma(QStringLiteral("recursos\\lang_xx.ini")).has_value());
    carpeta.Escribir(QStringLiteral("recursos/lang_fr.ini"), "# vacía\n");
    EXPECT_TRUE(CargarIdioma(u"fr")) << "an empty table gives way to the one beside the program";
    EXPECT_EQ(Traducir("a"), QStringLiteral("bonjour"));
}

TEST_F(modI18nPrueba, Parametros)
{
    ASSERT_TRUE(CargarIdioma(u"es"));
    EXPECT_EQ(TraducirCon("dos", QStringLiteral("A"), QStringLiteral("B")), QStringLiteral("A y B, A"));
    EXPECT_EQ(TraducirCon("dos", QStringLiteral("A")), QStringLiteral("A y %2, A"));
    EXPECT_EQ(TraducirCon("a", QStringLiteral("A")), QStringLiteral("hola"));
    EXPECT_EQ(TraducirCon("dos", QStringLiteral("%2"), QStringLiteral("B")), QStringLiteral("B y B, B"))
        << "parameters are filled in ascending order, also inside earlier ones";
    EXPECT_EQ(TraducirCon("no.%1", QStringLiteral("A")), QStringLiteral("[no.A]"));
}

TEST(modI18nSinNada, SinTablasSeVenLasClaves)
{
    // In a process of its own, where no table has been loaded yet.
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    EXPECT_EXIT(
        {
            const CarpetaTemporal vacia;
            const bool hay = CargarIdioma(u"es");
            std::exit(!hay && Traducir("a") == QStringLiteral("[a]") ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

#include "modCodificacion.h"
#include "modIni.h"

#include "app/carpetaTemporal.h"

#include <gtest/gtest.h>

#include <random>

using modIni::Analizar;
using modIni::Componer;
using modIni::Documento;
using modIni::Poner;
using modIni::Valor;

namespace {

struct CasoValor
{
    const char* frase;
    const char* fichero;
    const char* valor; // of section "S", key "Clave"; null: none
};

// By hand, from the rules of the classic profile files.
constexpr CasoValor kValores[] = {
    {"plain", "[S]\r\nClave=uno\r\n", "uno"},
    {"section and key without case", "[s]\nCLAVE=uno\n", "uno"},
    {"the first of two equal keys", "[S]\nClave=uno\nclave=dos\n", "uno"},
    {"the first of two equal sections", "[S]\nClave=uno\n[s]\nClave=dos\n", "uno"},
    {"a key only in the second equal section is not found", "[S]\nOtra=1\n[S]\nClave=dos\n", nullptr},
    {"a key of another section is not found", "[T]\nClave=uno\n[S]\n", nullptr},
    {"a key before any section is not found", "Clave=uno\n[S]\n", nullptr},
    {"all after the first equals sign", "[S]\nClave=a=b=c\n", "a=b=c"},
    {"blanks around key and value", "[S]\n  Clave \t= \t dos palabras  \n", "dos palabras"},
    {"one pair of double quotes", "[S]\nClave=\"  con blancos \"\n", "  con blancos "},
    {"one pair of single quotes", "[S]\nClave='uno'\n", "uno"},
    {"only one pair", "[S]\nClave=\"\"uno\"\"\n", "\"uno\""},
    {"quotes that differ stay", "[S]\nClave=\"uno'\n", "\"uno'"},
    {"a lone quote stays", "[S]\nClave=\"\n", "\""},
    {"an empty pair is empty", "[S]\nClave=\"\"\n", ""},
    {"nothing behind the sign is empty", "[S]\nClave=\n", ""},
    {"a commented line is none", "[S]\n;Clave=uno\n", nullptr},
    {"a comment inside a value belongs to it", "[S]\nClave=uno ; dos\n", "uno ; dos"},
    {"a number sign begins no comment", "[S]\n#Clave=uno\n", nullptr},
    {"a line without a sign is none", "[S]\nClave\n", nullptr},
    {"blanks inside the section's brackets", "[ S ]\nClave=uno\n", "uno"},
    {"what follows the bracket does not count", "[S] ; notas\nClave=uno\n", "uno"},
    {"an open bracket is no section", "[S\nClave=uno\n", nullptr},
    {"a line that ends in CR alone", "[S]\rClave=uno\r", "uno"},
    {"the last line needs no end", "[S]\nClave=uno", "uno"},
    {"a byte order mark before the first section", "\xEF\xBB\xBF[S]\nClave=uno\n", "uno"},
    {"UTF-8",
     "[S]\nClave=Espa\xC3\xB1"
     "a\n",
     "Espa\xC3\xB1"
     "a"},
    {"Windows-1252 where it is no UTF-8",
     "[S]\nClave=Espa\xF1"
     "a \x80\n",
     "Espa\xC3\xB1"
     "a \xE2\x82\xAC"},
    {"nothing at all", "", nullptr},
};

std::optional<QString> Leido(const Documento& d, const char* clave = "Clave")
{
    return Valor(d, u"S", QString::fromLatin1(clave));
}

QByteArray Cambiado(const QByteArray& antes, QStringView seccion, QStringView clave, QStringView valor)
{
    Documento d = Analizar(antes);
    EXPECT_TRUE(Poner(d, seccion, clave, valor));
    return Componer(d);
}

QString TextoAlAzar(std::mt19937& azar)
{
    static const QString kAlfabeto = QStringLiteral("aZ9 =[];\"'#\t\r\n\\:,.%") + QChar(0xF1) +
                                     QChar(0x20AC) + QChar(0x0151) + QChar(0x85);
    QString t;
    const int n = std::uniform_int_distribution<int>(0, 24)(azar);
    for (int i = 0; i < n; ++i) {
        t += kAlfabeto[std::uniform_int_distribution<qsizetype>(0, kAlfabeto.size() - 1)(azar)];
    }
    return t;
}

} // namespace

TEST(modIni, Valores)
{
    for (const CasoValor& c : kValores) {
        SCOPED_TRACE(c.frase);
        const auto valor = Leido(Analizar(c.fichero));
        ASSERT_EQ(valor.has_value(), c.valor != nullptr);
        if (valor) {
            EXPECT_EQ(valor->toStdString(), c.valor);
        }
    }
}

TEST(modIni, UnValorTiene511CaracteresComoMucho)
{
    const QByteArray largo(2000, 'x');
    EXPECT_EQ(Leido(Analizar("[S]\nClave=" + largo))->size(), 511);
    EXPECT_EQ(Leido(Analizar("[S]\nClave=\"" + largo + "\""))->size(), 511);
    // No half of a surrogate pair is left at the end.
    const QString telescopio = QString(510, u'x') + QString::fromUcs4(U"\U0001F52D");
    EXPECT_EQ(Leido(Analizar(("[S]\nClave=" + telescopio.toUtf8())))->size(), 510);
}

TEST(modIni, LasLineasAjenasQuedan)
{
    const QByteArray antes = "; mis notas\r\n\r\nsuelta\r\n[Otra]\r\nx = 1\r\n\r\n[S] ; aqui\r\n"
                             "  CLAVE =  viejo\r\n# nota\r\nClave=segunda\r\n\r\n[Fin]\r\nz=9\r\n";
    QByteArray esperado = antes;
    esperado.replace("  CLAVE =  viejo", "  CLAVE =nuevo");
    EXPECT_EQ(Cambiado(antes, u"s", u"clave", u"nuevo").toStdString(), esperado.toStdString());
}

TEST(modIni, UnaClaveNuevaVaAlFinalDeSuSeccion)
{
    EXPECT_EQ(Cambiado("[S]\na=1\n\n\n[T]\nb=2\n", u"S", u"c", u"3").toStdString(),
              "[S]\r\na=1\r\nc=3\r\n\r\n\r\n[T]\r\nb=2\r\n");
    EXPECT_EQ(Cambiado("[S]\n[T]\n", u"S", u"c", u"3").toStdString(), "[S]\r\nc=3\r\n[T]\r\n");
}

TEST(modIni, UnaSeccionNuevaVaAlFinal)
{
    EXPECT_EQ(Cambiado("[S]\na=1", u"T", u"b", u"2").toStdString(), "[S]\r\na=1\r\n[T]\r\nb=2\r\n");
    EXPECT_EQ(Cambiado("", u"T", u"b", u"2").toStdString(), "[T]\r\nb=2\r\n");
}

TEST(modIni, NombresImposiblesSeRechazan)
{
    Documento d = Analizar("[S]\r\na=1\r\n");
    EXPECT_FALSE(Poner(d, u"", u"a", u"2"));
    EXPECT_FALSE(Poner(d, u"S]", u"a", u"2"));
    EXPECT_FALSE(Poner(d, u"S\nT", u"a", u"2"));
    EXPECT_FALSE(Poner(d, u"S", u"", u"2"));
    EXPECT_FALSE(Poner(d, u"S", u"a=b", u"2"));
    EXPECT_FALSE(Poner(d, u"S", u"[a", u"2"));
    EXPECT_FALSE(Poner(d, u"S", u";a", u"2"));
    EXPECT_FALSE(Poner(d, u"S", u" a", u"2"));
    EXPECT_FALSE(Poner(d, u"S", u"a\r", u"2"));
    EXPECT_EQ(Componer(d), "[S]\r\na=1\r\n");
}

TEST(modIni, LoQueLeerQuitariaSeEntrecomilla)
{
    for (const char16_t* valor :
         {u" con blancos ", u"\"entre comillas\"", u"'a'", u"\t", u"", u"\"", u"a=b"}) {
        Documento d;
        ASSERT_TRUE(Poner(d, u"S", u"Clave", valor));
        EXPECT_EQ(*Leido(Analizar(Componer(d))), QString::fromUtf16(valor));
    }
    Documento d;
    ASSERT_TRUE(Poner(d, u"S", u"Clave", u"uno\r\n[T]\nx=1"));
    EXPECT_EQ(*Leido(Analizar(Componer(d))), QStringLiteral("uno  [T] x=1")) << "line ends become blanks";
}

TEST(modIni, LaCodificacionQueda)
{
    EXPECT_EQ(Cambiado("; a\xF1o\r\n[S]\r\n", u"S", u"a", u"\u00E9"), "; a\xF1o\r\n[S]\r\na=\xE9\r\n");
    EXPECT_EQ(Cambiado("; a\xC3\xB1o\r\n[S]\r\n", u"S", u"a", u"\u00E9"),
              "; a\xC3\xB1o\r\n[S]\r\na=\xC3\xA9\r\n");
    EXPECT_EQ(Cambiado("; a\xF1o\r\n[S]\r\n", u"S", u"a", u"\u0151"), "; a\xC3\xB1o\r\n[S]\r\na=\xC5\x91\r\n")
        << "a character outside the old table turns the file into UTF-8";
    EXPECT_EQ(Cambiado("\xEF\xBB\xBF[S]\r\n", u"S", u"a", u"1"), "\xEF\xBB\xBF[S]\r\na=1\r\n");
}

TEST(modIni, TodosLosBytesVanYVuelven)
{
    for (int b = 0; b < 256; ++b) {
        if (b == '\r' || b == '\n') {
            continue;
        }
        QByteArray bytes("; \xFFx");
        bytes.append(static_cast<char>(b)).append("\r\n");
        EXPECT_EQ(Componer(Analizar(bytes)), bytes) << b;
    }
}

TEST(modIni, BytesAlAzarNoRompenNada)
{
    std::mt19937 azar(20260812);
    static const QByteArray kFrecuentes("[]=;\"'\r\n\t aS\xC3\xB1\xEF\xBB\xBF\xFF\x80\0", 21);
    for (int i = 0; i < 20000; ++i) {
        QByteArray bytes;
        const int n = std::uniform_int_distribution<int>(0, 60)(azar);
        for (int k = 0; k < n; ++k) {
            const bool frecuente = azar() % 4 != 0;
            bytes.append(frecuente ? kFrecuentes[static_cast<qsizetype>(azar() % 21)]
                                   : static_cast<char>(azar() & 0xFF));
        }
        Documento d = Analizar(bytes);
        // Once written, writing again changes nothing, and the meaning is the same.
        const QByteArray una = Componer(d);
        ASSERT_EQ(Componer(Analizar(una)), una) << bytes.toHex().toStdString();
        ASSERT_EQ(Valor(Analizar(una), u"S", u"a"), Valor(d, u"S", u"a")) << bytes.toHex().toStdString();
        // A value that is set is read back, and every line that was there is still there.
        const QString valor = TextoAlAzar(azar);
        ASSERT_TRUE(Poner(d, u"S", u"Clave", valor));
        const Documento vuelta = Analizar(Componer(d));
        QString esperado = valor;
        esperado.replace(u'\r', u' ').replace(u'\n', u' ');
        ASSERT_EQ(*Leido(vuelta), esperado) << bytes.toHex().toStdString();
        ASSERT_GE(vuelta.lineas.size(), Analizar(bytes).lineas.size());
        ASSERT_LE(vuelta.lineas.size(), Analizar(bytes).lineas.size() + 2);
    }
}

TEST(modCodificacion, LineasConCualquierFin)
{
    const QString texto = QStringLiteral("uno\r\ndos\ntres\rcuatro\n\ncinco");
    const auto lineas = modCodificacion::Lineas(texto);
    const std::vector<QStringView> esperado = {u"uno", u"dos", u"tres", u"cuatro", u"", u"cinco"};
    EXPECT_EQ(lineas, esperado);
    EXPECT_TRUE(modCodificacion::Lineas(QString()).empty());
}

TEST(modCodificacion, Utf8SeReconoce)
{
    EXPECT_TRUE(modCodificacion::EsUtf8("a\xC3\xB1"
                                        "a"));
    EXPECT_TRUE(modCodificacion::EsUtf8(""));
    EXPECT_FALSE(modCodificacion::EsUtf8("\xF1"));
    EXPECT_FALSE(modCodificacion::EsUtf8("\xC0\xAF")) << "overlong";
    EXPECT_FALSE(modCodificacion::EsUtf8("\xED\xA0\x80")) << "surrogate";
    EXPECT_FALSE(modCodificacion::EsUtf8("\xF4\x90\x80\x80")) << "beyond U+10FFFF";
    EXPECT_FALSE(modCodificacion::EsUtf8("\xC3")) << "cut short";
}

TEST(modIni, GuardarYLeer)
{
    const CarpetaTemporal carpeta;
    const QString ruta = carpeta.Ruta(QStringLiteral("prueba.ini"));
    Documento d;
    EXPECT_FALSE(modIni::Leer(ruta, d)) << "no such file";
    ASSERT_TRUE(Poner(d, u"S", u"Clave", u"a\u00F1o"));
    ASSERT_TRUE(modIni::Guardar(ruta, d));
    EXPECT_EQ(carpeta.Leer(QStringLiteral("prueba.ini")), "[S]\r\nClave=a\xC3\xB1o\r\n");
    Documento leido;
    ASSERT_TRUE(modIni::Leer(ruta, leido));
    EXPECT_EQ(*Leido(leido), QStringLiteral("a\u00F1o"));
    EXPECT_EQ(QDir(carpeta.Ruta(QString())).entryList(QDir::Files).size(), 1) << "nothing is left aside";
}

TEST(modIni, UnFicheroIgualNoSeToca)
{
    const CarpetaTemporal carpeta;
    carpeta.Escribir(QStringLiteral("p.ini"), "[S]\r\nClave=1\r\n");
    const QString ruta = carpeta.Ruta(QStringLiteral("p.ini"));
    QFile f(ruta);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    const QDateTime viejo = QDateTime::fromSecsSinceEpoch(1000000000);
    ASSERT_TRUE(f.setFileTime(viejo, QFileDevice::FileModificationTime));
    f.close();
    Documento d;
    ASSERT_TRUE(modIni::Leer(ruta, d));
    ASSERT_TRUE(modIni::Guardar(ruta, d));
    EXPECT_EQ(QFileInfo(ruta).lastModified(), viejo);
}

// A name so long that nothing fits beside it stands for a directory that takes no new files, which a
// privileged user's test could not make.
TEST(modIni, DondeSoloElFicheroAdmiteEscrituraSeEscribeEnEl)
{
    const CarpetaTemporal carpeta;
    const QString nombre = QString(250, u'n') + QStringLiteral(".ini");
    carpeta.Escribir(nombre, "[S]\r\nClave=" + QByteArray(300, 'v') + "\r\n");
    Documento d;
    ASSERT_TRUE(modIni::Leer(carpeta.Ruta(nombre), d));
    ASSERT_TRUE(Poner(d, u"S", u"Clave", u"corto"));
    ASSERT_TRUE(modIni::Guardar(carpeta.Ruta(nombre), d));
    EXPECT_EQ(carpeta.Leer(nombre), "[S]\r\nClave=corto\r\n") << "no tail of the longer old text";
}

TEST(modIni, DondeNoSePuedeNoPasaNada)
{
    const CarpetaTemporal carpeta;
    Documento d;
    ASSERT_TRUE(Poner(d, u"S", u"Clave", u"1"));
    EXPECT_FALSE(modIni::Guardar(carpeta.Ruta(QStringLiteral("no/existe/p.ini")), d));
    QDir(carpeta.Ruta(QString())).mkdir(QStringLiteral("dir.ini"));
    EXPECT_FALSE(modIni::Guardar(carpeta.Ruta(QStringLiteral("dir.ini")), d)) << "a directory in its place";
    EXPECT_FALSE(modIni::Leer(carpeta.Ruta(QStringLiteral("dir.ini")), d));
    EXPECT_TRUE(d.lineas.empty());
    carpeta.Escribir(QStringLiteral("fichero"), "x");
    EXPECT_FALSE(modIni::Guardar(carpeta.Ruta(QStringLiteral("fichero/p.ini")), d)) << "a file as the folder";
    EXPECT_EQ(carpeta.Leer(QStringLiteral("fichero")), "x");
    // A full disk: every write to this device fails with "no space left".
    if (QFileInfo::exists(QStringLiteral("/dev/full"))) {
        QFile::link(QStringLiteral("/dev/full"), carpeta.Ruta(QStringLiteral("lleno.ini")));
        EXPECT_FALSE(modIni::Guardar(carpeta.Ruta(QStringLiteral("lleno.ini")), d));
    }
}

TEST(modIni, UnFicheroEnormeNoSeLee)
{
    const CarpetaTemporal carpeta;
    carpeta.Escribir(QStringLiteral("p.ini"), "[S]\r\nClave=1\r\n" + QByteArray(5 << 20, ';'));
    Documento d;
    EXPECT_FALSE(modIni::Leer(carpeta.Ruta(QStringLiteral("p.ini")), d));
    ASSERT_TRUE(Poner(d, u"S", u"Clave", u"2"));
    EXPECT_FALSE(modIni::Guardar(carpeta.Ruta(QStringLiteral("p.ini")), d));
    EXPECT_TRUE(carpeta.Leer(QStringLiteral("p.ini")).startsWith("[S]\r\nClave=1\r\n"));
}

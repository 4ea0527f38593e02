// The three language files of the program, against each other and against the code.
#include "modI18n.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace {

const char* const kIdiomas[] = {"es", "en", "fr"};

QByteArray Fichero(const QString& relativa)
{
    QFile f(QStringLiteral(QUINTALUZ_FUENTES "/") + relativa);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QByteArray FicheroIdioma(const char* codigo)
{
    return Fichero(QStringLiteral("recursos/lang_%1.ini").arg(QLatin1String(codigo)));
}

modI18n::Tabla TablaDe(const char* codigo)
{
    return modI18n::AnalizarTabla(FicheroIdioma(codigo));
}

QStringList ClavesOrdenadas(const modI18n::Tabla& t)
{
    QStringList claves = t.keys();
    claves.sort();
    return claves;
}

// Placeholders in the text, with repetition, sorted.
QStringList Huecos(const QString& texto)
{
    static const QRegularExpression hueco(QStringLiteral("%[0-9]+"));
    QStringList r;
    for (auto it = hueco.globalMatch(texto); it.hasNext();) {
        r << it.next().captured();
    }
    r.sort();
    return r;
}

// Every string literal of the form "family.name" in the sources, with the file it stands in.
std::map<QString, QString> ClavesDelCodigo()
{
    static const char* const kCarpetas[] = {"app",    "gl",        "tiles",       "terrain",
                                            "view3d", "sky_tools", "photo_tools", "planner"};
    static const QRegularExpression literal(
        QStringLiteral("\"((?:app|menu|main|msg|descarga|config|globo|cache|astroobjeto|solarigrafia|calccdv|"
                       "buscarsollunaazimut|calcastrosujeto|calcsombra|cdv|mejorvl|eventos|fasesluna|"
                       "fotoesfera|vista3d|acercade|progresolp|demprogreso)(?:\\.[a-z0-9_]+)+)\""));
    std::map<QString, QString> claves;
    for (const char* carpeta : kCarpetas) {
        QDirIterator it(QStringLiteral(QUINTALUZ_FUENTES "/") + QLatin1String(carpeta),
                        {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                        QDirIterator::Subdirectories);
        while (it.hasNext()) {
            QFile f(it.next());
            if (!f.open(QIODevice::ReadOnly)) {
                continue;
            }
            const QString texto = QString::fromUtf8(f.readAll());
            for (auto m = literal.globalMatch(texto); m.hasNext();) {
                const QString clave = m.next().captured(1);
                if (!clave.endsWith(QLatin1String(".h")) && !clave.endsWith(QLatin1String(".cpp"))) {
                    claves.emplace(clave, f.fileName());
                }
            }
        }
    }
    return claves;
}

// The letter behind "&", upper case; null when there is none ("&&" is a plain "&").
QChar Mnemonica(const QString& texto)
{
    for (qsizetype i = 0; i + 1 < texto.size(); ++i) {
        if (texto[i] == u'&') {
            if (texto[i + 1] != u'&') {
                return texto[i + 1].toUpper();
            }
            ++i;
        }
    }
    return {};
}

struct Grupo
{
    const char* frase;
    QStringList claves;
    QStringList fijos; // entries with a fixed text
};

// Entries that a person sees at the same time, so their letters must differ.
QList<Grupo> Grupos(const modI18n::Tabla& t)
{
    QStringList herramientas{QStringLiteral("menu.foto_esfera"), QStringLiteral("menu.salir")};
    QStringList idiomas;
    QStringList ventana{QStringLiteral("menu.herramientas"), QStringLiteral("menu.config"),
                        QStringLiteral("menu.idioma"), QStringLiteral("menu.ayuda")};
    for (const QString& clave : t.keys()) {
        if (clave.startsWith(QLatin1String("menu.herr."))) {
            herramientas << clave;
        } else if (clave.startsWith(QLatin1String("menu.idioma."))) {
            idiomas << clave;
        } else if (clave.startsWith(QLatin1String("main.lbl.")) ||
                   clave.startsWith(QLatin1String("main.chk.")) ||
                   (clave.startsWith(QLatin1String("main.btn.")) &&
                    clave != QLatin1String("main.btn.parar") &&
                    clave != QLatin1String("main.btn.mapa"))) { // those share a button with another
            ventana << clave;
        }
    }
    QStringList parada = ventana;
    parada.removeOne(QStringLiteral("main.btn.play"));
    parada << QStringLiteral("main.btn.parar");
    QList<Grupo> grupos{
        {"the tools menu", herramientas, {}},
        {"the settings menu",
         {QStringLiteral("menu.cache")},
         {QStringLiteral("&General..."), QStringLiteral("Campo de &visión")}},
        {"the language menu", idiomas, {}},
        {"the help menu", {QStringLiteral("menu.ayuda.usar"), QStringLiteral("menu.acerca")}, {}},
        {"the main window, stopped", ventana, {}},
        {"the main window, playing", parada, {}},
        {"a question", {QStringLiteral("msg.si"), QStringLiteral("msg.no")}, {}},
    };
    // Every other family is one window.
    std::map<QString, QStringList> ventanas;
    for (const QString& clave : t.keys()) {
        const QString familia = clave.section(u'.', 0, 0);
        static const QSet<QString> kDeLaPrincipal{QStringLiteral("app"), QStringLiteral("menu"),
                                                  QStringLiteral("main"), QStringLiteral("msg"),
                                                  QStringLiteral("descarga")};
        if (!kDeLaPrincipal.contains(familia)) {
            ventanas[familia] << clave;
        }
    }
    for (const auto& [familia, claves] : ventanas) {
        grupos.push_back({"a tool window", claves, {}});
    }
    return grupos;
}

} // namespace

TEST(idiomas, SonUtf8YSinMarca)
{
    for (const char* codigo : kIdiomas) {
        SCOPED_TRACE(codigo);
        const QByteArray bytes = FicheroIdioma(codigo);
        EXPECT_GT(bytes.size(), 5000);
        EXPECT_TRUE(bytes.isValidUtf8());
        EXPECT_FALSE(bytes.startsWith("\xEF\xBB\xBF"));
    }
}

TEST(idiomas, LasMismasClaves)
{
    const QStringList es = ClavesOrdenadas(TablaDe("es"));
    for (const char* codigo : {"en", "fr"}) {
        SCOPED_TRACE(codigo);
        const QStringList otras = ClavesOrdenadas(TablaDe(codigo));
        for (const QString& clave : es) {
            EXPECT_TRUE(otras.contains(clave)) << "missing: " << clave.toStdString();
        }
        for (const QString& clave : otras) {
            EXPECT_TRUE(es.contains(clave)) << "only here: " << clave.toStdString();
        }
    }
}

TEST(idiomas, LosMismosHuecos)
{
    const modI18n::Tabla es = TablaDe("es");
    for (const char* codigo : {"en", "fr"}) {
        SCOPED_TRACE(codigo);
        const modI18n::Tabla otra = TablaDe(codigo);
        for (auto it = es.cbegin(); it != es.cend(); ++it) {
            EXPECT_EQ(Huecos(otra.value(it.key())), Huecos(*it)) << it.key().toStdString();
        }
    }
}

// Ten or more would be filled wrongly, since "%1" goes first.
TEST(idiomas, NingunTextoPasaDeNueveHuecos)
{
    for (const char* codigo : kIdiomas) {
        for (const QString& texto : TablaDe(codigo)) {
            for (const QString& hueco : Huecos(texto)) {
                EXPECT_EQ(hueco.size(), 2) << texto.toStdString();
            }
        }
    }
}

TEST(idiomas, CadaLineaEsUnTextoUnaSolaVez)
{
    for (const char* codigo : kIdiomas) {
        SCOPED_TRACE(codigo);
        QSet<QByteArray> vistas;
        for (const QByteArray& cruda : FicheroIdioma(codigo).split('\n')) {
            const QByteArray linea = cruda.trimmed();
            if (linea.isEmpty() || linea.startsWith('#')) {
                continue;
            }
            const qsizetype igual = linea.indexOf('=');
            ASSERT_GT(igual, 0) << "no text: " << linea.toStdString();
            const QByteArray clave = linea.left(igual).trimmed();
            EXPECT_FALSE(linea.mid(igual + 1).trimmed().isEmpty()) << "empty: " << clave.toStdString();
            EXPECT_FALSE(vistas.contains(clave)) << "twice: " << clave.toStdString();
            EXPECT_FALSE(linea.contains("[")) << "looks like a missing text: " << linea.toStdString();
            vistas.insert(clave);
        }
    }
}

TEST(idiomas, CadaClaveDelCodigoExiste)
{
    const std::map<QString, QString> usadas = ClavesDelCodigo();
    ASSERT_GT(usadas.size(), 80U) << "the scan finds the sources";
    for (const char* codigo : kIdiomas) {
        const modI18n::Tabla t = TablaDe(codigo);
        for (const auto& [clave, fichero] : usadas) {
            EXPECT_TRUE(t.contains(clave))
                << codigo << " lacks " << clave.toStdString() << " of " << fichero.toStdString();
        }
    }
}

TEST(idiomas, LasMnemonicasNoChocan)
{
    for (const char* codigo : kIdiomas) {
        const modI18n::Tabla t = TablaDe(codigo);
        for (const Grupo& g : Grupos(t)) {
            SCOPED_TRACE(std::string(codigo) + ", " + g.frase);
            std::map<QChar, QString> letras;
            QStringList textos = g.fijos;
            for (const QString& clave : g.claves) {
                ASSERT_TRUE(t.contains(clave)) << clave.toStdString();
                textos << t.value(clave);
            }
            for (const QString& texto : textos) {
                const QChar letra = Mnemonica(texto);
                if (letra.isNull()) {
                    continue;
                }
                EXPECT_TRUE(letra.isLetterOrNumber()) << texto.toStdString();
                EXPECT_TRUE(letras.emplace(letra, texto).second)
                    << texto.toStdString() << " clashes with " << letras[letra].toStdString();
            }
        }
    }
}

TEST(idiomas, CadaEntradaDeMenuTieneSuLetra)
{
    for (const char* codigo : kIdiomas) {
        const modI18n::Tabla t = TablaDe(codigo);
        for (auto it = t.cbegin(); it != t.cend(); ++it) {
            if (it.key().startsWith(QLatin1String("menu."))) {
                EXPECT_FALSE(Mnemonica(*it).isNull()) << codigo << ": " << it.key().toStdString();
            }
        }
    }
}

// The panels part caption and value at two blanks.
TEST(idiomas, LasLineasDeLosPanelesSeParten)
{
    for (const char* codigo : kIdiomas) {
        const modI18n::Tabla t = TablaDe(codigo);
        for (auto it = t.cbegin(); it != t.cend(); ++it) {
            const QString& clave = it.key();
            if (clave.startsWith(QLatin1String("main.dyn.sun.")) ||
                (clave.startsWith(QLatin1String("main.dyn.moon.")) &&
                 !clave.endsWith(QLatin1String("_val"))) ||
                clave.startsWith(QLatin1String("main.dyn.crep_")) ||
                clave.startsWith(QLatin1String("main.dyn.hora_"))) {
                const QStringList piezas = it->split(QStringLiteral("  "));
                ASSERT_GE(piezas.size(), 2) << clave.toStdString();
                EXPECT_TRUE(piezas[0].endsWith(u':')) << clave.toStdString();
                const bool frances = QLatin1String(codigo) == QLatin1String("fr");
                EXPECT_EQ(piezas[0].endsWith(QStringLiteral("\u00A0:")), frances) << clave.toStdString();
            }
        }
    }
}

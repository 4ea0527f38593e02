// The HTML manuals: whole by themselves, well formed, and speaking of the window by its own words.
#include "modI18n.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace {

const char* const kIdiomas[] = {"es", "en", "fr"};

QByteArray Fichero(const QString& relativa)
{
    QFile f(QStringLiteral(QUINTALUZ_FUENTES "/") + relativa);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QString Manual(const char* codigo)
{
    return QString::fromUtf8(
        Fichero(QStringLiteral("ayuda/%1/quintaluz_manual_%1.html").arg(QLatin1String(codigo))));
}

// Caption as it stands on the screen: without mnemonic mark, dots, or what follows a colon.
QString Llano(QString texto)
{
    texto.remove(u'&').replace(QChar::Nbsp, u' ');
    texto = texto.section(QStringLiteral(":  "), 0, 0);
    while (texto.endsWith(u'.') || texto.endsWith(u':') || texto.endsWith(u' ')) {
        texto.chop(1);
    }
    return texto;
}

struct Recuento
{
    QString error;
    int secciones = 0;
    QStringList enlaces;
    QSet<QString> anclas;
    QStringList rotulos; // texts of class "ui": words of the window
};

Recuento Leer(const QString& html)
{
    Recuento r;
    QXmlStreamReader x(html);
    while (!x.atEnd()) {
        if (x.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        const auto a = x.attributes();
        r.secciones += x.name() == u"section" ? 1 : 0;
        r.anclas.insert(a.value(QLatin1String("id")).toString());
        for (const char* atributo : {"href", "src", "data", "action"}) {
            if (a.hasAttribute(QLatin1String(atributo))) {
                r.enlaces << a.value(QLatin1String(atributo)).toString();
            }
        }
        if (x.name() == u"script" || x.name() == u"link" || x.name() == u"iframe") {
            r.error += QStringLiteral("forbidden element ") + x.name().toString();
        }
        if (a.value(QLatin1String("class")) == u"ui") {
            r.rotulos << x.readElementText(QXmlStreamReader::IncludeChildElements);
        }
    }
    if (x.hasError()) {
        r.error += x.errorString();
    }
    return r;
}

} // namespace

TEST(manuales, EstanBienFormadosYBastanASiMismos)
{
    for (const char* codigo : kIdiomas) {
        SCOPED_TRACE(codigo);
        const QString html = Manual(codigo);
        ASSERT_GT(html.size(), 10000);
        EXPECT_TRUE(html.contains(QStringLiteral("<html lang=\"%1\"").arg(QLatin1String(codigo))));
        const Recuento r = Leer(html);
        EXPECT_TRUE(r.error.isEmpty()) << r.error.toStdString();
        EXPECT_FALSE(html.contains(QLatin1String("@import"))) << "nothing is fetched";
        EXPECT_FALSE(html.contains(QLatin1String("url("))) << "nothing is fetched";
        for (const QString& enlace : r.enlaces) {
            EXPECT_TRUE(enlace.startsWith(u'#')) << "leads outside: " << enlace.toStdString();
            EXPECT_TRUE(r.anclas.contains(enlace.mid(1))) << "leads nowhere: " << enlace.toStdString();
        }
    }
}

TEST(manuales, LosTresTienenLosMismosCapitulos)
{
    const int secciones = Leer(Manual("es")).secciones;
    EXPECT_GT(secciones, 8);
    EXPECT_EQ(Leer(Manual("en")).secciones, secciones);
    EXPECT_EQ(Leer(Manual("fr")).secciones, secciones);
}

TEST(manuales, LasPalabrasDeLaVentanaSonLasDeLaVentana)
{
    for (const char* codigo : kIdiomas) {
        SCOPED_TRACE(codigo);
        QSet<QString> palabras;
        for (const QString& texto : modI18n::AnalizarTabla(
                 Fichero(QStringLiteral("recursos/lang_%1.ini").arg(QLatin1String(codigo))))) {
            palabras.insert(Llano(texto));
        }
        const Recuento r = Leer(Manual(codigo));
        EXPECT_GE(r.rotulos.size(), 5);
        for (const QString& rotulo : r.rotulos) {
            EXPECT_TRUE(palabras.contains(Llano(rotulo))) << rotulo.toStdString();
        }
    }
}

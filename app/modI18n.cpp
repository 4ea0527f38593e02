#include "modI18n.h"

#include "modCodificacion.h"
#include "modRutas.h"

#include <QFile>

namespace modI18n {

namespace {

struct Estado
{
    QString idioma;
    std::optional<Tabla> actual;
    std::optional<Tabla> espanol;
};

Estado& estado()
{
    static Estado e;
    return e;
}

// A language table has some hundred lines; a file beyond this is none.
constexpr qint64 kBytesMaximos = 4 << 20;

std::optional<Tabla> TablaDeCodigo(const QString& codigo)
{
    const QString nombre = QStringLiteral("lang_") + codigo + QStringLiteral(".ini");
    std::optional<Tabla> tabla = LeerTablaIdioma(QStringLiteral("recursos/") + nombre);
    if (!tabla || tabla->isEmpty()) {
        tabla = LeerTablaIdioma(nombre);
    }
    return tabla;
}

const QString* Buscar(const std::optional<Tabla>& tabla, const QString& clave)
{
    if (!tabla) {
        return nullptr;
    }
    const auto it = tabla->constFind(clave);
    return it != tabla->constEnd() && !it->isEmpty() ? &*it : nullptr;
}

} // namespace

bool CargarIdioma(QStringView codigo)
{
    QString c = codigo.trimmed().toString().toLower();
    if (c != u"es" && c != u"en" && c != u"fr") {
        c = QStringLiteral("es");
    }
    Estado& e = estado();
    e.idioma = c;
    e.actual = TablaDeCodigo(c);
    if (!e.espanol || e.espanol->isEmpty()) {
        e.espanol = TablaDeCodigo(QStringLiteral("es"));
    }
    return e.actual && !e.actual->isEmpty();
}

QString IdiomaActualCodigo()
{
    const QString& c = estado().idioma;
    return c.isEmpty() ? QStringLiteral("es") : c;
}

QString Traducir(QAnyStringView clave)
{
    const QString c = clave.toString();
    const Estado& e = estado();
    if (const QString* t = Buscar(e.actual, c)) {
        return *t;
    }
    if (const QString* t = Buscar(e.espanol, c)) {
        return *t;
    }
    return QLatin1Char('[') + c + QLatin1Char(']');
}

QString TraducirCon(QAnyStringView clave, const QStringList& parametros)
{
    QString texto = Traducir(clave);
    int i = 0;
    for (const QString& p : parametros) {
        texto.replace(QLatin1Char('%') + QString::number(++i), p);
    }
    return texto;
}

Tabla AnalizarTabla(QByteArrayView bytes)
{
    Tabla tabla;
    const QString texto = modCodificacion::Decodificar(bytes);
    for (const QStringView linea : modCodificacion::Lineas(texto)) {
        const QStringView l = linea.trimmed();
        const qsizetype igual = l.indexOf(u'=');
        if (igual < 0 || l.startsWith(u'#')) {
            continue;
        }
        tabla.insert(l.left(igual).trimmed().toString(), l.mid(igual + 1).trimmed().toString());
    }
    return tabla;
}

std::optional<Tabla> LeerTablaIdioma(const QString& relativa)
{
    const QString ruta = QString(relativa).replace(QLatin1Char('\\'), QLatin1Char('/'));
    const qsizetype barra = ruta.lastIndexOf(QLatin1Char('/'));
    QFile fichero(modRutas::RutaDatos(ruta));
    if (!fichero.open(QIODevice::ReadOnly) && barra >= 0) {
        fichero.setFileName(modRutas::RutaDatos(QStringView(ruta).mid(barra + 1)));
        fichero.open(QIODevice::ReadOnly);
    }
    if (!fichero.isOpen()) {
        return std::nullopt;
    }
    return AnalizarTabla(fichero.read(kBytesMaximos));
}

} // namespace modI18n

#include "modIni.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace modIni {

namespace {

constexpr qint64 kBytesMaximos = 4 << 20;
constexpr QByteArrayView kMarca("\xEF\xBB\xBF");

bool EsBlanco(QChar c)
{
    return c.unicode() <= u' ';
}

bool EsComilla(QChar c)
{
    return c == u'"' || c == u'\'';
}

bool EsFinDeLinea(QChar c)
{
    return c == u'\n' || c == u'\r';
}

QStringView Recortar(QStringView t)
{
    while (!t.isEmpty() && EsBlanco(t.front())) {
        t = t.mid(1);
    }
    while (!t.isEmpty() && EsBlanco(t.back())) {
        t.chop(1);
    }
    return t;
}

bool Iguales(QStringView a, QStringView b)
{
    return a.compare(b, Qt::CaseInsensitive) == 0;
}

bool Entrecomillado(QStringView t)
{
    return t.size() >= 2 && EsComilla(t.front()) && t.front() == t.back();
}

// Name of the section whose head the line is, none for any other line.
std::optional<QStringView> Cabecera(QStringView linea)
{
    const QStringView t = Recortar(linea);
    const qsizetype fin = t.indexOf(u']');
    if (!t.startsWith(u'[') || fin < 0) {
        return std::nullopt;
    }
    return Recortar(t.mid(1, fin - 1));
}

// Position of "=" when the line is Key=Value with this key, else -1.
qsizetype IgualDe(QStringView linea, QStringView clave)
{
    const QStringView t = Recortar(linea);
    const qsizetype igual = linea.indexOf(u'=');
    if (igual < 0 || t.startsWith(u';') || Cabecera(linea)) {
        return -1;
    }
    return Iguales(Recortar(linea.left(igual)), clave) ? igual : -1;
}

// Lines [desde, hasta) of the first section of this name; desde is -1 when there is none.
struct Tramo
{
    qsizetype desde = -1;
    qsizetype hasta = -1;
};

Tramo Buscar(const Documento& d, QStringView seccion)
{
    Tramo tramo;
    const QStringView nombre = Recortar(seccion);
    const auto n = static_cast<qsizetype>(d.lineas.size());
    for (qsizetype i = 0; i < n; ++i) {
        const auto cabecera = Cabecera(d.lineas[static_cast<std::size_t>(i)]);
        if (!cabecera) {
            continue;
        }
        if (tramo.desde >= 0) {
            tramo.hasta = i;
            return tramo;
        }
        if (Iguales(*cabecera, nombre)) {
            tramo.desde = i + 1;
        }
    }
    tramo.hasta = n;
    return tramo;
}

bool NombreValido(QStringView nombre, QStringView prohibidos)
{
    return !nombre.isEmpty() && nombre == Recortar(nombre) &&
           std::none_of(nombre.begin(), nombre.end(),
                        [&](QChar c) { return EsFinDeLinea(c) || prohibidos.contains(c); });
}

QString PonerComillas(QStringView valor)
{
    QString v = valor.toString();
    std::replace_if(v.begin(), v.end(), EsFinDeLinea, QChar(u' '));
    if (!v.isEmpty() && (EsBlanco(v.front()) || EsBlanco(v.back()) || Entrecomillado(v))) {
        v = QLatin1Char('"') + v + QLatin1Char('"');
    }
    return v;
}

bool EscribirTodo(QFile& fichero, const QByteArray& bytes)
{
    return fichero.seek(0) && fichero.write(bytes) == bytes.size() && fichero.flush() &&
           fichero.resize(bytes.size()) && fichero.error() == QFileDevice::NoError;
}

// Into the file itself, for a directory that takes no new files.
bool GuardarEncima(const QString& ruta, const QByteArray& antes, const QByteArray& bytes)
{
    QFile fichero(ruta);
    if (!fichero.open(QIODevice::ReadWrite | QIODevice::ExistingOnly)) {
        return false;
    }
    if (EscribirTodo(fichero, bytes)) {
        return true;
    }
    fichero.unsetError();
    EscribirTodo(fichero, antes); // its blocks are still there, so a full disk does not hinder this
    return false;
}

} // namespace

Documento Analizar(QByteArrayView bytes)
{
    Documento d;
    d.marcaOrden = bytes.startsWith(kMarca);
    d.windows1252 = !modCodificacion::EsUtf8(d.marcaOrden ? bytes.sliced(kMarca.size()) : bytes);
    const QString texto = modCodificacion::Decodificar(bytes);
    for (const QStringView linea : modCodificacion::Lineas(texto)) {
        d.lineas.push_back(linea.toString());
    }
    return d;
}

QByteArray Componer(const Documento& documento)
{
    QString texto;
    for (const QString& linea : documento.lineas) {
        texto += linea;
        texto += QLatin1String("\r\n");
    }
    QByteArray bytes;
    const QByteArray marca = documento.marcaOrden ? kMarca.toByteArray() : QByteArray();
    // The old encoding stays only where it reads back as the same text.
    if (documento.windows1252 && modCodificacion::AWindows1252(texto, bytes) &&
        modCodificacion::Decodificar(bytes) == texto) {
        return marca + bytes;
    }
    return marca + texto.toUtf8();
}

std::optional<QString> Valor(const Documento& documento, QStringView seccion, QStringView clave)
{
    const Tramo tramo = Buscar(documento, seccion);
    if (tramo.desde < 0) {
        return std::nullopt;
    }
    const QStringView nombre = Recortar(clave);
    for (qsizetype i = tramo.desde; i < tramo.hasta; ++i) {
        const QStringView linea(documento.lineas[static_cast<std::size_t>(i)]);
        const qsizetype igual = IgualDe(linea, nombre);
        if (igual < 0) {
            continue;
        }
        QStringView valor = Recortar(linea.mid(igual + 1));
        if (Entrecomillado(valor)) {
            valor = valor.mid(1, valor.size() - 2);
        }
        valor = valor.left(kValorMaximo);
        if (!valor.isEmpty() && valor.back().isHighSurrogate()) {
            valor.chop(1);
        }
        return valor.toString();
    }
    return std::nullopt;
}

bool Poner(Documento& documento, QStringView seccion, QStringView clave, QStringView valor)
{
    if (!NombreValido(seccion, u"]") || !NombreValido(clave, u"=") || clave.startsWith(u'[') ||
        clave.startsWith(u';')) {
        return false;
    }
    auto& lineas = documento.lineas;
    const QString escrito = PonerComillas(valor);
    const QString nueva = clave.toString() + QLatin1Char('=') + escrito;
    const Tramo tramo = Buscar(documento, seccion);
    if (tramo.desde < 0) {
        lineas.push_back(QLatin1Char('[') + seccion.toString() + QLatin1Char(']'));
        lineas.push_back(nueva);
        return true;
    }
    for (qsizetype i = tramo.desde; i < tramo.hasta; ++i) {
        QString& linea = lineas[static_cast<std::size_t>(i)];
        const qsizetype igual = IgualDe(linea, clave);
        if (igual >= 0) { // the key stays as somebody spelled it
            linea = linea.left(igual + 1) + escrito;
            return true;
        }
    }
    qsizetype donde = tramo.hasta; // before the empty lines that part the next section
    while (donde > tramo.desde && Recortar(lineas[static_cast<std::size_t>(donde - 1)]).isEmpty()) {
        --donde;
    }
    lineas.insert(lineas.begin() + donde, nueva);
    return true;
}

bool Leer(const QString& ruta, Documento& documento)
{
    documento = {};
    QFile fichero(ruta);
    if (!QFileInfo(ruta).isFile() || !fichero.open(QIODevice::ReadOnly) || fichero.size() > kBytesMaximos) {
        return false;
    }
    const QByteArray bytes = fichero.readAll();
    if (fichero.error() != QFileDevice::NoError) {
        return false;
    }
    documento = Analizar(bytes);
    return true;
}

bool Guardar(const QString& ruta, const Documento& documento)
{
    const QByteArray bytes = Componer(documento);
    QByteArray antes;
    const bool existe = QFileInfo::exists(ruta);
    if (existe) {
        QFile viejo(ruta);
        if (!QFileInfo(ruta).isFile() || !viejo.open(QIODevice::ReadOnly) || viejo.size() > kBytesMaximos) {
            return false;
        }
        antes = viejo.readAll();
        if (viejo.error() != QFileDevice::NoError) {
            return false;
        }
        if (antes == bytes) {
            return true;
        }
    }
    QSaveFile nuevo(ruta);
    nuevo.setDirectWriteFallback(false);
    if (nuevo.open(QIODevice::WriteOnly)) {
        nuevo.write(bytes);
        if (nuevo.commit()) {
            return true;
        }
        // The rename can be refused where the file itself may be written.
    }
    return existe && GuardarEncima(ruta, antes, bytes);
}

} // namespace modIni

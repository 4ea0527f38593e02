#include "modConfig.h"

#include "modColor.h"
#include "modFormato.h"
#include "modIni.h"
#include "modRutas.h"

#include <QColorDialog>

#include <algorithm>
#include <cmath>
#include <limits>

namespace modConfig {

namespace {

QString RutaIni()
{
    return modRutas::RutaDatos(u"Quintaluz.ini");
}

// Text of a key, empty when there is none: an empty value counts as missing.
QString Texto(const modIni::Documento& ini, QStringView seccion, QStringView clave)
{
    return modIni::Valor(ini, seccion, clave).value_or(QString()).trimmed();
}

bool EsHex(QChar c)
{
    const char16_t u = c.unicode();
    return (u >= u'0' && u <= u'9') || (u >= u'a' && u <= u'f') || (u >= u'A' && u <= u'F');
}

void LeerColor(const QString& texto, std::uint32_t& color)
{
    if (texto.isEmpty()) {
        return;
    }
    if (texto.size() == 6 && std::all_of(texto.begin(), texto.end(), EsHex)) {
        const std::uint32_t rgb = texto.toUInt(nullptr, 16);
        color = modColor::Empaquetar(rgb >> 16, (rgb >> 8) & 255U, rgb & 255U);
        return;
    }
    const double numero = std::nearbyint(modFormato::LeerNumero(texto));
    color = numero >= 0.0 && numero <= 0xFFFFFF ? static_cast<std::uint32_t>(numero) : 0;
}

QString TextoColor(std::uint32_t color)
{
    const std::uint32_t rgb = modColor::Empaquetar((color >> 16) & 255U, (color >> 8) & 255U, color & 255U);
    return QStringLiteral("%1").arg(rgb, 6, 16, QLatin1Char('0')).toUpper();
}

void LeerAngulo(const QString& texto, double maximo, double& angulo)
{
    const double valor = modFormato::LeerNumero(texto);
    if (!texto.isEmpty() && std::fabs(valor) <= maximo) {
        angulo = valor;
    }
}

std::int32_t LeerEntero32(const QString& texto)
{
    using Limites = std::numeric_limits<std::int32_t>;
    const double numero = std::nearbyint(modFormato::LeerNumero(texto));
    return numero >= Limites::min() && numero <= Limites::max() ? static_cast<std::int32_t>(numero) : 0;
}

QString TextoBool(bool b)
{
    return b ? QStringLiteral("1") : QStringLiteral("0");
}

bool EsBarra(QChar c)
{
    return c == u'/' || c == u'\\';
}

} // namespace

Ajustes& ConfigApp()
{
    static Ajustes ajustes;
    return ajustes;
}

void ConfigPorDefecto()
{
    ConfigApp() = Ajustes();
}

void LeerConfig()
{
    modIni::Documento ini;
    if (!modIni::Leer(RutaIni(), ini)) {
        return;
    }
    Ajustes& c = ConfigApp();
    const auto texto = [&](QStringView seccion, QStringView clave) { return Texto(ini, seccion, clave); };
    const auto leerBool = [&](QStringView seccion, QStringView clave, bool& campo) {
        if (const QString t = texto(seccion, clave); !t.isEmpty()) {
            campo = t == u"1";
        }
    };
    LeerColor(texto(u"Colores", u"CurvaSol"), c.ColorCurvaSol);
    LeerColor(texto(u"Colores", u"CurvaLuna"), c.ColorCurvaLuna);

    leerBool(u"Observador", u"Tiene", c.ObsTiene);
    LeerAngulo(texto(u"Observador", u"Lat"), 90.0, c.ObsLat);
    LeerAngulo(texto(u"Observador", u"Lon"), 180.0, c.ObsLon);

    if (const QString t = texto(u"Globo", u"Textura"); !t.isEmpty()) {
        c.TexturaGlobo = RutaAbsolutaApp(t);
    }
    if (const QString t = texto(u"Mapa", u"Transicion"); !t.isEmpty()) {
        c.TransicionMapa = LeerEntero32(t);
    }
    if (texto(u"Objetivo", u"Tiene") == u"1") {
        c.TgtTiene = true;
        LeerAngulo(texto(u"Objetivo", u"Lat"), 90.0, c.TgtLat);
        LeerAngulo(texto(u"Objetivo", u"Lon"), 180.0, c.TgtLon);
    }
    leerBool(u"Interfaz", u"InfoConsejos", c.InfoConsejos);
    if (const QString t = texto(u"Interfaz", u"Idioma"); !t.isEmpty()) {
        c.Idioma = t;
    }
}

void GuardarConfig()
{
    const QString ruta = RutaIni();
    modIni::Documento ini;
    modIni::Leer(ruta, ini); // no file yet: a new one
    const Ajustes& c = ConfigApp();
    const auto poner = [&](QStringView seccion, QStringView clave, const QString& valor) {
        modIni::Poner(ini, seccion, clave, valor);
    };
    poner(u"Colores", u"CurvaSol", TextoColor(c.ColorCurvaSol));
    poner(u"Colores", u"CurvaLuna", TextoColor(c.ColorCurvaLuna));
    if (!c.TexturaGlobo.isEmpty()) {
        poner(u"Globo", u"Textura", RutaRelativaApp(c.TexturaGlobo));
    }
    poner(u"Observador", u"Tiene", TextoBool(c.ObsTiene));
    poner(u"Observador", u"Lat", modFormato::TextoNumero(c.ObsLat));
    poner(u"Observador", u"Lon", modFormato::TextoNumero(c.ObsLon));
    poner(u"Objetivo", u"Tiene", TextoBool(c.TgtTiene));
    if (c.TgtTiene) {
        poner(u"Objetivo", u"Lat", modFormato::TextoNumero(c.TgtLat));
        poner(u"Objetivo", u"Lon", modFormato::TextoNumero(c.TgtLon));
    }
    poner(u"Mapa", u"Transicion", QString::number(c.TransicionMapa));
    poner(u"Interfaz", u"InfoConsejos", TextoBool(c.InfoConsejos));
    poner(u"Interfaz", u"Idioma", c.Idioma);
    modIni::Guardar(ruta, ini);
}

QString LeerIni(QStringView seccion, QStringView clave, const QString& porDefecto)
{
    modIni::Documento ini;
    modIni::Leer(RutaIni(), ini);
    return modIni::Valor(ini, seccion, clave).value_or(porDefecto);
}

void EscribirIni(QStringView seccion, QStringView clave, QStringView valor)
{
    modIni::Documento ini;
    modIni::Leer(RutaIni(), ini);
    if (modIni::Poner(ini, seccion, clave, valor)) {
        modIni::Guardar(RutaIni(), ini);
    }
}

std::uint32_t ElegirColor(std::uint32_t inicial, QWidget* padre)
{
    const QColor elegido = QColorDialog::getColor(modColor::Desempaquetar(inicial), padre);
    return elegido.isValid() ? modColor::Empaquetar(elegido) : inicial;
}

QString RutaRelativaApp(const QString& ruta)
{
    const QString base = modRutas::AppPath() + QLatin1Char('/');
    QString normal = ruta;
    normal.replace(QLatin1Char('\\'), QLatin1Char('/'));
    return normal.startsWith(base, Qt::CaseInsensitive) ? ruta.mid(base.size()) : ruta;
}

QString RutaAbsolutaApp(const QString& texto)
{
    if (texto.size() < 2 || texto[1] == QLatin1Char(':') || texto.startsWith(QLatin1String("\\\\"))) {
        return texto;
    }
#ifndef Q_OS_WIN
    if (texto.startsWith(QLatin1Char('/'))) {
        return texto;
    }
#endif
    return modRutas::RutaDatos(EsBarra(texto[0]) ? QStringView(texto).mid(1) : QStringView(texto));
}

} // namespace modConfig

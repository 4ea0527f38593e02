#include "modFormato.h"

#include <QLocale>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace modFormato {

namespace {

// Significant digits that a double carries surely; the text that is rounded has this many.
constexpr int kDigitos = 15;

// A number as digits d0 d1 d2 ... with the decimal point before digit `punto` (which may lie outside).
struct Decimal
{
    std::array<char, kDigitos + 1> digitos{}; // '0'..'9'; one more for a carry
    int cuenta = 0;
    int punto = 0;

    bool EsCero() const { return cuenta == 0; }

    // The digit of weight 10^exponente.
    char En(int exponente) const
    {
        const int i = punto - 1 - exponente;
        return i >= 0 && i < cuenta ? digitos[static_cast<std::size_t>(i)] : '0';
    }
};

// |valor| rounded to `decimales` places, halves up, starting from its 15-digit text.
Decimal Redondear(double valor, int decimales)
{
    // "d.dddddddddddddde+xx"
    std::array<char, 32> texto{};
    const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), std::fabs(valor),
                                   std::chars_format::scientific, kDigitos - 1);
    Decimal d;
    d.digitos[0] = texto[0];
    std::copy_n(texto.data() + 2, kDigitos - 1, d.digitos.data() + 1);
    const char* e = texto.data() + kDigitos + 2; // past "d." + 14 digits + "e"
    int exponente = 0;
    std::from_chars(*e == '+' ? e + 1 : e, fin.ptr, exponente);
    d.punto = exponente + 1;

    const int quedan = std::min(d.punto + decimales, kDigitos); // digits kept
    if (quedan < 0) {
        return {};
    }
    const bool sube = quedan < kDigitos && d.digitos[static_cast<std::size_t>(quedan)] >= '5';
    d.cuenta = quedan;
    if (sube) {
        int i = quedan - 1;
        while (i >= 0 && d.digitos[static_cast<std::size_t>(i)] == '9') {
            d.digitos[static_cast<std::size_t>(i)] = '0';
            --i;
        }
        if (i >= 0) {
            ++d.digitos[static_cast<std::size_t>(i)];
        } else { // 99.6 -> 100: all kept digits are zeros now, or there were none
            std::copy_backward(d.digitos.data(), d.digitos.data() + quedan, d.digitos.data() + quedan + 1);
            d.digitos[0] = '1';
            ++d.cuenta;
            ++d.punto;
        }
    }
    const char* primero = d.digitos.data();
    if (std::all_of(primero, primero + d.cuenta, [](char c) { return c == '0'; })) {
        return {};
    }
    return d;
}

bool EsLugar(QChar c)
{
    return c == u'0' || c == u'#';
}

// What a section asks for.
struct Seccion
{
    QStringView entera;   // before the point
    QStringView fraccion; // after it; null without a point
    bool punto = false;
    bool miles = false;
    int decimales = 0; // digit places after the point
    int minimo = 0;    // digits printed at least before the point
    int lugares = 0;   // digit places before the point
};

Seccion Analizar(QStringView s)
{
    Seccion r;
    const qsizetype p = s.indexOf(u'.');
    r.punto = p >= 0;
    r.entera = r.punto ? s.left(p) : s;
    r.fraccion = r.punto ? s.mid(p + 1) : QStringView();
    r.decimales = static_cast<int>(std::count_if(r.fraccion.begin(), r.fraccion.end(), EsLugar));
    qsizetype ultimoLugar = -1;
    for (qsizetype i = r.entera.size() - 1; i >= 0; --i) {
        if (EsLugar(r.entera[i])) {
            ultimoLugar = std::max(ultimoLugar, i);
            ++r.lugares;
            if (r.entera[i] == u'0') {
                r.minimo = r.lugares;
            }
        } else if (r.entera[i] == u',' && ultimoLugar > i && i > 0) {
            r.miles = true;
        }
    }
    return r;
}

// Integer part, written backwards into `salida`. The leftmost place takes all digits that are left.
void EscribirEntera(QString& salida, const Seccion& s, const Decimal& d, const Separadores& sep)
{
    const int total = std::max(d.EsCero() ? 0 : d.punto, s.minimo);
    int escritos = 0;
    const auto digito = [&] {
        if (s.miles && escritos > 0 && escritos % 3 == 0) {
            std::for_each(sep.miles.crbegin(), sep.miles.crend(), [&](QChar c) { salida += c; });
        }
        salida += QLatin1Char(d.En(escritos));
        ++escritos;
    };
    int lugar = 0;
    for (qsizetype i = s.entera.size() - 1; i >= 0; --i) {
        const QChar c = s.entera[i];
        if (!EsLugar(c)) {
            if (c != u',') {
                salida += c;
            }
            continue;
        }
        ++lugar;
        if (escritos < total) {
            digito();
        }
        while (lugar == s.lugares && escritos < total) {
            digito();
        }
    }
    while (escritos < total && s.lugares == 0 && s.punto) { // ".00" prints whole digits as well
        digito();
    }
    std::reverse(salida.begin(), salida.end());
}

void EscribirFraccion(QString& salida, const Seccion& s, const Decimal& d, const Separadores& sep)
{
    if (!s.punto) {
        return;
    }
    // Digits to print: all up to the last "0" place, beyond it those up to the last one that is not zero.
    int lugar = 0;
    int hasta = 0;
    for (const QChar c : s.fraccion) {
        if (EsLugar(c)) {
            ++lugar;
            if (c == u'0' || d.En(-lugar) != '0') {
                hasta = lugar;
            }
        }
    }
    // A point with nothing behind it is left out: "0.###" of 5 is "5".
    if (hasta > 0) {
        salida += sep.decimal;
    }
    lugar = 0;
    for (const QChar c : s.fraccion) {
        if (!EsLugar(c)) {
            salida += c;
        } else if (++lugar <= hasta) {
            salida += QLatin1Char(d.En(-lugar));
        }
    }
}

// Section i of the pattern, or an empty view.
QStringView SeccionDe(QStringView patron, int i)
{
    for (; i > 0; --i) {
        const qsizetype p = patron.indexOf(u';');
        if (p < 0) {
            return {};
        }
        patron = patron.mid(p + 1);
    }
    const qsizetype p = patron.indexOf(u';');
    return p < 0 ? patron : patron.left(p);
}

QString ConSeparador(std::string_view texto, const QString& decimal)
{
    QString r = QString::fromLatin1(texto.data(), static_cast<qsizetype>(texto.size()));
    const qsizetype p = r.indexOf(u'.');
    if (p >= 0 && decimal != QLatin1String(".")) {
        r.replace(p, 1, decimal);
    }
    return r;
}

// A whole number with zeros before it up to a width; lists of some thousand dates pass here.
void AnadirCifras(QString& texto, int n, int ancho)
{
    const QString cifras = QString::number(n);
    for (qsizetype i = cifras.size(); i < ancho; ++i) {
        texto += u'0';
    }
    texto += cifras;
}

} // namespace

const Separadores& SeparadoresSistema()
{
    static const Separadores s = [] {
        const QLocale sistema = QLocale::system();
        Separadores r{sistema.decimalPoint(), sistema.groupSeparator()};
        if (r.decimal.isEmpty()) {
            r.decimal = QStringLiteral(".");
        }
        return r;
    }();
    return s;
}

QString Format(double valor, QStringView patron)
{
    return Format(valor, patron, SeparadoresSistema());
}

QString Format(double valor, QStringView patron, const Separadores& separadores)
{
    if (!std::isfinite(valor)) {
        return QStringLiteral("--");
    }
    QStringView texto = SeccionDe(patron, 0);
    QStringView propia;
    bool signo = false;
    if (valor < 0.0) {
        propia = SeccionDe(patron, 1);
        signo = propia.isEmpty();
    }
    Seccion s = Analizar(propia.isEmpty() ? texto : propia);
    Decimal d = Redondear(valor, s.decimales);
    if (d.EsCero()) {
        const QStringView cero = SeccionDe(patron, 2);
        s = Analizar(cero.isEmpty() ? texto : cero);
        d = {};
        signo = false;
    }
    QString r;
    r.reserve(32);
    EscribirEntera(r, s, d, separadores);
    EscribirFraccion(r, s, d, separadores);
    if (signo) {
        r.prepend(u'-');
    }
    return r;
}

QString TextoNumero(double valor)
{
    return TextoNumero(valor, SeparadoresSistema());
}

QString TextoNumero(double valor, const Separadores& separadores)
{
    if (!std::isfinite(valor) || valor == 0.0) {
        return QStringLiteral("0");
    }
    std::array<char, 1100> texto{}; // the smallest double has 1074 decimals at most
    const auto fin =
        std::to_chars(texto.data(), texto.data() + texto.size(), valor, std::chars_format::fixed);
    return ConSeparador({texto.data(), static_cast<std::size_t>(fin.ptr - texto.data())},
                        separadores.decimal);
}

double LeerNumero(QStringView texto)
{
    // Only the beginning can matter: digits beyond these change nothing that is printed.
    std::array<char, 400> limpio{};
    std::size_t n = 0;
    bool principio = true;
    for (const QChar c : texto) {
        if (principio && c.isSpace()) {
            continue;
        }
        const char16_t u = c.unicode() == u',' ? u'.' : c.unicode();
        if (principio && u == u'+') {
            principio = false;
            continue;
        }
        const bool propio =
            (u >= u'0' && u <= u'9') || u == u'.' || u == u'-' || u == u'+' || u == u'e' || u == u'E';
        if (!propio || n == limpio.size()) {
            break;
        }
        principio = false;
        limpio[n++] = static_cast<char>(u);
    }
    double valor = 0.0;
    const auto r = std::from_chars(limpio.data(), limpio.data() + n, valor);
    return r.ec == std::errc() && std::isfinite(valor) ? valor : 0.0;
}

std::int16_t LeerEntero16(QStringView texto)
{
    const double entero = std::nearbyint(LeerNumero(texto));
    using Limites = std::numeric_limits<std::int16_t>;
    if (entero < Limites::min() || entero > Limites::max()) {
        return 0;
    }
    return static_cast<std::int16_t>(entero);
}

QString TextoFecha(int anio, int mes, int dia)
{
    QString texto;
    texto.reserve(10);
    AnadirCifras(texto, dia, 2);
    texto += u'/';
    AnadirCifras(texto, mes, 2);
    texto += u'/';
    AnadirCifras(texto, anio, 4);
    return texto;
}

QString TextoReloj(int minutos)
{
    const int m = std::max(minutos, 0);
    QString texto;
    texto.reserve(5);
    AnadirCifras(texto, m / 60, 2);
    texto += u':';
    AnadirCifras(texto, m % 60, 2);
    return texto;
}

} // namespace modFormato

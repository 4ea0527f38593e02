#include "tarjetas.h"

#include "modFormato.h"

#include <algorithm>
#include <cmath>

namespace tarjetas {

namespace {

struct Nombre
{
    QLatin1String sinAcentos;
    const char* clave;
    const char* corta; // null: the name has no short form
};

constexpr Nombre kNombres[] = {
    {QLatin1String("Inicio astro"), "main.card.inicio_astro", nullptr},
    {QLatin1String("Inicio nautico"), "main.card.inicio_naut", "main.card.corto.inicio_naut"},
    {QLatin1String("Inicio civil"), "main.card.inicio_civil", nullptr},
    {QLatin1String("Salida sol"), "main.card.salida_sol", nullptr},
    {QLatin1String("Hora dorada"), "main.card.hora_dorada", "main.card.corto.hora_dorada"},
    {QLatin1String("Transito sol"), "main.card.transito_sol", nullptr},
    {QLatin1String("Puesta sol"), "main.card.puesta_sol", nullptr},
    {QLatin1String("Fin civil"), "main.card.fin_civil", nullptr},
    {QLatin1String("Fin nautico"), "main.card.fin_naut", "main.card.corto.fin_naut"},
    {QLatin1String("Fin astro"), "main.card.fin_astro", nullptr},
    {QLatin1String("Salida luna"), "main.card.salida_luna", nullptr},
    {QLatin1String("Trans. luna"), "main.card.transito_luna", nullptr},
    {QLatin1String("Puesta luna"), "main.card.puesta_luna", nullptr},
};

const Nombre* Buscar(QString nombre)
{
    nombre.replace(QChar(u'á'), QLatin1Char('a'));
    const auto igual = [&nombre](const Nombre& n) { return n.sinAcentos == nombre; };
    const auto hallado = std::find_if(std::begin(kNombres), std::end(kNombres), igual);
    return hallado == std::end(kNombres) ? nullptr : hallado;
}

QString TextoIluminacion(double fraccion)
{
    return modFormato::Format(fraccion * 100.0, u"0.00") + QLatin1Char('%');
}

} // namespace

double HoraLocal(double fraccion, double zona)
{
    if (fraccion < 0.0)
        return -1.0;
    double h = std::fmod(fraccion * 24.0 + zona, 24.0);
    if (h < 0.0)
        h += 24.0;
    return h < 24.0 ? h : 0.0; // a tiny negative rest sums to 24 exactly
}

QString TextoAngulo(double valor)
{
    if (valor < 0.0)
        return {};
    QString texto = modFormato::Format(valor, u"0.00");
    return texto.replace(QLatin1Char('.'), QLatin1Char(',')) + QChar(u'°');
}

QString TextoRelojTarjeta(double hora)
{
    return modFormato::TextoReloj(static_cast<int>(std::nearbyint(hora * 60.0)));
}

std::vector<TarjetaEvento> ConstruirTarjetas(const modAstro::MomentosDia& m, double zona)
{
    const QString ilum = TextoIluminacion(m.LunaIlum);
    std::vector<TarjetaEvento> cartas;
    cartas.reserve(14);
    const auto poner = [&cartas, zona](const QString& nombre, double momento, const QString& linea3 = {},
                                       const QString& linea4 = {}) {
        const double hora = HoraLocal(momento, zona);
        if (hora >= 0.0)
            cartas.push_back({nombre, hora, linea3, linea4});
    };
    poner(QStringLiteral("Inicio astro"), m.AstroAlba);
    poner(QStringLiteral("Inicio náutico"), m.NauticoAlba);
    poner(QStringLiteral("Inicio civil"), m.CivilAlba);
    poner(QStringLiteral("Salida sol"), m.SolOrto, TextoAngulo(m.SolAzOrto));
    poner(QStringLiteral("Hora dorada"), m.DoradaAM);
    poner(QStringLiteral("Tránsito sol"), m.SolTransito, TextoAngulo(m.SolAzTransito),
          TextoAngulo(m.SolAltTransito));
    poner(QStringLiteral("Hora dorada"), m.DoradaPM);
    poner(QStringLiteral("Puesta sol"), m.SolOcaso, TextoAngulo(m.SolAzOcaso));
    poner(QStringLiteral("Fin civil"), m.CivilOcaso);
    poner(QStringLiteral("Fin náutico"), m.NauticoOcaso);
    poner(QStringLiteral("Fin astro"), m.AstroOcaso);
    poner(QStringLiteral("Salida luna"), m.LunaOrto, TextoAngulo(m.LunaAzOrto), ilum);
    poner(QStringLiteral("Tráns. luna"), m.LunaTransito, TextoAngulo(m.LunaAzTransito),
          TextoAngulo(m.LunaAltTransito));
    poner(QStringLiteral("Puesta luna"), m.LunaOcaso, TextoAngulo(m.LunaAzOcaso), ilum);
    std::stable_sort(cartas.begin(), cartas.end(),
                     [](const TarjetaEvento& a, const TarjetaEvento& b) { return a.hora < b.hora; });
    return cartas;
}

QString ClaveTarjeta(const QString& nombre)
{
    const Nombre* n = Buscar(nombre);
    return n != nullptr ? QString::fromLatin1(n->clave) : QString();
}

QString ClaveCortaTarjeta(const QString& nombre)
{
    const Nombre* n = Buscar(nombre);
    return n != nullptr && n->corta != nullptr ? QString::fromLatin1(n->corta) : QString();
}

TablaTarjetas Colocar(const std::vector<TarjetaEvento>& cartas, double ancho)
{
    TablaTarjetas tabla;
    if (cartas.empty())
        return tabla;
    tabla.celdas.reserve(cartas.size());
    const double cw = ancho / static_cast<double>(cartas.size());
    for (std::size_t i = 0; i < cartas.size(); ++i) {
        const double x1 = static_cast<double>(i) * cw + 1.0;
        const double x2 = static_cast<double>(i + 1) * cw - 1.0;
        tabla.celdas.push_back({x1, x2, cartas[i].hora});
    }
    return tabla;
}

} // namespace tarjetas

std::optional<double> TablaTarjetas::HoraVecina(double hora, bool adelante) const
{
    constexpr double kMedioMinuto = 0.5 / 60.0; // the hour bar stands on whole minutes
    if (celdas.empty())
        return std::nullopt;
    if (adelante) {
        for (const Celda& c : celdas)
            if (c.hora >= hora + kMedioMinuto)
                return c.hora;
        return celdas.front().hora;
    }
    for (auto c = celdas.rbegin(); c != celdas.rend(); ++c)
        if (c->hora <= hora - kMedioMinuto)
            return c->hora;
    return celdas.back().hora;
}

std::optional<double> TablaTarjetas::HoraEn(double x, double y) const
{
    if (y < 0.0 || y > tarjetas::kAlto)
        return std::nullopt;
    for (const Celda& c : celdas)
        if (c.x1 <= x && x <= c.x2)
            return c.hora;
    return std::nullopt;
}

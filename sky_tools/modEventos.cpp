#include "modEventos.h"

#include "fechaSerie.h"
#include "modAstro.h"
#include "modFormato.h"
#include "modSucesos.h"
#include "modTextoEclipse.h"
#include "palabras.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace modEventos {

namespace {

struct Evento
{
    double serie = 0; // local date and time
    QString texto;
    bool conHora = true;
};

// Peak dates of the showers, the same each year, and meteors an hour under a dark sky with the radiant
// overhead (rounded from the calendar of the International Meteor Organization).
struct Lluvia
{
    std::int16_t mes, dia;
    const char* nombre;
    int porHora;
};
constexpr Lluvia kLluvias[] = {
    {1, 3, "Cuadrantidas", 110},    {4, 22, "Liridas", 18},    {5, 6, "Eta Acuaridas", 50},
    {7, 30, "Delta Acuaridas", 25}, {8, 12, "Perseidas", 100}, {10, 8, "Draconidas", 10},
    {10, 21, "Orionidas", 20},      {11, 17, "Leonidas", 15},  {12, 14, "Geminidas", 120},
    {12, 22, "Ursidas", 10},
};

// A full Moon so near to a perigee is a supermoon, days (strictly less).
constexpr double kDiasSuperluna = 1.5;

QString ConEclipse(QLatin1String fase, const QString& eclipse)
{
    return eclipse.isEmpty() ? QString(fase) : fase + QLatin1String("  ") + eclipse;
}

QString Apside(QLatin1String nombre, double km)
{
    return nombre + QLatin1String(" lunar  -  ") + modFormato::Format(km, u"#,##0") + QLatin1String(" km");
}

QString Texto(const ContextoBusqueda& c, const modSucesos::Suceso& s)
{
    using modSucesos::Tipo;
    switch (s.tipo) {
    case Tipo::LunaNueva:
        return ConEclipse(QLatin1String("Luna nueva"), modTextoEclipse::CircunstanciasEclipseSol(c, s.jd));
    case Tipo::CuartoCreciente:
        return QStringLiteral("Cuarto creciente");
    case Tipo::LunaLlena:
        return ConEclipse(palabras::kLunaLlena, modTextoEclipse::CircunstanciasEclipseLuna(c, s.jd));
    case Tipo::CuartoMenguante:
        return QStringLiteral("Cuarto menguante");
    case Tipo::EquinoccioMarzo:
        return palabras::kEquinoccio + QLatin1String(" de marzo");
    case Tipo::EquinoccioSeptiembre:
        return palabras::kEquinoccio + QLatin1String(" de septiembre");
    case Tipo::Perigeo:
        return Apside(palabras::kPerigeo, s.distanciaKm);
    case Tipo::Apogeo:
        return Apside(QLatin1String("Apogeo"), s.distanciaKm);
    case Tipo::SolsticioJunio:
        return palabras::kSolsticio + QLatin1String(" de junio");
    case Tipo::SolsticioDiciembre:
        return palabras::kSolsticio + QLatin1String(" de diciembre");
    }
    return {};
}

void AnotarLluvias(std::int16_t anio, std::vector<Evento>& eventos)
{
    for (const Lluvia& l : kLluvias) {
        eventos.push_back({fechaSerie::SerieDeFecha(anio, l.mes, l.dia),
                           QStringLiteral("%1: %2  (~%3 met/h)")
                               .arg(palabras::kLluvia, QLatin1String(l.nombre), QString::number(l.porHora)),
                           false});
    }
}

void MarcarSuperlunas(std::vector<Evento>& eventos)
{
    for (Evento& llena : eventos) {
        if (!llena.texto.startsWith(palabras::kLunaLlena)) {
            continue;
        }
        const bool cerca = std::any_of(eventos.begin(), eventos.end(), [&llena](const Evento& e) {
            return e.texto.startsWith(palabras::kPerigeo) &&
                   std::fabs(e.serie - llena.serie) < kDiasSuperluna;
        });
        if (cerca) {
            llena.texto += QLatin1String("  (") + palabras::kSuperluna + QLatin1Char(')');
        }
    }
}

QString Linea(const Evento& e)
{
    const fechaSerie::FechaHora f = fechaSerie::FechaDeSerie(e.serie);
    const QString fecha = e.conHora ? fechaSerie::TextoFechaHora(f)
                                    : fechaSerie::TextoFecha(f).leftJustified(16, QLatin1Char(' '));
    return fecha + QLatin1String("  ") + e.texto + palabras::kFinLinea;
}

} // namespace

QString EventosCelestes(const ContextoBusqueda& c, std::int16_t anio)
{
    if (anio < modAstro::kAnioMinimo || anio > modAstro::kAnioMaximo) {
        return palabras::kAnioNoValido;
    }
    std::vector<Evento> eventos;
    for (const modSucesos::Suceso& s : modSucesos::SucesosDelAnio(anio)) {
        eventos.push_back({fechaSerie::SerieDeJd(s.jd, c.zona), Texto(c, s), true});
    }
    AnotarLluvias(anio, eventos);
    std::stable_sort(eventos.begin(), eventos.end(),
                     [](const Evento& a, const Evento& b) { return a.serie < b.serie; });
    MarcarSuperlunas(eventos);

    QString texto;
    for (const Evento& e : eventos) {
        texto += Linea(e);
    }
    return texto.isEmpty() ? palabras::kSinEventos : texto;
}

} // namespace modEventos

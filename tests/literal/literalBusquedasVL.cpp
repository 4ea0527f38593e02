#include "literalBusquedas.h"

#include "literalAstro.h"
#include "literalBusquedasTexto.h"
#include "modFormato.h"

#include <string>

namespace literalBusquedas {

namespace {

struct Noche
{
    double mejor = -999, jd = 0, azimut = 0;
    bool oscura = false;
};

Noche RecorrerNoche(const ContextoBusqueda& c, std::int16_t anio, int i)
{
    Noche n;
    const double base = literal::DiaJuliano(anio, 1, 1, 0) + i - c.zona / 24;
    for (double dt = -4.0 / 24; dt <= 6.0001 / 24; dt += 0.5 / 24) {
        const double j = base + dt;
        double alfa, delta, r, tsg, az, alt;
        literal::PosicionSol(j, alfa, delta, r, tsg);
        literal::EcuatorialAHorizontal(alfa, delta, tsg, c.lat, c.lon, az, alt);
        if (alt < -18) {
            n.oscura = true;
            literal::EcuatorialAHorizontal(4.649644393775488, -0.5050284723570787, tsg, c.lat, c.lon, az,
                                           alt);
            if (alt > n.mejor) {
                n.mejor = alt;
                n.jd = j;
                n.azimut = az;
            }
        }
    }
    return n;
}

double Puntuar(const ContextoBusqueda& c, const Noche& n, double& altLuna, double& iluminada)
{
    double az, fase, distancia;
    literal::AzAltCuerpo(n.jd, c.lat, c.lon, true, altLuna, az);
    literal::FaseLunar(n.jd, fase, iluminada, distancia);
    double luna = 1;
    if (!(altLuna < 0)) {
        luna = 1 - 1.05 * iluminada;
        if (luna < 0) {
            luna = 0;
        }
    }
    double altura = n.mejor / 22;
    if (altura > 1) {
        altura = 1;
    }
    return luna * altura;
}

std::int16_t Nivel(double p)
{
    return p >= 0.72 ? 4 : p >= 0.52 ? 3 : p >= 0.36 ? 2 : p >= 0.18 ? 1 : 0;
}

int DiasDelAnio(std::int16_t anio)
{
    return static_cast<int>(literal::DiaJuliano(static_cast<std::int16_t>(anio + 1), 1, 1, 0) -
                            literal::DiaJuliano(anio, 1, 1, 0));
}

} // namespace

QString MejoresNochesVL(const ContextoBusqueda& c, std::int16_t anio)
{
    if (!c.TieneObs) {
        return QStringLiteral("(Define primero un observador en el mapa)");
    }
    if (anio < 1900 || anio > 2200) {
        return QStringLiteral("(Anyo no valido)");
    }
    QString texto;
    for (int i = 0; i < DiasDelAnio(anio); ++i) {
        const Noche n = RecorrerNoche(c, anio, i);
        if (!n.oscura || !(n.mejor > 8)) {
            continue;
        }
        double altLuna, iluminada;
        const std::int16_t nivel = Nivel(Puntuar(c, n, altLuna, iluminada));
        if (nivel < 2) {
            continue;
        }
        const FechaReloj f = DeSerie(n.jd + c.zona / 24 - 2415018.5);
        texto +=
            Columna(TextoFecha(f) + QLatin1Char(' ') + TextoReloj(f), 19) +
            Columna(QStringLiteral("V.L. ") + modFormato::Format(n.mejor, u"0") + kGrado, 12) +
            Columna(QString::fromStdString(literal::Compas8(n.azimut)) + QLatin1Char(' ') +
                        modFormato::Format(n.azimut, u"0") + kGrado,
                    12) +
            Columna(QStringLiteral("Luna ") + modFormato::Format(iluminada * 100, u"0") + QLatin1Char('%') +
                        (altLuna < 0 ? QStringLiteral(" abajo") : QStringLiteral(" arriba")),
                    16) +
            (nivel == 4   ? QStringLiteral("Excelente")
             : nivel == 3 ? QStringLiteral("Muy buena")
                          : QStringLiteral("Buena")) +
            kFin;
    }
    return texto.isEmpty() ? QStringLiteral("(Sin noches recomendables: revisa el observador y el anyo)")
                           : texto;
}

bool SerieAnualVL(const ContextoBusqueda& c, std::int16_t anio, std::vector<std::int16_t>& calidad)
{
    calidad.assign(DiasDelAnio(anio), 0);
    if (!c.TieneObs || anio < 1900 || anio > 2200) {
        return false;
    }
    for (std::size_t i = 0; i < calidad.size(); ++i) {
        const Noche n = RecorrerNoche(c, anio, static_cast<int>(i));
        double altLuna, iluminada;
        calidad[i] = Nivel(n.oscura && n.mejor > 0 ? Puntuar(c, n, altLuna, iluminada) : 0);
    }
    return true;
}

} // namespace literalBusquedas

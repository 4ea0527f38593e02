#include "literalBusquedas.h"

#include "literalAstro.h"
#include "literalBusquedasTexto.h"
#include "modFormato.h"

#include <algorithm>
#include <string>

namespace literalBusquedas {

namespace {

constexpr double kRadAGrados = 57.29577951308238;
constexpr double kPi = 3.14159265358979;

QString Hora(double jd, double zona)
{
    return QString::fromStdString(literal::HoraDeDiaJuliano(jd, zona));
}

struct Evento
{
    double serie;
    QString texto;
    bool conHora;
};

} // namespace

QString CircunstanciasEclipseSol(const ContextoBusqueda& c, double jd)
{
    if (std::fabs(literal::LatitudEclipticaLuna(jd)) > 1.58) {
        return {};
    }
    if (!c.TieneObs) {
        return QStringLiteral("(posible eclipse de Sol)");
    }
    double minima = 999, ss = 0, sm = 0, inicio = 0, fin = 0;
    bool contacto = false;
    for (double dt = -3.5 / 24; dt <= 3.5001 / 24; dt += 1.0 / 1440) {
        const double j = jd + dt;
        double alfaS, deltaS, r, tsg, az, alt;
        literal::PosicionSol(j, alfaS, deltaS, r, tsg);
        literal::EcuatorialAHorizontal(alfaS, deltaS, tsg, c.lat, c.lon, az, alt);
        if (alt > -0.3) {
            double alfaL, deltaL, semiL;
            literal::PosicionLunaTopocentrica(j, c.lat, c.lon, tsg, alfaL, deltaL, semiL);
            const double semiS = 0.26656 / r;
            const double x = std::cos(deltaS) * literal::ReducirAPi(alfaL - alfaS);
            const double y = deltaL - deltaS;
            const double sep = std::sqrt(x * x + y * y) * kRadAGrados;
            if (sep < semiS + semiL) {
                if (!contacto) {
                    inicio = j;
                }
                contacto = true;
                fin = j;
            }
            if (sep < minima) {
                minima = sep;
                ss = semiS;
                sm = semiL;
            }
        }
    }
    if (!contacto) {
        return QStringLiteral("Eclipse de Sol (no visible aqui)");
    }
    double magnitud = (ss + sm - minima) / (2 * ss);
    if (magnitud < 0) {
        magnitud = 0;
    }
    QString clase = QStringLiteral("parcial");
    if (std::fabs(sm - ss) >= minima) {
        clase = sm < ss ? QStringLiteral("anular") : QStringLiteral("total");
    }
    return QStringLiteral("Eclipse de Sol ") + clase + QStringLiteral(" mag ") +
           modFormato::Format(magnitud, u"0.00") + QLatin1Char(' ') + Hora(inicio, c.zona) +
           QLatin1Char('-') + Hora(fin, c.zona);
}

QString CircunstanciasEclipseLuna(const ContextoBusqueda& c, double jd)
{
    if (std::fabs(literal::LatitudEclipticaLuna(jd)) > 1.6) {
        return {};
    }
    double minima = 999, altMaximo = -99, u = 0, v = 0, sm = 0;
    double inicioP = 0, finP = 0, inicioU = 0, finU = 0;
    bool algoVisible = false, penumbra = false, umbra = false;
    for (double dt = -3.7 / 24; dt <= 3.7001 / 24; dt += 1.0 / 1440) {
        const double j = jd + dt;
        double alfaS, deltaS, r, tsg, alfaL, deltaL, d;
        literal::PosicionSol(j, alfaS, deltaS, r, tsg);
        literal::PosicionLuna(j, alfaL, deltaL, d);
        const double alfa0 = alfaS + kPi;
        const double delta0 = -deltaS;
        const double x = std::cos(delta0) * literal::ReducirAPi(alfaL - alfa0);
        const double y = deltaL - delta0;
        const double sep = std::sqrt(x * x + y * y) * kRadAGrados;
        const double p = 6378.14 / d * kRadAGrados;
        const double semiL = 1737.4 / d * kRadAGrados;
        const double semiS = 0.26656 / r;
        const double radioU = 1.02 * (p + 0.00244 - semiS);
        const double radioV = 1.02 * (p + 0.00244 + semiS);
        double alt = -99;
        if (c.TieneObs) {
            double az;
            literal::EcuatorialAHorizontal(alfaL, deltaL, tsg, c.lat, c.lon, az, alt);
        }
        if (sep < radioV + semiL) {
            if (!penumbra) {
                inicioP = j;
            }
            penumbra = true;
            finP = j;
            if (alt > 0) {
                algoVisible = true;
            }
        }
        if (sep < radioU + semiL) {
            if (!umbra) {
                inicioU = j;
            }
            umbra = true;
            finU = j;
        }
        if (sep < minima) {
            minima = sep;
            u = radioU;
            v = radioV;
            sm = semiL;
            altMaximo = alt;
        }
    }
    if (!penumbra) {
        return {};
    }
    QString clase;
    double magnitud, inicio, fin;
    if (u + sm < minima) {
        clase = QStringLiteral("penumbral");
        magnitud = (v + sm - minima) / (2 * sm);
        inicio = inicioP;
        fin = finP;
    } else {
        clase = u - sm >= minima ? QStringLiteral("total") : QStringLiteral("parcial");
        magnitud = (sm + u - minima) / (2 * sm);
        inicio = inicioU;
        fin = finU;
    }
    if (magnitud < 0) {
        magnitud = 0;
    }
    QString texto = QStringLiteral("Eclipse de Luna ") + clase;
    if (clase != QStringLiteral("penumbral")) {
        texto += QStringLiteral(" mag ") + modFormato::Format(magnitud, u"0.00");
    }
    texto += QLatin1Char(' ') + Hora(inicio, c.zona) + QLatin1Char('-') + Hora(fin, c.zona);
    if (c.TieneObs) {
        if (altMaximo > 0) {
            texto += QStringLiteral(" (visible)");
        } else if (algoVisible) {
            texto += QStringLiteral(" (parcialmente visible)");
        } else {
            texto += QStringLiteral(" (Luna bajo el horizonte)");
        }
    }
    return texto;
}

QString EventosCelestes(const ContextoBusqueda& c, std::int16_t anio)
{
    if (anio < 1900 || anio > 2200) {
        return QStringLiteral("(Anyo no valido)");
    }
    static const QString kFases[4] = {QStringLiteral("Luna nueva"), QStringLiteral("Cuarto creciente"),
                                      QStringLiteral("Luna llena"), QStringLiteral("Cuarto menguante")};
    std::vector<Evento> eventos;
    const auto anotar = [&](double jd, const QString& texto) {
        eventos.push_back({jd + c.zona / 24 - 2415018.5, texto, true});
    };
    int muestras = 0;
    double tAntes = 0, pAntes = 0, rAntes = 0, rMasAntes = 0, dAntes = 0, dMasAntes = 0;
    const double fin = literal::DiaJuliano(static_cast<std::int16_t>(anio + 1), 1, 1, 0) + 0.001;
    for (double t = literal::DiaJuliano(anio, 1, 1, 0); t < fin; t += 0.25) {
        double p, iluminada, r, alfa, d, distanciaSol, tsg;
        literal::FaseLunar(t, p, iluminada, r);
        literal::PosicionSol(t, alfa, d, distanciaSol, tsg);
        ++muestras;
        if (muestras >= 2) {
            const int qAntes = static_cast<int>(std::floor(4 * pAntes));
            const int q = static_cast<int>(std::floor(4 * p));
            if (q != qAntes) {
                double f = q != 0 ? (q * 0.25 - pAntes) / (p - pAntes) : (1 - pAntes) / (p + 1 - pAntes);
                f = f < 0 ? 0 : f > 1 ? 1 : f;
                const double tc = tAntes + 0.25 * f;
                QString texto = kFases[q];
                QString eclipse;
                if (q == 0) {
                    eclipse = CircunstanciasEclipseSol(c, tc);
                } else if (q == 2) {
                    eclipse = CircunstanciasEclipseLuna(c, tc);
                }
                if (!eclipse.isEmpty()) {
                    texto += QStringLiteral("  ") + eclipse;
                }
                anotar(tc, texto);
            }
            if ((dAntes < 0 && d >= 0) || (dAntes > 0 && d <= 0)) {
                const double f = dAntes / (dAntes - d);
                anotar(tAntes + 0.25 * f, d < dAntes ? QStringLiteral("Equinoccio de septiembre")
                                                     : QStringLiteral("Equinoccio de marzo"));
            }
        }
        if (muestras >= 3) {
            const QString km = modFormato::Format(rAntes, u"#,##0") + QStringLiteral(" km");
            if (rAntes < rMasAntes && rAntes < r) {
                anotar(tAntes, QStringLiteral("Perigeo lunar  -  ") + km);
            }
            if (rAntes > rMasAntes && rAntes > r) {
                anotar(tAntes, QStringLiteral("Apogeo lunar  -  ") + km);
            }
            if (dAntes > dMasAntes && dAntes > d) {
                anotar(tAntes, QStringLiteral("Solsticio de junio"));
            }
            if (dAntes < dMasAntes && dAntes < d) {
                anotar(tAntes, QStringLiteral("Solsticio de diciembre"));
            }
        }
        rMasAntes = rAntes;
        dMasAntes = dAntes;
        tAntes = t;
        pAntes = p;
        rAntes = r;
        dAntes = d;
        if (eventos.size() > 690) {
            break;
        }
    }
    struct Lluvia
    {
        std::int16_t mes, dia;
        const char* texto;
    };
    static constexpr Lluvia kLluvias[] = {
        {1, 3, "Cuadrantidas  (~110 met/h)"}, {4, 22, "Liridas  (~18 met/h)"},
        {5, 6, "Eta Acuaridas  (~50 met/h)"}, {7, 30, "Delta Acuaridas  (~25 met/h)"},
        {8, 12, "Perseidas  (~100 met/h)"},   {10, 8, "Draconidas  (~10 met/h)"},
        {10, 21, "Orionidas  (~20 met/h)"},   {11, 17, "Leonidas  (~15 met/h)"},
        {12, 14, "Geminidas  (~120 met/h)"},  {12, 22, "Ursidas  (~10 met/h)"}};
    for (const Lluvia& l : kLluvias) {
        eventos.push_back({literal::DiaJuliano(anio, l.mes, l.dia, 0) - 2415018.5,
                           QStringLiteral("Lluvia de meteoros: ") + QLatin1String(l.texto), false});
    }
    for (std::size_t i = 1; i < eventos.size(); ++i) { // insertion sort: stable
        const Evento e = eventos[i];
        std::size_t k = i;
        while (k > 0 && eventos[k - 1].serie > e.serie) {
            eventos[k] = eventos[k - 1];
            --k;
        }
        eventos[k] = e;
    }
    for (Evento& llena : eventos) {
        if (llena.texto.left(10) != QStringLiteral("Luna llena")) {
            continue;
        }
        for (const Evento& e : eventos) {
            if (e.texto.startsWith(QStringLiteral("Perigeo")) && std::fabs(e.serie - llena.serie) < 1.5) {
                llena.texto += QStringLiteral("  (SUPERLUNA)");
                break;
            }
        }
    }
    if (eventos.empty()) {
        return QStringLiteral("(Sin eventos)");
    }
    QString texto;
    for (const Evento& e : eventos) {
        const FechaReloj f = DeSerie(e.serie);
        texto += TextoFecha(f) + QLatin1Char(' ') + (e.conHora ? TextoReloj(f) : QStringLiteral("     ")) +
                 QStringLiteral("  ") + e.texto + kFin;
    }
    return texto;
}

} // namespace literalBusquedas

#include "zona.h"

#include "fechaPlanificador.h"
#include "modFormato.h"
#include "modReloj.h"

#include <charconv>
#include <chrono>
#include <cmath>

namespace zona {

namespace {

constexpr std::int64_t kMedioDia = 43200; // seconds
constexpr std::int64_t kDia = 86400;

double HorasEnMinutosEnteros(std::int64_t segundos)
{
    return std::nearbyint(static_cast<double>(segundos) / 60.0) / 60.0;
}

} // namespace

RelojLocal RelojDelSistema()
{
    return {modReloj::DesfaseEn, modReloj::DiferenciaPresente};
}

double CalcularZonaParaFecha(std::int16_t anio, std::int16_t mes, std::int16_t dia, const RelojLocal& reloj)
{
    using namespace std::chrono;
    const sys_days primero{year{anio} / month{static_cast<unsigned>(mes)} / day{1}};
    const sys_seconds mediodia = primero + days{dia - 1} + hours{12};
    if (const auto desfase = reloj.DesfaseEn(mediodia.time_since_epoch().count()))
        return HorasEnMinutosEnteros(*desfase);

    std::int64_t diferencia = reloj.DiferenciaPresente() % kDia;
    if (diferencia > kMedioDia)
        diferencia -= kDia;
    else if (diferencia < -kMedioDia)
        diferencia += kDia;
    return HorasEnMinutosEnteros(diferencia);
}

QString TextoZona(double zona)
{
    // Fifteen digits are all that a double surely holds, so 0.1 stays 0.1.
    constexpr int kCifras = 15;
    char cifras[32];
    const auto fin = std::to_chars(cifras, cifras + sizeof cifras, zona == 0.0 ? 0.0 : zona,
                                   std::chars_format::general, kCifras);
    QString texto = QString::fromLatin1(cifras, static_cast<qsizetype>(fin.ptr - cifras));
    return texto.replace(QLatin1Char('.'), modFormato::SeparadoresSistema().decimal);
}

double LeerZona(const QString& texto)
{
    return modFormato::LeerNumero(texto);
}

} // namespace zona

QString ZonaPlanificador::Iniciar(double zonaPropuesta)
{
    ZonaActual = zonaPropuesta;
    TextoZonaAceptado = TextoZonaFoco = zona::TextoZona(zonaPropuesta);
    return TextoZonaAceptado;
}

std::optional<QString> ZonaPlanificador::AlCambiarFecha(
    std::int16_t anio, std::int16_t mes, std::int16_t dia, const QString& texto,
    const std::function<double(std::int16_t, std::int16_t, std::int16_t)>& proponer)
{
    if (!fechaPlanificador::FechaSirveParaZona(anio, mes, dia))
        return std::nullopt;
    const double escrita = zona::LeerZona(texto);
    if (std::abs(escrita - ZonaActual) > zona::kIgual)
        return std::nullopt;
    ZonaActual = proponer(anio, mes, dia);
    if (std::abs(escrita - ZonaActual) <= zona::kIgual)
        return std::nullopt;
    TextoZonaAceptado = TextoZonaFoco = zona::TextoZona(ZonaActual);
    return TextoZonaAceptado;
}

void ZonaPlanificador::AlGanarFoco(const QString& texto)
{
    TextoZonaFoco = texto;
}

ZonaPlanificador::Respuesta ZonaPlanificador::ConfirmarZona(const QString& texto,
                                                            const std::function<bool()>& preguntar)
{
    if (ZonaEnEdicion)
        return {true, std::nullopt};
    if (preguntando)
        return {};
    const QString t = texto.trimmed();
    if (t == TextoZonaAceptado.trimmed())
        return {true, std::nullopt};
    if (t.isEmpty() || t == QLatin1String("+") || t == QLatin1String("-") || t.endsWith(QLatin1Char('.')) ||
        t.endsWith(QLatin1Char(',')))
        return {};

    preguntando = true;
    const bool si = preguntar();
    preguntando = false;
    if (!si)
        return {false, TextoZonaAceptado};
    TextoZonaAceptado = TextoZonaFoco = texto;
    return {true, std::nullopt};
}

// palabras: the words of the result texts that other code compares.
//
// They are Spanish in every language: the marks of the calendar and the supermoon rule look for them, and
// so may a person who keeps such texts. Pure ASCII but for the degree sign.
#pragma once

#include <QLatin1String>

namespace palabras {

inline constexpr char16_t kGrado = u'\u00B0';
inline constexpr QLatin1String kFinLinea("\r\n");

// Messages that stand in place of a result.
inline constexpr QLatin1String kSinObservador("(Define primero un observador en el mapa)");
inline constexpr QLatin1String kFechaNoValida("(Fecha del programa no valida)");
inline constexpr QLatin1String kAnioNoValido("(Anyo no valido)");
inline constexpr QLatin1String kSinResultados("(Sin resultados en el rango)");
inline constexpr QLatin1String kSinEventos("(Sin eventos)");
inline constexpr QLatin1String kSinNoches("(Sin noches recomendables: revisa el observador y el anyo)");

// Events.
inline constexpr QLatin1String kLunaLlena("Luna llena");
inline constexpr QLatin1String kPerigeo("Perigeo");
inline constexpr QLatin1String kEclipseSol("Eclipse de Sol");
inline constexpr QLatin1String kEclipseLuna("Eclipse de Luna");
inline constexpr QLatin1String kLluvia("Lluvia de meteoros");
inline constexpr QLatin1String kEquinoccio("Equinoccio");
inline constexpr QLatin1String kSolsticio("Solsticio");
inline constexpr QLatin1String kSuperluna("SUPERLUNA");

} // namespace palabras

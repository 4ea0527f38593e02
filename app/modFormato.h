// modFormato: numbers to text and text to numbers, as every panel, card and tool prints and reads them.
//
// Printing follows the regional separators of the system, read once. Reading takes comma and point alike
// and never depends on the C library's locale.
//
// A pattern is made of one to three sections separated by ";": positive and zero; negative; zero. A
// section holds "0" (a digit, always printed), "#" (a digit, printed when there is one), "." (the decimal
// separator), "," between digit places before the point (thousands separators), and any other character
// as itself. A negative number without a section of its own gets a leading "-"; with one, only what
// the section prints.
//
// Rounding works on the decimal text of 15 significant digits, halves away from zero: 0.285 with "0.00"
// is 0.29 and 2.5 with "0" is 3, as one expects on paper, whatever the binary fraction behind. What rounds
// to zero prints as zero, without a sign and by the first (or the third) section.
#pragma once

#include <QString>

#include <cstdint>

namespace modFormato {

struct Separadores
{
    QString decimal; // "." or ","
    QString miles;   // between groups of three digits; may be empty
};

// The system's separators; the first call reads them.
const Separadores& SeparadoresSistema();

// The number in the pattern, with the system's separators. Not finite: "--".
QString Format(double valor, QStringView patron);

// The same with separators given.
QString Format(double valor, QStringView patron, const Separadores& separadores);

// The shortest decimal text that reads back as the same double, without exponent or thousands
// separators: what the settings file holds. Not finite: "0".
QString TextoNumero(double valor);
QString TextoNumero(double valor, const Separadores& separadores);

// A number typed by a person or found in a file: leading blanks skipped, "," taken as ".", reading stops at
// the first foreign character ("12x" is 12, "1,5 m" is 1.5). Exponents count ("1e3"). Bad
// text and what a double cannot hold give 0. Always finite.
double LeerNumero(QStringView texto);

// LeerNumero rounded, halves to the even neighbour ("2.5" is 2). Outside -32768..32767: 0.
std::int16_t LeerEntero16(QStringView texto);

// "dd/mm/yyyy", the calendar's fixed form; a year of fewer than four digits is padded with zeros.
QString TextoFecha(int anio, int mes, int dia);

// Minutes since midnight as "hh:mm"; 1440 is "24:00". Below 0 prints as 0.
QString TextoReloj(int minutos);

} // namespace modFormato

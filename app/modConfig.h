// modConfig: the user's settings, one record in memory and one file "Quintaluz.ini" in the data directory.
//
// The record is read at the start and written at the end, when a language is chosen and when the settings
// are accepted. A missing file, section or key leaves the default; a save that fails is silent and leaves
// the old file whole. The file takes "," and "." alike as decimal separator; numbers are written with that of
// the system.
#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace modConfig {

// Colours are packed as modColor tells; angles in degrees, north and east positive.
struct Ajustes
{
    std::uint32_t ColorCurvaSol = 0x00C8FF;  // RGB(255,200,0)
    std::uint32_t ColorCurvaLuna = 0xDCEBEB; // RGB(235,235,220)
    bool ObsTiene = true;
    double ObsLat = 40.4168; // Madrid, Puerta del Sol
    double ObsLon = -3.7038;
    QString TexturaGlobo;            // absolute path, or empty for the built-in texture
    std::int32_t TransicionMapa = 1; // effect between map and globe, 0 (none) to 2
    bool TgtTiene = false;
    double TgtLat = 0.0;
    double TgtLon = 0.0;
    bool InfoConsejos = true; // show tips over events and panels
    QString Idioma = QStringLiteral("es");
};

// The record that the whole program reads and changes.
Ajustes& ConfigApp();

void ConfigPorDefecto();

// Overlays the file on the record. A latitude beyond 90 degrees or a longitude beyond 180 is no place and
// leaves its field as it was; a colour is six hexadecimal digits RRGGBB or a packed decimal number, 0 when
// it is neither.
void LeerConfig();

// Writes the whole record, apart from the texture while empty and the target's coordinates while there
// is no target: those keep what the file holds.
void GuardarConfig();

// One value of the settings file; the default when section or key is missing.
QString LeerIni(QStringView seccion, QStringView clave, const QString& porDefecto = {});
void EscribirIni(QStringView seccion, QStringView clave, QStringView valor);

// Lets the user pick a colour; cancelling answers `inicial`. The dialog's 16 custom colours last for the
// session.
std::uint32_t ElegirColor(std::uint32_t inicial, QWidget* padre = nullptr);

// A path under the data directory as what follows it (compared without case), any other unchanged; and
// back. A drive letter, two leading backslashes or, outside Windows, a leading "/" make a text absolute; an
// empty or one-character text is answered as it is.
QString RutaRelativaApp(const QString& ruta);
QString RutaAbsolutaApp(const QString& texto);

} // namespace modConfig

// zona: the time zone of the planner, as a state machine without widgets.
//
// A zone is a plain number of hours east of UTC, fractions allowed; there is no table of regions. The
// planner proposes one for each date from the system's rules and treats a box that still shows the
// proposal as automatic: it follows the date. A zone typed by hand differs from the proposal, asks once
// for confirmation and then stays through date changes.
//
// The window keeps the box (txtTZ) and one ZonaPlanificador, writes into the box what the calls below answer,
// and does so with ZonaEnEdicion set, so that the box's own change events change nothing.
#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace zona {

// Two zones nearer than this, in hours, are the same one.
inline constexpr double kIgual = 0.0001;

// What the system knows of local time; both answers in seconds east of UTC.
struct RelojLocal
{
    // Offset in force at an instant, in seconds since 1970-01-01 00:00 UTC; nothing when the system
    // cannot tell.
    std::function<std::optional<std::int64_t>(std::int64_t utc)> DesfaseEn;
    // Present difference between the local and the universal clock face. Whole days in it do not matter.
    std::function<std::int64_t()> DiferenciaPresente;
};

// The program's clock (modReloj).
RelojLocal RelojDelSistema();

// Zone of a date in hours: the offset at its 12:00 UTC in whole minutes. Where the system cannot tell,
// the present difference of the clocks folded into half a day either side, which knows nothing of that
// date's daylight saving. The date is taken as it stands; a day past the month's end runs into the next.
double CalcularZonaParaFecha(std::int16_t anio, std::int16_t mes, std::int16_t dia, const RelojLocal& reloj);

// Shortest plain number with the regional decimal separator: "2", "5,5", "-3.5".
QString TextoZona(double zona);

// Number in the box: "," or "." as decimal separator, 0 for a text that is no number.
double LeerZona(const QString& texto);

} // namespace zona

class ZonaPlanificador
{
public:
    double ZonaActual = 0.0;    // hours, last proposed automatically
    QString TextoZonaAceptado;  // last accepted text of the box
    QString TextoZonaFoco;      // its text on gaining focus
    bool ZonaEnEdicion = false; // the program is writing into the box

    // Start of the program. Answers the text to write into the box.
    QString Iniciar(double zonaPropuesta);

    // A date box changed. Answers the text to write into the box, or nothing when it keeps its own: the
    // date is no date yet, the zone in the box was typed by hand, or the proposal is the same.
    //   texto      what the box shows
    //   proponer   CalcularZonaParaFecha bound to a clock; asked only when its answer counts
    std::optional<QString>
    AlCambiarFecha(std::int16_t anio, std::int16_t mes, std::int16_t dia, const QString& texto,
                   const std::function<double(std::int16_t, std::int16_t, std::int16_t)>& proponer);

    // The box gained the focus with this text.
    void AlGanarFoco(const QString& texto);

    struct Respuesta
    {
        bool aceptada = false;          // recompute with the text in the box
        std::optional<QString> reponer; // text to put back, after a No
    };

    // The box changed or was left with this text. Asks (true is Yes) only when the text differs from the
    // accepted one and is not half typed: empty, a lone sign, or ending in a separator. While a question
    // stands open, the events that it causes itself (the box loses the focus to it) ask no second one.
    Respuesta ConfirmarZona(const QString& texto, const std::function<bool()>& preguntar);

private:
    bool preguntando = false;
};

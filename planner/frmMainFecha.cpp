// frmMain: date, hour, zone and the playing of the day.
//
// Each change of a control runs a fixed sequence. While the program itself writes several controls
// (EscribiendoFecha), their change events wait and one sequence runs at the end.
#include "frmMain.h"

#include "animacion.h"

#include "modFormato.h"
#include "modI18n.h"
#include "modMensajes.h"
#include "modReloj.h"

#include <algorithm>

using modI18n::Traducir;

namespace {

constexpr int kTickAnimacionMs = 200;

double ProponerZona(std::int16_t anio, std::int16_t mes, std::int16_t dia)
{
    return zona::CalcularZonaParaFecha(anio, mes, dia, zona::RelojDelSistema());
}

} // namespace

FechaCivil frmMain::Fecha() const
{
    return {modFormato::LeerEntero16(plan->txtYear->text()), modFormato::LeerEntero16(plan->txtMonth->text()),
            modFormato::LeerEntero16(plan->txtDay->text())};
}

double frmMain::Zona() const
{
    return zona::LeerZona(plan->txtTZ->text());
}

void frmMain::ConectarFecha()
{
    for (QLineEdit* caja : {plan->txtYear, plan->txtMonth, plan->txtDay})
        connect(caja, &QLineEdit::textChanged, this, &frmMain::CambioFecha);
    connect(plan->txtTZ, &QLineEdit::textChanged, this, [this] {
        if (!zonaPlan.ZonaEnEdicion && ConfirmarZona())
            RecalcularPaneles(false);
    });
    plan->txtTZ->installEventFilter(this); // focus
    connect(plan->hsbHour, &BarraMinutos::Scroll, this, &frmMain::ArrastreHora);
    connect(plan->hsbHour, &BarraMinutos::Change, this, &frmMain::CambioHora);

    connect(plan->cmdAhora, &QPushButton::clicked, this, [this] {
        const QDateTime ahora = modReloj::Ahora();
        EscribirFecha({std::int16_t(ahora.date().year()), std::int16_t(ahora.date().month()),
                       std::int16_t(ahora.date().day())});
        plan->hsbHour->setValue(ahora.time().hour() * 60 + ahora.time().minute());
        RecalcularPaneles(false);
        RepintarMapa();
    });

    tmrAnimDia = new QTimer(this);
    tmrAnimDia->setInterval(kTickAnimacionMs);
    connect(tmrAnimDia, &QTimer::timeout, this, &frmMain::AvanzarAnimacion);
    connect(plan->cmdAnimDia, &QPushButton::clicked, this, &frmMain::AlternarAnimacion);
    const auto mostrarVelocidad = [this](int valor) {
        plan->lblVelocidadValor->setText(modFormato::Format(valor, u"00"));
    };
    connect(plan->hsbAnimVel, &BarraMinutos::Scroll, this, mostrarVelocidad);
    connect(plan->hsbAnimVel, &BarraMinutos::Change, this, mostrarVelocidad);
    mostrarVelocidad(plan->hsbAnimVel->value());
}

void frmMain::EscribirFecha(const FechaCivil& fecha)
{
    plan->txtYear->setText(QString::number(fecha.anio));
    plan->txtMonth->setText(QString::number(fecha.mes));
    plan->txtDay->setText(QString::number(fecha.dia));
}

void frmMain::EscribirZona(const QString& texto)
{
    zonaPlan.ZonaEnEdicion = true;
    plan->txtTZ->setText(texto);
    zonaPlan.ZonaEnEdicion = false;
}

void frmMain::SeguirZona()
{
    const FechaCivil f = Fecha();
    if (const auto texto = zonaPlan.AlCambiarFecha(f.anio, f.mes, f.dia, plan->txtTZ->text(), ProponerZona))
        EscribirZona(*texto);
}

bool frmMain::ConfirmarZona()
{
    const auto respuesta = zonaPlan.ConfirmarZona(plan->txtTZ->text(), [this] {
        return modMensajes::Preguntar(this, Traducir("msg.tz.confirmar.pregunta"),
                                      Traducir("msg.tz.confirmar.titulo"));
    });
    if (respuesta.reponer)
        EscribirZona(*respuesta.reponer);
    return respuesta.aceptada;
}

void frmMain::CambioFecha()
{
    if (estado.EscribiendoFecha)
        return;
    SeguirZona();
    RecalcularPaneles(false);
}

void frmMain::CambioHora()
{
    if (estado.EscribiendoFecha)
        return;
    RecalcularPaneles(false);
    RepintarMapa();
}

void frmMain::ArrastreHora()
{
    RecalcularPaneles(true);
    plan->repaint();
    RepintarMapa();
}

void frmMain::IrAFechaHora(std::int16_t anio, std::int16_t mes, std::int16_t dia, std::int16_t hora,
                           std::int16_t minuto)
{
    estado.EscribiendoFecha = true;
    EscribirFecha({anio, mes, dia});
    plan->hsbHour->setValue(
        std::clamp(hora * 60 + minuto, plan->hsbHour->minimum(), plan->hsbHour->maximum()));
    estado.EscribiendoFecha = false;
    SeguirZona();
    RecalcularPaneles(false);
    RepintarMapa();
}

void frmMain::AlternarAnimacion()
{
    if (tmrAnimDia->isActive())
        tmrAnimDia->stop();
    else
        tmrAnimDia->start();
    plan->RotularAnimacion(tmrAnimDia->isActive());
}

void frmMain::AvanzarAnimacion()
{
    if (estado.Cerrando)
        return;
    plan->hsbHour->setValue(animacion::SiguienteMinuto(plan->hsbHour->value(), plan->hsbAnimVel->value(),
                                                       plan->hsbHour->minimum()));
}

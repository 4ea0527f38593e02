#include "MarcoAstros.h"

#include "modI18n.h"

#include <QHash>

using modI18n::Traducir;

namespace {

constexpr int kLadoLuna = 112; // the Moon's picture, logical pixels

// A day whose numbers are as wide as they come, and a phase of each name.
constexpr modAstro::MomentosDia kDiaAncho = [] {
    modAstro::MomentosDia m;
    for (double* momento : {&m.SolOrto, &m.SolTransito, &m.SolOcaso, &m.CivilAlba, &m.CivilOcaso,
                            &m.NauticoAlba, &m.NauticoOcaso, &m.AstroAlba, &m.AstroOcaso, &m.DoradaAM,
                            &m.DoradaPM, &m.AzulAM, &m.AzulPM, &m.LunaOrto, &m.LunaTransito, &m.LunaOcaso})
        *momento = 0.5;
    m.SolAz = m.LunaAz = 288.8;
    m.SolAlt = m.LunaAlt = -88.8;
    m.LunaIlum = 1.0;
    m.LunaDist = 388888;
    return m;
}();
constexpr double kFasesModelo[] = {0.02, 0.20, 0.25, 0.40, 0.50, 0.60, 0.75, 0.88};

void Anadir(Seccion* seccion, std::initializer_list<std::pair<EtiquetaDato**, const char*>> lineas)
{
    for (const auto& [linea, nombre] : lineas) {
        *linea = new EtiquetaDato(nombre, seccion);
        seccion->Filas()->addWidget(*linea);
    }
}

} // namespace

MarcoAstros::MarcoAstros(QWidget* padre) : MarcoLateral("Frame2", padre)
{
    secSol = NuevaSeccion("secSol");
    Anadir(secSol, {{&lblSunRise, "lblSunRise"},
                    {&lblSunTransit, "lblSunTransit"},
                    {&lblSunSet, "lblSunSet"},
                    {&lblSunAz, "lblSunAz"},
                    {&lblSunAlt, "lblSunAlt"},
                    {&lblGold, "lblGold"},
                    {&lblBlue, "lblBlue"},
                    {&lblCivil, "lblCivil"},
                    {&lblNaut, "lblNaut"},
                    {&lblAstro, "lblAstro"}});

    secLuna = NuevaSeccion("secLuna");
    picLuna = new Lienzo(contenido);
    picLuna->setObjectName(QStringLiteral("picLuna"));
    picLuna->setFixedSize(kLadoLuna, kLadoLuna);
    secLuna->Filas()->addWidget(picLuna, 0, Qt::AlignHCenter);
    Anadir(secLuna, {{&lblMoonPhase, "lblMoonPhase"},
                     {&lblMoonIllum, "lblMoonIllum"},
                     {&lblMoonRise, "lblMoonRise"},
                     {&lblMoonTransit, "lblMoonTransit"},
                     {&lblMoonSet, "lblMoonSet"},
                     {&lblMoonAz, "lblMoonAz"},
                     {&lblMoonAlt, "lblMoonAlt"},
                     {&lblMoonDist, "lblMoonDist"}});

    Cerrar();
}

void MarcoAstros::Retraducir()
{
    secSol->setTitulo(Traducir("main.sec.sol"));
    secLuna->setTitulo(Traducir("main.sec.luna"));
    picLuna->setAccessibleName(Traducir("main.acc.luna"));
    MedirLineas();
}

std::vector<std::pair<EtiquetaDato*, QString>> MarcoAstros::Repartir(const textosPanel::TextosAstros& t) const
{
    return {{lblSunRise, t.SunRise},     {lblSunTransit, t.SunTransit}, {lblSunSet, t.SunSet},
            {lblSunAz, t.SunAz},         {lblSunAlt, t.SunAlt},         {lblGold, t.Gold},
            {lblBlue, t.Blue},           {lblCivil, t.Civil},           {lblNaut, t.Naut},
            {lblAstro, t.Astro},         {lblMoonRise, t.MoonRise},     {lblMoonTransit, t.MoonTransit},
            {lblMoonSet, t.MoonSet},     {lblMoonAz, t.MoonAz},         {lblMoonAlt, t.MoonAlt},
            {lblMoonPhase, t.MoonPhase}, {lblMoonIllum, t.MoonIllum},   {lblMoonDist, t.MoonDist}};
}

void MarcoAstros::Mostrar(const textosPanel::TextosAstros& t)
{
    for (const auto& [linea, texto] : Repartir(t))
        linea->setText(texto);
    picLuna->update();
}

// Each line is given the widest text of its kind in the present language.
void MarcoAstros::MedirLineas()
{
    modAstro::MomentosDia m = kDiaAncho;
    const QString marca = EtiquetaDato::Piezas(textosPanel::Astros(m, 0).Gold).value(3);
    for (EtiquetaDato* linea : {lblGold, lblBlue, lblCivil, lblNaut, lblAstro})
        linea->PonerMarca(marca);
    QHash<EtiquetaDato*, QString> modelos;
    for (const double fase : kFasesModelo) {
        m.LunaFase = fase;
        for (const auto& [linea, texto] : Repartir(textosPanel::Astros(m, 0)))
            if (linea->AnchoDe(texto) >= linea->AnchoDe(modelos.value(linea)))
                modelos[linea] = texto;
    }
    for (auto i = modelos.cbegin(); i != modelos.cend(); ++i)
        i.key()->PonerModelo(i.value());
}

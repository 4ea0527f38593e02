// PlanificadorFalso: a planner of plain values for the tests of the tool windows. It answers the searches
// with the real ones and writes down where it is sent.
#pragma once

#include "Planificador.h"
#include "contextoBusqueda.h"
#include "modAzimut.h"
#include "modEventos.h"
#include "modViaLactea.h"

#include <array>
#include <functional>
#include <vector>

class PlanificadorFalso : public Planificador
{
public:
    bool hayObs = true;
    double lat = 40.4168, lon = -3.7038; // Madrid
    FechaCivil fecha{2026, 8, 12};
    QString textoAnio = QStringLiteral("2026");
    double hora = 20.5;
    double zona = 2;

    std::vector<std::array<int, 5>> idas;   // every IrAFechaHora: year, month, day, hour, minute
    mutable std::function<void()> alBuscar; // runs inside each search
    struct Peticion
    {
        bool luna = false;
        double azimut = 0;
        std::int32_t dias = 0;
    };
    mutable Peticion peticion; // the last azimuth search

    double obsLat() const override { return lat; }
    double obsLon() const override { return lon; }
    bool TieneObs() const override { return hayObs; }
    double TgtLat() const override { return 0; }
    double TgtLon() const override { return 0; }
    bool TieneTgt() const override { return false; }
    FechaCivil Fecha() const override { return fecha; }
    QString TextoAnio() const override { return textoAnio; }
    double Hora() const override { return hora; }
    double Zona() const override { return zona; }
    void IrAFechaHora(std::int16_t anio, std::int16_t mes, std::int16_t dia, std::int16_t h,
                      std::int16_t minuto) override
    {
        idas.push_back({anio, mes, dia, h, minuto});
    }
    void ActivarDestino() override {}

    QString BuscarAzimut(bool luna, double azimut, std::int32_t dias) const override
    {
        peticion = {luna, azimut, dias};
        Avisar();
        return modAzimut::BuscarAzimut(LeerContexto(*this), luna, azimut, dias);
    }
    int RutaCielo(bool luna, std::span<double> azimutes, std::span<double> altitudes) const override
    {
        return modAzimut::RutaCielo(LeerContexto(*this), luna, azimutes, altitudes);
    }
    QString EventosCelestes(std::int16_t anio) const override
    {
        Avisar();
        return modEventos::EventosCelestes(LeerContexto(*this), anio);
    }
    QString MejoresNochesVL(std::int16_t anio) const override
    {
        Avisar();
        return modViaLactea::MejoresNochesVL(LeerContexto(*this), anio);
    }
    bool SerieAnualVL(std::int16_t anio, std::vector<std::int16_t>& calidad) const override
    {
        return modViaLactea::SerieAnualVL(LeerContexto(*this), anio, calidad);
    }

private:
    void Avisar() const
    {
        if (alBuscar) {
            alBuscar();
        }
    }
};

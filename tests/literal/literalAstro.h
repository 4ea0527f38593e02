// literal: the astronomy core written formula by formula, without any thought of speed.
//
// The yardstick of the tests and the benchmarks: it shares no code, table or constant with the product,
// so that a slip in one is not repeated in the other. Same names, units and argument order as modAstro.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace literal {

double DiaJuliano(std::int16_t anio, std::int16_t mes, std::int16_t dia, double fraccion);
double SiglosJ2000(double jd);
double Norm360(double x);
double Norm2Pi(double x);
double Atan2(double y, double x);
double ArcoSeno(double x);
double ArcoCoseno(double x);
double AjustarFraccion(double t, double zona);
std::string FormatearHora(double f, double zona);
std::string Compas8(double az);
double ReducirAPi(double x);
std::string HoraDeDiaJuliano(double jd, double zona);

void PosicionSol(double jd, double& alfa, double& delta, double& distancia, double& tsg);
void PuntoSubsolar(double jd, double& lat, double& lon);
void PosicionLuna(double jd, double& alfa, double& delta, double& distancia);
void PosicionLunaTopocentrica(double jd, double lat, double lon, double gst, double& alfa, double& delta,
                              double& semidiametro);
void FaseLunar(double jd, double& fase, double& iluminada, double& distancia);
double LatitudEclipticaLuna(double jd);

// The skyline of the literal solver: set here, read by the routines that take a horizon flag.
void PonerHorizonte(const std::array<double, 720>& altitudes);
double HorizonteEnAzimut(double az);

void EcuatorialAHorizontal(double alfa, double delta, double gst, double lat, double lon, double& azimut,
                           double& altitud);
void AzAltCuerpo(double jd, double lat, double lon, bool luna, double& altitud, double& azimut);
double RefinarCruce(double jd0, double bajo, double alto, double objetivo, double lat, double lon, bool luna,
                    bool horizonte);
void BuscarCruceAltitud(double jd0, double lat, double lon, double objetivo, bool luna, bool horizonte,
                        double& orto, double& maximo, double& ocaso);

// The 31 numbers of one day in their order: see modAstro::MomentosDia.
std::array<double, 31> CalcularMomentosDia(std::int16_t anio, std::int16_t mes, std::int16_t dia, double hora,
                                           double zona, double lat, double lon, bool horizonte);

} // namespace literal

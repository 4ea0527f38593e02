// SerieLuna: the sums of the Moon's periodic terms.
#pragma once

namespace modAstro {

// Ecliptic place of the Moon, geocentric, mean equinox of date.
struct EclipticaLuna
{
    double lambda;    // longitude, degrees, -190 to 190
    double beta;      // latitude, degrees
    double distancia; // kilometres
};

// All 120 terms and the additive ones at T, Julian centuries since J2000.
//
// No sine is taken per term: the four fundamental angles become unit complex numbers, their powers are
// multiplied together, and each term is an amplitude times such a product. Against sines of the summed
// angles the result differs by less than 1e-12 degree.
EclipticaLuna SumarSerieLuna(double t);

} // namespace modAstro

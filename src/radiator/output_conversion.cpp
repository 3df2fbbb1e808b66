#include "radiator/output_conversion.h"

#include "platform/rounding.h"

#include <cmath>

namespace {

constexpr double kNormVorlauf = 75.0;
constexpr double kNormRuecklauf = 65.0;
constexpr double kNormRaum = 20.0;

constexpr double kSmallestGivenValue = 0.1;

constexpr double kFactorStep = 0.001;

double OrDefault(double value, double standard)
{
    return value < kSmallestGivenValue ? standard : value;
}

} // namespace

double GetLeistungsFaktor(double vorlauf, double ruecklauf, double raum)
{
    return GetLeistungsFaktorEx(vorlauf, ruecklauf, raum, 0.0, 0.0);
}

double GetLeistungsFaktorEx(double vorlauf, double ruecklauf, double raum, double spreizungsteiler,
                            double exponent)
{
    if (!(vorlauf > 0.0) || !(ruecklauf > 0.0)) {
        return 1.0;
    }
    const double n = OrDefault(exponent, Heizkoerperexponent);
    const double a = OrDefault(spreizungsteiler, Spreizungsteiler);
    const double design = GetTemperaturDifferenz(vorlauf, ruecklauf, raum, a);
    const double standard = GetTemperaturDifferenz(kNormVorlauf, kNormRuecklauf, kNormRaum, a);
    return RoundTo(std::pow(design / standard, n), kFactorStep);
}

double GetTemperaturDifferenz(double vorlauf, double ruecklauf, double raum,
                              double spreizungsteiler)
{
    if (!(vorlauf > 0.0) || !(ruecklauf > 0.0) || !(ruecklauf - raum > 0.0)) {
        return 1.0;
    }
    const double a = OrDefault(spreizungsteiler, Spreizungsteiler);
    // In this form a supply equal to the return leaves exactly no spread.
    const double supply = ruecklauf + (vorlauf - ruecklauf) / a;
    return (supply - ruecklauf) / std::log((supply - raum) / (ruecklauf - raum));
}

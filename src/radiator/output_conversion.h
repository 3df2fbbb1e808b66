#pragma once

/// Conversion of a radiator's EN 442 output (75/65/20 °C) to design temperatures. Temperatures are
/// degrees Celsius, results are plain factors and differences; there is no state.

/// The radiator exponent n of EN 442 that is taken for every radiator.
inline constexpr double Heizkoerperexponent = 1.33;

/// The divisor of the spread between supply and return that is taken unless one is given.
inline constexpr double Spreizungsteiler = 1.25;

/// Factor by which an EN 442 output is multiplied, rounded to 0.001. The exponent is
/// `Heizkoerperexponent` for every radiator; that of a product plays no part.
///
/// 1.0 if supply or return is not above 0. A return at or below the room temperature is no error
/// here: the difference then counts as 1 K, which gives 0.006. Supply equal to return gives
/// not-a-number.
double GetLeistungsFaktor(double vorlauf, double ruecklauf, double raum);

/// The same with a divisor of the spread and an exponent of one's own; a value below 0.1 stands for
/// the default, `Spreizungsteiler` and `Heizkoerperexponent`.
double GetLeistungsFaktorEx(double vorlauf, double ruecklauf, double raum, double spreizungsteiler,
                            double exponent);

/// The logarithmic mean temperature difference in K, with the supply temperature drawn toward the
/// return temperature: the spread is divided by `spreizungsteiler` (below 0.1: by
/// `Spreizungsteiler`) first. 1.0 if supply or return is not above 0, or the return not above the
/// room temperature.
double GetTemperaturDifferenz(double vorlauf, double ruecklauf, double raum,
                              double spreizungsteiler);

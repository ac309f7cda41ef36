// Logarithm and trigonometry with the same bits on every system, where each C library has a last bit of its
// own: series in twice the precision, rounded once, so that the result is the nearest double (but for about
// one value in 2^50).
#pragma once

namespace tarvel {

/// The natural logarithm of x > 0.
double Logaritmo(double x);
/// So up to 1E+17 radians. Farther on the digits of pi run out: the last bit may be another one from 1E+27
/// on, and past 1E+49 no digit is right.
double Seno(double radianti);
double Coseno(double radianti);
/// In radians, between -pi/2 and pi/2.
double Arcotangente(double x);

}  // namespace tarvel

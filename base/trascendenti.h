// Logarithm and trigonometry with the same bits on every system; the C libraries differ in the last bit. The
// series are summed in twice a double's precision and rounded once: the result is the nearest double but for
// about one value in 2^50.
#pragma once

namespace tarvel {

/// The natural logarithm of x > 0.
double Logaritmo(double x);
/// The nearest double up to 1E+17 radians. For larger angles the digits of pi run out: from 1E+27 on the last
/// bit may be wrong, past 1E+49 every digit is.
double Seno(double radianti);
double Coseno(double radianti);
/// In radians, between -pi/2 and pi/2.
double Arcotangente(double x);

}  // namespace tarvel

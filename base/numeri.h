// Numbers to text and back, never through a locale: one way to write them, three ways to read.
#pragma once

#include <optional>
#include <string_view>

#include "base/reale.h"
#include "base/testo.h"

namespace tarvel {

/// The shortest decimal form with at most 15 significant digits: '.5', '-.25', '3', '12.75',
/// '1E-05', '1.5E+16', '2036027283214060'. Exponent form below 1E-04, and from 1E+15 upwards where it is
/// not longer than the plain one. Never "-0".
Testo FormatoNumero(Reale valore);

/// The same, appended to `testo`; `separatore` stands for the point, `zeroIniziale` puts a zero
/// before it below 1 ('0,5').
void AccodaNumero(Testo& testo, Reale valore, char separatore = '.', bool zeroIniziale = false);

/// FormatoNumero with as many of the 15 digits as leave it within so many characters: 12 at least in 19.
void AccodaNumeroEntro(Testo& testo, Reale valore, std::size_t spazio);

/// The printed form: a blank in the sign's place of a number that is not negative, and one blank
/// after it (' 13 ', '-2.5 ').
void AccodaStampato(Testo& testo, Reale valore, char separatore = '.');

/// Lenient conversion of the longest prefix that is a number; 0 where there is none. Blanks, tabs
/// and line feeds are passed over wherever they stand; '&H' and '&O' introduce a hexadecimal or
/// octal integer. A number beyond the range of a double becomes the largest one of its sign.
Reale ConvertiNumero(std::string_view testo);

/// The same; nothing where the text does not begin with a number.
std::optional<Reale> InizioNumerico(std::string_view testo);

/// Strict conversion: the whole text is one number with '.' as the point, within the range of a double;
/// no blanks.
std::optional<Reale> NumeroInvariante(std::string_view testo);

/// Strict conversion in the regional format. Blanks at both ends are dropped; thousands separators
/// count only between proper groups of three of a number without an exponent. A text that is no number in
/// that form is tried in the invariant one.
std::optional<Reale> NumeroRegionale(std::string_view testo, char decimale, char migliaia);

}  // namespace tarvel

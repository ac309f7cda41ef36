// 8-bit text: one byte a character, in the Western European Windows code page (1252), so that
// lengths, columns and character codes mean what the files say. UTF-8 lives only at the edges.
#pragma once

#include <string>
#include <string_view>

namespace tarvel {

using Testo = std::string;

/// The 8-bit text of a UTF-8 one; a character the code page lacks, or a malformed byte, becomes '?'.
Testo DaUtf8(std::string_view utf8);

/// The UTF-8 text of an 8-bit one; the five codes without a character become U+FFFD.
std::string InUtf8(std::string_view testo);

/// Whether the text can be UTF-8: it has no malformed byte.
bool Utf8Valido(std::string_view testo);

/// Literals with accented letters: "già"_t.
inline Testo operator""_t(const char* utf8, std::size_t lunghezza) {
  return DaUtf8({utf8, lunghezza});
}

char Minuscola(char c);
char Maiuscola(char c);
Testo Minuscole(std::string_view testo);
Testo Maiuscole(std::string_view testo);

/// Takes the first word off a line, which keeps the rest from the separator (blank or tab) on. The word of a
/// line without words is empty, and the line stays as it is.
std::string_view PrimaParola(std::string_view& riga);

/// The text without the blanks (code 32 only) at both ends.
std::string_view SenzaBlanchi(std::string_view testo);

}  // namespace tarvel

// Conversions of the 8-bit text. Only codes 128 to 159 differ from the first 256 of Unicode.
#include "base/testo.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace tarvel {
namespace {

constexpr std::array<std::uint16_t, 32> kCodici128 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  //
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,       //
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  //
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

constexpr char32_t kMalformato = 0xFFFD;

char InCodice(char32_t u) {
  if (u < 0x80 || (u >= 0xA0 && u <= 0xFF)) return static_cast<char>(u);
  const auto* posto = std::find(kCodici128.begin(), kCodici128.end(), u);
  if (u == 0 || posto == kCodici128.end()) return '?';
  return static_cast<char>(0x80 + (posto - kCodici128.begin()));
}

// Takes one character off the front; a malformed sequence costs one byte.
char32_t Preleva(std::string_view& utf8) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
  const unsigned primo = byte(0);
  const std::size_t seguito = primo < 0x80 ? 0 : primo >= 0xF0 ? 3 : primo >= 0xE0 ? 2 : 1;
  char32_t u = seguito == 0 ? primo : primo & (0x3Fu >> seguito);
  bool valido = primo < 0x80 || (primo >= 0xC2 && primo < 0xF5 && seguito < utf8.size());
  for (std::size_t i = 1; valido && i <= seguito; ++i) {
    valido = (byte(i) & 0xC0) == 0x80;
    u = (u << 6) | (byte(i) & 0x3Fu);
  }
  utf8.remove_prefix(valido ? seguito + 1 : 1);
  return valido ? u : kMalformato;
}

void Accoda(std::string& utf8, char32_t u) {
  if (u < 0x80) {
    utf8 += static_cast<char>(u);
  } else if (u < 0x800) {
    utf8 += static_cast<char>(0xC0 | (u >> 6));
    utf8 += static_cast<char>(0x80 | (u & 0x3F));
  } else {
    utf8 += static_cast<char>(0xE0 | (u >> 12));
    utf8 += static_cast<char>(0x80 | ((u >> 6) & 0x3F));
    utf8 += static_cast<char>(0x80 | (u & 0x3F));
  }
}

struct Coppia {
  unsigned char maiuscola, minuscola;
};
constexpr std::array<Coppia, 4> kCoppie = {{{0x8A, 0x9A}, {0x8C, 0x9C}, {0x8E, 0x9E}, {0x9F, 0xFF}}};

}  // namespace

Testo DaUtf8(std::string_view utf8) {
  Testo testo;
  testo.reserve(utf8.size());
  while (!utf8.empty()) testo += InCodice(Preleva(utf8));
  return testo;
}

std::string InUtf8(std::string_view testo) {
  std::string utf8;
  utf8.reserve(testo.size());
  for (const char c : testo) {
    const unsigned codice = static_cast<unsigned char>(c);
    const bool particolare = codice >= 0x80 && codice < 0xA0;
    const char32_t u = particolare ? kCodici128[codice - 0x80] : codice;
    Accoda(utf8, u == 0 && particolare ? kMalformato : u);
  }
  return utf8;
}

bool Utf8Valido(std::string_view testo) {
  while (!testo.empty())
    if (Preleva(testo) == kMalformato) return false;
  return true;
}

char Minuscola(char c) {
  const auto u = static_cast<unsigned char>(c);
  if ((u >= 'A' && u <= 'Z') || (u >= 0xC0 && u <= 0xDE && u != 0xD7)) return static_cast<char>(u + 32);
  for (const Coppia& p : kCoppie)
    if (u == p.maiuscola) return static_cast<char>(p.minuscola);
  return c;
}

char Maiuscola(char c) {
  const auto u = static_cast<unsigned char>(c);
  if ((u >= 'a' && u <= 'z') || (u >= 0xE0 && u <= 0xFE && u != 0xF7)) return static_cast<char>(u - 32);
  for (const Coppia& p : kCoppie)
    if (u == p.minuscola) return static_cast<char>(p.maiuscola);
  return c;
}

Testo Minuscole(std::string_view testo) {
  Testo esito(testo);
  std::transform(esito.begin(), esito.end(), esito.begin(), Minuscola);
  return esito;
}

Testo Maiuscole(std::string_view testo) {
  Testo esito(testo);
  std::transform(esito.begin(), esito.end(), esito.begin(), Maiuscola);
  return esito;
}

std::string_view PrimaParola(std::string_view& riga) {
  constexpr std::string_view kSeparatori = " \t";
  const auto inizio = riga.find_first_not_of(kSeparatori);
  if (inizio == std::string_view::npos) return {};
  const auto fine = std::min(riga.find_first_of(kSeparatori, inizio), riga.size());
  const std::string_view parola = riga.substr(inizio, fine - inizio);
  riga.remove_prefix(fine);
  return parola;
}

std::string_view SenzaBlanchi(std::string_view testo) {
  const auto primo = testo.find_first_not_of(' ');
  if (primo == std::string_view::npos) return {};
  return testo.substr(primo, testo.find_last_not_of(' ') - primo + 1);
}

}  // namespace tarvel

// The text forms of numbers, built on to_chars and from_chars.
#include "base/numeri.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <limits>

namespace tarvel {
namespace {

constexpr int kCifre = 15;
constexpr double kMassimo = std::numeric_limits<double>::max();

bool Cifra(char c) {
  return c >= '0' && c <= '9';
}

// The significant digits of a magnitude, without trailing zeros, and the exponent of the first.
struct Cifre {
  std::array<char, 20> cifra{};
  int quante = 0;
  int esponente = 0;
};

Cifre Scomponi(double grandezza) {
  std::array<char, 32> testo{};
  auto fine =
      std::to_chars(testo.data(), testo.data() + testo.size(), grandezza, std::chars_format::scientific).ptr;
  const auto lunghezzaMantissa = [&] {
    return std::string_view(testo.data(), fine).find('e');
  };
  if (lunghezzaMantissa() > kCifre + 1)
    fine = std::to_chars(testo.data(), testo.data() + testo.size(), grandezza, std::chars_format::scientific,
                         kCifre - 1)
               .ptr;

  Cifre esito;
  const char* p = testo.data();
  for (; *p != 'e'; ++p)
    if (*p != '.') esito.cifra[static_cast<std::size_t>(esito.quante++)] = *p;
  while (esito.quante > 1 && esito.cifra[static_cast<std::size_t>(esito.quante - 1)] == '0') --esito.quante;
  p += p[1] == '+' ? 2 : 1;
  std::from_chars(p, fine, esito.esponente);
  return esito;
}

void AccodaEsponente(Testo& testo, int esponente) {
  testo += 'E';
  testo += esponente < 0 ? '-' : '+';
  const int grandezza = std::abs(esponente);
  if (grandezza < 10) testo += '0';
  testo += std::to_string(grandezza);
}

// A decimal number at the start of `s`: sign, digits with one point, exponent.
struct Scansione {
  std::size_t lunghezza = 0;  // 0: no number there
  double valore = 0;
};

Scansione Scandisci(std::string_view s, std::string_view segniEsponente) {
  std::size_t i = 0;
  const bool negativo = !s.empty() && s[0] == '-';
  if (!s.empty() && (s[0] == '-' || s[0] == '+')) ++i;
  const std::size_t inizio = i;

  long long potenza = 0;  // power of ten of the first digit that is not zero
  bool cifre = false, nonZero = false, punto = false;
  for (; i < s.size() && (Cifra(s[i]) || (s[i] == '.' && !punto)); ++i) {
    if (s[i] == '.') {
      punto = true;
      continue;
    }
    cifre = true;
    if (!nonZero && punto) --potenza;
    if (nonZero && !punto) ++potenza;
    nonZero = nonZero || s[i] != '0';
  }
  if (!cifre) return {};

  const std::size_t fineMantissa = i;
  long long esponente = 0;
  if (i < s.size() && segniEsponente.find(s[i]) != std::string_view::npos) {
    std::size_t j = i + 1;
    const bool meno = j < s.size() && s[j] == '-';
    if (j < s.size() && (s[j] == '-' || s[j] == '+')) ++j;
    if (j < s.size() && Cifra(s[j])) {
      constexpr long long kOltreOgniRange = 1'000'000'000'000;
      for (; j < s.size() && Cifra(s[j]); ++j)
        if (esponente < kOltreOgniRange) esponente = esponente * 10 + (s[j] - '0');
      if (meno) esponente = -esponente;
      i = j;
    }
  }

  Scansione esito{i, 0};
  if (!nonZero) return esito;
  if (potenza + esponente > std::numeric_limits<double>::max_exponent10) {
    esito.valore = kMassimo;
  } else if (potenza + esponente > -400) {
    // from_chars knows neither 'D' nor a leading '+': the exponent is written anew.
    std::string_view mantissa = s.substr(inizio, fineMantissa - inizio);
    Testo conEsponente;
    if (esponente != 0) {
      conEsponente = Testo(mantissa) + 'e' + std::to_string(esponente);
      mantissa = conEsponente;
    }
    const auto letto = std::from_chars(mantissa.data(), mantissa.data() + mantissa.size(), esito.valore);
    if (letto.ec == std::errc::result_out_of_range) esito.valore = potenza + esponente > 0 ? kMassimo : 0;
  }
  if (negativo) esito.valore = -esito.valore;
  return esito;
}

Reale InteroConBase(std::string_view cifre, int base) {
  double valore = 0;
  for (const char c : cifre) {
    const char m = Minuscola(c);
    const int cifra = Cifra(m) ? m - '0' : m >= 'a' && m <= 'f' ? m - 'a' + 10 : base;
    if (cifra >= base) break;
    valore = valore * base + cifra;
    if (valore > kMassimo) return kMassimo;
  }
  return valore;
}

// The text in invariant form, or nothing where the thousands separators stand wrong.
std::optional<Testo> Invariante(std::string_view testo, char decimale, char migliaia) {
  const auto virgola = testo.find(decimale);
  const auto inizioEsponente = testo.find_first_of("eE");
  const auto fineIntera = std::min(std::min(virgola, inizioEsponente), testo.size());
  Testo esito;
  std::size_t inGruppo = 0;
  bool gruppi = false;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const char c = testo[i];
    if (c == migliaia && i < fineIntera) {
      if (inGruppo == 0 || inGruppo > 3 || (gruppi && inGruppo != 3)) return std::nullopt;
      gruppi = true;
      inGruppo = 0;
    } else if (i == virgola) {
      esito += '.';
    } else if (c == '.') {
      return std::nullopt;
    } else {
      esito += c;
      if (i < fineIntera && Cifra(c)) ++inGruppo;
    }
  }
  if (gruppi && inGruppo != 3) return std::nullopt;
  return esito;
}

}  // namespace

void AccodaNumero(Testo& testo, Reale valore, char separatore, bool zeroIniziale) {
  const double v = valore.Valore();
  if (v == 0) {
    testo += '0';
    return;
  }
  if (v < 0) testo += '-';
  const Cifre c = Scomponi(std::fabs(v));
  const auto cifre = std::string_view(c.cifra.data(), static_cast<std::size_t>(c.quante));
  if (c.esponente >= kCifre || c.esponente < -4) {
    testo += cifre[0];
    if (c.quante > 1) (testo += separatore) += cifre.substr(1);
    AccodaEsponente(testo, c.esponente);
  } else if (c.esponente < 0) {
    if (zeroIniziale) testo += '0';
    testo += separatore;
    testo.append(static_cast<std::size_t>(-c.esponente - 1), '0');
    testo += cifre;
  } else {
    const auto intere = static_cast<std::size_t>(c.esponente + 1);
    testo += cifre.substr(0, intere);
    if (cifre.size() < intere) testo.append(intere - cifre.size(), '0');
    if (cifre.size() > intere) (testo += separatore) += cifre.substr(intere);
  }
}

Testo FormatoNumero(Reale valore) {
  Testo testo;
  AccodaNumero(testo, valore);
  return testo;
}

void AccodaStampato(Testo& testo, Reale valore, char separatore) {
  if (valore >= 0) testo += ' ';
  AccodaNumero(testo, valore, separatore);
  testo += ' ';
}

Reale ConvertiNumero(std::string_view testo) {
  constexpr std::string_view kIgnorati = " \t\n";
  Testo pulito;
  if (testo.find_first_of(kIgnorati) != std::string_view::npos) {
    for (const char c : testo)
      if (kIgnorati.find(c) == std::string_view::npos) pulito += c;
    testo = pulito;
  }
  if (testo.size() >= 2 && testo[0] == '&') {
    const char prefisso = Maiuscola(testo[1]);
    if (prefisso == 'H') return InteroConBase(testo.substr(2), 16);
    if (prefisso == 'O') return InteroConBase(testo.substr(2), 8);
  }
  return Scandisci(testo, "eEdD").valore;
}

std::optional<Reale> NumeroInvariante(std::string_view testo) {
  const Scansione s = Scandisci(testo, "eE");
  if (s.lunghezza == 0 || s.lunghezza != testo.size()) return std::nullopt;
  return s.valore;
}

std::optional<Reale> NumeroRegionale(std::string_view testo, char decimale, char migliaia) {
  const std::string_view parola = SenzaBlanchi(testo);
  if (const auto invariante = Invariante(parola, decimale, migliaia))
    if (const auto valore = NumeroInvariante(*invariante)) return valore;
  return NumeroInvariante(parola);
}

}  // namespace tarvel

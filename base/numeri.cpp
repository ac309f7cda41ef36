// The text forms of numbers, built on to_chars and from_chars.
#include "base/numeri.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace tarvel {
namespace {

constexpr int kCifre = 15;
constexpr double kMassimo = std::numeric_limits<double>::max();

bool Cifra(char c) {
  return c >= '0' && c <= '9';
}

// The significant digits of a magnitude, without trailing zeros, and the exponent of the first. The
// digits stand in the buffer of who asks.
struct Cifre {
  std::string_view cifre;
  int esponente = 0;
};
using BufferCifre = std::array<char, 32>;

Cifre Scomponi(double grandezza, int quante, BufferCifre& buffer) {
  char* const inizio = buffer.data();
  char* const limite = inizio + buffer.size();
  const char* fine = std::to_chars(inizio, limite, grandezza, std::chars_format::scientific).ptr;
  const char* e = std::find(inizio + 1, limite, 'e');
  if (e - inizio > quante + 1) {
    fine = std::to_chars(inizio, limite, grandezza, std::chars_format::scientific, quante - 1).ptr;
    e = std::find(inizio + 1, limite, 'e');
  }
  Cifre esito;
  std::from_chars(e + (e[1] == '+' ? 2 : 1), fine, esito.esponente);
  if (inizio[1] == '.') {
    inizio[1] = inizio[0];  // over the point, next to the others
    while (e[-1] == '0') --e;
    esito.cifre = {inizio + 1, e};
  } else {
    esito.cifre = {inizio, e};
  }
  return esito;
}

void AccodaEsponente(Testo& testo, int esponente) {
  testo += 'E';
  testo += esponente < 0 ? '-' : '+';
  const int grandezza = std::abs(esponente);
  if (grandezza < 10) testo += '0';
  testo += std::to_string(grandezza);
}

// Whole numbers and hundredths, nearly all that is written, go by integers. That is exact: of the
// decimals of at most 15 digits only one is read back as a given double.
bool AccodaCentesimi(Testo& testo, double v, char separatore, bool zeroIniziale) {
  const double centesimi = std::nearbyint(v * 100);
  if (!(std::fabs(centesimi) < 1e15) || centesimi / 100 != v) return false;
  const long long n = std::llabs(static_cast<long long>(centesimi));
  const auto decimali = static_cast<int>(n % 100);
  if (v < 0) testo += '-';
  if (n >= 100 || decimali == 0 || zeroIniziale) {
    BufferCifre buffer;
    const auto fine = std::to_chars(buffer.data(), buffer.data() + buffer.size(), n / 100).ptr;
    testo.append(buffer.data(), fine);
  }
  if (decimali == 0) return true;
  (testo += separatore) += static_cast<char>('0' + decimali / 10);
  if (decimali % 10 != 0) testo += static_cast<char>('0' + decimali % 10);
  return true;
}

// A decimal number at the start of `s`: sign, digits with one point, exponent.
struct Scansione {
  std::size_t lunghezza = 0;  // 0: no number there
  double valore = 0;
  bool oltre = false;  // beyond the range of a double, whose largest one stands for it
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

  Scansione esito{i};
  if (!nonZero) return esito;
  if (potenza + esponente > std::numeric_limits<double>::max_exponent10) {
    esito.oltre = true;
  } else if (potenza + esponente > -400) {
    // from_chars knows neither 'D' nor a leading '+': the exponent is written anew.
    std::string_view mantissa = s.substr(inizio, fineMantissa - inizio);
    Testo conEsponente;
    if (esponente != 0) {
      conEsponente = Testo(mantissa) + 'e' + std::to_string(esponente);
      mantissa = conEsponente;
    }
    const auto letto = std::from_chars(mantissa.data(), mantissa.data() + mantissa.size(), esito.valore);
    esito.oltre = letto.ec == std::errc::result_out_of_range && potenza + esponente > 0;
    if (letto.ec == std::errc::result_out_of_range) esito.valore = 0;
  }
  if (esito.oltre) esito.valore = kMassimo;
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

// The text in invariant form, or nothing where the thousands separators stand wrong: out of their
// groups, or in front of an exponent, where they rather are somebody else's decimal point.
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
  if (gruppi && (inGruppo != 3 || inizioEsponente != std::string_view::npos)) return std::nullopt;
  return esito;
}

void AccodaCifre(Testo& testo, double v, int quante, char separatore, bool zeroIniziale) {
  if (v < 0) testo += '-';
  BufferCifre buffer;
  const auto [cifre, esponente] = Scomponi(std::fabs(v), quante, buffer);
  // From 1E+15 upwards there are no decimals, and the shorter of both forms is written.
  const auto conEsponente = static_cast<int>(cifre.size() + (cifre.size() > 1) + (esponente < 100 ? 4 : 5));
  if (esponente < -4 || (esponente >= kCifre && conEsponente <= esponente + 1)) {
    testo += cifre[0];
    if (cifre.size() > 1) (testo += separatore) += cifre.substr(1);
    AccodaEsponente(testo, esponente);
  } else if (esponente < 0) {
    if (zeroIniziale) testo += '0';
    testo += separatore;
    testo.append(static_cast<std::size_t>(-esponente - 1), '0');
    testo += cifre;
  } else {
    const auto intere = static_cast<std::size_t>(esponente) + 1;
    testo += cifre.substr(0, intere);
    if (cifre.size() < intere) testo.append(intere - cifre.size(), '0');
    if (cifre.size() > intere) (testo += separatore) += cifre.substr(intere);
  }
}

}  // namespace

void AccodaNumero(Testo& testo, Reale valore, char separatore, bool zeroIniziale) {
  const double v = valore.Valore();
  if (!AccodaCentesimi(testo, v, separatore, zeroIniziale))
    AccodaCifre(testo, v, kCifre, separatore, zeroIniziale);
}

void AccodaNumeroEntro(Testo& testo, Reale valore, std::size_t spazio) {
  const std::size_t inizio = testo.size();
  AccodaNumero(testo, valore);
  for (int quante = kCifre - 1; testo.size() - inizio > spazio && quante > 0; --quante) {
    testo.resize(inizio);
    AccodaCifre(testo, valore.Valore(), quante, '.', false);
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
  return InizioNumerico(testo).value_or(0);
}

std::optional<Reale> InizioNumerico(std::string_view testo) {
  const auto ignorato = [](char c) { return c == ' ' || c == '\t' || c == '\n'; };
  Testo pulito;
  if (std::any_of(testo.begin(), testo.end(), ignorato)) {
    std::remove_copy_if(testo.begin(), testo.end(), std::back_inserter(pulito), ignorato);
    testo = pulito;
  }
  if (testo.size() >= 2 && testo[0] == '&') {
    const char prefisso = Maiuscola(testo[1]);
    if (prefisso == 'H') return InteroConBase(testo.substr(2), 16);
    if (prefisso == 'O') return InteroConBase(testo.substr(2), 8);
  }
  const Scansione s = Scandisci(testo, "eEdD");
  if (s.lunghezza == 0) return std::nullopt;
  return s.valore;
}

std::optional<Reale> NumeroInvariante(std::string_view testo) {
  const Scansione s = Scandisci(testo, "eE");
  if (s.lunghezza == 0 || s.lunghezza != testo.size() || s.oltre) return std::nullopt;
  return s.valore;
}

std::optional<Reale> NumeroRegionale(std::string_view testo, char decimale, char migliaia) {
  const std::string_view parola = SenzaBlanchi(testo);
  if (const auto invariante = Invariante(parola, decimale, migliaia))
    if (const auto valore = NumeroInvariante(*invariante)) return valore;
  return NumeroInvariante(parola);
}

}  // namespace tarvel

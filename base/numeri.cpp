// The text forms of numbers, built on to_chars and from_chars.
#include "base/numeri.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace tarvel {
namespace {

constexpr int kCifre = 15;
constexpr double kMassimo = std::numeric_limits<double>::max();

bool Cifra(char c) {
  return c >= '0' && c <= '9';
}

// Tells whether a number beyond the range of a double is too large or too small, by the place of its first
// digit that is not zero.
bool TroppoGrande(std::string_view numero) {
  const auto fineMantissa = std::min(numero.find_first_of("eE"), numero.size());
  const auto punto = std::min(numero.find('.'), fineMantissa);
  const auto prima = numero.find_first_of("123456789");
  long long esponente = 0;
  std::string_view cifre = numero.substr(std::min(fineMantissa + 1, numero.size()));
  if (cifre.starts_with('+')) cifre.remove_prefix(1);
  const auto letto = std::from_chars(cifre.data(), cifre.data() + cifre.size(), esponente);
  if (letto.ec == std::errc::result_out_of_range) return !cifre.starts_with('-');
  return static_cast<long long>(punto) - static_cast<long long>(prima) + esponente > 0;
}

// A decimal number at the start of `s`: sign, digits with one point, exponent.
struct Scansione {
  std::size_t lunghezza = 0;  // 0: no number there
  double valore = 0;
  bool oltre = false;  // beyond the range of a double, whose largest one stands for it
};

Scansione Scandisci(std::string_view s) {
  const bool negativo = s.starts_with('-');
  const std::string_view cifre = s.substr(negativo || s.starts_with('+') ? 1 : 0);
  // from_chars would take "inf", "nan" and a second sign.
  if (cifre.empty() || !(Cifra(cifre[0]) || cifre[0] == '.')) return {};
  Scansione esito;
  const auto [fine, errore] = std::from_chars(cifre.data(), cifre.data() + cifre.size(), esito.valore);
  if (errore == std::errc::invalid_argument) return {};
  esito.lunghezza = static_cast<std::size_t>(fine - s.data());
  if (errore == std::errc::result_out_of_range) {
    esito.oltre = TroppoGrande({cifre.data(), fine});
    esito.valore = esito.oltre ? kMassimo : 0;
  }
  if (negativo && esito.valore != 0) esito.valore = -esito.valore;
  return esito;
}

Reale InteroConBase(std::string_view cifre, std::size_t base) {
  double valore = 0;
  for (const char c : cifre) {
    const auto cifra = std::string_view("0123456789abcdef").find(Minuscola(c));
    if (cifra >= base) break;
    valore = valore * static_cast<double>(base) + static_cast<double>(cifra);
    if (valore > kMassimo) return kMassimo;
  }
  return valore;
}

// The text in invariant form. Nothing where the thousands separators do not part groups of three, and where
// an exponent follows them: there the separator rather is a decimal point in another country's format.
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

using Buffer = std::array<char, 32>;

std::string_view Scritto(Buffer& buffer, auto... numero) {
  const auto esito = std::to_chars(buffer.data(), buffer.data() + buffer.size(), numero...);
  return {buffer.data(), static_cast<std::size_t>(esito.ptr - buffer.data())};
}

// The shortest text that is read back as `v`, or that of its first digits where it has more than `quante`.
void AccodaCifre(Testo& testo, double v, int quante, char separatore, bool zeroIniziale) {
  Buffer buffer;
  const double grandezza = std::fabs(v), centesimi = std::nearbyint(grandezza * 100);
  std::string_view cifre, potenza;
  int esponente = 0;
  if (quante == kCifre && centesimi > 0 && centesimi < 1e15 && centesimi / 100 == grandezza) {
    // Hundredths, nearly all that is written, have the digits of a whole number, which is quicker: of the
    // decimals of at most 15 digits only one is read back as a given double.
    cifre = Scritto(buffer, static_cast<long long>(centesimi));
    esponente = static_cast<int>(cifre.size()) - 3;
  } else {
    cifre = Scritto(buffer, grandezza, std::chars_format::scientific);  // d.ddde-dd
    if (cifre.find('e') > static_cast<std::size_t>(quante) + 1)
      cifre = Scritto(buffer, grandezza, std::chars_format::scientific, quante - 1);
    const auto e = cifre.find('e');
    potenza = cifre.substr(e + 1);
    const std::string_view senzaPiu = potenza.substr(potenza[0] == '+' ? 1 : 0);
    std::from_chars(senzaPiu.data(), senzaPiu.data() + senzaPiu.size(), esponente);
    if (e > 1) buffer[1] = buffer[0];  // over the point, next to the other digits
    cifre = e > 1 ? cifre.substr(1, e - 1) : cifre.substr(0, 1);
  }
  if (grandezza > 0) cifre = cifre.substr(0, cifre.find_last_not_of('0') + 1);

  if (v < 0) testo += '-';
  // From 1E+15 upwards a number has no decimals, and the shorter of both forms is written.
  const auto conEsponente = static_cast<int>(cifre.size() + (cifre.size() > 1) + 1 + potenza.size());
  if (esponente < -4 || (esponente >= kCifre && conEsponente <= esponente + 1)) {
    testo += cifre[0];
    if (cifre.size() > 1) (testo += separatore) += cifre.substr(1);
    (testo += 'E') += potenza;
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
  AccodaCifre(testo, valore.Valore(), kCifre, separatore, zeroIniziale);
}

void AccodaNumeroEntro(Testo& testo, Reale valore, std::size_t spazio) {
  const std::size_t inizio = testo.size();
  int quante = kCifre;
  do {
    testo.resize(inizio);
    AccodaCifre(testo, valore.Valore(), quante, '.', false);
  } while (testo.size() - inizio > spazio && --quante > 0);
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
  Testo pulito(testo);
  std::erase_if(pulito, [](char c) { return c == ' ' || c == '\t' || c == '\n'; });
  const char base = pulito.size() >= 2 && pulito[0] == '&' ? Maiuscola(pulito[1]) : ' ';
  if (base == 'H') return InteroConBase(pulito.substr(2), 16);
  if (base == 'O') return InteroConBase(pulito.substr(2), 8);
  std::replace_if(
      pulito.begin(), pulito.end(), [](char c) { return c == 'd' || c == 'D'; }, 'e');
  const Scansione s = Scandisci(pulito);
  if (s.lunghezza == 0) return std::nullopt;
  return s.valore;
}

std::optional<Reale> NumeroInvariante(std::string_view testo) {
  const Scansione s = Scandisci(testo);
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

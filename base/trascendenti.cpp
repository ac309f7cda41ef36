// Each function makes its argument small, then sums a series.
#include "base/trascendenti.h"

#include <array>
#include <cmath>

#include "base/doppia.h"

namespace tarvel {
namespace {

// ln 2 and pi / 2, with the digits that follow those of a double.
constexpr Doppia kLog2{0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};
constexpr Doppia kMezzoPi{0x1.921fb54442d18p+0, 0x1.1a62633145c07p-54};
constexpr double kRestoMezzoPi = -0x1.f1976b7ed8fbcp-110;

// Sine and arctangent of a smaller number are that number, to the last bit.
constexpr double kMinimo = 1e-9;

// 1, 1/3, 1/5, ...
constexpr auto kReciprociDispari = [] {
  std::array<Doppia, 25> esito{};
  for (int n = 0; n < std::ssize(esito); ++n)
    esito[static_cast<std::size_t>(n)] = Doppia{1} / Doppia{2.0 * n + 1};
  return esito;
}();

// 1/0!, 1/1!, 1/2!, ...
constexpr auto kReciprociFattoriali = [] {
  std::array<Doppia, 30> esito{Doppia{1}};
  for (std::size_t n = 1; n < esito.size(); ++n) esito[n] = esito[n - 1] / Doppia{static_cast<double>(n)};
  return esito;
}();

// c[primo] + c[primo + passo] x + c[primo + 2 passo] x^2 + ... The terms from c[semplici] on are summed in
// plain doubles: they are so small beside the whole that their further digits do not count.
template <std::size_t quanti>
Doppia Serie(const std::array<Doppia, quanti>& c, std::size_t primo, std::size_t passo, std::size_t semplici,
             Doppia x) {
  std::size_t n = primo + (quanti - 1 - primo) / passo * passo;
  double coda = c[n].valore;
  while (n > semplici) coda = c[n -= passo].valore + coda * x.valore;
  Doppia somma{coda};
  while (n > primo) somma = c[n -= passo] + somma * x;
  return somma;
}

// t + t^3 / 3 + t^5 / 5 + ...: the inverse hyperbolic tangent, or the arctangent where `segno` is -1 and the
// signs alternate. For |t| < 0.2, where 25 terms reach 2^-110.
Doppia SerieDispari(Doppia t, double segno) {
  return t * Serie(kReciprociDispari, 0, 1, 13, Doppia{segno} * (t * t));
}

// The series of the sine (primo = 1) and of the cosine (primo = 0) of |r| <= pi / 4.
Doppia SerieCircolare(Doppia r, std::size_t primo) {
  const Doppia somma = Serie(kReciprociFattoriali, primo, 2, 16, -(r * r));
  return primo == 1 ? r * somma : somma;
}

// The sine of the angle plus `quarti` quarter turns.
double SenoOltre(double radianti, int quarti) {
  Doppia r{radianti};
  // One round is enough, unless the angle has more quarter turns than a double can count.
  for (double n; (n = std::nearbyint(r.valore / kMezzoPi.valore)) != 0;) {
    r = r + -ProdottoEsatto(n, kMezzoPi.valore);
    r = r + -ProdottoEsatto(n, kMezzoPi.resto);
    r = r + Doppia{-n * kRestoMezzoPi};
    quarti += static_cast<int>(std::fmod(n, 4)) + 4;
  }
  const double grandezza = SerieCircolare(r, quarti % 2 == 0 ? 1 : 0).Arrotondata();
  return quarti % 4 < 2 ? grandezza : -grandezza;
}

}  // namespace

double Logaritmo(double x) {
  // x = m 2^k, ln m = 2 artanh((m - 1) / (m + 1)), m between the root of 1/2 and that of 2.
  constexpr double kRadiceMezzo = 0.70710678118654752;
  int k = 0;
  double m = std::frexp(x, &k);
  if (m < kRadiceMezzo) {
    m *= 2;
    --k;
  }
  const Doppia t = Doppia{m - 1} / SommaEsatta(m, 1);
  return (Doppia{double(k)} * kLog2 + Doppia{2} * SerieDispari(t, 1)).Arrotondata();
}

double Seno(double radianti) {
  return std::fabs(radianti) < kMinimo ? radianti : SenoOltre(radianti, 0);
}

double Coseno(double radianti) {
  return SenoOltre(radianti, 1);
}

double Arcotangente(double x) {
  const double grandezza = std::fabs(x);
  if (grandezza < kMinimo) return x;
  const bool oltre = grandezza > 1;
  Doppia t = oltre ? Doppia{1} / Doppia{grandezza} : Doppia{grandezza};
  // The angle is halved twice: tan(a / 2) = t / (1 + sqrt(1 + t^2)).
  for (int volta = 0; volta < 2; ++volta) t = t / (Doppia{1} + Radice(Doppia{1} + t * t));
  const Doppia angolo = Doppia{4} * SerieDispari(t, -1);
  return std::copysign((oltre ? kMezzoPi + -angolo : angolo).Arrotondata(), x);
}

}  // namespace tarvel

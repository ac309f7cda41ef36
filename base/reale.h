// A double whose every arithmetic result is checked: overflow, invalid operation and division by
// zero are fatal at the very operation. It always holds a finite value. Underflow is no fault.
#pragma once

#include <cmath>
#include <compare>

#include "base/potenza.h"
#include "base/trascendenti.h"

namespace tarvel {

/// Absolute, everywhere: a magnitude not greater than this counts as zero.
inline constexpr double kTolleranza = 0.0001;

[[noreturn]] void ErroreOverflow();
[[noreturn]] void ErroreNonValida(const char* operazione);
[[noreturn]] void ErroreDivisione(bool zeroSuZero);

class Reale {
 public:
  constexpr Reale() = default;
  /// Implicit, so that constants stand in formulas as they are; a value that is not finite is fatal.
  constexpr Reale(double valore) : valore_(Controlla(valore)) {}

  constexpr double Valore() const { return valore_; }

  friend constexpr Reale operator-(Reale a) { return Diretto(-a.valore_); }
  friend constexpr Reale operator+(Reale a, Reale b) { return Esito(a.valore_ + b.valore_); }
  friend constexpr Reale operator-(Reale a, Reale b) { return Esito(a.valore_ - b.valore_); }
  friend constexpr Reale operator*(Reale a, Reale b) { return Esito(a.valore_ * b.valore_); }
  friend constexpr Reale operator/(Reale a, Reale b) {
    if (b.valore_ == 0) ErroreDivisione(a.valore_ == 0);
    return Esito(a.valore_ / b.valore_);
  }
  constexpr Reale& operator+=(Reale b) { return *this = *this + b; }

  friend constexpr bool operator==(Reale, Reale) = default;
  friend constexpr auto operator<=>(Reale, Reale) = default;

  friend Reale Radice(Reale x) {
    if (x.valore_ < 0) ErroreNonValida("radice quadrata di un numero negativo");
    return Diretto(std::sqrt(x.valore_));
  }
  friend constexpr Reale Potenza(Reale x, int esponente) {
    return Esito(tarvel::Potenza(x.valore_, esponente));
  }
  friend Reale Logaritmo(Reale x) {
    if (x.valore_ <= 0) ErroreNonValida("logaritmo di un numero non positivo");
    return Diretto(tarvel::Logaritmo(x.valore_));
  }
  friend Reale Seno(Reale radianti) { return Diretto(tarvel::Seno(radianti.valore_)); }
  friend Reale Coseno(Reale radianti) { return Diretto(tarvel::Coseno(radianti.valore_)); }
  friend Reale Arcotangente(Reale x) { return Diretto(tarvel::Arcotangente(x.valore_)); }

  friend Reale Pavimento(Reale x) { return Diretto(std::floor(x.valore_)); }
  friend Reale Assoluto(Reale x) { return Diretto(std::fabs(x.valore_)); }
  /// The nearest whole number, halves to the even one.
  friend Reale Arrotondato(Reale x) { return Diretto(std::nearbyint(x.valore_)); }

 private:
  static constexpr double Controlla(double r) {
    if (!Finito(r)) [[unlikely]] {
      if (r != r) ErroreNonValida("operazione non valida");
      ErroreOverflow();
    }
    return r;
  }
  static constexpr Reale Diretto(double r) {
    Reale esito;
    esito.valore_ = r;
    return esito;
  }
  static constexpr Reale Esito(double r) { return Diretto(Controlla(r)); }

  double valore_ = 0;
};

}  // namespace tarvel

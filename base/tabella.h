// Fixed tables with the index base of their subject. An index beyond the capacity is fatal,
// never clamped, and the error names the table as its users do.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

namespace tarvel {

/// `tabella`: what its elements are, with the article: "delle sezioni".
[[noreturn]] void ErroreIndice(const char* tabella, long long indice, int primo, int ultimo);

template <std::size_t N>
struct NomeTabella {
  consteval NomeTabella(const char (&s)[N]) { std::copy_n(s, N, testo); }
  char testo[N] = {};
};

/// Tabella<"dei punti", T, 1, 50>: elements 1 to 50.
template <NomeTabella Nome, class T, int Primo, int Ultimo>
class Tabella {
 public:
  constexpr T& operator[](long long i) { return dati_[Posto(i)]; }
  constexpr const T& operator[](long long i) const { return dati_[Posto(i)]; }
  constexpr auto begin() { return dati_.begin(); }
  constexpr auto end() { return dati_.end(); }
  constexpr auto begin() const { return dati_.begin(); }
  constexpr auto end() const { return dati_.end(); }

 private:
  static constexpr std::size_t Posto(long long i) {
    if (i < Primo || i > Ultimo) [[unlikely]]
      ErroreIndice(Nome.testo, i, Primo, Ultimo);
    return static_cast<std::size_t>(i - Primo);
  }
  std::array<T, static_cast<std::size_t>(Ultimo - Primo + 1)> dati_{};
};

/// A table with two indices from 1.
template <NomeTabella Nome, class T, int Prime, int Seconde>
class Griglia {
 public:
  constexpr T& operator()(long long i, long long j) { return righe_[i][j]; }
  constexpr const T& operator()(long long i, long long j) const { return righe_[i][j]; }

 private:
  Tabella<Nome, Tabella<Nome, T, 1, Seconde>, 1, Prime> righe_;
};

}  // namespace tarvel

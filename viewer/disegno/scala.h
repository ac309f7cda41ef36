// The unit of a drawing's lengths, which its file does not say, the sheet of paper and the scale, and the
// words that command line, windows and remembered choices have for them.
#pragma once

#include <QString>
#include <array>
#include <cstddef>
#include <optional>

namespace ostrel {

enum class Unita { Ignota, Millimetri, Centimetri, Metri };

/// In the order of Unita.
inline constexpr std::array<const char*, 4> kUnita = {"", "mm", "cm", "m"};

constexpr const char* Nome(Unita unita) {
  return kUnita[static_cast<std::size_t>(unita)];
}

/// How many a unit has; 0 for one that is not known.
constexpr double Millimetri(Unita unita) {
  constexpr std::array<double, kUnita.size()> kMillimetri = {0, 1, 10, 1000};
  return kMillimetri[static_cast<std::size_t>(unita)];
}

enum class Carta { A4, A3, A2, A1, A0 };

/// In the order of Carta.
inline constexpr std::array<const char*, 5> kCarte = {"A4", "A3", "A2", "A1", "A0"};

constexpr const char* Nome(Carta carta) {
  return kCarte[static_cast<std::size_t>(carta)];
}

/// Automatico: the drawing chooses the one in which it has more room.
enum class Orientamento { Automatico, Verticale, Orizzontale };

/// In the order of Orientamento.
inline constexpr std::array<const char*, 3> kOrientamenti = {"automatico", "verticale", "orizzontale"};

constexpr const char* Nome(Orientamento orientamento) {
  return kOrientamenti[static_cast<std::size_t>(orientamento)];
}

/// The scales that drawings of a section are made at.
inline constexpr std::array<double, 8> kScale = {10, 20, 25, 50, 100, 200, 250, 500};
inline constexpr double kMassimoRapporto = 1e6;

/// How a drawing is put on paper and into files for other programs.
struct Resa {
  Unita unita = Unita::Ignota;
  /// The drawing is one part in `rapporto` of the thing; 0: as large as the sheet allows.
  double rapporto = 0;
  Carta carta = Carta::A4;
  Orientamento orientamento = Orientamento::Automatico;
};

/// Reads mm, cm or m in upper or lower case; nothing for another word, and so for the next two.
std::optional<Unita> LeggiUnita(const QString& testo);
/// Reads A4 to A0.
std::optional<Carta> LeggiCarta(const QString& testo);
std::optional<Orientamento> LeggiOrientamento(const QString& testo);
/// Reads "1:50", "50", "1:12,5", "adatta" (0); the figure above 0 and up to kMassimoRapporto.
std::optional<double> LeggiScala(const QString& testo);
/// "1:50"; "adatta" for 0.
QString InTesto(double rapporto);

}  // namespace ostrel

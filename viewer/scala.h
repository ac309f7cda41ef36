// The unit of a drawing's lengths, which its file does not say, and the scale it goes to paper at.
#pragma once

#include <array>
#include <cstddef>

namespace ostrel {

enum class Unita { Ignota, Millimetri, Centimetri, Metri };

struct VoceUnita {
  const char* nome;
  double millimetri;
  int dxf;  // $INSUNITS
};

/// In the order of Unita.
inline constexpr std::array<VoceUnita, 4> kUnita = {
    {{"", 0, 0}, {"mm", 1, 4}, {"cm", 10, 5}, {"m", 1000, 6}}};

constexpr const VoceUnita& Voce(Unita unita) {
  return kUnita[static_cast<std::size_t>(unita)];
}

/// How a drawing is put on paper and into files for other programs.
struct Resa {
  Unita unita = Unita::Ignota;
  /// The drawing is one part in `rapporto` of the thing; 0: as large as the sheet allows.
  double rapporto = 0;
};

}  // namespace ostrel

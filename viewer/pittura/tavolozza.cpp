// Measures the contrast of a colour with its ground.
#include "viewer/pittura/tavolozza.h"

#include <cmath>

namespace ostrel {
namespace {

using tarvel::Colore;

constexpr double kContrastoCarta = 3;
constexpr double kPassoScuro = 1.05;

double Luminanza(const Colore& c) {
  const auto lineare = [](int parte) {
    const double v = parte / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineare(c.r) + 0.7152 * lineare(c.g) + 0.0722 * lineare(c.b);
}

}  // namespace

Colore ColoreSu(const Colore& fondo, int colore) {
  const std::size_t indice = IndiceColore(colore);
  const Colore voce = kColori[indice];
  const double chiaro = Luminanza(fondo);
  if (chiaro < 0.5) return indice == tarvel::disegno::kNero ? Colore{128, 128, 128} : voce;
  if (indice == tarvel::disegno::kBianco) return {0, 0, 0};
  Colore esito = voce;
  for (double parte = 1; (chiaro + 0.05) / (Luminanza(esito) + 0.05) < kContrastoCarta;) {
    parte /= kPassoScuro;
    const auto scurita = [&](auto v) { return static_cast<decltype(v)>(std::lround(v * parte)); };
    esito = {scurita(voce.r), scurita(voce.g), scurita(voce.b)};
  }
  return esito;
}

}  // namespace ostrel

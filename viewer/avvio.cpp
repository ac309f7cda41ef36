// Six lines of 8-bit text; only the second is indispensable.
#include "viewer/avvio.h"

#include <array>
#include <fstream>

#include "base/numeri.h"
#include "platform/comune/percorso.h"

namespace ostrel {
namespace {

constexpr double kMassimoTwip = 1e6;

// A line without its end; a text without end is no line of this file.
std::optional<tarvel::Testo> Riga(std::istream& file) {
  constexpr int kMassimaRiga = 4096;
  std::array<char, kMassimaRiga> riga{};
  if (!file.getline(riga.data(), kMassimaRiga)) return std::nullopt;
  tarvel::Testo testo(riga.data());
  if (testo.ends_with('\r')) testo.pop_back();
  return testo;
}

}  // namespace

std::optional<Avvio> LeggiAvvio(const std::string& file) {
  std::ifstream ingresso(file, std::ios::binary);
  const auto inutilizzata = Riga(ingresso);
  const auto disegno = Riga(ingresso);
  if (!disegno || disegno->empty()) return std::nullopt;

  std::array<int, 4> misure{};
  bool complete = true;
  for (int& misura : misure) {
    const auto riga = Riga(ingresso);
    const auto valore = riga ? tarvel::NumeroInvariante(tarvel::SenzaBlanchi(*riga)) : std::nullopt;
    complete = complete && valore && *valore >= -kMassimoTwip && *valore <= kMassimoTwip;
    if (complete) misura = static_cast<int>(valore->Valore());
  }
  Avvio avvio{tarvel::PercorsoHost(*disegno).value_or(tarvel::InUtf8(*disegno)), {}};
  if (complete && misure[2] > 0 && misure[3] > 0) avvio.posto = {misure[0], misure[1], misure[2], misure[3]};
  return avvio;
}

}  // namespace ostrel

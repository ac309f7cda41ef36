// The file has six lines of 8-bit text; only the second is indispensable.
#include "viewer/comando/avvio.h"

#include "base/numeri.h"
#include "platform/comune/percorso.h"
#include "platform/file.h"

namespace ostrel {
namespace {

constexpr double kMassimoTwip = 1e6;

std::optional<tarvel::Rettangolo> LeggiPosto(tarvel::FileInLettura& file) {
  tarvel::Rettangolo posto;
  for (int* misura : {&posto.sinistra, &posto.alto, &posto.larghezza, &posto.altezza}) {
    const auto riga = file.ProssimaRiga();
    const auto valore = riga ? tarvel::NumeroInvariante(tarvel::SenzaBlanchi(*riga)) : std::nullopt;
    if (!valore || *valore < -kMassimoTwip || *valore > kMassimoTwip) return std::nullopt;
    *misura = static_cast<int>(valore->Valore());
  }
  if (posto.larghezza <= 0 || posto.altezza <= 0) return std::nullopt;
  return posto;
}

}  // namespace

std::optional<Avvio> LeggiAvvio(const tarvel::Testo& file) {
  auto ingresso = tarvel::FileInLettura::Apri(file);
  if (!ingresso || !ingresso->ProssimaRiga()) return std::nullopt;
  const tarvel::Testo disegno(ingresso->ProssimaRiga().value_or(""));
  if (disegno.empty()) return std::nullopt;
  Avvio avvio{tarvel::PercorsoHost(disegno).value_or(tarvel::InUtf8(disegno))};
  avvio.posto = LeggiPosto(*ingresso).value_or(avvio.posto);
  return avvio;
}

}  // namespace ostrel

// Building the tree: every node is split at the median of its widest dimension.
#include "drawing/albero_riquadri.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace tarvel::disegno {

AlberoRiquadri::AlberoRiquadri(std::span<const Riquadro> riquadri)
    : nodi_(2 * std::bit_ceil(riquadri.size())), foglia_(riquadri.size()) {
  std::vector<std::int32_t> indici(riquadri.size());
  std::iota(indici.begin(), indici.end(), 0);
  if (!indici.empty()) Costruisci(riquadri, indici, 1);
}

void AlberoRiquadri::Costruisci(std::span<const Riquadro> riquadri, std::span<std::int32_t> indici,
                                std::size_t n) {
  const auto riquadro = [&](std::int32_t i) -> const Riquadro& {
    return riquadri[static_cast<std::size_t>(i)];
  };
  if (indici.size() == 1) {
    nodi_[n] = {riquadro(indici[0]), indici[0]};
    foglia_[static_cast<std::size_t>(indici[0])] = n;
    return;
  }
  Riquadro minimo = riquadro(indici[0]), massimo = minimo;
  for (const std::int32_t i : indici)
    for (std::size_t k = 0; k < minimo.size(); ++k) {
      minimo[k] = std::min(minimo[k], riquadro(i)[k]);
      massimo[k] = std::max(massimo[k], riquadro(i)[k]);
    }
  std::size_t larga = 0;
  for (std::size_t k = 1; k < minimo.size(); ++k)
    if (massimo[k] - minimo[k] > massimo[larga] - minimo[larga]) larga = k;

  const std::size_t meta = (indici.size() + 1) / 2;
  std::nth_element(indici.begin(), indici.begin() + static_cast<std::ptrdiff_t>(meta), indici.end(),
                   [&](std::int32_t a, std::int32_t b) { return riquadro(a)[larga] < riquadro(b)[larga]; });
  Costruisci(riquadri, indici.first(meta), 2 * n);
  Costruisci(riquadri, indici.subspan(meta), 2 * n + 1);
  nodi_[n].limiti = minimo;
}

void AlberoRiquadri::Togli(std::int32_t i) {
  std::size_t n = foglia_[static_cast<std::size_t>(i)];
  nodi_[n] = {};
  for (n /= 2; n > 0; n /= 2)
    for (std::size_t k = 0; k < nodi_[n].limiti.size(); ++k)
      nodi_[n].limiti[k] = std::min(nodi_[2 * n].limiti[k], nodi_[2 * n + 1].limiti[k]);
}

}  // namespace tarvel::disegno

// The compaction as it is defined: every pair compared, every removal followed by a new start. Slow
// and plain; the yardstick of the fast one.
#pragma once

#include "drawing/disegno.h"
#include "drawing/ottimizza.h"

namespace tarvel::disegno::letterale {

template <class Elenco>
void Rimuovi(Elenco& elenco, std::int32_t i) {
  for (std::int32_t k = i; k < elenco.numero - 1; ++k) elenco[k] = elenco[k + 1];
  --elenco.numero;
}

// After a removal the same place is looked at again.
template <class Elenco, class Inutile, class Rimuovi>
void Scorri(Elenco& elenco, Inutile inutile, Rimuovi rimuovi) {
  for (std::int32_t i = 0; i < elenco.numero;) {
    if (inutile(i))
      rimuovi(i);
    else
      ++i;
  }
}

template <class Lavoro>
void PerOgniIndice(bool ancheFiniEPunti, Lavoro lavoro) {
  for (std::int32_t i = 0; i < Disegno.Linee.numero; ++i) {
    lavoro(Disegno.Linee[i].primo);
    lavoro(Disegno.Linee[i].secondo);
  }
  for (std::int32_t i = 0; i < Disegno.Testi.numero; ++i) lavoro(Disegno.Testi[i].posizione);
  for (std::int32_t i = 0; i < Disegno.Archi.numero; ++i) {
    lavoro(Disegno.Archi[i].centro);
    lavoro(Disegno.Archi[i].inizio);
    lavoro(Disegno.Archi[i].secondoCentro);
    if (ancheFiniEPunti) lavoro(Disegno.Archi[i].fine);
  }
  for (std::int32_t i = 0; ancheFiniEPunti && i < Disegno.Punti.numero; ++i)
    lavoro(Disegno.Punti[i].coordinata);
}

inline void RimuoviCoordinata(std::int32_t k) {
  PerOgniIndice(true, [&](std::int32_t& indice) { indice -= indice > k ? 1 : 0; });
  Rimuovi(Disegno.Coordinate, k);
}

inline bool LineaInutile(std::int32_t i) {
  const ElementoLinea& l = Disegno.Linee[i];
  if (l.tipo < 0 || l.colore < 0) return true;
  if (l.colore == 0 || l.tipo == 0) return false;
  const auto sta = [](std::int32_t p, const ElementoLinea& altra) {
    const auto& c = Disegno.Coordinate;
    const Coordinata a = c[p], b1 = c[altra.primo], b2 = c[altra.secondo];
    return PuntoSuSegmento(a.x, a.y, b1.x, b1.y, b2.x, b2.y) == 1;
  };
  for (std::int32_t j = 0; j < Disegno.Linee.numero; ++j)
    if (j != i && sta(l.primo, Disegno.Linee[j]) && sta(l.secondo, Disegno.Linee[j])) return true;
  return false;
}

// True when an arc was removed.
inline bool RimuoviUnArco() {
  auto& archi = Disegno.Archi;
  for (std::int32_t i = 0; i < archi.numero; ++i)
    for (std::int32_t j = i + 1; j < archi.numero; ++j) {
      const ElementoArco &a = archi[i], &b = archi[j];
      if (a.inizio == b.inizio && a.centro == b.centro && a.secondoCentro == b.secondoCentro &&
          a.fine == b.fine && a.genere == b.genere && a.colore == b.colore) {
        Rimuovi(archi, j);
        return true;
      }
    }
  return false;
}

inline void OttimizzaDisegno() {
  auto& coordinate = Disegno.Coordinate;
  auto& linee = Disegno.Linee;
  auto& testi = Disegno.Testi;
  Scorri(linee, LineaInutile, [&](std::int32_t i) { Rimuovi(linee, i); });
  while (RimuoviUnArco()) continue;
  Scorri(
      testi, [&](std::int32_t i) { return testi[i].base10 < 0.0001 || testi[i].altezza10 < 0.0001; },
      [&](std::int32_t i) { Rimuovi(testi, i); });
  for (std::int32_t i = 0; i < coordinate.numero; ++i)
    for (std::int32_t j = i + 1; j < coordinate.numero; ++j)
      if (Assoluto(coordinate[i].x - coordinate[j].x) < 0.0001 &&
          Assoluto(coordinate[i].y - coordinate[j].y) < 0.0001)
        PerOgniIndice(false, [&](std::int32_t& indice) { indice = indice == j ? i : indice; });
  const auto maiCitata = [](std::int32_t k) {
    bool citata = false;
    PerOgniIndice(true, [&](std::int32_t indice) { citata = citata || indice == k; });
    return !citata;
  };
  Scorri(coordinate, maiCitata, RimuoviCoordinata);
}

}  // namespace tarvel::disegno::letterale

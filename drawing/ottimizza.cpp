// The five phases of the compaction. Each is defined by comparing all pairs and starting again after
// every removal; here one pass gives the same result, because
// - a line is judged against the lines before it that stayed and all those after it;
// - of equal arcs the first stays;
// - a coordinate's references go to the first coordinate near it, and only there: nearness is not
//   transitive, and a coordinate that gives its own references away may receive others.
// Candidates come from a tree of boxes; the predicates decide.
#include "drawing/ottimizza.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>
#include <utility>
#include <vector>

#include "drawing/albero_riquadri.h"
#include "drawing/disegno.h"

namespace tarvel::disegno {
namespace {

// Drops the entries for which superfluo(i) holds; it is asked for all of them before any moves.
template <class Elenco, class Superfluo>
void Sfoltisci(Elenco& elenco, Superfluo superfluo) {
  std::vector<bool> via;
  for (std::int32_t i = 0; i < elenco.numero; ++i) via.push_back(superfluo(i));
  std::int32_t restano = 0;
  for (std::int32_t i = 0; i < elenco.numero; ++i) {
    if (via[static_cast<std::size_t>(i)]) continue;
    if (restano != i) elenco[restano] = std::move(elenco[i]);
    ++restano;
  }
  elenco.numero = restano;
}

// --- Lines within others

struct Segmento {
  Coordinata p1, p2;
};

Segmento SegmentoDi(std::int32_t linea) {
  const ElementoLinea& l = Disegno.Linee[linea];
  return {Disegno.Coordinate[l.primo], Disegno.Coordinate[l.secondo]};
}

Riquadro RiquadroDi(const Segmento& s, Reale margine) {
  const auto [x1, x2] = std::minmax(s.p1.x, s.p2.x);
  const auto [y1, y2] = std::minmax(s.p1.y, s.p2.y);
  return {(x1 - margine).Valore(), (y1 - margine).Valore(), (-x2 - margine).Valore(),
          (-y2 - margine).Valore()};
}

bool SulSegmento(Coordinata a, const Segmento& s) {
  return PuntoSuSegmento(a.x, a.y, s.p1.x, s.p1.y, s.p2.x, s.p2.y) == 1;
}

// How far from a segment a point may lie and still count as on it. The points with a detour below
// the tolerance form an ellipse with its foci at the ends; half its width and what it reaches beyond
// a focus bound the distance. The tolerance is taken a little larger, so that no rounding in the
// predicate escapes.
Reale Portata(const Segmento& s) {
  const Reale l = Distanza(s.p1.x, s.p1.y, s.p2.x, s.p2.y);
  const Reale tolleranza = 1.001 * kTolleranza + l * 1e-14;
  return (Radice(tolleranza * (2 * l + tolleranza)) + tolleranza) / 2;
}

void TogliLinee() {
  auto& linee = Disegno.Linee;
  const auto daConfrontare = [](const ElementoLinea& l) { return l.colore > 0 && l.tipo > 0; };
  const auto fine = linee.voci.begin() + linee.numero;
  const bool confronti = std::any_of(linee.voci.begin(), fine, daConfrontare);

  std::vector<Riquadro> riquadri;
  for (std::int32_t i = 0; confronti && i < linee.numero; ++i)
    riquadri.push_back(RiquadroDi(SegmentoDi(i), Portata(SegmentoDi(i))));
  AlberoRiquadri presenti(riquadri);

  const auto contenuta = [&](std::int32_t i) {
    const Segmento s = SegmentoDi(i);
    return presenti.Trova(RiquadroDi(s, 0), [&](std::int32_t j) {
      const Segmento altro = SegmentoDi(j);
      return j != i && SulSegmento(s.p1, altro) && SulSegmento(s.p2, altro);
    });
  };
  Sfoltisci(linee, [&](std::int32_t i) {
    const ElementoLinea& l = linee[i];
    const bool via = l.tipo < 0 || l.colore < 0 || (daConfrontare(l) && contenuta(i));
    if (via && confronti) presenti.Togli(i);
    return via;
  });
}

// --- Arcs and texts

void TogliArchi() {
  std::set<std::array<std::int32_t, 6>> visti;
  Sfoltisci(Disegno.Archi, [&](std::int32_t i) {
    const ElementoArco& a = Disegno.Archi[i];
    return !visti.insert({a.inizio, a.centro, a.secondoCentro, a.fine, a.genere, a.colore}).second;
  });
}

void TogliTesti() {
  Sfoltisci(Disegno.Testi, [](std::int32_t i) {
    return Disegno.Testi[i].base10 < kTolleranza || Disegno.Testi[i].altezza10 < kTolleranza;
  });
}

// --- Coinciding coordinates

bool Memorizzata(std::int32_t k) {
  return k >= 0 && k < Disegno.Coordinate.numero;
}

// For each coordinate the first one near it, itself where there is none.
std::vector<std::int32_t> PrimeCoincidenti() {
  const auto& coordinate = Disegno.Coordinate;
  std::vector<Riquadro> riquadri;
  std::vector<std::int32_t> prima;
  for (std::int32_t i = 0; i < coordinate.numero; ++i) {
    riquadri.push_back(RiquadroDi({coordinate[i], coordinate[i]}, kTolleranza));
    prima.push_back(i);
  }
  AlberoRiquadri successive(riquadri);
  std::vector<std::int32_t> vicine;
  for (std::int32_t i = 0; i < coordinate.numero; ++i) {
    if (prima[static_cast<std::size_t>(i)] == i) successive.Togli(i);
    const Coordinata p = coordinate[i];
    vicine.clear();
    successive.Trova(RiquadroDi({p, p}, 0), [&](std::int32_t j) {
      const Coordinata q = coordinate[j];
      if (Assoluto(p.x - q.x) < kTolleranza && Assoluto(p.y - q.y) < kTolleranza) vicine.push_back(j);
      return false;
    });
    for (const std::int32_t j : vicine) {
      prima[static_cast<std::size_t>(j)] = i;
      successive.Togli(j);
    }
  }
  return prima;
}

// Which references: arc ends and points keep their own coordinate when others are united.
enum class Riferimenti { DaUnire, Tutti };

// Calls lavoro with every reference to a coordinate.
template <class Lavoro>
void PerOgniRiferimento(Riferimenti quali, Lavoro lavoro) {
  for (std::int32_t i = 0; i < Disegno.Linee.numero; ++i) {
    lavoro(Disegno.Linee[i].primo);
    lavoro(Disegno.Linee[i].secondo);
  }
  for (std::int32_t i = 0; i < Disegno.Testi.numero; ++i) lavoro(Disegno.Testi[i].posizione);
  for (std::int32_t i = 0; i < Disegno.Archi.numero; ++i) {
    ElementoArco& arco = Disegno.Archi[i];
    lavoro(arco.centro);
    lavoro(arco.inizio);
    lavoro(arco.secondoCentro);
    if (quali == Riferimenti::Tutti) lavoro(arco.fine);
  }
  if (quali == Riferimenti::Tutti)
    for (std::int32_t i = 0; i < Disegno.Punti.numero; ++i) lavoro(Disegno.Punti[i].coordinata);
}

void UnisciCoordinate() {
  const std::vector<std::int32_t> prima = PrimeCoincidenti();
  PerOgniRiferimento(Riferimenti::DaUnire, [&](std::int32_t& k) {
    if (Memorizzata(k)) k = prima[static_cast<std::size_t>(k)];
  });
}

// --- Coordinates without references

void TogliCoordinate() {
  auto& coordinate = Disegno.Coordinate;
  const std::int32_t numero = coordinate.numero;
  std::vector<bool> citata(static_cast<std::size_t>(numero));
  PerOgniRiferimento(Riferimenti::Tutti, [&](std::int32_t k) {
    if (Memorizzata(k)) citata[static_cast<std::size_t>(k)] = true;
  });
  std::vector<std::int32_t> tolteFinoA = {0};  // how many of the first k go
  for (const bool resta : citata) tolteFinoA.push_back(tolteFinoA.back() + (resta ? 0 : 1));
  PerOgniRiferimento(Riferimenti::Tutti, [&](std::int32_t& k) {
    k -= tolteFinoA[static_cast<std::size_t>(std::clamp(k, 0, numero))];
  });

  const Coordinata ultima = coordinate[std::max(numero - 1, 0)];
  Sfoltisci(coordinate, [&](std::int32_t k) { return !citata[static_cast<std::size_t>(k)]; });
  // The last coordinate slides down through every place that comes free: with nothing left, place 0
  // holds it, and the extents of an empty drawing are read there.
  std::fill(coordinate.voci.begin() + coordinate.numero, coordinate.voci.begin() + numero, ultima);
}

}  // namespace

Reale Distanza(Reale x1, Reale y1, Reale x2, Reale y2) {
  const Reale dx = x1 - x2, dy = y1 - y2;
  return Radice(dx * dx + dy * dy);
}

Intero16 PuntoSuSegmento(Reale ax, Reale ay, Reale bx, Reale by, Reale cx, Reale cy) {
  return Distanza(ax, ay, bx, by) + Distanza(ax, ay, cx, cy) - Distanza(bx, by, cx, cy) < kTolleranza ? 1 : 0;
}

void OttimizzaDisegno() {
  TogliLinee();
  TogliArchi();
  TogliTesti();
  UnisciCoordinate();
  TogliCoordinate();
}

}  // namespace tarvel::disegno

// Five phases, each of which compares whatever it has to compare: a section's drawing has some two
// hundred elements, and nothing draws larger ones.
#include "drawing/ottimizza.h"

#include <algorithm>
#include <tuple>

namespace tarvel::disegno {
namespace {

template <class Elenco>
void Rimuovi(Elenco& elenco, std::int32_t i) {
  const auto posto = elenco.voci.begin() + i;
  std::move(posto + 1, elenco.voci.begin() + elenco.numero, posto);
  --elenco.numero;
}

// --- References to coordinates

// Those that follow a coordinate when it is united with an earlier one.
template <class Lavoro>
void PerOgniRiferimentoDaUnire(Lavoro lavoro) {
  for (std::int32_t i = 0; i < Disegno.Linee.numero; ++i) {
    lavoro(Disegno.Linee[i].primo);
    lavoro(Disegno.Linee[i].secondo);
  }
  for (std::int32_t i = 0; i < Disegno.Testi.numero; ++i) lavoro(Disegno.Testi[i].posizione);
  for (std::int32_t i = 0; i < Disegno.Archi.numero; ++i) {
    lavoro(Disegno.Archi[i].centro);
    lavoro(Disegno.Archi[i].inizio);
    lavoro(Disegno.Archi[i].secondoCentro);
  }
}

template <class Lavoro>
void PerOgniRiferimento(Lavoro lavoro) {
  PerOgniRiferimentoDaUnire(lavoro);
  for (std::int32_t i = 0; i < Disegno.Archi.numero; ++i) lavoro(Disegno.Archi[i].fine);
  for (std::int32_t i = 0; i < Disegno.Punti.numero; ++i) lavoro(Disegno.Punti[i].coordinata);
}

// --- The phases

bool SullaLinea(std::int32_t punto, const ElementoLinea& linea) {
  const auto& c = Disegno.Coordinate;
  return PuntoSuSegmento(c[punto], c[linea.primo], c[linea.secondo]);
}

bool LineaSuperflua(std::int32_t i) {
  const auto& linee = Disegno.Linee;
  const ElementoLinea& linea = linee[i];
  if (linea.tipo < 0 || linea.colore < 0) return true;
  if (linea.tipo == 0 || linea.colore == 0) return false;
  for (std::int32_t j = 0; j < linee.numero; ++j)
    if (j != i && SullaLinea(linea.primo, linee[j]) && SullaLinea(linea.secondo, linee[j])) return true;
  return false;
}

void TogliLinee() {
  for (std::int32_t i = 0; i < Disegno.Linee.numero;)
    if (LineaSuperflua(i))
      RimuoviLinea(i);
    else
      ++i;
}

bool Uguali(const ElementoArco& a, const ElementoArco& b) {
  const auto campi = [](const ElementoArco& arco) {
    return std::tie(arco.inizio, arco.centro, arco.secondoCentro, arco.fine, arco.genere, arco.colore);
  };
  return campi(a) == campi(b);
}

void TogliArchi() {
  const auto& archi = Disegno.Archi;
  for (std::int32_t i = 0; i < archi.numero; ++i)
    for (std::int32_t j = i + 1; j < archi.numero;)
      if (Uguali(archi[i], archi[j]))
        RimuoviArco(j);
      else
        ++j;
}

void TogliTesti() {
  const auto& testi = Disegno.Testi;
  for (std::int32_t i = 0; i < testi.numero;)
    if (testi[i].base10 < kTolleranza || testi[i].altezza10 < kTolleranza)
      RimuoviTesto(i);
    else
      ++i;
}

void UnisciCoordinate() {
  const auto& coordinate = Disegno.Coordinate;
  for (std::int32_t i = 0; i < coordinate.numero; ++i)
    for (std::int32_t j = i + 1; j < coordinate.numero; ++j)
      if (Coincidono(coordinate[i], coordinate[j]))
        PerOgniRiferimentoDaUnire([&](std::int32_t& k) {
          if (k == j) k = i;
        });
}

void TogliCoordinate() {
  for (std::int32_t k = 0; k < Disegno.Coordinate.numero;) {
    bool citata = false;
    PerOgniRiferimento([&](std::int32_t riferimento) { citata = citata || riferimento == k; });
    if (citata)
      ++k;
    else
      RimuoviCoordinata(k);
  }
}

}  // namespace

void OttimizzaDisegno() {
  TogliLinee();
  TogliArchi();
  TogliTesti();
  UnisciCoordinate();
  TogliCoordinate();
}

bool PuntoSuSegmento(Coordinata a, Coordinata b, Coordinata c) {
  const auto lunghezza = [](Coordinata da, Coordinata fino) {
    const Reale dx = da.x - fino.x, dy = da.y - fino.y;
    return Radice(dx * dx + dy * dy);
  };
  return lunghezza(a, b) + lunghezza(a, c) - lunghezza(b, c) < kTolleranza;
}

void RimuoviLinea(std::int32_t i) {
  Rimuovi(Disegno.Linee, i);
}

void RimuoviArco(std::int32_t i) {
  Rimuovi(Disegno.Archi, i);
}

void RimuoviTesto(std::int32_t i) {
  Rimuovi(Disegno.Testi, i);
}

void RimuoviCoordinata(std::int32_t k) {
  PerOgniRiferimento([k](std::int32_t& riferimento) {
    if (riferimento > k) --riferimento;
  });
  Rimuovi(Disegno.Coordinate, k);
}

}  // namespace tarvel::disegno

// Five phases, quadratic in the number of elements: a section's drawing has some two hundred.
#include "drawing/ottimizza.h"

#include <algorithm>
#include <tuple>

namespace tarvel::disegno {
namespace {

template <class Elenco>
void Rimuovi(Elenco& elenco, std::int32_t i) {
  const auto posto = elenco.begin() + i;
  std::move(posto + 1, elenco.end(), posto);
  --elenco.numero;
}

// Each entry is judged among those that are still there.
template <class Elenco>
void RimuoviSe(Elenco& elenco, bool (*superflua)(std::int32_t i)) {
  for (std::int32_t i = 0; i < elenco.numero;)
    if (superflua(i))
      Rimuovi(elenco, i);
    else
      ++i;
}

// The references that follow a coordinate when it is united with an earlier one.
template <class Lavoro>
void PerOgniRiferimentoDaUnire(Lavoro lavoro) {
  for (ElementoLinea& linea : Disegno.Linee) {
    lavoro(linea.primo);
    lavoro(linea.secondo);
  }
  for (ElementoTesto& testo : Disegno.Testi) lavoro(testo.posizione);
  for (ElementoArco& arco : Disegno.Archi) {
    lavoro(arco.centro);
    lavoro(arco.inizio);
    lavoro(arco.secondoCentro);
  }
}

template <class Lavoro>
void PerOgniRiferimento(Lavoro lavoro) {
  PerOgniRiferimentoDaUnire(lavoro);
  for (ElementoArco& arco : Disegno.Archi) lavoro(arco.fine);
  for (ElementoPunto& punto : Disegno.Punti) lavoro(punto.coordinata);
}

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

// Of equal arcs the first one stays.
bool ArcoRipetuto(std::int32_t i) {
  const auto& archi = Disegno.Archi;
  const auto campi = [&](std::int32_t k) {
    const ElementoArco& a = archi[k];
    return std::tie(a.inizio, a.centro, a.secondoCentro, a.fine, a.genere, a.colore);
  };
  for (std::int32_t j = 0; j < i; ++j)
    if (campi(j) == campi(i)) return true;
  return false;
}

bool TestoInvisibile(std::int32_t i) {
  const ElementoTesto& testo = Disegno.Testi[i];
  return testo.base10 <= 0 || testo.altezza10 <= 0;
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

// References to later coordinates follow them.
void RimuoviCoordinata(std::int32_t k) {
  PerOgniRiferimento([k](std::int32_t& riferimento) {
    if (riferimento > k) --riferimento;
  });
  Rimuovi(Disegno.Coordinate, k);
}

void RimuoviCoordinateLibere() {
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
  RimuoviSe(Disegno.Linee, LineaSuperflua);
  RimuoviSe(Disegno.Archi, ArcoRipetuto);
  RimuoviSe(Disegno.Testi, TestoInvisibile);
  UnisciCoordinate();
  RimuoviCoordinateLibere();
}

bool PuntoSuSegmento(Coordinata a, Coordinata b, Coordinata c) {
  return Lunghezza(a, b) + Lunghezza(a, c) - Lunghezza(b, c) < kTolleranza;
}

}  // namespace tarvel::disegno

// Writing the drawing file: printed items, one line an entry, sections in a fixed order.
#include "drawing/salva_dis_cond.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/numeri.h"
#include "drawing/disegno.h"
#include "drawing/ottimizza.h"
#include "platform/regione.h"
#include "platform/scrittura.h"

namespace tarvel::disegno {
namespace {

struct Uscita {
  Testo testo = {};
  char separatore = SeparatoreDecimale();
};

// One line of printed numbers.
template <class... Valori>
void Stampa(Uscita& uscita, Valori... valori) {
  (AccodaStampato(uscita.testo, Reale(valori), uscita.separatore), ...);
  AccodaRiga(uscita.testo, "");
}

// A text always is one line, or the viewer would lose its place.
void StampaTesto(Uscita& uscita, Testo testo) {
  std::replace_if(
      testo.begin(), testo.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
  AccodaRiga(uscita.testo, testo);
}

template <class Elenco, class Voce>
void ScriviSezione(Uscita& uscita, const Elenco& elenco, Voce voce) {
  Stampa(uscita, elenco.numero);
  for (std::int32_t i = 0; i < elenco.numero; ++i) voce(elenco[i]);
}

void ScriviSezioni(Uscita& uscita) {
  ScriviSezione(uscita, Disegno.Coordinate, [&](const Coordinata& c) { Stampa(uscita, c.x, c.y, 0); });
  // The viewer wants the second attribute first.
  ScriviSezione(uscita, Disegno.Punti,
                [&](const ElementoPunto& p) { Stampa(uscita, p.coordinata, p.attributoB, p.attributoA); });
  ScriviSezione(uscita, Disegno.Linee,
                [&](const ElementoLinea& l) { Stampa(uscita, l.primo, l.secondo, l.colore, l.tipo); });
  ScriviSezione(uscita, Disegno.Testi, [&](const ElementoTesto& t) {
    Stampa(uscita, t.posizione, 1, t.angolo);
    Stampa(uscita, Reale(t.base10) / 10, Reale(t.altezza10) / 10, t.colore);
    StampaTesto(uscita, t.stringa);
  });
  ScriviSezione(uscita, Disegno.Archi, [&](const ElementoArco& a) {
    Stampa(uscita, a.centro, a.inizio, a.secondoCentro, a.fine);
    Stampa(uscita, a.colore, a.genere);
  });
}

Testo ComponiFile(Intestazione intestazione, const Estremi& estremi) {
  Uscita uscita;
  AccodaRiga(uscita.testo, "                   " + std::to_string(static_cast<int>(intestazione)));
  Stampa(uscita, estremi.xmin, estremi.xmax);
  Stampa(uscita, estremi.ymin, estremi.ymax);
  AccodaRiga(uscita.testo, "-10000.000000        10000.000000");
  ScriviSezioni(uscita);
  return std::move(uscita.testo);
}

}  // namespace

Estremi EstremiDisegno() {
  const auto& coordinate = Disegno.Coordinate;
  Estremi e{coordinate[0].x, coordinate[0].y, coordinate[0].x, coordinate[0].y};
  for (std::int32_t i = 0; i < coordinate.numero; ++i) {
    const auto [x, y] = coordinate[i];
    e = {std::min(e.xmin, x), std::min(e.ymin, y), std::max(e.xmax, x), std::max(e.ymax, y)};
  }
  return e;
}

std::optional<Guasto> SalvaDisegno(const Testo& nomeFile, Intestazione intestazione) {
  const Estremi estremi = EstremiDisegno();
  OttimizzaDisegno();
  const EsitoScrittura esito = ScriviFile(nomeFile, ComponiFile(intestazione, estremi));
  if (esito) return {};
  // No blank before the name: the text is fixed, and found so by whoever looks for it.
  return Guasto{TipoErrore::File, "Errore durante la scrittura sul file" + nomeFile, esito.motivo};
}

}  // namespace tarvel::disegno

// The viewer expects printed items, one line an entry, sections in this order.
#include "drawing/salva_dis_cond.h"

#include <algorithm>

#include "base/numeri.h"
#include "drawing/disegno.h"
#include "drawing/ottimizza.h"
#include "platform/regione.h"
#include "platform/scrittura.h"

namespace tarvel::disegno {
namespace {

Testo ComponiFile(Intestazione intestazione, const Estremi& estremi) {
  Testo testo = "                   " + std::to_string(static_cast<int>(intestazione)) + "\r\n";
  const auto stampa = [&, separatore = SeparatoreDecimale()](auto... valori) {
    (AccodaStampato(testo, Reale(valori), separatore), ...);
    AccodaRiga(testo, "");
  };
  const auto sezione = [&](const auto& elenco, auto voce) {
    stampa(elenco.numero);
    std::for_each(elenco.begin(), elenco.end(), voce);
  };
  stampa(estremi.xmin, estremi.xmax);
  stampa(estremi.ymin, estremi.ymax);
  AccodaRiga(testo, "-10000.000000        10000.000000");
  sezione(Disegno.Coordinate, [&](const Coordinata& c) { stampa(c.x, c.y, 0); });
  // The viewer wants the second attribute first.
  sezione(Disegno.Punti, [&](const ElementoPunto& p) { stampa(p.coordinata, p.attributoB, p.attributoA); });
  sezione(Disegno.Linee, [&](const ElementoLinea& l) { stampa(l.primo, l.secondo, l.colore, l.tipo); });
  sezione(Disegno.Testi, [&](const ElementoTesto& t) {
    stampa(t.posizione, 1, t.angolo);
    stampa(Reale(t.base10) / 10, Reale(t.altezza10) / 10, t.colore);
    // Each text is one line, or the viewer would lose its place.
    for (const char c : t.stringa) testo += c == '\r' || c == '\n' ? ' ' : c;
    AccodaRiga(testo, "");
  });
  sezione(Disegno.Archi, [&](const ElementoArco& a) {
    stampa(a.centro, a.inizio, a.secondoCentro, a.fine);
    stampa(a.colore, a.genere);
  });
  return testo;
}

}  // namespace

Estremi EstremiDisegno() {
  const auto [x0, y0] = Disegno.Coordinate[0];
  Estremi e{x0, y0, x0, y0};
  for (const auto& [x, y] : Disegno.Coordinate)
    e = {std::min(e.xmin, x), std::min(e.ymin, y), std::max(e.xmax, x), std::max(e.ymax, y)};
  return e;
}

std::optional<Guasto> SalvaDisegno(const Testo& nomeFile, Intestazione intestazione) {
  const Estremi estremi = EstremiDisegno();
  OttimizzaDisegno();
  const EsitoScrittura esito = ScriviFile(nomeFile, ComponiFile(intestazione, estremi));
  if (esito) return {};
  // The blank that lacks before the name is wanted: the text is fixed.
  return Guasto{TipoErrore::File, "Errore durante la scrittura sul file" + nomeFile, esito.motivo};
}

}  // namespace tarvel::disegno

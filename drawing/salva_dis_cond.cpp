// Writing the drawing file: printed items, one line an entry, sections in a fixed order.
#include "drawing/salva_dis_cond.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/numeri.h"
#include "drawing/disegno.h"
#include "drawing/ottimizza.h"
#include "platform/desktop.h"
#include "platform/file.h"
#include "platform/regione.h"

namespace tarvel::disegno {
namespace {

struct Estremi {
  Reale xmin, ymin, xmax, ymax;
};

struct Uscita {
  tarvel::Testo testo = {};
  char separatore = SeparatoreDecimale();
};

// One line of printed numbers.
template <class... Valori>
void Stampa(Uscita& uscita, Valori... valori) {
  (AccodaStampato(uscita.testo, Reale(valori), uscita.separatore), ...);
  AccodaRiga(uscita.testo, "");
}

// A text always is one line, or the viewer would lose its place.
void StampaTesto(Uscita& uscita, tarvel::Testo testo) {
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

tarvel::Testo ComponiFile(Intero16 tipoIntestazione, const Estremi& estremi) {
  Uscita uscita;
  AccodaRiga(uscita.testo, tipoIntestazione == 4 ? "                   4" : "                   3");
  Stampa(uscita, estremi.xmin, estremi.xmax);
  Stampa(uscita, estremi.ymin, estremi.ymax);
  AccodaRiga(uscita.testo, "-10000.000000        10000.000000");
  ScriviSezioni(uscita);
  return std::move(uscita.testo);
}

void ScriviFileDisegno(const tarvel::Testo& nomeFile, Intero16& tipoIntestazione, Intero16 modoAvviso,
                       const Estremi& estremi) {
  const bool scritto =
      ScriviFile(nomeFile, ComponiFile(tipoIntestazione, estremi)) == EsitoScrittura::Scritto;
  tipoIntestazione = scritto ? 1 : 0;
  // The missing blank before the name is wanted.
  if (!scritto && (modoAvviso == 0 || modoAvviso == 2))
    MostraMessaggio("Errore durante la scrittura sul file" + nomeFile, "ERRORE", Icona::Nessuna);
}

}  // namespace

void EstremiDisegno(Reale& xmin, Reale& ymin, Reale& xmax, Reale& ymax) {
  const auto& coordinate = Disegno.Coordinate;
  xmin = xmax = coordinate[0].x;
  ymin = ymax = coordinate[0].y;
  for (std::int32_t i = 0; i < coordinate.numero; ++i) {
    const auto [x, y] = coordinate[i];
    xmin = std::min(xmin, x);
    xmax = std::max(xmax, x);
    ymin = std::min(ymin, y);
    ymax = std::max(ymax, y);
  }
}

void SalvaDisegno(const tarvel::Testo& nomeFile, Intero16& tipoIntestazione, const Intero16& modoAvviso) {
  Estremi estremi;
  EstremiDisegno(estremi.xmin, estremi.ymin, estremi.xmax, estremi.ymax);
  OttimizzaDisegno();
  ScriviFileDisegno(nomeFile, tipoIntestazione, modoAvviso, estremi);
  if (tipoIntestazione != 0 && modoAvviso == 0)
    MostraMessaggio("File " + nomeFile + " salvato.", "SALVA FILE DISEGNO", Icona::Informazione);
}

}  // namespace tarvel::disegno

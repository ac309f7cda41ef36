// Dimension lines, drawn by the primitives.
#include "drawing/quota.h"

#include <algorithm>
#include <utility>

#include "base/numeri.h"
#include "drawing/funz_disegno.h"
#include "platform/regione.h"

namespace tarvel::disegno {

bool AlternaTestiQuote = false;
Intero16 LatoTestoAlternato;

namespace {

// A dimension in its drawing direction.
struct Tratto {
  Coordinata p1, p2;
  Reale dx, dy, lunghezza;
};

Tratto Orientato(Coordinata p1, Coordinata p2) {
  const bool indietro = Assoluto(p1.x - p2.x) >= kTolleranza ? p1.x > p2.x : p1.y > p2.y;
  if (indietro) std::swap(p1, p2);
  const Reale dx = p2.x - p1.x, dy = p2.y - p1.y;
  return {p1, p2, dx, dy, Radice(dx * dx + dy * dy)};
}

void TracciaQuota(const Tratto& q, const StileQuota& stile) {
  const Intero16 colore = stile.coloreLinea;
  const Reale t = stile.estensione / q.lunghezza;
  const Reale ex = q.dx * t, ey = q.dy * t;  // the extension, along the dimension
  for (const Coordinata& p : {q.p1, q.p2}) Cerchio(p.x, p.y, stile.diametroPallino, colore);
  Linea(q.p1.x - ex, q.p1.y - ey, q.p2.x + ex, q.p2.y + ey, colore);
  const Reale aSinistra = stile.lato == 1 ? 2 : 1, aDestra = stile.lato == 1 ? 1 : 2;
  for (const Coordinata& p : {q.p1, q.p2})
    Linea(p.x - aSinistra * ey, p.y + aSinistra * ex, p.x + aDestra * ey, p.y - aDestra * ex, colore);
}

Intero16 AngoloTesto(const Tratto& q) {
  if (Assoluto(q.dx) <= kTolleranza) return q.dy <= 0 ? -90 : 90;
  return InteroPari(Arcotangente(q.dy / q.dx) * 180 / 3.141592654);
}

tarvel::Testo Misura(Reale valore) {
  const Reale potenza = Potenza(Reale(10), std::max<int>(DecimaliQuote, 0));
  tarvel::Testo testo;
  AccodaNumero(testo, Arrotondato(valore * potenza) / potenza, SeparatoreDecimale(), true);
  return testo;
}

// How far the label lies to the left of the line; keeps the alternation of a chain.
Reale DistanzaEtichetta(bool sta, const StileQuota& stile) {
  if (sta) {
    LatoTestoAlternato = 0;
  } else if (AlternaTestiQuote) {
    LatoTestoAlternato = LatoTestoAlternato == 0 ? 1 : 0;
    if (LatoTestoAlternato == 1) return -(stile.distanzaTesto + stile.altezza);
  }
  return stile.distanzaTesto;
}

}  // namespace

void Quota(const tarvel::Testo& testo, Reale x1, Reale x2, Reale y1, Reale y2, const StileQuota& stile) {
  if (Assoluto(x1 - x2) < kTolleranza && Assoluto(y1 - y2) < kTolleranza) return;
  const Tratto q = Orientato({x1, y1}, {x2, y2});
  const Reale l = q.lunghezza;
  if (stile.coloreLinea != -1 && l > kTolleranza) TracciaQuota(q, stile);

  const Intero16 angolo = AngoloTesto(q);
  const tarvel::Testo etichetta = testo.empty() ? Misura(Assoluto(stile.scala) * l) : testo;
  if (etichetta == " ") return;
  const Reale larghezza = Reale(static_cast<double>(etichetta.size())) * stile.base;
  const Reale distanza = DistanzaEtichetta(larghezza <= l, stile);
  const Reale x = (q.p1.x + q.p2.x) / 2 - larghezza / 2 * q.dx / l - distanza * q.dy / l;
  const Reale y = (q.p1.y + q.p2.y) / 2 - larghezza / 2 * q.dy / l + distanza * q.dx / l;
  Testo(etichetta, x, y, angolo, stile.base, stile.altezza, stile.coloreTesto);
}

void CatenaQuote(Intero16 conValori, std::span<const Reale> ascisse, Reale y, const StileQuota& stile) {
  AlternaTestiQuote = true;
  LatoTestoAlternato = 0;
  const tarvel::Testo testo = conValori == 1 ? "" : " ";
  for (std::size_t i = 1; i < ascisse.size(); ++i) Quota(testo, ascisse[i - 1], ascisse[i], y, y, stile);
  AlternaTestiQuote = false;
}

}  // namespace tarvel::disegno

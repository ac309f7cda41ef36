// Dimension lines, drawn by the primitives.
#include "drawing/quota.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "base/numeri.h"
#include "drawing/funz_disegno.h"
#include "platform/regione.h"

namespace tarvel::disegno {

namespace {

// A dimension in its drawing direction.
struct Tratto {
  Coordinata p1, p2;
  Reale dx, dy, lunghezza;
};

Tratto Orientato(Coordinata p1, Coordinata p2) {
  const bool indietro = Assoluto(p1.x - p2.x) >= kTolleranza ? p1.x > p2.x : p1.y > p2.y;
  if (indietro) std::swap(p1, p2);
  return {p1, p2, p2.x - p1.x, p2.y - p1.y, Lunghezza(p1, p2)};
}

void TracciaLinee(const Tratto& q, const StileQuota& stile) {
  const Intero16 colore = stile.coloreLinea;
  const Reale t = stile.estensione / q.lunghezza;
  const Reale ex = q.dx * t, ey = q.dy * t;  // the extension, along the dimension
  for (const Coordinata& p : {q.p1, q.p2}) Cerchio(p, stile.diametroPallino, colore);
  Linea({q.p1.x - ex, q.p1.y - ey}, {q.p2.x + ex, q.p2.y + ey}, colore);
  const bool lungaASinistra = stile.lato == Lato::Sinistra;
  const Reale aSinistra = lungaASinistra ? 2 : 1, aDestra = lungaASinistra ? 1 : 2;
  for (const Coordinata& p : {q.p1, q.p2})
    Linea({p.x - aSinistra * ey, p.y + aSinistra * ex}, {p.x + aDestra * ey, p.y - aDestra * ex}, colore);
}

// Draws a dimension without its label. Nothing is drawn between coinciding points.
std::optional<Tratto> TracciaQuota(Coordinata p1, Coordinata p2, const StileQuota& stile) {
  if (Coincidono(p1, p2)) return std::nullopt;
  const Tratto q = Orientato(p1, p2);
  if (stile.coloreLinea != kSolaEtichetta && q.lunghezza > kTolleranza) TracciaLinee(q, stile);
  return q;
}

Intero16 AngoloTesto(const Tratto& q) {
  if (Assoluto(q.dx) <= kTolleranza) return q.dy <= 0 ? -90 : 90;
  return InteroPari(Arcotangente(q.dy / q.dx) * 180 / 3.141592654);
}

Testo Misura(Reale valore) {
  const Reale potenza = Potenza(Reale(10), std::max<int>(DecimaliQuote, 0));
  Testo testo;
  AccodaNumero(testo, Arrotondato(valore * potenza) / potenza, SeparatoreDecimale(), true);
  return testo;
}

// How far the label lies to the left of the line. `sta`: it fits the dimension. In a chain the sides
// alternate.
Reale DistanzaEtichetta(bool sta, const StileQuota& stile) {
  if (sta) {
    LatoTestoAlternato = false;
  } else if (AlternaTestiQuote) {
    LatoTestoAlternato = !LatoTestoAlternato;
    if (LatoTestoAlternato) return -(stile.distanzaTesto + stile.altezza);
  }
  return stile.distanzaTesto;
}

void TracciaEtichetta(const Testo& etichetta, const Tratto& q, const StileQuota& stile) {
  const Intero16 angolo = AngoloTesto(q);
  const Reale l = q.lunghezza;
  const Reale larghezza = Reale(static_cast<double>(etichetta.size())) * stile.base;
  const Reale distanza = DistanzaEtichetta(larghezza <= l, stile);
  const Reale x = (q.p1.x + q.p2.x) / 2 - larghezza / 2 * q.dx / l - distanza * q.dy / l;
  const Reale y = (q.p1.y + q.p2.y) / 2 - larghezza / 2 * q.dy / l + distanza * q.dx / l;
  ScriviTesto(etichetta, {x, y}, angolo, stile.base, stile.altezza, stile.coloreTesto);
}

}  // namespace

void Quota(Coordinata p1, Coordinata p2, const StileQuota& stile) {
  if (const auto q = TracciaQuota(p1, p2, stile))
    TracciaEtichetta(Misura(Assoluto(stile.scala) * q->lunghezza), *q, stile);
}

void Quota(const Testo& testo, Coordinata p1, Coordinata p2, const StileQuota& stile) {
  if (const auto q = TracciaQuota(p1, p2, stile)) TracciaEtichetta(testo, *q, stile);
}

void CatenaQuote(EtichetteCatena etichette, std::span<const Reale> ascisse, Reale y,
                 const StileQuota& stile) {
  AlternaTestiQuote = true;
  LatoTestoAlternato = false;
  for (std::size_t i = 1; i < ascisse.size(); ++i) {
    const Coordinata da{ascisse[i - 1], y}, a{ascisse[i], y};
    if (etichette == EtichetteCatena::Misure)
      Quota(da, a, stile);
    else
      TracciaQuota(da, a, stile);
  }
  AlternaTestiQuote = false;
}

}  // namespace tarvel::disegno

// Dimensions stand in tables. They are drawn in this order, which is the order of the file.
#include "drawing/sezione/disegno_sezione.h"

#include <algorithm>
#include <array>

#include "base/errore.h"
#include "base/numeri.h"
#include "base/tronca.h"
#include "drawing/funz_disegno.h"
#include "model/geometria.h"
#include "platform/regione.h"

namespace tarvel {

namespace {

using disegno::Lato;

void DisegnaContorni(const GeometriaSezione& g) {
  for (const int p : {1, 2}) {
    const int n = g.NumVertici[p];
    const auto punto = [&](int k) -> disegno::Coordinata { return {g.VerticeZ(p, k), g.VerticeY(p, k)}; };
    const auto operazione = [&] {
      return "poligono " + std::to_string(p) + " di " + std::to_string(n) + " vertici";
    };
    Durante(operazione, [&] {
      for (int k = 1; k < n; ++k) disegno::Linea(punto(k), punto(k + 1));
      // A polygon without vertices is fatal here, rather than missing in the drawing.
      disegno::Linea(punto(n), punto(1));
    });
  }
}

void DisegnaTitolo(const RecordSezione& r, const StileSezione& stile, Reale d) {
  const disegno::StileQuota solaEtichetta{.coloreLinea = disegno::kSolaEtichetta,
                                          .coloreTesto = stile.coloreTesti,
                                          .diametroPallino = 0,
                                          .base = stile.baseTesti,
                                          .altezza = stile.altezzaTesti,
                                          .distanzaTesto = -stile.altezzaTesti / 2,
                                          .scala = 1,
                                          .estensione = 0,
                                          .lato = Lato::Destra};
  const Reale y = std::max(r.O(1).y, r.O(10).y) + 3 * d;
  disegno::Quota("SEZIONE " + r.Nome, {r.O(1).z, y}, {r.O(10).z, y}, solaEtichetta);
}

void DisegnaCatene(const GeometriaSezione& g, disegno::StileQuota stile, Reale d) {
  const auto O = [&](int v) { return g.O(v); };
  const auto C = [&](int v) { return g.C(v); };
  const Reale sopra = O(10).y;
  // clang-format off
  const struct {
    std::array<Reale, 5> ascisse;
    std::size_t quante;
    Reale y;
    Lato lato;
  } catene[] = {
      {{O(1).z, O(10).z},                            2, sopra + 2 * d,                    Lato::Destra},    // overall
      {{O(1).z, O(13).z, O(12).z, O(11).z, O(10).z}, 5, sopra + d,                        Lato::Destra},    // top
      {{O(1).z, O(3).z, O(4).z, C(2).z, C(3).z},     5, std::min(O(4).y, C(2).y) - d / 4, Lato::Sinistra},  // left
      {{C(7).z, C(8).z, O(7).z, O(8).z, O(10).z},    5, std::min(O(7).y, C(8).y) - d / 4, Lato::Sinistra},  // right
  };
  // clang-format on
  for (const auto& c : catene) {
    stile.lato = c.lato;
    disegno::CatenaQuote(disegno::EtichetteCatena::Misure, {c.ascisse.data(), c.quante}, c.y, stile);
  }
}

enum class Verso { Orizzontale, Verticale };

void DisegnaQuote(const GeometriaSezione& g, const VettoreParametri& p, const StileSezione& stile, Reale d) {
  const auto O = [&](int v) { return g.O(v); };
  const auto C = [&](int v) { return g.C(v); };
  // Height, at a point's abscissa, of the line through the top of the left tip with the left slope.
  const auto S = [&](Punto punto) { return O(1).y + TettoSinistro(p, punto.z); };
  const Reale T = stile.quota.distanzaTesto, opposta = stile.distanzaOpposta;
  constexpr auto oriz = Verso::Orizzontale;
  constexpr auto vert = Verso::Verticale;
  constexpr auto sx = Lato::Sinistra, dx = Lato::Destra;
  // clang-format off
  const struct {
    Verso verso;
    Reale da, a;
    Reale posto;  // the ordinate of a horizontal one, the abscissa of a vertical one
    Lato lato;
    Reale distanzaTesto;
  } quote[] = {
      {oriz, O(5).z,  O(6).z,  O(5).y - d,  sx, T},        // D1   width of the bottom
      {vert, O(5).y,  O(12).y, O(12).z,     sx, T},        // D2   total height
      {vert, O(5).y,  C(10).y, O(12).z + d, sx, T},        // D3   bottom slab
      {oriz, C(1).z,  C(11).z, C(1).y + d,  dx, T},        // D4   lower left fillet of the cell, width
      {oriz, C(10).z, C(9).z,  C(9).y + d,  dx, T},        // D5   lower right fillet, width
      {vert, C(11).y, C(1).y,  C(11).z + d, sx, T},        // D6   lower left fillet, height
      {vert, C(10).y, C(9).y,  C(10).z - d, dx, T},        // D7   lower right fillet, height
      {vert, O(2).y,  O(1).y,  O(1).z - d,  dx, T},        // D8   tip of the cantilever
      {vert, S(O(3)), O(3).y,  O(3).z,      dx, T},        // D9   depth of O3 below the slope of the top
      {vert, S(O(4)), O(4).y,  O(4).z,      dx, opposta},  // D10  of O4
      {vert, S(C(2)), C(2).y,  C(2).z,      dx, T},        // D11  of C2
      {vert, S(C(3)), C(3).y,  C(3).z,      dx, opposta},  // D12  of C3
      {vert, S(C(4)), C(4).y,  C(4).z,      dx, T},        // D13  of C4
  };
  // clang-format on
  for (const auto& q : quote) {
    disegno::StileQuota quota = stile.quota;
    quota.lato = q.lato;
    quota.distanzaTesto = q.distanzaTesto;
    if (q.verso == Verso::Orizzontale)
      disegno::Quota({q.da, q.posto}, {q.a, q.posto}, quota);
    else
      disegno::Quota({q.posto, q.da}, {q.posto, q.a}, quota);
  }
}

void DisegnaProprieta(const RecordSezione& r, const StileSezione& stile, Reale d) {
  // clang-format off
  const struct {
    const char* etichetta;
    Reale valore;
    int decimali;
  } righe[] = {
      {"ZG:   ", r.ZG,  2},
      {"YG:   ", r.YG,  2},
      {"An:   ", r.An,  0},
      {"Atz:  ", r.Atz, 0},
      {"Aty:  ", r.Aty, 0},
      {"Jzg:  ", r.Jzg, 0},
      {"Jyg:  ", r.Jyg, 0},
      {"Jt :  ", r.Jt,  0},
  };
  // clang-format on
  const Reale passo = Arrotondato(2 * stile.altezzaTesti);
  int n = 0;
  for (const auto& riga : righe) {
    Testo testo = riga.etichetta;
    AccodaNumero(testo, Tronca(riga.valore, riga.decimali), SeparatoreDecimale(), true);
    const Reale y = r.O(6).y - d / 2 - n++ * passo;
    disegno::ScriviTesto(testo, {r.O(6).z + d, y}, 0, stile.baseTesti, stile.altezzaTesti, stile.coloreTesti);
  }
}

}  // namespace

StileSezione StileDi(const VettoreOpzioni& opzioni) {
  // Of a label from its dimension line: above it, or below where the option's sign says so.
  const Reale q = opzioni[kSopraSotto] * opzioni[kDistanzaTesto];
  const int segno = q > 0 ? 1 : q < 0 ? -1 : 0;
  const Reale altezza = opzioni[kAltezzaTestoQuota];
  return {.colore = InteroPari(opzioni[kColoreSezione]),
          .tipoLinea = InteroPari(opzioni[kTipoLineaSezione]),
          .distanzaMassima = opzioni[kDistanzaMassima],
          .quota = {.coloreLinea = InteroPari(opzioni[kColoreQuota]),
                    .coloreTesto = InteroPari(opzioni[kColoreTestoQuota]),
                    .diametroPallino = opzioni[kDimensionePallino],
                    .base = opzioni[kBaseTestoQuota],
                    .altezza = altezza,
                    .distanzaTesto = Reale(segno - 1) / 2 * altezza + q,
                    .scala = opzioni[kScalaQuote],
                    .estensione = opzioni[kEstensione],
                    .lato = Lato::Destra},
          .distanzaOpposta = Reale(-1 - segno) / 2 * altezza - q,
          .coloreTesti = InteroPari(opzioni[kColoreTesti]),
          .baseTesti = opzioni[kBaseTesti],
          .altezzaTesti = opzioni[kAltezzaTesti]};
}

void DisegnaSezione(const RecordSezione& r, const VettoreParametri& p, const StileSezione& stile,
                    bool calcolata) {
  disegno::SvuotaDisegno();
  disegno::FlagDisegno = true;
  disegno::OrigineX = disegno::OrigineY = 0;
  disegno::ColoreCorrente = stile.colore;
  disegno::TipoLineaCorrente = stile.tipoLinea;
  DisegnaContorni(r);

  const Reale d = std::min(stile.distanzaMassima, p[kAltezzaTotale] / 2);
  DisegnaTitolo(r, stile, d);
  DisegnaCatene(r, stile.quota, d);
  DisegnaQuote(r, p, stile, d);
  if (calcolata) DisegnaProprieta(r, stile, d);
  disegno::FlagDisegno = false;
}

}  // namespace tarvel

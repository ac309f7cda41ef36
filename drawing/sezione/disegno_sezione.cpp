// Dimensions stand in tables, as on a drawing; the order of drawing is the order of the file.
#include "drawing/sezione/disegno_sezione.h"

#include <algorithm>
#include <array>

#include "base/errore.h"
#include "base/numeri.h"
#include "base/tronca.h"
#include "drawing/funz_disegno.h"
#include "drawing/quota.h"
#include "drawing/salva_dis_cond.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "model/geometria.h"
#include "model/tabella_sezioni.h"
#include "options/opzioni.h"
#include "platform/regione.h"

namespace tarvel {

namespace {

using disegno::Lato;

// Of the dimension lines from the outline.
Reale DistanzaQuote() {
  return std::min(Opzioni[kDistanzaMassima], ParametriSezione[kAltezzaTotale] / 2);
}

// Distances of a label from its dimension line: the standard side, and the other one.
struct DistanzeTesto {
  Reale standard, opposta;
};

DistanzeTesto DistanzeDelTesto() {
  const Reale q = Opzioni[kSopraSotto] * Opzioni[kDistanzaTesto];
  const int segno = q > 0 ? 1 : q < 0 ? -1 : 0;
  const Reale altezza = Opzioni[kAltezzaTestoQuota];
  return {Reale(segno - 1) / 2 * altezza + q, Reale(-1 - segno) / 2 * altezza - q};
}

disegno::StileQuota StileDelleQuote(Lato lato, Reale distanzaTesto) {
  return {.coloreLinea = InteroPari(Opzioni[kColoreQuota]),
          .coloreTesto = InteroPari(Opzioni[kColoreTestoQuota]),
          .diametroPallino = Opzioni[kDimensionePallino],
          .base = Opzioni[kBaseTestoQuota],
          .altezza = Opzioni[kAltezzaTestoQuota],
          .distanzaTesto = distanzaTesto,
          .scala = Opzioni[kScalaQuote],
          .estensione = Opzioni[kEstensione],
          .lato = lato};
}

void DisegnaContorni(const GeometriaSezione& g) {
  for (const int p : {1, 2}) {
    const int n = g.NumVertici[p];
    const auto punto = [&](int k) -> disegno::Coordinata { return {g.VerticeZ(p, k), g.VerticeY(p, k)}; };
    const auto operazione = [&] {
      return "poligono " + std::to_string(p) + " di " + std::to_string(n) + " vertici";
    };
    Durante(operazione, [&] {
      for (int k = 1; k < n; ++k) disegno::Linea(punto(k), punto(k + 1));
      // Of a polygon without vertices too: that is fatal, rather than a drawing that lacks it.
      disegno::Linea(punto(n), punto(1));
    });
  }
}

void DisegnaTitolo(const RecordSezione& r, Reale d) {
  const disegno::StileQuota solaEtichetta{.coloreLinea = disegno::kSolaEtichetta,
                                          .coloreTesto = InteroPari(Opzioni[kColoreTesti]),
                                          .diametroPallino = 0,
                                          .base = Opzioni[kBaseTesti],
                                          .altezza = Opzioni[kAltezzaTesti],
                                          .distanzaTesto = -Opzioni[kAltezzaTesti] / 2,
                                          .scala = 1,
                                          .estensione = 0,
                                          .lato = Lato::Destra};
  const Reale y = std::max(r.O(1).y, r.O(10).y) + 3 * d;
  disegno::Quota("SEZIONE " + r.Nome, {r.O(1).z, y}, {r.O(10).z, y}, solaEtichetta);
}

void DisegnaCatene(const GeometriaSezione& g, Reale d, Reale T) {
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
      {{O(1).z, O(10).z},                            2, sopra + 2 * d,                  Lato::Destra},    // overall
      {{O(1).z, O(13).z, O(12).z, O(11).z, O(10).z}, 5, sopra + d,                      Lato::Destra},    // top
      {{O(1).z, O(3).z, O(4).z, C(2).z, C(3).z},     5, std::min(O(4).y, C(2).y) - d / 4, Lato::Sinistra},  // left
      {{C(7).z, C(8).z, O(7).z, O(8).z, O(10).z},    5, std::min(O(7).y, C(8).y) - d / 4, Lato::Sinistra},  // right
  };
  // clang-format on
  for (const auto& c : catene)
    disegno::CatenaQuote(disegno::EtichetteCatena::Misure, {c.ascisse.data(), c.quante}, c.y,
                         StileDelleQuote(c.lato, T));
}

enum class Verso { Orizzontale, Verticale };

void DisegnaQuote(const GeometriaSezione& g, Reale d, const DistanzeTesto& distanze) {
  const auto O = [&](int v) { return g.O(v); };
  const auto C = [&](int v) { return g.C(v); };
  // Height at a point's abscissa of the line of slope p16 through the top of the left tip.
  const auto S = [&](Punto p) { return O(1).y + TettoSinistro(ParametriSezione, p.z); };
  const auto [T, opposta] = distanze;
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
    const disegno::StileQuota stile = StileDelleQuote(q.lato, q.distanzaTesto);
    if (q.verso == Verso::Orizzontale)
      disegno::Quota({q.da, q.posto}, {q.a, q.posto}, stile);
    else
      disegno::Quota({q.posto, q.da}, {q.posto, q.a}, stile);
  }
}

void DisegnaProprieta(const RecordSezione& r, Reale d) {
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
  const Reale passo = Arrotondato(2 * Opzioni[kAltezzaTesti]);
  const Intero16 colore = InteroPari(Opzioni[kColoreTesti]);
  int n = 0;
  for (const auto& riga : righe) {
    Testo testo = riga.etichetta;
    AccodaNumero(testo, Tronca(riga.valore, riga.decimali), SeparatoreDecimale(), true);
    const Reale y = r.O(6).y - d / 2 - n++ * passo;
    disegno::Testo(testo, {r.O(6).z + d, y}, 0, Opzioni[kBaseTesti], Opzioni[kAltezzaTesti], colore);
  }
}

}  // namespace

void DisegnaSezione(const RecordSezione& r) {
  disegno::OrigineX = disegno::OrigineY = 0;
  disegno::ColoreCorrente = InteroPari(Opzioni[kColoreSezione]);
  disegno::TipoLineaCorrente = InteroPari(Opzioni[kTipoLineaSezione]);
  DisegnaContorni(r);

  const Reale d = DistanzaQuote();
  const DistanzeTesto distanze = DistanzeDelTesto();
  DisegnaTitolo(r, d);
  DisegnaCatene(r, d, distanze.standard);
  DisegnaQuote(r, d, distanze);
  if (SezioneCalcolata) DisegnaProprieta(r, d);
}

void GeneraDisegno(disegno::ModoAvviso avvisi) {
  RecordSezione& r = TabellaSezioni[SezioneCorrente];
  const auto genera = [&] {
    disegno::SvuotaDisegno();
    disegno::FlagDisegno = true;
    if (!SezioneCalcolata) RifaiContorno(r, ParametriSezione);
    DisegnaSezione(r);
    disegno::FlagDisegno = false;
    static_cast<void>(disegno::SalvaDisegno(DirLavori + NomeFileDisegno, avvisi));
  };
  Durante([&] { return SullaSezione("disegno", r.Nome); }, genera, kNonCassone);
}

}  // namespace tarvel

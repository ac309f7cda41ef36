// Dimensions stand in tables, as on a drawing; the order of drawing is the order of the file.
#include "drawing/disegno_sezione.h"

#include <span>

#include "app/cartelle.h"
#include "base/errore.h"
#include "base/numeri.h"
#include "drawing/funz_disegno.h"
#include "drawing/nome_file.h"
#include "drawing/quota.h"
#include "drawing/salva_dis_cond.h"
#include "model/geometria.h"
#include "model/tabella_sezioni.h"
#include "options/opzioni.h"
#include "platform/regione.h"
#include "properties/utilita.h"

namespace tarvel {

namespace {

// Horizontal and vertical coordinate of vertex k of polygon p.
struct Vertici {
  const GeometriaSezione& g;
  Reale H(int p, int k) const { return g.VerticeZ(p, k); }
  Reale V(int p, int k) const { return g.VerticeY(p, k); }
};

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

disegno::StileQuota StileDelleQuote(int lato, Reale distanzaTesto) {
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
    const auto lato = [&](int k, int seguente) {
      const Punto da = g.Vertice(p, k), a = g.Vertice(p, seguente);
      disegno::Linea(da.z, da.y, a.z, a.y);
    };
    const auto operazione = [&] {
      return "poligono " + std::to_string(p) + " di " + std::to_string(n) + " vertici";
    };
    Durante(operazione, [&] {
      for (int k = 1; k < n; ++k) lato(k, k + 1);
      lato(n, 1);  // also of a polygon without vertices, which is fatal: wanted so
    });
  }
}

void DisegnaTitolo(const RecordSezione& r, Reale d) {
  const auto [g] = Vertici{r};
  const disegno::StileQuota solaEtichetta{.coloreLinea = -1,
                                          .coloreTesto = InteroPari(Opzioni[kColoreTesti]),
                                          .diametroPallino = 0,
                                          .base = Opzioni[kBaseTesti],
                                          .altezza = Opzioni[kAltezzaTesti],
                                          .distanzaTesto = -Opzioni[kAltezzaTesti] / 2,
                                          .scala = 1,
                                          .estensione = 0,
                                          .lato = 0};
  const Reale y = Massimo(g.VerticeY(1, 1), g.VerticeY(1, 10)) + 3 * d;
  disegno::Quota("SEZIONE " + r.Nome, g.VerticeZ(1, 1), g.VerticeZ(1, 10), y, y, solaEtichetta);
}

void DisegnaCatene(const Vertici& v, Reale d, Reale T) {
  const auto H = [&](int p, int k) { return v.H(p, k); };
  const auto V = [&](int p, int k) { return v.V(p, k); };
  const Reale sopra = V(1, 10);
  const struct {
    std::array<Reale, 5> ascisse;
    std::size_t quante;
    Reale y;
    int lato;
  } catene[] = {
      {{H(1, 1), H(1, 10)}, 2, sopra + 2 * d, 0},
      {{H(1, 1), H(1, 13), H(1, 12), H(1, 11), H(1, 10)}, 5, sopra + d, 0},
      {{H(1, 1), H(1, 3), H(1, 4), H(2, 2), H(2, 3)}, 5, Minimo(V(1, 4), V(2, 2)) - d / 4, 1},
      {{H(2, 7), H(2, 8), H(1, 7), H(1, 8), H(1, 10)}, 5, Minimo(V(1, 7), V(2, 8)) - d / 4, 1},
  };
  for (const auto& c : catene)
    disegno::CatenaQuote(1, {c.ascisse.data(), c.quante}, c.y, StileDelleQuote(c.lato, T));
}

enum class Verso { Orizzontale, Verticale };

void DisegnaQuote(const Vertici& v, Reale d, const DistanzeTesto& distanze) {
  const auto H = [&](int p, int k) { return v.H(p, k); };
  const auto V = [&](int p, int k) { return v.V(p, k); };
  // Height at x of the line of slope p16 through the top of the left tip.
  const auto S = [&](Reale x) { return V(1, 1) + TettoSinistro(ParametriSezione, x); };
  const auto [T, opposta] = distanze;
  constexpr auto oriz = Verso::Orizzontale;
  constexpr auto vert = Verso::Verticale;
  const struct {
    Verso verso;
    Reale da, a;
    Reale posto;  // the ordinate of a horizontal one, the abscissa of a vertical one
    int lato;
    Reale distanzaTesto;
  } quote[] = {
      {oriz, H(1, 5), H(1, 6), V(1, 5) - d, 1, T},   {vert, V(1, 5), V(1, 12), H(1, 12), 1, T},
      {vert, V(1, 5), V(2, 10), H(1, 12) + d, 1, T}, {oriz, H(2, 1), H(2, 11), V(2, 1) + d, 0, T},
      {oriz, H(2, 10), H(2, 9), V(2, 9) + d, 0, T},  {vert, V(2, 11), V(2, 1), H(2, 11) + d, 1, T},
      {vert, V(2, 10), V(2, 9), H(2, 10) - d, 0, T}, {vert, V(1, 2), V(1, 1), H(1, 1) - d, 0, T},
      {vert, S(H(1, 3)), V(1, 3), H(1, 3), 0, T},    {vert, S(H(1, 4)), V(1, 4), H(1, 4), 0, opposta},
      {vert, S(H(2, 2)), V(2, 2), H(2, 2), 0, T},    {vert, S(H(2, 3)), V(2, 3), H(2, 3), 0, opposta},
      {vert, S(H(2, 4)), V(2, 4), H(2, 4), 0, T},
  };
  for (const auto& q : quote) {
    const disegno::StileQuota stile = StileDelleQuote(q.lato, q.distanzaTesto);
    if (q.verso == Verso::Orizzontale)
      disegno::Quota("", q.da, q.a, q.posto, q.posto, stile);
    else
      disegno::Quota("", q.posto, q.posto, q.da, q.a, stile);
  }
}

void DisegnaProprieta(const RecordSezione& r, Reale d) {
  const struct {
    const char* etichetta;
    Reale valore;
    int decimali;
  } righe[] = {
      {"ZG:   ", r.ZG, 2},  {"YG:   ", r.YG, 2},  {"An:   ", r.An, 0},  {"Atz:  ", r.Atz, 0},
      {"Aty:  ", r.Aty, 0}, {"Jzg:  ", r.Jzg, 0}, {"Jyg:  ", r.Jyg, 0}, {"Jt :  ", r.Jt, 0},
  };
  const Reale passo = Arrotondato(2 * Opzioni[kAltezzaTesti]);
  const Intero16 colore = InteroPari(Opzioni[kColoreTesti]);
  int n = 0;
  for (const auto& riga : righe) {
    Testo testo = riga.etichetta;
    AccodaNumero(testo, Tronca(riga.valore, riga.decimali), SeparatoreDecimale(), true);
    const Reale y = r.O(6).y - d / 2 - n++ * passo;
    disegno::Testo(testo, r.O(6).z + d, y, 0, Opzioni[kBaseTesti], Opzioni[kAltezzaTesti], colore);
  }
}

}  // namespace

void DisegnaSezione(const RecordSezione& r) {
  disegno::OrigineX = disegno::OrigineY = 0;
  disegno::ColoreCorrente = InteroPari(Opzioni[kColoreSezione]);
  disegno::TipoLineaCorrente = InteroPari(Opzioni[kTipoLineaSezione]);
  DisegnaContorni(r);

  const Reale d = Minimo(Opzioni[kDistanzaMassima], ParametriSezione[kAltezzaTotale] / 2);
  const DistanzeTesto distanze = DistanzeDelTesto();
  DisegnaTitolo(r, d);
  DisegnaCatene({r}, d, distanze.standard);
  DisegnaQuote({r}, d, distanze);
  if (SezioneCalcolata) DisegnaProprieta(r, d);
}

void GeneraDisegno(ModoAvviso avvisi) {
  RecordSezione& r = TabellaSezioni[SezioneCorrente];
  const auto genera = [&] {
    disegno::SvuotaDisegno();
    disegno::FlagDisegno = disegno::kGeneraDisegno;
    if (!SezioneCalcolata) Durante("contorno", [&] { CostruisciGeometria(r, ParametriSezione); });
    DisegnaSezione(r);
    disegno::FlagDisegno = "";
    Intero16 tipoIntestazione = 0;
    disegno::SalvaDisegno(DirLavori + NomeFileDisegno, tipoIntestazione, static_cast<int>(avvisi));
  };
  Durante([&] { return SullaSezione("disegno", r.Nome); }, genera, kNonCassone);
}

}  // namespace tarvel

// The driver: every result is accumulated in the record itself, so that a fault leaves what came
// before it.
#include "properties/caratteristiche.h"

#include "base/errore.h"
#include "model/tabella_sezioni.h"
#include "properties/aree_taglio.h"
#include "properties/integrali.h"
#include "properties/utilita.h"
#include "sheartorsion/tau_punti.h"
#include "sheartorsion/torsione.h"

namespace tarvel {
namespace {

constexpr int kVerticiSuperiore = 18;
constexpr int kVerticiInferiore = 6;

struct Sommatori {
  Reale MomStaticoYTot;  // ∫ z dA
  Reale MomStaticoZTot;  // ∫ y dA
};

// `segno`: -1 for the whole section (counter-clockwise outline), +1 for the clockwise parts.
// Vertical edges contribute nothing, not even to the area.
void SommaAreaStatici(RecordSezione& r, int poligono, int n, int segno, Sommatori& somme) {
  const auto vertice = [&](int v) { return Estremo(r.Vertice(poligono, v)); };
  PerOgniLato(n, vertice, [&](const Estremo& da, const Estremo& a) {
    const auto s = SegmentoDi(da, a);
    if (!s) return;
    r.An += segno * AreaTrapezio(da.p, a.p);
    somme.MomStaticoYTot += segno * MomStaticoY(*s);
    somme.MomStaticoZTot += segno * MomStaticoZ(*s);
  });
}

// Second moments of the outline of `g`, added to those of `r`; Jt takes the product moment.
void SommaInerzie(const GeometriaSezione& g, RecordSezione& r, int poligono, int n, int segno) {
  const auto vertice = [&](int v) { return EstremoQuarto(g.Vertice(poligono, v)); };
  PerOgniLato(n, vertice, [&](const EstremoQuarto& da, const EstremoQuarto& a) {
    const auto s = SegmentoDi(da, a);
    if (!s) return;
    r.Jyg += segno * MomInerziaY(*s);
    r.Jzg += segno * MomInerziaZ(*s);
    r.Jt += segno * MomCentrifugo(*s);
  });
}

void ImpostaBaricentro(RecordSezione& r, const Sommatori& somme) {
  const bool nulla = Assoluto(r.An) <= kTolleranza;
  r.YG = nulla ? Reale(0) : somme.MomStaticoZTot / r.An;
  r.ZG = nulla ? Reale(0) : somme.MomStaticoYTot / r.An;
}

void Ingombri(RecordSezione& r) {
  const Reale yS = r.O(5).y;
  r.AltezzaTotale = Assoluto(r.O(1).y - yS);
  for (const int v : {13, 12, 11, 10}) r.AltezzaTotale = Massimo(r.AltezzaTotale, Assoluto(r.O(v).y - yS));
  r.BaseTotale = Massimo(Assoluto(r.O(10).z - r.O(1).z), Assoluto(r.O(6).z - r.O(5).z));
}

void CopiaBaricentrica(const RecordSezione& r, RecordSezione& copia) {
  for (const int p : {1, 2})
    for (int v = 1; v <= VerticiPoligono[p]; ++v) copia.ImpostaVertice(p, v, r.Vertice(p, v));
  copia.ZG = r.ZG;
  copia.YG = r.YG;
  TraslaBaricentro(copia, 2, VerticiPoligono);
}

// Top slab, cantilevers and webs, the cell opened at the bottom.
void EstraiSuperiore(const RecordSezione& r, RecordSezione& parte) {
  int n = 0;
  for (const int v : {1, 13, 12, 11, 10, 9, 8, 7}) parte.ImpostaVertice(1, ++n, r.O(v));
  for (const int v : {8, 7, 6, 5, 4, 3, 2}) parte.ImpostaVertice(1, ++n, r.C(v));
  for (const int v : {4, 3, 2}) parte.ImpostaVertice(1, ++n, r.O(v));
}

// The bottom slab below the cell.
void EstraiInferiore(const RecordSezione& r, RecordSezione& parte) {
  int n = 0;
  for (const int v : {1, 11, 10, 9}) parte.ImpostaVertice(1, ++n, r.C(v));
  for (const int v : {6, 5}) parte.ImpostaVertice(1, ++n, r.O(v));
}

}  // namespace

void CalcolaCaratteristiche(RecordSezione& sezione) {
  RecordSezione SezioneBaricentrica, ParteSuperiore, ParteInferiore;

  Durante("ingombri", [&] { Ingombri(sezione); });

  sezione.An = sezione.Jt = sezione.Jzg = sezione.Jyg = 0;
  Durante("area e baricentro", [&] {
    Sommatori somme;
    for (const int p : {1, 2}) SommaAreaStatici(sezione, p, VerticiPoligono[p], -1, somme);
    ImpostaBaricentro(sezione, somme);
  });

  Durante("momenti d'inerzia", [&] {
    CopiaBaricentrica(sezione, SezioneBaricentrica);
    for (const int p : {1, 2}) SommaInerzie(SezioneBaricentrica, sezione, p, VerticiPoligono[p], -1);
    SezioneBaricentrica.Jyg = sezione.Jyg;
    SezioneBaricentrica.Jzg = sezione.Jzg;
    SezioneBaricentrica.Jt = sezione.Jt;
  });

  Reale qT;
  Durante("costante di torsione", [&] {
    Reale omega;
    CalcolaTorsione(sezione, omega, sezione.Jt);
    qT = Reale(1) / 2 / omega;
  });

  Durante("aree a taglio", [&] {
    sezione.Aty = AreaAnime(sezione);
    sezione.Atz = AreaSolette(sezione);
  });

  Durante("parti superiore e inferiore", [&] {
    EstraiSuperiore(sezione, ParteSuperiore);
    EstraiInferiore(sezione, ParteInferiore);
    struct {
      RecordSezione& record;
      int n;
    } const parti[] = {{ParteSuperiore, kVerticiSuperiore}, {ParteInferiore, kVerticiInferiore}};
    for (const auto& parte : parti) {
      Sommatori somme;
      SommaAreaStatici(parte.record, 1, parte.n, +1, somme);
      ImpostaBaricentro(parte.record, somme);
    }
    for (const auto& parte : parti) {
      const int conteggio[] = {0, parte.n};
      TraslaBaricentro(parte.record, 1, conteggio);
      SommaInerzie(parte.record, parte.record, 1, parte.n, +1);
    }
  });

  Durante("tensioni nei punti caratteristici",
          [&] { CalcolaTauPunti(sezione, SezioneBaricentrica, ParteSuperiore, ParteInferiore, qT); });

  sezione.Sigla = "A";
  sezione.ValoreSigla = 0;
}

}  // namespace tarvel

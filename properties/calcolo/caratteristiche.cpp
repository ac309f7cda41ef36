// The driver accumulates every result in the record itself: a fault leaves the results before it.
#include "properties/calcolo/caratteristiche.h"

#include <algorithm>

#include "base/errore.h"
#include "model/tabella_sezioni.h"
#include "properties/aree_taglio.h"
#include "properties/copia_lavoro.h"
#include "sheartorsion/tau_punti.h"
#include "sheartorsion/torsione.h"

namespace tarvel {
namespace {

struct Sommatori {
  Reale MomStaticoYTot;  // ∫ z dA
  Reale MomStaticoZTot;  // ∫ y dA
};

// `segno`: -1 for the whole section (counter-clockwise outline), +1 for the clockwise parts.
// Vertical edges contribute nothing, not even to the area.
void SommaAreaStatici(const Poligono& poligono, int segno, Reale& An, Sommatori& somme) {
  PerOgniSegmento(poligono, [&](const Segmento& s) {
    An += segno * AreaTrapezio(s.da, s.a);
    somme.MomStaticoYTot += segno * MomStaticoY(s);
    somme.MomStaticoZTot += segno * MomStaticoZ(s);
  });
}

void SommaInerzie(const Poligono& poligono, int segno, Reale& Jyg, Reale& Jzg, Reale& Jyz) {
  PerOgniSegmento(poligono, [&](const Segmento& s) {
    Jyg += segno * MomInerziaY(s);
    Jzg += segno * MomInerziaZ(s);
    Jyz += segno * MomCentrifugo(s);
  });
}

// `r`: the section or a part of it.
template <class Record>
void ImpostaBaricentro(Record& r, const Sommatori& somme) {
  const bool nulla = Assoluto(r.An) <= kTolleranza;
  r.YG = nulla ? Reale(0) : somme.MomStaticoZTot / r.An;
  r.ZG = nulla ? Reale(0) : somme.MomStaticoYTot / r.An;
}

void Ingombri(RecordSezione& r) {
  const Reale yS = r.O(5).y;
  r.AltezzaTotale = Assoluto(r.O(1).y - yS);
  for (const int v : {13, 12, 11, 10}) r.AltezzaTotale = std::max(r.AltezzaTotale, Assoluto(r.O(v).y - yS));
  r.BaseTotale = std::max(Assoluto(r.O(10).z - r.O(1).z), Assoluto(r.O(6).z - r.O(5).z));
}

void CopiaVertici(const GeometriaSezione& g, const ConteggiVertici& vertici, CopiaLavoro& copia) {
  for (int v = 1; v <= vertici[1]; ++v) copia.poligono1.Aggiungi(g.O(v));
  for (int v = 1; v <= vertici[2]; ++v) copia.poligono2.Aggiungi(g.C(v));
}

// Top slab, cantilevers and webs, the cell opened at the bottom.
void EstraiSuperiore(const CopiaLavoro& intera, Poligono& parte) {
  for (const int v : {1, 13, 12, 11, 10, 9, 8, 7}) parte.Aggiungi(intera.O(v));
  for (const int v : {8, 7, 6, 5, 4, 3, 2}) parte.Aggiungi(intera.C(v));
  for (const int v : {4, 3, 2}) parte.Aggiungi(intera.O(v));
}

// The bottom slab below the cell.
void EstraiInferiore(const CopiaLavoro& intera, Poligono& parte) {
  for (const int v : {1, 11, 10, 9}) parte.Aggiungi(intera.C(v));
  for (const int v : {6, 5}) parte.Aggiungi(intera.O(v));
}

}  // namespace

void CalcolaCaratteristiche(RecordSezione& sezione) {
  CalcolaCaratteristiche(sezione, ParametriSezione, VerticiPoligono);
}

void CalcolaCaratteristiche(RecordSezione& sezione, const VettoreParametri& p,
                            const ConteggiVertici& vertici) {
  CopieLavoro copie;
  CopiaLavoro& SezioneBaricentrica = copie.SezioneBaricentrica;
  CopiaLavoro& ParteSuperiore = copie.ParteSuperiore;
  CopiaLavoro& ParteInferiore = copie.ParteInferiore;

  Durante("ingombri", [&] { Ingombri(sezione); });

  sezione.An = sezione.Jt = sezione.Jzg = sezione.Jyg = 0;
  Durante("area e baricentro", [&] {
    CopiaVertici(sezione, vertici, SezioneBaricentrica);
    EstraiSuperiore(SezioneBaricentrica, ParteSuperiore.poligono1);
    EstraiInferiore(SezioneBaricentrica, ParteInferiore.poligono1);
    Sommatori somme;
    SommaAreaStatici(SezioneBaricentrica.poligono1, -1, sezione.An, somme);
    SommaAreaStatici(SezioneBaricentrica.poligono2, -1, sezione.An, somme);
    ImpostaBaricentro(sezione, somme);
  });

  Durante("momenti d'inerzia", [&] {
    SezioneBaricentrica.ZG = sezione.ZG;
    SezioneBaricentrica.YG = sezione.YG;
    TraslaBaricentro(SezioneBaricentrica);
    // Jt holds the product moment until torsion replaces it.
    SommaInerzie(SezioneBaricentrica.poligono1, -1, sezione.Jyg, sezione.Jzg, sezione.Jt);
    SommaInerzie(SezioneBaricentrica.poligono2, -1, sezione.Jyg, sezione.Jzg, sezione.Jt);
    SezioneBaricentrica.Jyg = sezione.Jyg;
    SezioneBaricentrica.Jzg = sezione.Jzg;
    SezioneBaricentrica.Jyz = sezione.Jt;
  });

  Reale qT;
  Durante("costante di torsione", [&] {
    const Reale omega = CalcolaTorsione(sezione, p, sezione.Jt);
    qT = Reale(1) / 2 / omega;
  });

  Durante("aree a taglio", [&] {
    sezione.Aty = AreaAnime(sezione, p);
    sezione.Atz = AreaSolette(sezione);
  });

  Durante("parti superiore e inferiore", [&] {
    for (CopiaLavoro* parte : {&ParteSuperiore, &ParteInferiore}) {
      Sommatori somme;
      SommaAreaStatici(parte->poligono1, +1, parte->An, somme);
      ImpostaBaricentro(*parte, somme);
    }
    for (CopiaLavoro* parte : {&ParteSuperiore, &ParteInferiore}) {
      TraslaBaricentro(*parte);
      SommaInerzie(parte->poligono1, +1, parte->Jyg, parte->Jzg, parte->Jyz);
    }
  });

  Durante("tensioni nei punti caratteristici", [&] { CalcolaTauPunti(sezione, copie, p, qT); });

  sezione.Sigla = "A";
  sezione.ValoreSigla = 0;
}

}  // namespace tarvel

// What several tests of the core share: the worked example and its kin.
#pragma once

#include <random>
#include <sstream>
#include <string>

#include "model/geometria.h"
#include "model/tabella_sezioni.h"

namespace tarvel::prove {

inline VettoreParametri Vettore(std::initializer_list<double> valori) {
  VettoreParametri p;
  int i = 0;
  for (const double v : valori) p[i++] = v;
  return p;
}

/// The worked example: 12 m wide, 2 m deep, in centimetres.
inline VettoreParametri Esempio() {
  return Vettore(
      {200, 25, 20, 35, 45, 50, 30, 25, 20, 250, 50, 60, 150, 50, 40, 1200, 2.5, 2.5, -2.5, -2.5, 20});
}

/// The program's state as the main form's load leaves it, with these parameters and an empty table.
inline void Prepara(const VettoreParametri& p) {
  ParametriSezione = p;
  NumeroSezioni = NumeroSezioniFile = 0;
  SezioneCorrente = 1;
  SezioneCalcolata = false;
}

inline RecordSezione Costruita(const VettoreParametri& p) {
  Prepara(p);
  RecordSezione r;
  CostruisciGeometria(r, p);
  return r;
}

/// Sections of every proportion that still are box girders; symmetric on request. Webs lean by 2% at
/// least: the edge formulas lose digits on steeper ones.
inline VettoreParametri Casuale(std::mt19937& caso, bool simmetrica) {
  const auto tra = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(caso); };
  const double L = tra(600, 1800), H = tra(120, 400);
  const struct {
    double unita, da, a;
  } limiti[] = {
      {H, 1, 1},     {H, .08, .15}, {1, 12, 25},   {1, 26, 35},   {1, 36, 48},   {1, 36, 55},   {1, 22, 35},
      {1, 20, 30},   {H, .05, .12}, {L, .12, .22}, {L, .01, .05}, {L, .03, .06}, {L, .08, .12}, {L, .03, .06},
      {L, .02, .05}, {L, 1, 1},     {1, -4, 4},    {1, -4, 4},    {1, -4, 4},    {1, -4, 4},    {1, 2, 30},
  };
  VettoreParametri p;
  for (int i = 0; i < kNumParametri; ++i) p[i] = limiti[i].unita * tra(limiti[i].da, limiti[i].a);
  if (simmetrica) {
    p[kPendenzaColmoDestra] = -p[kPendenzaColmoSinistra];
    p[kPendenzaDestra] = -p[kPendenzaSinistra];
  }
  return p;
}

}  // namespace tarvel::prove

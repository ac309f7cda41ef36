// The drawing as its file holds it: a table of coordinates, and elements that refer to them by index. Lengths
// are in the drawing's own unit, y points upward.
#pragma once

#include <vector>

#include "base/testo.h"

namespace ostrel {

struct Coordinata {
  double x = 0, y = 0;

  friend bool operator==(const Coordinata&, const Coordinata&) = default;
};

/// A marked point, drawn as a small cross. Its two attributes in the file have no meaning.
struct Punto {
  int posizione = 0;
};

struct Linea {
  int inizio = 0, fine = 0;
  int colore = 0;
  int tipo = 0;  // 0 continuous, from 1 on dashed
};

/// Runs counter-clockwise from the start point to the end point; where both are one it is a full circle.
struct Arco {
  int centro = 0, inizio = 0, fine = 0;
  int colore = 0;
};

/// Each character has a cell of width `base`; the position is the start of the baseline.
struct Scritta {
  int posizione = 0;
  int angolo = 0;  // whole degrees, counter-clockwise
  double base = 0, altezza = 0;
  int colore = 0;
  tarvel::Testo testo;
};

struct Disegno {
  std::vector<Coordinata> coordinate;
  std::vector<Punto> punti;
  std::vector<Linea> linee;
  std::vector<Scritta> scritte;
  std::vector<Arco> archi;
  tarvel::Testo titolo;  // the first text; it stays where the texts are taken out
  /// How many lines and arcs were left out, because the program that drew them had no room for a point.
  int saltati = 0;
  bool senzaContorno = false;  // it has been taken out, and no line that is left belongs to it
};

}  // namespace ostrel

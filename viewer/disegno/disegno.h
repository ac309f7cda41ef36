// The drawing as the file holds it: a table of coordinates and elements that refer to them by
// index. Lengths in the drawing's own unit, y upward.
#pragma once

#include <vector>

#include "base/testo.h"

namespace ostrel {

struct Coordinata {
  double x = 0, y = 0;

  friend bool operator==(const Coordinata&, const Coordinata&) = default;
};

/// A marked point; the file gives its two attributes no meaning, it is drawn as a small cross.
struct Punto {
  int posizione = 0;
};

struct Linea {
  int inizio = 0, fine = 0;
  int colore = 0;
  int tipo = 0;  // 0 continuous, from 1 on dashed
};

/// Counter-clockwise from the start point to the end point; the same point twice is a full circle.
struct Arco {
  int centro = 0, inizio = 0, fine = 0;
  int colore = 0;
};

/// One character occupies one cell of width `base`; the position is the start of the baseline.
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
  tarvel::Testo titolo;  // the first text, also where texts are taken out
  /// Lines and arcs one of whose points found no room in the table of the program that drew them.
  int saltati = 0;
  /// The outline has been taken out: no line that is left belongs to one.
  bool senzaContorno = false;
};

}  // namespace ostrel

// The working copies that live for one calculation: the section, and the two parts it is cut into, each
// referred to its own centroid.
#pragma once

#include "properties/integrali.h"

namespace tarvel {

/// A closed polygon of as many vertices as the largest part has.
struct Poligono {
  Tabella<"dei vertici", Estremo, 1, 18> vertici;
  int n = 0;

  void Aggiungi(const Estremo& e) { vertici[++n] = e; }
  const Estremo& operator[](int v) const { return vertici[v]; }
  operator std::span<const Estremo>() const { return {vertici.begin(), static_cast<std::size_t>(n)}; }
};

struct CopiaLavoro {
  Reale An, ZG, YG;  // area and centroid, in the axes of the section
  Reale Jyg, Jzg;    // second moments about the copy's own centroid
  Reale Jyz;         // product moment about the same

  Poligono poligono1;  // the outline, or the one polygon of a part
  Poligono poligono2;  // the cell, of the whole section
  Tabella<"dei punti caratteristici", Estremo, 9, 15> punti;

  const Estremo& O(int v) const { return poligono1[v]; }
  const Estremo& C(int v) const { return poligono2[v]; }
  const Estremo& P(int k) const { return punti[k]; }
};

struct CopieLavoro {
  CopiaLavoro SezioneBaricentrica;  // the whole section; has points 9, 13, 14 and 15 too
  CopiaLavoro ParteSuperiore;       // top slab, cantilevers and webs: T1 to T18
  CopiaLavoro ParteInferiore;       // the bottom slab below the cell: B1 to B6
};

/// Shifts both polygons so that the copy's centroid becomes the origin.
inline void TraslaBaricentro(CopiaLavoro& copia) {
  for (Poligono* poligono : {&copia.poligono1, &copia.poligono2})
    for (int v = 1; v <= poligono->n; ++v) {
      const Punto p = (*poligono)[v];
      poligono->vertici[v] = {p.z - copia.ZG, p.y - copia.YG};
    }
}

}  // namespace tarvel

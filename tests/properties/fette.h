// A second method for the integrals of a section, which the edge formulas are compared with.
#pragma once

#include <algorithm>
#include <cmath>
#include <vector>

#include "tests/aiuti.h"

namespace tarvel::prove {

// Integrals over what lies between two broken lines that run to the right, slice by slice in long double:
// nothing in common with the edge formulas but the vertices. Between the breaks all are cubics at most,
// for which two points of Gauss are exact.
using Spezzata = std::vector<Punto>;

struct Fette {
  long double zG = 0, yG = 0;                                // the origin
  long double A = 0, Sz = 0, Sy = 0, Jz = 0, Jy = 0, P = 0;  // ∫dA, ∫z, ∫y, ∫z², ∫y², ∫zy

  static long double Ordinata(const Spezzata& s, long double z) {
    std::size_t i = 1;
    while (i + 1 < s.size() && s[i].z.Valore() < z) ++i;
    const long double z1 = s[i - 1].z.Valore(), y1 = s[i - 1].y.Valore(), z2 = s[i].z.Valore();
    return y1 + (s[i].y.Valore() - y1) / (z2 - z1) * (z - z1);
  }

  /// Counts negative where `sopra` is the lower line. Of what is above `soffitto` nothing counts.
  Fette& Aggiungi(const Spezzata& sopra, const Spezzata& sotto, Reale da, Reale a, Reale soffitto = 1e9) {
    std::vector<long double> tagli = {da.Valore(), a.Valore()};
    const auto taglia = [&](Reale z) {
      tagli.push_back(std::clamp<long double>(z.Valore(), da.Valore(), a.Valore()));
    };
    for (const Spezzata* s : {&sopra, &sotto})
      for (std::size_t i = 0; i < s->size(); ++i) {
        const Punto q = (*s)[i], p = (*s)[i > 0 ? i - 1 : 0];
        taglia(q.z);
        if ((p.y < soffitto) != (q.y < soffitto)) taglia((q.z - p.z) / (q.y - p.y) * (soffitto - p.y) + p.z);
      }
    std::sort(tagli.begin(), tagli.end());
    for (std::size_t i = 1; i < tagli.size(); ++i)
      for (const int lato : {-1, 1}) {
        const long double h = (tagli[i] - tagli[i - 1]) / 2,
                          ascissa = tagli[i - 1] + h + lato * h / std::sqrt(3.0L);
        const long double z = ascissa - zG,
                          t = std::min<long double>(Ordinata(sopra, ascissa), soffitto.Valore()) - yG,
                          u = std::min<long double>(Ordinata(sotto, ascissa), soffitto.Valore()) - yG;
        A += h * (t - u);
        Sz += h * (t - u) * z;
        Sy += h * (t * t - u * u) / 2;
        Jz += h * (t - u) * z * z;
        Jy += h * (t * t * t - u * u * u) / 3;
        P += h * (t * t - u * u) / 2 * z;
      }
    return *this;
  }
};

Fette InAssiBaricentrici(const auto& aggiungi) {
  Fette lorde;
  aggiungi(lorde);
  Fette f{lorde.Sz / lorde.A, lorde.Sy / lorde.A};
  aggiungi(f);
  return f;
}

// The broken lines of a section whose webs narrow downward.
struct Linee {
  static Spezzata Scegli(const RecordSezione& r, int poligono, std::initializer_list<int> vertici) {
    Spezzata s;
    for (const int v : vertici) s.push_back(r.Vertice(poligono, v));
    return s;
  }
  explicit Linee(const RecordSezione& r)
      : tetto(Scegli(r, 1, {1, 13, 12, 11, 10})),
        intradosso(Scegli(r, 1, {2, 3, 4, 5, 6, 7, 8, 9})),
        volta(Scegli(r, 2, {2, 3, 4, 5, 6, 7, 8})),
        pavimento(Scegli(r, 2, {2, 1, 11, 10, 9, 8})) {}
  void Aggiungi(Fette& f, Reale fino, Reale soffitto = 1e9) const {
    f.Aggiungi(tetto, intradosso, tetto.front().z, fino, soffitto);
    f.Aggiungi(pavimento, volta, volta.front().z, std::min(fino, volta.back().z), soffitto);
  }

  Spezzata tetto, intradosso;  // top surface, underside of the outline
  Spezzata volta, pavimento;   // ceiling and floor of the cell, from the top of one web to the other's
};

}  // namespace tarvel::prove

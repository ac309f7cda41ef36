// One section: its outline, its properties and its characteristic points, as plain values.
//
// Axes: z horizontal, to the right, from the left edge; y vertical, upward, 0 at the top of the
// left cantilever tip. Lengths are in whatever unit the user types.
//
//  O1 P1              P13              P11 O13 P2  O12 P3  O11 P4                               O10 P5
//    o-----------------x----------------x----o------o------o---------------------------------------o
//    |                                                                                             |
//    o.........                            ..o------o------o..                            .........o
//   O2         ........o..             /o..  C4     C5    C6  ..o\             ..o........         O9
//                    O3   ...o       //   C3                C7    \\       o...  O8
//                      O4 P8 \     o/ C2                         C8 \o     / O7
//                             \     \                               /     /
//                          P14 x     x P15                         /     /
//                              \     \                             /     /
//                              \      \                           /      /
//                            P9 x      o\ C1                C9  /o      /
//                                \       \\ C11          C10  //       /
//                                \         \o---------------o/         /
//                                \                                     /
//                                 o---------x-------x-----------------o
//                              O5 P6       P10     P12               O6 P7
//
// o: vertices of the outline (O1 to O13) and of the cell (C1 to C11). x: characteristic points that are
// no vertex; P14 and P15 lie at the height of the centroid, where the axis crosses the left web.
#pragma once

#include "base/intero.h"
#include "base/reale.h"
#include "base/tabella.h"
#include "base/testo.h"
#include "base/testo_fisso.h"

namespace tarvel {

constexpr int kMaxPoligoni = 5;
constexpr int kMaxVertici = 50;
constexpr int kMaxPunti = 50;

struct Punto {
  Reale z, y;
};

inline Reale Distanza(Punto a, Punto b) {
  return Radice(Potenza(a.z - b.z, 2) + Potenza(a.y - b.y, 2));
}

using ConteggiVertici = Tabella<"dei poligoni", Intero16, 1, kMaxPoligoni>;

/// Of a box girder: the outline and the cell.
inline constexpr ConteggiVertici kVerticiCassone = [] {
  ConteggiVertici vertici;
  vertici[1] = 13;
  vertici[2] = 11;
  return vertici;
}();

/// Closed polygons, the first vertex not repeated. Polygon 1 is the outline, counter-clockwise;
/// polygon 2 the cell, clockwise: signed integrals over both give the net section.
struct GeometriaSezione {
  Intero16 NumPoligoni;
  ConteggiVertici NumVertici;
  Griglia<"dei vertici", Reale, kMaxPoligoni, kMaxVertici> VerticeY;
  Griglia<"dei vertici", Reale, kMaxPoligoni, kMaxVertici> VerticeZ;

  Punto Vertice(int poligono, int v) const { return {VerticeZ(poligono, v), VerticeY(poligono, v)}; }
  void ImpostaVertice(int poligono, int v, Punto p) {
    VerticeZ(poligono, v) = p.z;
    VerticeY(poligono, v) = p.y;
  }
  /// Vertex v of the outline, vertex v of the cell.
  Punto O(int v) const { return Vertice(1, v); }
  Punto C(int v) const { return Vertice(2, v); }
};

using TestoEtichetta = TestoFisso<20>;

struct CaratteristicheSezione {
  Reale AltezzaTotale, BaseTotale;  // overall extents
  Reale ZG, YG;                     // centroid
  Reale An;                         // net area
  Reale Aty, Atz;                   // shear areas for shear along y and along z
  Reale Jt;                         // torsion constant; the product moment while it is being calculated
  Reale Jyg, Jzg;                   // second moments about the vertical and the horizontal centroidal axis
  Reale ValoreAggiuntivo;           // carried through the section file, computed by nothing

  Intero16 NumPunti;
  Tabella<"dei punti caratteristici", Reale, 1, kMaxPunti> PuntoZ;
  Tabella<"dei punti caratteristici", Reale, 1, kMaxPunti> PuntoY;
  Tabella<"dei punti caratteristici", TestoEtichetta, 1, kMaxPunti> EtichettaPunto;
  // Stress for a unit torque, a unit shear along y and along z, each with the code that the
  // program reading the section file expects beside it.
  Tabella<"dei punti caratteristici", Reale, 1, kMaxPunti> TauT;
  Tabella<"dei punti caratteristici", Reale, 1, kMaxPunti> TauVy;
  Tabella<"dei punti caratteristici", Reale, 1, kMaxPunti> TauVz;
  Tabella<"dei punti caratteristici", Intero16, 1, kMaxPunti> IndicatoreTauT;
  Tabella<"dei punti caratteristici", Intero16, 1, kMaxPunti> IndicatoreTauVy;
  Tabella<"dei punti caratteristici", Intero16, 1, kMaxPunti> IndicatoreTauVz;

  Testo Sigla;
  Reale ValoreSigla;

  Punto P(int k) const { return {PuntoZ[k], PuntoY[k]}; }
  void ImpostaPunto(int k, Punto p) {
    PuntoZ[k] = p.z;
    PuntoY[k] = p.y;
  }
};

struct RecordSezione : GeometriaSezione, CaratteristicheSezione {
  Testo Nome;
};

}  // namespace tarvel

// One table of cuts for each direction, read by one routine.
#include "sheartorsion/tagli.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "base/errore.h"
#include "model/parametri.h"
#include "properties/integrali.h"

namespace tarvel {
namespace {

enum class Fonte { Poligono1, Poligono2, PuntoCaratteristico };

struct Nodo {
  Fonte fonte = Fonte::Poligono1;
  int v = 0;
};

// How the ordinate, or the whole point, of a part's corner is made.
enum class Regola {
  Nodo,        // abscissa of one node, ordinate of another (or the same)
  SuTettoP16,  // on the line of slope p16 through the origin of the copy
  SuTettoP19,  // on the line of slope p19 through the node given for the ordinate
  MezzoFondo,  // halfway between the ends of the soffit, ordinate of a node
};

struct Angolo {
  Nodo z, y;
  Regola regola = Regola::Nodo;

  constexpr Angolo() = default;
  constexpr Angolo(Nodo n) : z(n), y(n) {}
  constexpr Angolo(Nodo ascissa, Nodo ordinata, Regola r = Regola::Nodo)
      : z(ascissa), y(ordinata), regola(r) {}
};

constexpr int kMaxAngoli = 13;

struct Taglio {
  int punto = 0;
  std::array<Angolo, kMaxAngoli> angoli{};
  int n = 0;

  constexpr Taglio(int p, std::initializer_list<Angolo> lista) : punto(p), n(static_cast<int>(lista.size())) {
    std::copy(lista.begin(), lista.end(), angoli.begin());
  }
};

constexpr Nodo O(int v) {
  return {Fonte::Poligono1, v};
}
constexpr Nodo C(int v) {
  return {Fonte::Poligono2, v};
}
constexpr Nodo P(int k) {
  return {Fonte::PuntoCaratteristico, k};
}
// The single polygon of the upper and of the lower part.
constexpr Nodo T(int v) {
  return {Fonte::Poligono1, v};
}
constexpr Nodo B(int v) {
  return {Fonte::Poligono1, v};
}
constexpr Angolo Tetto16(Nodo n) {
  return {n, n, Regola::SuTettoP16};
}
constexpr Angolo Tetto19(Nodo n) {
  return {n, O(11), Regola::SuTettoP19};
}
constexpr Angolo Mezzo(Nodo ordinata) {
  return {ordinata, ordinata, Regola::MezzoFondo};
}

constexpr Taglio kTagliVy[] = {
    {8, {O(4), C(2), C(1), C(11), {O(12), C(11)}, {O(12), O(5)}, O(5)}},
    {9, {P(9), C(1), C(11), {O(12), C(11)}, {O(12), O(5)}, O(5)}},
    {10, {C(11), C(10), {C(10), O(5)}, {C(11), O(5)}}},
    {6, {O(5), C(1), C(11), C(10), C(9), O(6)}},
    {2, {O(13), O(12), O(11), C(6), C(5), C(4)}},
    {11, {Tetto16(C(3)), O(13), O(12), O(11), Tetto19(C(7)), C(7), C(6), C(5), C(4), C(3)}},
    {13, {O(1), P(13), O(3), O(2)}},
};

constexpr Taglio kTagliVz[] = {
    {2, {T(2), T(3), T(4), T(5), T(6), T(7), T(8), T(9), T(10), T(11), T(12), T(13)}},
    {3, {T(3), T(4), T(5), T(6), T(7), T(8), T(9), T(10), T(11), T(12)}},
    {4, {T(4), T(5), T(6), T(7), T(8), T(9), T(10), T(11)}},
    {8, {T(1), Tetto16(T(16)), T(16), T(17), T(18)}},
    {11, {T(1), Tetto16(T(14)), T(14), T(15), T(16), T(17), T(18)}},
    {13, {O(1), P(13), O(3), O(2)}},
    {10, {B(1), B(2), {B(2), B(5)}, B(6)}},
    {12, {B(1), B(2), Mezzo(B(2)), Mezzo(B(6)), B(6)}},
};

Punto Posizione(const RecordSezione& copia, Nodo nodo) {
  switch (nodo.fonte) {
    case Fonte::Poligono1:
      return copia.O(nodo.v);
    case Fonte::Poligono2:
      return copia.C(nodo.v);
    case Fonte::PuntoCaratteristico:
      break;
  }
  return copia.P(nodo.v);
}

// The roof lines are evaluated on the copy's own abscissas, referred to its centroid: the values of
// the section files depend on it.
Punto Posizione(const RecordSezione& copia, const Angolo& a) {
  const Reale z = Posizione(copia, a.z).z;
  const Punto y = Posizione(copia, a.y);
  switch (a.regola) {
    case Regola::SuTettoP16:
      return {z, ParametriSezione[16] * z / 100};
    case Regola::SuTettoP19:
      return {z, (z - y.z) * ParametriSezione[19] / 100 + y.y};
    case Regola::MezzoFondo:
      return {(copia.O(5).z + copia.O(6).z) / 2, y.y};
    case Regola::Nodo:
      break;
  }
  return {z, y.y};
}

MomentiStatici Esegui(const RecordSezione& copia, std::span<const Taglio> tagli, int punto) {
  const auto taglio =
      std::find_if(tagli.begin(), tagli.end(), [&](const Taglio& t) { return t.punto == punto; });
  if (taglio == tagli.end())
    throw ErroreFatale(TipoErrore::Indice, "taglio inesistente al punto " + std::to_string(punto));
  std::array<Punto, kMaxAngoli> vertici;
  const auto n = static_cast<std::size_t>(taglio->n);
  for (std::size_t i = 0; i < n; ++i) vertici[i] = Posizione(copia, taglio->angoli[i]);
  return MomentiStaticiPoligono({vertici.data(), n}, 1);
}

}  // namespace

MomentiStatici MomentiStaticiPoligono(std::span<const Punto> vertici, int k) {
  MomentiStatici m;
  const auto vertice = [&](int v) { return Estremo(vertici[static_cast<std::size_t>(v - 1)]); };
  PerOgniLato(static_cast<int>(vertici.size()), vertice, [&](const Estremo& da, const Estremo& a) {
    const auto s = SegmentoDi(da, a);
    if (!s) return;
    m.MomStaticoParteZ += k * MomStaticoZ(*s);
    m.MomStaticoParteY += k * MomStaticoY(*s);
  });
  return m;
}

MomentiStatici TaglioVy(const RecordSezione& baricentrica, int punto) {
  return Esegui(baricentrica, kTagliVy, punto);
}

MomentiStatici TaglioVz(const RecordSezione& copia, int punto) {
  return Esegui(copia, kTagliVz, punto);
}

MomentiStatici TaglioAsse(const RecordSezione& s, const AsseBaricentrico& asse) {
  Tabella<"della parte tagliata", Punto, 1, kMaxAngoli> vertici;
  int n = 0;
  vertici[++n] = s.P(14);
  for (int v = asse.LatoEsterno + 1; v <= 5; ++v) vertici[++n] = s.O(v);
  vertici[++n] = {s.O(12).z, s.O(5).y};
  vertici[++n] = {s.O(12).z, s.C(11).y};
  vertici[++n] = s.C(11);
  if (asse.LatoInterno < 11)
    for (int v = 1; v <= asse.LatoInterno; ++v) vertici[++n] = s.C(v);
  vertici[++n] = s.P(15);
  return MomentiStaticiPoligono({vertici.begin(), static_cast<std::size_t>(n)}, -1);
}

}  // namespace tarvel

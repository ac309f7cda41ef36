// One table of cuts for each direction: at which point, from which copy, the corners in their order.
#include "sheartorsion/tagli.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "base/errore.h"
#include "model/geometria.h"

namespace tarvel {
namespace {

enum class Fonte { Poligono1, Poligono2, PuntoCaratteristico };

struct Nodo {
  Fonte fonte = Fonte::Poligono1;
  int v = 0;
};

// How the ordinate, or the whole point, of a part's corner is made.
enum class Regola {
  Nodo,           // abscissa of one node, ordinate of another (or the same)
  TettoSinistro,  // on the line of the left slope through the origin of the copy
  TettoDestro,    // on the line of the right slope through the node given for the ordinate
  MezzoFondo,     // halfway between the ends of the soffit, ordinate of a node
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

using Copia = CopiaLavoro CopieLavoro::*;

struct Taglio {
  int punto;
  Copia copia;
  std::array<Angolo, kMaxAngoli> angoli{};
  std::size_t n;

  constexpr Taglio(int k, Copia da, std::initializer_list<Angolo> lista)
      : punto(k), copia(da), n(lista.size()) {
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
constexpr Angolo SulTettoSinistro(Nodo n) {
  return {n, n, Regola::TettoSinistro};
}
constexpr Angolo SulTettoDestro(Nodo n) {
  return {n, O(11), Regola::TettoDestro};
}
constexpr Angolo Mezzo(Nodo ordinata) {
  return {ordinata, ordinata, Regola::MezzoFondo};
}

constexpr Copia kIntera = &CopieLavoro::SezioneBaricentrica;
constexpr Copia kSuperiore = &CopieLavoro::ParteSuperiore;
constexpr Copia kInferiore = &CopieLavoro::ParteInferiore;

// clang-format off

constexpr Taglio kTagliVy[] = {
    {8, kIntera, {O(4), C(2), C(1), C(11), {O(12), C(11)}, {O(12), O(5)}, O(5)}},
    {9, kIntera, {P(9), C(1), C(11), {O(12), C(11)}, {O(12), O(5)}, O(5)}},
    {10, kIntera, {C(11), C(10), {C(10), O(5)}, {C(11), O(5)}}},
    {6, kIntera, {O(5), C(1), C(11), C(10), C(9), O(6)}},
    {2, kIntera, {O(13), O(12), O(11), C(6), C(5), C(4)}},
    {11, kIntera, {SulTettoSinistro(C(3)), O(13), O(12), O(11), SulTettoDestro(C(7)),
                   C(7), C(6), C(5), C(4), C(3)}},
    {13, kIntera, {O(1), P(13), O(3), O(2)}},
};

constexpr Taglio kTagliVz[] = {
    {2, kSuperiore, {T(2), T(3), T(4), T(5), T(6), T(7), T(8), T(9), T(10), T(11), T(12), T(13)}},
    {3, kSuperiore, {T(3), T(4), T(5), T(6), T(7), T(8), T(9), T(10), T(11), T(12)}},
    {4, kSuperiore, {T(4), T(5), T(6), T(7), T(8), T(9), T(10), T(11)}},
    {8, kSuperiore, {T(1), SulTettoSinistro(T(16)), T(16), T(17), T(18)}},
    {11, kSuperiore, {T(1), SulTettoSinistro(T(14)), T(14), T(15), T(16), T(17), T(18)}},
    {13, kIntera, {O(1), P(13), O(3), O(2)}},
    {10, kInferiore, {B(1), B(2), {B(2), B(5)}, B(6)}},
    {12, kInferiore, {B(1), B(2), Mezzo(B(2)), Mezzo(B(6)), B(6)}},
};

// clang-format on

using Parte = Tabella<"della parte tagliata", Estremo, 1, kMaxAngoli>;

const Estremo& EstremoDi(const CopiaLavoro& copia, Nodo nodo) {
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

// The roof lines are evaluated on the copy's own abscissas, referred to its centroid: the stored stresses
// depend on it.
Estremo EstremoDi(const CopiaLavoro& copia, const Angolo& a, const VettoreParametri& p) {
  Estremo e = EstremoDi(copia, a.z);
  switch (a.regola) {
    case Regola::TettoSinistro:
      e.y = TettoSinistro(p, e.z);
      break;
    case Regola::TettoDestro:
      e.y = TettoDestro(p, EstremoDi(copia, a.y), e.z);
      break;
    case Regola::MezzoFondo:
      return {(copia.O(5).z + copia.O(6).z) / 2, EstremoDi(copia, a.y).y};
    case Regola::Nodo:
      e.y = EstremoDi(copia, a.y).y;
      break;
  }
  return e;
}

MomentiStatici Momenti(const CopiaLavoro& copia, const Taglio& taglio, const VettoreParametri& p) {
  Parte parte;
  for (std::size_t i = 0; i < taglio.n; ++i)
    parte[static_cast<int>(i) + 1] = EstremoDi(copia, taglio.angoli[i], p);
  return MomentiStaticiPoligono({parte.begin(), taglio.n}, 1);
}

// The part left of the web and below the centroidal axis, down to the middle of the bottom slab.
MomentiStatici SottoAsse(const CopiaLavoro& s, const AsseBaricentrico& asse) {
  Parte parte;
  std::size_t n = 0;
  const auto aggiungi = [&](const Estremo& e) { parte[static_cast<int>(++n)] = e; };
  aggiungi(s.P(14));
  for (int v = asse.LatoEsterno + 1; v <= 5; ++v) aggiungi(s.O(v));
  aggiungi({s.O(12).z, s.O(5).y});
  aggiungi({s.O(12).z, s.C(11).y});
  aggiungi(s.C(11));
  if (asse.LatoInterno < 11)
    for (int v = 1; v <= asse.LatoInterno; ++v) aggiungi(s.C(v));
  aggiungi(s.P(15));
  return MomentiStaticiPoligono({parte.begin(), n}, -1);
}

const Taglio& TaglioDi(std::span<const Taglio> tagli, int punto) {
  const auto taglio =
      std::find_if(tagli.begin(), tagli.end(), [&](const Taglio& t) { return t.punto == punto; });
  if (taglio == tagli.end())
    throw ErroreFatale(TipoErrore::Indice, "taglio inesistente al punto " + std::to_string(punto));
  return *taglio;
}

Reale Determinante(const CopiaLavoro& s) {
  return 1 - Potenza(s.Jyz, 2) / s.Jzg / s.Jyg;
}

}  // namespace

MomentiStatici MomentiStaticiPoligono(std::span<const Estremo> vertici, int k) {
  MomentiStatici m;
  PerOgniLato(vertici, [&](const Estremo& da, const Estremo& a) {
    const auto s = SegmentoDi(da, a);
    if (!s) return;
    m.MomStaticoParteZ += k * MomStaticoZ(*s);
    m.MomStaticoParteY += k * MomStaticoY(*s);
  });
  return m;
}

CoefficientiVy CoefficientiDi(const CopiaLavoro& s) {
  const Reale D = Determinante(s);
  return {1 / D, (-s.Jyz / s.Jzg) / D};
}

CoefficientiVz CoefficientiDi(const CopiaLavoro& parte, Reale quota) {
  const Reale D = Determinante(parte);
  const Reale CoeffVz2 = (-quota * parte.Jyz / parte.Jyg) / D;
  return {quota / D, CoeffVz2};
}

Reale FlussoVy(const Tagliabile& s, int punto, const CoefficientiVy& c) {
  const CopiaLavoro& copia = s.copie.SezioneBaricentrica;
  const MomentiStatici m =
      punto == 14 ? SottoAsse(copia, s.asse) : Momenti(copia, TaglioDi(kTagliVy, punto), s.p);
  return -(c.CoeffVy2 / copia.Jyg * m.MomStaticoParteY + c.CoeffVy1 / copia.Jzg * m.MomStaticoParteZ);
}

Reale FlussoVz(const Tagliabile& s, int punto, const CoefficientiVz& c) {
  const Taglio& taglio = TaglioDi(kTagliVz, punto);
  const CopiaLavoro& copia = s.copie.*taglio.copia;
  const MomentiStatici m = Momenti(copia, taglio, s.p);
  return -(c.CoeffVz1 / copia.Jyg * m.MomStaticoParteY + c.CoeffVz2 / copia.Jzg * m.MomStaticoParteZ);
}

}  // namespace tarvel

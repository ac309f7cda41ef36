// One table of cuts for each direction of shear: the corners of the part that is cut off, in their order.
#include "sheartorsion/tagli.h"

#include <initializer_list>

#include "model/geometria.h"

namespace tarvel {
namespace {

struct MomentiStatici {
  Reale MomStaticoParteZ;  // ∫ y dA
  Reale MomStaticoParteY;  // ∫ z dA
};

// The static moments of a closed polygon, times the sign k.
MomentiStatici MomentiStaticiPoligono(std::span<const Estremo> vertici, int k) {
  MomentiStatici m;
  PerOgniSegmento(vertici, [&](const Segmento& s) {
    m.MomStaticoParteZ += k * MomStaticoZ(s);
    m.MomStaticoParteY += k * MomStaticoY(s);
  });
  return m;
}

MomentiStatici Parte(std::initializer_list<Estremo> angoli) {
  return MomentiStaticiPoligono({angoli.begin(), angoli.size()}, 1);
}

// Where the vertical through one point meets the level of another.
Estremo Incrocio(const Estremo& ascissa, Punto ordinata) {
  return ascissa.AllaQuota(ordinata.y);
}

// The lines of the roof are evaluated on the copy's own abscissas, referred to its centroid: the stored
// stresses depend on it.
Estremo SulTettoSinistro(const VettoreParametri& p, const Estremo& sotto) {
  return sotto.AllaQuota(TettoSinistro(p, Punto(sotto).z));
}
Estremo SulTettoDestro(const VettoreParametri& p, Punto O11, const Estremo& sotto) {
  return sotto.AllaQuota(TettoDestro(p, O11, Punto(sotto).z));
}

// The part left of the web and below the centroidal axis, down to the middle of the bottom slab.
MomentiStatici SottoAsse(const CopiaLavoro& s, const AsseBaricentrico& asse) {
  Tabella<"della parte tagliata", Estremo, 1, 13> angoli;
  std::size_t n = 0;
  const auto aggiungi = [&](const Estremo& e) { angoli[static_cast<int>(++n)] = e; };
  aggiungi(s.P(14));
  for (int v = asse.LatoEsterno + 1; v <= 5; ++v) aggiungi(s.O(v));
  aggiungi(Incrocio(s.O(12), s.O(5)));
  aggiungi(Incrocio(s.O(12), s.C(11)));
  aggiungi(s.C(11));
  if (asse.LatoInterno < 11)
    for (int v = 1; v <= asse.LatoInterno; ++v) aggiungi(s.C(v));
  aggiungi(s.P(15));
  return MomentiStaticiPoligono({angoli.begin(), n}, -1);
}

Reale Determinante(const CopiaLavoro& s) {
  return 1 - Potenza(s.Jyz, 2) / s.Jzg / s.Jyg;
}

}  // namespace

CoefficientiVy CoefficientiDi(const CopiaLavoro& s) {
  const Reale D = Determinante(s);
  return {1 / D, (-s.Jyz / s.Jzg) / D};
}

CoefficientiVz CoefficientiDi(const CopiaLavoro& parte, Reale quota) {
  const Reale D = Determinante(parte);
  const Reale CoeffVz2 = (-quota * parte.Jyz / parte.Jyg) / D;
  return {quota / D, CoeffVz2};
}

// clang-format off

Reale FlussoVy(const SezioneInEsame& s, int punto, const CoefficientiVy& c) {
  const CopiaLavoro& copia = s.copie.SezioneBaricentrica;
  const auto O = [&](int v) { return copia.O(v); };
  const auto C = [&](int v) { return copia.C(v); };
  const auto P = [&](int k) { return copia.P(k); };
  const auto flusso = [&](const MomentiStatici& m) {
    return -(c.CoeffVy2 / copia.Jyg * m.MomStaticoParteY + c.CoeffVy1 / copia.Jzg * m.MomStaticoParteZ);
  };
  const auto inMezzeria = [&](Punto ordinata) { return Incrocio(O(12), ordinata); };
  switch (punto) {
    case  2: return flusso(Parte({O(13), O(12), O(11), C(6), C(5), C(4)}));
    case  6: return flusso(Parte({O(5), C(1), C(11), C(10), C(9), O(6)}));
    case  8: return flusso(Parte({O(4), C(2), C(1), C(11), inMezzeria(C(11)), inMezzeria(O(5)), O(5)}));
    case  9: return flusso(Parte({P(9), C(1), C(11), inMezzeria(C(11)), inMezzeria(O(5)), O(5)}));
    case 10: return flusso(Parte({C(11), C(10), Incrocio(C(10), O(5)), Incrocio(C(11), O(5))}));
    case 11: return flusso(Parte({SulTettoSinistro(s.p, C(3)), O(13), O(12), O(11),
                                  SulTettoDestro(s.p, O(11), C(7)), C(7), C(6), C(5), C(4), C(3)}));
    case 13: return flusso(Parte({O(1), P(13), O(3), O(2)}));
    case 14: return flusso(SottoAsse(copia, s.asse));
  }
  ErroreIndice("dei tagli", punto, 1, 14);
}

Reale FlussoVz(const SezioneInEsame& s, int punto, const CoefficientiVz& c) {
  const CopiaLavoro& intera = s.copie.SezioneBaricentrica;
  const CopiaLavoro& superiore = s.copie.ParteSuperiore;
  const CopiaLavoro& inferiore = s.copie.ParteInferiore;
  const auto T = [&](int v) { return superiore.poligono1[v]; };
  const auto B = [&](int v) { return inferiore.poligono1[v]; };
  const auto daT = [&](int primo, int ultimo) {
    return MomentiStaticiPoligono({&superiore.poligono1[primo], &superiore.poligono1[ultimo] + 1}, 1);
  };
  const auto tetto = [&](int v) { return SulTettoSinistro(s.p, T(v)); };
  const auto inMezzeria = [&](Punto ordinata) {
    const Punto sinistro = B(5), destro = B(6);
    return Estremo((sinistro.z + destro.z) / 2, ordinata.y);
  };
  const auto flusso = [&](const CopiaLavoro& copia, const MomentiStatici& m) {
    return -(c.CoeffVz1 / copia.Jyg * m.MomStaticoParteY + c.CoeffVz2 / copia.Jzg * m.MomStaticoParteZ);
  };
  switch (punto) {
    case  2: return flusso(superiore, daT(2, 13));
    case  3: return flusso(superiore, daT(3, 12));
    case  4: return flusso(superiore, daT(4, 11));
    case  8: return flusso(superiore, Parte({T(1), tetto(16), T(16), T(17), T(18)}));
    case 10: return flusso(inferiore, Parte({B(1), B(2), Incrocio(B(2), B(5)), B(6)}));
    case 11: return flusso(superiore, Parte({T(1), tetto(14), T(14), T(15), T(16), T(17), T(18)}));
    case 12: return flusso(inferiore, Parte({B(1), B(2), inMezzeria(B(2)), inMezzeria(B(6)), B(6)}));
    case 13: return flusso(intera, Parte({intera.O(1), intera.P(13), intera.O(3), intera.O(2)}));
  }
  ErroreIndice("dei tagli", punto, 1, 14);
}

// clang-format on

}  // namespace tarvel

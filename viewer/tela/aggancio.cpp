#include "viewer/tela/aggancio.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "viewer/disegno/misure.h"

namespace ostrel {
namespace {

constexpr double kVantaggioIncrocio = 0.25;  // of the radius

double Distanza(const Coordinata& a, const Coordinata& b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

Coordinata Verso(const Coordinata& da, const Coordinata& a) {
  return {a.x - da.x, a.y - da.y};
}

double Croce(const Coordinata& u, const Coordinata& v) {
  return u.x * v.y - u.y * v.x;
}

struct Tratto {
  Coordinata da, verso;
};

bool Passa(const Tratto& t, const Coordinata& vicino, double raggio) {
  const Coordinata w = Verso(t.da, vicino);
  const double quadrato = t.verso.x * t.verso.x + t.verso.y * t.verso.y;
  const double parte =
      quadrato > 0 ? std::clamp((w.x * t.verso.x + w.y * t.verso.y) / quadrato, 0.0, 1.0) : 0;
  return std::hypot(w.x - parte * t.verso.x, w.y - parte * t.verso.y) <= raggio;
}

std::optional<Coordinata> Incrocio(const Tratto& a, const Tratto& b) {
  const double fra = Croce(a.verso, b.verso);
  if (fra == 0) return std::nullopt;
  const Coordinata w = Verso(a.da, b.da);
  const double s = Croce(w, b.verso) / fra, t = Croce(w, a.verso) / fra;
  if (s < 0 || s > 1 || t < 0 || t > 1) return std::nullopt;
  return Coordinata{a.da.x + s * a.verso.x, a.da.y + s * a.verso.y};
}

class Cerca {
 public:
  Cerca(const Disegno& disegno, const Coordinata& vicino, double raggio)
      : d_(disegno), vicino_(vicino), raggio_(raggio), distanza_(raggio) {}

  std::optional<Aggancio> Esito() {
    for (const Linea& linea : d_.linee)
      for (const int estremo : {linea.inizio, linea.fine}) Prova(Posto(d_, estremo), Appiglio::Estremo);
    for (const Arco& arco : d_.archi) Prova(arco);
    for (const Punto& punto : d_.punti) Prova(Posto(d_, punto.posizione), Appiglio::Estremo);
    if (trovato_) distanza_ -= kVantaggioIncrocio * raggio_;
    Incroci();
    return trovato_;
  }

 private:
  void Prova(const Coordinata& dove, Appiglio genere) {
    const double distanza = Distanza(dove, vicino_);
    if (distanza > distanza_ || (trovato_ && distanza == distanza_)) return;
    distanza_ = distanza;
    trovato_ = {dove, genere};
  }

  // The point where a full circle begins is not a place that a user means.
  void Prova(const Arco& arco) {
    Prova(Posto(d_, arco.centro), Appiglio::Centro);
    const auto vicini = [&](int indice) { return Distanza(Posto(d_, indice), vicino_) <= distanza_; };
    if ((!vicini(arco.inizio) && !vicini(arco.fine)) || Polare(d_, arco).cerchio) return;
    for (const int estremo : {arco.inizio, arco.fine}) Prova(Posto(d_, estremo), Appiglio::Estremo);
  }

  void Incroci() {
    std::vector<Tratto> vicini;
    for (const Linea& linea : d_.linee) {
      const Coordinata& da = Posto(d_, linea.inizio);
      const Tratto tratto{da, Verso(da, Posto(d_, linea.fine))};
      if (Passa(tratto, vicino_, raggio_)) vicini.push_back(tratto);
    }
    for (std::size_t i = 0; i < vicini.size(); ++i)
      for (std::size_t j = 0; j < i; ++j)
        if (const auto dove = Incrocio(vicini[i], vicini[j])) Prova(*dove, Appiglio::Incrocio);
  }

  const Disegno& d_;
  Coordinata vicino_;
  double raggio_;
  double distanza_;  // of what has been found; before, the farthest allowed
  std::optional<Aggancio> trovato_;
};

}  // namespace

std::optional<Aggancio> Aggancia(const Disegno& disegno, const Coordinata& vicino, double raggio) {
  return Cerca(disegno, vicino, raggio).Esito();
}

}  // namespace ostrel

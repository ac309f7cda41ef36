// Extents of elements and the polar form of arcs.
#include "viewer/disegno/misure.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ostrel {
namespace {

constexpr double kPi = std::numbers::pi;
// The program that draws takes two points nearer than this for one.
constexpr double kTolleranza = 1e-4;
constexpr double kMinimaForma = 0.2;  // of a page, shorter to longer side

}  // namespace

void Riquadro::Comprendi(double x, double y) {
  if (Vuoto()) {
    *this = {x, y, x, y};
    return;
  }
  x0 = std::min(x0, x);
  y0 = std::min(y0, y);
  x1 = std::max(x1, x);
  y1 = std::max(y1, y);
}

double Riquadro::Massimo() const {
  return std::max({std::fabs(x0), std::fabs(x1), std::fabs(y0), std::fabs(y1)});
}

ArcoPolare Polare(const Disegno& disegno, const Arco& arco) {
  const Coordinata centro = Posto(disegno, arco.centro);
  const Coordinata da = Posto(disegno, arco.inizio);
  const Coordinata a = Posto(disegno, arco.fine);
  ArcoPolare polare{centro.x, centro.y, std::hypot(da.x - centro.x, da.y - centro.y),
                    std::atan2(da.y - centro.y, da.x - centro.x)};
  // The program that draws merges the start point of a circle, but not its end point, with an earlier
  // coordinate at the same place: one place under two indices is still a full circle.
  polare.cerchio = std::fabs(da.x - a.x) < kTolleranza && std::fabs(da.y - a.y) < kTolleranza;
  polare.ampiezza = 2 * kPi;
  if (!polare.cerchio) {
    const double ampiezza =
        std::fmod(std::atan2(a.y - centro.y, a.x - centro.x) - polare.inizio + 2 * kPi, 2 * kPi);
    if (ampiezza > 0) polare.ampiezza = ampiezza;
  }
  return polare;
}

std::array<Coordinata, 4> Angoli(const Disegno& disegno, const Scritta& scritta) {
  const Coordinata origine = Posto(disegno, scritta.posizione);
  const double angolo = scritta.angolo * kPi / 180;
  const double lungo = scritta.base * static_cast<double>(scritta.testo.size());
  const Coordinata u{lungo * std::cos(angolo), lungo * std::sin(angolo)};
  const Coordinata v{-scritta.altezza * std::sin(angolo), scritta.altezza * std::cos(angolo)};
  return {origine,
          {origine.x + u.x, origine.y + u.y},
          {origine.x + u.x + v.x, origine.y + u.y + v.y},
          {origine.x + v.x, origine.y + v.y}};
}

Riquadro Ingombro(const Disegno& disegno) {
  Riquadro tutto;
  const auto comprendi = [&](const Coordinata& c) { tutto.Comprendi(c.x, c.y); };
  for (const Punto& punto : disegno.punti) comprendi(Posto(disegno, punto.posizione));
  for (const Linea& linea : disegno.linee) {
    comprendi(Posto(disegno, linea.inizio));
    comprendi(Posto(disegno, linea.fine));
  }
  for (const Arco& arco : disegno.archi) {
    const ArcoPolare p = Polare(disegno, arco);
    const auto angolo = [&](double a) {
      tutto.Comprendi(p.x + p.raggio * std::cos(a), p.y + p.raggio * std::sin(a));
    };
    angolo(p.inizio);
    angolo(p.inizio + p.ampiezza);
    for (int quarto = -2; quarto < 8; ++quarto)
      if (const double a = quarto * kPi / 2; a > p.inizio && a < p.inizio + p.ampiezza) angolo(a);
  }
  for (const Scritta& scritta : disegno.scritte)
    for (const Coordinata& c : Angoli(disegno, scritta)) comprendi(c);
  return tutto;
}

Riquadro ConMargine(const Riquadro& tutto) {
  double lungo = std::max(tutto.Larghezza(), tutto.Altezza());
  if (lungo <= kArrotondamento * tutto.Massimo()) lungo = tutto.Massimo() > 0 ? tutto.Massimo() : 1;
  // The margin is a part of the page, not of the drawing.
  const double corto = std::max(std::min(tutto.Larghezza(), tutto.Altezza()) / (1 - 2 * kMargine),
                                lungo / (1 / kMinimaForma - 2 * kMargine));
  const auto lato = [&](double disegnato) { return std::max(disegnato + 2 * kMargine * corto, corto); };
  const double x = (tutto.x0 + tutto.x1) / 2, y = (tutto.y0 + tutto.y1) / 2;
  const double w = lato(tutto.Larghezza()) / 2, h = lato(tutto.Altezza()) / 2;
  return {x - w, y - h, x + w, y + h};
}

}  // namespace ostrel

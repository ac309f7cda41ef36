// The line types are the standard ones: a program draws the same with its own patterns and with these.
#include "viewer/esporta/tabelle_dxf.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <utility>

#include "viewer/pittura/tavolozza.h"

namespace ostrel {
namespace {

// The length of a dash, as a part of the drawing's diagonal.
constexpr double kTratto = 0.01;
constexpr double kTrattoUnificato = kTipiLinea[1].unificate[0];
// Width to height of the first view; a wider window also shows the whole drawing.
constexpr double kFormaVista = 4.0 / 3;

// $INSUNITS, in the order of Unita.
constexpr std::array<int, kUnita.size()> kUnitaDxf = {0, 4, 5, 6};

// How a layer without elements looks.
constexpr AspettiLivelli kAspetti = {{{1, 0}, {7, 0}, {6, 0}}};

void ScriviTestata(Dxf& dxf, const Riquadro& tutto, const Riquadro& vista, Unita unita) {
  Gruppo(dxf, 0, "SECTION");
  Gruppo(dxf, 2, "HEADER");
  Gruppo(dxf, 9, "$ACADVER");
  Gruppo(dxf, 1, "AC1009");
  Gruppo(dxf, 9, "$DWGCODEPAGE");
  Gruppo(dxf, 3, "ANSI_1252");
  Gruppo(dxf, 9, "$INSUNITS");
  GruppoIntero(dxf, 70, kUnitaDxf[static_cast<std::size_t>(unita)]);
  // 1: the lengths of line types are in millimetres, whatever the unit.
  Gruppo(dxf, 9, "$MEASUREMENT");
  GruppoIntero(dxf, 70, 1);
  Gruppo(dxf, 9, "$LTSCALE");
  GruppoReale(dxf, 40, std::hypot(vista.Larghezza(), vista.Altezza()) * kTratto / kTrattoUnificato);
  if (!tutto.Vuoto()) {
    Gruppo(dxf, 9, "$EXTMIN");
    GruppoPunto(dxf, 10, tutto.x0, tutto.y0);
    Gruppo(dxf, 9, "$EXTMAX");
    GruppoPunto(dxf, 10, tutto.x1, tutto.y1);
  }
  Gruppo(dxf, 0, "ENDSEC");
}

void IniziaTabella(Dxf& dxf, const char* nome, std::size_t voci) {
  Gruppo(dxf, 0, "TABLE");
  Gruppo(dxf, 2, nome);
  GruppoIntero(dxf, 70, static_cast<int>(voci));
}

void VoceTabella(Dxf& dxf, const char* genere, const char* nome) {
  Gruppo(dxf, 0, genere);
  Gruppo(dxf, 2, nome);
  GruppoIntero(dxf, 70, 0);
}

// Writes a plan view of the whole drawing; the group codes have their usual values, but for centre, target
// and height. The centre counts from the target. LibreCAD ignores the target and puts the origin twice as far
// from the view's lower left corner as the centre says. The centre chosen here is right for LibreCAD, and
// together with the target for the others.
void ScriviVista(Dxf& dxf, const Riquadro& vista) {
  constexpr std::array<std::pair<int, int>, 26> kConsuete = {
      {{10, 0}, {20, 0},    {11, 1}, {21, 1}, {13, 0},  {23, 0}, {14, 1}, {24, 1}, {15, 0},
       {25, 0}, {16, 0},    {26, 0}, {36, 1}, {42, 50}, {43, 0}, {44, 0}, {50, 0}, {51, 0},
       {71, 0}, {72, 1000}, {73, 1}, {74, 1}, {75, 0},  {76, 0}, {77, 0}, {78, 0}}};
  const double alta = std::max(vista.Altezza(), vista.Larghezza() / kFormaVista);
  const Coordinata mezzo{(vista.x0 + vista.x1) / 2, (vista.y0 + vista.y1) / 2};
  const Coordinata centro{(mezzo.x + alta * kFormaVista / 2) / 2, (mezzo.y + alta / 2) / 2};
  IniziaTabella(dxf, "VPORT", 1);
  VoceTabella(dxf, "VPORT", "*ACTIVE");
  for (const auto& [codice, valore] : kConsuete) GruppoIntero(dxf, codice, valore);
  GruppoReale(dxf, 12, centro.x);
  GruppoReale(dxf, 22, centro.y);
  GruppoPunto(dxf, 17, mezzo.x - centro.x, mezzo.y - centro.y);
  GruppoReale(dxf, 40, alta);
  GruppoReale(dxf, 41, kFormaVista);
  Gruppo(dxf, 0, "ENDTAB");
}

void ScriviTipiLinea(Dxf& dxf) {
  IniziaTabella(dxf, "LTYPE", kTipiLinea.size());
  for (const TipoLinea& tipo : kTipiLinea) {
    VoceTabella(dxf, "LTYPE", tipo.nome);
    Gruppo(dxf, 3, tipo.descrizione);
    GruppoIntero(dxf, 72, 'A');
    GruppoIntero(dxf, 73, static_cast<int>(tipo.quante));
    GruppoReale(dxf, 40, std::accumulate(tipo.unificate.begin(), tipo.unificate.end(), 0.0));
    for (std::size_t i = 0; i < tipo.quante; ++i)
      GruppoReale(dxf, 49, i % 2 == 0 ? tipo.unificate[i] : -tipo.unificate[i]);
  }
  Gruppo(dxf, 0, "ENDTAB");
}

void ScriviTabelle(Dxf& dxf, const Riquadro& vista) {
  Gruppo(dxf, 0, "SECTION");
  Gruppo(dxf, 2, "TABLES");
  ScriviVista(dxf, vista);
  ScriviTipiLinea(dxf);
  IniziaTabella(dxf, "LAYER", kLivelliDxf.size());
  for (std::size_t i = 0; i < kLivelliDxf.size(); ++i) {
    VoceTabella(dxf, "LAYER", kLivelliDxf[i]);
    GruppoIntero(dxf, 62, dxf.livelli[i].colore);
    Gruppo(dxf, 6, kTipiLinea[dxf.livelli[i].tipo].nome);
  }
  Gruppo(dxf, 0, "ENDTAB");
  Gruppo(dxf, 0, "ENDSEC");
}

}  // namespace

int ColoreDxf(int colore) {
  return kColoriDxf[IndiceColore(colore)];
}

Aspetto AspettoLinea(const Linea& linea) {
  return {ColoreDxf(linea.colore), IndiceTipo(linea.tipo)};
}

AspettiLivelli AspettiComuni(const Disegno& disegno, const std::vector<Livello>& linee) {
  constexpr int kColoriPossibili = 256;
  std::array<std::array<int, kColoriPossibili>, kLivelliDxf.size()> colori{};
  std::array<std::array<int, kTipiLinea.size()>, kLivelliDxf.size()> tipi{};
  const auto conta = [&](Livello livello, int colore) {
    ++colori[static_cast<std::size_t>(livello)][static_cast<std::size_t>(ColoreDxf(colore))];
  };
  const auto contaTipo = [&](Livello livello, std::size_t tipo) {
    ++tipi[static_cast<std::size_t>(livello)][tipo];
  };
  for (std::size_t i = 0; i < linee.size(); ++i) {
    conta(linee[i], disegno.linee[i].colore);
    contaTipo(linee[i], IndiceTipo(disegno.linee[i].tipo));
  }
  for (const Arco& arco : disegno.archi) {
    conta(LivelloArco(disegno, arco), arco.colore);
    contaTipo(LivelloArco(disegno, arco), 0);
  }
  for (const Scritta& scritta : disegno.scritte) conta(LivelloScritta(scritta), scritta.colore);
  for (std::size_t i = 0; i < disegno.punti.size(); ++i) conta(Livello::Contorno, kColorePunti);
  const auto comune = [](const auto& quanti) { return std::max_element(quanti.begin(), quanti.end()); };
  auto aspetti = kAspetti;
  for (std::size_t i = 0; i < aspetti.size(); ++i) {
    if (const auto c = comune(colori[i]); *c > 0) aspetti[i].colore = static_cast<int>(c - colori[i].begin());
    aspetti[i].tipo = static_cast<std::size_t>(comune(tipi[i]) - tipi[i].begin());
  }
  return aspetti;
}

void ScriviTesta(Dxf& dxf, const Riquadro& tutto, Unita unita) {
  const Riquadro vista = ConMargine(tutto);
  ScriviTestata(dxf, tutto, vista, unita);
  ScriviTabelle(dxf, vista);
}

}  // namespace ostrel

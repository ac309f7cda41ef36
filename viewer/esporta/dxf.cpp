// Writes the elements in the order of the drawing.
#include "viewer/esporta/dxf.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "viewer/disegno/livelli.h"
#include "viewer/disegno/misure.h"
#include "viewer/esporta/gruppi_dxf.h"
#include "viewer/esporta/tabelle_dxf.h"
#include "viewer/pittura/tavolozza.h"

namespace ostrel {
namespace {

using tarvel::Testo;

void IniziaElemento(Dxf& dxf, std::string_view genere, Livello livello, const Aspetto& aspetto) {
  const auto indice = static_cast<std::size_t>(livello);
  const Aspetto& comune = dxf.livelli[indice];
  Gruppo(dxf, 0, genere);
  Gruppo(dxf, 8, kLivelliDxf[indice]);
  if (aspetto.colore != comune.colore) GruppoIntero(dxf, 62, aspetto.colore);
  if (aspetto.tipo != comune.tipo) Gruppo(dxf, 6, kTipiLinea[aspetto.tipo].nome);
}

// For texts and points, which look the same in every line type.
void IniziaSenzaTipo(Dxf& dxf, std::string_view genere, Livello livello, int colore) {
  IniziaElemento(dxf, genere, livello,
                 {ColoreDxf(colore), dxf.livelli[static_cast<std::size_t>(livello)].tipo});
}

// Two percent signs begin a special character and a caret begins a control character: both are written so
// that they stand for themselves.
Testo TestoDxf(std::string_view testo) {
  Testo esito;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const bool doppio =
        testo[i] == '%' && ((i > 0 && testo[i - 1] == '%') || testo.substr(i + 1).starts_with('%'));
    if (doppio)
      esito += "%%%";
    else if (testo[i] == '^')
      esito += "^ ";
    else
      esito += testo[i];
  }
  return esito;
}

void ScriviLinea(Dxf& dxf, const Disegno& disegno, const Linea& linea, Livello livello) {
  const Coordinata da = Posto(disegno, linea.inizio), a = Posto(disegno, linea.fine);
  IniziaElemento(dxf, "LINE", livello, AspettoLinea(linea));
  GruppoPunto(dxf, 10, da.x, da.y);
  GruppoPunto(dxf, 11, a.x, a.y);
}

// Writes a ring as one closed polyline.
void ScriviAnello(Dxf& dxf, const std::vector<Coordinata>& vertici, const Aspetto& aspetto) {
  IniziaElemento(dxf, "POLYLINE", Livello::Contorno, aspetto);
  GruppoIntero(dxf, 66, 1);
  GruppoPunto(dxf, 10, 0, 0);
  GruppoIntero(dxf, 70, 1);
  for (const Coordinata& vertice : vertici) {
    IniziaElemento(dxf, "VERTEX", Livello::Contorno, aspetto);
    GruppoPunto(dxf, 10, vertice.x, vertice.y);
  }
  IniziaElemento(dxf, "SEQEND", Livello::Contorno, aspetto);
}

// The corners of a ring, each once. None where no polyline can stand for its lines, because they look
// different or enclose nothing.
std::vector<Coordinata> VerticiAnello(const Disegno& disegno, std::span<const Linea> anello) {
  std::vector<Coordinata> vertici;
  const auto uguali = [](const Coordinata& a, const Coordinata& b) { return a.x == b.x && a.y == b.y; };
  for (const Linea& linea : anello) {
    if (AspettoLinea(linea) != AspettoLinea(anello.front())) return {};
    const Coordinata& vertice = Posto(disegno, linea.inizio);
    if (vertici.empty() || !uguali(vertice, vertici.back())) vertici.push_back(vertice);
  }
  while (vertici.size() > 1 && uguali(vertici.front(), vertici.back())) vertici.pop_back();
  return vertici.size() < 3 ? std::vector<Coordinata>{} : vertici;
}

void ScriviLinee(Dxf& dxf, const Disegno& disegno, const std::vector<Livello>& livelli) {
  const std::span linee = disegno.linee;
  std::size_t prima = 0;
  for (const std::size_t fine : FiniAnelli(disegno)) {
    const auto anello = linee.subspan(prima, fine - prima);
    if (const auto vertici = VerticiAnello(disegno, anello); !vertici.empty())
      ScriviAnello(dxf, vertici, AspettoLinea(anello.front()));
    else
      for (const Linea& linea : anello) ScriviLinea(dxf, disegno, linea, Livello::Contorno);
    prima = fine;
  }
  for (; prima < linee.size(); ++prima) ScriviLinea(dxf, disegno, linee[prima], livelli[prima]);
}

void ScriviArco(Dxf& dxf, const Disegno& disegno, const Arco& arco) {
  const ArcoPolare p = Polare(disegno, arco);
  IniziaElemento(dxf,
                 p.raggio <= 0 ? "POINT"
                 : p.cerchio   ? "CIRCLE"
                               : "ARC",
                 LivelloArco(disegno, arco), {ColoreDxf(arco.colore), 0});
  GruppoPunto(dxf, 10, p.x, p.y);
  if (p.raggio <= 0) return;
  GruppoReale(dxf, 40, p.raggio);
  if (p.cerchio) return;
  const auto gradi = [](double radianti) { return std::fmod(radianti * kGradi + 360, 360); };
  GruppoReale(dxf, 50, gradi(p.inizio));
  GruppoReale(dxf, 51, gradi(p.inizio + p.ampiezza));
}

// Fits a text between two points of its baseline, so that any font fills its cells. A text longer than a DXF
// string may be goes on in another one, where its next cell is.
void ScriviScritta(Dxf& dxf, const Disegno& disegno, const Scritta& scritta) {
  constexpr int kAdattato = 5;
  constexpr std::size_t kMassimaStringa = 255;
  constexpr std::size_t kSempreEntro = kMassimaStringa / 3;  // a character takes three at most
  const auto angoli = Angoli(disegno, scritta);
  const Coordinata da = angoli[0], a = angoli[1];
  const std::size_t quanti = scritta.testo.size();
  const auto posto = [&](std::size_t i) {
    const double parte = quanti == 0 ? 0 : static_cast<double>(i) / static_cast<double>(quanti);
    return Coordinata{da.x + (a.x - da.x) * parte, da.y + (a.y - da.y) * parte};
  };
  std::size_t inizio = 0;
  do {
    std::size_t fine = std::min(quanti, inizio + kMassimaStringa);
    Testo stringa = TestoDxf(std::string_view(scritta.testo).substr(inizio, fine - inizio));
    if (stringa.size() > kMassimaStringa) {
      fine = inizio + kSempreEntro;
      stringa = TestoDxf(std::string_view(scritta.testo).substr(inizio, kSempreEntro));
    }
    IniziaSenzaTipo(dxf, "TEXT", LivelloScritta(scritta), scritta.colore);
    GruppoPunto(dxf, 10, posto(inizio).x, posto(inizio).y);
    GruppoReale(dxf, 40, scritta.altezza);
    Gruppo(dxf, 1, stringa);
    GruppoReale(dxf, 41, scritta.base / scritta.altezza);
    GruppoIntero(dxf, 50, scritta.angolo);
    GruppoIntero(dxf, 72, kAdattato);
    GruppoPunto(dxf, 11, posto(fine).x, posto(fine).y);
    inizio = fine;
  } while (inizio < quanti);
}

}  // namespace

Testo ScriviDxf(const Disegno& disegno, Unita unita) {
  const auto livelli = LivelliLinee(disegno);
  Dxf dxf{{}, AspettiComuni(disegno, livelli)};
  ScriviTesta(dxf, Ingombro(disegno), unita);
  Gruppo(dxf, 0, "SECTION");
  Gruppo(dxf, 2, "ENTITIES");
  ScriviLinee(dxf, disegno, livelli);
  for (const Arco& arco : disegno.archi) ScriviArco(dxf, disegno, arco);
  for (const Scritta& scritta : disegno.scritte) ScriviScritta(dxf, disegno, scritta);
  for (const Punto& punto : disegno.punti) {
    const Coordinata posto = Posto(disegno, punto.posizione);
    IniziaSenzaTipo(dxf, "POINT", Livello::Contorno, kColorePunti);
    GruppoPunto(dxf, 10, posto.x, posto.y);
  }
  Gruppo(dxf, 0, "ENDSEC");
  Gruppo(dxf, 0, "EOF");
  return std::move(dxf.testo);
}

}  // namespace ostrel

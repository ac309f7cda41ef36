// Group by group: a code line and a value line.
#include "viewer/dxf.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>
#include <utility>

#include "base/numeri.h"
#include "viewer/livelli.h"
#include "viewer/misure.h"
#include "viewer/tavolozza.h"

namespace ostrel {
namespace {

using tarvel::Testo;

constexpr double kGradi = 180 / std::numbers::pi;
// A dash of one pen width is this part of the drawing's diagonal.
constexpr double kPassoTratto = 1.0 / 1500;

struct NomeLivello {
  const char* nome;
  int colore;
};
constexpr std::array<NomeLivello, 3> kLivelli = {{{"CONTORNO", 1}, {"QUOTE", 7}, {"TESTI", 6}}};

struct Dxf {
  Testo testo;
  double unita;
  bool finito = true;  // every length so far is a number
};

void Gruppo(Dxf& dxf, int codice, std::string_view valore) {
  ((dxf.testo += std::to_string(codice)) += "\r\n").append(valore) += "\r\n";
}

void GruppoIntero(Dxf& dxf, int codice, int valore) {
  Gruppo(dxf, codice, std::to_string(valore));
}

void GruppoReale(Dxf& dxf, int codice, double valore) {
  dxf.finito = dxf.finito && std::isfinite(valore);
  Testo testo;
  if (dxf.finito) tarvel::AccodaNumero(testo, valore, '.', true);
  Gruppo(dxf, codice, testo);
}

void GruppoLunghezza(Dxf& dxf, int codice, double valore) {
  GruppoReale(dxf, codice, valore * dxf.unita);
}

// X, Y and Z of a point have codes ten apart.
void GruppoPunto(Dxf& dxf, int codice, double x, double y) {
  GruppoLunghezza(dxf, codice, x);
  GruppoLunghezza(dxf, codice + 10, y);
  GruppoReale(dxf, codice + 20, 0);
}

void Elemento(Dxf& dxf, std::string_view genere, Livello livello, int colore) {
  Gruppo(dxf, 0, genere);
  Gruppo(dxf, 8, kLivelli[static_cast<std::size_t>(livello)].nome);
  GruppoIntero(dxf, 62, kColoriDxf[IndiceColore(colore)]);
}

// Two percent signs begin a special character and a caret a control one; these are plain.
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

void ScriviTestata(Dxf& dxf, const Riquadro& tutto, Unita unita) {
  Gruppo(dxf, 0, "SECTION");
  Gruppo(dxf, 2, "HEADER");
  Gruppo(dxf, 9, "$ACADVER");
  Gruppo(dxf, 1, "AC1009");
  Gruppo(dxf, 9, "$DWGCODEPAGE");
  Gruppo(dxf, 3, "ANSI_1252");
  Gruppo(dxf, 9, "$INSUNITS");
  GruppoIntero(dxf, 70, Voce(unita).dxf);
  if (!tutto.Vuoto()) {
    Gruppo(dxf, 9, "$EXTMIN");
    GruppoPunto(dxf, 10, tutto.x0, tutto.y0);
    Gruppo(dxf, 9, "$EXTMAX");
    GruppoPunto(dxf, 10, tutto.x1, tutto.y1);
  }
  Gruppo(dxf, 0, "ENDSEC");
}

void ScriviTipiLinea(Dxf& dxf, double passo) {
  Gruppo(dxf, 0, "TABLE");
  Gruppo(dxf, 2, "LTYPE");
  GruppoIntero(dxf, 70, static_cast<int>(kTipiLinea.size()));
  for (const TipoLinea& tipo : kTipiLinea) {
    double lunghezza = 0;
    for (const double misura : tipo.Tratti()) lunghezza += misura * passo;
    Gruppo(dxf, 0, "LTYPE");
    Gruppo(dxf, 2, tipo.nome);
    GruppoIntero(dxf, 70, 0);
    Gruppo(dxf, 3, tipo.nome);
    GruppoIntero(dxf, 72, 'A');
    GruppoIntero(dxf, 73, static_cast<int>(tipo.quante));
    GruppoLunghezza(dxf, 40, lunghezza);
    for (std::size_t i = 0; i < tipo.quante; ++i)
      GruppoLunghezza(dxf, 49, (i % 2 == 0 ? passo : -passo) * tipo.misure[i]);
  }
  Gruppo(dxf, 0, "ENDTAB");
}

void ScriviTabelle(Dxf& dxf, const Riquadro& tutto) {
  Gruppo(dxf, 0, "SECTION");
  Gruppo(dxf, 2, "TABLES");
  ScriviTipiLinea(dxf, tutto.Vuoto() ? 1 : std::hypot(tutto.Larghezza(), tutto.Altezza()) * kPassoTratto);

  Gruppo(dxf, 0, "TABLE");
  Gruppo(dxf, 2, "LAYER");
  GruppoIntero(dxf, 70, static_cast<int>(kLivelli.size()));
  for (const NomeLivello& livello : kLivelli) {
    Gruppo(dxf, 0, "LAYER");
    Gruppo(dxf, 2, livello.nome);
    GruppoIntero(dxf, 70, 0);
    GruppoIntero(dxf, 62, livello.colore);
    Gruppo(dxf, 6, kTipiLinea[0].nome);
  }
  Gruppo(dxf, 0, "ENDTAB");
  Gruppo(dxf, 0, "ENDSEC");
}

void ScriviLinea(Dxf& dxf, const Disegno& disegno, const Linea& linea, Livello livello) {
  const Coordinata da = Posto(disegno, linea.inizio), a = Posto(disegno, linea.fine);
  Elemento(dxf, "LINE", livello, linea.colore);
  Gruppo(dxf, 6, kTipiLinea[IndiceTipo(linea.tipo)].nome);
  GruppoPunto(dxf, 10, da.x, da.y);
  GruppoPunto(dxf, 11, a.x, a.y);
}

void ScriviArco(Dxf& dxf, const Disegno& disegno, const Arco& arco) {
  const ArcoPolare p = Polare(disegno, arco);
  Elemento(dxf,
           p.raggio <= 0 ? "POINT"
           : p.cerchio   ? "CIRCLE"
                         : "ARC",
           LivelloArco(disegno, arco), arco.colore);
  GruppoPunto(dxf, 10, p.x, p.y);
  if (p.raggio <= 0) return;
  GruppoLunghezza(dxf, 40, p.raggio);
  if (p.cerchio) return;
  const auto gradi = [](double radianti) { return std::fmod(radianti * kGradi + 360, 360); };
  GruppoReale(dxf, 50, gradi(p.inizio));
  GruppoReale(dxf, 51, gradi(p.inizio + p.ampiezza));
}

// Fitted between two points of its baseline, so that any font fills the text's cells. One longer
// than a DXF string may be goes on in another text, where its next cell is.
void ScriviScritta(Dxf& dxf, const Disegno& disegno, const Scritta& scritta) {
  constexpr int kAdattato = 5;
  constexpr std::size_t kMassimaStringa = 255;
  constexpr std::size_t kSempreEntro = kMassimaStringa / 3;  // each character as three
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
    Elemento(dxf, "TEXT", LivelloScritta(scritta), scritta.colore);
    GruppoPunto(dxf, 10, posto(inizio).x, posto(inizio).y);
    GruppoLunghezza(dxf, 40, scritta.altezza);
    Gruppo(dxf, 1, stringa);
    GruppoReale(dxf, 41, scritta.base / scritta.altezza);
    GruppoIntero(dxf, 50, scritta.angolo);
    GruppoIntero(dxf, 72, kAdattato);
    GruppoPunto(dxf, 11, posto(fine).x, posto(fine).y);
    inizio = fine;
  } while (inizio < quanti);
}

}  // namespace

std::optional<Testo> ScriviDxf(const Disegno& disegno, Unita unita) {
  Dxf dxf{{}, disegno.unita};
  const Riquadro tutto = Ingombro(disegno);
  ScriviTestata(dxf, tutto, unita);
  ScriviTabelle(dxf, tutto);
  Gruppo(dxf, 0, "SECTION");
  Gruppo(dxf, 2, "ENTITIES");
  const auto livelli = LivelliLinee(disegno);
  for (std::size_t i = 0; i < disegno.linee.size(); ++i)
    ScriviLinea(dxf, disegno, disegno.linee[i], livelli[i]);
  for (const Arco& arco : disegno.archi) ScriviArco(dxf, disegno, arco);
  for (const Scritta& scritta : disegno.scritte) ScriviScritta(dxf, disegno, scritta);
  for (const Punto& punto : disegno.punti) {
    const Coordinata posto = Posto(disegno, punto.posizione);
    Elemento(dxf, "POINT", Livello::Contorno, tarvel::disegno::kBianco);
    GruppoPunto(dxf, 10, posto.x, posto.y);
  }
  Gruppo(dxf, 0, "ENDSEC");
  Gruppo(dxf, 0, "EOF");
  if (!dxf.finito) return std::nullopt;
  return std::move(dxf.testo);
}

}  // namespace ostrel

// The drawing that is being generated: fixed tables of elements over one shared table of
// coordinates, and the settings that every primitive obeys. An element names its points by their
// index in Coordinate, never by value.
#pragma once

#include <cstdint>
#include <vector>

#include "base/intero.h"
#include "base/reale.h"
#include "base/tabella.h"
#include "base/testo.h"

namespace tarvel::disegno {

struct Coordinata {
  Reale x, y;
};

inline Reale Lunghezza(Coordinata da, Coordinata a) {
  const Reale dx = a.x - da.x, dy = a.y - da.y;
  return Radice(dx * dx + dy * dy);
}

/// Points nearer than the tolerance in X and in Y are one point.
inline bool Coincidono(Coordinata a, Coordinata b) {
  return Assoluto(a.x - b.x) < kTolleranza && Assoluto(a.y - b.y) < kTolleranza;
}

struct ElementoPunto {
  std::int32_t coordinata = 0;
  Intero16 attributoA, attributoB;  // for the viewer
};

struct ElementoLinea {
  std::int32_t primo = 0, secondo = 0;
  Intero16 colore, tipo;
};

/// A full circle starts and ends at the same point.
struct ElementoArco {
  std::int32_t centro = 0, inizio = 0, secondoCentro = 0, fine = 0;
  Intero16 colore, genere;  // genere: always 0
};

struct ElementoTesto {
  std::int32_t posizione = 0;
  Intero16 angolo;             // whole degrees
  Intero16 base10, altezza10;  // of one character, times ten
  Intero16 colore;
  Testo stringa;
};

/// Places 0 to Ultimo, of which `numero` are taken: begin() to end(). The primitives leave the last place
/// free.
template <NomeTabella Nome, class T, int Ultimo>
struct Elenco {
  static constexpr std::int32_t kCapienza = Ultimo;

  T& operator[](long long i) { return voci[i]; }
  const T& operator[](long long i) const { return voci[i]; }
  auto begin() { return voci.begin(); }
  auto end() { return voci.begin() + numero; }
  auto begin() const { return voci.begin(); }
  auto end() const { return voci.begin() + numero; }

  std::int32_t numero = 0;
  Tabella<Nome, T, 0, Ultimo> voci;
};

struct TabelleDisegno {
  Elenco<"delle coordinate", Coordinata, 50000> Coordinate;
  Elenco<"dei punti", ElementoPunto, 5000> Punti;  // none is ever drawn; the file has their section
  Elenco<"delle linee", ElementoLinea, 50000> Linee;
  Elenco<"degli archi", ElementoArco, 15000> Archi;
  Elenco<"dei testi", ElementoTesto, 15000> Testi;
  std::vector<const char*> avvisi;  // of tables that became full, for the user, in their order
};

inline TabelleDisegno Disegno;

/// Sets every count to 0 and drops the warnings. The entries keep their values: the extents of a drawing
/// without coordinates are those of place 0.
inline void SvuotaDisegno() {
  Disegno.Coordinate.numero = Disegno.Punti.numero = Disegno.Linee.numero = 0;
  Disegno.Archi.numero = Disegno.Testi.numero = 0;
  Disegno.avvisi.clear();
}

// --- Settings. Each keeps its value from one drawing to the next.

/// Added to whatever is recorded into Disegno, not to what is drawn onto a surface. A section's drawing
/// has its origin at 0.
inline Reale OrigineX, OrigineY;
/// Of a line or circle recorded without a colour of its own.
inline Intero16 ColoreCorrente;
/// Of every recorded line.
inline Intero16 TipoLineaCorrente;
/// While a drawing file is being generated: texts are then recorded as texts, otherwise drawn by the
/// strokes of the font.
inline bool FlagDisegno = false;
/// Decimals of a measured dimension; a negative number counts as 0. No option sets it.
inline Intero16 DecimaliQuote;

// --- The stroke font, by character code: glyphs 99 units wide and 69 high, their baseline at
// ordinate 30. Two consecutive points are one stroke. No font is supplied: all values are 0.

template <NomeTabella Nome>
using OrdinateFont = Tabella<"dei caratteri", Tabella<Nome, Intero16, 0, 100>, 0, 255>;

inline Tabella<"dei caratteri", Intero16, 0, 255> FontPunti;
inline OrdinateFont<"dei caratteri"> FontX;
inline OrdinateFont<"dei caratteri"> FontY;
/// By which characters are narrowed, percent.
inline Intero16 SpaziaturaCaratteri;

}  // namespace tarvel::disegno

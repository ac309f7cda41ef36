// The 21 dimensions that the user types, and the file that keeps them for the next start.
#pragma once

#include <span>

#include "base/reale.h"
#include "base/tabella.h"
#include "base/testo.h"

namespace tarvel {

constexpr int kNumParametri = 21;

/// The dimensions, each with the number of its box Text1(i), which is its element of the vector. Depths
/// are measured downward from the top surface, slopes rise to the right.
enum Dimensione {
  // Heights
  kAltezzaTotale = 0,        // at mid-width, from the crown down to the soffit
  kSolettaInferiore = 1,     // bottom slab
  kEstremitaSbalzi = 2,      // tips of the cantilevers
  kAttaccoSbalzi = 3,        // depth of the cantilevers' underside at their root
  kSommitaEsternaAnime = 4,  // depth of the top ends of the outer web faces
  kSommitaInternaAnime = 5,  // depth of the top ends of the inner web faces, where the upper fillets start
  kSolettaFineRaccordo = 6,  // top slab at the inner ends of the upper fillets
  kSolettaMezzeria = 7,      // top slab under the crown and the breaks beside it
  kAltezzaRaccordo = 8,      // lower fillets, upward from the floor of the cell
  // Bases
  kSbalzo = 9,              // length of each cantilever
  kDaSbalzoAdAnima = 10,    // from the cantilever's root to the top of the outer web face
  kRaccordoSuperiore = 11,  // width of the upper fillets
  kDaRaccordoAColmo = 12,   // from the upper fillet to the break of the top surface
  kDaColmoAMezzeria = 13,   // from the break of the top surface to the crown
  kRaccordoInferiore = 14,  // width of the lower fillets
  kLarghezzaTotale = 15,
  // Slopes in percent
  kPendenzaSinistra = 16,       // top surface from the left end to the left break
  kPendenzaColmoSinistra = 17,  // from the left break to the crown
  kPendenzaColmoDestra = 18,    // from the crown to the right break
  kPendenzaDestra = 19,         // from the right break to the right end
  kInclinazioneAnime = 20,      // inset of the webs per unit of height: positive narrows downward
};

using VettoreParametri = Tabella<"delle dimensioni", Reale, 0, kNumParametri - 1>;

inline VettoreParametri ParametriSezione;

/// Fills ParametriSezione from "CapSezDe.txt" in DirCustom, each item converted as a box converts it ('20cm'
/// is 20, nothing is 0). A failure, or an item without a number, ends the reading in silence: the values read
/// so far stay, the others are as before.
void LeggiDefault();

/// Writes the texts of the 21 boxes as they were typed: '12,5' comes back as two numbers, which is accepted.
/// A failure is fatal.
void ScriviDefault(std::span<const Testo> caselle);

}  // namespace tarvel

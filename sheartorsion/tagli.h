// The cut-off parts of the section, whose static moments give the shear flows (Jourawski).
#pragma once

#include "model/parametri.h"
#include "properties/copia_lavoro.h"
#include "sheartorsion/asse.h"

namespace tarvel {

/// The section whose stresses are calculated: what parts are cut from and widths are measured on.
struct SezioneInEsame {
  const RecordSezione& r;  // as built, with its characteristic points
  const CopieLavoro& copie;
  const VettoreParametri& p;
  const AsseBaricentrico& asse;
};

struct CoefficientiVy {
  Reale CoeffVy1, CoeffVy2;  // of ∫y dA / Jzg and of ∫z dA / Jyg
};
struct CoefficientiVz {
  Reale CoeffVz1, CoeffVz2;  // of ∫z dA / Jyg and of ∫y dA / Jzg
};

CoefficientiVy CoefficientiDi(const CopiaLavoro& SezioneBaricentrica);
/// `quota`: the part's share of the area of both parts.
CoefficientiVz CoefficientiDi(const CopiaLavoro& parte, Reale quota);

/// The flow of a unit shear along y at points 2, 6, 8, 9, 10, 11, 13 and 14. At point 14 the crossings of
/// the centroidal axis bound the part; crossings that need more than 13 corners are a fatal index error.
[[nodiscard]] Reale FlussoVy(const SezioneInEsame& s, int punto, const CoefficientiVy& c);

/// The flow of a unit shear along z, on the upper part at points 2, 3, 4, 8 and 11, on the lower one at 10
/// and 12, on the whole section at 13.
[[nodiscard]] Reale FlussoVz(const SezioneInEsame& s, int punto, const CoefficientiVz& c);

}  // namespace tarvel

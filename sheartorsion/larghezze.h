// The width of the wall at each characteristic point, by which its shear flow is divided.
#pragma once

#include "model/parametri.h"
#include "properties/copia_lavoro.h"

namespace tarvel {

/// What widths are measured on.
struct Pareti {
  const RecordSezione& r;  // as built, with its characteristic points
  const CopiaLavoro& SezioneBaricentrica;
  const VettoreParametri& p;
};

using Larghezza = Reale (*)(const Pareti&);

namespace larghezza {

Reale Nulla(const Pareti&);                     // points 1 and 5, at the tips
Reale SolettaAlColmoSinistro(const Pareti& s);  // point 2, signed
Reale SolettaInMezzeria(const Pareti& s);       // point 3, signed
Reale SolettaAlColmoDestro(const Pareti& s);    // point 4, signed
Reale Piede(const Pareti& s);                   // points 6 and 7, across the fillet of the bottom slab
Reale Anima(const Pareti& s);                   // points 8 and 9, across the lean of the web
Reale AnimaPerTorsione(const Pareti& s);        // points 8 and 9
Reale SommitaAnima(const Pareti& s);            // point 8, from the top surface down to O4
Reale SolettaInferiore(const Pareti& s);        // point 10, the dimension as it is, signed
Reale SolettaAlRaccordo(const Pareti& s);       // point 11, signed
Reale Fondo(const Pareti& s);                   // point 12, and 10 along z: the slab as built, signed
Reale AttaccoSbalzo(const Pareti& s);           // point 13
Reale AnimaSullAsse(const Pareti& s);           // point 14, at the height of the centroid, signed

template <Larghezza L>
Reale Modulo(const Pareti& s) {
  return Assoluto(L(s));
}

}  // namespace larghezza
}  // namespace tarvel

// Torsion of the single closed cell (Bredt).
#pragma once

#include <optional>

#include "model/parametri.h"
#include "model/sezione.h"

namespace tarvel {

/// Returns Ω, the area enclosed by the median line of the walls, with its sign. Jt becomes 4 Ω² / ∮ds/t,
/// 0 where a wall has no thickness; a fault in that last step leaves ∮ds/t in it.
[[nodiscard]] Reale CalcolaTorsione(const GeometriaSezione& g, const VettoreParametri& p, Reale& Jt);

/// ∫ds/t of a wall of length s whose thickness varies linearly from t1 to t2: s/(t2-t1)·ln(t2/t1), or
/// s/t where the thickness is constant; 0 without a length. Nothing for a wall of no thickness.
[[nodiscard]] std::optional<Reale> TrattoSpessoreVariabile(Reale t1, Reale t2, Reale s);

}  // namespace tarvel

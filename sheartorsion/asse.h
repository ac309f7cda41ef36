// Where the horizontal centroidal axis crosses the left web.
#pragma once

#include "model/sezione.h"

namespace tarvel {

struct AsseBaricentrico {
  bool TrovatoAsse = false;
  int LatoEsterno = 0;  // outline edge v -> v+1 that the axis crosses, 1 to 5
  int LatoInterno = 0;  // cell edge that it crosses, 1 to 5, or 11 for the closing one
};

/// Searches the left side of outline and cell for y = YG and, when both are crossed, writes points
/// 14 (outline) and 15 (cell) of the record.
[[nodiscard]] AsseBaricentrico CercaAsseBaricentrico(RecordSezione& r);

}  // namespace tarvel

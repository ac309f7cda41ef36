// In a file of its own, so that an executable that has another OspiteDeiFile is linked without it.
#include "platform/ospite.h"

namespace tarvel {

const Ospite& OspiteDeiFile() {
  return kOspiteSistema;
}

}  // namespace tarvel

// Terminals of Windows; a closed pipe is no more than a failed write there.
#include "platform/comune/terminale.h"

#include <io.h>

#include <cstdio>

namespace tarvel {

bool SoltantoErroriSulTerminale() {
  return _isatty(_fileno(stderr)) != 0 && _isatty(_fileno(stdout)) == 0;
}

void NonFinireColTubo() {}

}  // namespace tarvel

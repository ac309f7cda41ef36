// The edge of the 8-bit text: what the toolkit shows and what the program holds.
#pragma once

#include <QString>

#include "base/testo.h"

namespace tarvel {

inline QString InQt(std::string_view testo) {
  return QString::fromStdString(InUtf8(testo));
}

inline Testo DaQt(const QString& testo) {
  return DaUtf8(testo.toStdString());
}

}  // namespace tarvel

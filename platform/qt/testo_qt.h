// The edge of the 8-bit text: what the toolkit shows and what the program holds.
#pragma once

#include <QString>
#include <QTextDocument>

#include "base/testo.h"

namespace tarvel {

inline QString InQt(std::string_view testo) {
  return QString::fromStdString(InUtf8(testo));
}

/// What a tool tip has to be given to show this text: it takes one that looks like markup for markup.
inline QString InSuggerimento(const Testo& testo) {
  const QString piano = InQt(testo);
  return Qt::mightBeRichText(piano) ? Qt::convertFromPlainText(piano) : piano;
}

inline Testo DaQt(const QString& testo) {
  return DaUtf8(testo.toStdString());
}

}  // namespace tarvel

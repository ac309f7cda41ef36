// What the user asks for on the command line.
#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <string>
#include <variant>

#include "viewer/disegno/scala.h"

namespace ostrel {

struct Richieste {
  QStringList disegni;
  bool sorveglia = true;
  /// A file, or with `tipo` a folder; empty: the drawing is shown in the window.
  QString esporta;
  QString tipo;
  Resa resa;
  bool comunque = false;  // also what does not fit on its sheet
  bool aiuto = false;
  bool versione = false;
};

/// `argomenti` in UTF-8, without the program's name. The alternative is an Italian message on what is
/// wrong with them.
std::variant<Richieste, QString> LeggiRichieste(std::span<const std::string> argomenti);

extern const char* const kAiuto;

}  // namespace ostrel

// Reads what the user asks for on the command line.
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
  /// A file, or with `tipo` a folder; where it is empty the window shows the drawing.
  QString esporta;
  QString tipo;
  Resa resa;
  bool comunque = false;  // export also what does not fit on its sheet
  bool aiuto = false;
  bool versione = false;
};

/// `argomenti` are in UTF-8, without the program's name. Returns an Italian message where they are wrong.
std::variant<Richieste, QString> LeggiRichieste(std::span<const std::string> argomenti);

extern const char* const kAiuto;

}  // namespace ostrel

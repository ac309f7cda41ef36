// Reads what the user asks for on the command line.
#pragma once

#include <QString>
#include <QStringList>
#include <span>
#include <string>
#include <variant>

#include "base/opzioni_comando.h"
#include "viewer/disegno/scala.h"

namespace ostrel {

struct Richieste {
  QStringList disegni;
  bool sorveglia = true;
  /// A file, or with `tipo` a folder; where it is empty the window shows the drawing.
  QString esporta;
  QString tipo;
  Resa resa;
  bool comunque = false;  // also what does not fit on its sheet
};

std::variant<Richieste, tarvel::Congedo> LeggiRichieste(std::span<const std::string> argomenti);

}  // namespace ostrel

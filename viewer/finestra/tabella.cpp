#include "viewer/finestra/tabella.h"

#include <optional>

#include "base/numeri.h"
#include "viewer/disegno/livelli.h"

namespace ostrel {
namespace {

std::optional<QString> Proprieta(const Scritta& scritta, const QString& decimale) {
  const QString testo = QString::fromStdString(tarvel::InUtf8(scritta.testo));
  const QString nome = testo.section(':', 0, 0).trimmed();
  QString valore = testo.section(':', 1).trimmed();
  if (nome.isEmpty() || !tarvel::NumeroRegionale(valore.toStdString(), ',', ' ')) return std::nullopt;
  valore.remove(' ').replace(',', '.').replace('.', decimale);
  return nome + '\t' + valore;
}

}  // namespace

QStringList RigheTabella(const Disegno& disegno, const QString& decimale) {
  QStringList proprieta, testi;
  for (const Scritta& scritta : disegno.scritte) {
    if (const auto riga = Proprieta(scritta, decimale))
      proprieta << *riga;
    else if (LivelloScritta(scritta) == Livello::Testi)
      testi << QString::fromStdString(tarvel::InUtf8(scritta.testo)).trimmed();
  }
  testi.removeAll(QString());
  return proprieta.isEmpty() ? testi : proprieta;
}

}  // namespace ostrel

#include "viewer/senza_finestra.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <cstdio>
#include <optional>

#include "viewer/caricamento.h"
#include "viewer/esporta.h"

namespace ostrel {
namespace {

QString Destinazione(const Richieste& r, const QString& disegno) {
  if (r.tipo.isEmpty()) return r.esporta;
  return QDir(r.esporta).filePath(QFileInfo(disegno).completeBaseName() + '.' + r.tipo);
}

// Names that differ by case alone are one file on some systems, and the folder may go there.
std::optional<QString> StessoFile(const Richieste& r) {
  QHash<QString, QString> visti;
  for (const QString& disegno : r.disegni) {
    const QString chiave = Destinazione(r, disegno).toCaseFolded();
    if (visti.contains(chiave))
      return QString("%1 e %2 andrebbero tutti e due in %3: non è scritto niente")
          .arg(visti[chiave], disegno, Destinazione(r, disegno));
    visti[chiave] = disegno;
  }
  return std::nullopt;
}

// What is wrong; nothing where the file is written.
std::optional<QString> EsportaUno(const Richieste& r, const QString& disegno) {
  const Caricato caricato = CaricaAttendendo(disegno.toStdString());
  if (!caricato.disegno) return QString::fromStdString(caricato.messaggio);
  const QString uscita = Destinazione(r, disegno);
  if (FinaleDi(uscita) == "pdf")
    if (const auto obiezione = Esamina(*caricato.disegno, r.resa, Pagina(*caricato.disegno, r.resa));
        obiezione && (obiezione->assurda || !r.comunque))
      return QString("File %1: %2%3")
          .arg(disegno, obiezione->testo, obiezione->assurda ? "" : " Con --comunque si scrive lo stesso.");
  return Esporta(*caricato.disegno, uscita, r.resa, {disegno});
}

}  // namespace

void Dice(const QString& testo) {
  std::fprintf(stderr, "ostrel: %s\n", qUtf8Printable(testo));
}

int EsportaTutti(const Richieste& richieste) {
  if (const auto doppio = StessoFile(richieste)) {
    Dice(*doppio);
    return 2;
  }
  int falliti = 0;
  for (const QString& disegno : richieste.disegni)
    if (const auto errore = EsportaUno(richieste, disegno)) {
      Dice(*errore);
      ++falliti;
    }
  if (richieste.disegni.size() > 1 && falliti > 0)
    Dice(QString("%1 su %2 non esportati").arg(falliti).arg(richieste.disegni.size()));
  return falliti > 0 ? 1 : 0;
}

}  // namespace ostrel

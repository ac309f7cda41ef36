#include "viewer/comando/senza_finestra.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <cstdio>
#include <iterator>
#include <utility>
#include <vector>

#include "viewer/disegno/caricamento.h"
#include "viewer/disegno/misure.h"
#include "viewer/esporta/esporta.h"

namespace ostrel {
namespace {

QString Destinazione(const Richieste& r, const QString& disegno) {
  if (r.tipo.isEmpty()) return r.esporta;
  return QDir(r.esporta).filePath(QFileInfo(disegno).completeBaseName() + '.' + r.tipo);
}

// Refuses to write anything where a drawing would be lost or two would go into one file. Names that differ by
// case alone count as one: on some systems they are, and the folder may be copied there.
Errore Rifiuto(const Richieste& r, bool insieme) {
  QSet<QString> letti;
  for (const QString& disegno : r.disegni) letti << QFileInfo(disegno).canonicalFilePath();
  letti.remove({});
  QHash<QString, QString> visti;
  for (const QString& disegno : r.disegni) {
    const QString uscita = Destinazione(r, disegno), chiave = uscita.toCaseFolded();
    if (letti.contains(QFileInfo(uscita).canonicalFilePath()))
      return QString("%1 è un disegno da leggere, e andrebbe perso: non è scritto niente").arg(uscita);
    if (visti.contains(chiave) && !insieme)
      return QString("%1 e %2 andrebbero tutti e due in %3: non è scritto niente")
          .arg(visti[chiave], disegno, uscita);
    visti[chiave] = disegno;
  }
  return std::nullopt;
}

// Refuses also what does not fit on its sheet.
Errore Leggi(const Richieste& r, const QString& file, Disegno& disegno) {
  Caricato caricato = CaricaAttendendo(file.toStdString());
  if (!caricato.disegno) return QString::fromStdString(caricato.messaggio);
  disegno = std::move(*caricato.disegno);
  if (Ingombro(disegno).Vuoto()) return QString("File %1: non c'è niente da disegnare").arg(file);
  if (FinaleDi(Destinazione(r, file)) != "pdf") return std::nullopt;
  const auto obiezione = Esamina(disegno, r.resa, Pagina(disegno, r.resa));
  if (!obiezione || (r.comunque && !obiezione->assurda)) return std::nullopt;
  return QString("File %1: %2%3")
      .arg(file, obiezione->testo, obiezione->assurda ? "" : " Con --comunque si scrive lo stesso.");
}

// Writes each drawing into a file of its own. Returns how many failed, as the next one does.
qsizetype EsportaOgnuno(const Richieste& r) {
  qsizetype falliti = 0;
  for (const QString& file : r.disegni) {
    Disegno disegno;
    Errore errore = Leggi(r, file, disegno);
    if (!errore) errore = Esporta(disegno, Destinazione(r, file), r.resa, {file});
    if (!errore) continue;
    Dice(*errore);
    ++falliti;
  }
  return falliti;
}

qsizetype EsportaInsieme(const Richieste& r) {
  std::vector<Disegno> disegni(static_cast<std::size_t>(r.disegni.size()));
  std::vector<Tavola> tavole;
  for (std::size_t i = 0; i < disegni.size(); ++i) {
    const QString& file = r.disegni[static_cast<qsizetype>(i)];
    if (const Errore errore = Leggi(r, file, disegni[i]))
      Dice(*errore);
    else
      tavole.push_back({&disegni[i], {file}});
  }
  if (!tavole.empty())
    if (const Errore errore = EsportaFascicolo(tavole, r.esporta, r.resa)) {
      Dice(*errore);
      tavole.clear();
    }
  return std::ssize(disegni) - std::ssize(tavole);
}

}  // namespace

void Dice(const QString& testo) {
  std::fprintf(stderr, "ostrel: %s\n", qUtf8Printable(testo));
}

int EsportaTutti(const Richieste& richieste) {
  const bool insieme = richieste.tipo.isEmpty() && richieste.disegni.size() > 1;
  if (const Errore rifiuto = Rifiuto(richieste, insieme)) {
    Dice(*rifiuto);
    return 2;
  }
  const qsizetype falliti = insieme ? EsportaInsieme(richieste) : EsportaOgnuno(richieste);
  if (richieste.disegni.size() > 1 && falliti > 0)
    Dice(QString("%1 su %2 non esportati").arg(falliti).arg(richieste.disegni.size()));
  return falliti > 0 ? 1 : 0;
}

}  // namespace ostrel

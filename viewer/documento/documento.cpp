#include "viewer/documento/documento.h"

#include <QDir>
#include <QFileInfo>

namespace ostrel {

Documento::Documento(bool sorveglia, Ascolto ascolto) : sorveglia_(sorveglia), ascolto_(std::move(ascolto)) {
  attesa_.setSingleShot(true);
  QObject::connect(&attesa_, &QTimer::timeout, [this] { Tenta(); });
  const auto cambiato = [this] {
    if (QFileInfo::exists(aperto_)) Leggi();
  };
  QObject::connect(&sorvegliante_, &QFileSystemWatcher::fileChanged, cambiato);
  QObject::connect(&sorvegliante_, &QFileSystemWatcher::directoryChanged, cambiato);
}

void Documento::Apri(const QString& percorso) {
  aperto_ = QDir::fromNativeSeparators(percorso);  // as the watcher lists its paths on every host
  nuovo_ = true;
  if (!anteprima_.isEmpty()) anteprimaLasciata_ = QFileInfo(anteprima_).lastModified();
  sentito_ = {};
  Leggi();
}

void Documento::ApriAnteprima(const QString& percorso) {
  anteprima_ = QDir::fromNativeSeparators(percorso);
  Apri(percorso);
}

void Documento::Ricarica() {
  if (const QFileInfo anteprima(anteprima_);
      aperto_ != anteprima_ && anteprima.exists() && anteprima.lastModified() != anteprimaLasciata_)
    return Apri(anteprima_);
  sentito_ = {};
  Leggi();
}

void Documento::Leggi() {
  tentativi_ = 0;
  Tenta();
}

void Documento::Tenta() {
  attesa_.stop();
  if (aperto_.isEmpty()) return;
  Sorveglia();
  const QDateTime scritto = QFileInfo(aperto_).lastModified();
  Caricato esito = Carica(aperto_.toStdString());
  if (esito.riprova && ++tentativi_ < kTentativi) return attesa_.start(kAttesaMs);
  const bool sentito = !esito.disegno && sentito_ == std::pair(esito.messaggio, scritto);
  if (sentito) return;
  sentito_ = {esito.messaggio, scritto};
  const bool nuovo = nuovo_;
  if (esito.disegno) {
    mostrato_ = aperto_;
    nuovo_ = false;
  }
  ascolto_(std::move(esito), nuovo);
}

// The folder is watched too: the watch on a file ends when another file takes its place.
void Documento::Sorveglia() {
  if (!sorveglia_) return;
  const QString cartella = QFileInfo(aperto_).absolutePath();
  for (const QString& altra : sorvegliante_.directories() + sorvegliante_.files())
    if (altra != cartella && altra != aperto_) sorvegliante_.removePath(altra);
  // The watcher ignores what it watches already and what does not exist.
  sorvegliante_.addPaths({cartella, aperto_});
}

}  // namespace ostrel

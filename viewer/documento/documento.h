// The drawing's file that the window shows: which one it is, when it is read, what of it is news.
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QString>
#include <QTimer>
#include <functional>
#include <string>
#include <utility>

#include "viewer/disegno/caricamento.h"

namespace ostrel {

class Documento {
 public:
  /// Takes what a reading came to. `nuovo`: the drawing is the first one read since a file was opened.
  using Ascolto = std::function<void(Caricato esito, bool nuovo)>;

  /// `sorveglia`: the file is read again by itself whenever it changes. A reading of that kind does not
  /// repeat a fault that `ascolto` has heard already while the file stays as it was.
  Documento(bool sorveglia, Ascolto ascolto);

  /// Reads this file, and makes it the one that later readings read, also where it cannot be read now.
  void Apri(const QString& percorso);
  /// As Apri; once this file has been written anew, Ricarica comes back to it from any other: the program
  /// that started the viewer has no other order to show its next preview.
  void ApriAnteprima(const QString& percorso);
  /// Reads the file anew, changed or not. One still being written is waited for.
  void Ricarica();

  /// The file opened last.
  const QString& Aperto() const { return aperto_; }
  /// The file of the last drawing that could be read; empty before the first.
  const QString& Mostrato() const { return mostrato_; }
  bool MostraAnteprima() const { return !mostrato_.isEmpty() && mostrato_ == anteprima_; }

 private:
  void Leggi();
  void Tenta();
  void Sorveglia();

  bool sorveglia_;
  Ascolto ascolto_;
  QString aperto_;
  QString mostrato_;
  bool nuovo_ = true;
  QString anteprima_;
  QDateTime anteprimaLasciata_;  // when it had been written as another file was opened
  std::pair<std::string, QDateTime>
      sentito_;  // the last fault, none for a drawing, and when its file was written
  int tentativi_ = 0;
  QTimer attesa_;  // until the next attempt to read a file that is being written
  QFileSystemWatcher sorvegliante_;
};

}  // namespace ostrel

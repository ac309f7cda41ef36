// A text box that tells the program of every change the user makes.
#pragma once

#include <QLineEdit>

#include "platform/controlli.h"

namespace tarvel {

/// `tasto` fires for each character typed, before the text changes, and once, with a stand-in
/// code, for a change that comes otherwise (deletion, paste, drop, undo); then `testo` is still what
/// the box held.
class Casella : public QLineEdit {
 public:
  Casella(Controllo& controllo, QWidget* padre);

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  void Annuncia(int codice);
  void Scrivi(const QString& testo);
  void Modificato(const QString& testo);

  Controllo& controllo_;
  bool annunciato_ = false;  // the change under way has fired its `tasto` already
};

}  // namespace tarvel

// A text box that tells the program of every change the user makes, and its user what it has no room for.
#pragma once

#include <QLineEdit>

#include "platform/comune/desktop/casella.h"

namespace tarvel {

/// `tasto` fires for each character typed, before the text changes, and once, with a stand-in
/// code, for a change that comes otherwise (deletion, paste, drop, undo); then `testo` is still what
/// the box held.
class Casella : public QLineEdit {
 public:
  Casella(Controllo& controllo, QWidget* padre);

  /// Shows the text that the program has set.
  void Mostra();

  static constexpr QColor kSegno{208, 80, 0};  // of the marks where text is out of sight

 protected:
  void keyPressEvent(QKeyEvent* evento) override;
  void inputMethodEvent(QInputMethodEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;

 private:
  void Batti(const std::vector<int>& codici, const std::function<void()>& agisce);
  void Modificato(const QString& testo);
  QRect Riga() const;
  void Misura();
  void Inquadra(bool dallInizio);
  Taglio Tagliato() const;

  Controllo& controllo_;
  bool annunciato_ = false;  // the change under way has fired its `tasto` already
  bool dallInizio_ = true;   // the text is shown from there, wherever the caret is
  int larghezzaTesto_ = 0;   // pixels
  int prima_ = 0;            // of the text, in pixels, beside the style's own margin
};

}  // namespace tarvel

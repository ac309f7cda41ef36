// The window of a form.
#pragma once

#include <QWidget>
#include <map>
#include <memory>
#include <vector>

#include "platform/controlli.h"

namespace tarvel {

class Finestra : public QWidget {
 public:
  explicit Finestra(Form& form);

  /// The widget of a control of this form; nullptr for any other.
  QWidget* WidgetDi(const Controllo& controllo) const;
  /// The keyboard goes to a control, as Tab takes it there; nullptr: to none.
  void Metti(const Controllo* controllo);
  /// The form is gone: nothing of it is referred to any more. The window goes when no handler can be left
  /// that was called from it.
  void Stacca();

  Form* form;

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;
  void timerEvent(QTimerEvent* evento) override;

 private:
  std::map<const Controllo*, QWidget*> widget_;
  std::vector<std::unique_ptr<QObject>> vedette_;  // gone before the widgets they watch
};

/// The window of a form; nullptr for one (nullptr too) that is not loaded or was not shown yet.
Finestra* FinestraDi(const Form* form);

/// The window has become the active one (nullptr: what did counts no more). If by a click, the click comes
/// next, and it has to find its control before a message of the one left takes the mouse: the control that
/// has the keyboard here counts as reached only when nothing has come for a moment.
void AttivaFinestra(Finestra* finestra);

}  // namespace tarvel

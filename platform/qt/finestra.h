// The window of a form.
#pragma once

#include <QEventLoop>
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
  /// The control that has, or will have when the window is active, the keyboard.
  Controllo* ColFuoco() const;
  /// The keyboard goes to the first control that can have it.
  void VaiAlPrimo();
  /// The form is gone: nothing of it is referred to any more.
  void Stacca();

  Form* form;
  QEventLoop* ciclo = nullptr;  // of a modal showing
  int livello = 0;              // modal forms below it; the user can reach the topmost level only

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;

 private:
  std::map<const Controllo*, QWidget*> widget_;
  std::vector<std::unique_ptr<QObject>> vedette_;  // gone before the widgets they watch
};

}  // namespace tarvel

// The hidden form whose timer ends the program once the close handlers have returned.
#pragma once

#include "platform/controlli.h"

namespace tarvel {

class FormTimer : public Form {
 public:
  /// `chiusa`: the form to unload before the end.
  explicit FormTimer(Form& chiusa);

  /// Starts the timer: when it fires, the form is unloaded and the program ends.
  void Arma();

  Temporizzatore Timer1;

 private:
  void Timer1_Timer();

  Form& chiusa_;
};

}  // namespace tarvel

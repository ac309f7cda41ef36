// The hidden form whose timer ends the program out of the close handlers.
#pragma once

#include "platform/controlli.h"

namespace tarvel {

class FormTimer : public Form {
 public:
  /// `chiusa` is the form to unload before the end.
  explicit FormTimer(Form& chiusa);

  /// Starts the short wait at whose end the form is unloaded and the program ends.
  void Arma();

  Temporizzatore Timer1;

 private:
  void Timer1_Timer();

  Form& chiusa_;
};

}  // namespace tarvel

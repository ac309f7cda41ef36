// The end of the program is always deferred, so that no handler runs in a form that is gone.
#include "app/form_timer.h"

#include "platform/desktop.h"

namespace tarvel {

FormTimer::FormTimer(Form& chiusa) : chiusa_(chiusa) {
  nome = "FormTimer";
  titolo = "Form1";
  Timer1.nome = "Timer1";
  Timer1.intervallo = 10;
  Timer1.scatto = [this] { Timer1_Timer(); };
}

void FormTimer::Arma() {
  CaricaForm(*this);
  AbilitaTimer(Timer1, true);
}

void FormTimer::Timer1_Timer() {
  ScaricaForm(chiusa_);
  TerminaProgramma(0);
}

}  // namespace tarvel

// What a platform shows for the desktop that all platforms share (platform/comune/desktop/scrivania.h), which
// alone calls this. Beside it a platform defines TerminaProgramma and ImpostaPuntatore, and what
// platform/programmi.h and platform/regione.h declare.
#pragma once

#include "platform/desktop.h"

namespace tarvel {

/// The form's window comes to the front, with the keyboard at FuocoDi(form): as a `nuova` one where it was
/// not on the screen, as the form of a modal loop or not. `davanti` was in front so far, the form itself
/// perhaps.
void PortaDavanti(Form& form, Form* davanti, bool nuova, bool modale);
/// The window goes, and the keyboard to Fuoco(). Of a form that is unloaded nothing is referred to any more.
void Togli(Form& form, bool scaricata);
/// The program has set the text or the entries of a control; `diverso`: to others.
void Aggiorna(Controllo& controllo, bool diverso);

/// Takes events until this is true.
void Attende(const bool& finito);

struct Messaggio {
  const Testo& testo;
  const Testo& titolo;
  Icona icona;
  Bottoni bottoni;
};
/// Shows a message box and waits for its answer.
Risposta Chiede(const Messaggio& messaggio);

/// Milliseconds of the clock that timers go by.
long long Adesso();
/// ProssimaScadenza has changed, or a timer that is due may fire again.
void NuovaScadenza();

}  // namespace tarvel

// The desktop of a user who cannot be seen: which forms are loaded and shown, which is in front,
// where the focus is, and the loop that waits for the user.
#pragma once

#include <functional>

#include "platform/desktop.h"

namespace tarvel::headless {

struct Messaggio {
  const Testo& testo;
  const Testo& titolo;
  Icona icona;
  Bottoni bottoni;
};

/// Who plays the user. Either call may throw to end the run: what it throws comes out of Avvia.
struct Attore {
  std::function<void()> agisce;  // one event, whenever the program waits for its user
  std::function<Risposta(const Messaggio&)> risponde;
};

/// Runs the program: loads and shows the main form, then takes events until the program ends.
/// Returns its exit status. Afterwards the desktop is as if nothing had run: no form loaded, no
/// timer running, no program started.
int Avvia(Form& principale, Attore attore);

/// The answer of whoever plays the user; where nobody does, OK or No.
Risposta Chiede(const Messaggio& messaggio);

/// The hourglass is what the user sees.
bool Clessidra();

/// The form in front, nullptr when none is visible.
Form* FormAttiva();
/// The form of the topmost modal loop, nullptr when none runs.
Form* FormModale();
Form* FormVisibile(const Testo& nome);
/// The visible form of a control, nullptr when there is none.
Form* FormDi(const Controllo& controllo);
bool Caricata(const Form& form);
bool Visibile(const Form& form);
/// Visible and not blocked by a modal form.
bool Usabile(const Form& form);

/// The control with the focus: the one of the form in front.
Controllo* Fuoco();
/// Moves the focus (nullptr: to no control) on a visible form, which comes to the front. No event;
/// in a box the caret stands at the end of the text.
void SpostaFuoco(Form& form, Controllo* controllo);
/// All text of the box with the focus is selected; else its caret stands at the end.
bool TuttoScelto(const Controllo& controllo);
void ScegliTutto(const Controllo& controllo, bool scelto);
/// The user types in the box with the focus: its caret is in view, not the text's beginning.
bool CursoreInVista(const Controllo& controllo);
void MettiCursoreInVista(const Controllo& controllo, bool inVista);

}  // namespace tarvel::headless

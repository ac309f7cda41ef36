// What every desktop does, once and without a toolkit: which forms are loaded and shown, which one is in
// front, which control has the focus, what fires now and what has to wait. It defines the calls of
// platform/desktop.h on forms, controls, messages and timers. A platform tells it what its host did, asks it
// what is so, and does what platform/comune/desktop/schermo.h declares.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/desktop.h"

namespace tarvel {

// --- What a platform tells.

/// The process's arguments, for RigaComando.
void ImpostaRigaComando(Testo riga);

/// A fatal error in the handler is reported by one message and ends the program, status 1.
void Smista(const std::function<void()>& gestore);
/// Runs a handler in that way (an empty one is passed over), then what waited for its end. For a click, and
/// for whatever has no call of its own here.
void Esegui(const std::function<void()>& gestore);

/// The user has reached a control (nullptr: none) by mouse or keyboard, and its form comes to the front: the
/// control that had the focus hears of it. False where that cannot be, or where the handler of the other has
/// taken the focus elsewhere: the click or key that led here then does nothing.
bool Raggiungi(Form& form, Controllo* controllo);

/// The user has pressed in a box what it hears of as these codes; `agisce` changes its text. That is done
/// once its handler has run or waits in a modal form, and not at all where the form has been unloaded.
void PremiInCasella(Controllo& casella, const std::vector<int>& codici, const std::function<void()>& agisce);

/// The close box; false where the form cannot be used.
bool Chiudi(Form& form);

/// Fires the timer that is due first; false when none is, or none may fire now.
bool ScattaProssimo();

/// Every timer stops.
void FermaTimer();
/// As if nothing had run: no form is loaded, no timer runs.
void Sgombera();

// --- What is so.

/// The visible forms, the one in front last.
const std::vector<Form*>& Fila();
/// The form in front, nullptr when none is visible.
Form* FormAttiva();
/// The form of the topmost modal loop, nullptr when none runs.
Form* FormModale();
/// The visible form of a control, nullptr when there is none.
Form* FormDi(const Controllo& controllo);
/// Visible, and neither a modal form nor a message box keeps the user from it.
bool Usabile(const Form& form);
/// The control with the focus: of the form in front, or of another one when it comes to the front.
Controllo* Fuoco();
Controllo* FuocoDi(const Form& form);

/// A handler runs that is not waiting in a modal form: nothing else fires.
bool Occupato();
/// No handler runs, nor waits in a modal form.
bool ARiposo();
/// How many modal forms are shown.
int LivelloModale();
bool MessaggioAperto();
/// Message boxes and modal forms opened so far: tells whether one came in between.
int LoopAperti();

/// When the next timer falls due, by the platform's clock; nothing when all are stopped.
std::optional<long long> ProssimaScadenza();

/// What a control shows before the program changes it.
struct Contenuto {
  Testo testo;
  std::vector<Testo> voci;
  std::vector<bool> scelte;
};
/// Of a loaded form's controls, in its order: what they were described with.
const std::vector<Contenuto>& Descritti(const Form& form);

}  // namespace tarvel

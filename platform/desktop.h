// The desktop: showing forms, messages and the pointer, the order of events, the end of the
// program. The whole contract of what a platform does for the forms.
//
// Events. The program is single-threaded: a handler runs to its end before the next event is
// taken, except that a modal form or a message box, shown by a handler, runs a loop of its own
// until it goes. A handler's ErroreFatale, that of a Form_Load or Form_Unload which it brought about
// included, is caught by the loop that fired it: what PrimaDellaFine
// registered, one message with the stop icon, the title kTitoloProgramma and what failed where, then
// TerminaProgramma(1).
//
// A platform's entry hands the process's arguments to RigaComando and shows, as a handler,
// FormPrincipale() (app/tarvel1.h); then it takes events until TerminaProgramma. That alone ends the
// program: it goes on when its last form has gone, as a timer may still fire.
//
// Focus. One control of the desktop has the focus: the first of a form when the form is shown,
// then whichever the user goes to by mouse or Tab, on any form that can be used. When it changes
// hands, `fuocoPerso` of the control that had it fires first, before any event of the new one
// (a button's `click` finds the value of the box just left already stored; where that handler shows
// a message or a modal form the click, on whichever form, counts once that has gone; where it shows another
// form or takes the clicked one away, the click is lost). The close box of the
// form that holds the focus makes its control lose it before Form_Unload, so that a value just
// typed is not lost; that of another form takes none away. A message box does not move the focus, nor does
// another program that comes to the front: when this one comes back the same control has the keyboard,
// without an event. Labels never have the focus. A form shown by a handler takes the focus at once, but the
// control that had it hears of that only when the program next waits for its user (in the loop of the form
// itself, if modal), before any other event, a timer's included; also where that form has gone again
// meanwhile. When a form goes otherwise than by its close box, its control loses the focus without an event;
// whenever one goes, the focus returns, without an event, to the control that had it last on the form that is
// then in front, with its caret and selection as they were.
//
// Modality. While a modal form is shown only it, and what its handlers show, can be used. It belongs
// to the form in front of which it was shown: it stays above that one, is minimised and comes back
// with it, never alone; when that one goes, or becomes modal itself, it stays. A form that it keeps from
// the user stays so, and below it, also where a handler shows it again. A form that is on the screen already
// becomes modal where it stands, with its focus; shown modally twice, both callers go on when it goes, the
// later one first. While a message box is open nothing else can be used.
#pragma once

#include "base/errore.h"
#include "platform/controlli.h"

namespace tarvel {

inline constexpr char kTitoloProgramma[] = "SEZIONE UTENTE TIPO PONTE 1";

/// The process's arguments as the host hands them out, 8-bit, with one blank between two of them,
/// empty ones included; "" when there is none. What quotes the host has taken off is gone, everything
/// else is raw: no escapes, no case, no trimming.
Testo RigaComando();

// --- Forms. The form object must outlive its window: it may be destroyed only when unloaded.

/// Form_Load, unless the form is loaded already. Shows nothing.
void CaricaForm(Form& form);
/// Loads the form where needed and shows it, not modally; a visible form comes to the front, also
/// one that its user has minimised. The first form shown stands at the upper edge, 1350 twips from the
/// left or less, whole on the screen if it fits there; any other where the host puts it.
void MostraForm(Form& form);
/// Loads and shows the form, centred on the one in front, and returns when it has been unloaded or
/// hidden.
void MostraFormModale(Form& form);
/// Takes the form off the screen; it stays loaded and keeps its controls' state.
void NascondiForm(Form& form);
/// Form_Unload, with the window still there, then it goes. Nothing for a form that is not loaded or is being
/// unloaded already. The close box does the same. Other forms stay. The controls then have the content they
/// were described with again, for the next load.
void ScaricaForm(Form& form);

/// What the program does when a fatal error ends it, before the message is shown; the sentence that it
/// returns is added to the message. A failure in it changes nothing: the message is that of the first
/// error. It is called by the loop that caught the error and shows nothing itself.
void PrimaDellaFine(std::function<Testo()> salva);

/// Ends the program at once with this exit status: no unload handler runs, all windows go. It
/// never returns; whether it unwinds by an exception of its own or leaves the process is the
/// platform's affair. May be called before any form is shown.
[[noreturn]] void TerminaProgramma(int stato);

// --- Controls. Allowed at any time, also on forms that are not loaded or not visible; no call
// fires an event.

void ImpostaTesto(Controllo& controllo, const Testo& testo);
/// Replaces the entries of a list; nothing is selected afterwards.
void ImpostaVoci(Controllo& lista, std::vector<Testo> voci);

// --- Message boxes: modal to the whole program, centred on the form in front, above it and minimised
// with it (on the screen where there is none yet); they return the answer. '\n' breaks a line, nothing
// else does but the width of the screen. The first button, OK or Sì, is the default one.

enum class Icona { Nessuna, Stop, Esclamazione, Informazione };
enum class Bottoni { Ok, SiNo };
enum class Risposta { Ok, Si, No };

/// A note is also closed by its close box and by Esc. A question is answered by its buttons and
/// their keys only (Enter, Space, the arrows, Tab, S and N): its close box and Esc do nothing, so
/// that no work is dropped by a key pressed once too often. While a box is open the pointer is the
/// default one, whatever is set.
Risposta MostraMessaggio(const Testo& testo, const Testo& titolo, Icona icona, Bottoni bottoni = Bottoni::Ok);

// --- Pointer and timers.

enum class Puntatore { Predefinito, Clessidra };

/// The mouse pointer over the program's windows, at once and until the next call.
void ImpostaPuntatore(Puntatore puntatore);

/// Starts or stops a timer; starting one that runs changes nothing. A timer never fires while a
/// handler runs (its own included) or a message box is open: it fires when that is over, once however
/// often it was due, and its interval counts from then. While a modal form waits for its user it does
/// fire, also one whose own handler has shown that form.
void AbilitaTimer(Temporizzatore& timer, bool attivo);

}  // namespace tarvel

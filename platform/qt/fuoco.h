// Which control of the desktop has the focus, as the forms see it, and which forms can be used.
// The toolkit's own focus comes and goes with the active window, message boxes and other programs;
// this one only changes hands.
#pragma once

#include "platform/qt/finestra.h"

namespace tarvel {

/// Neither a modal form shown later nor a message box keeps the user from this window.
bool Usabile(const Finestra& finestra);
/// The user, or the showing of a form, has reached this control (nullptr: a form that has none to
/// reach): the one left loses the focus. Nothing when the window cannot be used.
void RaggiungeControllo(Finestra& finestra, Controllo* controllo);
/// The window has become the active one. If by a click, the click comes next, and it has to find its
/// control before a message of the one left takes the mouse: the control that has the keyboard here
/// counts as reached only when nothing has come for a moment.
void AttivaFinestra(Finestra& finestra);
/// It counts as reached now.
void FinisceAttivazione();
/// The close box of a form that holds the focus: its control loses it.
void LasciaControllo(const Finestra& finestra);
/// The form goes: the focus returns, without an event, to the control that had it before.
void RendeFuoco(const Finestra& finestra);
/// The window that holds the focus; nullptr when none is shown.
Finestra* FinestraAttiva();

/// Message boxes and modal forms opened so far: tells whether one came in between.
int LoopAperti();

/// How many modal forms are shown. Only the forms shown at this level can be used.
int LivelloModale();

/// While this lives there is one modal form more.
class LivelloInPiu {
 public:
  LivelloInPiu();
  ~LivelloInPiu();
  LivelloInPiu(const LivelloInPiu&) = delete;
  LivelloInPiu& operator=(const LivelloInPiu&) = delete;
};

/// While this lives a message box is open: reaching a control means nothing.
class MessaggioAperto {
 public:
  MessaggioAperto();
  ~MessaggioAperto();
  MessaggioAperto(const MessaggioAperto&) = delete;
  MessaggioAperto& operator=(const MessaggioAperto&) = delete;
};

}  // namespace tarvel

// The desktop of a user who cannot be seen: whoever plays the user, the virtual clock, and what boxes show.
#pragma once

#include <functional>

#include "platform/comune/desktop/schermo.h"
#include "platform/comune/desktop/scrivania.h"

namespace tarvel::headless {

/// Who plays the user. Either call may throw to end the run: what it throws comes out of Avvia.
struct Attore {
  std::function<void()> agisce;  // one event, whenever the program waits for its user
  std::function<Risposta(const Messaggio&)> risponde;
};

/// Runs the program: loads and shows the main form, then takes events until the program ends.
/// Returns its exit status. Afterwards the desktop is as if nothing had run: no form loaded, no
/// timer running, no program started.
int Avvia(Form& principale, Attore attore);

/// Lets so many milliseconds pass. The timers that fall due meanwhile fire as soon as the program waits
/// for its user, not inside this call.
void LasciaPassare(long long durata);
/// How long until a timer falls due, nothing when all are stopped.
std::optional<long long> AttesaProssimo();

/// The hourglass is what the user sees.
bool Clessidra();

/// All text of the box with the focus is selected; else its caret stands at the end.
bool TuttoScelto(const Controllo& casella);
void ScegliTutto(const Controllo& casella, bool scelto);
/// The user types in the box with the focus: its caret is in view, not the text's beginning. nullptr: no
/// more.
bool CursoreInVista(const Controllo& casella);
void MettiCursoreInVista(const Controllo* casella);

}  // namespace tarvel::headless

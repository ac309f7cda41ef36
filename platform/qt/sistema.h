// What each system does in its own way: starting other programs, seeing their windows, pressing keys.
// Defined twice, in platform/qt/x11/ and in platform/qt/windows/.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/qt/tasti.h"

namespace tarvel {

using Orologio = std::chrono::steady_clock;

/// A program that was started, held by numbers of the system that are not given to another meanwhile.
struct Processo {
  std::intptr_t stesso = 0;
  std::intptr_t gruppo = 0;  // whatever it starts belongs to it
};

/// A top-level window, of whichever program. It may go at any time: a question about one that has gone
/// is answered with nothing.
using FinestraAltrui = std::uintptr_t;

/// Chooses the display system, before the toolkit starts: one in which another program's windows can be
/// reached, if there is any.
void ScegliAmbiente();

/// Starts the program, an absolute path of the host in UTF-8, in this folder and without arguments. Nothing
/// of this program's is left with it, and it outlives it.
std::optional<Processo> Lancia(const std::string& programma, const std::string& cartella);
bool Finito(const Processo& processo);

/// The windows of other programs can be seen.
bool FinestreInVista();
/// The main window of a program: one that the user sees as such, minimized ones included, no dialog or
/// menu.
std::optional<FinestraAltrui> FinestraPrincipale(const Processo& processo);
/// The user's keys go to this window.
bool ColFuoco(FinestraAltrui finestra);
/// A modal dialog keeps the user from this window.
bool Bloccata(FinestraAltrui finestra);
/// Asks for the window to come to the front and get the keyboard.
void ChiediAttivazione(FinestraAltrui finestra);
/// Presses and releases keys of the keyboard while Alt is held, as the user would, where they go to this
/// window.
void PremiTasti(FinestraAltrui finestra, const std::vector<Tasto>& sequenza);

/// Waits for a condition on windows, asked anew whenever something may have changed and when the program,
/// if one is given, ends. Takes no event. False when it did not come true in time.
bool Aspetta(const std::function<bool()>& condizione, Orologio::time_point scadenza,
             const Processo* processo = nullptr);

}  // namespace tarvel

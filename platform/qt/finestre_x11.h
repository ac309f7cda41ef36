// The windows of other programs, on an X server.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

using Display = struct _XDisplay;

namespace tarvel {

using FinestraX = unsigned long;
using Orologio = std::chrono::steady_clock;

/// A connection of our own, so that nothing of the toolkit's is taken or awaited; nullptr where
/// there is no X server. Windows may go at any time: a question about one that has gone is answered
/// with nothing.
Display* ConnessioneX();

/// The main window of a session of processes: one the user sees as a program, no dialog or menu;
/// the oldest of several.
std::optional<FinestraX> FinestraPrincipale(int sessione);
/// The window the user's keys go to.
FinestraX FinestraColFuoco();
/// A modal dialog keeps the user from this window.
bool Bloccata(FinestraX finestra);
/// While this lives no other program can change anything at the server.
class ServerFermo {
 public:
  ServerFermo();
  ~ServerFermo();
  ServerFermo(const ServerFermo&) = delete;
  ServerFermo& operator=(const ServerFermo&) = delete;
};
/// Asks for the window to come to the front and get the keyboard.
void ChiediAttivazione(FinestraX finestra);

/// Waits for a condition on windows, asked anew whenever the server reports a change or `descrittore`
/// becomes readable. False when it did not come true in time.
bool Aspetta(const std::function<bool()>& condizione, Orologio::time_point scadenza, int descrittore);

}  // namespace tarvel

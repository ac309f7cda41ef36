// A virtual screen with a window manager, and the user's hands and eyes at it. Forms are found by
// their name, controls by their place in the form's description.
#pragma once

#include <X11/Xlib.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/controlli.h"
#include "tests/finestra/processo.h"

namespace tarvel::prove {

class Schermo {
 public:
  /// "1024x600"
  explicit Schermo(const std::string& misure);
  ~Schermo();
  Schermo(const Schermo&) = delete;
  Schermo& operator=(const Schermo&) = delete;

  std::string Nome() const { return DisplayString(display_); }

  /// The window with this role (a form's name) or, of those without a role of their own, title.
  std::optional<Window> Trova(const std::string& nome);
  /// Waits until that window has the keyboard.
  bool Davanti(const std::string& nome);
  /// What the task bar does.
  bool PortaDavanti(const std::string& nome);
  /// What the close box does.
  void Chiudi(const std::string& nome);
  void Fotografa(const std::string& file);

  void Tasto(KeySym simbolo, KeySym con = NoSymbol);
  void Batti(const std::string& testo);
  /// At a point of a control: its middle, or the first entry of a list.
  void Clicca(const Form& form, const Controllo& controllo, int volte = 1);

 private:
  std::string Proprieta(Window finestra, const char* proprieta);
  std::vector<Window> Finestre(const char* proprieta);
  void Chiedi(const char* messaggio, Window finestra, long primo);

  std::unique_ptr<Processo> server_;
  std::unique_ptr<Processo> gestore_;
  Display* display_ = nullptr;
};

}  // namespace tarvel::prove

// The user of the contract suite: what a person can do at the desktop and can see on it. Each
// platform's test executable plays this user by its own means; the suite is the same for all.
//
// A case builds its forms inside `Prova` and lets `Utente::Esegui` run the program. Everything is
// checked afterwards on the diary that `Prova` returns: a platform may run the program in a
// process of its own and leave it when the program ends.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "platform/desktop.h"

namespace tarvel::contratto {

/// What the user does at one moment. A call that opens a modal form comes back only after that
/// form has gone, so it stands last in its step; the next step is then played inside the form.
using Passo = std::function<void()>;

/// The program is started with these arguments, in a region with a decimal comma and points between
/// the thousands.
inline constexpr const char* kArgomenti[] = {"|x=\"a b\"|", "", "perch\xC3\xA9"};
inline constexpr char kAppunti[] = "1\t2";  // what the clipboard holds

class Utente {
 public:
  Utente() = default;
  Utente(const Utente&) = delete;
  Utente& operator=(const Utente&) = delete;
  virtual ~Utente() = default;

  /// Starts the program as the platform's own entry does (loads `principale` and shows it), then
  /// plays the steps in order, each as soon as the program waits for its user: in the main loop or
  /// in the loop of a modal form, never while a message box is open. When all are played and the
  /// program waits again, TerminaProgramma(0). It may never return.
  virtual void Esegui(Form& principale, std::vector<Passo> passi) = 0;

  /// Adds a line to the diary, which keeps it whatever happens next.
  virtual void Annota(const std::string& riga) { diario += riga + '\n'; }

  // --- Inside a step. An action on something that cannot be used now has no effect.

  /// Goes to the control with Tab or, where nothing else comes of it, a click: only the focus moves.
  virtual void Vai(Controllo& controllo) = 0;
  /// Buttons and boxes: a mouse click; one that is covered cannot be used.
  virtual void Clicca(Controllo& controllo) = 0;
  /// A key where the focus is: the code of its character, 9 Tab, 22 paste, 24 and 25 the arrows up and
  /// down, 127 Delete.
  virtual void Premi(int tasto) = 0;
  /// Another program comes to the front for a moment.
  virtual void AltroProgramma() = 0;
  /// Goes to the box, selects all and types the text key by key; "" is one Backspace.
  virtual void Scrivi(Controllo& casella, const Testo& testo) = 0;
  /// Goes to the control (without clicking a button) and presses Enter.
  virtual void Invio(Controllo& controllo) = 0;
  /// Makes exactly these entries (from 0) the selected ones: click, then Ctrl+click.
  virtual void Seleziona(Controllo& lista, const std::vector<int>& voci) = 0;
  virtual void DoppioClick(Controllo& lista, int voce) = 0;
  /// The close box in the window's title bar.
  virtual void Chiudi(Form& form) = 0;

  /// The answer to the next message box that has none yet, given after it was open for `attesa`
  /// milliseconds. Without an answer a note is dismissed by its close box; a question gets a No after
  /// Esc and the close box have been tried in vain. May also be called before Esegui. The platform notes each
  /// box in the diary once it is answered: RigaMessaggio.
  void Rispondi(Risposta risposta, int attesa = 0) { pronte_.push_back({risposta, attesa}); }

  /// Lets time pass, the program waiting for its user, until the diary holds this line; gives up
  /// after some seconds, so that the case fails on what the diary lacks. It may do so only after
  /// the step has returned: it stands last in its step.
  virtual void AspettaRiga(const std::string& riga) = 0;

  // --- What is on the screen, anywhere during Esegui.

  virtual bool Vede(const Form& form) = 0;
  virtual bool VedeClessidra() = 0;
  /// Text of a box, caption of a button or label; the entries of a list joined by '|', each
  /// selected one with a '*' before it ("A|*B|C").
  virtual Testo Legge(const Controllo& controllo) = 0;
  /// What of a box's text can be seen, "tutto", "inizio" or "fine", with the marks at the edges: "<", ">".
  virtual std::string Mostrato(const Controllo& casella) = 0;
  /// What a box is said to be by who reads the screen aloud, and its tool tip as it is read, '/' for a new
  /// line: "NAME: TIP".
  virtual std::string Indica(const Controllo& casella) = 0;

  std::string diario;

 protected:
  struct Pronta {
    Risposta risposta;
    int attesa;
  };

  void FaProssimo();
  Pronta ProssimaRisposta(Bottoni bottoni);
  bool Scritta(const std::string& riga) const {
    return ('\n' + diario).find('\n' + riga + '\n') != std::string::npos;
  }

  std::deque<Passo> passi_;
  std::deque<Pronta> pronte_;
};

/// Defined by each platform's test executable: calls `caso` with a user and an empty desktop. The diary,
/// one event a line; the last one is "fine 0", with the program's exit status.
std::string Prova(const std::function<void(Utente&)>& caso);

/// The diary's line of a message box: messaggio stop ok "TITLE" "TEXT" -> ok; icons nessuna, stop,
/// esclamazione, informazione; buttons ok, sino; answers ok, si, no. '/' stands for a line break.
std::string RigaMessaggio(Icona icona, Bottoni bottoni, const Testo& titolo, const Testo& testo,
                          Risposta risposta);

}  // namespace tarvel::contratto

// Forms and controls described by data. A form declares its controls as members, describes them
// before it is loaded and gives them their handlers; a platform realises the description. Forms
// never see a toolkit type, platforms never see a section.
//
// All positions and sizes are in twips (1/1440 inch), relative to the form's client area. A platform
// turns them into pixels by one factor for the whole program, 1/15 or more; edges are rounded, not
// sizes, so that neighbours in twips are neighbours in pixels. Character cells are too coarse for it.
//
// Keys of a box. `tasto` fires for every character typed ('?' for one that the code page lacks), for
// Enter, Esc and Backspace, always; once, with a stand-in code, for any other change that the user
// makes, so that no change goes unheard: kTastoIndietro where it only removes (Delete, cut),
// kTastoIncolla where text arrives (paste, also of nothing; drop; undo). Arrows, Tab, Alt or Ctrl with
// a letter (cut, paste and undo apart) and a Delete that has nothing to delete are no events. A key acts
// on the text as its handler has left it, and is done before anything else fires: where the handler
// has shown another form, modally or not, the box loses the focus with the changed text. Where it has
// unloaded the form of the box the key is lost, also if it has shown that form again. Text that the
// program sets is not selected, has the caret at its end and keeps its control characters; what the user
// types, pastes or drops comes without them. Enter and Esc change no text, press no button and close
// no form.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "base/testo.h"

namespace tarvel {

/// Black by itself.
struct Colore {
  std::uint8_t r = 0, g = 0, b = 0;
  friend constexpr bool operator==(Colore, Colore) = default;
};
inline constexpr Colore kGrigioChiaro{192, 192, 192};

struct Rettangolo {
  int sinistra = 0, alto = 0, larghezza = 0, altezza = 0;
};

/// A font by name and size; a host without the family falls back to a small clear sans-serif that
/// fits the control. A caption that does not fit is written smaller.
struct Carattere {
  const char* famiglia = "Small Fonts";
  double punti = 6.75;
  bool grassetto = false;
};

/// Texts are shown as they are: an '&' is one, and makes no key of the letter after it.
/// Bottone: Enter and Space press the one that has the focus; none is the form's default.
/// Etichetta: opaque in the form's colour, its text from the upper left corner. One twice as tall as
/// its font or more is a note, wrapped at blanks; any other is one line, shortened in the middle where
/// even small letters do not fit, the whole text then shown on request (as a tool tip).
/// Casella: white, one line, at most kMassimoCasella characters: what exceeds them is left out, whoever
/// writes or describes it. Reached by Tab or by its form's being shown its whole text is selected, by the
/// mouse the caret stands where it was clicked. Text that the program has set, and text that the keyboard has
/// left, is shown from its beginning; while the user types, or moves the caret, the caret is in view. Where
/// text is out of sight at an end, a mark at that edge says so, over the letters, which stay as they are. Its
/// tool tip says what it is and, where the text does not fit, the whole of it (Suggerimento,
/// platform/comune/desktop/casella.h). Tool tips are plain text.
/// Lista: white. A click selects one entry, and so does an arrow: the first one the first entry. With
/// selezioneEstesa Shift and Ctrl select several, without it they change nothing about a click. Reaching
/// it selects nothing; Enter, Esc and a click beside the entries change nothing.
enum class TipoControllo { Bottone, Etichetta, Casella, Lista };

// Codes of a box's key event that are no character's.
constexpr int kTastoIndietro = 8;  // Backspace, and whatever else only removes text
constexpr int kTastoInvio = 13;
constexpr int kTastoIncolla = 22;  // text that arrives otherwise than by keys
constexpr int kTastoEsc = 27;

/// The longest text of a box, in characters.
inline constexpr std::size_t kMassimoCasella = 32767;

struct Controllo {
  // Description: fixed once Form_Load has returned.
  TipoControllo tipo = TipoControllo::Etichetta;
  Testo nome;  // as the user's script and the tests call it: "Calcolo", "Text1(3)"
  Rettangolo posto;
  Colore coloreTesto;
  Carattere carattere;
  Testo descrizione;             // boxes: what it is, to be read in its tool tip and as its accessible name
  bool selezioneEstesa = false;  // lists: several entries at once (click, Shift, Ctrl)

  // State, at first part of the description: what stands here before Form_Load is what comes back when the
  // form is unloaded, what Form_Load writes is its content until then. Afterwards the program changes it
  // only through the calls of platform/desktop.h; the platform keeps it equal to what the user sees before
  // it fires an event.
  Testo testo;               // caption of a button or label, text of a box
  std::vector<Testo> voci;   // entries of a list
  std::vector<bool> scelte;  // one flag an entry, sized by the platform from the form's load on; at most
                             // one set without extended selection

  // Events; an empty one is passed over. A handler may call anything of the seam, may show forms
  // and messages (nested loops), and may unload its own form: the form object stays alive until
  // the handler has returned.
  std::function<void()> click;        // buttons: mouse, Space, or Enter while focused
  std::function<void()> doppioClick;  // lists: on an entry, by then the only one selected
  std::function<void(int)> tasto;     // boxes: 8-bit code of the key, before the text changes; `testo`
                                      // is what the box holds
  std::function<void()> fuocoPerso;   // the focus has gone to another control
};

// A control as a form's table lists it; the form adds colours, fonts and handlers.
inline Controllo NuovoControllo(TipoControllo tipo, const Testo& nome, const Rettangolo& posto,
                                const Testo& testo = {}) {
  Controllo c;
  c.tipo = tipo;
  c.nome = nome;
  c.posto = posto;
  c.testo = testo;
  return c;
}

/// A static line of a schematic, drawn below the controls; the width is in pixels at scale 1.
struct LineaForm {
  int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  Colore colore;
  int spessore = 1;
};

/// A timer: disabled at first; while enabled it fires each time its interval has passed, and must not
/// go away.
struct Temporizzatore {
  Testo nome;
  int intervallo = 10;  // milliseconds
  bool attivo = false;  // changed only by AbilitaTimer
  std::function<void()> scatto;
};

/// A window. Borders are fixed (not resizable), with a close box; Alt+F4, and whatever else the host
/// has for it, is the close box, Esc is not. A host may let its user minimise it: that is no event and
/// moves no focus. The first control of `controlli` that can have the focus gets it whenever the form
/// comes to the screen; one that is there already keeps its own. Tab and Shift+Tab follow their order, round
/// and round. Where controls overlap labels lie below, and of two others the later one is on top; the lines
/// lie below all.
class Form {
 public:
  Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form() = default;

  /// Once, before the form can be shown; again after it was unloaded.
  virtual void Form_Load() {}
  /// While the form is being unloaded, before its window goes. It cannot prevent it.
  virtual void Form_Unload() {}

  // Fixed once Form_Load has returned, until the form is unloaded.
  Testo nome;                      // "FormSez"
  Testo titolo;                    // text of the title bar, may be empty
  int larghezza = 0, altezza = 0;  // of the client area
  Colore sfondo = kGrigioChiaro;
  std::vector<LineaForm> linee;
  std::vector<Controllo*> controlli;  // in tab order
};

}  // namespace tarvel

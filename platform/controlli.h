// Forms and controls described by data. A form declares its controls as members, describes them
// before it is loaded and gives them their handlers; a platform realises the description. Forms
// never see a toolkit type, platforms never see a section.
//
// All positions and sizes are in twips (1/1440 inch), relative to the form's client area.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "base/testo.h"

namespace tarvel {

struct Colore {
  std::uint8_t r = 0, g = 0, b = 0;
  friend constexpr bool operator==(Colore, Colore) = default;
};
inline constexpr Colore kNero{0, 0, 0};
inline constexpr Colore kGrigioChiaro{192, 192, 192};

struct Rettangolo {
  int sinistra = 0, alto = 0, larghezza = 0, altezza = 0;
};

/// A font by name and size; a host without the family falls back to a small clear sans-serif that
/// fits the control.
struct Carattere {
  const char* famiglia = "Small Fonts";
  double punti = 6.75;
  bool grassetto = false;
};

enum class TipoControllo { Bottone, Etichetta, Casella, Lista };

// Codes of a box's key event that are no character's.
constexpr int kTastoIndietro = 8;  // Backspace, and whatever else only removes text
constexpr int kTastoInvio = 13;
constexpr int kTastoIncolla = 22;  // text that arrives otherwise than by keys
constexpr int kTastoEsc = 27;

/// The longest text of a box, in characters.
inline constexpr std::size_t kMassimoCasella = 32767;

struct Controllo {
  // Description: fixed once the form is loaded.
  TipoControllo tipo = TipoControllo::Etichetta;
  Testo nome;  // as the user's script and the tests call it: "Calcolo", "Text1(3)"
  Rettangolo posto;
  Colore coloreTesto = kNero;
  Carattere carattere;
  bool selezioneEstesa = false;  // lists: several entries at once (click, Shift, Ctrl)

  // State. The program changes it only through the calls of platform/desktop.h; the platform
  // keeps it equal to what the user sees before it fires an event.
  Testo testo;               // caption of a button or label, text of a box
  std::vector<Testo> voci;   // entries of a list
  std::vector<bool> scelte;  // one flag an entry; at most one set without extended selection

  // Events; an empty one is passed over. A handler may call anything of the seam, may show forms
  // and messages (nested loops), and may unload its own form: the form object stays alive until
  // the handler has returned.
  std::function<void()> click;        // buttons: mouse, Space, or Enter while focused
  std::function<void()> doppioClick;  // lists: on an entry, which is selected by then
  std::function<void(int)> tasto;     // boxes: 8-bit code of the character, 13 for Enter,
                                      // before the text changes; `testo` is what the box holds
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
  Colore colore = kNero;
  int spessore = 1;
};

/// A timer: disabled at first; while enabled it fires each time its interval has passed.
struct Temporizzatore {
  Testo nome;
  int intervallo = 10;  // milliseconds
  bool attivo = false;  // changed only by AbilitaTimer
  std::function<void()> scatto;
};

/// A window. Borders are fixed (not resizable), with a close box. The first control of `controlli`
/// that can have the focus gets it when the form is shown; Tab follows their order.
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

  Testo nome;    // "FormSez"
  Testo titolo;  // text of the title bar, may be empty
  int larghezza = 0, altezza = 0;
  Colore sfondo = kGrigioChiaro;
  std::vector<LineaForm> linee;
  std::vector<Controllo*> controlli;  // in tab order
};

}  // namespace tarvel

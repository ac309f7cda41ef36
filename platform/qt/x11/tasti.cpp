// The keyboard of an X server.
#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include "platform/qt/sistema.h"
#include "platform/qt/x11/connessione.h"

namespace tarvel {
namespace {

/// While this lives no other program can change anything at the server.
class ServerFermo {
 public:
  explicit ServerFermo(Display* display) : display_(display) { XGrabServer(display_); }
  ~ServerFermo() {
    XUngrabServer(display_);
    XSync(display_, False);
  }
  ServerFermo(const ServerFermo&) = delete;
  ServerFermo& operator=(const ServerFermo&) = delete;

 private:
  Display* const display_;
};

// The key that gives the symbol in the keyboard layout in use; else any that gives it in another.
KeyCode CodiceDi(Display* display, Tasto tasto) {
  const auto simbolo = static_cast<KeySym>(tasto < kF1 ? tasto : XK_F1 + (tasto - kF1));
  XkbStateRec stato;
  XkbGetState(display, XkbUseCoreKbd, &stato);
  int primo = 0;
  int ultimo = 0;
  XDisplayKeycodes(display, &primo, &ultimo);
  for (int codice = primo; codice <= ultimo; ++codice)
    if (XkbKeycodeToKeysym(display, static_cast<KeyCode>(codice), stato.group, 0) == simbolo)
      return static_cast<KeyCode>(codice);
  return XKeysymToKeycode(display, simbolo);
}

void Premi(Display* display, KeyCode codice, bool giu) {
  if (codice != 0) XTestFakeKeyEvent(display, codice, giu ? True : False, CurrentTime);
}

}  // namespace

void PremiTasti(FinestraAltrui finestra, const std::vector<Tasto>& sequenza) {
  Display* const display = ConnessioneX();
  int ignorato = 0;
  if (!XTestQueryExtension(display, &ignorato, &ignorato, &ignorato, &ignorato)) return;
  // Between the look and the keys no other window may come to the front.
  const ServerFermo fermo(display);
  if (!ColFuoco(finestra)) return;
  const KeyCode alt = XKeysymToKeycode(display, XK_Alt_L);
  Premi(display, alt, true);
  for (const Tasto tasto : sequenza) {
    const KeyCode codice = CodiceDi(display, tasto);
    Premi(display, codice, true);
    Premi(display, codice, false);
  }
  Premi(display, alt, false);
}

}  // namespace tarvel

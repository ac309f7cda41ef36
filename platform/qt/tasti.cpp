// Key sequences and the keyboard of an X server.
#include "platform/qt/tasti.h"

#include <X11/XKBlib.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>

#include <charconv>

namespace tarvel {
namespace {

// The key at the beginning of the sequence, taken off it; 0 for none.
KeySym PrendiTasto(std::string_view& sequenza) {
  const char primo = sequenza.front();
  sequenza.remove_prefix(1);
  if (primo != '{') {
    const bool lettera = (primo >= 'a' && primo <= 'z') || (primo >= '0' && primo <= '9');
    if (primo >= 'A' && primo <= 'Z') return static_cast<KeySym>(XK_a + (primo - 'A'));
    return lettera ? static_cast<KeySym>(static_cast<unsigned char>(primo)) : 0;
  }
  const std::string_view nome = sequenza.substr(0, sequenza.find('}'));
  sequenza.remove_prefix(std::min(nome.size() + 1, sequenza.size()));
  unsigned numero = 0;
  if (!nome.starts_with('F') ||
      std::from_chars(nome.data() + 1, nome.data() + nome.size(), numero).ptr != nome.data() + nome.size())
    return 0;
  return numero >= 1 && numero <= 12 ? XK_F1 + numero - 1 : 0;
}

// The key that gives the symbol in the keyboard layout in use; else any that gives it in another.
KeyCode Tasto(Display* display, KeySym simbolo) {
  XkbStateRec stato;
  XkbGetState(display, XkbUseCoreKbd, &stato);
  int primo = 0;
  int ultimo = 0;
  XDisplayKeycodes(display, &primo, &ultimo);
  for (int tasto = primo; tasto <= ultimo; ++tasto)
    if (XkbKeycodeToKeysym(display, static_cast<KeyCode>(tasto), stato.group, 0) == simbolo)
      return static_cast<KeyCode>(tasto);
  return XKeysymToKeycode(display, simbolo);
}

void Premi(Display* display, KeyCode tasto, bool giu) {
  if (tasto != 0) XTestFakeKeyEvent(display, tasto, giu ? True : False, CurrentTime);
}

}  // namespace

std::vector<GruppoTasti> LeggiSequenza(std::string_view sequenza) {
  std::vector<GruppoTasti> gruppi;
  while (!sequenza.empty()) {
    GruppoTasti gruppo;
    gruppo.alt = sequenza.starts_with('%');
    if (gruppo.alt) sequenza.remove_prefix(1);
    const bool insieme = sequenza.starts_with('(');
    if (insieme) sequenza.remove_prefix(1);
    do {
      if (insieme && sequenza.starts_with(')')) break;
      if (sequenza.empty()) break;
      if (const KeySym simbolo = PrendiTasto(sequenza)) gruppo.simboli.push_back(simbolo);
    } while (insieme);
    if (insieme && !sequenza.empty()) sequenza.remove_prefix(1);
    if (!gruppo.simboli.empty()) gruppi.push_back(gruppo);
  }
  return gruppi;
}

void PremiTasti(Display* display, const std::vector<GruppoTasti>& sequenza) {
  int ignorato = 0;
  if (!XTestQueryExtension(display, &ignorato, &ignorato, &ignorato, &ignorato)) return;
  const KeyCode alt = XKeysymToKeycode(display, XK_Alt_L);
  for (const GruppoTasti& gruppo : sequenza) {
    if (gruppo.alt) Premi(display, alt, true);
    for (const KeySym simbolo : gruppo.simboli) {
      const KeyCode tasto = Tasto(display, simbolo);
      Premi(display, tasto, true);
      Premi(display, tasto, false);
    }
    if (gruppo.alt) Premi(display, alt, false);
  }
  XSync(display, False);
}

}  // namespace tarvel

// The keyboard of Windows.
#include <windows.h>

#include "platform/qt/sistema.h"

namespace tarvel {
namespace {

// Letters are their own codes, in capitals.
WORD CodiceDi(Tasto tasto) {
  if (tasto >= kF1) return static_cast<WORD>(VK_F1 + (tasto - kF1));
  return static_cast<WORD>(tasto >= 'a' ? 'A' + (tasto - 'a') : tasto);
}

INPUT Evento(WORD codice, bool giu) {
  INPUT evento{};
  evento.type = INPUT_KEYBOARD;
  evento.ki.wVk = codice;
  evento.ki.wScan = static_cast<WORD>(MapVirtualKeyW(codice, MAPVK_VK_TO_VSC));
  evento.ki.dwFlags = giu ? 0 : KEYEVENTF_KEYUP;
  return evento;
}

}  // namespace

void PremiTasti(FinestraAltrui finestra, const std::vector<Tasto>& sequenza) {
  std::vector<INPUT> eventi{Evento(VK_MENU, true)};
  for (const Tasto tasto : sequenza)
    for (const bool giu : {true, false}) eventi.push_back(Evento(CodiceDi(tasto), giu));
  eventi.push_back(Evento(VK_MENU, false));
  // All in one call, so that nothing the user presses comes between them.
  if (ColFuoco(finestra)) SendInput(static_cast<UINT>(eventi.size()), eventi.data(), sizeof(INPUT));
}

}  // namespace tarvel

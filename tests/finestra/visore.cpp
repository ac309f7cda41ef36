// A stand-in for the viewer: shows a window and logs what happens to it in its working folder. The
// file "modo" there tells how it behaves: "muore" ends at once, "lento" shows its window only when
// somebody opens the pipe "mostra", "sordo" ignores the request to close, "dialogo" has a modal dialog
// open.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/keysym.h>
#include <unistd.h>

#include <fstream>
#include <string>

int main() {
  std::string modo;
  std::ifstream("modo") >> modo;
  std::ofstream diario("visore.log", std::ios::app);
  diario << "avviato " << modo << std::endl;
  if (modo == "muore") return 1;
  if (modo == "lento") std::ifstream("mostra").get();

  Display* display = XOpenDisplay(nullptr);
  const Window radice = DefaultRootWindow(display);
  const auto nome = [&](const char* testo) { return XInternAtom(display, testo, False); };
  const auto apri = [&](const std::string& ruolo) {
    const Window nuova = XCreateSimpleWindow(display, radice, 0, 0, 200, 100, 0, 0, 0xffffff);
    const unsigned long processo = static_cast<unsigned long>(getpid());
    XChangeProperty(display, nuova, nome("_NET_WM_PID"), XA_CARDINAL, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(&processo), 1);
    XChangeProperty(display, nuova, nome("WM_WINDOW_ROLE"), XA_STRING, 8, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(ruolo.data()), static_cast<int>(ruolo.size()));
    XSelectInput(display, nuova, KeyPressMask);
    return nuova;
  };
  const Window finestra = apri("ostrel");
  Atom chiusura = nome("WM_DELETE_WINDOW");
  XSetWMProtocols(display, finestra, &chiusura, 1);
  XMapWindow(display, finestra);
  if (modo == "dialogo") {
    const Window dialogo = apri(modo);
    const Atom modale = nome("_NET_WM_STATE_MODAL");
    XSetTransientForHint(display, dialogo, finestra);
    XChangeProperty(display, dialogo, nome("_NET_WM_STATE"), XA_ATOM, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(&modale), 1);
    XMapWindow(display, dialogo);
  }

  for (XEvent evento; XNextEvent(display, &evento) == 0;) {
    if (evento.type == KeyPress) {
      const KeySym simbolo = XLookupKeysym(&evento.xkey, 0);
      if (simbolo != XK_Alt_L)
        diario << ((evento.xkey.state & Mod1Mask) != 0 ? "Alt+" : "") << XKeysymToString(simbolo)
               << std::endl;
    } else if (evento.type == ClientMessage) {
      diario << "chiusura" << std::endl;
      if (modo != "sordo") return 0;
    }
  }
}

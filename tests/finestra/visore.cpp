// A stand-in for the viewer: shows a window and logs what happens to it in its working folder. The
// file "modo" there tells how it behaves: "muore" ends at once, "lento" shows its window only when
// somebody opens the pipe "mostra", "sordo" ignores the request to close.
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
  const Window finestra = XCreateSimpleWindow(display, radice, 0, 0, 200, 100, 0, 0, 0xffffff);
  const auto nome = [&](const char* testo) { return XInternAtom(display, testo, False); };
  const unsigned long processo = static_cast<unsigned long>(getpid());
  XChangeProperty(display, finestra, nome("_NET_WM_PID"), XA_CARDINAL, 32, PropModeReplace,
                  reinterpret_cast<const unsigned char*>(&processo), 1);
  XChangeProperty(display, finestra, nome("WM_WINDOW_ROLE"), XA_STRING, 8, PropModeReplace,
                  reinterpret_cast<const unsigned char*>("ostrel"), 6);
  XStoreName(display, finestra, "ostrel");
  Atom chiusura = nome("WM_DELETE_WINDOW");
  XSetWMProtocols(display, finestra, &chiusura, 1);
  XSelectInput(display, finestra, KeyPressMask);
  XMapWindow(display, finestra);

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

// A virtual screen with a window manager, and the user's hands and eyes at it.
#include "tests/finestra/schermo.h"

#include <X11/XKBlib.h>
#include <X11/Xatom.h>
#include <X11/extensions/XTest.h>
#include <X11/keysym.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <stdexcept>

namespace tarvel::prove {
namespace {

constexpr double kTwipPerPixel = 15;
constexpr int kMetaRiga = 100;  // twips from a list's upper edge to the middle of its first entry

int IgnoraErrore(Display*, XErrorEvent*) {
  return 0;  // windows go when they like
}

}  // namespace

Schermo::Schermo(const std::string& misure) {
  int capi[2];
  if (pipe(capi) != 0) throw std::runtime_error("pipe");
  server_ =
      std::make_unique<Processo>(std::vector<std::string>{"Xvfb", "-displayfd", std::to_string(capi[1]),
                                                          "-screen", "0", misure + "x24", "-nolisten", "tcp"},
                                 Ambiente{});
  close(capi[1]);
  std::string nome = ":";
  for (char c = 0; read(capi[0], &c, 1) == 1 && c != '\n';) nome += c;
  close(capi[0]);
  display_ = XOpenDisplay(nome.c_str());
  if (display_ == nullptr) throw std::runtime_error("Xvfb does not start");
  XSetErrorHandler(IgnoraErrore);
  gestore_ = std::make_unique<Processo>(std::vector<std::string>{"openbox"}, Ambiente{{"DISPLAY", nome}});
  if (!Attendi([&] { return !Finestre("_NET_SUPPORTING_WM_CHECK").empty(); }))
    throw std::runtime_error("openbox does not start");
}

Schermo::~Schermo() {
  XCloseDisplay(display_);
}

std::vector<Window> Schermo::Finestre(const char* proprieta) {
  Atom tipo = None;
  int formato = 0;
  unsigned long quanti = 0, resto = 0;
  unsigned char* dati = nullptr;
  XGetWindowProperty(display_, DefaultRootWindow(display_), XInternAtom(display_, proprieta, False), 0, 1000,
                     False, XA_WINDOW, &tipo, &formato, &quanti, &resto, &dati);
  const auto* primo = reinterpret_cast<const Window*>(dati);
  std::vector<Window> esito(primo, primo + (formato == 32 ? quanti : 0));
  XFree(dati);
  return esito;
}

std::string Schermo::Proprieta(Window finestra, const char* proprieta) {
  Atom tipo = None;
  int formato = 0;
  unsigned long quanti = 0, resto = 0;
  unsigned char* dati = nullptr;
  XGetWindowProperty(display_, finestra, XInternAtom(display_, proprieta, False), 0, 1000, False,
                     AnyPropertyType, &tipo, &formato, &quanti, &resto, &dati);
  std::string esito(reinterpret_cast<const char*>(dati), formato == 8 ? quanti : 0);
  XFree(dati);
  return esito;
}

std::optional<Window> Schermo::Trova(const std::string& nome) {
  for (const Window finestra : Finestre("_NET_CLIENT_LIST")) {
    const std::string ruolo = Proprieta(finestra, "WM_WINDOW_ROLE");
    if (nome == (ruolo.empty() || ruolo == "messaggio" ? Proprieta(finestra, "_NET_WM_NAME") : ruolo))
      return finestra;
  }
  return std::nullopt;
}

bool Schermo::Davanti(const std::string& nome) {
  return Attendi([&] {
    const auto finestra = Trova(nome);
    Window fuoco = None;
    int ritorno = 0;
    XGetInputFocus(display_, &fuoco, &ritorno);
    return finestra && Finestre("_NET_ACTIVE_WINDOW") == std::vector{*finestra} && fuoco == *finestra;
  });
}

void Schermo::Chiedi(const char* messaggio, Window finestra, long primo) {
  XEvent evento{};
  evento.xclient.type = ClientMessage;
  evento.xclient.window = finestra;
  evento.xclient.message_type = XInternAtom(display_, messaggio, False);
  evento.xclient.format = 32;
  evento.xclient.data.l[0] = primo;
  evento.xclient.data.l[1] = messaggio == std::string_view("_NET_CLOSE_WINDOW") ? 2 : CurrentTime;
  XSendEvent(display_, DefaultRootWindow(display_), False, SubstructureRedirectMask | SubstructureNotifyMask,
             &evento);
  XFlush(display_);
}

bool Schermo::PortaDavanti(const std::string& nome) {
  constexpr long kBarra = 2;
  if (const auto finestra = Trova(nome)) Chiedi("_NET_ACTIVE_WINDOW", *finestra, kBarra);
  return Davanti(nome);
}

void Schermo::Chiudi(const std::string& nome) {
  if (const auto finestra = Trova(nome)) Chiedi("_NET_CLOSE_WINDOW", *finestra, CurrentTime);
}

void Schermo::Fotografa(const std::string& file) {
  Processo({"import", "-window", "root", file}, {{"DISPLAY", Nome()}}).Stato();
}

void Schermo::Tasto(KeySym simbolo, KeySym con) {
  const auto premi = [&](KeySym s, bool giu) {
    if (s != NoSymbol) XTestFakeKeyEvent(display_, XKeysymToKeycode(display_, s), giu, CurrentTime);
  };
  premi(con, true);
  premi(simbolo, true);
  premi(simbolo, false);
  premi(con, false);
  XFlush(display_);
}

void Schermo::Batti(const std::string& testo) {
  for (const char c : testo) {
    const auto simbolo = static_cast<KeySym>(static_cast<unsigned char>(c));
    const KeyCode tasto = XKeysymToKeycode(display_, simbolo);
    Tasto(simbolo, XkbKeycodeToKeysym(display_, tasto, 0, 0) == simbolo ? NoSymbol : XK_Shift_L);
  }
}

void Schermo::Clicca(const Form& form, const Controllo& controllo, int volte) {
  const Window finestra = Trova(form.nome).value();
  XWindowAttributes stato;
  XGetWindowAttributes(display_, finestra, &stato);
  const double pixel = stato.width / (form.larghezza / kTwipPerPixel) / kTwipPerPixel;
  const Rettangolo& posto = controllo.posto;
  const int y = posto.alto + (controllo.tipo == TipoControllo::Lista ? kMetaRiga : posto.altezza / 2);
  int x0 = 0, y0 = 0;
  Window figlia = None;
  XTranslateCoordinates(display_, finestra, DefaultRootWindow(display_), 0, 0, &x0, &y0, &figlia);
  XTestFakeMotionEvent(display_, -1, x0 + int((posto.sinistra + posto.larghezza / 2) * pixel),
                       y0 + int(y * pixel), CurrentTime);
  for (; volte > 0; --volte) {
    XTestFakeButtonEvent(display_, 1, True, CurrentTime);
    XTestFakeButtonEvent(display_, 1, False, CurrentTime);
  }
  // The window manager holds a click back while it raises the window; keys must not overtake it.
  Attendi([&] {
    return XGrabPointer(display_, DefaultRootWindow(display_), False, 0, GrabModeAsync, GrabModeAsync, None,
                        None, CurrentTime) == GrabSuccess;
  });
  XUngrabPointer(display_, CurrentTime);
  XFlush(display_);
}

}  // namespace tarvel::prove

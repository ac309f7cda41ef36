// The windows of other programs, on an X server: found by the process that owns them, brought to
// the front as window managers expect it (EWMH), or directly where none serves.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <array>

#include "platform/qt/sistema.h"
#include "platform/qt/x11/connessione.h"

namespace tarvel {
namespace {

Display* display = nullptr;

Atom Nome(const char* nome) {
  return XInternAtom(display, nome, False);
}

// The items of a property of 32-bit values; none where it is missing or of another type.
std::vector<unsigned long> Proprieta(Window finestra, const char* nome, Atom tipo) {
  Atom trovato = None;
  int formato = 0;
  unsigned long quanti = 0;
  unsigned long resto = 0;
  unsigned char* dati = nullptr;
  XGetWindowProperty(display, finestra, Nome(nome), 0, 1 << 16, False, tipo, &trovato, &formato, &quanti,
                     &resto, &dati);
  std::vector<unsigned long> esito;
  if (trovato == tipo && formato == 32) {
    const auto* primo = reinterpret_cast<const unsigned long*>(dati);  // Xlib's form of 32-bit items
    esito.assign(primo, primo + quanti);
  }
  if (dati != nullptr) XFree(dati);
  return esito;
}

Window Radice() {
  return DefaultRootWindow(display);
}

bool GestoreServe(const char* protocollo) {
  if (Proprieta(Radice(), "_NET_SUPPORTING_WM_CHECK", XA_WINDOW).empty()) return false;
  const auto serviti = Proprieta(Radice(), "_NET_SUPPORTED", XA_ATOM);
  return std::find(serviti.begin(), serviti.end(), Nome(protocollo)) != serviti.end();
}

struct Albero {
  Window padre = None;
  std::vector<Window> figlie;
};

Albero Parenti(Window finestra) {
  Albero esito;
  Window radice = None;
  Window* figlie = nullptr;
  unsigned quante = 0;
  if (XQueryTree(display, finestra, &radice, &esito.padre, &figlie, &quante) == 0) return esito;
  esito.figlie.assign(figlie, figlie + quante);
  if (figlie != nullptr) XFree(figlie);
  return esito;
}

// The programs' windows, the oldest first: as the window manager lists them, iconified ones
// included; where none does, what stands on the screen.
std::vector<Window> FinestreAperte() {
  if (GestoreServe("_NET_CLIENT_LIST")) return Proprieta(Radice(), "_NET_CLIENT_LIST", XA_WINDOW);
  std::vector<Window> esito;
  for (const Window finestra : Parenti(Radice()).figlie) {
    XWindowAttributes stato;
    if (XGetWindowAttributes(display, finestra, &stato) != 0 && stato.map_state == IsViewable &&
        !stato.override_redirect)
      esito.push_back(finestra);
  }
  return esito;
}

bool Principale(Window finestra) {
  if (!Proprieta(finestra, "WM_TRANSIENT_FOR", XA_WINDOW).empty()) return false;
  const auto tipi = Proprieta(finestra, "_NET_WM_WINDOW_TYPE", XA_ATOM);
  return tipi.empty() ||
         std::find(tipi.begin(), tipi.end(), Nome("_NET_WM_WINDOW_TYPE_NORMAL")) != tipi.end();
}

bool DellaSessione(Window finestra, std::intptr_t sessione) {
  const auto processo = Proprieta(finestra, "_NET_WM_PID", XA_CARDINAL);
  return !processo.empty() && getsid(static_cast<pid_t>(processo[0])) == sessione;
}

Window FinestraColFuoco() {
  if (GestoreServe("_NET_ACTIVE_WINDOW")) {
    const auto attiva = Proprieta(Radice(), "_NET_ACTIVE_WINDOW", XA_WINDOW);
    if (attiva.empty() || attiva[0] == None) return None;
    // The manager may name it before it has given it the keyboard.
    Window fuoco = None;
    int ritorno = 0;
    XGetInputFocus(display, &fuoco, &ritorno);
    while (fuoco > PointerRoot && fuoco != attiva[0]) fuoco = Parenti(fuoco).padre;
    return fuoco > PointerRoot ? fuoco : None;
  }
  Window fuoco = None;
  int ritorno = 0;
  XGetInputFocus(display, &fuoco, &ritorno);
  while (fuoco > PointerRoot && Proprieta(fuoco, "_NET_WM_PID", XA_CARDINAL).empty())
    fuoco = Parenti(fuoco).padre;
  return fuoco > PointerRoot ? fuoco : None;
}

int IgnoraErrore(Display*, XErrorEvent*) {
  return 0;
}

}  // namespace

Display* ConnessioneX() {
  if (display != nullptr) return display;
  display = XOpenDisplay(nullptr);
  if (display == nullptr) return nullptr;
  XSetErrorHandler(IgnoraErrore);
  // Windows that come and go and change hands, with and without a window manager.
  XSelectInput(display, Radice(), PropertyChangeMask | SubstructureNotifyMask);
  return display;
}

bool FinestreInVista() {
  return ConnessioneX() != nullptr;
}

std::optional<FinestraAltrui> FinestraPrincipale(const Processo& processo) {
  for (const Window finestra : FinestreAperte())
    if (DellaSessione(finestra, processo.gruppo) && Principale(finestra)) return finestra;
  return std::nullopt;
}

bool ColFuoco(FinestraAltrui finestra) {
  return FinestraColFuoco() == finestra;
}

bool Bloccata(FinestraAltrui finestra) {
  const auto aperte = FinestreAperte();
  return std::any_of(aperte.begin(), aperte.end(), [&](Window dialogo) {
    const auto stati = Proprieta(dialogo, "_NET_WM_STATE", XA_ATOM);
    return Proprieta(dialogo, "WM_TRANSIENT_FOR", XA_WINDOW) == std::vector<Window>{finestra} &&
           std::find(stati.begin(), stati.end(), Nome("_NET_WM_STATE_MODAL")) != stati.end();
  });
}

void ChiediAttivazione(FinestraAltrui finestra) {
  if (GestoreServe("_NET_ACTIVE_WINDOW")) {
    XEvent richiesta{};
    richiesta.xclient.type = ClientMessage;
    richiesta.xclient.window = finestra;
    richiesta.xclient.message_type = Nome("_NET_ACTIVE_WINDOW");
    richiesta.xclient.format = 32;
    richiesta.xclient.data.l[0] = 2;  // on the user's behalf: window managers grant it
    richiesta.xclient.data.l[1] = CurrentTime;
    XSendEvent(display, Radice(), False, SubstructureRedirectMask | SubstructureNotifyMask, &richiesta);
  } else {
    XRaiseWindow(display, finestra);
    XSetInputFocus(display, finestra, RevertToParent, CurrentTime);
  }
  XSync(display, False);
}

bool Aspetta(const std::function<bool()>& condizione, Orologio::time_point scadenza,
             const Processo* processo) {
  // Some changes, as the keyboard's arrival at a window, are not reported to bystanders.
  constexpr std::chrono::milliseconds kRiprova{20};
  const int descrittore = processo == nullptr ? -1 : static_cast<int>(processo->stesso);
  while (!condizione()) {
    if (Orologio::now() >= scadenza) return false;
    std::array<pollfd, 2> attesi{{{ConnectionNumber(display), POLLIN, 0}, {descrittore, POLLIN, 0}}};
    XFlush(display);
    if (XPending(display) == 0) poll(attesi.data(), attesi.size(), kRiprova.count());
    for (XEvent evento; XPending(display) > 0;) XNextEvent(display, &evento);
  }
  return true;
}

}  // namespace tarvel

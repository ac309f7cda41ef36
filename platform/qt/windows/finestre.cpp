// The windows of other programs on Windows: found by the process that owns them, brought to the front
// where Windows grants it, as it does to the program that has the user's last click or key.
#include <windows.h>

#include <algorithm>

#include "platform/qt/sistema.h"

namespace tarvel {
namespace {

HWND Di(FinestraAltrui finestra) {
  return reinterpret_cast<HWND>(finestra);
}

bool DelProcesso(HWND finestra, const Processo& processo) {
  const auto stesso = reinterpret_cast<HANDLE>(processo.stesso);
  const auto lavoro = reinterpret_cast<HANDLE>(processo.gruppo);
  DWORD numero = 0;
  GetWindowThreadProcessId(finestra, &numero);
  if (lavoro == nullptr) return numero == GetProcessId(stesso);
  const HANDLE suo = OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, numero);
  BOOL dentro = FALSE;
  const bool detto = suo != nullptr && IsProcessInJob(suo, lavoro, &dentro) != 0;
  if (suo != nullptr) CloseHandle(suo);
  return detto && dentro != FALSE;
}

bool Principale(HWND finestra) {
  return IsWindowVisible(finestra) != FALSE && GetWindow(finestra, GW_OWNER) == nullptr &&
         (GetWindowLongPtrW(finestra, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) == 0;
}

struct Ricerca {
  const Processo& processo;
  HWND trovata = nullptr;
};

// From the uppermost window down: of several the last one stays, above which the others were opened.
BOOL CALLBACK Guarda(HWND finestra, LPARAM dove) {
  auto& ricerca = *reinterpret_cast<Ricerca*>(dove);
  if (Principale(finestra) && DelProcesso(finestra, ricerca.processo)) ricerca.trovata = finestra;
  return TRUE;
}

}  // namespace

bool FinestreInVista() {
  return true;
}

std::optional<FinestraAltrui> FinestraPrincipale(const Processo& processo) {
  Ricerca ricerca{processo};
  EnumWindows(Guarda, reinterpret_cast<LPARAM>(&ricerca));
  if (ricerca.trovata == nullptr) return std::nullopt;
  return reinterpret_cast<FinestraAltrui>(ricerca.trovata);
}

bool ColFuoco(FinestraAltrui finestra) {
  return GetForegroundWindow() == Di(finestra);
}

bool Bloccata(FinestraAltrui finestra) {
  return IsWindowEnabled(Di(finestra)) == FALSE;
}

void ChiediAttivazione(FinestraAltrui finestra) {
  // Its program may hang: nothing is waited for.
  if (IsIconic(Di(finestra)) != FALSE) ShowWindowAsync(Di(finestra), SW_RESTORE);
  // A dialog that it waits for comes in its place.
  SetForegroundWindow(GetLastActivePopup(Di(finestra)));
}

bool Aspetta(const std::function<bool()>& condizione, Orologio::time_point scadenza,
             const Processo* processo) {
  constexpr DWORD kRiprova = 20;  // milliseconds: other programs' windows report nothing
  const auto fine = processo == nullptr ? nullptr : reinterpret_cast<HANDLE>(processo->stesso);
  while (!condizione()) {
    if (Orologio::now() >= scadenza) return false;
    MsgWaitForMultipleObjects(processo == nullptr ? 0 : 1, &fine, FALSE, kRiprova, QS_SENDMESSAGE);
    // What is sent has to be answered, or the sender, the window that comes to the front, would wait.
    MSG messaggio;
    PeekMessageW(&messaggio, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
  }
  return true;
}

}  // namespace tarvel

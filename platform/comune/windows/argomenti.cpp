// The command line and the streams of Windows.
#include "platform/comune/argomenti.h"

#include <windows.h>
// windows.h first
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <cstdlib>

#include "platform/comune/windows/largo.h"

namespace tarvel {
namespace {

UINT gPaginaTerminale = 0;

// A program with windows has no streams of its own: those of the terminal it was called from, unless the
// caller has handed it others.
void PrendiTerminale() {
  const bool uscita = GetStdHandle(STD_OUTPUT_HANDLE) != nullptr,
             errori = GetStdHandle(STD_ERROR_HANDLE) != nullptr;
  if ((uscita && errori) || AttachConsole(ATTACH_PARENT_PROCESS) == 0) return;
  if (!uscita) static_cast<void>(std::freopen("CONOUT$", "w", stdout));
  if (!errori) static_cast<void>(std::freopen("CONOUT$", "w", stderr));
}

}  // namespace

std::vector<std::string> Argomenti(int, char**) {
  int quanti = 0;
  LPWSTR* const larghi = CommandLineToArgvW(GetCommandLineW(), &quanti);
  std::vector<std::string> argomenti;
  for (int i = 1; i < quanti; ++i) argomenti.push_back(DaLargo(larghi[i]));
  LocalFree(larghi);
  return argomenti;
}

Testo RigaComandoPassata(int, char**) {
  // The name ends at a blank, or at its closing quote: it has no escapes.
  const std::wstring riga = GetCommandLineW();
  const std::size_t nome = riga.starts_with(L'"') ? riga.find(L'"', 1) : riga.find_first_of(L" \t");
  if (nome == std::wstring::npos) return {};
  const std::size_t inizio = riga.find_first_not_of(L" \t", nome + 1);
  return inizio == std::wstring::npos ? Testo() : DaUtf8(DaLargo(riga.substr(inizio)));
}

void PreparaFlussi() {
  PrendiTerminale();
  for (std::FILE* flusso : {stdin, stdout, stderr}) _setmode(_fileno(flusso), _O_BINARY);
  gPaginaTerminale = GetConsoleOutputCP();
  if (gPaginaTerminale == 0 || gPaginaTerminale == CP_UTF8) return;
  SetConsoleOutputCP(CP_UTF8);
  // The terminal stays when the program goes.
  std::atexit([] { SetConsoleOutputCP(gPaginaTerminale); });
}

}  // namespace tarvel

// Terminals of Windows; a closed pipe is no more than a failed write there.
#include "platform/comune/terminale.h"

#include <io.h>
#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <tuple>

#include "platform/comune/windows/largo.h"

namespace tarvel {
namespace {

// What tells a file of a disk from all others while it is open; nothing of pipes and consoles.
std::optional<std::tuple<DWORD, DWORD, DWORD>> Identita(HANDLE file) {
  BY_HANDLE_FILE_INFORMATION detto;
  if (GetFileType(file) != FILE_TYPE_DISK || GetFileInformationByHandle(file, &detto) == 0)
    return std::nullopt;
  return std::tuple(detto.dwVolumeSerialNumber, detto.nFileIndexHigh, detto.nFileIndexLow);
}

}  // namespace

bool SoltantoErroriSulTerminale() {
  return _isatty(_fileno(stderr)) != 0 && _isatty(_fileno(stdout)) == 0;
}

bool UscitaNelFile(const std::string& percorso) {
  const auto uscita = Identita(GetStdHandle(STD_OUTPUT_HANDLE));
  if (!uscita) return false;
  if (percorso == "-") return Identita(GetStdHandle(STD_INPUT_HANDLE)) == uscita;
  const HANDLE file =
      CreateFileW(PercorsoLargo(percorso).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                  nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) return false;
  const bool lui = Identita(file) == uscita;
  CloseHandle(file);
  return lui;
}

void NonFinireColTubo() {}

void FinisciSubito(std::string_view messaggio, int stato) {
  _write(_fileno(stderr), messaggio.data(), static_cast<unsigned>(messaggio.size()));
  _exit(stato);
}

}  // namespace tarvel

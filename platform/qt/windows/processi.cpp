// Other programs on Windows: each in a job, by which what it starts is known as its own.
#include <windows.h>

#include <QByteArray>
#include <filesystem>

#include "platform/comune/windows/largo.h"
#include "platform/qt/sistema.h"

namespace tarvel {

void ScegliAmbiente() {
  // The forms choose their own colours for a light desktop, so the frames have to be light as well.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "windows:darkmode=0");
}

std::optional<Processo> Lancia(const std::string& programma, const std::string& cartella) {
  const auto nativo = [](const std::string& percorso) {
    return std::filesystem::path(Largo(percorso)).make_preferred().wstring();
  };
  const std::wstring nome = nativo(programma);
  // By convention the first word is the program's name.
  std::wstring riga = L'"' + nome + L'"';
  STARTUPINFOW mostra{};
  mostra.cb = sizeof mostra;
  mostra.dwFlags = STARTF_USESHOWWINDOW;
  mostra.wShowWindow = SW_SHOWNORMAL;
  PROCESS_INFORMATION avviato{};
  if (CreateProcessW(nome.c_str(), riga.data(), nullptr, nullptr, FALSE,
                     CREATE_SUSPENDED | CREATE_DEFAULT_ERROR_MODE, nullptr, nativo(cartella).c_str(), &mostra,
                     &avviato) == 0)
    return std::nullopt;
  // In the job before it can start another.
  HANDLE lavoro = CreateJobObjectW(nullptr, nullptr);
  if (lavoro != nullptr && AssignProcessToJobObject(lavoro, avviato.hProcess) == 0) {
    CloseHandle(lavoro);
    lavoro = nullptr;
  }
  ResumeThread(avviato.hThread);
  CloseHandle(avviato.hThread);
  return Processo{reinterpret_cast<std::intptr_t>(avviato.hProcess), reinterpret_cast<std::intptr_t>(lavoro)};
}

bool Finito(const Processo& processo) {
  return WaitForSingleObject(reinterpret_cast<HANDLE>(processo.stesso), 0) != WAIT_TIMEOUT;
}

}  // namespace tarvel

// The program starts itself again for the one test, and there does the one work of it that is asked for.
#include "tests/finestra/processo_proprio.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <cstdlib>
#include <utility>

#include "platform/comune/windows/largo.h"
#include "tests/cartella.h"
#include "tests/contratto/utente.h"

namespace tarvel::contratto {
namespace {

int StatoDi() {
  std::array<wchar_t, MAX_PATH> programma{};
  GetModuleFileNameW(nullptr, programma.data(), MAX_PATH);
  std::string riga = "contratto";
  for (const std::string argomento : kArgomenti) riga += ' ' + argomento;
  std::wstring passata = Largo(riga);
  STARTUPINFOW muto{};  // its report is ours to make
  muto.cb = sizeof muto;
  muto.dwFlags = STARTF_USESTDHANDLES;
  PROCESS_INFORMATION figlio{};
  if (CreateProcessW(programma.data(), passata.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &muto,
                     &figlio) == 0)
    return -1;
  DWORD stato = 0;
  const bool finito = WaitForSingleObject(figlio.hProcess, kTempoCaso * 1000) == WAIT_OBJECT_0;
  if (finito)
    GetExitCodeProcess(figlio.hProcess, &stato);
  else
    TerminateProcess(figlio.hProcess, 1);
  CloseHandle(figlio.hThread);
  CloseHandle(figlio.hProcess);
  return finito ? int(stato) : -1;
}

}  // namespace

Svolto InProcessoProprio(const std::function<void(const std::filesystem::path&)>& lavoro) {
  static const ::testing::TestInfo* ultimo = nullptr;
  static int lavori = 0;  // of this test so far
  const auto* questo = ::testing::UnitTest::GetInstance()->current_test_info();
  if (questo != std::exchange(ultimo, questo)) lavori = 0;
  const std::string numero = std::to_string(++lavori);
  if (const char* chiesto = std::getenv("TARVEL_LAVORO")) {
    if (numero != chiesto) return {};
    lavoro(_wgetenv(L"TARVEL_DIARIO"));
    std::_Exit(kTornato);
  }
  const prove::Cartella cartella;
  const auto diario = cartella / "diario";
  const std::string nome = std::string(questo->test_suite_name()) + '.' + questo->name();
  for (const auto& [variabile, valore] : {std::pair(L"TARVEL_LAVORO", Largo(numero)),
                                          {L"TARVEL_DIARIO", diario.wstring()},
                                          {L"GTEST_FILTER", Largo(nome)},
                                          {L"QT_QPA_PLATFORM", std::wstring(L"offscreen")}})
    SetEnvironmentVariableW(variabile, valore.c_str());
  const int stato = StatoDi();
  return {prove::Contenuto(diario), stato};
}

}  // namespace tarvel::contratto

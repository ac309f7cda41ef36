// Files of Windows.
#include "platform/ospite.h"

#include <windows.h>

#include <algorithm>

#include "platform/comune/windows/largo.h"

namespace tarvel {
namespace {

HANDLE Di(Ospite::Maniglia file) {
  return reinterpret_cast<HANDLE>(file);
}

// A handle, where what was opened is a file of a disk: a device (CON, NUL, a port) would swallow a drawing
// of its name, or wait for ever.
std::optional<Ospite::Maniglia> Apri(const std::string& percorso, DWORD modo, DWORD condiviso, DWORD come,
                                     DWORD attributi = FILE_ATTRIBUTE_NORMAL) {
  const HANDLE file =
      CreateFileW(PercorsoLargo(percorso).c_str(), modo, condiviso, nullptr, come, attributi, nullptr);
  if (file == INVALID_HANDLE_VALUE) return std::nullopt;
  if (GetFileType(file) == FILE_TYPE_DISK) return reinterpret_cast<Ospite::Maniglia>(file);
  CloseHandle(file);
  SetLastError(ERROR_BAD_UNIT);
  return std::nullopt;
}

// Another program has the file.
bool Occupato(DWORD errore) {
  return errore == ERROR_SHARING_VIOLATION || errore == ERROR_LOCK_VIOLATION;
}

TipoVoce Genere(const std::string& percorso) {
  const DWORD attributi = GetFileAttributesW(PercorsoLargo(percorso).c_str());
  if (attributi == INVALID_FILE_ATTRIBUTES) {
    const DWORD errore = GetLastError();
    return errore == ERROR_FILE_NOT_FOUND || errore == ERROR_PATH_NOT_FOUND || errore == ERROR_INVALID_NAME ||
                   errore == ERROR_BAD_PATHNAME || errore == ERROR_INVALID_DRIVE
               ? TipoVoce::Assente
               : TipoVoce::Ignota;
  }
  if ((attributi & FILE_ATTRIBUTE_DIRECTORY) != 0) return TipoVoce::Cartella;
  return (attributi & FILE_ATTRIBUTE_DEVICE) != 0 ? TipoVoce::Altro : TipoVoce::File;
}

std::optional<std::vector<std::string>> Elenco(const std::string& cartella) {
  WIN32_FIND_DATAW voce;
  const HANDLE ricerca = FindFirstFileW(PercorsoLargo(cartella + "\\*").c_str(), &voce);
  if (ricerca == INVALID_HANDLE_VALUE) return std::nullopt;
  std::vector<std::string> nomi;
  do nomi.push_back(DaLargo(voce.cFileName));
  while (FindNextFileW(ricerca, &voce) != 0);
  const bool tutti = GetLastError() == ERROR_NO_MORE_FILES;
  FindClose(ricerca);
  if (!tutti) return std::nullopt;
  return nomi;
}

std::optional<Ospite::Maniglia> ApriLettura(const std::string& percorso) {
  // Whoever writes the file meanwhile, or renames it, is not kept from it.
  return Apri(percorso, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING);
}

std::optional<Ospite::Maniglia> ApriRiscrittura(const std::string& percorso) {
  constexpr DWORD kAttesa = 5000, kPasso = 20;  // milliseconds
  for (DWORD atteso = 0;; atteso += kPasso) {
    const auto file = Apri(percorso, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
    if (file || !Occupato(GetLastError()) || atteso >= kAttesa) return file;
    Sleep(kPasso);
  }
}

std::optional<Ospite::Maniglia> Crea(const std::string& percorso, const std::string& come) {
  // Who may do what is inherited from the folder.
  constexpr DWORD kDelFile = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;
  const DWORD suoi = come.empty() ? INVALID_FILE_ATTRIBUTES : GetFileAttributesW(PercorsoLargo(come).c_str());
  const DWORD attributi = suoi == INVALID_FILE_ATTRIBUTES ? 0 : suoi & kDelFile;
  return Apri(percorso, GENERIC_WRITE, 0, CREATE_NEW, attributi != 0 ? attributi : FILE_ATTRIBUTE_NORMAL);
}

std::optional<std::size_t> Leggi(Ospite::Maniglia file, std::span<char> posto) {
  DWORD letti = 0;
  if (ReadFile(Di(file), posto.data(), static_cast<DWORD>(posto.size()), &letti, nullptr) == 0)
    return std::nullopt;
  return letti;
}

bool Scrivi(Ospite::Maniglia file, std::string_view byte) {
  constexpr std::size_t kMassimo = 1U << 30;  // a call counts them in 32 bits
  while (!byte.empty()) {
    DWORD scritti = 0;
    const auto quanti = static_cast<DWORD>(std::min(byte.size(), kMassimo));
    if (WriteFile(Di(file), byte.data(), quanti, &scritti, nullptr) == 0 || scritti == 0) return false;
    byte.remove_prefix(scritti);
  }
  return true;
}

bool Svuota(Ospite::Maniglia file) {
  return SetFilePointer(Di(file), 0, nullptr, FILE_BEGIN) == 0 && SetEndOfFile(Di(file)) != 0;
}

bool SulDisco(Ospite::Maniglia file) {
  return FlushFileBuffers(Di(file)) != 0;
}

bool Chiudi(Ospite::Maniglia file) {
  return CloseHandle(Di(file)) != 0;
}

bool Rinomina(const std::string& da, const std::string& a, bool sostituisci) {
  const DWORD come = MOVEFILE_WRITE_THROUGH | (sostituisci ? MOVEFILE_REPLACE_EXISTING : 0U);
  return MoveFileExW(PercorsoLargo(da).c_str(), PercorsoLargo(a).c_str(), come) != 0;
}

// Renaming has written it through.
bool NomeSulDisco(const std::string&) {
  return true;
}

bool Togli(const std::string& percorso) {
  return DeleteFileW(PercorsoLargo(percorso).c_str()) != 0;
}

std::error_code Motivo() {
  const DWORD errore = GetLastError();
  if (Occupato(errore)) return std::make_error_code(std::errc::resource_unavailable_try_again);
  return {static_cast<int>(errore), std::system_category()};
}

}  // namespace

const Ospite kOspiteSistema = {.Genere = Genere,
                               .Elenco = Elenco,
                               .ApriLettura = ApriLettura,
                               .ApriRiscrittura = ApriRiscrittura,
                               .Crea = Crea,
                               .Leggi = Leggi,
                               .Scrivi = Scrivi,
                               .Svuota = Svuota,
                               .SulDisco = SulDisco,
                               .Chiudi = Chiudi,
                               .Rinomina = Rinomina,
                               .NomeSulDisco = NomeSulDisco,
                               .Togli = Togli,
                               .Motivo = Motivo};

}  // namespace tarvel

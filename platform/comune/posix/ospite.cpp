// Files of a POSIX system.
#include "platform/ospite.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <memory>
#include <thread>

namespace tarvel {
namespace {

// From the start of the program on, whoever writes: beyond a limit of the file size a write shall fail,
// not end the program.
[[maybe_unused]] const auto kSegnaleDiPrima = std::signal(SIGXFSZ, SIG_IGN);

int Descrittore(Ospite::Maniglia file) {
  return static_cast<int>(file);
}

using Stato = struct stat;

// The descriptor, where what was opened is of a kind that `ammesso` allows.
std::optional<int> Apri(const std::string& percorso, int modo, bool (*ammesso)(mode_t)) {
  // A pipe would wait for its other end, a terminal become the program's own.
  const int file = ::open(percorso.c_str(), modo | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (file < 0) return std::nullopt;
  Stato stato{};
  if (::fstat(file, &stato) == 0 && ammesso(stato.st_mode)) return file;
  ::close(file);
  errno = S_ISDIR(stato.st_mode) ? EISDIR : ENODEV;
  return std::nullopt;
}

// False when another program has had the file for too long. A file system without locks lets everybody on.
bool Blocca(int file) {
  constexpr std::chrono::seconds kAttesa{5};
  constexpr std::chrono::milliseconds kPasso{20};
  for (const auto fine = std::chrono::steady_clock::now() + kAttesa;;) {
    if (::flock(file, LOCK_EX | LOCK_NB) == 0 || (errno != EWOULDBLOCK && errno != EINTR)) return true;
    if (std::chrono::steady_clock::now() > fine) return false;
    std::this_thread::sleep_for(kPasso);
  }
}

// Whether the path still leads to the file that was opened: who had it before may have put another there.
bool AncoraLui(int file, const std::string& percorso) {
  Stato suo{}, adesso{};
  return ::fstat(file, &suo) != 0 || ::stat(percorso.c_str(), &adesso) != 0 ||
         (suo.st_dev == adesso.st_dev && suo.st_ino == adesso.st_ino);
}

TipoVoce Genere(const std::string& percorso) {
  Stato stato{};
  if (::stat(percorso.c_str(), &stato) != 0)
    return errno == ENOENT || errno == ENOTDIR ? TipoVoce::Assente : TipoVoce::Ignota;
  return S_ISREG(stato.st_mode)   ? TipoVoce::File
         : S_ISDIR(stato.st_mode) ? TipoVoce::Cartella
                                  : TipoVoce::Altro;
}

std::optional<std::vector<std::string>> Elenco(const std::string& cartella) {
  const std::unique_ptr<DIR, int (*)(DIR*)> aperta(::opendir(cartella.c_str()), ::closedir);
  if (!aperta) return std::nullopt;
  std::vector<std::string> nomi;
  errno = 0;
  while (const dirent* voce = ::readdir(aperta.get())) nomi.emplace_back(voce->d_name);
  if (errno != 0) return std::nullopt;
  return nomi;
}

std::optional<Ospite::Maniglia> ApriLettura(const std::string& percorso) {
  return Apri(percorso, O_RDONLY, [](mode_t m) { return S_ISREG(m); });
}

std::optional<Ospite::Maniglia> ApriRiscrittura(const std::string& percorso) {
  for (;;) {
    const auto file = Apri(percorso, O_RDWR, [](mode_t m) { return S_ISREG(m) || S_ISCHR(m); });
    if (!file) return std::nullopt;
    const bool bloccato = Blocca(*file);
    if (bloccato && AncoraLui(*file, percorso)) return *file;
    ::close(*file);
    if (!bloccato) return std::nullopt;
  }
}

// Nobody gets more rights than on the other file: those of its group go to its group alone.
void DaiDiritti(int file, const Stato& come) {
  mode_t diritti = come.st_mode & 0777;
  if (::fchown(file, come.st_uid, come.st_gid) != 0 &&
      ::fchown(file, static_cast<uid_t>(-1), come.st_gid) != 0)
    diritti = (diritti & 0707) | ((diritti & 07) << 3);
  ::fchmod(file, diritti);
}

std::optional<Ospite::Maniglia> Crea(const std::string& percorso, const std::string& come) {
  Stato stato{};
  const bool simile = !come.empty() && ::stat(come.c_str(), &stato) == 0;
  const int file =
      ::open(percorso.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOCTTY, simile ? 0600 : 0666);
  if (file < 0) return std::nullopt;
  if (simile) DaiDiritti(file, stato);
  return file;
}

std::optional<std::size_t> Leggi(Ospite::Maniglia file, std::span<char> posto) {
  ssize_t letti = 0;
  do {
    letti = ::read(Descrittore(file), posto.data(), posto.size());
  } while (letti < 0 && errno == EINTR);
  if (letti < 0) return std::nullopt;
  return static_cast<std::size_t>(letti);
}

bool Scrivi(Ospite::Maniglia file, std::string_view byte) {
  while (!byte.empty()) {
    const ssize_t scritti = ::write(Descrittore(file), byte.data(), byte.size());
    if (scritti < 0 && errno == EINTR) continue;
    if (scritti <= 0) return false;
    byte.remove_prefix(static_cast<std::size_t>(scritti));
  }
  return true;
}

bool Svuota(Ospite::Maniglia file) {
  // A device has no length.
  return (::ftruncate(Descrittore(file), 0) == 0 || errno == EINVAL) &&
         (::lseek(Descrittore(file), 0, SEEK_SET) == 0 || errno == ESPIPE);
}

bool SulDisco(Ospite::Maniglia file) {
  // Some file systems, and devices, have nothing to flush and say so.
  return ::fsync(Descrittore(file)) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool Chiudi(Ospite::Maniglia file) {
  return ::close(Descrittore(file)) == 0;
}

// One call where the file system has links: a name that is taken stays.
bool RinominaSeLibero(const std::string& da, const std::string& a) {
  if (::link(da.c_str(), a.c_str()) == 0) return ::unlink(da.c_str()) == 0;
  Stato stato{};
  return errno != EEXIST && ::lstat(a.c_str(), &stato) != 0 && ::rename(da.c_str(), a.c_str()) == 0;
}

bool Rinomina(const std::string& da, const std::string& a, bool sostituisci) {
  return sostituisci ? ::rename(da.c_str(), a.c_str()) == 0 : RinominaSeLibero(da, a);
}

bool NomeSulDisco(const std::string& percorso) {
  const auto fine = percorso.rfind('/');
  const std::string cartella = fine == std::string::npos ? "." : percorso.substr(0, fine + 1);
  const int aperta = ::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (aperta < 0) return errno == EACCES;  // a folder may be written in and not read
  const bool riuscito = SulDisco(aperta);
  ::close(aperta);
  return riuscito;
}

bool Togli(const std::string& percorso) {
  return ::unlink(percorso.c_str()) == 0;
}

std::error_code Motivo() {
  return {errno, std::system_category()};
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

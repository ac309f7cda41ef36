// Files of a POSIX system.
#include "platform/ospite.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <memory>

namespace tarvel {
namespace {

// From the start of the program on, whoever writes: beyond a limit of the file size a write shall fail,
// not end the program.
[[maybe_unused]] const auto kSegnaleDiPrima = std::signal(SIGXFSZ, SIG_IGN);

int Descrittore(Ospite::Maniglia file) {
  return static_cast<int>(file);
}

// The descriptor, where what was opened is of a kind that `ammesso` allows.
std::optional<Ospite::Maniglia> Apri(const std::string& percorso, int modo, bool (*ammesso)(mode_t)) {
  // A pipe would wait for its other end, a terminal become the program's own.
  const int file = ::open(percorso.c_str(), modo | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, 0666);
  if (file < 0) return std::nullopt;
  struct stat stato {};
  if (::fstat(file, &stato) == 0 && ammesso(stato.st_mode)) return file;
  ::close(file);
  return std::nullopt;
}

TipoVoce Genere(const std::string& percorso) {
  struct stat stato {};
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

std::optional<Ospite::Maniglia> ApriScrittura(const std::string& percorso) {
  return Apri(percorso, O_WRONLY | O_CREAT | O_TRUNC, [](mode_t m) { return S_ISREG(m) || S_ISCHR(m); });
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

bool SulDisco(Ospite::Maniglia file) {
  // Some file systems, and devices, have nothing to flush and say so.
  return ::fsync(Descrittore(file)) == 0 || errno == EINVAL || errno == ENOTSUP;
}

bool Chiudi(Ospite::Maniglia file) {
  return ::close(Descrittore(file)) == 0;
}

bool Rinomina(const std::string& da, const std::string& a) {
  if (::rename(da.c_str(), a.c_str()) != 0) return false;
  // The name is an entry of the folder, which has to reach the disk as well.
  const auto fine = a.rfind('/');
  const std::string cartella = fine == std::string::npos ? "." : a.substr(0, fine + 1);
  const int aperta = ::open(cartella.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (aperta < 0) return errno == EACCES;  // a folder may be written in and not read
  const bool riuscito = SulDisco(aperta);
  ::close(aperta);
  return riuscito;
}

bool Togli(const std::string& percorso) {
  return ::unlink(percorso.c_str()) == 0;
}

}  // namespace

const Ospite kOspiteSistema = {.Genere = Genere,
                               .Elenco = Elenco,
                               .ApriLettura = ApriLettura,
                               .ApriScrittura = ApriScrittura,
                               .Leggi = Leggi,
                               .Scrivi = Scrivi,
                               .SulDisco = SulDisco,
                               .Chiudi = Chiudi,
                               .Rinomina = Rinomina,
                               .Togli = Togli};

}  // namespace tarvel

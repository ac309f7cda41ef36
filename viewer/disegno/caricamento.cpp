// A file stood still while it was read if its size and time are the same before and after.
#include "viewer/disegno/caricamento.h"

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <thread>
#include <variant>

#include "platform/ospite.h"
#include "viewer/disegno/lettore_dis.h"

namespace ostrel {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr auto kAppenaScritto = 2s;

struct Stato {
  std::uintmax_t lunghezza = 0;
  fs::file_time_type scritto;
  std::error_code errore;

  friend bool operator==(const Stato&, const Stato&) = default;
  bool Recente() const {
    return std::chrono::abs(fs::file_time_type::clock::now() - scritto) < kAppenaScritto;
  }
};

Stato Guarda(const fs::path& file) {
  Stato stato;
  stato.lunghezza = fs::file_size(file, stato.errore);
  if (!stato.errore) stato.scritto = fs::last_write_time(file, stato.errore);
  return stato;
}

Caricato Rifiutato(const std::string& percorso, const std::string& motivo, bool riprova = false) {
  return {std::nullopt, "File " + percorso + ": " + motivo, riprova};
}

}  // namespace

Caricato Carica(const std::string& percorso) {
  const fs::path file(std::u8string(percorso.begin(), percorso.end()));
  std::error_code errore;
  const fs::file_status genere = fs::status(file, errore);
  if (!fs::exists(genere)) return Rifiutato(percorso, "il disegno non esiste");
  if (!fs::is_regular_file(genere)) return Rifiutato(percorso, "non è un file di disegno");

  const Stato prima = Guarda(file);
  if (!prima.errore && prima.lunghezza > kMassimoFile)
    return Rifiutato(percorso, "troppo grande per un disegno (" + std::to_string(prima.lunghezza >> 20) +
                                   " MB, al massimo " + std::to_string(kMassimoFile >> 20) + ")");
  std::string byte(prima.errore ? 0 : static_cast<std::size_t>(prima.lunghezza), '\0');
  std::ifstream ingresso(file, std::ios::binary);
  if (prima.errore || !ingresso)
    return Rifiutato(percorso, "il disegno non si può leggere: " + tarvel::InUtf8(tarvel::MotivoOspite()));
  ingresso.read(byte.data(), static_cast<std::streamsize>(byte.size()));
  byte.resize(static_cast<std::size_t>(ingresso.gcount()));
  if (Guarda(file) != prima) return Rifiutato(percorso, "il disegno cambia mentre viene letto", true);

  auto letto = LeggiDis(byte);
  if (const auto* rifiuto = std::get_if<ErroreDis>(&letto))
    return Rifiutato(percorso, tarvel::InUtf8(rifiuto->messaggio), rifiuto->incompleto && prima.Recente());
  return {std::move(std::get<Disegno>(letto)), {}, false};
}

Caricato CaricaAttendendo(const std::string& percorso) {
  Caricato esito = Carica(percorso);
  for (int i = 1; i < kTentativi && esito.riprova; ++i) {
    std::this_thread::sleep_for(std::chrono::milliseconds(kAttesaMs));
    esito = Carica(percorso);
  }
  return esito;
}

}  // namespace ostrel

// A host whose file calls fail on request. TARVEL_GUASTO=N or N-M: the calls of these numbers, from 1,
// fail; a write that fails has written half. Each call goes to standard error: what, which file, whether it
// went well.
#include <cstdlib>
#include <iostream>
#include <map>

#include "platform/ospite.h"

namespace {

struct Conto {
  Conto() {
    if (const char* testo = std::getenv("TARVEL_GUASTO")) {
      char* fine = nullptr;
      primo = ultimo = std::strtol(testo, &fine, 10);
      if (*fine == '-') ultimo = std::strtol(fine + 1, nullptr, 10);
    }
  }

  ~Conto() { std::cerr << "chiamate " << chiamate << '\n'; }

  long chiamate = 0, primo = 0, ultimo = 0;
};

bool gFinto = false;  // the last call was one that fails

// True when this call is one that fails.
bool Fallisce() {
  static Conto conto;
  ++conto.chiamate;
  return gFinto = conto.chiamate >= conto.primo && conto.chiamate <= conto.ultimo;
}

using tarvel::kOspiteSistema;
using tarvel::Ospite;
using tarvel::TipoVoce;
using Maniglia = Ospite::Maniglia;

std::map<Maniglia, std::string> gNomi;

const std::string& Nome(Maniglia file) {
  return gNomi.at(file);
}
const std::string& Nome(const std::string& percorso) {
  return percorso;
}

template <class Esito>
Esito Annota(const char* chiamata, const std::string& nome, Esito esito) {
  std::cerr << chiamata << ' ' << (static_cast<bool>(esito) ? "si" : "no") << ' '
            << nome.substr(nome.rfind('/') + 1) << '\n';
  return esito;
}

template <auto Chiamata, char Lettera, class File, class... Argomenti>
auto ONiente(File file, Argomenti... argomenti) -> decltype((kOspiteSistema.*Chiamata)(file, argomenti...)) {
  constexpr char kNome[] = {Lettera, '\0'};
  using Esito = decltype((kOspiteSistema.*Chiamata)(file, argomenti...));
  return Annota(kNome, Nome(file), Fallisce() ? Esito{} : (kOspiteSistema.*Chiamata)(file, argomenti...));
}

template <auto Chiamata, char Lettera, class... Argomenti>
std::optional<Maniglia> Aperto(const std::string& percorso, Argomenti... argomenti) {
  const auto file = ONiente<Chiamata, Lettera, const std::string&, Argomenti...>(percorso, argomenti...);
  if (file) gNomi[*file] = percorso;
  return file;
}

constexpr Ospite kGuasto = {
    .Genere = [](const std::string& p) { return Fallisce() ? TipoVoce::Ignota : kOspiteSistema.Genere(p); },
    .Elenco = ONiente<&Ospite::Elenco, 'e', const std::string&>,
    .ApriLettura = Aperto<&Ospite::ApriLettura, 'l'>,
    .ApriRiscrittura = Aperto<&Ospite::ApriRiscrittura, 'a'>,
    .Crea = Aperto<&Ospite::Crea, 'n', const std::string&>,
    .Leggi = ONiente<&Ospite::Leggi, '<', Maniglia, std::span<char>>,
    .Scrivi =
        [](Maniglia file, std::string_view byte) {
          const bool fallisce = Fallisce();
          return Annota(
              ">", Nome(file),
              kOspiteSistema.Scrivi(file, fallisce ? byte.substr(0, byte.size() / 2) : byte) && !fallisce);
        },
    .Svuota = ONiente<&Ospite::Svuota, 'v', Maniglia>,
    .SulDisco = ONiente<&Ospite::SulDisco, 'd', Maniglia>,
    .Chiudi =
        [](Maniglia file) {
          const bool fallisce = Fallisce();
          return Annota("c", Nome(file), kOspiteSistema.Chiudi(file) && !fallisce);
        },
    .Rinomina =
        [](const std::string& da, const std::string& a, bool sostituisci) {
          const bool riuscito = !Fallisce() && kOspiteSistema.Rinomina(da, a, sostituisci);
          return Annota(sostituisci ? "r" : "R", da, riuscito);
        },
    .NomeSulDisco = ONiente<&Ospite::NomeSulDisco, 'D', const std::string&>,
    .Togli = ONiente<&Ospite::Togli, 't', const std::string&>,
    .Motivo = [] { return gFinto ? std::make_error_code(std::errc::io_error) : kOspiteSistema.Motivo(); }};

}  // namespace

const tarvel::Ospite& tarvel::OspiteDeiFile() {
  return kGuasto;
}

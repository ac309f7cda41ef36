// A host whose file calls fail on request. TARVEL_GUASTO=N or N-M: the calls of these numbers, from 1,
// fail; a write that fails has written half. At the end the number of calls goes to standard error.
#include <cstdlib>
#include <iostream>

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

// True when this call is one that fails.
bool Fallisce() {
  static Conto conto;
  ++conto.chiamate;
  return conto.chiamate >= conto.primo && conto.chiamate <= conto.ultimo;
}

using tarvel::kOspiteSistema;
using tarvel::Ospite;
using tarvel::TipoVoce;
using Maniglia = Ospite::Maniglia;

template <auto Chiamata, class... Argomenti>
auto ONiente(Argomenti... argomenti) -> decltype((kOspiteSistema.*Chiamata)(argomenti...)) {
  if (Fallisce()) return {};
  return (kOspiteSistema.*Chiamata)(argomenti...);
}

constexpr Ospite kGuasto = {
    .Genere = [](const std::string& p) { return Fallisce() ? TipoVoce::Ignota : kOspiteSistema.Genere(p); },
    .Elenco = ONiente<&Ospite::Elenco, const std::string&>,
    .ApriLettura = ONiente<&Ospite::ApriLettura, const std::string&>,
    .ApriScrittura = ONiente<&Ospite::ApriScrittura, const std::string&>,
    .Leggi = ONiente<&Ospite::Leggi, Maniglia, std::span<char>>,
    .Scrivi =
        [](Maniglia file, std::string_view byte) {
          const bool fallisce = Fallisce();
          return kOspiteSistema.Scrivi(file, fallisce ? byte.substr(0, byte.size() / 2) : byte) && !fallisce;
        },
    .SulDisco = ONiente<&Ospite::SulDisco, Maniglia>,
    .Chiudi =
        [](Maniglia file) {
          const bool fallisce = Fallisce();
          return kOspiteSistema.Chiudi(file) && !fallisce;
        },
    .Rinomina = ONiente<&Ospite::Rinomina, const std::string&, const std::string&>,
    .Togli = ONiente<&Ospite::Togli, const std::string&>};

}  // namespace

const tarvel::Ospite& tarvel::OspiteDeiFile() {
  return kGuasto;
}

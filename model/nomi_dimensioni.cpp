#include "model/nomi_dimensioni.h"

#include <array>

#include "model/parametri.h"

namespace tarvel {
namespace {

constexpr std::array<NomiDimensione, kNumParametri> kNomi = {{
    {"altezza totale", "altezza totale, in mezzeria"},
    {"soletta inferiore", "soletta inferiore"},
    {"estremità sbalzi", "estremità degli sbalzi"},
    {"attacco sbalzi", "attacco degli sbalzi"},
    {"sommità esterna anime", "sommità esterna delle anime"},
    {"sommità interna anime", "sommità interna delle anime"},
    {"soletta fine raccordo", "soletta alla fine del raccordo"},
    {"soletta mezzeria", "soletta in mezzeria"},
    {"altezza raccordo inferiore", "raccordo inferiore"},
    {"sbalzo", "sbalzo"},
    {"da sbalzo ad anima", "dall'attacco dello sbalzo all'anima"},
    {"raccordo superiore", "raccordo superiore"},
    {"da raccordo a colmo", "dal raccordo superiore al colmo"},
    {"da colmo a mezzeria", "dal colmo alla mezzeria"},
    {"base raccordo inferiore", "raccordo inferiore"},
    {"larghezza totale", "larghezza totale"},
    {"pendenza sinistra", "dall'estremo sinistro al primo colmo"},
    {"pendenza colmo sinistra", "dal primo colmo alla mezzeria"},
    {"pendenza colmo destra", "dalla mezzeria al secondo colmo"},
    {"pendenza destra", "dal secondo colmo all'estremo destro"},
    {"inclinazione anime", "inclinazione delle anime"},
}};

}  // namespace

const NomiDimensione& Nomi(int dimensione) {
  return kNomi[static_cast<std::size_t>(dimensione)];
}

Testo DescrizioneDimensione(int dimensione) {
  const char* const gruppo = dimensione < kSbalzo             ? "altezza"
                             : dimensione < kPendenzaSinistra ? "base"
                                                              : "pendenza %";
  return std::to_string(dimensione) + ", " + gruppo + ": " + DaUtf8(Nomi(dimensione).guida);
}

}  // namespace tarvel

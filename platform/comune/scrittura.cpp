// Writing files whole.
#include <array>

#include "platform/comune/percorso.h"
#include "platform/file.h"

namespace tarvel {
namespace {

constexpr std::size_t kBloccoCopia = 1 << 16;

// Writes `a` beside its place by `riempi` and gives it its name at the end; what was written is taken
// away where that fails.
template <class Riempi>
bool Sostituisci(const Testo& a, Riempi riempi) {
  const Ospite& ospite = OspiteDeiFile();
  const auto definitivo = PercorsoHost(a), provvisorio = PercorsoHost(a + ".tmp");
  const auto aperto = definitivo && provvisorio ? ospite.ApriScrittura(*provvisorio) : std::nullopt;
  if (!aperto) return false;
  FileAperto file(*aperto);
  bool riuscito = riempi(*file) && ospite.SulDisco(*file);
  riuscito = file.Chiudi() && riuscito;
  if (riuscito && ospite.Rinomina(*provvisorio, *definitivo)) return true;
  ospite.Togli(*provvisorio);
  return false;
}

}  // namespace

void AccodaRiga(Testo& testo, std::string_view riga) {
  (testo += riga) += "\r\n";
}

EsitoScrittura ScriviFile(const Testo& percorso, std::string_view testo, bool sulDisco) {
  const Ospite& ospite = OspiteDeiFile();
  const auto host = PercorsoHost(percorso);
  const auto aperto = host ? ospite.ApriScrittura(*host) : std::nullopt;
  if (!aperto) return EsitoScrittura::NonAperto;
  FileAperto file(*aperto);
  const bool scritto = ospite.Scrivi(*file, testo) && (!sulDisco || ospite.SulDisco(*file));
  return file.Chiudi() && scritto ? EsitoScrittura::Scritto : EsitoScrittura::Incompleto;
}

bool SostituisciFile(const Testo& percorso, std::string_view testo) {
  return Sostituisci(percorso, [&](Ospite::Maniglia file) { return OspiteDeiFile().Scrivi(file, testo); });
}

bool CopiaFile(const Testo& da, const Testo& a) {
  const Ospite& ospite = OspiteDeiFile();
  const auto host = PercorsoHost(da);
  const auto aperta = host ? ospite.ApriLettura(*host) : std::nullopt;
  if (!aperta) return false;
  const FileAperto origine(*aperta);
  return Sostituisci(a, [&](Ospite::Maniglia copia) {
    std::array<char, kBloccoCopia> blocco;
    for (;;) {
      const auto letti = ospite.Leggi(*origine, blocco);
      if (!letti) return false;
      if (*letti == 0) return true;
      if (!ospite.Scrivi(copia, {blocco.data(), *letti})) return false;
    }
  });
}

TipoVoce GenereFile(const Testo& percorso) {
  const auto host = PercorsoHost(percorso);
  return host ? OspiteDeiFile().Genere(*host) : TipoVoce::Ignota;
}

}  // namespace tarvel

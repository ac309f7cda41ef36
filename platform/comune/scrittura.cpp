// The ways to the disk: beside the file and renamed, or in place.
#include "platform/scrittura.h"

#include <random>

#include "platform/comune/percorso.h"

namespace tarvel {
namespace {

// A name that nobody else uses, beside the file.
std::string Provvisorio(const std::string& file) {
  constexpr std::string_view kCifre = "0123456789abcdef";
  std::random_device caso;
  std::string nome = file + '.';
  for (int i = 0; i < 12; ++i) nome += kCifre[caso() % kCifre.size()];
  return nome + ".tmp";
}

bool Riempi(Ospite::Maniglia file, std::string_view testo, bool sulDisco) {
  return OspiteDeiFile().Scrivi(file, testo) && (!sulDisco || OspiteDeiFile().SulDisco(file));
}

EsitoScrittura InPosto(FileAperto& file, std::string_view testo, bool sulDisco) {
  if (!OspiteDeiFile().Svuota(*file)) return EsitoScrittura::NonAperto;
  const bool scritto = Riempi(*file, testo, sulDisco);
  return file.Chiudi() && scritto ? EsitoScrittura::Scritto : EsitoScrittura::Incompleto;
}

enum class Accanto {
  Riuscito,
  NonScritto,  // no room for another file
  NonAmmesso,  // no other file may be made here, or none may take the name
};

struct Sostituzione {
  std::string file, come;  // whose name it takes, whose rights
  bool sulDisco = true;
  bool sostituisci = true;
  FileAperto* aperto = nullptr;  // the file itself, where it is open: a host may not rename over it
};

// Writes another file beside this one and gives it the name; what was written is taken away where that fails.
Accanto ScriviAccanto(const Sostituzione& s, std::string_view testo) {
  const Ospite& ospite = OspiteDeiFile();
  const std::string provvisorio = Provvisorio(s.file);
  const auto creato = ospite.Crea(provvisorio, s.come);
  if (!creato) return Accanto::NonAmmesso;
  FileAperto file(*creato);
  const bool scritto = Riempi(*file, testo, s.sulDisco);
  const bool chiuso = file.Chiudi();
  const auto rinomina = [&] { return ospite.Rinomina(provvisorio, s.file, s.sostituisci); };
  if (scritto && chiuso && (rinomina() || (s.aperto != nullptr && s.aperto->Chiudi() && rinomina())))
    return !s.sulDisco || ospite.NomeSulDisco(s.file) ? Accanto::Riuscito : Accanto::NonAmmesso;
  ospite.Togli(provvisorio);
  return scritto && chiuso ? Accanto::NonAmmesso : Accanto::NonScritto;
}

bool Scrivi(const Testo& percorso, std::string_view testo, const Testo& come, bool sostituisci) {
  const auto host = PercorsoHost(percorso);
  const auto modello = come.empty() ? std::string() : PercorsoHost(come);
  return host && ScriviAccanto({.file = *host, .come = modello.value_or(""), .sostituisci = sostituisci},
                               testo) == Accanto::Riuscito;
}

}  // namespace

EsitoScrittura ScriviFile(const Testo& percorso, std::string_view testo, bool sulDisco) {
  const Ospite& ospite = OspiteDeiFile();
  const auto host = PercorsoHost(percorso);
  const TipoVoce voce = host ? ospite.Genere(*host) : TipoVoce::Ignota;
  if (voce == TipoVoce::Ignota || voce == TipoVoce::Cartella) return EsitoScrittura::NonAperto;
  if (voce != TipoVoce::Assente) {
    // Who may not write into a file may not put another in its place.
    const auto aperto = ospite.ApriRiscrittura(*host);
    if (!aperto) return EsitoScrittura::NonAperto;
    FileAperto file(*aperto);
    if (voce == TipoVoce::Altro) return InPosto(file, testo, sulDisco);
  }
  const std::string reale = PercorsoReale(*host);
  const Accanto esito = ScriviAccanto(
      {.file = reale, .come = voce == TipoVoce::File ? reale : "", .sulDisco = sulDisco}, testo);
  if (esito == Accanto::Riuscito) return EsitoScrittura::Scritto;
  const auto aperto =
      esito == Accanto::NonAmmesso && voce == TipoVoce::File ? ospite.ApriRiscrittura(*host) : std::nullopt;
  if (!aperto) return EsitoScrittura::NonAperto;
  FileAperto file(*aperto);
  return InPosto(file, testo, sulDisco);
}

bool SostituisciFile(const Testo& percorso, std::string_view testo, const Testo& come) {
  return Scrivi(percorso, testo, come, true);
}

bool CreaFile(const Testo& percorso, std::string_view testo, const Testo& come) {
  return Scrivi(percorso, testo, come, false);
}

std::optional<FileDaRiscrivere> FileDaRiscrivere::Apri(const Testo& percorso) {
  const auto host = PercorsoHost(percorso);
  if (!host || OspiteDeiFile().Genere(*host) != TipoVoce::File) return std::nullopt;
  const auto file = OspiteDeiFile().ApriRiscrittura(*host);
  if (!file) return std::nullopt;
  return FileDaRiscrivere(*host, FileAperto(*file));
}

std::optional<Testo> FileDaRiscrivere::Contenuto() {
  return file_.Resto();
}

EsitoScrittura FileDaRiscrivere::Riscrivi(std::string_view testo) {
  return InPosto(file_, testo, true);
}

bool FileDaRiscrivere::Sostituisci(std::string_view testo) {
  const std::string reale = PercorsoReale(host_);
  return ScriviAccanto({.file = reale, .come = reale, .aperto = &file_}, testo) == Accanto::Riuscito;
}

}  // namespace tarvel

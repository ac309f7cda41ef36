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

EsitoScrittura NonRiuscito(EsitoScrittura::Stato stato) {
  return {stato, MotivoOspite()};
}

// Of a file that is empty; it is closed in any case.
EsitoScrittura Riempi(FileAperto& file, std::string_view testo, bool sulDisco) {
  const Ospite& ospite = OspiteDeiFile();
  EsitoScrittura esito;
  if (!ospite.Scrivi(*file, testo) || (sulDisco && !ospite.SulDisco(*file)))
    esito = NonRiuscito(EsitoScrittura::Incompleto);
  if (!file.Chiudi() && esito) esito = NonRiuscito(EsitoScrittura::Incompleto);
  return esito;
}

EsitoScrittura InPosto(FileAperto& file, std::string_view testo, bool sulDisco) {
  if (!OspiteDeiFile().Svuota(*file)) return NonRiuscito(EsitoScrittura::NonAperto);
  return Riempi(file, testo, sulDisco);
}

struct Sostituzione {
  std::string file, come;  // whose name it takes, whose rights
  bool sulDisco = true;
  bool sostituisci = true;
  FileAperto* aperto = nullptr;  // the file itself, where it is open: a host may not rename over it
};

// Writes another file beside this one and gives it the name; what was written is taken away where that fails.
// NonAperto: no other file may be made here, or none may take the name. Incompleto: there is no room for it.
EsitoScrittura ScriviAccanto(const Sostituzione& s, std::string_view testo) {
  const Ospite& ospite = OspiteDeiFile();
  const std::string provvisorio = Provvisorio(s.file);
  const auto creato = ospite.Crea(provvisorio, s.come);
  if (!creato) return NonRiuscito(EsitoScrittura::NonAperto);
  FileAperto file(*creato);
  EsitoScrittura esito = Riempi(file, testo, s.sulDisco);
  const auto rinomina = [&] { return ospite.Rinomina(provvisorio, s.file, s.sostituisci); };
  if (esito && (rinomina() || (s.aperto != nullptr && s.aperto->Chiudi() && rinomina())))
    return !s.sulDisco || ospite.NomeSulDisco(s.file) ? esito : NonRiuscito(EsitoScrittura::NonAperto);
  if (esito) esito = NonRiuscito(EsitoScrittura::NonAperto);
  ospite.Togli(provvisorio);
  return esito;
}

// The same, for whom nothing else is left to try.
EsitoScrittura Sostituisci(const Sostituzione& s, std::string_view testo) {
  EsitoScrittura esito = ScriviAccanto(s, testo);
  if (!esito) esito.stato = EsitoScrittura::NonAperto;
  return esito;
}

EsitoScrittura Scrivi(const Testo& percorso, std::string_view testo, const Testo& come, bool sostituisci) {
  const auto host = PercorsoHost(percorso);
  if (!host) return NonRiuscito(EsitoScrittura::NonAperto);
  const auto modello = come.empty() ? std::string() : PercorsoHost(come);
  return Sostituisci({.file = *host, .come = modello.value_or(""), .sostituisci = sostituisci}, testo);
}

}  // namespace

EsitoScrittura ScriviFile(const Testo& percorso, std::string_view testo, bool sulDisco) {
  const Ospite& ospite = OspiteDeiFile();
  const auto host = PercorsoHost(percorso);
  const TipoVoce voce = host ? ospite.Genere(*host) : TipoVoce::Ignota;
  if (voce == TipoVoce::Ignota) return NonRiuscito(EsitoScrittura::NonAperto);
  if (voce != TipoVoce::Assente) {
    // Who may not write into a file may not put another in its place.
    const auto aperto = ospite.ApriRiscrittura(*host);
    if (!aperto) return NonRiuscito(EsitoScrittura::NonAperto);
    FileAperto file(*aperto);
    if (voce == TipoVoce::Altro) return InPosto(file, testo, sulDisco);
  }
  const std::string reale = PercorsoReale(*host);
  const EsitoScrittura accanto = ScriviAccanto(
      {.file = reale, .come = voce == TipoVoce::File ? reale : "", .sulDisco = sulDisco}, testo);
  if (accanto) return {};
  const bool daProvare = accanto == EsitoScrittura::NonAperto && voce == TipoVoce::File;
  const auto aperto = daProvare ? ospite.ApriRiscrittura(*host) : std::nullopt;
  if (!aperto) return {EsitoScrittura::NonAperto, accanto.motivo};
  FileAperto file(*aperto);
  return InPosto(file, testo, sulDisco);
}

EsitoScrittura SostituisciFile(const Testo& percorso, std::string_view testo, const Testo& come) {
  return Scrivi(percorso, testo, come, true);
}

EsitoScrittura CreaFile(const Testo& percorso, std::string_view testo, const Testo& come) {
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

EsitoScrittura FileDaRiscrivere::Sostituisci(std::string_view testo) {
  const std::string reale = PercorsoReale(host_);
  return tarvel::Sostituisci({.file = reale, .come = reale, .aperto = &file_}, testo);
}

}  // namespace tarvel

// Start-up: the argument of the parent application, then the two settings files. Any inconsistency
// ends the program; there is no fallback folder.
#include "app/cartelle.h"

#include "base/errore.h"
#include "platform/comune/percorso.h"
#include "platform/desktop.h"
#include "platform/file.h"

namespace tarvel {

Testo DirRoot;
Testo NomeLavoro;
Testo DirLavori;
Testo DirProgra;
Testo DirDriver;
Testo DirCustom;

namespace {

// While debugging, an argument to use in place of the command line.
constexpr std::string_view kArgomentoDebug;

constexpr std::string_view kChiave = "|diroot=";
constexpr std::string_view kLavori = "lavori\\";

[[noreturn]] void Rifiuta(const Testo& messaggio, Icona icona) {
  MostraMessaggio(messaggio, "ERRORE", icona);
  TerminaProgramma(1);
}

[[noreturn]] void RifiutaFile(const Testo& file) {
  Rifiuta("Errore: file " + DirRoot + file + " errato o mancante", Icona::Esclamazione);
}

// The root folder, in lower case.
Testo RadiceDa(const Testo& argomento) {
  const Testo riga = Minuscole(argomento);
  const auto chiave = riga.find(kChiave);
  if (SenzaBlanchi(riga).empty() || chiave == Testo::npos)
    Rifiuta("Avvio del programma: argomento non presente", Icona::Stop);
  const auto inizio = chiave + kChiave.size();
  const auto fine = riga.find('|', inizio);
  if (fine == Testo::npos)
    throw ErroreFatale(TipoErrore::Argomento, "argomento senza la barra di chiusura dopo diroot", riga);
  const Testo radice(SenzaBlanchi(std::string_view(argomento).substr(inizio, fine - inizio)));
  RicordaGrafia(radice);
  return Minuscole(radice);
}

// What `leggi` takes from the file; nothing when the file is missing, empty or unreadable.
template <class Lettura>
std::optional<Testo> Leggi(const Testo& percorso, Lettura leggi) {
  try {
    auto file = FileInLettura::Apri(percorso);
    if (!file) return std::nullopt;
    return Testo(leggi(*file));
  } catch (const ErroreFatale&) {
    return std::nullopt;
  }
}

}  // namespace

void InizializzaDirettori() {
  Testo riga = RigaComando();
  if (!kArgomentoDebug.empty()) {
    riga = kArgomentoDebug;
    MostraMessaggio("Versione di debug ***", kTitoloProgramma, Icona::Informazione);
  }
  DirRoot = RadiceDa(riga);

  const Testo dirlav = "\\impostazioni\\dirlav";
  const auto voce = Leggi(DirRoot + dirlav, [](FileInLettura& f) { return f.LeggiVoceTesto(); });
  if (!voce) RifiutaFile(dirlav);
  RicordaGrafia(Testo(SenzaBlanchi(*voce)));
  Testo lavori(SenzaBlanchi(Minuscole(*voce)));
  if (lavori.size() < 9) RifiutaFile(dirlav);
  if (!lavori.ends_with('\\')) lavori += '\\';
  if (!lavori.ends_with(kLavori))
    Rifiuta("Errore: il direttorio dei lavori deve terminare con < \\lavori >", Icona::Esclamazione);
  if (DirRoot.size() < 3) RifiutaFile(dirlav);
  if (DirRoot.ends_with('\\')) DirRoot.pop_back();

  const Testo lavoro = "\\impostazioni\\lavoro";
  const auto nome = Leggi(DirRoot + lavoro, [](FileInLettura& f) { return f.LeggiRiga(); });
  if (!nome || SenzaBlanchi(*nome).size() != 6) RifiutaFile(lavoro);
  NomeLavoro = SenzaBlanchi(*nome);

  DirLavori = lavori + NomeLavoro;
  DirProgra = DirRoot + "\\progra";
  DirDriver = DirRoot + "\\driver";
  DirCustom = DirRoot + "\\custom";
}

}  // namespace tarvel

// Start-up: the argument of the parent application, then the two settings files. Any inconsistency
// ends the program; there is no fallback folder.
#include "lavoro/cartelle.h"

#include "base/errore.h"
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

}  // namespace

void InizializzaDirettori() {
  Testo riga = RigaComando();
  if (!kArgomentoDebug.empty()) {
    riga = kArgomentoDebug;
    MostraMessaggio("Versione di debug ***", kTitoloProgramma, Icona::Informazione);
  }
  DirRoot = RadiceDa(riga);

  const Testo dirlav = "\\impostazioni\\dirlav";
  auto fileDirlav = FileInLettura::Apri(DirRoot + dirlav);
  const auto voce = fileDirlav ? fileDirlav->ProssimaVoceTesto() : std::nullopt;
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
  auto fileLavoro = FileInLettura::Apri(DirRoot + lavoro);
  const auto nome = fileLavoro ? fileLavoro->ProssimaRiga() : std::nullopt;
  if (!nome || SenzaBlanchi(*nome).size() != 6) RifiutaFile(lavoro);
  NomeLavoro = SenzaBlanchi(*nome);

  DirLavori = lavori + NomeLavoro;
  DirProgra = DirRoot + "\\progra";
  DirDriver = DirRoot + "\\driver";
  DirCustom = DirRoot + "\\custom";
}

}  // namespace tarvel

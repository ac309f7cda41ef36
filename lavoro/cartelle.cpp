// The argument of the parent application, then the two settings files. Whatever is wrong in them stops
// the start; there is no fallback folder.
#include "lavoro/cartelle.h"

#include "platform/file.h"

namespace tarvel {

namespace {

constexpr std::string_view kChiave = "|diroot=";
constexpr std::string_view kLavori = "lavori\\";

// The root folder, in lower case; nothing without the key.
std::optional<Testo> RadiceDa(const Testo& argomento) {
  const auto chiave = Minuscole(argomento).find(kChiave);
  if (chiave == Testo::npos) return std::nullopt;
  const auto inizio = chiave + kChiave.size();
  const auto fine = argomento.find('|', inizio);
  if (fine == Testo::npos)
    throw ErroreFatale(TipoErrore::Argomento, "argomento senza la barra di chiusura dopo diroot",
                       Minuscole(argomento));
  const Testo radice(SenzaBlanchi(std::string_view(argomento).substr(inizio, fine - inizio)));
  RicordaGrafia(radice);
  return Minuscole(radice);
}

}  // namespace

std::optional<Guasto> InizializzaDirettori(const Testo& argomento) {
  const auto errato = [](const Testo& file) {
    return Guasto{TipoErrore::File, "Errore: file " + DirRoot + file + " errato o mancante"};
  };
  const auto radice = RadiceDa(argomento);
  if (!radice) return Guasto{TipoErrore::Argomento, "Avvio del programma: argomento non presente"};
  DirRoot = *radice;

  const Testo dirlav = "\\impostazioni\\dirlav";
  auto fileDirlav = FileInLettura::Apri(DirRoot + dirlav);
  const auto voce = fileDirlav ? fileDirlav->ProssimaVoceTesto() : std::nullopt;
  if (!voce) return errato(dirlav);
  RicordaGrafia(Testo(SenzaBlanchi(*voce)));
  Testo lavori(SenzaBlanchi(Minuscole(*voce)));
  if (lavori.size() < 9) return errato(dirlav);
  if (!lavori.ends_with('\\')) lavori += '\\';
  if (!lavori.ends_with(kLavori))
    return Guasto{TipoErrore::File, "Errore: il direttorio dei lavori deve terminare con < \\lavori >"};
  if (DirRoot.size() < 3) return errato(dirlav);
  if (DirRoot.ends_with('\\')) DirRoot.pop_back();

  const Testo lavoro = "\\impostazioni\\lavoro";
  auto fileLavoro = FileInLettura::Apri(DirRoot + lavoro);
  const auto nome = fileLavoro ? fileLavoro->ProssimaRiga() : std::nullopt;
  if (!nome || SenzaBlanchi(*nome).size() != 6) return errato(lavoro);
  NomeLavoro = SenzaBlanchi(*nome);

  DirLavori = lavori + NomeLavoro;
  DirProgra = DirRoot + "\\progra";
  DirDriver = DirRoot + "\\driver";
  DirCustom = DirRoot + "\\custom";
  return {};
}

}  // namespace tarvel

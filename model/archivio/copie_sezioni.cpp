// A copy is recognised by its content; two sections are equal when their lines in a file are.
#include "model/archivio/copie_sezioni.h"

#include <algorithm>
#include <functional>

#include "base/errore.h"
#include "base/numeri.h"
#include "model/archivio/righe_sezione.h"
#include "model/tabella_sezioni.h"
#include "platform/scrittura.h"

namespace tarvel {
namespace {

// Calls `guarda` with each section of a file and with the lines that would be written for it. False when the
// file cannot be read to its end.
bool Scorri(const Testo& percorso, const std::function<void(const RecordSezione&, const Testo&)>& guarda) {
  auto file = FileInLettura::Apri(percorso);
  if (!file) return false;
  try {
    for (int n = LeggiConteggio(*file, kMaxSezioni, "sezioni"); n > 0; --n) {
      RecordSezione r;
      LeggiSezione(*file, r);
      Testo righe;
      AccodaSezione(righe, r);
      guarda(r, righe);
    }
    file->PretendiFine();
    return true;
  } catch (const ErroreFatale&) {
    return false;
  }
}

// Whether a file holds the sections, to the letter or as they would be written after reading the file: a
// figure that is cut twice may lose a hundredth twice.
bool Contiene(const Testo& percorso, std::span<const Testo> sezioni) {
  Testo tutto = "\r\n" + LeggiTutto(percorso).value_or("");
  Scorri(percorso, [&](const RecordSezione&, const Testo& righe) { tutto += "\r\n" + righe; });
  return std::all_of(sezioni.begin(), sezioni.end(),
                     [&](const Testo& s) { return tutto.find("\r\n" + s) != Testo::npos; });
}

}  // namespace

Testo ComponiFileSezioni(std::span<const Testo> sezioni) {
  Testo testo = FormatoNumero(static_cast<int>(sezioni.size())) + "\r\n";
  for (const Testo& sezione : sezioni) testo += sezione;
  return testo;
}

std::vector<Testo> RigheSezioni() {
  std::vector<Testo> sezioni;
  for (int i = 1; i <= NumeroSezioni; ++i)
    Durante([&] { return SullaSezione("salvataggio", TabellaSezioni[i].Nome); },
            [&] { AccodaSezione(sezioni.emplace_back(), TabellaSezioni[i]); });
  return sezioni;
}

std::vector<Testo> SezioniScrivibili() {
  std::vector<Testo> sezioni;
  for (int i = 1; i <= NumeroSezioni; ++i) {
    Testo righe;
    try {
      AccodaSezione(righe, TabellaSezioni[i]);
    } catch (const ErroreFatale&) {
      continue;
    }
    sezioni.push_back(std::move(righe));
  }
  return sezioni;
}

Testo Conserva(const Testo& testo, const Testo& file, const char* coda) {
  // A name that seems free may be a dangling link. After three failures the folder itself takes no file.
  constexpr int kProve = 3;
  for (int n = 1, falliti = 0; falliti < kProve; ++n) {
    Testo nome = file + coda + (n == 1 ? Testo() : std::to_string(n));
    const TipoVoce voce = GenereFile(nome);
    if (voce == TipoVoce::Ignota) break;
    const bool libero = voce == TipoVoce::Assente;
    if (libero ? CreaFile(nome, testo, file) == EsitoScrittura::Scritto : LeggiTutto(nome) == testo)
      return nome;
    if (libero) ++falliti;
  }
  return {};
}

Testo ConservaSezioni(const Testo& file, bool intero, std::span<const Testo> sezioni) {
  if (intero && Contiene(file, sezioni)) return {};
  return Conserva(ComponiFileSezioni(sezioni), file, ".salvataggio");
}

Confronto ConfrontaSezioni(const Testo& altro, std::span<const Testo> sezioni) {
  const Testo tutto = "\r\n" + LeggiTutto(altro).value_or("");
  Confronto esito;
  esito.leggibile = Scorri(altro, [&](const RecordSezione& r, const Testo& righe) {
    const int i = CercaSezione(r.Nome);
    if (i == 0)
      ++esito.mancanti;
    else if (const Testo& nostra = sezioni[static_cast<std::size_t>(i - 1)];
             righe != nostra && tutto.find("\r\n" + nostra) == Testo::npos)
      ++esito.diverse;
  });
  return esito;
}

}  // namespace tarvel

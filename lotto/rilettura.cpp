#include "lotto/rilettura.h"

#include <algorithm>
#include <optional>

#include "base/errore.h"
#include "model/archivio/file_sezioni.h"
#include "model/archivio/righe_sezione.h"
#include "model/geometria.h"
#include "model/parametri.h"
#include "model/tabella_sezioni.h"
#include "model/verifica.h"
#include "platform/file.h"

namespace tarvel::lotto {
namespace {

using Posto = FileInLettura::Posto;

FileInLettura Apri(const Testo& percorso) {
  Testo motivo;
  auto file = FileInLettura::Apri(percorso, &motivo);
  if (!file) throw ErroreFatale(TipoErrore::File, "File " + percorso + " non trovato: " + motivo);
  return std::move(*file);
}

// The lines of the file, up to the first that cannot be read.
std::vector<Testo> Righe(const Testo& percorso) {
  auto file = Apri(percorso);
  std::vector<Testo> righe;
  while (const auto riga = file.ProssimaRiga()) righe.emplace_back(*riga);
  return righe;
}

// The text between two places. Where it ends inside a line it is given a line end there, so that each part
// of that line still has its own items.
Testo Tra(const std::vector<Testo>& righe, const Posto& da, const Posto& a) {
  Testo testo;
  for (int n = da.riga; n <= a.riga; ++n) {
    if (n == a.riga && a.colonna == 0) break;
    if (static_cast<std::size_t>(n) > righe.size())
      throw ErroreFatale(TipoErrore::File, "il file cambia mentre viene letto");
    std::string_view riga = righe[static_cast<std::size_t>(n - 1)];
    if (n == a.riga) {
      riga = riga.substr(0, a.colonna);
      if (riga.ends_with(',')) riga.remove_suffix(1);  // the one between two items
    }
    if (n == da.riga) riga.remove_prefix(std::min(da.colonna, riga.size()));
    AccodaRiga(testo, riga);
  }
  return testo;
}

// The first line from `da` on that is not blank; nothing when all the rest is.
std::optional<int> PrimaRigaPiena(const std::vector<Testo>& righe, Posto da) {
  for (auto n = static_cast<std::size_t>(da.riga - 1); n < righe.size(); ++n, da.colonna = 0)
    if (righe[n].find_first_not_of(" \t\x1A", da.colonna) != Testo::npos) return static_cast<int>(n + 1);
  return std::nullopt;
}

struct Lettura {
  std::vector<Riletta> sezioni;
  std::vector<Posto> posti;  // where each section begins, and where the last one ends
  std::optional<Intero16> dette;
  Testo guasto;
};

// Reads sections up to the end of the file or its first fault, even if the first line tells fewer.
Lettura LeggiTutte(const Testo& percorso, const std::vector<Testo>& righe) {
  Lettura l;
  auto file = Apri(percorso);
  const auto allaRiga = [&](int riga) { return " (" + percorso + ", riga " + std::to_string(riga) + ")"; };
  try {
    l.dette = LeggiConteggio(file, kMaxSezioni, "sezioni");
  } catch (const ErroreFatale& errore) {
    l.guasto = errore.Messaggio();
  }
  const auto lette = [&] { return static_cast<int>(l.sezioni.size()); };
  for (;;) {
    l.posti.push_back(file.ProssimoPosto());
    const bool contata = l.dette && lette() < *l.dette;
    const auto piena = PrimaRigaPiena(righe, l.posti.back());
    if (!contata && !piena) break;
    Riletta riletta;
    Testo guasto;
    try {
      LeggiSezione(file, riletta.sezione.record);
    } catch (const ErroreFatale& errore) {
      guasto = errore.Messaggio();
    }
    // Stray figures can be read as a section too, but as one without an outline.
    const bool sezione = guasto.empty() && lette() < kMaxSezioni && riletta.sezione.record.NumPoligoni > 0;
    if (!contata && !sezione) guasto = "righe in più dopo l'ultima sezione"_t + allaRiga(*piena);
    if (!guasto.empty()) {
      if (l.guasto.empty()) l.guasto = guasto;
      break;
    }
    l.sezioni.push_back(std::move(riletta));
  }
  if (l.guasto.empty() && lette() != *l.dette) l.guasto = "il conteggio è sbagliato"_t + allaRiga(1);
  return l;
}

// When a section has lost a line, its reading goes on into the next section and ends inside a line. That
// section and those after it are not taken.
void LasciaDaQuellaSpezzata(Lettura& l) {
  std::size_t intere = 0;
  while (intere < l.sezioni.size() && l.posti[intere].colonna == 0 && l.posti[intere + 1].colonna == 0)
    ++intere;
  l.sezioni.resize(intere);
  l.posti.resize(intere + 1);
}

Testo Resoconto(const Lettura& l, const std::vector<Testo>& righe) {
  Testo testo = l.guasto + ": sezioni prese " + std::to_string(l.sezioni.size());
  if (l.dette) testo += ", la prima riga ne dice " + std::to_string(*l.dette);
  if (!l.sezioni.empty()) testo += "; l'ultima è \""_t + l.sezioni.back().sezione.record.Nome + '"';
  if (const auto resto = PrimaRigaPiena(righe, l.posti.back()))
    testo += ", il resto comincia alla riga " + std::to_string(*resto);
  return testo;
}

// Takes away one section for each name: the first, which the program's own look-up finds too.
void Togli(Rilettura& rilettura, const Richieste& richieste) {
  for (const std::string& nome : richieste.senza) {
    const auto sua = std::find_if(rilettura.sezioni.begin(), rilettura.sezioni.end(),
                                  [&](const Riletta& r) { return InUtf8(r.sezione.record.Nome) == nome; });
    if (sua == rilettura.sezioni.end())
      throw ErroreFatale(TipoErrore::Argomento,
                         "--senza: in " + richieste.da + " non c'è la sezione \""_t + DaUtf8(nome) + '"');
    rilettura.righe.erase(rilettura.righe.begin() + (sua - rilettura.sezioni.begin()));
    rilettura.sezioni.erase(sua);
  }
}

void Riporta(Riletta& r) {
  try {
    const auto verifica = [&] { return VerificaSezione(r.sezione.record); };
    const auto p =
        Durante([&] { return SullaSezione("lettura", r.sezione.record.Nome); }, verifica, kNonCassone);
    if (p)
      r.sezione.p = *p;
    else
      r.motivo = kSezioneNonValida;
  } catch (const ErroreFatale& errore) {
    r.motivo = errore.Messaggio();
  }
}

}  // namespace

Rilettura Rileggi(const Richieste& richieste) {
  if (!richieste.finDoveSiLegge) {
    // What the program refuses at its start is refused in its words.
    FileSezioni = richieste.da;
    if (const auto guasto = LeggiFileSezioni()) throw ErroreFatale(guasto->tipo, guasto->ConMotivo());
  }
  const std::vector<Testo> righe = Righe(richieste.da);
  Lettura l = LeggiTutte(richieste.da, righe);
  Rilettura rilettura;
  if (!l.guasto.empty()) {
    LasciaDaQuellaSpezzata(l);
    rilettura.lasciato = Resoconto(l, righe);
  }
  for (std::size_t i = 0; i < l.sezioni.size(); ++i)
    rilettura.righe.push_back(Tra(righe, l.posti[i], l.posti[i + 1]));
  rilettura.sezioni = std::move(l.sezioni);
  Togli(rilettura, richieste);
  for (Riletta& riletta : rilettura.sezioni) Riporta(riletta);
  return rilettura;
}

}  // namespace tarvel::lotto

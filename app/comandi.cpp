// The main form's commands on sections: calculate, read, save, switch the section file.
#include "app/form_sez.h"
#include "app/genera_disegno.h"
#include "app/salvataggio.h"
#include "app/tarvel1.h"
#include "base/errore.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "model/archivio/file_sezioni.h"
#include "model/geometria.h"
#include "model/tabella_sezioni.h"
#include "model/verifica.h"
#include "platform/desktop.h"
#include "properties/calcolo/caratteristiche.h"

namespace tarvel {
namespace {

bool Conferma(const Testo& domanda) {
  return MostraMessaggio(domanda, "ATTENZIONE", Icona::Esclamazione, Bottoni::SiNo) == Risposta::Si;
}

void Avverti(const Testo& testo) {
  MostraMessaggio(testo, "ATTENZIONE", Icona::Esclamazione);
}

// Adds a section with the outline of the boxes. It counts only once it has the outline, so that a fatal error
// finds whole sections to write.
Intero16 AggiungiSezione(const Testo& nome) {
  const Intero16 posto = NumeroSezioni + 1;
  RecordSezione& nuova = TabellaSezioni[posto];
  RifaiContorno(nuova, ParametriSezione);
  nuova.Nome = nome;
  return NumeroSezioni = posto;
}

// For a file that another program has changed since it was read here.
Testo DettoDiAltri(const EsitoSezioni& esito) {
  const auto [leggibile, mancanti, diverse] = esito.confronto;
  Testo testo = "Un altro programma ha cambiato il file " + FileSezioni +
                " dopo che era stato letto o salvato qui.\nCom'era è conservato in "_t + esito.altro + ".\n";
  if (!leggibile) {
    testo += "Non si legge come file di sezioni.";
    return esito.copia.empty() ? testo
                               : testo + "\nLa copia che ne restava è conservata in "_t + esito.copia + ".";
  }
  return testo + "Sue sezioni che qui non ci sono: " + std::to_string(mancanti) +
         "; con lo stesso nome, ma diverse: " + std::to_string(diverse) + ".";
}

// Writes the table and tells the user of what went wrong or was found.
void ScriviTabella() {
  const EsitoSezioni esito = ScriviFileSezioni();
  if (!esito.altro.empty()) Avverti(DettoDiAltri(esito));
  if (esito.scritte) return;
  Testo testo = "Problemi nella scrittura del file " + FileSezioni;
  for (const Testo& riga : {esito.ostacolo, ConservaNonSalvate()})
    if (!riga.empty()) testo += "\n" + riga;
  MostraMessaggio(testo, "ERRORE", Icona::Stop);
}

}  // namespace

void tarvel1::Calcolo_Click() {
  const Testo& nomeSezione = nome.testo;
  const auto calcola = [&] {
    const Intero16 i = CercaSezione(nomeSezione);
    if (i != 0) {
      // The stored outline stays, whatever the boxes say: a section that is looked up and recalculated keeps
      // its shape. Saving and the preview rebuild it. That is wanted.
      CalcolaCaratteristiche(TabellaSezioni[i]);
      SezioneCorrente = i;
    } else {
      SezioneCorrente = AggiungiSezione(nomeSezione);
      CalcolaCaratteristiche(TabellaSezioni[SezioneCorrente]);
    }
  };
  Durante([&] { return SullaSezione("calcolo", nomeSezione); }, calcola, kNonCassone);
  SezioneCalcolata = true;
  SezioneSalvata = false;
  MostraMessaggio("Calcolo eseguito", "INFORMAZIONE", Icona::Informazione);
}

void tarvel1::Command1_Click() {
  if (nome.testo.empty()) return Avverti("Nome sezione non valido");
  int i = CercaSezione(nome.testo);
  if (i == 0) {
    Avverti("Sezione non esistente");
    FormSez elenco;
    MostraFormModale(elenco);
    i = SezioneScelta;
  }
  if (i != 0) RichiamaSezione(i);
}

// Brings a stored section back into the boxes; a section of another shape is refused.
void tarvel1::RichiamaSezione(int i) {
  SezioneCalcolata = false;
  const RecordSezione& r = TabellaSezioni[i];
  const auto verifica = [&] { return VerificaSezione(r); };
  const auto dimensioni = Durante([&] { return SullaSezione("lettura", r.Nome); }, verifica, kNonCassone);
  if (!dimensioni) return Avverti(kSezioneNonValida);
  ParametriSezione = *dimensioni;
  SezioneCorrente = i;
  AggiornaTextParametri();
  ImpostaTesto(nome, Testo(SenzaBlanchi(r.Nome)));
  SezioneCalcolata = true;
}

void tarvel1::Command2_Click() {
  SalvaSezione();
}

void tarvel1::SalvaSezione() {
  const Testo s = nome.testo;
  const Intero16 i = CercaSezione(s);
  if (i >= 1 && i <= NumeroSezioniFile && !Conferma("Sezione già esistente. Sostituirla?"_t)) return;
  if (!SezioneCalcolata && !Conferma("Sezione non calcolata. Salvare comunque?")) return;

  // A calculated section with an unknown name takes the last slot under that name. That is wanted.
  const auto aggiorna = [&] {
    if (i == 0 && !SezioneCalcolata) return AggiungiSezione(s);
    const Intero16 k = i != 0 ? i : NumeroSezioni;
    RifaiContorno(TabellaSezioni[k], ParametriSezione);
    TabellaSezioni[k].Nome = s;
    return k;
  };
  SezioneCorrente = Durante([&] { return SullaSezione("salvataggio", s); }, aggiorna, kNonCassone);

  SezioneSalvata = false;  // a fatal error in ScriviTabella is to find unsaved sections
  ScriviTabella();
  SezioneSalvata = true;
  MostraMessaggio("File salvato", "INFORMAZIONE", Icona::Informazione);
  if (s.starts_with(PrefissoNome)) ++NumeroProposto;

  NomeFileDisegno = DisegnoDellaSezione(s);
  GeneraDisegno(ModoAvviso::Nessuno);
  NomeFileDisegno = kDisegnoTemporaneo;
}

void tarvel1::Command3_Click() {
  const Testo fileLavoro = DirLavori + "\\sezio_ut";
  const bool delLavoro = FileSezioni != fileLavoro;
  const Testo file = delLavoro ? fileLavoro : DirCustom + "\\sezio_ut";
  PrefissoNome = delLavoro ? "U_PO_" : "G_PO_";
  ImpostaTesto(nome, NormalizzaNome(nome.testo, delLavoro ? "U_" : "G_", delLavoro ? "G_" : "U_"));
  ImpostaTesto(nomute, file);
  if (const auto guasto = CambiaFileSezioni(file)) MostraMessaggio(guasto->testo, "ERRORE", Icona::Stop);
}

}  // namespace tarvel

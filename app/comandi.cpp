// The main form's commands on sections: calculate, read, save, switch the section file.
#include "app/form_sez.h"
#include "app/salvataggio.h"
#include "app/tarvel1.h"
#include "base/errore.h"
#include "drawing/disegno_sezione.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "model/file_sezioni.h"
#include "model/geometria.h"
#include "model/tabella_sezioni.h"
#include "model/verifica.h"
#include "platform/desktop.h"
#include "properties/caratteristiche.h"

namespace tarvel {
namespace {

bool Conferma(const Testo& domanda) {
  return MostraMessaggio(domanda, "ATTENZIONE", Icona::Esclamazione, Bottoni::SiNo) == Risposta::Si;
}

void Avverti(const Testo& testo) {
  MostraMessaggio(testo, "ATTENZIONE", Icona::Esclamazione);
}

}  // namespace

void tarvel1::Calcolo_Click() {
  const Testo& nomeSezione = nome.testo;
  const auto calcola = [&] {
    const Intero16 i = CercaSezione(nomeSezione);
    if (i != 0) {
      // The outline stays as it was stored, whatever the boxes say: a section that is only looked up and
      // recalculated never changes shape. Saving and the preview rebuild it.
      CalcolaCaratteristiche(TabellaSezioni[i]);
      SezioneCorrente = i;
    } else {
      SezioneCorrente = ++NumeroSezioni;
      RecordSezione& nuova = TabellaSezioni[NumeroSezioni];
      Durante("contorno", [&] { CostruisciGeometria(nuova, ParametriSezione); });
      nuova.Nome = nomeSezione;
      CalcolaCaratteristiche(nuova);
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

// Brings a stored section back into the boxes, if its shape is this program's.
void tarvel1::RichiamaSezione(int i) {
  SezioneCalcolata = false;
  const RecordSezione& r = TabellaSezioni[i];
  const auto verifica = [&] { return VerificaSezione(r); };
  if (!Durante([&] { return SullaSezione("lettura", r.Nome); }, verifica, kNonCassone)) return;
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

  // A calculated section has its slot already, the last one: an unknown name renames it.
  if (i == 0 && !SezioneCalcolata) ++NumeroSezioni;
  const Intero16 k = i != 0 ? i : NumeroSezioni;
  const auto aggiorna = [&] {
    RecordSezione& r = TabellaSezioni[k];
    Durante("contorno", [&] { CostruisciGeometria(r, ParametriSezione); });
    r.Nome = s;
  };
  Durante([&] { return SullaSezione("salvataggio", s); }, aggiorna, kNonCassone);
  SezioneCorrente = k;

  ScriviFileSezioni();
  SezioneSalvata = true;
  MostraMessaggio("File salvato", "INFORMAZIONE", Icona::Informazione);
  if (s.starts_with(PrefissoNome)) ++NumeroProposto;

  NomeFileDisegno = DisegnoDellaSezione(s);
  GeneraDisegno(disegno::ModoAvviso::Nessuno);
  NomeFileDisegno = kDisegnoTemporaneo;
}

void tarvel1::Command3_Click() {
  MettiDaParteSezioni();
  const Testo fileLavoro = DirLavori + "\\sezio_ut";
  if (FileSezioni != fileLavoro) {
    FileSezioni = fileLavoro;
    PrefissoNome = "U_PO_";
    ImpostaTesto(nome, NormalizzaNome(nome.testo, "U_", "G_"));
  } else {
    FileSezioni = DirCustom + "\\sezio_ut";
    PrefissoNome = "G_PO_";
    ImpostaTesto(nome, NormalizzaNome(nome.testo, "G_", "U_"));
  }
  ImpostaTesto(nomute, FileSezioni);
  LeggiFileSezioni(true);
  LasciaSezioniDaParte();
}

}  // namespace tarvel

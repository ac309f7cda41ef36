// Description, load and unload of the main form; the commands on sections stand in comandi.cpp.
#include "app/tarvel1.h"

#include "app/form_opt.h"
#include "app/form_sez.h"
#include "app/genera_disegno.h"
#include "app/salvataggio.h"
#include "app/schema.h"
#include "base/numeri.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "model/archivio/file_sezioni.h"
#include "model/nomi_dimensioni.h"
#include "model/tabella_sezioni.h"
#include "platform/desktop.h"
#include "preview/anteprima.h"

namespace tarvel {
namespace {

constexpr Colore kBluMarino{0, 0, 128};

// While debugging, an argument in place of the command line's.
constexpr std::string_view kArgomentoDebug;

constexpr char kNota[] =
    "La numerazione dei TEXT è fatta numerando prima quelli relativi alle altezze (scritta nera), poi "
    "quelli relativi alle basi (scritta blue) ed infine quelli relativi alle pendenze (scritta verde)";

// A fault in the folders ends the program.
void TrovaCartelle() {
  const bool debug = !kArgomentoDebug.empty();
  if (debug) MostraMessaggio("Versione di debug ***", kTitoloProgramma, Icona::Informazione);
  const auto guasto = InizializzaDirettori(debug ? Testo(kArgomentoDebug) : RigaComando());
  if (!guasto) return;
  const bool senzaArgomento = guasto->tipo == TipoErrore::Argomento;
  MostraMessaggio(guasto->testo, "ERRORE", senzaArgomento ? Icona::Stop : Icona::Esclamazione);
  TerminaProgramma(1);
}

}  // namespace

Form& FormPrincipale() {
  static tarvel1 form;
  return form;
}

tarvel1::tarvel1() {
  Form::nome = "tarvel1";
  titolo = kTitoloProgramma;
  larghezza = 9435;
  altezza = 4785;
  linee = LineeSchema();

  for (const CasellaSchema& voce : CaselleSchema()) {
    const int i = voce.dimensione;
    Controllo& casella = Text1[static_cast<std::size_t>(i)];
    casella = NuovoControllo(TipoControllo::Casella, "Text1(" + std::to_string(i) + ")",
                             {voce.sinistra, voce.alto, 396, 216}, "1234");
    casella.coloreTesto = voce.colore;
    casella.carattere.punti = 6;
    casella.descrizione = DescrizioneDimensione(i);
    casella.tasto = [this, i](int codice) { Text1_KeyPress(i, codice); };
    casella.fuocoPerso = [this, i] { Text1_LostFocus(i); };
    controlli.push_back(&casella);
  }

  nome = NuovoControllo(TipoControllo::Casella, "nome", {7320, 3960, 2004, 288});
  nome.descrizione = "nome della sezione";
  nome.tasto = [this](int codice) { nome_KeyPress(codice); };
  nome.fuocoPerso = [this] { nome_LostFocus(); };
  nomute = NuovoControllo(TipoControllo::Etichetta, "nomute", {1524, 4404, 2460, 156});
  nomute.coloreTesto = kBluMarino;
  nomute.carattere.grassetto = true;
  Label1 = NuovoControllo(TipoControllo::Etichetta, "Label1", {8256, 564, 1116, 1980}, DaUtf8(kNota));
  Label2 = NuovoControllo(TipoControllo::Etichetta, "Label2", {7296, 3768, 912, 156}, "Nome sezione:");

  controlli.push_back(&nome);
  const auto aggiungi = [this](Controllo& bottone, const char* chiamato, const char* testo, Rettangolo posto,
                               void (tarvel1::*click)()) {
    bottone = NuovoControllo(TipoControllo::Bottone, chiamato, posto, testo);
    bottone.click = [this, click] { (this->*click)(); };
    controlli.push_back(&bottone);
  };
  aggiungi(Command1, "Command1", "Leggi", {7320, 4320, 972, 300}, &tarvel1::Command1_Click);
  aggiungi(Command2, "Command2", "Salva", {8352, 4320, 972, 300}, &tarvel1::Command2_Click);
  aggiungi(Calcolo, "Calcolo", "Calcola", {8352, 3312, 972, 300}, &tarvel1::Calcolo_Click);
  aggiungi(Command4, "Command4", "Anteprima", {8352, 2928, 972, 300}, &tarvel1::Command4_Click);
  aggiungi(Command6, "Command6", "Opzioni DIS", {8352, 2532, 972, 300}, &tarvel1::Command6_Click);
  aggiungi(Command7, "Command7", "Calcolo Multiplo", {5448, 4368, 1488, 240}, &tarvel1::Command7_Click);
  aggiungi(Command3, "Command3", "File SEZIO_UT:", {84, 4332, 1332, 300}, &tarvel1::Command3_Click);
  aggiungi(Command5, "Command5", "Chiudi", {8352, 144, 972, 300}, &tarvel1::Command5_Click);
  for (Controllo* etichetta : {&nomute, &Label1, &Label2}) controlli.push_back(etichetta);
}

void tarvel1::Form_Load() {
  SezioneSalvata = true;
  ChiusuraEseguita_ = false;
  NumeroProposto = 1;
  VerticiPoligono = kVerticiCassone;
  SezioneCorrente = 1;
  PrefissoNome = "U_PO_";
  PreparaSalvataggio();
  TrovaCartelle();
  FileSezioni = DirLavori + "\\sezio_ut";
  ImpostaTesto(nomute, FileSezioni);
  NomeFileDisegno = kDisegnoTemporaneo;
  FormOpt::RileggiOpzioni();
  LeggiDefault();
  ImpostaTesto(nome, ProponiNome(NumeroProposto));
  AggiornaTextParametri();
  static_cast<void>(LeggiFileSezioni());  // a job without sections begins with none
  CaricaForm(FormOpt::Unica());
}

void tarvel1::Form_Unload() {
  if (!SezioneSalvata && MostraMessaggio("Sezione non salvata. Salvare?", "INFORMAZIONE", Icona::Informazione,
                                         Bottoni::SiNo) == Risposta::Si)
    SalvaSezione();
  if (!ChiusuraEseguita_) ChiudiVisualizzatore();
  formTimer_.Arma();
}

void tarvel1::AggiornaTextParametri() {
  for (int i = 0; i < kNumParametri; ++i)
    ImpostaTesto(Text1[static_cast<std::size_t>(i)], FormatoNumero(ParametriSezione[i]));
}

void tarvel1::Text1_KeyPress(int indice, int codice) {
  if (codice == kTastoInvio) Text1_LostFocus(indice);
  SezioneSalvata = false;
}

void tarvel1::Text1_LostFocus(int indice) {
  ParametriSezione[indice] = ConvertiNumero(Text1[static_cast<std::size_t>(indice)].testo);
  SezioneCalcolata = false;
}

void tarvel1::nome_KeyPress(int codice) {
  if (codice != kTastoInvio || nome.testo.empty()) return;
  if (const int i = CercaSezione(nome.testo); i != 0) RichiamaSezione(i);
}

void tarvel1::nome_LostFocus() {
  SezioneCalcolata = false;
}

void tarvel1::Command4_Click() {
  MostraAnteprima();
}

void tarvel1::Command5_Click() {
  std::array<Testo, kNumParametri> caselle;
  for (std::size_t i = 0; i < caselle.size(); ++i) caselle[i] = Text1[i].testo;
  ScriviDefault(caselle);
  ChiudiVisualizzatore();
  ChiusuraEseguita_ = true;
  formTimer_.Arma();
}

void tarvel1::Command6_Click() {
  MostraForm(FormOpt::Unica());
}

void tarvel1::Command7_Click() {
  FormSez2 form;
  MostraFormModale(form);
}

}  // namespace tarvel

// Labels and boxes in two columns of eight rows, the buttons in a row below.
#include "app/form_opt.h"

#include "app/genera_disegno.h"
#include "base/numeri.h"
#include "base/tronca.h"
#include "platform/desktop.h"
#include "platform/regione.h"

namespace tarvel {
namespace {

constexpr int kMargine = 120;
constexpr int kRighe = 8;
constexpr int kPassoRighe = 330;
constexpr int kEtichetta = 2640;  // widths
constexpr int kCasella = 840;
constexpr int kColonna = kEtichetta + kCasella + 2 * kMargine;
constexpr int kBottone = 1200;

constexpr std::size_t kTestoMostrato = 40;  // of one that is refused

Rettangolo Posto(int i, int scarto, int larghezza, int altezza) {
  const int colonna = (i - 1) / kRighe;
  const int riga = (i - 1) % kRighe;
  return {kMargine + colonna * kColonna + scarto, kMargine + riga * kPassoRighe, larghezza, altezza};
}

}  // namespace

FormOpt& FormOpt::Unica() {
  static FormOpt form;
  return form;
}

FormOpt::FormOpt() {
  nome = "FormOpt";
  titolo = "OPZIONI di DISEGNO";
  larghezza = 2 * kColonna + kMargine;
  altezza = kRighe * kPassoRighe + 3 * kMargine + 330;

  for (int i = 1; i <= kNumOpzioni; ++i) {
    const auto posto = static_cast<std::size_t>(i - 1);
    const std::string indice = "(" + std::to_string(i) + ")";
    TextOpt[posto] =
        NuovoControllo(TipoControllo::Casella, "TextOpt" + indice, Posto(i, kEtichetta, kCasella, 270));
    TextOpt[posto].descrizione = kVociOpzioni[posto].etichettaForm;
    TextOpt[posto].tasto = [this, i](int codice) {
      if (codice == kTastoInvio) TextOpt_LostFocus(i);
    };
    TextOpt[posto].fuocoPerso = [this, i] { TextOpt_LostFocus(i); };
    Rettangolo etichetta = Posto(i, 0, kEtichetta - 60, 210);
    etichetta.alto += 40;
    LabelOpt[posto] = NuovoControllo(TipoControllo::Etichetta, "LabelOpt" + indice, etichetta,
                                     kVociOpzioni[posto].etichettaForm);
    controlli.push_back(&TextOpt[posto]);
  }

  const int intervallo = (larghezza - 2 * kMargine - 4 * kBottone) / 3;
  int sinistra = kMargine;
  const auto aggiungi = [&](Controllo& bottone, const char* testo, void (FormOpt::*click)()) {
    const Rettangolo posto{sinistra, kRighe * kPassoRighe + 2 * kMargine, kBottone, 330};
    bottone = NuovoControllo(TipoControllo::Bottone, testo, posto, testo);
    bottone.click = [this, click] { (this->*click)(); };
    controlli.push_back(&bottone);
    sinistra += kBottone + intervallo;
  };
  aggiungi(Reset, "Reset", &FormOpt::Reset_Click);
  aggiungi(Salva, "Salva", &FormOpt::Salva_Click);
  aggiungi(Applica, "Applica", &FormOpt::Applica_Click);
  aggiungi(Chiudi, "Chiudi", &FormOpt::Chiudi_Click);
  for (Controllo& etichetta : LabelOpt) controlli.push_back(&etichetta);
}

void FormOpt::Form_Load() {
  CopiaOpzioniIn();
  AggiornaTextOpzioni();
}

void FormOpt::CopiaOpzioniIn() {
  copia_ = Opzioni;
}

void FormOpt::CopiaOpzioniOut() {
  Opzioni = copia_;
}

void FormOpt::AggiornaTextOpzioni() {
  for (int i = 1; i <= kNumOpzioni; ++i) AggiornaTextOpt(i);
}

// Cut to two decimals, with a blank in the sign's place.
void FormOpt::AggiornaTextOpt(int i) {
  const Reale valore = Tronca(copia_[i], 2);
  ImpostaTesto(TextOpt[static_cast<std::size_t>(i - 1)], (valore >= 0 ? " " : "") + FormatoNumero(valore));
}

void FormOpt::TextOpt_LostFocus(int i) {
  const Testo& testo = TextOpt[static_cast<std::size_t>(i - 1)].testo;
  const auto valore = NumeroRegionale(testo, SeparatoreDecimale(), SeparatoreMigliaia());
  if (valore && Ammesso(i, *valore)) {
    copia_[i] = *valore;
    return;
  }
  MostraMessaggio("Valore non valido: \"" + testo.substr(0, kTestoMostrato) + "\". " + ValoriAmmessi(i),
                  "ATTENZIONE", Icona::Esclamazione);
  AggiornaTextOpt(i);
}

void FormOpt::RileggiOpzioni() {
  if (const auto guasto = LeggiOpzioni(FileOpzioni(), Opzioni))
    MostraMessaggio(guasto->ConMotivo(), "ERRORE", Icona::Esclamazione);
}

void FormOpt::Reset_Click() {
  RileggiOpzioni();
  Form_Load();
}

void FormOpt::Salva_Click() {
  CopiaOpzioniOut();
  if (const auto guasto = ScriviOpzioni(FileOpzioni(), Opzioni))
    MostraMessaggio(guasto->testo, "ERRORE", Icona::Esclamazione);
}

void FormOpt::Applica_Click() {
  CopiaOpzioniOut();
  MostraAnteprima();
}

void FormOpt::Chiudi_Click() {
  Form_Load();
  NascondiForm(*this);
}

}  // namespace tarvel

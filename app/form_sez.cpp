// List position p (from 0) is table index p + 1 in both forms.
#include "app/form_sez.h"

#include <algorithm>

#include "base/errore.h"
#include "model/geometria.h"
#include "platform/desktop.h"
#include "properties/calcolo/caratteristiche.h"

namespace tarvel {

namespace {

void RiempiLista(Controllo& lista) {
  std::vector<Testo> nomi;
  for (int i = 1; i <= NumeroSezioni; ++i) nomi.push_back(TabellaSezioni[i].Nome);
  ImpostaVoci(lista, std::move(nomi));
}

}  // namespace

FormSez::FormSez() {
  nome = "FormSez";
  larghezza = 1590;
  altezza = 3570;
  Command1 = NuovoControllo(TipoControllo::Bottone, "Command1", {72, 60, 1476, 300}, "Chiudi");
  ListSez = NuovoControllo(TipoControllo::Lista, "ListSez", {48, 468, 1488, 2865});
  Command1.click = [this] { Command1_Click(); };
  ListSez.doppioClick = [this] { Command1_Click(); };
  controlli = {&Command1, &ListSez};
}

void FormSez::Form_Load() {
  RiempiLista(ListSez);
}

void FormSez::Command1_Click() {
  const auto scelta = std::find(ListSez.scelte.begin(), ListSez.scelte.end(), true);
  SezioneScelta = scelta == ListSez.scelte.end() ? 0 : scelta - ListSez.scelte.begin() + 1;
  ScaricaForm(*this);
}

FormSez2::FormSez2() {
  nome = "FormSez2";
  larghezza = 1725;
  altezza = 3435;
  Command1 = NuovoControllo(TipoControllo::Bottone, "Command1", {48, 60, 700, 300}, "Chiudi");
  Command2 = NuovoControllo(TipoControllo::Bottone, "Command2", {840, 60, 700, 300}, "Calcola");
  ListSez = NuovoControllo(TipoControllo::Lista, "ListSez", {48, 456, 1488, 2700});
  ListSez.selezioneEstesa = true;
  Command1.click = [this] { Command1_Click(); };
  Command2.click = [this] { Command2_Click(); };
  controlli = {&Command1, &Command2, &ListSez};
}

void FormSez2::Form_Load() {
  RiempiLista(ListSez);
}

void FormSez2::Command1_Click() {
  NumeroScelte = 0;
  for (int i = 1; i <= NumeroSezioni; ++i)
    if (ListSez.scelte[static_cast<std::size_t>(i - 1)]) SezioniScelte[++NumeroScelte] = i;
  ScaricaForm(*this);
}

// As many records as were selected when the form was last closed, counted from the top of the table: neither
// the present selection nor which entries were selected matters. That is wanted.
void FormSez2::Command2_Click() {
  for (int i = 1; i <= NumeroScelte; ++i) {
    RecordSezione& r = TabellaSezioni[i];
    Durante([&] { return SullaSezione("calcolo", r.Nome); }, [&] { CalcolaCaratteristiche(r); }, kNonCassone);
    SezioneCorrente = i;
    SezioneCalcolata = true;
    SezioneSalvata = false;
  }
  MostraMessaggio("Calcolo eseguito", "INFORMAZIONE", Icona::Informazione);
}

}  // namespace tarvel

// Texts and entries of controls: the program's changes and what a user sees of them.
#include "platform/headless/contenuto.h"

#include <map>
#include <utility>
#include <vector>

#include "platform/desktop.h"
#include "platform/headless/scrivania.h"
#include "platform/headless/verbale.h"

namespace tarvel {
namespace headless {
namespace {

struct Contenuto {
  Testo testo;
  std::vector<Testo> voci;
};

std::map<const Controllo*, Contenuto> gProgetto;

// A control may be changed before its form was ever loaded.
Contenuto& Progetto(const Controllo& controllo) {
  return gProgetto.try_emplace(&controllo, Contenuto{controllo.testo, controllo.voci}).first->second;
}

void AnnotaSeVisibile(const Controllo& controllo) {
  if (FormDi(controllo) != nullptr) Annota(RigaContenuto(controllo));
}

}  // namespace

void RicordaProgetto(const Form& form) {
  for (const Controllo* controllo : form.controlli) Progetto(*controllo);
}

void DimenticaContenuti() {
  gProgetto.clear();
}

void MostraContenuti(const Form& form) {
  for (const Controllo* controllo : form.controlli) {
    const Contenuto& progetto = Progetto(*controllo);
    const bool diverso = controllo->testo != progetto.testo || controllo->voci != progetto.voci;
    if (controllo->tipo != TipoControllo::Bottone && diverso) Annota(RigaContenuto(*controllo));
  }
}

std::string RigaContenuto(const Controllo& controllo) {
  std::string nome = InUtf8(controllo.nome);
  if (const Form* form = FormDi(controllo); form != FormAttiva()) nome = InUtf8(form->nome) + '.' + nome;
  if (controllo.tipo != TipoControllo::Lista) return "text " + nome + ' ' + TraVirgolette(controllo.testo);
  std::string riga = "list " + nome;
  for (const Testo& voce : controllo.voci) riga += ' ' + TraVirgolette(voce);
  return riga;
}

}  // namespace headless

using namespace headless;

void ImpostaTesto(Controllo& controllo, const Testo& testo) {
  Progetto(controllo);
  if (controllo.testo == testo) return;
  controllo.testo = testo;
  AnnotaSeVisibile(controllo);
}

void ImpostaVoci(Controllo& lista, std::vector<Testo> voci) {
  Progetto(lista);
  const bool diverse = lista.voci != voci;
  lista.voci = std::move(voci);
  lista.scelte.assign(lista.voci.size(), false);
  if (diverse) AnnotaSeVisibile(lista);
}

}  // namespace tarvel

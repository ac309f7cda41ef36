// Texts and entries of controls: the program's changes and what a user sees of them.
#include "platform/headless/contenuto.h"

#include <utility>

#include "platform/headless/desktop.h"
#include "platform/headless/verbale.h"

namespace tarvel {
namespace headless {
namespace {

void AnnotaSeVisibile(const Controllo& controllo) {
  if (FormDi(controllo) != nullptr) Annota(RigaContenuto(controllo));
}

}  // namespace

void MostraContenuti(const Form& form, const Descrizione& descritta) {
  for (std::size_t i = 0; i < descritta.size(); ++i) {
    const Controllo& controllo = *form.controlli[i];
    const bool diverso = controllo.testo != descritta[i].testo || controllo.voci != descritta[i].voci;
    if (controllo.tipo != TipoControllo::Bottone && diverso) Annota(RigaContenuto(controllo));
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
  ScegliTutto(controllo, false);
  const Testo tenuto = controllo.tipo == TipoControllo::Casella ? testo.substr(0, kMassimoCasella) : testo;
  if (controllo.testo == tenuto) return;
  controllo.testo = tenuto;
  AnnotaSeVisibile(controllo);
}

void ImpostaVoci(Controllo& lista, std::vector<Testo> voci) {
  const bool diverse = lista.voci != voci;
  lista.voci = std::move(voci);
  lista.scelte.assign(lista.voci.size(), false);
  if (diverse) AnnotaSeVisibile(lista);
}

}  // namespace tarvel

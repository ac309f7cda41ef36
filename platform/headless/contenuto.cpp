// Texts and entries of controls: the program's changes and what a user sees of them.
#include "platform/headless/contenuto.h"

#include <cstring>
#include <utility>

#include "platform/headless/desktop.h"
#include "platform/headless/verbale.h"

namespace tarvel {
namespace headless {
namespace {

void AnnotaSeVisibile(const Controllo& controllo) {
  if (FormDi(controllo) != nullptr) Annota(RigaContenuto(controllo));
}

// Twips, as letters of a narrow face have them on average; the edges of a box take their part.
bool CiSta(const Controllo& casella) {
  constexpr double kTwipPerPunto = 20, kCifra = 0.57, kStretta = 0.29;
  constexpr int kBordi = 45;
  double ems = 0;
  for (const char c : casella.testo) ems += std::strchr(" .,:;'-", c) != nullptr ? kStretta : kCifra;
  return ems * casella.carattere.punti * kTwipPerPunto <= casella.posto.larghezza - kBordi;
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

Taglio Tagliato(const Controllo& casella) {
  if (CiSta(casella)) return {};
  return CursoreInVista(casella) ? Taglio{.inizio = true} : Taglio{.fine = true};
}

Testo SuggerimentoDi(const Controllo& casella) {
  return Suggerimento(casella, CiSta(casella));
}

}  // namespace headless

using namespace headless;

void ImpostaTesto(Controllo& controllo, const Testo& testo) {
  ScegliTutto(controllo, false);
  MettiCursoreInVista(controllo, false);
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

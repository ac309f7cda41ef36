// Texts and entries of controls, and what a user sees of them.
#include "platform/headless/contenuto.h"

#include <cstring>

#include "platform/headless/desktop.h"
#include "platform/headless/verbale.h"

namespace tarvel::headless {
namespace {

// Twips, as letters of a narrow face have them on average; the edges of a box take their part.
bool CiSta(const Controllo& casella) {
  constexpr double kTwipPerPunto = 20, kCifra = 0.57, kStretta = 0.29;
  constexpr int kBordi = 45;
  double ems = 0;
  for (const char c : casella.testo) ems += std::strchr(" .,:;'-", c) != nullptr ? kStretta : kCifra;
  return ems * casella.carattere.punti * kTwipPerPunto <= casella.posto.larghezza - kBordi;
}

}  // namespace

void MostraContenuti(const Form& form) {
  for (std::size_t i = 0; i < Descritti(form).size(); ++i) {
    const Controllo& controllo = *form.controlli[i];
    const auto& [testo, voci, scelte] = Descritti(form)[i];
    const bool diverso = controllo.testo != testo || controllo.voci != voci;
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

}  // namespace tarvel::headless

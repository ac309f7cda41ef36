// What a form's controls were described with: kept while the form is loaded, theirs again afterwards.
#pragma once

#include <utility>
#include <vector>

#include "platform/controlli.h"

namespace tarvel {

struct Contenuto {
  Testo testo;
  std::vector<Testo> voci;
  std::vector<bool> scelte;
};
using Descrizione = std::vector<Contenuto>;  // one a control, in the form's order

/// Of a form that is being loaded; one flag an entry from now on.
inline Descrizione Descritta(Form& form) {
  Descrizione descritta;
  for (Controllo* c : form.controlli) {
    c->scelte.resize(c->voci.size());
    descritta.push_back({c->testo, c->voci, c->scelte});
  }
  return descritta;
}

inline void Ripristina(Form& form, Descrizione descritta) {
  for (std::size_t i = 0; i < descritta.size(); ++i) {
    Controllo& c = *form.controlli[i];
    c.testo = std::move(descritta[i].testo);
    c.voci = std::move(descritta[i].voci);
    c.scelte = std::move(descritta[i].scelte);
  }
}

}  // namespace tarvel

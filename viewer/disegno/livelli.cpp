// Tells outline, dimensions and texts apart.
#include "viewer/disegno/livelli.h"

#include <utility>

#include "base/numeri.h"
#include "viewer/disegno/misure.h"

namespace ostrel {

std::vector<std::size_t> FiniAnelli(const Disegno& disegno) {
  if (disegno.senzaContorno) return {};
  const auto& linee = disegno.linee;
  std::vector<std::size_t> fini;
  std::size_t primo = 0;
  for (std::size_t i = 0; i < linee.size(); ++i) {
    if (i > primo && linee[i].inizio != linee[i - 1].fine) break;
    if (linee[i].fine == linee[primo].inizio) fini.push_back(primo = i + 1);
  }
  return fini;
}

std::vector<Livello> LivelliLinee(const Disegno& disegno) {
  const auto& linee = disegno.linee;
  if (disegno.senzaContorno) return std::vector(linee.size(), Livello::Quote);
  const auto fini = FiniAnelli(disegno);
  const std::size_t anelli = fini.empty() ? 0 : fini.back();
  std::vector<Livello> livelli(linee.size(), Livello::Quote);
  for (std::size_t i = 0; i < linee.size(); ++i)
    if (i < anelli || (anelli == 0 && linee[i].colore == linee[0].colore)) livelli[i] = Livello::Contorno;
  return livelli;
}

Livello LivelloArco(const Disegno& disegno, const Arco& arco) {
  return Polare(disegno, arco).cerchio ? Livello::Quote : Livello::Contorno;
}

Livello LivelloScritta(const Scritta& scritta) {
  return tarvel::NumeroRegionale(scritta.testo, ',', ' ') ? Livello::Quote : Livello::Testi;
}

Disegno SoloLivelli(Disegno disegno, const Livelli& voluti) {
  const auto voluto = [&](Livello l) { return voluti[static_cast<std::size_t>(l)]; };
  const auto livelli = LivelliLinee(disegno);
  std::vector<Linea> linee;
  for (std::size_t i = 0; i < livelli.size(); ++i)
    if (voluto(livelli[i])) linee.push_back(disegno.linee[i]);
  disegno.linee = std::move(linee);
  std::erase_if(disegno.archi, [&](const Arco& arco) { return !voluto(LivelloArco(disegno, arco)); });
  std::erase_if(disegno.scritte, [&](const Scritta& s) { return !voluto(LivelloScritta(s)); });
  disegno.senzaContorno = !voluto(Livello::Contorno);
  if (disegno.senzaContorno) disegno.punti.clear();
  return disegno;
}

}  // namespace ostrel

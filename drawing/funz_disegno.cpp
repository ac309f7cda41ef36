// The drawing primitives.
#include "drawing/funz_disegno.h"

#include <algorithm>
#include <numbers>

namespace tarvel::disegno {
namespace {

// The blanks at both ends are wanted: the texts are fixed.
constexpr char kTroppeCoordinate[] = " Numero eccessivo di coordinate ";
constexpr char kTroppiElementi[] = " Numero eccessivo di elementi di disegno ";
constexpr char kTroppiTesti[] = " Numero eccessivo di testi ";

// Takes the next place of a table, null when there is none. Taking the last one leaves a warning.
template <class Elenco>
auto* PrendiPosto(Elenco& elenco, const char* avviso) {
  if (elenco.numero == elenco.kCapienza - 1) Disegno.avvisi.push_back(avviso);
  return elenco.numero < elenco.kCapienza ? &elenco[elenco.numero++] : nullptr;
}

Intero16 ColoreScelto(std::optional<Intero16> colore, const Superficie* superficie) {
  return colore.value_or(superficie != nullptr ? Intero16(kNero) : ColoreCorrente);
}

Intero16 NeroInBianco(Intero16 colore) {
  return colore == kNero ? Intero16(kBianco) : colore;
}

Coordinata ConOrigine(Coordinata p) {
  return {p.x + OrigineX, p.y + OrigineY};
}

void RegistraTesto(const Testo& stringa, Coordinata posto, Intero16 angolo, Reale base, Reale altezza,
                   Intero16 colore) {
  ElementoTesto* const testo = PrendiPosto(Disegno.Testi, kTroppiTesti);
  if (testo == nullptr) return;
  *testo = {.posizione = AggiungiCoordinata(ConOrigine(posto)),
            .angolo = angolo,
            .base10 = InteroPari(base * 10),
            .altezza10 = InteroPari(altezza * 10),
            .colore = NeroInBianco(colore),
            .stringa = stringa};
  if (testo->posizione < 0) --Disegno.Testi.numero;
}

void TracciaCaratteri(const Testo& testo, Coordinata posto, Intero16 angolo, Reale base, Reale altezza,
                      Intero16 colore, const Superficie* superficie) {
  const Reale a = Reale(angolo) * std::numbers::pi / 180;
  const Reale coseno = Coseno(a), seno = Seno(a);
  const Reale scalaX = (1 - Reale(SpaziaturaCaratteri) / 100) * base / 99;
  const Reale scalaY = altezza / 69;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const Reale avanzo = Reale(static_cast<double>(i)) * base;
    const Reale origineX = posto.x + avanzo * coseno, origineY = posto.y + avanzo * seno;
    const int c = static_cast<unsigned char>(testo[i]);
    const auto punto = [&](int k) -> Coordinata {
      const Reale fx = Reale(FontX[c][k]) * scalaX, fy = (Reale(FontY[c][k]) - 30) * scalaY;
      return {origineX + fx * coseno - fy * seno, origineY + fy * coseno + fx * seno};
    };
    for (int k = 0; k <= std::min(FontPunti[c] - 1, 100); k += 2)
      Linea(punto(k), punto(k + 1), colore, superficie);
  }
}

}  // namespace

Intero16 AggiungiCoordinata(Coordinata p) {
  auto& coordinate = Disegno.Coordinate;
  const Intero16 ultima = coordinate.numero - 1;
  // No farther back, so that adding stays cheap. That the file may hold a point twice is wanted.
  const int piuLontana = std::max(coordinate.numero - 31, 0);
  for (int i = ultima; i >= piuLontana; --i)
    if (Coincidono(p, coordinate[i])) return i;
  Coordinata* const nuova = PrendiPosto(coordinate, kTroppeCoordinate);
  if (nuova == nullptr) return -1;
  *nuova = p;
  return coordinate.numero - 1;
}

void AggiungiLinea(Coordinata da, Coordinata a, Intero16 colore) {
  ElementoLinea* const linea = PrendiPosto(Disegno.Linee, kTroppiElementi);
  if (linea == nullptr) return;
  *linea = {.primo = AggiungiCoordinata(da),
            .secondo = AggiungiCoordinata(a),
            .colore = colore,
            .tipo = TipoLineaCorrente};
  // A line that lacks only its first point stays, with -1 there. That is wanted.
  if (linea->secondo < 0) --Disegno.Linee.numero;
}

void Linea(Coordinata da, Coordinata a, std::optional<Intero16> colore, const Superficie* superficie) {
  const Intero16 scelto = ColoreScelto(colore, superficie);
  if (Assoluto(da.x - a.x) <= kTolleranza && Assoluto(da.y - a.y) <= kTolleranza) return;
  if (superficie != nullptr)
    superficie->segmento(da, a, ColoreRGB(scelto));
  else
    AggiungiLinea(ConOrigine(da), ConOrigine(a), scelto);
}

void Cerchio(Coordinata centro, Reale diametro, std::optional<Intero16> colore,
             std::optional<Reale> angoloIniziale, std::optional<Reale> angoloFinale,
             const Superficie* superficie) {
  const Intero16 scelto = ColoreScelto(colore, superficie);
  const Reale inizio = angoloIniziale.value_or(0);
  const Reale fine = angoloFinale.value_or(inizio);
  if (diametro <= kTolleranza) return;
  const Reale r = diametro / 2;
  if (superficie != nullptr) {
    superficie->arco(centro, r, inizio, fine, ColoreRGB(scelto));
    return;
  }
  ElementoArco* const arco = PrendiPosto(Disegno.Archi, kTroppiElementi);
  if (arco == nullptr) return;
  const Coordinata c = ConOrigine(centro);
  const auto a = [&](Reale angolo) -> Coordinata {
    return {c.x + r * Coseno(angolo), c.y + r * Seno(angolo)};
  };
  arco->centro = arco->secondoCentro = AggiungiCoordinata(c);
  arco->inizio = AggiungiCoordinata(a(inizio));
  arco->fine = AggiungiCoordinata(a(fine));
  arco->genere = 0;
  arco->colore = NeroInBianco(scelto);
  if (arco->inizio < 0) --Disegno.Archi.numero;
}

void ScriviTesto(const Testo& testo, Coordinata posto, Intero16 angolo, Reale base, Reale altezza,
                 Intero16 colore, const Superficie* superficie) {
  if (base == 0 || altezza == 0) return;
  if (FlagDisegno)
    RegistraTesto(testo, posto, angolo, base, altezza, colore);
  else
    TracciaCaratteri(testo, posto, angolo, base, altezza, colore, superficie);
}

}  // namespace tarvel::disegno

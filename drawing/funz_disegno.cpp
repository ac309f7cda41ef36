// The primitives and the one way to take a place in a table.
#include "drawing/funz_disegno.h"

#include <algorithm>
#include <array>
#include <numbers>

#include "platform/desktop.h"

namespace tarvel::disegno {
namespace {

constexpr char kTroppeCoordinate[] = " Numero eccessivo di coordinate ";
constexpr char kTroppiElementi[] = " Numero eccessivo di elementi di disegno ";
constexpr char kTroppiTesti[] = " Numero eccessivo di testi ";

// Takes the next place of a table; false when there is none. The last one is taken with a warning.
template <class Elenco>
bool PrendiPosto(Elenco& elenco, const char* avviso) {
  if (elenco.numero == elenco.kCapienza - 1) MostraMessaggio(avviso, "Problema", Icona::Esclamazione);
  if (elenco.numero >= elenco.kCapienza) return false;
  ++elenco.numero;
  return true;
}

Intero16 ColoreScelto(std::optional<Intero16> colore, const Superficie* superficie) {
  return colore.value_or(superficie != nullptr ? Intero16(0) : ColoreCorrente);
}

Intero16 NeroInBianco(Intero16 colore) {
  return colore == 0 ? Intero16(1) : colore;
}

void RegistraTesto(const tarvel::Testo& stringa, Reale x, Reale y, Intero16 angolo, Reale base, Reale altezza,
                   Intero16 colore) {
  auto& testi = Disegno.Testi;
  if (!PrendiPosto(testi, kTroppiTesti)) return;
  ElementoTesto& testo = testi[testi.numero - 1];
  testo.posizione = AggiungiCoordinata(OrigineX + x, OrigineY + y);
  testo.base10 = InteroPari(base * 10);
  testo.altezza10 = InteroPari(altezza * 10);
  testo.angolo = angolo;
  testo.colore = NeroInBianco(colore);
  testo.stringa = stringa;
  if (testo.posizione < 0) --testi.numero;
}

void TracciaCaratteri(const tarvel::Testo& testo, Reale x, Reale y, Intero16 angolo, Reale base,
                      Reale altezza, Intero16 colore, const Superficie* superficie) {
  const Reale a = Reale(angolo) * std::numbers::pi / 180;
  const Reale coseno = Coseno(a), seno = Seno(a);
  const Reale scalaX = (1 - Reale(SpaziaturaCaratteri) / 100) * base / 99;
  const Reale scalaY = altezza / 69;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const Reale avanzo = Reale(static_cast<double>(i)) * base;
    const Reale origineX = x + avanzo * coseno, origineY = y + avanzo * seno;
    const int c = static_cast<unsigned char>(testo[i]);
    const auto punto = [&](int k) -> Coordinata {
      const Reale fx = Reale(FontX[c][k]) * scalaX, fy = (Reale(FontY[c][k]) - 30) * scalaY;
      return {origineX + fx * coseno - fy * seno, origineY + fy * coseno + fx * seno};
    };
    for (int k = 0; k <= std::min(FontPunti[c] - 1, 100); k += 2) {
      const Coordinata p = punto(k), q = punto(k + 1);
      Linea(p.x, p.y, q.x, q.y, colore, superficie);
    }
  }
}

}  // namespace

std::int32_t ColoreRGB(Intero16 indice) {
  constexpr std::array<std::int32_t, 10> kColori = {0,     16777215, 12582912, 255,      65280,
                                                    65535, 32768,    16711935, 16434592, 4629503};
  const bool noto = indice >= 0 && indice < static_cast<int>(kColori.size());
  return noto ? kColori[static_cast<std::size_t>(indice)] : kColori[1];
}

Intero16 AggiungiCoordinata(Reale x, Reale y) {
  auto& coordinate = Disegno.Coordinate;
  const Intero16 ultima = coordinate.numero - 1;
  // The short look-back is wanted: adding stays cheap, and the file may hold a point twice.
  const int piuLontana = std::max(coordinate.numero - 31, 0);
  for (int i = ultima; i >= piuLontana; --i)
    if (Assoluto(x - coordinate[i].x) < kTolleranza && Assoluto(y - coordinate[i].y) < kTolleranza) return i;
  if (!PrendiPosto(coordinate, kTroppeCoordinate)) return -1;
  coordinate[coordinate.numero - 1] = {x, y};
  return coordinate.numero - 1;
}

void AggiungiLinea(Reale x1, Reale y1, Reale x2, Reale y2, Intero16 colore) {
  auto& linee = Disegno.Linee;
  if (!PrendiPosto(linee, kTroppiElementi)) return;
  ElementoLinea& linea = linee[linee.numero - 1];
  linea.primo = AggiungiCoordinata(x1, y1);
  linea.secondo = AggiungiCoordinata(x2, y2);
  linea.tipo = TipoLineaCorrente;
  linea.colore = colore;
  // Wanted: a line that lacks only its first point stays.
  if (linea.secondo < 0) --linee.numero;
}

void Linea(Reale x1, Reale y1, Reale x2, Reale y2, std::optional<Intero16> colore,
           const Superficie* superficie) {
  const Intero16 scelto = ColoreScelto(colore, superficie);
  if (Assoluto(x1 - x2) <= kTolleranza && Assoluto(y1 - y2) <= kTolleranza) return;
  if (superficie != nullptr)
    superficie->segmento({x1, y1}, {x2, y2}, ColoreRGB(scelto));
  else
    AggiungiLinea(x1 + OrigineX, y1 + OrigineY, x2 + OrigineX, y2 + OrigineY, scelto);
}

void Cerchio(Reale x, Reale y, Reale diametro, std::optional<Intero16> colore,
             std::optional<Reale> angoloIniziale, std::optional<Reale> angoloFinale,
             const Superficie* superficie) {
  const Intero16 scelto = ColoreScelto(colore, superficie);
  const Reale inizio = angoloIniziale.value_or(0);
  const Reale fine = angoloFinale.value_or(inizio);
  if (diametro <= kTolleranza) return;
  const Reale r = diametro / 2;
  if (superficie != nullptr) {
    superficie->arco({x, y}, r, inizio, fine, ColoreRGB(scelto));
    return;
  }
  auto& archi = Disegno.Archi;
  if (!PrendiPosto(archi, kTroppiElementi)) return;
  ElementoArco& arco = archi[archi.numero - 1];
  const Reale cx = OrigineX + x, cy = OrigineY + y;
  arco.centro = AggiungiCoordinata(cx, cy);
  arco.inizio = AggiungiCoordinata(cx + r * Coseno(inizio), cy + r * Seno(inizio));
  arco.secondoCentro = arco.centro;
  arco.fine = AggiungiCoordinata(cx + r * Coseno(fine), cy + r * Seno(fine));
  arco.genere = 0;
  arco.colore = NeroInBianco(scelto);
  if (arco.inizio < 0) --archi.numero;
}

void Testo(const tarvel::Testo& testo, Reale x, Reale y, Intero16 angolo, Reale base, Reale altezza,
           Intero16 colore, const Superficie* superficie) {
  if (base == 0 || altezza == 0) return;
  if (FlagDisegno == kGeneraDisegno)
    RegistraTesto(testo, x, y, angolo, base, altezza, colore);
  else
    TracciaCaratteri(testo, x, y, angolo, base, altezza, colore, superficie);
}

}  // namespace tarvel::disegno

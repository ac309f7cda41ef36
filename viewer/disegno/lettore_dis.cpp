// Reads line by line through the five tables; the first thing that is not as expected ends the reading.
#include "viewer/disegno/lettore_dis.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/numeri.h"
#include "platform/file.h"

namespace ostrel {
namespace {

using tarvel::Testo;

constexpr std::size_t kMassimaCitazione = 40;

// No section comes near these in any unit. Within them no square, sum or quotient overflows.
constexpr double kMassimaLunghezza = 1e9;
constexpr double kMinimaLunghezza = 1e-9;

constexpr int kMin16 = std::numeric_limits<std::int16_t>::min();
constexpr int kMax16 = std::numeric_limits<std::int16_t>::max();

struct Tabella {
  std::string_view conteggio;  // how the refusal calls the line that holds it
  // The fewest bytes of an entry, line ends included: a count is refused when the rest of the file is too
  // short.
  std::size_t minimo;
  int capienza;  // in the program that draws
};
constexpr Tabella kCoordinate{"il numero di coordinate", 6, 50000};
constexpr Tabella kPunti{"il numero di punti", 6, 5001};
constexpr Tabella kLinee{"il numero di linee", 8, 50000};
constexpr Tabella kScritte{"il numero di testi", 13, 15000};
constexpr Tabella kArchi{"il numero di archi", 12, 15000};

class Lettore {
 public:
  explicit Lettore(std::string_view byte) : resto_(byte) {}

  bool Finito() const { return resto_.empty(); }

  /// The next line without its end. `attesa`, a literal, says in a refusal what the line should hold.
  std::string_view Riga(std::string_view attesa) {
    attesa_ = attesa;
    ++numero_;
    riga_ = {};
    ultima_ = true;
    if (resto_.empty()) Rifiuta("il file finisce prima");
    const auto fine = resto_.find('\n');
    ultima_ = fine == std::string_view::npos;
    riga_ = resto_.substr(0, fine);
    resto_ = ultima_ ? std::string_view() : resto_.substr(fine + 1);
    if (!riga_.empty() && riga_.back() == '\r') riga_.remove_suffix(1);
    if (riga_.size() > tarvel::kRigaMassima) Rifiuta(tarvel::DaUtf8("la riga è più lunga di 1 MB"));
    return riga_;
  }

  /// A line of exactly N items separated by blanks.
  template <std::size_t N>
  std::array<std::string_view, N> Voci(std::string_view attesa) {
    std::string_view riga = Riga(attesa);
    std::array<std::string_view, N> voci;
    for (auto& voce : voci) {
      voce = tarvel::PrimaParola(riga);
      if (voce.empty()) Rifiuta();
    }
    if (!tarvel::PrimaParola(riga).empty()) Rifiuta();
    return voci;
  }

  double Lunghezza(std::string_view voce) const {
    const auto valore = tarvel::NumeroRegionale(voce, ',', ' ');
    if (!valore) Rifiuta();
    const double lunga = std::fabs(valore->Valore());
    if (lunga > kMassimaLunghezza) FuoriLimiti(voce, "-1E+9", "1E+9");
    return lunga < kMinimaLunghezza ? 0 : valore->Valore();
  }

  int Intero(std::string_view voce, int minimo, int massimo) const {
    int valore = 0;
    const auto [fine, errore] = std::from_chars(voce.data(), voce.data() + voce.size(), valore);
    if (errore != std::errc() || fine != voce.data() + voce.size()) Rifiuta();
    if (valore < minimo || valore > massimo)
      FuoriLimiti(voce, std::to_string(minimo), std::to_string(massimo));
    return valore;
  }
  int Intero16(std::string_view voce) const { return Intero(voce, kMin16, kMax16); }

  std::size_t Conteggio(const Tabella& tabella) {
    const auto [voce] = Voci<1>(tabella.conteggio);
    const int quanti = Intero(voce, 0, tabella.capienza);
    // The last line may lack its end.
    if (static_cast<std::size_t>(quanti) > (resto_.size() + 1) / tabella.minimo) {
      ultima_ = true;
      Rifiuta("trovato: " + std::to_string(quanti) +
              tarvel::DaUtf8(", più di quanti il resto del file ne contenga"));
    }
    return static_cast<std::size_t>(quanti);
  }

  [[noreturn]] void Rifiuta(const Testo& trovato) const {
    throw ErroreDis{
        numero_, "riga " + std::to_string(numero_) + ", atteso: " + Testo(attesa_) + "; " + trovato, ultima_};
  }
  [[noreturn]] void Rifiuta() const { Rifiuta("trovato: \"" + Citazione(riga_) + '"'); }
  [[noreturn]] void FuoriLimiti(std::string_view voce, const Testo& minimo, const Testo& massimo) const {
    Rifiuta("trovato: " + Citazione(voce) + ", fuori dei limiti da " + minimo + " a " + massimo);
  }

  // Puts a sign for what has none: controls, codes that the code page does not define, and the hyphen that
  // shows only at the end of a line.
  static Testo Visibile(std::string_view testo) {
    constexpr std::string_view kSenzaSegno = "\x7F\x81\x8D\x8F\x90\x9D";
    Testo esito(testo);
    for (char& c : esito) {
      if (static_cast<unsigned char>(c) < ' ' || kSenzaSegno.find(c) != std::string_view::npos) c = '?';
      if (c == '\xAD') c = '-';
    }
    return esito;
  }

 private:
  static Testo Citazione(std::string_view testo) {
    return Visibile(testo.substr(0, kMassimaCitazione)) + (testo.size() > kMassimaCitazione ? "..." : "");
  }

  std::string_view resto_;
  std::string_view riga_;
  std::string_view attesa_;
  int numero_ = 0;
  bool ultima_ = false;  // the current line is the last one
};

void LeggiIntestazione(Lettore& file) {
  const auto [cifra] = file.Voci<1>("il numero di formato, 3 o 4");
  if (cifra != "3" && cifra != "4") file.Rifiuta();
  // The extents of the file leave the texts out, so the viewer measures its own.
  for (const std::string_view estremi :
       {"il minimo e il massimo di X", "il minimo e il massimo di Y", "il minimo e il massimo di Z"})
    for (const auto voce : file.Voci<2>(estremi)) file.Lunghezza(voce);
}

template <class Voce, class Leggi>
std::vector<Voce> LeggiTabella(Lettore& file, const Tabella& tabella, Leggi leggi) {
  const std::size_t quanti = file.Conteggio(tabella);
  std::vector<Voce> voci;
  voci.reserve(quanti);
  for (std::size_t i = 0; i < quanti; ++i) leggi(voci);
  return voci;
}

Disegno LeggiTutto(Lettore& file) {
  LeggiIntestazione(file);
  Disegno d;

  d.coordinate = LeggiTabella<Coordinata>(file, kCoordinate, [&](auto& coordinate) {
    const auto [x, y, z] = file.Voci<3>("una coordinata (X, Y e Z)");
    file.Lunghezza(z);
    coordinate.push_back({file.Lunghezza(x), file.Lunghezza(y)});
  });
  const auto indice = [&, ultimo = static_cast<int>(d.coordinate.size()) - 1](std::string_view voce) {
    return file.Intero(voce, 0, ultimo);
  };

  // -1 says that the table of coordinates was full when the element was drawn.
  const auto oMancante = [&](std::string_view voce) { return voce == "-1" ? -1 : indice(voce); };

  d.punti = LeggiTabella<Punto>(file, kPunti, [&](auto& punti) {
    const auto [posizione, b, a] = file.Voci<3>("un punto (indice della coordinata e due attributi)");
    file.Intero16(b);
    file.Intero16(a);
    punti.push_back({indice(posizione)});
  });

  d.linee = LeggiTabella<Linea>(file, kLinee, [&](auto& linee) {
    const auto [inizio, fine, colore, tipo] =
        file.Voci<4>("una linea (indici del primo e del secondo punto, colore e tipo di linea)");
    const Linea linea{oMancante(inizio), indice(fine), file.Intero16(colore), file.Intero16(tipo)};
    if (linea.inizio < 0)
      ++d.saltati;
    else
      linee.push_back(linea);
  });

  d.scritte = LeggiTabella<Scritta>(file, kScritte, [&](auto& scritte) {
    Scritta scritta;
    const auto [posizione, uno, angolo] =
        file.Voci<3>("un testo (indice della posizione, 1 e angolo in gradi)");
    scritta.posizione = indice(posizione);
    file.Intero16(uno);
    scritta.angolo = file.Intero16(angolo);
    const auto [base, altezza, colore] = file.Voci<3>("base e altezza del testo e il suo colore");
    scritta.base = file.Lunghezza(base);
    scritta.altezza = file.Lunghezza(altezza);
    scritta.colore = file.Intero16(colore);
    scritta.testo = Lettore::Visibile(file.Riga("il testo"));
    if (scritta.base > 0 && scritta.altezza > 0) scritte.push_back(std::move(scritta));
  });

  d.archi = LeggiTabella<Arco>(file, kArchi, [&](auto& archi) {
    const auto [centro, inizio, ancora, fine] =
        file.Voci<4>("un arco (indici del centro, del primo punto, ancora del centro e dell'ultimo punto)");
    Arco arco{oMancante(centro), oMancante(inizio), oMancante(fine), 0};
    if (oMancante(ancora) != arco.centro) file.Rifiuta();
    const auto [colore, genere] = file.Voci<2>("colore e genere dell'arco");
    arco.colore = file.Intero16(colore);
    file.Intero16(genere);
    if (std::min({arco.centro, arco.inizio, arco.fine}) < 0)
      ++d.saltati;
    else
      archi.push_back(arco);
  });

  while (!file.Finito())
    if (!tarvel::SenzaBlanchi(file.Riga("la fine del disegno")).empty()) file.Rifiuta();
  if (!d.scritte.empty()) d.titolo = d.scritte.front().testo;
  return d;
}

}  // namespace

std::variant<Disegno, ErroreDis> LeggiDis(std::string_view byte) {
  try {
    Lettore file(byte);
    return LeggiTutto(file);
  } catch (const ErroreDis& errore) {
    return errore;
  }
}

}  // namespace ostrel

// Writer and reader stand side by side, as the lines stand in the file.
#include "model/archivio/righe_sezione.h"

#include <initializer_list>
#include <limits>

#include "base/numeri.h"
#include "base/tronca.h"

namespace tarvel {
namespace {

// --- Writing

constexpr int kDecimali = 2;
constexpr int kDecimaliTensioni = 14;
constexpr std::size_t kPassoColonne = 20;  // column stops 21, 41 and 61

// A figure that another one follows on its line. At least one blank separates the two, or they would be read
// as one.
void AccodaColonna(Testo& testo, Reale tagliato) {
  const std::size_t inizio = testo.size();
  AccodaNumeroEntro(testo, tagliato, kPassoColonne - 1);
  testo.resize(inizio + kPassoColonne, ' ');
}

void AccodaRigaTagliata(Testo& testo, std::initializer_list<Reale> valori) {
  for (const Reale& valore : valori)
    if (&valore != valori.end() - 1)
      AccodaColonna(testo, Tronca(valore, kDecimali));
    else
      AccodaNumero(testo, Tronca(valore, kDecimali));
  AccodaRiga(testo, "");
}

void AccodaRigaPunto(Testo& testo, Punto p, std::string_view coda) {
  AccodaColonna(testo, Tronca(p.z, kDecimali));
  AccodaColonna(testo, Tronca(p.y, kDecimali));
  AccodaRiga(testo, coda);
}

void AccodaRigaConteggio(Testo& testo, Intero16 valore) {
  AccodaRiga(testo, FormatoNumero(static_cast<int>(valore)));
}

// The sign is dropped: stresses are stored as magnitudes.
void AccodaRigaTensione(Testo& testo, Reale tensione, Intero16 indicatore) {
  AccodaColonna(testo, Tronca(Assoluto(tensione), kDecimaliTensioni));
  AccodaRigaConteggio(testo, indicatore);
}

void AccodaPoligono(Testo& testo, const GeometriaSezione& g, int p) {
  AccodaStampato(testo, static_cast<int>(g.NumVertici[p]));
  AccodaRiga(testo, "");
  for (int v = g.NumVertici[p]; v >= 1; --v) AccodaRigaPunto(testo, g.Vertice(p, v), "0");
}

void AccodaPunto(Testo& testo, RecordSezione& r, int j) {
  const Testo etichetta(r.EtichettaPunto[j].Rifilato());
  r.EtichettaPunto[j] = etichetta;
  AccodaRigaPunto(testo, r.P(j), etichetta);
  AccodaRigaTensione(testo, r.TauT[j], r.IndicatoreTauT[j]);
  AccodaRigaTensione(testo, r.TauVy[j], r.IndicatoreTauVy[j]);
  AccodaRigaTensione(testo, r.TauVz[j], r.IndicatoreTauVz[j]);
}

// --- Reading

// A whole line taken apart at its blanks.
class RigaParole {
 public:
  explicit RigaParole(FileInLettura& file) : file_(file), resto_(SenzaBlanchi(file.LeggiRiga())) {
    // A disk that has lost blocks leaves NULs. One would end a number, and the loss would pass unseen.
    if (resto_.find('\0') != std::string_view::npos) file_.Malformato("un carattere nullo");
  }

  std::string_view Parola() {
    const std::string_view parola = resto_.substr(0, resto_.find(' '));
    resto_ = SenzaBlanchi(resto_.substr(parola.size()));
    return parola;
  }
  std::string_view Resto() const { return resto_; }
  // A word counts as 0. The largest number stands for one beyond the range: it could not be written again.
  Reale Numero() { return Entro(Parola()); }
  Reale NumeroFinale() { return Entro(resto_); }
  // Points are read strictly: the program that uses the file takes no word for a number.
  Reale NumeroStretto() {
    const std::string_view parola = Parola();
    const auto valore = NumeroInvariante(parola);
    if (!valore)
      file_.Malformato("coordinata di un punto non valida \"" + Testo(parola.substr(0, 40)) + "\"");
    return *valore;
  }

 private:
  Reale Entro(std::string_view testo) {
    const Reale valore = ConvertiNumero(testo);
    if (Assoluto(valore) == std::numeric_limits<double>::max())
      file_.Malformato("numero troppo grande \"" + Testo(testo.substr(0, 40)) + "\"");
    return valore;
  }

  FileInLettura& file_;
  std::string_view resto_;
};

void LeggiPoligono(FileInLettura& file, GeometriaSezione& g, int p) {
  g.NumVertici[p] = LeggiConteggio(file, kMaxVertici, "vertici");
  for (int v = g.NumVertici[p]; v >= 1; --v) {
    RigaParole riga(file);
    const Reale z = riga.Numero();
    g.ImpostaVertice(p, v, {z, riga.Numero()});
  }
}

void LeggiPunto(FileInLettura& file, RecordSezione& r, int j) {
  RigaParole riga(file);
  r.PuntoZ[j] = riga.NumeroStretto();
  r.PuntoY[j] = riga.NumeroStretto();
  r.EtichettaPunto[j] = riga.Resto();
  r.TauT[j] = file.LeggiVoceNumero();
  r.IndicatoreTauT[j] = file.LeggiVoceIntero();
  r.TauVy[j] = file.LeggiVoceNumero();
  r.IndicatoreTauVy[j] = file.LeggiVoceIntero();
  r.TauVz[j] = file.LeggiVoceNumero();
  r.IndicatoreTauVz[j] = file.LeggiVoceIntero();
}

}  // namespace

void AccodaSezione(Testo& testo, RecordSezione& r) {
  AccodaRiga(testo, r.Nome);
  AccodaRigaTagliata(testo, {r.BaseTotale, r.AltezzaTotale, r.ZG, r.YG});
  AccodaRigaConteggio(testo, r.NumPoligoni);
  for (int p = 1; p <= r.NumPoligoni; ++p) AccodaPoligono(testo, r, p);
  AccodaRigaTagliata(testo, {r.An, r.Aty, r.Atz});
  AccodaRigaTagliata(testo, {r.Jt, r.Jyg, r.Jzg, r.ValoreAggiuntivo});
  AccodaRigaConteggio(testo, r.NumPunti);
  for (int j = 1; j <= r.NumPunti; ++j) AccodaPunto(testo, r, j);
  AccodaRiga(testo, SenzaBlanchi(r.Sigla));
  AccodaRigaTagliata(testo, {r.ValoreSigla});
}

void LeggiSezione(FileInLettura& file, RecordSezione& r) {
  r.Nome = file.LeggiVoceTesto();
  {
    RigaParole riga(file);  // values that are not there are 0
    for (Reale* campo : {&r.BaseTotale, &r.AltezzaTotale, &r.ZG, &r.YG}) *campo = riga.Numero();
  }
  r.NumPoligoni = LeggiConteggio(file, kMaxPoligoni, "poligoni");
  for (int p = 1; p <= r.NumPoligoni; ++p) LeggiPoligono(file, r, p);
  for (Reale* campo : {&r.An, &r.Aty, &r.Atz}) *campo = file.LeggiVoceNumero();
  {
    RigaParole riga(file);
    for (Reale* campo : {&r.Jt, &r.Jyg, &r.Jzg}) *campo = riga.Numero();
    r.ValoreAggiuntivo = riga.NumeroFinale();
  }
  r.NumPunti = LeggiConteggio(file, kMaxPunti, "punti");
  for (int j = 1; j <= r.NumPunti; ++j) LeggiPunto(file, r, j);
  r.Sigla = file.LeggiVoceTesto();
  r.ValoreSigla = file.LeggiVoceNumero();
}

Intero16 LeggiConteggio(FileInLettura& file, int massimo, const char* cosa) {
  const Intero16 n = file.LeggiVoceIntero();
  if (n < 0 || n > massimo)
    file.Malformato(Testo("numero di ") + cosa + " non valido: " + std::to_string(n) + ", al massimo " +
                    std::to_string(massimo));
  return n;
}

}  // namespace tarvel

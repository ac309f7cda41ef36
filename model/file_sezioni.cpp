// Writer and reader stand side by side, record by record, as the lines stand in the file.
#include "model/file_sezioni.h"

#include <algorithm>

#include "base/errore.h"
#include "base/numeri.h"
#include "base/tronca.h"
#include "model/tabella_sezioni.h"
#include "platform/desktop.h"
#include "platform/file.h"

namespace tarvel {

Testo FileSezioni;
Testo PrefissoNome;
Intero16 NumeroProposto = 1;

namespace {

// A file that was there and could not be opened when it was to be read: the table does not hold its
// sections, so it is not replaced until it has been read.
Testo gIntoccabile;

Testo FileCopia() {
  return FileSezioni + ".bak";
}

Testo DoveLaCopia() {
  return "la versione precedente è in "_t + FileCopia();
}

// --- Writing

constexpr int kDecimali = 2;
constexpr int kDecimaliTensioni = 14;
constexpr std::size_t kPassoColonne = 20;  // column stops 21, 41 and 61

// One line of values at the column stops, at the end of a text. A value that reaches beyond the next
// stop pushes it to a new line, where no reader looks for it: values of that length do not occur.
class RigaColonne {
 public:
  explicit RigaColonne(Testo& testo) : testo_(testo), inizio_(testo.size()) {}

  RigaColonne& Testuale(std::string_view testo) {
    ProssimaColonna();
    testo_ += testo;
    return *this;
  }
  RigaColonne& Tagliato(Reale valore) {
    ProssimaColonna();
    AccodaNumero(testo_, Tronca(valore, kDecimali));
    return *this;
  }
  // The sign is dropped: stresses are stored as magnitudes.
  RigaColonne& Tensione(Reale valore) {
    ProssimaColonna();
    AccodaNumero(testo_, Tronca(Assoluto(valore), kDecimaliTensioni));
    return *this;
  }
  RigaColonne& Conteggio(Intero16 valore) {
    ProssimaColonna();
    AccodaNumero(testo_, static_cast<int>(valore));
    return *this;
  }
  void Fine() { AccodaRiga(testo_, ""); }

 private:
  void ProssimaColonna() {
    const std::size_t fermata = kPassoColonne * static_cast<std::size_t>(valori_++);
    if (testo_.size() - inizio_ > fermata) {
      Fine();
      inizio_ = testo_.size();
    }
    testo_.resize(inizio_ + fermata, ' ');
  }

  Testo& testo_;
  std::size_t inizio_;
  int valori_ = 0;
};

void ScriviPoligono(Testo& testo, const GeometriaSezione& g, int p) {
  AccodaStampato(testo, static_cast<int>(g.NumVertici[p]));
  AccodaRiga(testo, "");
  for (int v = g.NumVertici[p]; v >= 1; --v)
    RigaColonne(testo).Tagliato(g.VerticeZ(p, v)).Tagliato(g.VerticeY(p, v)).Testuale("0").Fine();
}

void ScriviPunto(Testo& testo, RecordSezione& r, int j) {
  const Testo etichetta(r.EtichettaPunto[j].Rifilato());
  r.EtichettaPunto[j] = etichetta;
  RigaColonne(testo).Tagliato(r.PuntoZ[j]).Tagliato(r.PuntoY[j]).Testuale(etichetta).Fine();
  RigaColonne(testo).Tensione(r.TauT[j]).Conteggio(r.IndicatoreTauT[j]).Fine();
  RigaColonne(testo).Tensione(r.TauVy[j]).Conteggio(r.IndicatoreTauVy[j]).Fine();
  RigaColonne(testo).Tensione(r.TauVz[j]).Conteggio(r.IndicatoreTauVz[j]).Fine();
}

void ScriviRecord(Testo& testo, RecordSezione& r) {
  const auto riga = [&] { return RigaColonne(testo); };
  AccodaRiga(testo, r.Nome);
  riga().Tagliato(r.BaseTotale).Tagliato(r.AltezzaTotale).Tagliato(r.ZG).Tagliato(r.YG).Fine();
  riga().Conteggio(r.NumPoligoni).Fine();
  for (int p = 1; p <= r.NumPoligoni; ++p) ScriviPoligono(testo, r, p);
  riga().Tagliato(r.An).Tagliato(r.Aty).Tagliato(r.Atz).Fine();
  riga().Tagliato(r.Jt).Tagliato(r.Jyg).Tagliato(r.Jzg).Tagliato(r.ValoreAggiuntivo).Fine();
  riga().Conteggio(r.NumPunti).Fine();
  for (int j = 1; j <= r.NumPunti; ++j) ScriviPunto(testo, r, j);
  AccodaRiga(testo, SenzaBlanchi(r.Sigla));
  riga().Tagliato(r.ValoreSigla).Fine();
}

Testo ConConteggio(Intero16 sezioni, const Testo& record) {
  Testo testo;
  RigaColonne(testo).Conteggio(sezioni).Fine();
  return testo + record;
}

// --- Reading

// A whole line taken apart at its blanks.
class RigaParole {
 public:
  explicit RigaParole(FileInLettura& file) : file_(file), resto_(SenzaBlanchi(file.LeggiRiga())) {}

  std::string_view Parola() {
    const std::string_view parola = resto_.substr(0, resto_.find(' '));
    resto_ = SenzaBlanchi(resto_.substr(parola.size()));
    return parola;
  }
  std::string_view Resto() const { return resto_; }
  Reale Numero() { return ConvertiNumero(Parola()); }
  // The points are for the program that uses the file, which takes no word for a number: strictly.
  Reale NumeroStretto() {
    const std::string_view parola = Parola();
    const auto valore = NumeroInvariante(parola);
    if (!valore)
      file_.Malformato("coordinata di un punto non valida \"" + Testo(parola.substr(0, 40)) + "\"");
    return *valore;
  }

 private:
  FileInLettura& file_;
  std::string_view resto_;
};

Intero16 LeggiConteggio(FileInLettura& file, int massimo, const char* cosa) {
  const Intero16 n = file.LeggiVoceIntero();
  if (n < 0 || n > massimo)
    file.Malformato(Testo("numero di ") + cosa + " non valido: " + std::to_string(n) + ", al massimo " +
                    std::to_string(massimo));
  return n;
}

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

void LeggiRecord(FileInLettura& file, RecordSezione& r) {
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
    r.ValoreAggiuntivo = ConvertiNumero(riga.Resto());
  }
  r.NumPunti = LeggiConteggio(file, kMaxPunti, "punti");
  for (int j = 1; j <= r.NumPunti; ++j) LeggiPunto(file, r, j);
  r.Sigla = file.LeggiVoceTesto();
  r.ValoreSigla = file.LeggiVoceNumero();
}

}  // namespace

void LeggiFileSezioni(bool mostraErrore) {
  auto file = FileInLettura::Apri(FileSezioni);
  gIntoccabile = file || GenereFile(FileSezioni) == TipoVoce::Assente ? Testo() : FileSezioni;
  if (!file) {
    if (mostraErrore) MostraMessaggio("File " + FileSezioni + " non trovato", "ERRORE", Icona::Stop);
    return;
  }
  try {
    NumeroSezioniFile = LeggiConteggio(*file, kMaxSezioni, "sezioni");
    NumeroSezioni = NumeroSezioniFile;
    for (int i = 1; i <= NumeroSezioni; ++i) LeggiRecord(*file, TabellaSezioni[i]);
  } catch (ErroreFatale& errore) {
    if (GenereFile(FileCopia()) == TipoVoce::File) errore.dove += "; " + DoveLaCopia();
    throw;
  }
}

void ScriviFileSezioni() {
  Testo record;
  for (int i = 1; i <= NumeroSezioni; ++i)
    Durante([&] { return SullaSezione("salvataggio", TabellaSezioni[i].Nome); },
            [&] { ScriviRecord(record, TabellaSezioni[i]); });

  const TipoVoce vecchio = FileSezioni == gIntoccabile ? TipoVoce::Ignota : GenereFile(FileSezioni);
  const bool alSicuro =
      vecchio == TipoVoce::Assente || (vecchio == TipoVoce::File && CopiaFile(FileSezioni, FileCopia()));
  const auto esito = alSicuro ? ScriviFile(FileSezioni, ConConteggio(NumeroSezioni, record), true)
                              : EsitoScrittura::NonAperto;
  if (esito == EsitoScrittura::NonAperto)
    MostraMessaggio("Problemi nella scrittura del file " + FileSezioni, "ERRORE", Icona::Stop);
  if (esito == EsitoScrittura::Incompleto)
    throw ErroreFatale(TipoErrore::File, "scrittura del file non riuscita",
                       "il file " + FileSezioni + " può essere incompleto"_t +
                           (vecchio == TipoVoce::File ? "; " + DoveLaCopia() : ""));
}

Testo ComponiSezioniScrivibili() {
  Testo record;
  Intero16 scritte;
  for (int i = 1; i <= std::min<int>(NumeroSezioni, kMaxSezioni); ++i) {
    const std::size_t inizio = record.size();
    try {
      ScriviRecord(record, TabellaSezioni[i]);
      ++scritte;
    } catch (const ErroreFatale&) {
      record.resize(inizio);
    }
  }
  return ConConteggio(scritte, record);
}

Testo ProponiNome(Intero16 numero) {
  const Testo cifre = "000" + FormatoNumero(static_cast<int>(numero));
  return Testo(SenzaBlanchi(PrefissoNome + cifre.substr(cifre.size() - 3)));
}

Testo NormalizzaNome(const Testo& nome, const Testo& voluto, const Testo& altro) {
  const Testo inizio = Maiuscole(nome.substr(0, 2));
  if (inizio == voluto) return nome;
  if (inizio == altro) return voluto + nome.substr(2);
  return voluto + Testo(SenzaBlanchi(nome));
}

}  // namespace tarvel

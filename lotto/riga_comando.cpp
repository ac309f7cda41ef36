#include "lotto/riga_comando.h"

#include <algorithm>
#include <charconv>
#include <thread>

#include "base/errore.h"
#include "platform/comune/terminale.h"
#include "platform/file.h"

namespace tarvel::lotto {

const char* const kAiuto = R"(tarvel1-lotto - calcola molte sezioni, una per riga di un CSV

uso:  tarvel1-lotto [OPZIONE]... [FILE]...        FILE: un CSV; nessuno, o -, lo standard input

Ogni riga ha le 21 dimensioni: nell'ordine delle caselle, da 0 a 20, o in quello della prima riga, se ha i
nomi (p0 ... p20, o quelli della guida); "nome" è il nome della sezione. Le colonne sono separate da punto e
virgola, virgola o tabulazione. Una riga vuota o che comincia con # è saltata.

Scrive una riga per sezione: nome, caratteristiche con 15 cifre, errore. Una riga che non si può calcolare
dice perché, le altre proseguono.

  --virgola            i decimali sono scritti con la virgola; anche in uscita e nei disegni
  --punti              aggiunge i 14 punti caratteristici con le tensioni unitarie
  --da FILE            legge le sezioni da un file sezio_ut, invece che da un CSV, e le ricalcola
  --senza NOME         di quelle di --da lascia fuori la sezione NOME, la prima di questo nome; si può ripetere
  --fin-dove-si-legge  di un file di --da rovinato prende le sezioni prima della riga guasta, e dice quante
  --sezio FILE         scrive un nuovo file sezio_ut, al massimo 500 sezioni: quelle calcolate; con --da, quelle
                       del file come sono, anche se non si possono ricalcolare
  --disegni CARTELLA   scrive il disegno di ogni sezione in una cartella che c'è già
  --opzioni FILE       opzioni dei disegni (CapOpSez.txt); senza, quelle predefinite
  --processi N         quanti calcoli insieme; di regola tanti quanti i processori
  --aiuto, --help      questo testo
  --version            la versione

stato d'uscita:
  0    tutte le righe sono calcolate
  1    il lavoro non è finito: un file non si legge o non si scrive, l'intestazione è sbagliata
  2    la riga di comando è sbagliata, o la sezione di --senza non c'è
  3    qualche riga non è calcolata, o il suo disegno non è scritto, o il file di --da è letto solo in parte
  130  interrotto (Ctrl+C); 141: chi leggeva ha smesso. Le righe scritte sono intere, --sezio non è scritto

esempi:
  tarvel1-lotto varianti.csv > caratteristiche.csv
  tarvel1-lotto --virgola --punti --sezio nuovo_sezio_ut varianti.csv > caratteristiche.csv
  tarvel1-lotto --da sezio_ut --senza U_PO_007 --sezio sezio_ut.nuovo
  tarvel1-lotto --da Lavori/PR0001/sezio_ut | sort -t ';' -k 6 -g
)";

namespace {

constexpr int kMassimoProcessi = 256;

[[noreturn]] void Rifiuta(const Testo& cosa) {
  throw ErroreFatale(TipoErrore::Argomento, cosa);
}

Testo Percorso(const std::string& utf8) {
  Testo percorso = DaUtf8(utf8);
  if (InUtf8(percorso) != utf8)
    Rifiuta("\""_t + percorso + "\": il nome ha caratteri che il programma non sa scrivere");
  if (percorso.empty()) Rifiuta("un nome di file vuoto");
  RicordaGrafia(percorso);
  return percorso;
}

int Processi(const std::string& testo) {
  int n = 0;
  const char* const fine = testo.data() + testo.size();
  const auto letto = std::from_chars(testo.data(), fine, n);
  if (letto.ec != std::errc() || letto.ptr != fine || n < 1 || n > kMassimoProcessi)
    Rifiuta("--processi: un numero da 1 a " + std::to_string(kMassimoProcessi) + ", non \"" + DaUtf8(testo) +
            "\"");
  return n;
}

void Controlla(const Richieste& r) {
  if (!r.da.empty() && !r.ingressi.empty()) Rifiuta("--da e un CSV insieme: l'uno o l'altro");
  if (r.da.empty() && !r.senza.empty()) Rifiuta("--senza senza --da");
  if (r.da.empty() && r.finDoveSiLegge) Rifiuta("--fin-dove-si-legge senza --da");
  if (!r.opzioni.empty() && r.disegni.empty()) Rifiuta("--opzioni senza --disegni");
  if (!r.opzioni.empty() && GenereFile(r.opzioni) != TipoVoce::File)
    Rifiuta("--opzioni: il file " + r.opzioni + " non si legge");
  if (!r.disegni.empty() && GenereFile(r.disegni) != TipoVoce::Cartella)
    Rifiuta("--disegni: la cartella " + r.disegni + " non esiste");
  // Rows added to the file that is being read would be read in turn, without end.
  if (std::any_of(r.ingressi.begin(), r.ingressi.end(), UscitaNelFile) ||
      (!r.da.empty() && UscitaNelFile(InUtf8(r.da))))
    Rifiuta("legge e scrive lo stesso file: le righe calcolate vanno in un altro");
  if (r.sezio.empty()) return;
  // A file of sections may be a job's only one.
  if (GenereFile(r.sezio) != TipoVoce::Assente)
    Rifiuta("--sezio: " + r.sezio + " esiste già, e un file di sezioni non viene sostituito"_t);
  const auto barra = r.sezio.find_last_of("/\\");
  if (barra != Testo::npos && GenereFile(r.sezio.substr(0, barra + 1)) != TipoVoce::Cartella)
    Rifiuta("--sezio: la cartella di " + r.sezio + " non esiste");
}

}  // namespace

Richieste LeggiRichieste(std::span<const std::string> argomenti) {
  Richieste r;
  r.processi = std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMassimoProcessi);
  const struct {
    const char* nome;
    bool* segno;
  } segni[] = {{"--virgola", &r.virgola}, {"--punti", &r.punti}, {"--fin-dove-si-legge", &r.finDoveSiLegge},
               {"--aiuto", &r.aiuto},     {"--help", &r.aiuto},  {"--version", &r.versione}};
  const struct {
    const char* nome;
    Testo* percorso;
  } percorsi[] = {
      {"--da", &r.da}, {"--sezio", &r.sezio}, {"--disegni", &r.disegni}, {"--opzioni", &r.opzioni}};

  bool opzioni = true;
  for (auto a = argomenti.begin(); a != argomenti.end(); ++a) {
    if (!opzioni || !a->starts_with('-') || *a == "-") {
      r.ingressi.push_back(*a);
      continue;
    }
    if (*a == "--") {
      opzioni = false;
      continue;
    }
    const auto chiamata = [&](const auto& voce) { return *a == voce.nome; };
    if (const auto* s = std::find_if(std::begin(segni), std::end(segni), chiamata); s != std::end(segni)) {
      *s->segno = true;
      continue;
    }
    const auto* p = std::find_if(std::begin(percorsi), std::end(percorsi), chiamata);
    const std::string& nome = *a;
    if (p == std::end(percorsi) && nome != "--processi" && nome != "--senza")
      Rifiuta("opzione sconosciuta: " + DaUtf8(nome));
    if (++a == argomenti.end()) Rifiuta("dopo " + nome + " manca il valore");
    if (p != std::end(percorsi))
      *p->percorso = Percorso(*a);
    else if (nome == "--senza")
      r.senza.push_back(*a);
    else
      r.processi = Processi(*a);
  }
  if (r.aiuto || r.versione) return r;
  if (r.da.empty() && r.ingressi.empty()) r.ingressi.emplace_back("-");
  Controlla(r);
  return r;
}

}  // namespace tarvel::lotto

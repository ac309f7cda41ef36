#include "lotto/riga_comando.h"

#include <algorithm>

#include "platform/comune/terminale.h"
#include "platform/file.h"

namespace tarvel::lotto {
namespace {

constexpr char kPrima[] = R"(tarvel1-lotto - calcola molte sezioni, una per riga di un CSV

uso:  tarvel1-lotto [OPZIONE]... [FILE]...        FILE: un CSV; nessuno, o -, lo standard input

Ogni riga ha le 21 dimensioni: nell'ordine delle caselle, da 0 a 20, o in quello della prima riga, se ha i
nomi (p0 ... p20, o quelli della guida); "nome" è il nome della sezione. Le colonne sono separate da punto e
virgola, virgola o tabulazione. Una riga vuota o che comincia con # è saltata.

Scrive una riga per sezione: nome, caratteristiche con 15 cifre, errore. Una riga che non si può calcolare
dice perché, le altre proseguono.

)";

constexpr char kDopo[] = R"(
stato d'uscita:
  0    tutte le righe sono calcolate
  1    il lavoro non è finito: un file non si legge o non si scrive, l'intestazione è sbagliata, non c'è nessuna riga
  2    la riga di comando è sbagliata, o la sezione di --senza non c'è
  3    qualche riga non è calcolata, o il suo disegno non è scritto, o il file di --da è letto solo in parte
  130  interrotto (Ctrl+C); 141: chi leggeva ha smesso. Le righe scritte sono intere, --sezio non è scritto

esempi:
  tarvel1-lotto varianti.csv > caratteristiche.csv
  tarvel1-lotto --virgola --punti --sezio nuovo_sezio_ut varianti.csv > caratteristiche.csv
  tarvel1-lotto --da sezio_ut --senza U_PO_007 --sezio sezio_ut.nuovo
  tarvel1-lotto --da Lavori/PR0001/sezio_ut | sort -t ';' -k 6 -g
)";

auto Percorso(Testo& dove) {
  return [&dove](const std::string& utf8) -> std::string {
    dove = DaUtf8(utf8);
    RicordaGrafia(dove);
    return !utf8.empty() && InUtf8(dove) == utf8 ? "" : "un nome che il programma sappia scrivere";
  };
}

Comando ComandoLotto(Richieste& r) {
  const auto aggiungi = [&r](const std::string& nome) {
    r.senza.push_back(nome);
    return std::string();
  };
  return {
      kProgramma,
      VERSIONE,
      kPrima,
      kDopo,
      {{"--virgola", "", "i decimali sono scritti con la virgola; anche in uscita e nei disegni",
        Imposta(r.virgola)},
       {"--punti", "", "aggiunge i 14 punti caratteristici con le tensioni unitarie", Imposta(r.punti)},
       {"--da", "FILE", "legge le sezioni da un file sezio_ut, invece che da un CSV, e le ricalcola",
        Percorso(r.da)},
       {"--senza", "NOME",
        "di quelle di --da lascia fuori la sezione NOME, la prima di questo nome; si può ripetere", aggiungi},
       {"--fin-dove-si-legge", "",
        "di un file di --da rovinato prende le sezioni prima della riga guasta, e dice quante",
        Imposta(r.finDoveSiLegge)},
       {"--sezio", "FILE",
        "scrive un nuovo file sezio_ut, al massimo 500 sezioni: quelle calcolate; con --da, quelle",
        Percorso(r.sezio)},
       {"", "", "del file come sono, anche se non si possono ricalcolare", {}},
       {"--disegni", "CARTELLA", "scrive il disegno di ogni sezione in una cartella che c'è già",
        Percorso(r.disegni)},
       {"--opzioni", "FILE", "opzioni dei disegni (CapOpSez.txt); senza, quelle predefinite",
        Percorso(r.opzioni)},
       // Scripts of users may still have it.
       {"--processi", "N", "", [](const std::string&) { return ""; }}}};
}

// What is wrong with the whole; "" when nothing is.
Testo Controlla(const Richieste& r) {
  if (!r.da.empty() && !r.ingressi.empty()) return "--da e un CSV insieme: l'uno o l'altro";
  if (r.da.empty() && !r.senza.empty()) return "--senza senza --da";
  if (r.da.empty() && r.finDoveSiLegge) return "--fin-dove-si-legge senza --da";
  if (!r.opzioni.empty() && r.disegni.empty()) return "--opzioni senza --disegni";
  if (!r.opzioni.empty() && GenereFile(r.opzioni) != TipoVoce::File)
    return "--opzioni: il file " + r.opzioni + " non si legge";
  if (!r.disegni.empty() && GenereFile(r.disegni) != TipoVoce::Cartella)
    return "--disegni: la cartella " + r.disegni + " non esiste";
  // The filter would read the rows that it adds to its input, without end.
  if (std::any_of(r.ingressi.begin(), r.ingressi.end(), UscitaNelFile) ||
      (!r.da.empty() && UscitaNelFile(InUtf8(r.da))))
    return "legge e scrive lo stesso file: le righe calcolate vanno in un altro";
  if (r.sezio.empty()) return {};
  // A file of sections may be a job's only one.
  if (GenereFile(r.sezio) != TipoVoce::Assente)
    return "--sezio: " + r.sezio + " esiste già, e un file di sezioni non viene sostituito"_t;
  const auto barra = r.sezio.find_last_of("/\\");
  if (barra != Testo::npos && GenereFile(r.sezio.substr(0, barra + 1)) != TipoVoce::Cartella)
    return "--sezio: la cartella di " + r.sezio + " non esiste";
  return {};
}

}  // namespace

std::variant<Richieste, Congedo> LeggiRichieste(std::span<const std::string> argomenti) {
  Richieste r;
  ComandoLetto letto = LeggiComando(ComandoLotto(r), argomenti);
  if (letto.congedo) return *letto.congedo;
  r.ingressi = std::move(letto.argomenti);
  if (r.da.empty() && r.ingressi.empty()) r.ingressi.emplace_back("-");
  if (const Testo errore = Controlla(r); !errore.empty()) return Sbagliato(kProgramma, InUtf8(errore));
  return r;
}

}  // namespace tarvel::lotto

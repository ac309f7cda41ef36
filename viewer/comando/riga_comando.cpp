#include "viewer/comando/riga_comando.h"

#include <QFileInfo>
#include <algorithm>
#include <optional>
#include <vector>

#include "viewer/esporta/esporta.h"

namespace ostrel {

namespace {

constexpr char kProgramma[] = "ostrel";

constexpr char kPrima[] = R"(ostrel - mostra, stampa ed esporta i disegni delle sezioni

uso:  ostrel [--senza-sorveglianza] [DISEGNO]
      ostrel --esporta FILE [OPZIONE]... DISEGNO
      ostrel --esporta FILE.pdf [OPZIONE]... DISEGNO...
      ostrel --esporta CARTELLA --tipo TIPO [OPZIONE]... DISEGNO...

Mostra un DISEGNO (.dis) in una finestra; senza, quello nominato da "ostrel.inp", nella cartella corrente o in
quella del programma. Con --esporta non apre finestre e non ha bisogno di uno schermo.

)";

constexpr char kDopo[] = R"(
Un disegno che non si legge, non si scrive o non sta nel foglio è detto e saltato, gli altri proseguono.

stato d'uscita:
  0    tutto è esportato; o la finestra è stata chiusa
  1    qualche disegno non è esportato, o manca lo schermo per la finestra
  2    la riga di comando è sbagliata, e non è scritto niente

esempi:
  ostrel ponte.dis
  ostrel --esporta ponte.png ponte.dis
  ostrel --esporta ponte.pdf --unita cm --scala 1:50 --carta A3 ponte.dis
  ostrel --esporta tavole.pdf --unita cm --scala 1:100 Lavori/PR0001/*.dis
  ostrel --esporta tavole --tipo dxf --unita cm Lavori/PR0001/*.dis
)";

using tarvel::Imposta;

// For the table: keeps what `leggi` makes of a value; where it makes nothing, `atteso` is what the option
// wants.
template <class Valore>
auto Accogli(Valore& dove, std::optional<Valore> (*leggi)(const QString&), const char* atteso) {
  return [&dove, leggi, atteso](const std::string& valore) -> std::string {
    const auto letto = leggi(QString::fromStdString(valore));
    dove = letto.value_or(dove);
    return letto ? "" : atteso;
  };
}

std::optional<QString> LeggiDestinazione(const QString& testo) {
  return testo.isEmpty() ? std::nullopt : std::optional(testo);
}

std::optional<QString> LeggiTipo(const QString& testo) {
  return FinaliEsportazione().contains(testo.toLower()) ? std::optional(testo.toLower()) : std::nullopt;
}

tarvel::Comando ComandoOstrel(Richieste& r) {
  const auto esporta = Accogli(r.esporta, LeggiDestinazione, "il nome di un file o di una cartella");
  return {
      kProgramma,
      VERSIONE,
      kPrima,
      kDopo,
      {{"--esporta", "FILE",
        "scrive il disegno in un file .png, .svg, .pdf o .dxf; un file che c'è già è sostituito", esporta},
       {"--esporta", "FILE.pdf", "con più disegni: un solo documento, una pagina per disegno", esporta},
       {"--esporta", "CARTELLA",
        "scrive ogni disegno nella cartella, che c'è già, col nome del disegno e il tipo chiesto", esporta},
       {"--tipo", "TIPO", "png, svg, pdf o dxf", Accogli(r.tipo, LeggiTipo, "png, svg, pdf o dxf")},
       {"--unita", "UNITÀ",
        "mm, cm o m: in che unità è il disegno (PDF e DXF); il file del disegno non lo dice",
        Accogli(r.resa.unita, LeggiUnita, "mm, cm o m")},
       {"--scala", "SCALA",
        "1:50, 50, 1:12,5... o adatta, quanto basta il foglio (PDF); una scala vuole --unita",
        Accogli(r.resa.rapporto, LeggiScala, "una scala, come 1:50, o \"adatta\"")},
       {"--carta", "FOGLIO", "A4, A3, A2, A1 o A0 (PDF); senza, A4",
        Accogli(r.resa.carta, LeggiCarta, "A4, A3, A2, A1 o A0")},
       {"--orientamento", "VERSO",
        "verticale, orizzontale o automatico, quello in cui il disegno ha più posto (PDF)",
        Accogli(r.resa.orientamento, LeggiOrientamento, "verticale, orizzontale o automatico")},
       {"--comunque", "",
        "scrive anche il disegno che a quella scala non sta nel foglio: il resto è tagliato",
        Imposta(r.comunque)},
       {"--senza-sorveglianza", "",
        "nella finestra il disegno si rilegge soltanto a comando, non quando il file cambia",
        Imposta(r.sorveglia, false)}}};
}

// What is wrong with the whole; "" when nothing is.
QString Controlla(const Richieste& r, const std::vector<std::string>& dette) {
  const auto detta = [&](const char* nome) {
    return std::find(dette.begin(), dette.end(), nome) != dette.end();
  };
  if (r.esporta.isEmpty()) {
    for (const std::string& nome : dette)
      if (nome != "--senza-sorveglianza")
        return QString("%1 vale soltanto con --esporta").arg(QString::fromStdString(nome));
    if (r.disegni.size() > 1) return "troppi argomenti: si mostra un disegno alla volta";
    return {};
  }
  if (detta("--senza-sorveglianza"))
    return "--senza-sorveglianza vale soltanto per la finestra, senza --esporta";
  if (r.disegni.isEmpty()) return "manca il disegno da esportare";
  const bool cartella = QFileInfo(r.esporta).isDir();
  if (r.tipo.isEmpty() && cartella)
    return QString("%1 è una cartella: ci vuole --tipo png, svg, pdf o dxf").arg(r.esporta);
  if (!r.tipo.isEmpty() && !cartella)
    return QString("la cartella %1 non esiste; --tipo la vuole").arg(r.esporta);
  const QString finale = r.tipo.isEmpty() ? FinaleDi(r.esporta) : r.tipo;
  if (finale.isEmpty()) return QString("file %1: si esporta in .png, .svg, .pdf o .dxf").arg(r.esporta);
  if (r.tipo.isEmpty() && finale != "pdf" && r.disegni.size() > 1)
    return "più disegni si esportano in un PDF, o in una cartella con --esporta CARTELLA --tipo TIPO";
  for (const char* nome : {"--scala", "--carta", "--orientamento", "--comunque"})
    if (finale != "pdf" && detta(nome)) return QString("%1 vale soltanto per il PDF").arg(nome);
  if (finale != "pdf" && finale != "dxf" && detta("--unita")) return "--unita vale soltanto per PDF e DXF";
  if (r.resa.rapporto > 0 && r.resa.unita == Unita::Ignota)
    return "--scala vuole anche --unita: in che unità è il disegno, mm, cm o m";
  return {};
}

}  // namespace

std::variant<Richieste, tarvel::Congedo> LeggiRichieste(std::span<const std::string> argomenti) {
  Richieste r;
  const tarvel::ComandoLetto letto = tarvel::LeggiComando(ComandoOstrel(r), argomenti);
  if (letto.congedo) return *letto.congedo;
  for (const std::string& disegno : letto.argomenti) r.disegni << QString::fromStdString(disegno);
  if (const QString errore = Controlla(r, letto.dette); !errore.isEmpty())
    return tarvel::Sbagliato(kProgramma, errore.toStdString());
  return r;
}

}  // namespace ostrel

#include "viewer/comando/riga_comando.h"

#include <QFileInfo>
#include <algorithm>
#include <iterator>

#include "viewer/esporta/esporta.h"

namespace ostrel {

const char* const kAiuto = R"(ostrel - mostra, stampa ed esporta i disegni delle sezioni

uso:  ostrel [--senza-sorveglianza] [DISEGNO]
      ostrel --esporta FILE [OPZIONE]... DISEGNO
      ostrel --esporta FILE.pdf [OPZIONE]... DISEGNO...
      ostrel --esporta CARTELLA --tipo TIPO [OPZIONE]... DISEGNO...

Mostra un DISEGNO (.dis) in una finestra; senza, quello nominato da "ostrel.inp", nella cartella corrente o in
quella del programma. Con --esporta non apre finestre e non ha bisogno di uno schermo.

  --esporta FILE         scrive il disegno in un file .png, .svg, .pdf o .dxf; un file che c'è già è sostituito
  --esporta FILE.pdf     con più disegni: un solo documento, una pagina per disegno
  --esporta CARTELLA     scrive ogni disegno nella cartella, che c'è già, col nome del disegno e il tipo chiesto
  --tipo TIPO            png, svg, pdf o dxf
  --unita UNITÀ          mm, cm o m: in che unità è il disegno (PDF e DXF); il file del disegno non lo dice
  --scala SCALA          1:50, 50, 1:12,5... o adatta, quanto basta il foglio (PDF); una scala vuole --unita
  --carta FOGLIO         A4, A3, A2, A1 o A0 (PDF); senza, A4
  --orientamento VERSO   verticale, orizzontale o automatico, quello in cui il disegno ha più posto (PDF)
  --comunque             scrive anche il disegno che a quella scala non sta nel foglio: il resto è tagliato
  --senza-sorveglianza   nella finestra il disegno si rilegge soltanto a comando, non quando il file cambia
  --aiuto, --help, -h    questo testo
  --version              la versione

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

namespace {

template <class Valore>
Errore Accogli(std::optional<Valore> letto, Valore& dove, const char* atteso) {
  if (!letto) return atteso;
  dove = *letto;
  return std::nullopt;
}

struct OpzioneConValore {
  const char* nome;
  Errore (*prendi)(Richieste&, const QString&);
};
const OpzioneConValore kConValore[] = {
    {"--esporta",
     [](Richieste& r, const QString& v) -> Errore {
       r.esporta = v;
       return v.isEmpty() ? Errore("il nome di un file o di una cartella") : std::nullopt;
     }},
    {"--tipo",
     [](Richieste& r, const QString& v) -> Errore {
       r.tipo = v.toLower();
       return FinaliEsportazione().contains(r.tipo) ? std::nullopt : Errore("png, svg, pdf o dxf");
     }},
    {"--unita",
     [](Richieste& r, const QString& v) { return Accogli(LeggiUnita(v), r.resa.unita, "mm, cm o m"); }},
    {"--scala",
     [](Richieste& r, const QString& v) {
       return Accogli(LeggiScala(v), r.resa.rapporto, "una scala, come 1:50, o \"adatta\"");
     }},
    {"--carta", [](Richieste& r,
                   const QString& v) { return Accogli(LeggiCarta(v), r.resa.carta, "A4, A3, A2, A1 o A0"); }},
    {"--orientamento",
     [](Richieste& r, const QString& v) {
       return Accogli(LeggiOrientamento(v), r.resa.orientamento, "verticale, orizzontale o automatico");
     }},
};

struct OpzioneSola {
  const char* nome;
  void (*prendi)(Richieste&);
};
const OpzioneSola kSole[] = {
    {"--comunque", [](Richieste& r) { r.comunque = true; }},
    {"--senza-sorveglianza", [](Richieste& r) { r.sorveglia = false; }},
    {"--aiuto", [](Richieste& r) { r.aiuto = true; }},
    {"--help", [](Richieste& r) { r.aiuto = true; }},
    {"-h", [](Richieste& r) { r.aiuto = true; }},
    {"--version", [](Richieste& r) { r.versione = true; }},
};

template <class Voci>
auto Trova(const Voci& voci, const QString& nome) {
  return std::find_if(std::begin(voci), std::end(voci),
                      [&](const auto& voce) { return nome == QLatin1StringView(voce.nome); });
}

// `dette` are the options of the command line.
Errore Controlla(const Richieste& r, const QStringList& dette) {
  static const QStringList kDellaCarta = {"--scala", "--carta", "--orientamento", "--comunque"};
  if (r.esporta.isEmpty()) {
    for (const QString& nome : dette)
      if (nome != "--senza-sorveglianza") return nome + " vale soltanto con --esporta";
    if (r.disegni.size() > 1) return "troppi argomenti: si mostra un disegno alla volta";
    return std::nullopt;
  }
  if (dette.contains("--senza-sorveglianza"))
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
  for (const QString& nome : dette)
    if (finale != "pdf" && kDellaCarta.contains(nome)) return nome + " vale soltanto per il PDF";
  if (finale != "pdf" && finale != "dxf" && dette.contains("--unita"))
    return "--unita vale soltanto per PDF e DXF";
  if (r.resa.rapporto > 0 && r.resa.unita == Unita::Ignota)
    return "--scala vuole anche --unita: in che unità è il disegno, mm, cm o m";
  return std::nullopt;
}

}  // namespace

std::variant<Richieste, QString> LeggiRichieste(std::span<const std::string> argomenti) {
  Richieste richieste;
  QStringList dette;
  bool opzioni = true;
  for (auto a = argomenti.begin(); a != argomenti.end(); ++a) {
    const QString argomento = QString::fromStdString(*a);
    if (!opzioni || !argomento.startsWith('-') || argomento == "-") {
      richieste.disegni << argomento;
      continue;
    }
    if (argomento == "--") {
      opzioni = false;
      continue;
    }
    if (const auto* s = Trova(kSole, argomento); s != std::end(kSole)) {
      s->prendi(richieste);
      dette << argomento;
      continue;
    }
    const auto uguale = argomento.indexOf('=');
    const QString nome = argomento.left(uguale);
    const auto* p = Trova(kConValore, nome);
    if (p == std::end(kConValore)) return "opzione sconosciuta: " + argomento;
    if (uguale < 0 && ++a == argomenti.end()) return QString("dopo %1 manca il valore").arg(nome);
    const QString valore = uguale < 0 ? QString::fromStdString(*a) : argomento.mid(uguale + 1);
    if (const auto atteso = p->prendi(richieste, valore))
      return QString("%1: %2, non \"%3\"").arg(nome, *atteso, valore);
    dette << nome;
  }
  if (richieste.aiuto || richieste.versione) return richieste;
  if (const auto errore = Controlla(richieste, dette)) return *errore;
  return richieste;
}

}  // namespace ostrel

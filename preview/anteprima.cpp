// The viewer is started once; later previews only ask it to read the same file again.
#include "preview/anteprima.h"

#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "platform/comune/scala.h"
#include "platform/desktop.h"
#include "platform/programmi.h"
#include "platform/scrittura.h"

namespace tarvel {

std::int32_t IdVisualizzatore = 0;

namespace {

constexpr char kTastiRicarica[] = "%(fg)";  // File menu, reload
constexpr char kTastiChiudi[] = "%{F4}";

void ErroreStop(const Testo& messaggio) {
  MostraMessaggio(messaggio, "ERRORE", Icona::Stop);
}

std::int32_t AvviaVisualizzatore(const Testo& percorso, std::int16_t stile) {
  const auto id = AvviaProgramma(percorso, stile);
  // The path begins with the folder, which so stands twice: the text is fixed.
  if (!id) ErroreStop("Problemi con l'apertura dell'applicazione " + DirProgra + percorso);
  return id.value_or(0);
}

bool ScriviInput(const Testo& percorso) {
  Testo testo;
  AccodaRiga(testo, "inutilizzato");
  AccodaRiga(testo, DirLavori + NomeFileDisegno);
  const Rettangolo& p = kPostoVisualizzatore;
  for (const int misura : {p.sinistra, p.alto, p.larghezza, p.altezza})
    AccodaRiga(testo, std::to_string(misura));
  return ScriviFile(percorso, testo) == EsitoScrittura::Scritto;
}

void ScriviInputVisualizzatore() {
  if (AttivaProgramma(IdVisualizzatore)) return;
  const Testo percorso = DirProgra + "\\ostrel.inp";
  if (!ScriviInput(percorso)) return ErroreStop("Problemi con la scrittura del file " + percorso);
  IdVisualizzatore = AvviaVisualizzatore(DirProgra + "\\ostrel.exe", 1);
}

}  // namespace

void Anteprima() {
  ImpostaPuntatore(Puntatore::Clessidra);
  if (AttivaProgramma(IdVisualizzatore))
    InviaTasti(kTastiRicarica);
  else
    ScriviInputVisualizzatore();
  ImpostaPuntatore(Puntatore::Predefinito);
}

void ChiudiVisualizzatore() {
  if (AttivaProgramma(IdVisualizzatore)) InviaTasti(kTastiChiudi);
}

}  // namespace tarvel

// The viewer is started once; later previews only ask it to read the same file again.
#include "preview/anteprima.h"

#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "platform/comune/scala.h"
#include "platform/programmi.h"
#include "platform/scrittura.h"

namespace tarvel {

namespace {

constexpr char kTastiRicarica[] = "%(fg)";  // File menu, reload
constexpr char kTastiChiudi[] = "%{F4}";

std::optional<Guasto> ScriviInput(const Testo& percorso) {
  Testo testo;
  AccodaRiga(testo, "inutilizzato");
  AccodaRiga(testo, DirLavori + NomeFileDisegno);
  const Rettangolo& p = kPostoVisualizzatore;
  for (const int misura : {p.sinistra, p.alto, p.larghezza, p.altezza})
    AccodaRiga(testo, std::to_string(misura));
  const EsitoScrittura esito = ScriviFile(percorso, testo);
  if (esito) return {};
  return Guasto{TipoErrore::File, "Problemi con la scrittura del file " + percorso, esito.motivo};
}

std::optional<Guasto> AvviaVisualizzatore(const Testo& percorso, std::int16_t stile) {
  const auto id = AvviaProgramma(percorso, stile);
  IdVisualizzatore = id.value_or(0);
  if (id) return {};
  // The path begins with the folder, which so stands twice: the text is fixed.
  return Guasto{TipoErrore::File, "Problemi con l'apertura dell'applicazione " + DirProgra + percorso};
}

std::optional<Guasto> ScriviInputVisualizzatore() {
  if (AttivaProgramma(IdVisualizzatore)) return {};
  const auto guasto = ScriviInput(DirProgra + "\\ostrel.inp");
  return guasto ? guasto : AvviaVisualizzatore(DirProgra + "\\ostrel.exe", 1);
}

}  // namespace

std::optional<Guasto> Anteprima() {
  if (!AttivaProgramma(IdVisualizzatore)) return ScriviInputVisualizzatore();
  InviaTasti(kTastiRicarica);
  return {};
}

void ChiudiVisualizzatore() {
  if (AttivaProgramma(IdVisualizzatore)) InviaTasti(kTastiChiudi);
}

}  // namespace tarvel

#include "viewer/finestra/preferenze.h"

#include <QSettings>

#include "viewer/esporta/esporta.h"

namespace ostrel {
namespace {

constexpr char kChiaveGenere[] = "esporta/genere";
constexpr char kChiaveUnita[] = "esporta/unita";
constexpr char kChiaveScala[] = "esporta/scala";
constexpr char kChiaveCarta[] = "esporta/carta";
constexpr char kChiaveOrientamento[] = "esporta/orientamento";

// With an organization alone the file bears its name and needs no folder of its own.
QSettings Impostazioni() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, "ostrel");
}

}  // namespace

QVariant Preferenza(const QString& chiave, const QVariant& altrimenti) {
  return Impostazioni().value(chiave, altrimenti);
}

void Ricorda(const QString& chiave, const QVariant& valore) {
  Impostazioni().setValue(chiave, valore);
}

SceltaResa ResaRicordata() {
  SceltaResa scelta;
  const auto testo = [](const char* chiave) { return Preferenza(chiave).toString(); };
  if (const QString genere = testo(kChiaveGenere); FinaliEsportazione().contains(genere))
    scelta.genere = genere;
  scelta.resa.unita = LeggiUnita(testo(kChiaveUnita)).value_or(scelta.resa.unita);
  scelta.resa.rapporto = LeggiScala(testo(kChiaveScala)).value_or(scelta.resa.rapporto);
  scelta.resa.carta = LeggiCarta(testo(kChiaveCarta)).value_or(scelta.resa.carta);
  scelta.resa.orientamento = LeggiOrientamento(testo(kChiaveOrientamento)).value_or(scelta.resa.orientamento);
  return scelta;
}

void RicordaResa(const SceltaResa& scelta) {
  Ricorda(kChiaveGenere, scelta.genere);
  Ricorda(kChiaveUnita, Nome(scelta.resa.unita));
  Ricorda(kChiaveScala, InTesto(scelta.resa.rapporto));
  Ricorda(kChiaveCarta, Nome(scelta.resa.carta));
  Ricorda(kChiaveOrientamento, Nome(scelta.resa.orientamento));
}

}  // namespace ostrel

#include "viewer/documento/preferenze.h"

#include <QFileInfo>
#include <QSettings>

#include "viewer/esporta/esporta.h"

namespace ostrel {
namespace {

constexpr char kChiaveFondoChiaro[] = "vista/fondo-chiaro";
constexpr char kChiaveRecenti[] = "file/recenti";
constexpr char kChiaveUnitaDeiFile[] = "file/unita";
constexpr char kChiaveGenere[] = "esporta/genere";
constexpr char kChiaveUnitaProposta[] = "esporta/unita";
constexpr char kChiaveScala[] = "esporta/scala";
constexpr char kChiaveCarta[] = "esporta/carta";
constexpr char kChiaveOrientamento[] = "esporta/orientamento";
constexpr char kNonDetta[] = "-";

// Named by the organization alone, the file needs no folder of its own.
QSettings Archivio() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, "ostrel");
}

// One path for one file, whichever link or folder it is reached through; also for one that is gone.
QString Chiave(const QString& file) {
  const QFileInfo info(file);
  return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

QString NomeUnita(const QString& riga) {
  return riga.section(' ', 0, 0);
}

QString FileUnita(const QString& riga) {
  return riga.section(' ', 1);
}

void TogliUnita(QStringList& unita, const QString& chiave) {
  unita.removeIf([&](const QString& riga) { return FileUnita(riga) == chiave; });
}

void Premetti(const QString& riga, QStringList& elenco, qsizetype massime) {
  elenco.removeAll(riga);
  elenco.prepend(riga);
  elenco = elenco.mid(0, massime);
}

void Scrivi(const Preferenze& preferenze) {
  QSettings archivio = Archivio();
  archivio.setValue(kChiaveFondoChiaro, preferenze.fondoChiaro);
  archivio.setValue(kChiaveRecenti, preferenze.recenti);
  archivio.setValue(kChiaveUnitaDeiFile, preferenze.unita);
  const auto& [genere, resa] = preferenze.scelta;
  archivio.setValue(kChiaveGenere, genere);
  archivio.setValue(kChiaveUnitaProposta, Nome(resa.unita));
  archivio.setValue(kChiaveScala, InTesto(resa.rapporto));
  archivio.setValue(kChiaveCarta, Nome(resa.carta));
  archivio.setValue(kChiaveOrientamento, Nome(resa.orientamento));
}

}  // namespace

Preferenze LeggiPreferenze() {
  const QSettings archivio = Archivio();
  const auto testo = [&](const char* chiave) { return archivio.value(chiave).toString(); };
  const auto elenco = [&](const char* chiave) { return archivio.value(chiave).toStringList(); };
  Preferenze lette;
  lette.fondoChiaro = archivio.value(kChiaveFondoChiaro).toBool();
  lette.recenti = elenco(kChiaveRecenti).mid(0, kMassimiRecenti);
  lette.unita = elenco(kChiaveUnitaDeiFile).mid(0, kMassimeUnita);
  auto& [genere, resa] = lette.scelta;
  if (FinaliEsportazione().contains(testo(kChiaveGenere))) genere = testo(kChiaveGenere);
  resa.unita = LeggiUnita(testo(kChiaveUnitaProposta)).value_or(resa.unita);
  resa.rapporto = LeggiScala(testo(kChiaveScala)).value_or(resa.rapporto);
  resa.carta = LeggiCarta(testo(kChiaveCarta)).value_or(resa.carta);
  resa.orientamento = LeggiOrientamento(testo(kChiaveOrientamento)).value_or(resa.orientamento);
  return lette;
}

Preferenze CambiaPreferenze(const std::function<void(Preferenze&)>& cambia) {
  Preferenze preferenze = LeggiPreferenze();
  cambia(preferenze);
  Scrivi(preferenze);
  return preferenze;
}

void AggiungiRecente(Preferenze& preferenze, const QString& file) {
  Premetti(QFileInfo(file).absoluteFilePath(), preferenze.recenti, kMassimiRecenti);
}

std::optional<Unita> UnitaDi(const Preferenze& preferenze, const QString& file) {
  for (const QString chiave = Chiave(file); const QString& riga : preferenze.unita)
    if (FileUnita(riga) == chiave)
      return NomeUnita(riga) == kNonDetta ? Unita::Ignota : LeggiUnita(NomeUnita(riga));
  return std::nullopt;
}

void RicordaUnita(Preferenze& preferenze, const QString& file, Unita unita) {
  preferenze.scelta.resa.unita = unita;
  if (file.isEmpty()) return;
  const QString nome = unita == Unita::Ignota ? kNonDetta : Nome(unita), chiave = Chiave(file);
  TogliUnita(preferenze.unita, chiave);
  Premetti(nome + ' ' + chiave, preferenze.unita, kMassimeUnita);
}

void Dimentica(Preferenze& preferenze, const QString& file) {
  preferenze.recenti.removeAll(file);
  TogliUnita(preferenze.unita, Chiave(file));
}

}  // namespace ostrel

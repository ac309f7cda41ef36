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

// Named by the organization alone, the file needs no folder of its own.
QSettings Archivio() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, "ostrel");
}

// One path for one file, whichever link or folder it is reached through; also for one that is gone.
QString Chiave(const QString& file) {
  const QFileInfo info(file);
  return info.exists() ? info.canonicalFilePath() : info.absoluteFilePath();
}

// A unit and a file, as in "cm /lavori/ponte.dis"; the unit that is not to be said has no name.
std::optional<UnitaDetta> LeggiUnitaDetta(const QString& riga) {
  const QString nome = riga.section(' ', 0, 0);
  const auto unita = nome.isEmpty() ? Unita::Ignota : LeggiUnita(nome);
  if (!unita) return std::nullopt;
  return UnitaDetta{riga.section(' ', 1), *unita};
}

void Scrivi(const Preferenze& preferenze) {
  QSettings archivio = Archivio();
  archivio.setValue(kChiaveFondoChiaro, preferenze.fondoChiaro);
  archivio.setValue(kChiaveRecenti, preferenze.recenti);
  QStringList unita;
  for (const UnitaDetta& u : preferenze.unita) unita << Voce(u.unita).nome + (' ' + u.file);
  archivio.setValue(kChiaveUnitaDeiFile, unita);
  const auto& [genere, resa] = preferenze.scelta;
  archivio.setValue(kChiaveGenere, genere);
  archivio.setValue(kChiaveUnitaProposta, Voce(resa.unita).nome);
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
  for (const QString& riga : elenco(kChiaveUnitaDeiFile).mid(0, kMassimeUnita))
    if (const auto unita = LeggiUnitaDetta(riga)) lette.unita << *unita;
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
  const QString assoluto = QFileInfo(file).absoluteFilePath();
  preferenze.recenti.removeAll(assoluto);
  preferenze.recenti.prepend(assoluto);
  preferenze.recenti = preferenze.recenti.mid(0, kMassimiRecenti);
}

std::optional<Unita> UnitaDi(const Preferenze& preferenze, const QString& file) {
  for (const QString chiave = Chiave(file); const UnitaDetta& u : preferenze.unita)
    if (u.file == chiave) return u.unita;
  return std::nullopt;
}

void RicordaUnita(Preferenze& preferenze, const QString& file, Unita unita) {
  preferenze.scelta.resa.unita = unita;
  if (file.isEmpty()) return;
  const QString chiave = Chiave(file);
  preferenze.unita.removeIf([&](const UnitaDetta& u) { return u.file == chiave; });
  preferenze.unita.prepend({chiave, unita});
  preferenze.unita = preferenze.unita.mid(0, kMassimeUnita);
}

void Dimentica(Preferenze& preferenze, const QString& file) {
  preferenze.recenti.removeAll(file);
  preferenze.unita.removeIf([chiave = Chiave(file)](const UnitaDetta& u) { return u.file == chiave; });
}

}  // namespace ostrel

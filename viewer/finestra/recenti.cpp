#include "viewer/finestra/recenti.h"

#include <QDir>
#include <QFileInfo>

#include "viewer/finestra/preferenze.h"

namespace ostrel {
namespace {

constexpr char kChiave[] = "file/recenti";
constexpr int kMassimaCartella = 60;

}  // namespace

QStringList Recenti() {
  return Preferenza(kChiave).toStringList().mid(0, kMassimiRecenti);
}

void AggiungiRecente(const QString& percorso) {
  const QString assoluto = QFileInfo(percorso).absoluteFilePath();
  QStringList recenti = Recenti();
  recenti.removeAll(assoluto);
  recenti.prepend(assoluto);
  Ricorda(kChiave, recenti);
}

void TogliRecente(const QString& percorso) {
  QStringList recenti = Recenti();
  recenti.removeAll(percorso);
  Ricorda(kChiave, recenti);
}

void SvuotaRecenti() {
  Ricorda(kChiave, QStringList());
}

QString VoceRecente(int posto, const QString& percorso) {
  const QFileInfo file(percorso);
  QString cartella = QDir::toNativeSeparators(file.path());
  if (cartella.size() > kMassimaCartella) cartella = "…" + cartella.right(kMassimaCartella);
  QString nome = file.fileName() + " (" + cartella + ")";
  return QString("&%1  %2").arg(posto).arg(nome.replace('&', "&&"));
}

}  // namespace ostrel

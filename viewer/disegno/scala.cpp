#include "viewer/disegno/scala.h"

#include <span>

namespace ostrel {
namespace {

constexpr char kAdatta[] = "adatta";

template <class Scelta>
std::optional<Scelta> Riconosci(std::span<const char* const> parole, const QString& testo) {
  const QString parola = testo.trimmed();
  for (std::size_t i = 0; i < parole.size() && !parola.isEmpty(); ++i)
    if (parola.compare(QLatin1StringView(parole[i]), Qt::CaseInsensitive) == 0) return static_cast<Scelta>(i);
  return std::nullopt;
}

}  // namespace

std::optional<Unita> LeggiUnita(const QString& testo) {
  return Riconosci<Unita>(kUnita, testo);
}

std::optional<Carta> LeggiCarta(const QString& testo) {
  return Riconosci<Carta>(kCarte, testo);
}

std::optional<Orientamento> LeggiOrientamento(const QString& testo) {
  return Riconosci<Orientamento>(kOrientamenti, testo);
}

std::optional<double> LeggiScala(const QString& testo) {
  QString figura = testo.simplified().remove(' ');
  if (figura.compare(QLatin1StringView(kAdatta), Qt::CaseInsensitive) == 0) return 0;
  if (figura.startsWith("1:") || figura.startsWith("1/")) figura.remove(0, 2);
  bool letta = false;
  const double rapporto = figura.replace(',', '.').toDouble(&letta);
  if (!letta || !(rapporto > 0) || rapporto > kMassimoRapporto) return std::nullopt;
  return rapporto;
}

QString InTesto(double rapporto) {
  if (rapporto == 0) return kAdatta;
  return "1:" + QString::number(rapporto, 'g', 10).replace('.', ',');
}

}  // namespace ostrel

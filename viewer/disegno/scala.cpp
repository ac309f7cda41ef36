#include "viewer/disegno/scala.h"

#include <algorithm>

namespace ostrel {
namespace {

constexpr char kAdatta[] = "adatta";

template <class Scelta, class Voci, class Nome>
std::optional<Scelta> Cerca(const Voci& voci, const QString& testo, Nome nome) {
  const QString parola = testo.trimmed();
  const auto voce = std::find_if(voci.begin(), voci.end(), [&](const auto& v) {
    return !parola.isEmpty() && parola.compare(QLatin1StringView(nome(v)), Qt::CaseInsensitive) == 0;
  });
  if (voce == voci.end()) return std::nullopt;
  return static_cast<Scelta>(voce - voci.begin());
}

}  // namespace

std::optional<Unita> LeggiUnita(const QString& testo) {
  return Cerca<Unita>(kUnita, testo, [](const VoceUnita& v) { return v.nome; });
}

std::optional<Carta> LeggiCarta(const QString& testo) {
  return Cerca<Carta>(kCarte, testo, [](const char* nome) { return nome; });
}

std::optional<Orientamento> LeggiOrientamento(const QString& testo) {
  return Cerca<Orientamento>(kOrientamenti, testo, [](const char* nome) { return nome; });
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

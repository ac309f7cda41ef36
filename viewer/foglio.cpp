#include "viewer/foglio.h"

#include <QLocale>
#include <QPageSize>
#include <algorithm>
#include <array>
#include <cmath>

#include "viewer/misure.h"

namespace ostrel {
namespace {

constexpr double kLarghezzaCartiglio = 190;  // an upright A4 has room for it
constexpr double kAltezzaCartiglio = 11;
constexpr double kDistacco = 3;
constexpr double kTolleranza = 1e-6;  // millimetres
// Sizes on paper, in millimetres, beyond which a scale or a unit must be a mistake.
constexpr double kMinimoSensato = 5;
constexpr double kMinimoDipinto = 1e-3;
constexpr double kMassimoDipinto = 1e6;

double MillimetriVeri(const Disegno& disegno, Unita unita) {
  return disegno.unita * Voce(unita).millimetri;
}

bool InScala(const Resa& resa) {
  return resa.unita != Unita::Ignota && resa.rapporto > 0;
}

bool Contiene(const QSizeF& campo, const QSizeF& disegno) {
  return disegno.width() <= campo.width() + kTolleranza && disegno.height() <= campo.height() + kTolleranza;
}

// A small sheet has a small title block.
Foglio Dividi(const QSizeF& stampabile) {
  const double forma = std::min(
      {1.0, stampabile.width() / kLarghezzaCartiglio, stampabile.height() / (8 * kAltezzaCartiglio)});
  const QSizeF cartiglio(kLarghezzaCartiglio * forma, kAltezzaCartiglio * forma);
  Foglio foglio;
  foglio.cartiglio = {{stampabile.width() - cartiglio.width(), stampabile.height() - cartiglio.height()},
                      cartiglio};
  foglio.campo = {0, 0, stampabile.width(), foglio.cartiglio.top() - kDistacco * forma};
  return foglio;
}

QPageLayout ConCarta(const Resa& resa, QPageLayout::Orientation verso) {
  constexpr std::array<QPageSize::PageSizeId, kCarte.size()> kFogli = {
      QPageSize::A4, QPageSize::A3, QPageSize::A2, QPageSize::A1, QPageSize::A0};
  constexpr double m = kMargineCarta;
  return {
      QPageSize(kFogli[static_cast<std::size_t>(resa.carta)]), verso, {m, m, m, m}, QPageLayout::Millimeter};
}

bool CiSta(const Disegno& disegno, const Resa& resa, const QPageLayout& pagina) {
  const Foglio foglio = Componi(disegno, resa, Stampabile(pagina));
  return Contiene(foglio.campo.size(), foglio.disegno);
}

// 1, 2, 2.5, 5 and their tenfolds: the usual ones and those beyond.
double ScalaCheCiSta(const Disegno& disegno, Resa resa, const QPageLayout& pagina) {
  const double chiesto = resa.rapporto;
  for (double decade = 1; decade <= kMassimoRapporto; decade *= 10)
    for (const double passo : {1.0, 2.0, 2.5, 5.0}) {
      resa.rapporto = passo * decade;
      if (resa.rapporto > chiesto && resa.rapporto <= kMassimoRapporto && resa.rapporto != 2.5 &&
          CiSta(disegno, resa, pagina))
        return resa.rapporto;
    }
  return 0;
}

std::optional<Carta> CartaCheBasta(const Disegno& disegno, Resa resa) {
  for (std::size_t i = static_cast<std::size_t>(resa.carta) + 1; i < kCarte.size(); ++i) {
    resa.carta = static_cast<Carta>(i);
    if (CiSta(disegno, resa, Pagina(disegno, resa))) return resa.carta;
  }
  return std::nullopt;
}

QString Lunghezza(double mm) {
  return QLocale(QLocale::Italian)
      .toString(mm, 'g',
                mm < 10    ? 2
                : mm < 1e4 ? static_cast<int>(std::log10(mm)) + 1
                           : 3);
}

QString Lati(const QSizeF& mm) {
  return QString("%1\u00A0×\u00A0%2\u00A0mm").arg(Lunghezza(mm.width()), Lunghezza(mm.height()));
}

}  // namespace

Foglio Componi(const Disegno& disegno, const Resa& resa, const QSizeF& stampabile) {
  Foglio foglio = Dividi(stampabile);
  const Riquadro tutto = Ingombro(disegno);
  const double vero = MillimetriVeri(disegno, resa.unita);
  foglio.vista = VistaIntera(tutto, foglio.campo);
  if (InScala(resa)) {
    const QPointF centro = foglio.campo.center();
    const double scala = vero / resa.rapporto;
    foglio.vista = {scala, (tutto.x0 + tutto.x1) / 2 - centro.x() / scala,
                    (tutto.y0 + tutto.y1) / 2 + centro.y() / scala};
    foglio.rapporto = resa.rapporto;
  } else if (resa.unita != Unita::Ignota) {
    foglio.rapporto = vero / foglio.vista.scala;
  }
  foglio.disegno = {tutto.Larghezza() * foglio.vista.scala, tutto.Altezza() * foglio.vista.scala};
  return foglio;
}

QSizeF Stampabile(const QPageLayout& pagina) {
  return pagina.paintRect(QPageLayout::Millimeter).size();
}

QPageLayout Pagina(const Disegno& disegno, const Resa& resa) {
  const QPageLayout ritta = ConCarta(resa, QPageLayout::Portrait);
  const QPageLayout distesa = ConCarta(resa, QPageLayout::Landscape);
  if (resa.orientamento != Orientamento::Automatico)
    return resa.orientamento == Orientamento::Verticale ? ritta : distesa;
  Resa libera = resa;
  libera.rapporto = 0;
  const auto scala = [&](const QPageLayout& pagina) {
    return Componi(disegno, libera, Stampabile(pagina)).vista.scala;
  };
  return scala(ritta) > scala(distesa) ? ritta : distesa;
}

QString InTesto(const QPageLayout& pagina) {
  const bool distesa = pagina.orientation() == QPageLayout::Landscape;
  return pagina.pageSize().name() + (distesa ? " orizzontale" : " verticale");
}

QString Descrivi(const Disegno& disegno, const Resa& resa, const QPageLayout& pagina) {
  const Foglio foglio = Componi(disegno, resa, Stampabile(pagina));
  const QString misura =
      QString("Foglio %1; il disegno vi misura %2.").arg(InTesto(pagina), Lati(foglio.disegno));
  return resa.unita == Unita::Ignota ? misura + " Non è in scala: per una scala serve l'unità del disegno."
                                     : misura;
}

std::optional<Obiezione> Esamina(const Disegno& disegno, const Resa& resa, const QPageLayout& pagina) {
  if (!InScala(resa)) return std::nullopt;
  const Foglio foglio = Componi(disegno, resa, Stampabile(pagina));
  const double lungo = std::max(foglio.disegno.width(), foglio.disegno.height());
  const QString misura = QString("A %1 il disegno, in %2, misura %3")
                             .arg(InTesto(resa.rapporto), Voce(resa.unita).nome, Lati(foglio.disegno));
  if (!(lungo >= kMinimoSensato))
    return Obiezione{misura + ": non si vedrebbe niente. L'unità o la scala non è quella giusta.", 0,
                     !(lungo >= kMinimoDipinto)};
  if (Contiene(foglio.campo.size(), foglio.disegno)) return std::nullopt;
  Obiezione obiezione{misura + QString(", e il foglio %1 ne ha liberi %2: una parte ne resta fuori.")
                                   .arg(InTesto(pagina), Lati(foglio.campo.size())),
                      ScalaCheCiSta(disegno, resa, pagina), !(lungo <= kMassimoDipinto)};
  if (obiezione.ciSta > 0) obiezione.testo += QString(" Ci sta a %1.").arg(InTesto(obiezione.ciSta));
  if (const auto carta = CartaCheBasta(disegno, resa))
    obiezione.testo += QString(" A %1 basta un foglio %2.").arg(InTesto(resa.rapporto), Nome(*carta));
  return obiezione;
}

}  // namespace ostrel

#include "viewer/carta/foglio.h"

#include <QLocale>
#include <QPageSize>
#include <algorithm>
#include <array>
#include <cmath>

#include "viewer/disegno/misure.h"

namespace ostrel {
namespace {

constexpr double kLarghezzaCartiglio = 190;  // an upright A4 has room for it
constexpr double kAltezzaCartiglio = 11;
constexpr double kDistacco = 3;
constexpr double kSbavatura = 1e-6;  // millimetres that come from rounding
// Sizes on paper, in millimetres, beyond which a scale or a unit must be a mistake.
constexpr double kMinimoSensato = 5;
constexpr double kMinimoDipinto = 1e-3;
constexpr double kMassimoDipinto = 1e6;

bool InScala(const Resa& resa) {
  return resa.unita != Unita::Ignota && resa.rapporto > 0;
}

bool Contiene(const QSizeF& campo, const QSizeF& disegno) {
  return disegno.width() <= campo.width() + kSbavatura && disegno.height() <= campo.height() + kSbavatura;
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

Foglio Disponi(const Riquadro& tutto, const Resa& resa, const QSizeF& stampabile) {
  Foglio foglio = Dividi(stampabile);
  const double vero = Millimetri(resa.unita);
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

bool CiSta(const Riquadro& tutto, const Resa& resa, const QPageLayout& pagina) {
  const Foglio foglio = Disponi(tutto, resa, Stampabile(pagina));
  return Contiene(foglio.campo.size(), foglio.disegno);
}

QPageLayout PaginaDi(const Riquadro& tutto, const Resa& resa) {
  const QPageLayout ritta = ConCarta(resa, QPageLayout::Portrait);
  const QPageLayout distesa = ConCarta(resa, QPageLayout::Landscape);
  if (resa.orientamento != Orientamento::Automatico)
    return resa.orientamento == Orientamento::Verticale ? ritta : distesa;
  const auto scala = [&](const QPageLayout& pagina) {
    return Disponi(tutto, {}, Stampabile(pagina)).vista.scala;
  };
  return scala(ritta) > scala(distesa) ? ritta : distesa;
}

double ScalaCheCiSta(const Riquadro& tutto, Resa resa, const QPageLayout& pagina) {
  constexpr double kTonde[] = {1,   2,     5,   10,   20,   25,    50,   100,
                               200, 250,   500, 1000, 2000, 2500,  5000, 1e4,
                               2e4, 2.5e4, 5e4, 1e5,  2e5,  2.5e5, 5e5,  kMassimoRapporto};
  const double chiesto = resa.rapporto;
  for (const double rapporto : kTonde) {
    resa.rapporto = rapporto;
    if (rapporto > chiesto && CiSta(tutto, resa, pagina)) return rapporto;
  }
  return 0;
}

// The smallest page on which the drawing fits, turned as the drawing has more room.
std::optional<QPageLayout> PaginaCheBasta(const Riquadro& tutto, Resa resa) {
  resa.orientamento = Orientamento::Automatico;
  for (std::size_t i = 0; i < kCarte.size(); ++i) {
    resa.carta = static_cast<Carta>(i);
    if (QPageLayout pagina = PaginaDi(tutto, resa); CiSta(tutto, resa, pagina)) return pagina;
  }
  return std::nullopt;
}

// Whole millimetres, as a ruler shows them on a sheet.
QString Tonda(double mm) {
  constexpr double kPochi = 10;
  const QLocale italiano(QLocale::Italian);
  return mm < kPochi ? italiano.toString(mm, 'g', 2) : italiano.toString(mm, 'f', 0);
}

QString Lati(const QSizeF& mm) {
  return QString("%1\u00A0×\u00A0%2\u00A0mm").arg(Tonda(mm.width()), Tonda(mm.height()));
}

}  // namespace

Foglio Componi(const Disegno& disegno, const Resa& resa, const QSizeF& stampabile) {
  return Disponi(Ingombro(disegno), resa, stampabile);
}

QSizeF Stampabile(const QPageLayout& pagina) {
  return pagina.paintRect(QPageLayout::Millimeter).size();
}

QPageLayout Pagina(const Disegno& disegno, const Resa& resa) {
  return PaginaDi(Ingombro(disegno), resa);
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
  const Riquadro tutto = Ingombro(disegno);
  const Foglio foglio = Disponi(tutto, resa, Stampabile(pagina));
  if (Contiene(foglio.campo.size(), foglio.disegno)) {
    const double lungo = std::max(foglio.disegno.width(), foglio.disegno.height());
    if (lungo >= kMinimoSensato) return std::nullopt;
    return Obiezione{
        QString("A %1 il disegno, in %2, misura %3: non si vedrebbe niente. L'unità o la scala non è "
                "quella giusta.")
            .arg(InTesto(resa.rapporto), Nome(resa.unita), Lati(foglio.disegno)),
        0, lungo < kMinimoDipinto};
  }
  const bool assurda = !(std::max(foglio.disegno.width(), foglio.disegno.height()) <= kMassimoDipinto);
  Obiezione obiezione{QString("A %1 il disegno, in %2, misura %3, e il foglio %4 ne ha liberi %5: una parte "
                              "ne resta fuori.")
                          .arg(InTesto(resa.rapporto), Nome(resa.unita),
                               assurda ? "più di un chilometro" : Lati(foglio.disegno), InTesto(pagina),
                               Lati(foglio.campo.size())),
                      ScalaCheCiSta(tutto, resa, pagina), assurda};
  if (obiezione.ciSta > 0) obiezione.testo += QString(" Ci sta a %1.").arg(InTesto(obiezione.ciSta));
  if (const auto basta = PaginaCheBasta(tutto, resa))
    obiezione.testo += QString(" A %1 basta un foglio %2.").arg(InTesto(resa.rapporto), InTesto(*basta));
  return obiezione;
}

}  // namespace ostrel

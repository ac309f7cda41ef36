// Lines are cut to what is visible, in the drawing's own precision, before the painter gets them: it stays
// exact and quick at any zoom.
#include "viewer/pittura/pittura.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "viewer/pittura/ritaglio.h"

namespace ostrel {
namespace {

constexpr double kMinimaAltezzaScritta = 2;  // in pen widths; a lower text becomes a line
// With more lines on the screen, or more arcs anywhere, smoothing would cost more than it shows.
constexpr std::size_t kMassimeLineeLisce = 20000;
constexpr std::size_t kMassimiArchiLisci = 1000;
// The radius, in painter units, up to which the painter's own arcs are no more than a pixel off.
constexpr double kMassimoRaggio = 4000;

class Pittura {
 public:
  Pittura(QPainter& pittore, const Disegno& disegno, const Vista& vista, const QRectF& visibile,
          const Fondo& fondo)
      : p_(pittore),
        d_(disegno),
        vista_(vista),
        fondo_(fondo),
        campo_(visibile.marginsAdded(QMarginsF(8, 8, 8, 8) * fondo.spessore)),
        stretto_(visibile.marginsAdded(QMarginsF(1, 1, 1, 1) * fondo.spessore)) {}

  void Linee() {
    std::array<std::vector<QLineF>, kColori.size()> continue_;
    for (const Linea& linea : d_.linee) {
      const QPointF p = Verso(linea.inizio), q = Verso(linea.fine);
      const bool intera = IndiceTipo(linea.tipo) == 0;
      const auto parte = Ritaglia(p, q, intera ? campo_ : stretto_);
      if (!parte) continue;
      const QLineF segmento = SuPixel(p, q, *parte, fondo_);
      if (intera)
        continue_[IndiceColore(linea.colore)].push_back(segmento);
      else
        Tratteggiata(segmento, linea, parte->da * std::hypot(q.x() - p.x(), q.y() - p.y()));
    }
    for (std::size_t colore = 0; colore < continue_.size(); ++colore) {
      p_.setPen(Penna(static_cast<int>(colore)));
      p_.drawLines(continue_[colore].data(), static_cast<int>(continue_[colore].size()));
    }
  }

  void Archi() {
    p_.setBrush(Qt::NoBrush);
    for (const Arco& arco : d_.archi) {
      const ArcoPolare polare = Polare(d_, arco);
      const double r = polare.raggio * vista_.scala;
      const QPointF centro = vista_.Verso(polare.x, polare.y);
      if (!campo_.marginsAdded({r, r, r, r}).contains(centro)) continue;
      p_.setPen(Penna(arco.colore));
      if (r > kMassimoRaggio * std::max(1.0, fondo_.spessore / 2))
        p_.drawPath(Curva(polare));
      else if (polare.cerchio)
        p_.drawEllipse(centro, r, r);
      else
        p_.drawPath(Curva({centro.x() - r, centro.y() - r, 2 * r, 2 * r}, polare));
    }
  }

  void Scritte() {
    QFont carattere({"DejaVu Sans Mono", "Consolas"});
    carattere.setStyleHint(QFont::Monospace);
    carattere.setPixelSize(kCorpo);
    carattere.setHintingPreference(QFont::PreferNoHinting);
    p_.setFont(carattere);
    const QFontMetricsF misure(carattere, p_.device());
    for (const Scritta& scritta : d_.scritte) Scrivi(scritta, misure);
  }

  void Punti() {
    p_.setPen(Penna(tarvel::disegno::kBianco));
    const double m = kMezzaCroce * fondo_.spessore;
    for (const Punto& punto : d_.punti) {
      const QPointF c = Verso(punto.posizione);
      if (!campo_.contains(c)) continue;
      p_.drawLine(c - QPointF(m, m), c + QPointF(m, m));
      p_.drawLine(c - QPointF(m, -m), c + QPointF(m, -m));
    }
  }

 private:
  static constexpr int kCorpo = 64;

  QPointF Verso(int indice) const {
    const Coordinata& c = Posto(d_, indice);
    return vista_.Verso(c.x, c.y);
  }

  QPen Penna(int colore) const {
    return {InQt(ColoreSu(fondo_.colore, colore)), fondo_.spessore, Qt::SolidLine, Qt::FlatCap,
            Qt::MiterJoin};
  }

  static QPainterPath Curva(const QRectF& quadro, const ArcoPolare& polare) {
    QPainterPath curva;
    curva.arcMoveTo(quadro, polare.inizio * kGradi);
    curva.arcTo(quadro, polare.inizio * kGradi, polare.ampiezza * kGradi);
    return curva;
  }

  // A cubic curve lies on each of these short pieces, however large the circle.
  QPainterPath Curva(const ArcoPolare& polare) const {
    constexpr double kMassimoPasso = 0.01;
    const int parti = static_cast<int>(std::ceil(polare.ampiezza / kMassimoPasso));
    const double passo = polare.ampiezza / parti, leva = std::tan(passo / 4) * 4 / 3;
    // The point at an angle, moved along the tangent by a part of the radius.
    const auto punto = [&](double a, double lungo) {
      return vista_.Verso(polare.x + polare.raggio * (std::cos(a) - lungo * std::sin(a)),
                          polare.y + polare.raggio * (std::sin(a) + lungo * std::cos(a)));
    };
    QPainterPath curva(punto(polare.inizio, 0));
    for (int i = 0; i < parti; ++i) {
      const double a = polare.inizio + i * passo;
      curva.cubicTo(punto(a, leva), punto(a + passo, -leva), punto(a + passo, 0));
    }
    return curva;
  }

  // `saltato` is the length cut away before the segment; the dashes go on as if it were still there.
  void Tratteggiata(const QLineF& segmento, const Linea& linea, double saltato) {
    const auto tratti = kTipiLinea[IndiceTipo(linea.tipo)].Tratti();
    QPen penna = Penna(linea.colore);
    penna.setDashPattern({tratti.begin(), tratti.end()});
    double passo = 0;
    for (const double tratto : tratti) passo += tratto;
    penna.setDashOffset(std::fmod(saltato / fondo_.spessore, passo));
    p_.setPen(penna);
    p_.drawLine(segmento);
  }

  void Scrivi(const Scritta& scritta, const QFontMetricsF& misure) {
    if (scritta.testo.empty()) return;
    QPolygonF riquadro;
    for (const Coordinata& c : Angoli(d_, scritta)) riquadro << vista_.Verso(c.x, c.y);
    // Descenders hang below the baseline.
    const double altezza = scritta.altezza * vista_.scala;
    if (!riquadro.boundingRect().marginsAdded({altezza, altezza, altezza, altezza}).intersects(campo_))
      return;
    p_.setPen(Penna(scritta.colore));
    const double largo = scritta.base * static_cast<double>(scritta.testo.size()) * vista_.scala;
    const double minimo = kMinimaAltezzaScritta * fondo_.spessore;
    if (altezza < minimo || largo < minimo) {
      p_.drawLine(riquadro[0], riquadro[altezza < minimo ? 1 : 3]);
      return;
    }
    const QString testo = QString::fromStdString(tarvel::InUtf8(scritta.testo));
    p_.save();
    p_.translate(riquadro[0]);
    p_.rotate(-scritta.angolo);
    p_.scale(largo / misure.horizontalAdvance(testo), altezza / misure.capHeight());
    p_.drawText(QPointF(0, 0), testo);
    p_.restore();
  }

  QPainter& p_;
  const Disegno& d_;
  const Vista& vista_;
  const Fondo& fondo_;
  QRectF campo_;  // what is visible, and so much around it that no pen's edge is cut
  // For dashed lines: the painter cuts a line of one pixel's width this near the picture, and begins the
  // dashes anew at its own cut.
  QRectF stretto_;
};

}  // namespace

Vista Vista::Ingrandita(double fattore, QPointF fermo) const {
  const QPointF sotto = Da(fermo);
  const double nuova = scala * fattore;
  return {nuova, sotto.x() - fermo.x() / nuova, sotto.y() + fermo.y() / nuova};
}

Vista VistaIntera(const Riquadro& tutto, QRectF area) {
  area.setSize(area.size().expandedTo({1, 1}));
  const double margine = kMargine * std::min(area.width(), area.height());
  area.adjust(margine, margine, -margine, -margine);
  const Riquadro r = tutto.Vuoto() ? Riquadro{0, 0, 1, 1} : tutto;
  // A drawing without breadth or height is fitted by its other side; a single point has scale 1.
  const double minimo = kArrotondamento * r.Massimo();
  const double x = r.Larghezza() > minimo ? area.width() / r.Larghezza() : HUGE_VAL;
  const double y = r.Altezza() > minimo ? area.height() / r.Altezza() : HUGE_VAL;
  const double scala = std::isfinite(std::min(x, y)) ? std::min(x, y) : 1;
  const QPointF centro = area.center();
  return {scala, (r.x0 + r.x1) / 2 - centro.x() / scala, (r.y0 + r.y1) / 2 + centro.y() / scala};
}

Fondo FondoSchermo(double rapportoPixel) {
  return {kSchermo, std::max(1.0, std::round(rapportoPixel)) / rapportoPixel, 1 / rapportoPixel};
}

Fondo FondoCarta(double spessore) {
  return {kCarta, spessore, 0};
}

void Dipingi(QPainter& pittore, const Disegno& disegno, const Vista& vista, const QRectF& visibile,
             const Fondo& fondo) {
  Pittura pittura(pittore, disegno, vista, visibile, fondo);
  pittore.setRenderHint(QPainter::Antialiasing,
                        fondo.pixel == 0 || disegno.linee.size() <= kMassimeLineeLisce);
  pittura.Linee();
  pittore.setRenderHint(QPainter::Antialiasing, disegno.archi.size() <= kMassimiArchiLisci);
  pittura.Archi();
  pittore.setRenderHint(QPainter::Antialiasing, true);
  pittura.Punti();
  pittura.Scritte();
}

}  // namespace ostrel

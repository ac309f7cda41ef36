// Where arcs cover one another their pixels are set one by one: smooth strokes would cost seconds
// and show nothing.
#include "viewer/pittura/archi.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "viewer/pittura/tratti.h"

namespace ostrel {
namespace {

constexpr double kMassimoRaggioIntero = 4000;  // painter units; a larger arc goes by its chords
constexpr double kFreccia = 0.1;
constexpr double kFrecciaRuvida = 0.3;
constexpr double kMassimiPixelLisci = 1e6;

// Whether a circle's line, not only its inside, meets a rectangle.
bool Tocca(QPointF centro, double r, const QRectF& campo) {
  const double sinistra = campo.left() - centro.x(), destra = campo.right() - centro.x();
  const double sopra = campo.top() - centro.y(), sotto = campo.bottom() - centro.y();
  const double vicino = std::hypot(std::max({sinistra, -destra, 0.0}), std::max({sopra, -sotto, 0.0}));
  const double lontano = std::hypot(std::max(-sinistra, destra), std::max(-sopra, sotto));
  return vicino <= r && r <= lontano;
}

// Pixels over the visible part of a painter, clear but for what is drawn.
class Velo {
 public:
  Velo(const QRectF& visibile, const Fondo& fondo)
      : pixel_(fondo.pixel > 0 ? fondo.pixel : 1),
        x0_(std::floor(visibile.left() / pixel_)),
        y0_(std::floor(visibile.top() / pixel_)),
        fianchi_(std::max(1, static_cast<int>(std::lround(fondo.spessore / pixel_)))),
        immagine_(static_cast<int>(std::ceil(visibile.right() / pixel_ - x0_)),
                  static_cast<int>(std::ceil(visibile.bottom() / pixel_ - y0_)),
                  QImage::Format_ARGB32_Premultiplied) {
    immagine_.fill(Qt::transparent);
    immagine_.setDevicePixelRatio(1 / pixel_);
    base_ = reinterpret_cast<QRgb*>(immagine_.bits());
    passo_ = immagine_.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb));
  }

  void Segna(const QLineF& linea, QRgb colore) {
    const double x = linea.x1() / pixel_ - x0_, y = linea.y1() / pixel_ - y0_;
    const double dx = linea.dx() / pixel_, dy = linea.dy() / pixel_;
    if (std::fabs(dx) >= std::fabs(dy))
      Percorri(x, y, dx, dy, {immagine_.width(), 1}, {immagine_.height(), passo_}, colore);
    else
      Percorri(y, x, dy, dx, {immagine_.height(), passo_}, {immagine_.width(), 1}, colore);
  }

  void Posa(QPainter& pittore) const { pittore.drawImage(QPointF(x0_, y0_) * pixel_, immagine_); }

 private:
  struct Asse {
    int quanti;
    qsizetype passo;
  };

  // One pixel, or as many side by side as the pen is wide, for each centre of a pixel passed along
  // the longer side: `u` runs on it, `v` across.
  void Percorri(double u, double v, double du, double dv, Asse lungo, Asse corto, QRgb colore) {
    if (du < 0) {
      u += du;
      v += dv;
      du = -du;
      dv = -dv;
    }
    const double pendenza = du > 0 ? dv / du : 0;
    const int primo = std::max(0, static_cast<int>(std::floor(u)));
    const int ultimo = std::min(lungo.quanti - 1, static_cast<int>(std::floor(u + du)));
    double w = v + (std::clamp(primo + 0.5, u, u + du) - u) * pendenza - 0.5 * (fianchi_ - 1);
    for (int i = primo; i <= ultimo; ++i, w += pendenza) {
      const int a = static_cast<int>(std::floor(w));
      for (int j = std::max(a, 0); j < std::min(a + fianchi_, corto.quanti); ++j)
        base_[i * lungo.passo + j * corto.passo] = colore;
    }
  }

  double pixel_, x0_, y0_;  // of a pixel, in painter units; place of the first one, in pixels
  int fianchi_;
  QImage immagine_;
  QRgb* base_;
  qsizetype passo_;
};

class PitturaArchi {
 public:
  PitturaArchi(QPainter& pittore, const Disegno& disegno, const Vista& vista, const QRectF& visibile,
               const Fondo& fondo)
      : p_(pittore),
        d_(disegno),
        vista_(vista),
        visibile_(visibile),
        fondo_(fondo),
        campo_(Campo(visibile, fondo)) {}

  void Lisci() {
    p_.setBrush(Qt::NoBrush);
    // Painter units of paper may be far smaller than what can be told apart.
    const double finezza = std::max(1.0, fondo_.spessore / 2);
    for (const Arco& arco : d_.archi) {
      const ArcoPolare polare = Polare(d_, arco);
      const double r = polare.raggio * vista_.scala;
      const QPointF centro = vista_.Verso(polare.x, polare.y);
      if (!Tocca(centro, r, campo_)) continue;
      const QRectF quadro(centro.x() - r, centro.y() - r, 2 * r, 2 * r);
      p_.setPen(Penna(fondo_, arco.colore));
      if (r > kMassimoRaggioIntero * finezza) {
        Corde(polare, kFreccia * finezza);
        p_.drawLines(corde_.data(), static_cast<int>(corde_.size()));
      } else if (polare.cerchio) {
        p_.drawEllipse(quadro);
      } else {
        ArcoPiccolo(quadro, polare);
      }
    }
  }

  void Ruvidi() {
    Velo velo(visibile_, fondo_);
    std::array<QRgb, kColori.size()> colori{};
    for (std::size_t i = 0; i < colori.size(); ++i)
      colori[i] = InQt(ColoreSu(fondo_.colore, static_cast<int>(i))).rgb();
    for (const Arco& arco : d_.archi) {
      const ArcoPolare polare = Polare(d_, arco);
      if (!Tocca(vista_.Verso(polare.x, polare.y), polare.raggio * vista_.scala, campo_)) continue;
      Corde(polare, kFrecciaRuvida * Pixel());
      for (const QLineF& corda : corde_) velo.Segna(corda, colori[IndiceColore(arco.colore)]);
    }
    velo.Posa(p_);
  }

  // Asked of the whole picture, so that each part of it is painted alike.
  bool Fitti() const {
    if (p_.paintEngine()->type() != QPaintEngine::Raster) return false;
    const QRectF tutto(0, 0, p_.device()->width(), p_.device()->height());
    const double massimo = 2 * (tutto.width() + tutto.height());  // of a convex line within it
    double lunghezza = 0;
    for (const Arco& arco : d_.archi) {
      const ArcoPolare polare = Polare(d_, arco);
      const double r = polare.raggio * vista_.scala;
      if (Tocca(vista_.Verso(polare.x, polare.y), r, tutto))
        lunghezza += std::min(r * polare.ampiezza, massimo);
    }
    return lunghezza / Pixel() > kMassimiPixelLisci;
  }

 private:
  double Pixel() const { return fondo_.pixel > 0 ? fondo_.pixel : 1; }

  void ArcoPiccolo(const QRectF& quadro, const ArcoPolare& polare) {
    constexpr double kGradi = 180 / std::numbers::pi;
    QPainterPath tracciato;
    tracciato.arcMoveTo(quadro, polare.inizio * kGradi);
    tracciato.arcTo(quadro, polare.inizio * kGradi, polare.ampiezza * kGradi);
    p_.drawPath(tracciato);
  }

  // The chords that are seen, `freccia` off the arc at most. What is not seen is left out by halves,
  // however large the circle.
  void Corde(const ArcoPolare& polare, double freccia) {
    corde_.clear();
    const int parti = static_cast<int>(std::ceil(polare.ampiezza / (std::numbers::pi / 2)));
    const double parte = polare.ampiezza / parti;
    const double seno = std::sin(parte / 4);
    const double questa = 2 * polare.raggio * vista_.scala * seno * seno;
    for (int i = 0; i < parti; ++i) {
      const double da = polare.inizio + i * parte;
      Dimezza(polare, freccia, {da, parte, questa}, SullArco(polare, da), SullArco(polare, da + parte));
    }
  }

  QPointF SullArco(const ArcoPolare& polare, double a) const {
    return vista_.Verso(polare.x + polare.raggio * std::cos(a), polare.y + polare.raggio * std::sin(a));
  }

  struct Tratto {
    double da, ampiezza;
    double freccia;  // at most
  };
  void Dimezza(const ArcoPolare& polare, double freccia, const Tratto& t, QPointF p, QPointF q) {
    constexpr double kMinimaAmpiezza = 1e-15;
    constexpr double kFrecciaDellaMeta = 0.26;  // of the whole's, up to a quarter of a circle
    const QRectF quadro = QRectF(p, q).normalized().adjusted(-t.freccia, -t.freccia, t.freccia, t.freccia);
    if (quadro.right() < campo_.left() || quadro.left() > campo_.right() || quadro.bottom() < campo_.top() ||
        quadro.top() > campo_.bottom())
      return;
    if (t.freccia <= freccia || t.ampiezza < kMinimaAmpiezza) {
      if (Parte parte; Ritaglia(p, q, campo_, parte)) corde_.emplace_back(Segmento(p, q, parte, fondo_));
      return;
    }
    const double meta = t.ampiezza / 2, sua = t.freccia * kFrecciaDellaMeta;
    const QPointF mezzo = SullArco(polare, t.da + meta);
    Dimezza(polare, freccia, {t.da, meta, sua}, p, mezzo);
    Dimezza(polare, freccia, {t.da + meta, meta, sua}, mezzo, q);
  }

  QPainter& p_;
  const Disegno& d_;
  const Vista& vista_;
  const QRectF& visibile_;
  const Fondo& fondo_;
  QRectF campo_;
  std::vector<QLineF> corde_;
};

}  // namespace

void DipingiArchi(QPainter& pittore, const Disegno& disegno, const Vista& vista, const QRectF& visibile,
                  const Fondo& fondo) {
  PitturaArchi archi(pittore, disegno, vista, visibile, fondo);
  if (archi.Fitti())
    archi.Ruvidi();
  else
    archi.Lisci();
}

}  // namespace ostrel

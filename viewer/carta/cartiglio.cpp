#include "viewer/carta/cartiglio.h"

#include <QFileInfo>
#include <QFont>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "viewer/disegno/scala.h"

namespace ostrel {
namespace {

constexpr int kMassimoTitolo = 80;
constexpr int kCorpo = 64;  // the painter's scale brings the letters to their size
// The next five are parts of the block's height.
constexpr double kPenna = 0.02;
constexpr double kBordo = 0.12;
constexpr double kAltezzaNome = 0.16;
constexpr double kAltezzaValore = 0.23;
constexpr double kRigaNome = 0.36;
constexpr double kRigaValore = 0.78;

// Has two figures: a sheet that a printer fits to its paper does not keep more.
QString Circa(double rapporto) {
  const bool ingrandito = rapporto < 1;
  const double parti = ingrandito ? 1 / rapporto : rapporto;
  if (!(parti <= kMassimoRapporto)) return {};
  const double decade = std::pow(10, std::floor(std::log10(parti)) - 1);
  const QString figura = QString::number(std::round(parti / decade) * decade, 'g', 8).replace('.', ',');
  return ingrandito ? figura + ":1" : "1:" + figura;
}

QString DiceScala(const Resa& resa, const Foglio& foglio) {
  if (resa.unita == Unita::Ignota) return "non in scala";
  if (resa.rapporto > 0) return InTesto(resa.rapporto);
  const QString circa = Circa(foglio.rapporto);
  return circa.isEmpty() ? "adattata" : "adattata, circa " + circa;
}

// Condenses a text that is too long, then shortens it.
void Scrivi(QPainter& pittore, const QString& testo, QPointF dove, double altezza, double largo,
            Qt::TextElideMode taglio) {
  constexpr double kMassimoStretto = 0.75;
  const QFontMetricsF misure(pittore.font(), pittore.device());
  const double forma = altezza / misure.capHeight();
  const double lungo = misure.horizontalAdvance(testo) * forma;
  const double stretto = lungo > largo ? std::max(kMassimoStretto, largo / lungo) : 1;
  pittore.save();
  pittore.translate(dove);
  pittore.scale(forma * stretto, forma);
  constexpr double kArrotondamentoLettere = 1e-6;
  pittore.drawText(
      QPointF(0, 0),
      misure.elidedText(testo, taglio, largo / (forma * stretto) * (1 + kArrotondamentoLettere)));
  pittore.restore();
}

}  // namespace

QString Titolo(const Disegno& disegno) {
  return QString::fromStdString(tarvel::InUtf8(disegno.titolo.substr(0, kMassimoTitolo))).simplified();
}

Cartiglio Intesta(const Disegno& disegno, const Resa& resa, const Foglio& foglio, const Origine& origine) {
  const bool nota = resa.unita != Unita::Ignota;
  return {Titolo(disegno), DiceScala(resa, foglio), nota ? Nome(resa.unita) : "non detta",
          origine.data.toString("dd/MM/yyyy"), QFileInfo(origine.file).fileName()};
}

void DipingiCartiglio(QPainter& pittore, const Cartiglio& cartiglio, const QRectF& posto) {
  const double alto = posto.height();
  QFont carattere({"DejaVu Sans", "Segoe UI"});
  carattere.setStyleHint(QFont::SansSerif);
  carattere.setPixelSize(kCorpo);
  carattere.setHintingPreference(QFont::PreferNoHinting);
  pittore.save();
  pittore.setFont(carattere);
  pittore.setPen(QPen(Qt::black, kPenna * alto));
  pittore.drawRect(posto);
  const struct {
    const char* nome;
    const QString& valore;
    double parte;  // of the block's length
    Qt::TextElideMode taglio;
  } celle[] = {{"DISEGNO", cartiglio.titolo, 0.34, Qt::ElideRight},
               {"SCALA", cartiglio.scala, 0.21, Qt::ElideRight},
               {"UNITÀ", cartiglio.unita, 0.11, Qt::ElideRight},
               {"DATA", cartiglio.data, 0.13, Qt::ElideRight},
               {"FILE", cartiglio.file, 0.21, Qt::ElideMiddle}};
  double x = posto.left();
  for (const auto& cella : celle) {
    if (x > posto.left()) pittore.drawLine(QPointF(x, posto.top()), QPointF(x, posto.bottom()));
    const double dentro = x + kBordo * alto, largo = cella.parte * posto.width() - 2 * kBordo * alto;
    const auto riga = [&](const QString& testo, double y, double altezza) {
      Scrivi(pittore, testo, {dentro, posto.top() + y * alto}, altezza * alto, largo, cella.taglio);
    };
    riga(cella.nome, kRigaNome, kAltezzaNome);
    riga(cella.valore, kRigaValore, kAltezzaValore);
    x += cella.parte * posto.width();
  }
  pittore.restore();
}

}  // namespace ostrel

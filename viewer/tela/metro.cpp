#include "viewer/tela/metro.h"

#include <QFontMetricsF>
#include <QLineF>
#include <QStringList>
#include <algorithm>
#include <cmath>

#include "viewer/pittura/ritaglio.h"

namespace ostrel {
namespace {

constexpr double kRaggioAggancio = 10;  // painter units
constexpr double kMezzoSegno = 5;
constexpr double kStacco = 16;  // of a label from its place

QColor Inchiostro(const tarvel::Colore& fondo) {
  return InQt(ColoreSu(fondo, tarvel::disegno::kArancio));
}

void DipingiLinea(QPainter& pittore, QPointF p, QPointF q, const QRectF& area) {
  if (const auto parte = Ritaglia(p, q, area))
    pittore.drawLine(p + (q - p) * parte->da, p + (q - p) * parte->a);
}

void DipingiSegno(QPainter& pittore, QPointF c, Appiglio genere) {
  const QRectF quadro(c.x() - kMezzoSegno, c.y() - kMezzoSegno, 2 * kMezzoSegno, 2 * kMezzoSegno);
  switch (genere) {
    case Appiglio::Estremo:
      pittore.drawRect(quadro);
      break;
    case Appiglio::Centro:
      pittore.drawEllipse(quadro);
      break;
    case Appiglio::Incrocio:
      pittore.drawLine(quadro.topLeft(), quadro.bottomRight());
      pittore.drawLine(quadro.bottomLeft(), quadro.topRight());
      break;
  }
}

QString Misurata(double lunghezza) {
  constexpr double kMinimaDistesa = 1e-2;
  if (lunghezza != 0 && std::fabs(lunghezza) < kMinimaDistesa) return QString::number(lunghezza, 'g', 6);
  QString testo = QString::number(lunghezza, 'f', 4);
  while (testo.endsWith('0')) testo.chop(1);
  if (testo.endsWith('.')) testo.chop(1);
  return testo;
}

}  // namespace

void Prendi(Metro& metro) {
  if (!metro.sotto) return;
  if (!metro.da || metro.a) {
    metro.da = metro.sotto;
    metro.a.reset();
  } else if (*metro.da != *metro.sotto) {
    metro.a = metro.sotto;
  }
}

void Punta(Metro& metro, const Disegno& disegno, const Vista& vista, QPointF dove) {
  const QPointF punto = vista.Da(dove);
  metro.sotto = {punto.x(), punto.y()};
  metro.genere.reset();
  if (const auto aggancio = Aggancia(disegno, *metro.sotto, kRaggioAggancio / vista.scala)) {
    metro.sotto = aggancio->dove;
    metro.genere = aggancio->genere;
  }
}

QString Risultato(const Metro& metro, const Notazione& notazione) {
  const auto fine = metro.a ? metro.a : metro.sotto;
  if (!metro.da || !fine || *metro.da == *fine) return {};
  const Coordinata &p = *metro.da, &q = *fine;
  const double rumore =
      kArrotondamento * std::max({std::fabs(p.x), std::fabs(p.y), std::fabs(q.x), std::fabs(q.y)});
  const auto parte = [&](double da, double a) { return std::fabs(a - da) > rumore ? a - da : 0; };
  const double dx = parte(p.x, q.x), dy = parte(p.y, q.y);
  const auto riga = [&](const char* nome, double lunghezza) {
    return QString("%1 = %2 %3").arg(nome, Misurata(lunghezza), notazione.unita).trimmed();
  };
  return QStringList{riga("Distanza", std::hypot(dx, dy)), riga("ΔX", dx), riga("ΔY", dy),
                     QString("Angolo = %1°").arg(QString::number(std::atan2(dy, dx) * kGradi, 'f', 2))}
      .join('\n')
      .replace('.', notazione.decimale);
}

QString Istruzione(const Metro& metro) {
  if (!metro.da) return "Misura: indicare il primo punto. Esc termina.";
  if (!metro.a) return "Misura: indicare il secondo punto. Esc termina.";
  return "Misura: indicare il primo punto di un'altra misura. Esc termina.";
}

void Cartellino(QPainter& pittore, const QString& testo, QPointF dove, const QRectF& area,
                const tarvel::Colore& fondo) {
  const QFontMetricsF misure(pittore.font());
  QRectF riquadro = misure.boundingRect(area, Qt::AlignLeft, testo).marginsAdded({6, 4, 6, 4});
  riquadro.moveTopLeft(dove + QPointF(kStacco, kStacco));
  if (riquadro.right() > area.right()) riquadro.moveRight(dove.x() - kStacco);
  if (riquadro.bottom() > area.bottom()) riquadro.moveBottom(dove.y() - kStacco);
  riquadro.moveLeft(
      std::clamp(riquadro.left(), area.left(), std::max(area.left(), area.right() - riquadro.width())));
  riquadro.moveTop(
      std::clamp(riquadro.top(), area.top(), std::max(area.top(), area.bottom() - riquadro.height())));
  pittore.setPen(Inchiostro(fondo));
  pittore.setBrush(InQt(fondo));
  pittore.drawRect(riquadro);
  pittore.setPen(InQt(ColoreSu(fondo, tarvel::disegno::kBianco)));
  pittore.drawText(riquadro, Qt::AlignCenter, testo);
}

void Dipingi(QPainter& pittore, const Metro& metro, const Vista& vista, const QRectF& area,
             const tarvel::Colore& fondo, const QString& risultato) {
  const auto posto = [&](const Coordinata& c) { return vista.Verso(c.x, c.y); };
  const QColor colore = Inchiostro(fondo);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setBrush(Qt::NoBrush);
  const auto fine = metro.a ? metro.a : metro.sotto;
  if (metro.da && fine) {
    const QPointF p = posto(*metro.da), q = posto(*fine);
    pittore.setPen(QPen(colore, 1, Qt::DotLine));
    DipingiLinea(pittore, p, {q.x(), p.y()}, area);
    DipingiLinea(pittore, {q.x(), p.y()}, q, area);
    pittore.setPen(QPen(colore, 2));
    DipingiLinea(pittore, p, q, area);
    for (const QPointF c : {p, q}) pittore.drawEllipse(c, 2, 2);
  }
  pittore.setPen(QPen(colore, 2));
  if (metro.sotto && metro.genere) DipingiSegno(pittore, posto(*metro.sotto), *metro.genere);
  if (!risultato.isEmpty()) Cartellino(pittore, risultato, posto(*fine), area, fondo);
}

}  // namespace ostrel

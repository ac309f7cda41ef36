// The area that shows the drawing, lets the user move and zoom it, and has the tools that point at it.
#pragma once

#include <QImage>
#include <QWidget>
#include <optional>

#include "viewer/disegno/livelli.h"
#include "viewer/pittura/pittura.h"
#include "viewer/tela/metro.h"
#include "viewer/tela/storia.h"

namespace ostrel {

/// What the left button does.
enum class Strumento { Mano, Rettangolo, Metro };

class Tela : public QWidget {
  Q_OBJECT

 public:
  explicit Tela(QWidget* padre);

  /// Replaces the drawing. A view that was fitted is fitted to the new extents, otherwise zoom and place
  /// stay. `daCapo`: this is another drawing; it is fitted, and the views before it are forgotten.
  void Mostra(Disegno nuovo, bool daCapo);

  /// Fits the whole drawing, and keeps it fitted until the user zooms or pans.
  void Adatta();
  /// Zooms about the centre; a negative number of steps shrinks.
  void Ingrandisci(int passi);
  /// Moves by tenths of the window, to where the arrows point.
  void Scorri(int destra, int basso);
  void VistaPrecedente();
  void VistaSuccessiva();
  const Storia& Viste() const { return storia_; }

  void Usa(Strumento strumento);
  Strumento InUso() const { return strumento_; }

  void MostraLivelli(const Livelli& livelli);
  const Livelli& LivelliMostrati() const { return livelli_; }
  void MettiSu(const tarvel::Colore& fondo);
  /// How measures are written.
  void Annota(const Notazione& notazione);

  /// The whole drawing, with what is hidden.
  const Disegno& Mostrato() const { return disegno_; }
  /// The drawing without what is hidden.
  const Disegno& Visibile() const { return visibile_ ? *visibile_ : disegno_; }
  const Vista& VistaCorrente() const { return vista_; }
  /// What has been measured; empty before there are two points.
  QString Misura() const { return Risultato(metro_, notazione_); }
  /// What the window shows, on a ground of paper and twice as fine.
  QImage Immagine() const;

 signals:
  /// The pointer is over this point of the drawing, in its units.
  void Puntato(double x, double y);
  /// The user has begun to act here.
  void Toccata();
  /// The view or the tool has changed.
  void Cambiata();

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void leaveEvent(QEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void mouseDoubleClickEvent(QMouseEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void Cambia(const Inquadratura& nuova, Gesto gesto);
  void Inquadra(const Inquadratura& nuova);
  double ScalaLimitata(double chiesta) const;
  void Ingrandisci(double fattore, QPointF fermo);
  /// `gesto`: the drag begins here, and going back undoes it.
  void Trascina(QPoint passo, std::optional<Gesto> gesto);
  void ZoomSu(const QRectF& parte);

  void DipingiDisegno(QPaintDevice& dove, const tarvel::Colore& colore) const;
  void DipingiStrumento(QPainter& pittore);
  QString Istruzione() const;

  void Segui(QPointF dove);
  void Indica();
  void MuoviPuntatore(QPoint passo);

  Disegno disegno_;
  std::optional<Disegno> visibile_;  // none where nothing is hidden
  Riquadro tutto_;
  Vista vista_;
  bool adattata_ = true;
  Storia storia_;

  Livelli livelli_ = kTuttiLivelli;
  tarvel::Colore fondo_ = kSchermo;
  Notazione notazione_;

  Strumento strumento_ = Strumento::Mano;
  Metro metro_;
  std::optional<QPoint> angolo_;  // of the rectangle being drawn
  QPoint puntatore_;
  QPoint presa_;        // last place of the pointer while dragging
  bool mosso_ = false;  // since a button went down
};

}  // namespace ostrel

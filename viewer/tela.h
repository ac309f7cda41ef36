// The area that shows the drawing: fit, zoom about the pointer, pan by dragging.
#pragma once

#include <QWidget>

#include "viewer/pittura.h"

namespace ostrel {

class Tela : public QWidget {
  Q_OBJECT

 public:
  explicit Tela(QWidget* padre);

  /// Replaces the drawing; zoom and place stay as they are.
  void Mostra(Disegno nuovo);
  /// Fits the whole drawing, and keeps it fitted until the user zooms or pans.
  void Adatta();

  const Disegno& Mostrato() const { return disegno_; }
  const Vista& VistaCorrente() const { return vista_; }

 signals:
  /// The pointer is over this point of the drawing, in its units.
  void Puntato(double x, double y);

 protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;

 private:
  Disegno disegno_;
  Riquadro tutto_;
  Vista vista_;
  bool adattata_ = true;
  QPoint presa_;  // last place of the pointer while dragging
};

}  // namespace ostrel

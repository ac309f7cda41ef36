// The sheet as it will come out, seen whole.
#pragma once

#include <QWidget>

#include "viewer/carta/stampa.h"

namespace ostrel {

class AnteprimaFoglio : public QWidget {
  Q_OBJECT

 public:
  /// The drawing is the caller's and outlives the widget.
  AnteprimaFoglio(const Disegno& disegno, const Origine& origine, QWidget* genitore);

  void Mostra(const Resa& resa);
  QSize sizeHint() const override { return {640, 480}; }

 protected:
  void paintEvent(QPaintEvent* evento) override;

 private:
  const Disegno& disegno_;
  Origine origine_;
  Resa resa_;
};

}  // namespace ostrel

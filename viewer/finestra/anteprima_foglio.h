// Shows the whole sheet as it will be printed.
#pragma once

#include <QWidget>

#include "viewer/carta/stampa.h"

namespace ostrel {

class AnteprimaFoglio : public QWidget {
  Q_OBJECT

 public:
  /// The caller keeps the drawing as long as the widget lives.
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

// How a drawing is to come out on paper: unit, scale, sheet, with the sheet before the eyes.
#pragma once

#include <QDialog>

#include "viewer/carta/cartiglio.h"
#include "viewer/disegno/disegno.h"
#include "viewer/disegno/scala.h"

class QComboBox;
class QLabel;

namespace ostrel {

class AnteprimaFoglio;

/// The units as a list offers them, in the order of Unita.
QStringList NomiUnita();

/// What a dialog says about itself.
struct TestiDialogo {
  QString titolo;
  QString fai;         // on the button that goes on
  QString avvertenza;  // empty: none
};

/// Asks for the unit of a drawing; nothing where the user takes the order back.
std::optional<Unita> ChiediUnita(Unita proposta, const TestiDialogo& testi, QWidget* genitore);

/// Whether to go on although the drawing does not fit: asked with what is wrong and the scale that would do.
enum class Risposta { Annulla, Comunque, AltraScala };
Risposta ChiediComunque(QWidget* genitore, const Obiezione& obiezione);

class DialogoCarta : public QDialog {
  Q_OBJECT

 public:
  /// The drawing is the caller's and outlives the dialog.
  DialogoCarta(const Disegno& disegno, const Origine& origine, const Resa& resa, const TestiDialogo& testi,
               QWidget* genitore);

  /// What is chosen; a scale that cannot be read is as if none were asked for.
  Resa Scelta() const;
  /// Goes on only with a scale that can be read, and with what does not fit only if the user says so.
  void accept() override;

 private:
  QComboBox* Lista(const char* nome, const QStringList& voci, int scelta);
  void Aggiorna();
  std::optional<QString> Difetto() const;

  const Disegno& disegno_;
  AnteprimaFoglio* anteprima_ = nullptr;
  QComboBox* unita_ = nullptr;
  QComboBox* scala_ = nullptr;
  QComboBox* carta_ = nullptr;
  QComboBox* orientamento_ = nullptr;
  QLabel* nota_ = nullptr;
};

}  // namespace ostrel

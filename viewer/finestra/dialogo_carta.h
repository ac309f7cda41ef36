// The dialog that asks for unit, scale and sheet, and shows the sheet as it will be; the questions beside it.
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

/// Asks whether to go on although the drawing does not fit; offers the scale at which it would.
enum class Risposta { Annulla, Comunque, AltraScala };
Risposta ChiediComunque(QWidget* genitore, const Obiezione& obiezione);

class DialogoCarta : public QDialog {
  Q_OBJECT

 public:
  /// The caller keeps the drawing as long as the dialog lives.
  DialogoCarta(const Disegno& disegno, const Origine& origine, const Resa& resa, const TestiDialogo& testi,
               QWidget* genitore);

  /// What is chosen; a scale that cannot be read counts as "adatta".
  Resa Scelta() const;
  /// Closes the dialog only with a scale that can be read, and asks about a drawing that does not fit.
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

// The form that edits the drawing options.
#pragma once

#include <array>

#include "options/opzioni.h"
#include "platform/controlli.h"

namespace tarvel {

/// The form edits a copy; Opzioni change only when a button copies it out. The main form's load loads it
/// hidden; from then on it is shown and hidden until the program ends.
class FormOpt : public Form {
 public:
  FormOpt();
  static FormOpt& Unica();
  /// Reads Opzioni from their file and tells the user what is wrong with it.
  static void RileggiOpzioni();
  void Form_Load() override;

  void CopiaOpzioniIn();
  void CopiaOpzioniOut();
  void AggiornaTextOpzioni();

  std::array<Controllo, kNumOpzioni> TextOpt, LabelOpt;  // named from 1
  Controllo Reset, Salva, Applica, Chiudi;

 private:
  void TextOpt_LostFocus(int i);
  void AggiornaTextOpt(int i);
  void Reset_Click();
  void Salva_Click();
  void Applica_Click();
  void Chiudi_Click();

  VettoreOpzioni copia_;
};

}  // namespace tarvel

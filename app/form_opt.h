// The form that edits the drawing options.
#pragma once

#include <array>

#include "options/opzioni.h"
#include "platform/controlli.h"

namespace tarvel {

/// It edits a copy of its own; Opzioni change only when a button copies it out. Loaded hidden at the
/// main form's load, then shown and hidden until the program ends.
class FormOpt : public Form {
 public:
  FormOpt();
  static FormOpt& Unica();
  /// Opzioni become those of their file; what is wrong with it is said.
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

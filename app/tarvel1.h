// The main form: the schematic of the section with its 21 boxes, the commands, and the orderly end
// of the program.
#pragma once

#include <array>

#include "app/form_timer.h"
#include "model/parametri.h"
#include "platform/controlli.h"

namespace tarvel {

/// The form that a platform loads and shows at start. Closing it ends the program.
Form& FormPrincipale();

class tarvel1 : public Form {
 public:
  tarvel1();
  void Form_Load() override;
  void Form_Unload() override;

  std::array<Controllo, kNumParametri> Text1;
  Controllo nome;  // the name box; the form's own name is Form::nome
  Controllo nomute, Label1, Label2;
  Controllo Calcolo, Command1, Command2, Command3, Command4, Command5, Command6, Command7;

 private:
  void Text1_KeyPress(int indice, int codice);
  void Text1_LostFocus(int indice);
  void nome_KeyPress(int codice);
  void nome_LostFocus();
  void Calcolo_Click();   // "Calcola"
  void Command1_Click();  // "Leggi"
  void Command2_Click();  // "Salva"
  void Command3_Click();  // "File SEZIO_UT:"
  void Command4_Click();  // "Anteprima"
  void Command5_Click();  // "Chiudi"
  void Command6_Click();  // "Opzioni DIS"
  void Command7_Click();  // "Calcolo Multiplo"

  void AggiornaTextParametri();
  void RichiamaSezione(int i);
  void SalvaSezione();

  FormTimer formTimer_{*this};
  bool ChiusuraEseguita_ = false;  // the viewer has been closed already
};

}  // namespace tarvel

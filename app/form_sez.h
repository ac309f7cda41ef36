// The two small modal forms that list the sections of the table.
#pragma once

#include "base/intero.h"
#include "base/tabella.h"
#include "model/tabella_sezioni.h"
#include "platform/controlli.h"

namespace tarvel {

/// Table index picked in FormSez, 0 for none. The close box leaves it as it was.
inline Intero16 SezioneScelta;
/// How many entries were selected in FormSez2 when its button last closed it, and which ones. The
/// recalculation uses their number only.
inline Intero16 NumeroScelte;
inline Tabella<"delle sezioni scelte", Intero16, 1, kMaxSezioni> SezioniScelte;

/// Picks one section, by button or double click.
class FormSez : public Form {
 public:
  FormSez();
  void Form_Load() override;

  Controllo Command1, ListSez;

 private:
  void Command1_Click();
};

/// Recalculates several sections in one go.
class FormSez2 : public Form {
 public:
  FormSez2();
  void Form_Load() override;

  Controllo Command1, Command2, ListSez;

 private:
  void Command1_Click();
  void Command2_Click();
};

}  // namespace tarvel

// One row: how it is read, calculated and written.
#pragma once

#include <string>
#include <vector>

#include "lotto/colonne.h"
#include "lotto/csv.h"
#include "model/parametri.h"
#include "model/sezione.h"

namespace tarvel::lotto {

struct Calcolata {
  RecordSezione record;
  VettoreParametri p;
};

/// A section of a section file with the dimensions found from its outline, or the reason why there are none.
struct Riletta {
  Calcolata sezione;
  Testo motivo;
};

/// How the rows of a file are to be read.
struct Tracciato {
  Testo file;  // "" where there is one alone
  FormatoCsv formato;
  Colonne colonne;
};

struct Riga {
  // Either a record of a CSV
  long long numero = 0;  // among all rows, from 1
  const Tracciato* tracciato = nullptr;
  RecordCsv record;
  // or a section of a section file.
  const Riletta* riletta = nullptr;

  Testo nome;
  Testo motivo;  // why it is not calculated, or not saved; "" when it is
};

/// What is written of each row.
struct Uscita {
  FormatoCsv formato;
  bool punti = false;
};

/// Reads and calculates a row into `sezione`; false when it cannot be, and the row has the reason. With
/// `conserva` the outline is rebuilt afterwards, as saving does.
bool CalcolaRiga(Riga& riga, Calcolata& sezione, bool conserva);

std::string ComponiIntestazione(const Uscita& uscita);
/// Adds the line of a row to `testo`. `sezione`: null where the row has no values.
void AccodaRigaCsv(std::string& testo, Riga& riga, const RecordSezione* sezione, const Uscita& uscita);

}  // namespace tarvel::lotto

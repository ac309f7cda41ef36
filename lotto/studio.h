// One row of a study: what was read, what is calculated of it, what is written.
#pragma once

#include <memory>
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

/// A section of a section file, brought back to its dimensions; or why it cannot be.
struct Riletta {
  Calcolata sezione;
  Testo motivo;
  Testo righe;  // as they stand in the file
};

/// How the rows of a file are to be read.
struct Tracciato {
  Testo file;  // "" where there is one alone
  FormatoCsv formato;
  Colonne colonne;
};

struct Riga {
  long long numero = 0;  // among all rows, from 1
  std::shared_ptr<const Tracciato> tracciato;
  RecordCsv record;
  const Riletta* riletta = nullptr;  // in place of a record

  Testo nome;
  std::string testo;  // of the output, with its line end
  Testo motivo;       // why it is not calculated, or not saved
  std::unique_ptr<Calcolata> calcolata;
};

/// What is written of each row.
struct Uscita {
  FormatoCsv formato;
  bool punti = false;
};

/// Where the row stands, for its user: "riga 12".
Testo Luogo(const Tracciato& tracciato, const RecordCsv& record);

/// Reads, calculates and composes a row. Of its own state alone: on any thread. `conserva`: the section is
/// kept with it as saving has it, its outline rebuilt.
void CalcolaRiga(Riga& riga, const Uscita& uscita, bool conserva);

std::string ComponiIntestazione(const Uscita& uscita);
/// Of a row without a section the reason alone.
void ComponiRiga(Riga& riga, const RecordSezione* sezione, const Uscita& uscita);

}  // namespace tarvel::lotto

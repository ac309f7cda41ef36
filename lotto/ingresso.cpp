#include "lotto/ingresso.h"

#include <filesystem>
#include <iostream>
#include <utility>

#include "base/errore.h"
#include "platform/ospite.h"

namespace tarvel::lotto {
namespace {

Testo NomeIngresso(const std::string& file) {
  return file == "-" ? Testo("standard input") : DaUtf8(file);
}

std::istream& Apri(Ingresso& ingresso, const std::string& file) {
  if (file == "-") return std::cin;
  ingresso.flusso = {};
  ingresso.attende(true);  // a named pipe opens when somebody writes into it
  ingresso.flusso.open(std::filesystem::path(std::u8string(file.begin(), file.end())), std::ios::binary);
  const Testo motivo = ingresso.flusso.is_open() ? Testo() : MotivoOspite();
  ingresso.attende(false);
  if (!ingresso.flusso.is_open()) throw ErroreFatale(TipoErrore::File, "il file non si legge: " + motivo);
  return ingresso.flusso;
}

// A file whose decimals all have the other sign is refused as a whole, rather than row by row.
void ControllaDecimali(const std::vector<std::string>& celle, bool virgola) {
  const std::string* altro = nullptr;
  for (const std::string& cella : celle) {
    const bool cosi = NumeroCella(cella, virgola).has_value(),
               diversa = NumeroCella(cella, !virgola).has_value();
    if (cosi && !diversa) return;
    if (diversa && !cosi && altro == nullptr) altro = &cella;
  }
  if (altro == nullptr) return;
  throw ErroreFatale(TipoErrore::Formato,
                     virgola ? "con --virgola i decimali hanno la virgola, non \"" + TestoCella(*altro) + "\""
                             : "\"" + TestoCella(*altro) + "\": la virgola decimale vuole --virgola");
}

// Opens the next file. Returns its first row of values; nothing where there is none.
std::optional<RecordCsv> Comincia(Ingresso& ingresso, const std::string& file) {
  Tracciato& tracciato = ingresso.tracciato = {};
  if (ingresso.file.size() > 1) tracciato.file = NomeIngresso(file);
  LettoreCsv& lettore = ingresso.lettore.emplace(Apri(ingresso, file), ingresso.attende);
  tracciato.formato = RiconosciCodifica(lettore);
  tracciato.formato.virgola = ingresso.virgola;
  tracciato.colonne = SenzaIntestazione();

  auto primo = ProssimoRecord(lettore);
  if (primo) {
    lettore.separatore = SeparatoreDichiarato(primo->testo);
    if (lettore.separatore != '\0') primo = ProssimoRecord(lettore);
  }
  if (!primo) return primo;
  const auto dove = [&] { return "riga " + std::to_string(primo->riga); };
  if (lettore.separatore == '\0') lettore.separatore = RiconosciSeparatore(primo->testo);
  tracciato.formato.separatore = lettore.separatore;
  if (!ingresso.formato) ingresso.formato = tracciato.formato;
  std::vector<std::string> celle;
  Celle(primo->testo, lettore.separatore, celle);
  if (primo->guasto != nullptr) throw ErroreFatale(TipoErrore::Formato, primo->guasto, dove());
  const auto colonne = Durante(dove, [&] { return LeggiIntestazione(celle); });
  if (colonne) {
    tracciato.colonne = *colonne;
    if (!colonne->altre.empty())
      std::cerr << InUtf8("tarvel1-lotto: " + NomeIngresso(file) + ": colonne non usate: " + colonne->altre +
                          "\n");
    primo = ProssimoRecord(lettore);
    if (!primo) return primo;
    Celle(primo->testo, lettore.separatore, celle);
  }
  Durante(dove, [&] { ControllaDecimali(celle, ingresso.virgola); });
  return primo;
}

}  // namespace

bool ProssimaRiga(Ingresso& ingresso, Riga& riga) {
  for (;;) {
    const bool nuovo = !ingresso.lettore;
    if (nuovo && ingresso.prossimo == ingresso.file.size()) return false;
    const std::string& file = ingresso.file[nuovo ? ingresso.prossimo++ : ingresso.prossimo - 1];
    auto record =
        Durante([&] { return NomeIngresso(file); },
                [&] { return nuovo ? Comincia(ingresso, file) : ProssimoRecord(*ingresso.lettore); });
    if (record) {
      riga.numero = ++ingresso.righe;
      riga.tracciato = &ingresso.tracciato;
      riga.record = std::move(*record);
      return true;
    }
    ingresso.lettore.reset();
  }
}

}  // namespace tarvel::lotto

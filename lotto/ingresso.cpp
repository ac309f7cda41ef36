#include "lotto/ingresso.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "base/errore.h"

namespace tarvel::lotto {
namespace {

constexpr std::size_t kRigheBlocco = 64;

Testo NomeIngresso(const std::string& file) {
  return file == "-" ? Testo("standard input") : DaUtf8(file);
}

std::istream& Apri(Ingresso& ingresso, const std::string& file) {
  if (file == "-") return std::cin;
  ingresso.flusso = {};
  ingresso.flusso.open(std::filesystem::path(std::u8string(file.begin(), file.end())), std::ios::binary);
  if (!ingresso.flusso.is_open()) throw ErroreFatale(TipoErrore::File, "il file non si legge");
  return ingresso.flusso;
}

// Rows in which every decimal has the other sign are not one mistake each.
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

void DiceNonUsate(const Testo& file, const Colonne& colonne) {
  if (colonne.altre.empty()) return;
  Testo elenco;
  for (const Testo& nome : colonne.altre) elenco += (elenco.empty() ? "" : ", ") + nome;
  std::cerr << InUtf8("tarvel1-lotto: " + file + ": colonne non usate: " + elenco + "\n");
}

// The next file, up to its first row of values, which is returned where there is one.
std::optional<RecordCsv> Comincia(Ingresso& ingresso, const std::string& file) {
  auto tracciato = std::make_shared<Tracciato>();
  if (ingresso.file.size() > 1) tracciato->file = NomeIngresso(file);
  ingresso.lettore = std::make_unique<LettoreCsv>(Apri(ingresso, file));
  LettoreCsv& lettore = *ingresso.lettore;
  tracciato->formato = RiconosciCodifica(lettore);
  tracciato->formato.virgola = ingresso.virgola;
  tracciato->colonne = SenzaIntestazione();
  ingresso.tracciato = tracciato;

  auto primo = ProssimoRecord(lettore);
  if (!primo) return primo;
  const auto dove = [&] { return "riga " + std::to_string(primo->riga); };
  lettore.separatore = tracciato->formato.separatore = RiconosciSeparatore(primo->testo);
  if (!ingresso.formato) ingresso.formato = tracciato->formato;
  std::vector<std::string> celle;
  Celle(primo->testo, lettore.separatore, celle);
  if (primo->guasto != nullptr) throw ErroreFatale(TipoErrore::Formato, primo->guasto, dove());
  const auto colonne = Durante(dove, [&] { return LeggiIntestazione(celle); });
  if (colonne) {
    tracciato->colonne = *colonne;
    DiceNonUsate(NomeIngresso(file), *colonne);
    primo = ProssimoRecord(lettore);
    if (!primo) return primo;
    Celle(primo->testo, lettore.separatore, celle);
  }
  Durante(dove, [&] { ControllaDecimali(celle, ingresso.virgola); });
  return primo;
}

}  // namespace

bool LeggiRighe(Ingresso& ingresso, std::vector<Riga>& righe) {
  const auto aggiungi = [&](RecordCsv&& record) {
    Riga& riga = righe.emplace_back();
    riga.numero = ++ingresso.righe;
    riga.tracciato = ingresso.tracciato;
    riga.record = std::move(record);
  };
  while (righe.size() < kRigheBlocco) {
    const bool nuovo = ingresso.lettore == nullptr;
    if (nuovo && ingresso.prossimo == ingresso.file.size()) return false;
    const std::string& file = ingresso.file[nuovo ? ingresso.prossimo++ : ingresso.prossimo - 1];
    auto record =
        Durante([&] { return NomeIngresso(file); },
                [&] { return nuovo ? Comincia(ingresso, file) : ProssimoRecord(*ingresso.lettore); });
    if (record)
      aggiungi(std::move(*record));
    else
      ingresso.lettore.reset();
  }
  return true;
}

}  // namespace tarvel::lotto

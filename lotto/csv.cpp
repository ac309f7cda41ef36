#include "lotto/csv.h"

#include <algorithm>
#include <array>

#include "base/errore.h"
#include "platform/file.h"

namespace tarvel::lotto {
namespace {

constexpr std::size_t kBlocco = 1 << 16;
// The reader looks so far for the end of a quoted cell.
constexpr std::size_t kVirgoletteMassime = 1 << 16;
constexpr std::string_view kSeparatori = "\t;,";
constexpr auto npos = std::string::npos;

// Drops the records that are behind and appends a block of the file; false at its end.
bool Riempi(LettoreCsv& lettore) {
  if (lettore.finito) return false;
  lettore.blocco.erase(0, lettore.posto);
  lettore.posto = 0;
  const std::size_t prima = lettore.blocco.size();
  lettore.blocco.resize(prima + kBlocco);
  lettore.attende(true);
  lettore.ingresso.read(lettore.blocco.data() + prima, static_cast<std::streamsize>(kBlocco));
  lettore.attende(false);
  if (lettore.ingresso.bad()) throw ErroreFatale(TipoErrore::File, "lettura non riuscita");
  lettore.blocco.resize(prima + static_cast<std::size_t>(lettore.ingresso.gcount()));
  lettore.finito = !lettore.ingresso;
  return lettore.blocco.size() > prima;
}

bool Separa(char c, char separatore) {
  return separatore == '\0' ? kSeparatori.find(c) != npos : c == separatore;
}

// Calls `fuori(i)` for each character outside quotes, until it returns false. Quotes count at the beginning
// of a cell only: 12" is a cell without quotes. Returns false when the text ends within quotes.
template <class Fuori>
bool PerOgniFuori(std::string_view testo, char separatore, Fuori fuori) {
  bool inizioCella = true, dentro = false;
  for (std::size_t i = 0; i < testo.size(); ++i) {
    const char c = testo[i];
    if (dentro) {
      if (c != '"') continue;
      if (i + 1 < testo.size() && testo[i + 1] == '"')
        ++i;
      else
        dentro = false;
      continue;
    }
    if (c == '"' && inizioCella) {
      dentro = true;
    } else if (!fuori(i)) {
      return true;
    }
    inizioCella = Separa(c, separatore) || c == '\n' || (inizioCella && c == ' ');
  }
  return !dentro;
}

// The end of the line at the reader's place; npos when the block does not reach so far.
std::size_t FineRiga(const LettoreCsv& lettore) {
  const std::size_t fine = lettore.blocco.find('\n', lettore.posto);
  return fine == npos && lettore.finito ? lettore.blocco.size() : fine;
}

// The end of the record with quotes at the reader's place; npos when they are not closed near enough.
std::size_t FineTraVirgolette(LettoreCsv& lettore) {
  for (;;) {
    const auto resto = std::string_view(lettore.blocco).substr(lettore.posto, kVirgoletteMassime);
    std::size_t aCapo = npos;
    const bool chiuse = PerOgniFuori(resto, lettore.separatore, [&](std::size_t i) {
      if (resto[i] == '\n') aCapo = i;
      return aCapo == npos;
    });
    if (aCapo != npos) return lettore.posto + aCapo;
    if (resto.size() == kVirgoletteMassime) return npos;
    if (!Riempi(lettore)) return chiuse ? lettore.posto + resto.size() : npos;
  }
}

// Takes the line at the reader's place and, where a quoted cell goes on after it, the lines of that cell.
RecordCsv Estrai(LettoreCsv& lettore) {
  RecordCsv record{.testo = {}, .riga = lettore.riga};
  std::size_t fine = FineRiga(lettore);
  for (; fine == npos; fine = FineRiga(lettore)) {
    if (lettore.blocco.size() - lettore.posto > kRigaMassima) {
      // This is no text: its bytes are read up to the line's end, and not kept.
      record.guasto = "riga troppo lunga";
      lettore.posto = lettore.blocco.size();
    }
    Riempi(lettore);
  }
  if (record.guasto != nullptr) lettore.posto = fine;
  const auto riga = std::string_view(lettore.blocco).substr(lettore.posto, fine - lettore.posto);
  if (!riga.starts_with('#') && riga.find('"') != npos) {
    fine = FineTraVirgolette(lettore);
    if (fine == npos) {
      record.guasto = "virgolette aperte e mai chiuse";
      fine = FineRiga(lettore);
    }
  }
  record.testo.assign(lettore.blocco, lettore.posto, fine - lettore.posto);
  lettore.posto = std::min(fine + 1, lettore.blocco.size());
  lettore.riga += 1 + std::count(record.testo.begin(), record.testo.end(), '\n');
  if (record.testo.ends_with('\r')) record.testo.pop_back();
  return record;
}

bool Utf8(std::string_view testo) {
  return std::all_of(testo.begin(), testo.end(), [](char c) { return static_cast<signed char>(c) >= 0; }) ||
         Utf8Valido(testo);
}

// UTF-16 has its mark or, where that is missing, a NUL as every second byte of Latin letters.
bool Utf16(std::string_view inizio) {
  if (inizio.starts_with("\xFF\xFE") || inizio.starts_with("\xFE\xFF")) return true;
  std::array<std::size_t, 2> nulli{};  // at even and at odd places
  for (std::size_t i = 0; i < inizio.size(); ++i)
    if (inizio[i] == '\0') ++nulli[i % 2];
  const auto [meno, piu] = std::minmax(nulli[0], nulli[1]);
  return meno == 0 && piu > 0 && piu >= inizio.size() / 4;
}

bool Formula(std::string_view testo) {
  return !testo.empty() && std::string_view("=+-@").find(testo.front()) != npos;
}

// A formula, also one that has apostrophes before it: NomeDiCella would take away the name's own.
bool DaProteggere(std::string_view nome) {
  return Formula(nome.substr(std::min(nome.find_first_not_of('\''), nome.size())));
}

}  // namespace

FormatoCsv RiconosciCodifica(LettoreCsv& lettore) {
  FormatoCsv formato;
  Riempi(lettore);
  const std::string_view inizio = lettore.blocco;
  const auto rifiuta = [](const char* cosa) { throw ErroreFatale(TipoErrore::Formato, cosa); };
  if (inizio.starts_with("PK\x03\x04") || inizio.starts_with("\xD0\xCF\x11\xE0"))
    rifiuta("è una cartella di lavoro: va salvata dal foglio di calcolo come CSV"_t.c_str());
  if (Utf16(inizio)) rifiuta("è in UTF-16: va salvato come CSV UTF-8"_t.c_str());
  if (inizio.starts_with(kSegnoUtf8)) {
    formato.codifica = Codifica::Utf8ConSegno;
    lettore.posto = kSegnoUtf8.size();
  } else if (const auto intere = inizio.substr(0, inizio.rfind('\n') + 1);
             !Utf8(intere.empty() ? inizio : intere)) {
    formato.codifica = Codifica::Windows1252;
  }
  const std::size_t aCapo = inizio.find('\n');
  if (aCapo != npos && aCapo > 0 && inizio[aCapo - 1] == '\r') formato.fineRiga = "\r\n";
  return formato;
}

char SeparatoreDichiarato(std::string_view testo) {
  if (testo.starts_with('"') && testo.ends_with('"') && testo.size() > 1)
    testo = testo.substr(1, testo.size() - 2);
  const bool dichiara = testo.size() == 5 && Minuscole(testo).starts_with("sep=") && Separa(testo[4], '\0');
  return dichiara ? testo[4] : '\0';
}

char RiconosciSeparatore(std::string_view testo) {
  std::size_t migliore = kSeparatori.size();
  PerOgniFuori(testo, '\0', [&](std::size_t i) {
    migliore = std::min(migliore, kSeparatori.find(testo[i]));
    return true;
  });
  return migliore < kSeparatori.size() ? kSeparatori[migliore] : FormatoCsv().separatore;
}

std::optional<RecordCsv> ProssimoRecord(LettoreCsv& lettore) {
  for (;;) {
    if (lettore.posto == lettore.blocco.size() && !Riempi(lettore)) return std::nullopt;
    RecordCsv record = Estrai(lettore);
    if (record.guasto == nullptr && record.testo.find('\0') != npos) record.guasto = "un carattere nullo";
    const auto vuota = [&](char c) { return c == ' ' || Separa(c, lettore.separatore); };
    const bool daSaltare =
        record.testo.starts_with('#') || std::all_of(record.testo.begin(), record.testo.end(), vuota);
    if (record.guasto != nullptr || !daSaltare) return record;
  }
}

void Celle(std::string_view testo, char separatore, std::vector<std::string>& celle) {
  std::size_t n = 0;
  for (std::size_t inizio = 0, fine = 0; inizio <= testo.size(); inizio = fine + 1) {
    if (n == celle.size()) celle.emplace_back();
    std::string& cella = celle[n++];
    cella.clear();
    std::size_t i = std::min(testo.find_first_not_of(' ', inizio), testo.size());
    if (testo.substr(i, 1) == "\"") {
      for (++i; i < testo.size(); cella += testo[i++])
        if (testo[i] == '"' && testo.substr(++i, 1) != "\"") break;  // two of them are one of the cell's own
    }
    // No spreadsheet writes anything more after the quotes, but a hand may.
    fine = std::min(testo.find(separatore, i), testo.size());
    cella += testo.substr(i, fine - i);
    cella = SenzaBlanchi(cella);
  }
  celle.resize(n);
}

Testo TestoCella(std::string_view cella) {
  return Utf8(cella) ? DaUtf8(cella) : Testo(cella);
}

Testo NomeProtetto(const Testo& nome) {
  return DaProteggere(nome) ? "'" + nome : nome;
}

Testo NomeDiCella(const Testo& cella) {
  return cella.starts_with('\'') && DaProteggere(cella) ? cella.substr(1) : cella;
}

void AccodaCella(std::string& uscita, std::string_view testo, const FormatoCsv& formato) {
  const std::string codificato =
      formato.codifica == Codifica::Windows1252 ? std::string(testo) : InUtf8(testo);
  const bool virgolette = codificato.find_first_of("\"\r\n") != npos || codificato.starts_with('#') ||
                          codificato.find(formato.separatore) != npos;
  if (!virgolette) {
    uscita += codificato;
    return;
  }
  uscita += '"';
  for (const char c : codificato) {
    if (c == '"') uscita += '"';
    uscita += c;
  }
  uscita += '"';
}

}  // namespace tarvel::lotto

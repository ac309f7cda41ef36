#include "lotto/colonne.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "base/errore.h"
#include "base/numeri.h"
#include "lotto/csv.h"
#include "model/nomi_dimensioni.h"

namespace tarvel::lotto {
namespace {

constexpr char kAmbigua[] = "raccordo inferiore";  // the guide calls so a height and a base

// A name for comparisons: its letters and digits, small and without accents, and one blank in place of what
// stands between them.
Testo Chiave(const Testo& nome) {
  static const Testo kAccentate = "àáâèéêìíîòóôùúû"_t;
  constexpr std::string_view kSemplici = "aaaeeeiiiooouuu";
  Testo chiave;
  for (char c : Minuscole(nome)) {
    if (const auto i = kAccentate.find(c); i != Testo::npos) c = kSemplici[i];
    const bool tenuta = (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9');
    if (!tenuta && (chiave.empty() || chiave.back() == ' ')) continue;
    chiave += tenuta ? c : ' ';
  }
  return Testo(SenzaBlanchi(chiave));
}

// What the column of this key holds.
int Significato(const Testo& chiave) {
  if (chiave == "nome") return kNome;
  for (int i = 0; i < kNumParametri; ++i) {
    if (chiave == Chiave(DaUtf8(Nomi(i).breve)) || chiave == "p" + std::to_string(i) ||
        chiave == Chiave(DaUtf8(Nomi(i).guida)))
      return i;
  }
  return kAltra;
}

void Elenca(Testo& elenco, const Testo& nome) {
  elenco += (elenco.empty() ? "" : ", ") + nome;
}

[[noreturn]] void Rifiuta(const Testo& cosa) {
  throw ErroreFatale(TipoErrore::Formato, "intestazione: " + cosa);
}

}  // namespace

Testo NomeDimensione(int i) {
  return DaUtf8(Nomi(i).breve);
}

std::optional<Colonne> LeggiIntestazione(const std::vector<std::string>& celle) {
  for (const std::string& cella : celle)
    if (NumeroCella(cella, false) || NumeroCella(cella, true)) return std::nullopt;

  Colonne colonne;
  std::array<int, kNumParametri + 1> volte{};
  for (const std::string& cella : celle) {
    const Testo nome = TestoCella(cella), chiave = Chiave(nome);
    if (chiave == kAmbigua)
      Rifiuta("\""_t + nome + "\" è ambiguo: \"altezza raccordo inferiore\" o \"base raccordo inferiore\""_t);
    const int significato = Significato(chiave);
    colonne.significato.push_back(significato);
    if (significato == kAltra) {
      if (!nome.empty()) Elenca(colonne.altre, '"' + nome + '"');
    } else if (++volte[static_cast<std::size_t>(significato)] > 1) {
      Rifiuta("\"" + nome + "\" ripete una colonna");
    } else if (significato < kNumParametri) {
      colonne.servono = colonne.significato.size();
    }
  }
  Testo mancanti;
  for (int i = 0; i < kNumParametri; ++i)
    if (volte[static_cast<std::size_t>(i)] == 0)
      Elenca(mancanti, NomeDimensione(i) + " (p" + std::to_string(i) + ")");
  if (!mancanti.empty())
    Rifiuta("manca " + mancanti + (colonne.altre.empty() ? "" : "; nomi non riconosciuti: " + colonne.altre));
  return colonne;
}

Colonne SenzaIntestazione() {
  Colonne colonne{.significato = std::vector<int>(kNumParametri), .servono = kNumParametri, .altre = {}};
  std::iota(colonne.significato.begin(), colonne.significato.end(), 0);
  return colonne;
}

std::optional<Reale> NumeroCella(std::string_view cella, bool virgola) {
  if (cella.ends_with('%')) cella = SenzaBlanchi(cella.substr(0, cella.size() - 1));
  if (!virgola) return NumeroInvariante(cella);
  if (cella.find('.') != std::string_view::npos) return std::nullopt;
  Testo numero(cella);
  std::replace(numero.begin(), numero.end(), ',', '.');
  return NumeroInvariante(numero);
}

}  // namespace tarvel::lotto

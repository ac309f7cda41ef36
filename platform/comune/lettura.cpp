// Reading files line by line or item by item, a block of the host's at a time.
#include <algorithm>

#include "base/errore.h"
#include "base/numeri.h"
#include "platform/comune/percorso.h"
#include "platform/file.h"

namespace tarvel {
namespace {

constexpr std::size_t kBlocco = 1 << 16;

}  // namespace

std::optional<FileInLettura> FileInLettura::Apri(const Testo& percorso) {
  const auto host = PercorsoHost(percorso);
  const auto file = host ? OspiteDeiFile().ApriLettura(*host) : std::nullopt;
  if (!file) return std::nullopt;
  return FileInLettura(percorso, FileAperto(*file));
}

Testo FileInLettura::Luogo() const {
  return percorso_ + ", riga " + std::to_string(std::max(numero_, 1));
}

void FileInLettura::Malformato(const Testo& cosa) const {
  throw ErroreFatale(TipoErrore::Formato, cosa, Luogo());
}

bool FileInLettura::Riempi() {
  buffer_.resize(kBlocco);
  const auto letti = OspiteDeiFile().Leggi(*file_, buffer_);
  buffer_.resize(letti.value_or(0));
  posto_ = 0;
  if (!letti) throw ErroreFatale(TipoErrore::File, "lettura del file non riuscita", Luogo());
  return *letti > 0;
}

void FileInLettura::Prepara() {
  if (rigaAperta_) return;
  ++numero_;
  riga_.clear();
  letti_ = 0;
  for (bool intera = false; !intera;) {
    if (posto_ == buffer_.size() && !Riempi()) {
      if (riga_.empty()) Malformato("fine del file inattesa");
      break;
    }
    const auto fine = std::min(buffer_.find('\n', posto_), buffer_.size());
    riga_.append(buffer_, posto_, fine - posto_);
    if (riga_.size() > kRigaMassima + 1) break;
    intera = fine < buffer_.size();
    posto_ = intera ? fine + 1 : fine;
  }
  if (!riga_.empty() && riga_.back() == '\r') riga_.pop_back();
  if (riga_.size() > kRigaMassima) Malformato("riga troppo lunga");
  rigaAperta_ = true;
}

std::string_view FileInLettura::LeggiRiga() {
  rigaAperta_ = false;
  Prepara();
  rigaAperta_ = false;
  return riga_;
}

std::string_view FileInLettura::Voce(bool fineAlBlanco) {
  Prepara();
  const std::string_view riga = riga_;
  const auto blanco = [](char c) { return c == ' ' || c == '\t'; };
  const auto primo = [&](std::size_t da, auto cercato) {
    return static_cast<std::size_t>(
        std::find_if(riga.begin() + static_cast<std::ptrdiff_t>(da), riga.end(), cercato) - riga.begin());
  };
  const auto salta = [&](std::size_t da) { return primo(da, [&](char c) { return !blanco(c); }); };
  std::size_t inizio = salta(letti_);
  std::size_t fine = 0;
  std::size_t dopo = 0;
  if (inizio < riga.size() && riga[inizio] == '"') {
    ++inizio;
    fine = primo(inizio, [](char c) { return c == '"'; });
    dopo = std::min(fine + 1, riga.size());
  } else {
    fine = dopo = primo(inizio, [&](char c) { return c == ',' || (fineAlBlanco && blanco(c)); });
  }
  dopo = salta(dopo);
  rigaAperta_ = dopo < riga.size();
  letti_ = rigaAperta_ && riga[dopo] == ',' ? dopo + 1 : dopo;
  return riga.substr(inizio, fine - inizio);
}

Testo FileInLettura::LeggiVoceTesto() {
  return Testo(Voce(false));
}

std::string_view FileInLettura::LeggiVoce() {
  return Voce(true);
}

Reale FileInLettura::LeggiVoceNumero() {
  const std::string_view voce = LeggiVoce();
  const auto valore = NumeroInvariante(voce);
  if (!valore) Malformato("numero non valido \"" + Testo(voce.substr(0, 40)) + "\"");
  return *valore;
}

Intero16 FileInLettura::LeggiVoceIntero() {
  const Reale valore = LeggiVoceNumero();
  if (Pavimento(valore) != valore || valore < -32768 || valore > 32767)
    Malformato("numero intero non valido " + FormatoNumero(valore));
  return {static_cast<long long>(valore.Valore())};
}

}  // namespace tarvel

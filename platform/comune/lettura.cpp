// Reading files line by line or item by item, a block of the host's at a time.
#include <algorithm>
#include <array>

#include "base/errore.h"
#include "base/numeri.h"
#include "platform/comune/percorso.h"
#include "platform/file.h"

namespace tarvel {
namespace {

constexpr std::size_t kBlocco = 1 << 16;

std::optional<FileAperto> ApriLettura(const Testo& percorso) {
  const auto host = PercorsoHost(percorso);
  const auto file = host ? OspiteDeiFile().ApriLettura(*host) : std::nullopt;
  if (!file) return std::nullopt;
  return FileAperto(*file);
}

}  // namespace

std::uint64_t Impronta(std::string_view testo, std::uint64_t prima) {
  for (const char c : testo) prima = (prima ^ static_cast<unsigned char>(c)) * 0x100000001b3;
  return prima;
}

std::optional<Testo> FileAperto::Resto() const {
  Testo resto;
  std::array<char, kBlocco> blocco;
  for (;;) {
    const auto letti = OspiteDeiFile().Leggi(*file_, blocco);
    if (!letti) return std::nullopt;
    if (*letti == 0) return resto;
    resto.append(blocco.data(), *letti);
  }
}

std::optional<Testo> LeggiTutto(const Testo& percorso) {
  const auto file = ApriLettura(percorso);
  return file ? file->Resto() : std::nullopt;
}

std::optional<FileInLettura> FileInLettura::Apri(const Testo& percorso, Testo* motivo) {
  auto file = ApriLettura(percorso);
  if (!file && motivo != nullptr) *motivo = MotivoOspite();
  if (!file) return std::nullopt;
  return FileInLettura(percorso, std::move(*file));
}

Testo FileInLettura::Luogo() const {
  return percorso_ + ", riga " + std::to_string(std::max(numero_, 1));
}

void FileInLettura::Malformato(const Testo& cosa) const {
  throw ErroreFatale(TipoErrore::Formato, cosa, Luogo());
}

std::string_view FileInLettura::Preteso(std::optional<std::string_view> letto) const {
  if (letto) return *letto;
  if (!guasto_.empty())
    throw ErroreFatale(TipoErrore::File, "lettura del file non riuscita: " + guasto_, Luogo());
  Malformato(mancanza_ == Mancanza::RigaLunga ? "riga troppo lunga" : "fine del file inattesa");
}

// The next block of the file; false at its end and for a fault.
bool FileInLettura::Riempi() {
  buffer_.resize(kBlocco);
  const auto letti = OspiteDeiFile().Leggi(*file_, buffer_);
  guasto_ = letti ? Testo() : MotivoOspite();
  buffer_.resize(letti.value_or(0));
  posto_ = 0;
  impronta_ = Impronta(buffer_, impronta_);
  mancanza_ = Mancanza::FineFile;
  return !buffer_.empty();
}

bool FileInLettura::Prepara() {
  if (rigaAperta_) return true;
  ++numero_;
  riga_.clear();
  letti_ = 0;
  for (bool intera = false; !intera;) {
    if (posto_ == buffer_.size() && !Riempi()) {
      // The last line may lack its end; a fault leaves no line.
      if (riga_.empty() || !guasto_.empty()) return false;
      break;
    }
    const auto fine = std::min(buffer_.find('\n', posto_), buffer_.size());
    riga_.append(buffer_, posto_, fine - posto_);
    if (riga_.size() > kRigaMassima + 1) break;
    intera = fine < buffer_.size();
    posto_ = intera ? fine + 1 : fine;
  }
  if (!riga_.empty() && riga_.back() == '\r') riga_.pop_back();
  if (riga_.size() > kRigaMassima) {
    mancanza_ = Mancanza::RigaLunga;
    return false;
  }
  rigaAperta_ = true;
  return true;
}

std::optional<std::string_view> FileInLettura::ProssimaRiga() {
  rigaAperta_ = false;
  if (!Prepara()) return std::nullopt;
  rigaAperta_ = false;
  return riga_;
}

std::optional<std::string_view> FileInLettura::Voce(bool fineAlBlanco) {
  if (!Prepara()) return std::nullopt;
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

std::optional<std::string_view> FileInLettura::ProssimaVoceTesto() {
  return Voce(false);
}

std::optional<std::string_view> FileInLettura::ProssimaVoce() {
  return Voce(true);
}

Reale FileInLettura::LeggiVoceNumero() {
  const std::string_view voce = Preteso(ProssimaVoce());
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

void FileInLettura::PretendiFine() {
  bool fine = false;
  while (Prepara()) {
    const Testo resto = riga_.substr(letti_);
    rigaAperta_ = false;
    if (resto.find_first_not_of(" \t") == Testo::npos) continue;
    if (fine || resto != "\x1A")
      Malformato("righe in più dopo l'ultima, o un conteggio sbagliato: \""_t + resto.substr(0, 40) + '"');
    fine = true;
  }
  if (mancanza_ != Mancanza::FineFile || !guasto_.empty()) static_cast<void>(Preteso(std::nullopt));
}

}  // namespace tarvel

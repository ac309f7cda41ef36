// Files of the host, by the standard library: path translation, buffered reading and writing.
#include "platform/file.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "base/errore.h"
#include "base/numeri.h"

namespace tarvel {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBlocco = 1 << 16;

// The entry of a folder that a component names, whatever its case; the component itself where
// there is none. Of several, the first in alphabetical order: the same on every run.
fs::path Componente(const fs::path& cartella, const std::string& nome) {
  std::error_code errore;
  if (fs::exists(cartella / nome, errore)) return nome;
  const Testo cercato = Minuscole(DaUtf8(nome));
  std::optional<fs::path> trovato;
  for (fs::directory_iterator voce(cartella.empty() ? "." : cartella, errore), fine; !errore && voce != fine;
       voce.increment(errore)) {
    const fs::path candidato = voce->path().filename();
    if (Minuscole(DaUtf8(candidato.string())) == cercato && (!trovato || candidato < *trovato))
      trovato = candidato;
  }
  return trovato.value_or(nome);
}

std::FILE* ApriHost(const Testo& percorso, const char* modo) {
  const std::string host = PercorsoHost(percorso);
  std::error_code errore;
  if (fs::is_directory(host, errore)) return nullptr;
  return std::fopen(host.c_str(), modo);
}

}  // namespace

std::string PercorsoHost(const Testo& percorso) {
  std::string utf8 = InUtf8(percorso);
  if constexpr (fs::path::preferred_separator == '/') {
    std::replace(utf8.begin(), utf8.end(), '\\', '/');
    fs::path esito;
    for (const fs::path& parte : fs::path(utf8)) {
      const bool nome = !parte.empty() && parte != "/" && parte != "." && parte != "..";
      esito /= nome ? Componente(esito, parte.string()) : parte;
    }
    utf8 = esito.string();
  }
  return utf8;
}

// --- Reading

std::optional<FileInLettura> FileInLettura::Apri(const Testo& percorso) {
  std::FILE* file = ApriHost(percorso, "rb");
  if (file == nullptr) return std::nullopt;
  return FileInLettura(percorso, file);
}

Testo FileInLettura::Luogo() const {
  return percorso_ + ", riga " + std::to_string(std::max(numero_, 1));
}

void FileInLettura::Malformato(const Testo& cosa) const {
  throw ErroreFatale(TipoErrore::Formato, cosa, Luogo());
}

bool FileInLettura::Riempi() {
  buffer_.resize(kBlocco);
  const std::size_t letti = std::fread(buffer_.data(), 1, kBlocco, file_.get());
  buffer_.resize(letti);
  posto_ = 0;
  if (std::ferror(file_.get()) != 0)
    throw ErroreFatale(TipoErrore::File, "lettura del file non riuscita", Luogo());
  return letti > 0;
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
    intera = fine < buffer_.size();
    posto_ = intera ? fine + 1 : fine;
  }
  if (!riga_.empty() && riga_.back() == '\r') riga_.pop_back();
  rigaAperta_ = true;
}

std::string_view FileInLettura::LeggiRiga() {
  rigaAperta_ = false;
  Prepara();
  rigaAperta_ = false;
  return riga_;
}

std::string_view FileInLettura::LeggiVoce(bool fineAlBlanco) {
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
  return Testo(LeggiVoce(false));
}

Reale FileInLettura::LeggiVoceNumero() {
  const std::string_view voce = LeggiVoce(true);
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

// --- Writing

std::optional<FileInScrittura> FileInScrittura::Crea(const Testo& percorso) {
  std::FILE* file = ApriHost(percorso, "wb");
  if (file == nullptr) return std::nullopt;
  return FileInScrittura(percorso, file);
}

void FileInScrittura::Fallita() const {
  throw ErroreFatale(TipoErrore::File, "scrittura del file non riuscita", percorso_);
}

void FileInScrittura::Svuota() {
  const bool scritto = std::fwrite(buffer_.data(), 1, buffer_.size(), file_.get()) == buffer_.size();
  buffer_.clear();
  if (!scritto) Fallita();
}

void FileInScrittura::ScriviRiga(std::string_view riga) {
  (buffer_ += riga) += "\r\n";
  if (buffer_.size() >= kBlocco) Svuota();
}

void FileInScrittura::Chiudi() {
  Svuota();
  if (std::fclose(file_.release()) != 0) Fallita();
}

}  // namespace tarvel

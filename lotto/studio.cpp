#include "lotto/studio.h"

#include <algorithm>

#include "base/errore.h"
#include "base/numeri.h"
#include "model/archivio/file_sezioni.h"
#include "model/geometria.h"
#include "model/tabella_sezioni.h"
#include "properties/calcolo/caratteristiche.h"

namespace tarvel::lotto {
namespace {

constexpr int kPunti = 14;  // at most: the last one is missing where the axis crosses no web

bool DiComando(char c) {
  return static_cast<unsigned char>(c) < ' ';
}

// The program proposes names of three digits, enough for its table; a CSV may have more rows.
Testo NomeProposto(long long numero) {
  return numero < 1000 ? ProponiNome(numero) : PrefissoNome + std::to_string(numero);
}

void LeggiNome(Riga& riga, const std::vector<std::string>& celle) {
  const auto& significato = riga.tracciato->colonne.significato;
  const auto posto = std::find(significato.begin(), significato.end(), kNome);
  const auto i = static_cast<std::size_t>(posto - significato.begin());
  if (posto != significato.end() && i < celle.size()) riga.nome = NomeDiCella(TestoCella(celle[i]));
  if (riga.nome.empty()) riga.nome = NomeProposto(riga.numero);
}

// The message ends with the place: "(varianti.csv, riga 12, sbalzo)".
[[noreturn]] void Rifiuta(const Riga& riga, const Testo& cosa, const Testo& colonna = {}) {
  const Testo& file = riga.tracciato->file;
  throw ErroreFatale(TipoErrore::Formato, cosa,
                     file + (file.empty() ? "" : ", ") + "riga " + std::to_string(riga.record.riga) +
                         (colonna.empty() ? "" : ", " + colonna));
}

void ControllaQuante(const Riga& riga, const std::vector<std::string>& celle) {
  const Colonne& colonne = riga.tracciato->colonne;
  const std::size_t quante = colonne.significato.size();
  const bool troppe =
      celle.size() > quante && std::any_of(celle.begin() + static_cast<std::ptrdiff_t>(quante), celle.end(),
                                           [](const std::string& cella) { return !cella.empty(); });
  if (celle.size() >= colonne.servono && !troppe) return;
  Testo cosa = "colonne: " + std::to_string(celle.size()) + " invece di " + std::to_string(quante);
  if (troppe && riga.tracciato->formato.separatore == ',')
    cosa += ". Con la virgola decimale le colonne si separano con ; o tabulazione";
  Rifiuta(riga, cosa);
}

void LeggiValori(Riga& riga, VettoreParametri& p) {
  const FormatoCsv& formato = riga.tracciato->formato;
  std::vector<std::string> celle;
  celle.reserve(riga.tracciato->colonne.significato.size());
  Celle(riga.record.testo, formato.separatore, celle);
  LeggiNome(riga, celle);
  if (riga.record.guasto != nullptr) Rifiuta(riga, riga.record.guasto);
  ControllaQuante(riga, celle);
  if (std::any_of(riga.nome.begin(), riga.nome.end(), DiComando))
    Rifiuta(riga, "il nome non è su una riga sola"_t);
  const auto& significato = riga.tracciato->colonne.significato;
  for (std::size_t i = 0; i < std::min(celle.size(), significato.size()); ++i) {
    const int quale = significato[i];
    if (quale < 0 || quale >= kNumParametri) continue;
    const std::string& cella = celle[i];
    const auto valore = NumeroCella(cella, formato.virgola);
    if (valore && (InPercento(quale) || !cella.ends_with('%'))) {
      p[quale] = *valore;
      continue;
    }
    if (cella.empty()) Rifiuta(riga, "manca il valore", NomeDimensione(quale));
    const char* consiglio = valore ? ": in percento sono soltanto le pendenze"
                            : !NumeroCella(cella, !formato.virgola) ? ""
                            : formato.virgola ? ": con --virgola i decimali hanno la virgola"
                                              : ": la virgola decimale vuole --virgola";
    const auto* che = valore ? "una lunghezza" : "un numero";
    Rifiuta(riga, "\"" + TestoCella(cella).substr(0, 40) + "\" non è "_t + che + consiglio,
            NomeDimensione(quale));
  }
}

void Calcola(Riga& riga, Calcolata& c, bool conserva) {
  if (riga.riletta != nullptr) {
    c = riga.riletta->sezione;
    riga.nome = c.record.Nome;
    if (!riga.riletta->motivo.empty()) {
      riga.motivo = riga.riletta->motivo;
      return;
    }
  } else {
    LeggiValori(riga, c.p);
    c.record.Nome = riga.nome;
  }
  const auto contorno = [&] { RifaiContorno(c.record, c.p); };
  const auto calcola = [&] {
    // A section read from a section file keeps the outline it has there.
    if (riga.riletta == nullptr) contorno();
    CalcolaCaratteristiche(c.record, c.p, VerticiPoligono);
  };
  Durante([&] { return SullaSezione("calcolo", riga.nome); }, calcola, kNonCassone);
  if (conserva) Durante([&] { return SullaSezione("salvataggio", riga.nome); }, contorno, kNonCassone);
}

void AccodaNumero(std::string& testo, Reale valore, const FormatoCsv& formato) {
  const bool virgolette = formato.virgola && formato.separatore == ',';
  (testo += formato.separatore) += virgolette ? "\"" : "";
  tarvel::AccodaNumero(testo, valore, formato.virgola ? ',' : '.', true);
  if (virgolette) testo += '"';
}

}  // namespace

bool CalcolaRiga(Riga& riga, Calcolata& sezione, bool conserva) {
  try {
    Calcola(riga, sezione, conserva);
  } catch (const ErroreFatale& errore) {
    riga.motivo = errore.Messaggio();
  }
  return riga.motivo.empty();
}

std::string ComponiIntestazione(const Uscita& uscita) {
  std::string testo = uscita.formato.codifica == Codifica::Utf8ConSegno ? Testo(kSegnoUtf8) + "nome" : "nome";
  for (const char* nome :
       {"larghezza", "altezza", "ZG", "YG", "An", "Aty", "Atz", "Jt", "Jyg", "Jzg", "errore"})
    (testo += uscita.formato.separatore) += nome;
  for (int k = 1; uscita.punti && k <= kPunti; ++k)
    for (const char* nome : {"z", "y", "tauT", "tauVy", "tauVz"})
      (testo += uscita.formato.separatore) += "P" + std::to_string(k) + " " + nome;
  return testo + uscita.formato.fineRiga;
}

void AccodaRigaCsv(std::string& testo, Riga& riga, const RecordSezione* sezione, const Uscita& uscita) {
  constexpr std::size_t kCaratteristiche = 10, kValoriPunto = 5;
  const FormatoCsv& formato = uscita.formato;
  std::replace_if(riga.nome.begin(), riga.nome.end(), DiComando, ' ');
  std::replace_if(riga.motivo.begin(), riga.motivo.end(), DiComando, ' ');
  const auto vuote = [&](std::size_t quante) { testo.append(quante, formato.separatore); };

  AccodaCella(testo, NomeProtetto(riga.nome), formato);
  if (sezione == nullptr) {
    vuote(kCaratteristiche);
  } else {
    const RecordSezione& r = *sezione;
    for (const Reale valore :
         {r.BaseTotale, r.AltezzaTotale, r.ZG, r.YG, r.An, r.Aty, r.Atz, r.Jt, r.Jyg, r.Jzg})
      AccodaNumero(testo, valore, formato);
  }
  testo += formato.separatore;
  AccodaCella(testo, riga.motivo, formato);
  for (int k = 1; uscita.punti && k <= kPunti; ++k) {
    if (sezione == nullptr || k > sezione->NumPunti) {
      vuote(kValoriPunto);
      continue;
    }
    const RecordSezione& r = *sezione;
    for (const Reale valore : {r.PuntoZ[k], r.PuntoY[k], r.TauT[k], r.TauVy[k], r.TauVz[k]})
      AccodaNumero(testo, valore, formato);
  }
  testo += formato.fineRiga;
}

}  // namespace tarvel::lotto

#include "app/genera_disegno.h"

#include <exception>

#include "drawing/salva_dis_cond.h"
#include "drawing/sezione/disegno_sezione.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "model/geometria.h"
#include "model/tabella_sezioni.h"
#include "platform/desktop.h"
#include "preview/anteprima.h"

namespace tarvel {

void ConAvvisi(const std::function<void()>& disegna) {
  std::exception_ptr fatale;
  try {
    disegna();
  } catch (const ErroreFatale&) {
    fatale = std::current_exception();
  }
  for (const char* avviso : disegno::Disegno.avvisi) MostraMessaggio(avviso, "Problema", Icona::Esclamazione);
  if (fatale) std::rethrow_exception(fatale);
}

void GeneraDisegno(ModoAvviso avvisi) {
  RecordSezione& r = TabellaSezioni[SezioneCorrente];
  const Testo file = DirLavori + NomeFileDisegno;
  const auto genera = [&] {
    if (!SezioneCalcolata) RifaiContorno(r, ParametriSezione);
    ConAvvisi([&] { DisegnaSezione(r, ParametriSezione, StileDi(Opzioni), SezioneCalcolata); });
    return disegno::SalvaDisegno(file);
  };
  const auto guasto = Durante([&] { return SullaSezione("disegno", r.Nome); }, genera, kNonCassone);
  if (guasto && avvisi != ModoAvviso::Nessuno) MostraMessaggio(guasto->testo, "ERRORE", Icona::Nessuna);
  if (!guasto && avvisi == ModoAvviso::Tutti)
    MostraMessaggio("File " + file + " salvato.", "SALVA FILE DISEGNO", Icona::Informazione);
}

void MostraAnteprima() {
  GeneraDisegno(ModoAvviso::Nessuno);
  ImpostaPuntatore(Puntatore::Clessidra);
  if (const auto guasto = Anteprima()) MostraMessaggio(guasto->testo, "ERRORE", Icona::Stop);
  ImpostaPuntatore(Puntatore::Predefinito);
}

}  // namespace tarvel

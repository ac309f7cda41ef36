#include "app/genera_disegno.h"

#include "base/errore.h"
#include "drawing/salva_dis_cond.h"
#include "drawing/sezione/disegno_sezione.h"
#include "lavoro/cartelle.h"
#include "lavoro/nome_disegno.h"
#include "model/geometria.h"
#include "model/tabella_sezioni.h"
#include "platform/desktop.h"
#include "preview/anteprima.h"

namespace tarvel {
namespace {

void MostraAvvisi() {
  for (const char* avviso : disegno::Disegno.avvisi) MostraMessaggio(avviso, "Problema", Icona::Esclamazione);
}

void Salva(const Testo& file, ModoAvviso avvisi) {
  const auto guasto = disegno::SalvaDisegno(file);
  if (guasto && avvisi != ModoAvviso::Nessuno) MostraMessaggio(guasto->testo, "ERRORE", Icona::Nessuna);
  if (!guasto && avvisi == ModoAvviso::Tutti)
    MostraMessaggio("File " + file + " salvato.", "SALVA FILE DISEGNO", Icona::Informazione);
}

}  // namespace

void ConAvvisi(const std::function<void()>& disegna) {
  try {
    disegna();
  } catch (const ErroreFatale&) {
    MostraAvvisi();
    throw;
  }
  MostraAvvisi();
}

void GeneraDisegno(ModoAvviso avvisi) {
  RecordSezione& r = TabellaSezioni[SezioneCorrente];
  const auto genera = [&] {
    if (!SezioneCalcolata) RifaiContorno(r, ParametriSezione);
    ConAvvisi([&] { DisegnaSezione(r, ParametriSezione, StileDi(Opzioni), SezioneCalcolata); });
    Salva(DirLavori + NomeFileDisegno, avvisi);
  };
  Durante([&] { return SullaSezione("disegno", r.Nome); }, genera, kNonCassone);
}

void MostraAnteprima() {
  GeneraDisegno(ModoAvviso::Nessuno);
  ImpostaPuntatore(Puntatore::Clessidra);
  if (const auto guasto = Anteprima()) MostraMessaggio(guasto->testo, "ERRORE", Icona::Stop);
  ImpostaPuntatore(Puntatore::Predefinito);
}

}  // namespace tarvel

// What sessions of the program cannot show of the scripted desktop: its clock, scripts that are no
// text, a program that does not end.
#include <gtest/gtest.h>

#include <optional>
#include <sstream>

#include "platform/desktop.h"
#include "platform/headless/copione.h"

namespace tarvel::headless {
namespace {

struct FormScelta : Form {
  explicit FormScelta(const Testo& testo = "") {
    nome = "Scelta";
    etichetta.testo = testo;
    controlli = {&etichetta};
  }
  Controllo etichetta = NuovoControllo(TipoControllo::Etichetta, "testo", {});
};

struct FormMadre : Form {
  FormMadre() {
    nome = "madre";
    controlli = {&casella, &bottone};
  }
  Controllo casella = NuovoControllo(TipoControllo::Casella, "nome", {});
  Controllo bottone = NuovoControllo(TipoControllo::Bottone, "Fa", {});
  Temporizzatore timer;
};

// Recites the script with the form, and tells what Recita gives and writes: the status, the errors or, of a
// run without an error, the transcript.
std::string Esito(Form& form, const std::string& copione) {
  std::istringstream testo(copione);
  std::ostringstream verbale, errori;
  const int stato = Recita(form, testo, verbale, errori);
  return std::to_string(stato) + ' ' + (stato == 0 ? verbale : errori).str();
}

TEST(Headless, CopioneCheNonETesto) {
  FormMadre form;
  EXPECT_EQ(Esito(form, {"print nome\nprint \0nome", 23}),
            "2 script line 2: the line holds a NUL character\n");
  EXPECT_EQ(Esito(form, std::string(5'000'000, 'x')), "2 script line 1: the line is too long\n");
}

TEST(Headless, FormAUnoStessoIndirizzoSonoDue) {
  FormMadre form;
  std::optional<FormScelta> scelta;
  form.bottone.click = [&] { MostraFormModale(scelta.emplace(scelta ? "due" : "uno")); };
  EXPECT_EQ(Esito(form, "click Fa\nclose\nclick Fa\nclose\n"),
            "0 show madre\nshow Scelta modal\nunload Scelta\nshow Scelta modal\nunload Scelta\nunload "
            "madre\nend 0\n");
}

TEST(Headless, UnProgrammaCheNonFinisceSiAbbandona) {
  FormMadre form;
  form.timer.scatto = [] {};
  form.bottone.click = [&] { AbilitaTimer(form.timer, true); };
  EXPECT_EQ(Esito(form, "click Fa\n"), "2 script line 1: the program did not end after the script\n");
}

// The timer closes the modal form 10 ms into the tick; its caller goes on at once, not after the rest
// of the tick.
TEST(Headless, IlTempoPassaNelCicloCheAttende) {
  FormMadre form;
  FormScelta scelta;
  int scatti = 0, alRitorno = 0;
  form.timer.scatto = [&] {
    ++scatti;
    ScaricaForm(scelta);
  };
  form.bottone.click = [&] {
    if (form.timer.attivo) TerminaProgramma(0);
    for (int volte = 0; volte < 2; ++volte) AbilitaTimer(form.timer, true);
    MostraFormModale(scelta);
    alRitorno = scatti;
  };
  EXPECT_EQ(Esito(form, "click Fa\ntick 45\ntick 4\nclick Fa\n").front(), '0');
  EXPECT_EQ(alRitorno, 1);
  EXPECT_EQ(scatti, 4);
  EXPECT_FALSE(form.timer.attivo) << "nothing is left running for the next run";
}

}  // namespace
}  // namespace tarvel::headless

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
    etichetta = NuovoControllo(TipoControllo::Etichetta, "testo", {}, testo);
    controlli = {&etichetta};
  }
  Controllo etichetta;
};

struct FormMadre : Form {
  FormMadre() {
    nome = "madre";
    controlli = {&casella, &scegli, &avviso};
  }
  Controllo casella = NuovoControllo(TipoControllo::Casella, "nome", {});
  Controllo scegli = NuovoControllo(TipoControllo::Bottone, "Scegli", {});
  Controllo avviso = NuovoControllo(TipoControllo::Bottone, "Avviso", {});
  FormScelta scelta;
  Temporizzatore timer;
};

struct Esito {
  int stato;
  std::string errori, verbale;
};

Esito RecitaTesto(Form& form, const std::string& copione) {
  std::istringstream testo(copione);
  std::ostringstream verbale, errori;
  const int stato = Recita(form, testo, verbale, errori);
  return {stato, errori.str(), verbale.str()};
}

TEST(Headless, CopioneCheNonETesto) {
  for (const auto& [copione, errore] :
       {std::pair{std::string("print nome\nprint \0nome", 23), "2: the line holds a NUL character"},
        {std::string(5'000'000, 'x'), "1: the line is too long"}}) {
    FormMadre form;
    const Esito esito = RecitaTesto(form, copione);
    EXPECT_EQ(esito.errori, "script line " + std::string(errore) + "\n");
    EXPECT_EQ(esito.stato, 2);
  }
}

TEST(Headless, FormAUnoStessoIndirizzoSonoDue) {
  FormMadre form;
  std::optional<FormScelta> scelta;
  const char* testi[] = {"uno", "due"};
  form.scegli.click = [&, i = 0]() mutable { MostraFormModale(scelta.emplace(testi[i++])); };
  EXPECT_EQ(RecitaTesto(form, "click Scegli\nclose\nclick Scegli\nclose\n").verbale,
            "show madre\nshow Scelta modal\nunload Scelta\nshow Scelta modal\nunload Scelta\nunload "
            "madre\nend 0\n");
}

TEST(Headless, UnProgrammaCheNonFinisceSiAbbandona) {
  FormMadre quieta;
  EXPECT_EQ(RecitaTesto(quieta, "").stato, 0) << "without a timer nothing can happen any more";

  FormMadre inquieta;
  inquieta.timer.scatto = [] {};
  inquieta.avviso.click = [&] { AbilitaTimer(inquieta.timer, true); };
  const Esito esito = RecitaTesto(inquieta, "click Avviso\n");
  EXPECT_EQ(esito.errori, "script line 1: the program did not end after the script\n");
  EXPECT_EQ(esito.stato, 2);
}

// The timer closes the modal form 10 ms into the tick; its caller goes on at once, not after the rest
// of the tick.
TEST(Headless, IlTempoPassaNelCicloCheAttende) {
  FormMadre form;
  int scatti = 0, alRitorno = 0, allaFine = 0;
  form.timer.scatto = [&] {
    ++scatti;
    ScaricaForm(form.scelta);
  };
  form.scegli.click = [&] {
    AbilitaTimer(form.timer, true);
    AbilitaTimer(form.timer, true);
    MostraFormModale(form.scelta);
    alRitorno = scatti;
  };
  form.avviso.click = [&] {
    allaFine = scatti;
    TerminaProgramma(0);
  };
  EXPECT_EQ(RecitaTesto(form, "click Scegli\ntick 45\ntick 4\nclick Avviso\n").stato, 0);
  EXPECT_EQ(alRitorno, 1);
  EXPECT_EQ(allaFine, 4);
  EXPECT_FALSE(form.timer.attivo) << "nothing is left running for the next run";
}

}  // namespace
}  // namespace tarvel::headless

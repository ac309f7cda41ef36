// What is remembered from one run to the next, and the words it is written with.
#include <gtest/gtest.h>

#include <QSettings>
#include <QTemporaryDir>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/finestra/preferenze.h"

namespace ostrel {
namespace {

// A folder of its own for the remembered choices, the tests' common one afterwards.
struct Preferenze : testing::Test {
  Preferenze() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, cartella.path()); }
  ~Preferenze() override { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, prima); }

  const QString prima =
      QFileInfo(QSettings(QSettings::IniFormat, QSettings::UserScope, "ostrel").fileName()).path();
  const QTemporaryDir cartella;
  const std::string file = cartella.filePath("ostrel.ini").toStdString();
};

TEST_F(Preferenze, LaResaSiRicorda) {
  EXPECT_EQ(ResaRicordata().genere, "pdf");
  RicordaResa({"dxf", {Unita::Centimetri, 12.5, Carta::A3, Orientamento::Verticale}});
  const SceltaResa scelta = ResaRicordata();
  EXPECT_EQ(scelta.genere, "dxf");
  EXPECT_EQ(scelta.resa.unita, Unita::Centimetri);
  EXPECT_EQ(scelta.resa.rapporto, 12.5);
  EXPECT_EQ(scelta.resa.carta, Carta::A3);
  EXPECT_EQ(scelta.resa.orientamento, Orientamento::Verticale);
  EXPECT_NE(prove::Leggi(file).find("scala=\"1:12,5\""), std::string::npos) << prove::Leggi(file);
}

TEST_F(Preferenze, IlFileGuastoNonNuoce) {
  const std::string guasti[] = {"[esporta]\nscala=molta\nunita=piedi\ncarta=A9\norientamento=7\ngenere=svg\n",
                                "[esporta\n=\x01\xFF@@\n\n]]", std::string(9, '\0')};
  prove::Scrivi(file, guasti[0]);
  EXPECT_EQ(ResaRicordata().genere, "svg") << "what makes sense is kept";
  prove::Scrivi(file, "[esporta]\ngenere=bmp\n");
  EXPECT_EQ(ResaRicordata().genere, "pdf");
  for (const std::string& byte : guasti) {
    prove::Scrivi(file, byte);
    const Resa resa = ResaRicordata().resa;
    EXPECT_EQ(resa.unita, Unita::Ignota) << byte;
    EXPECT_EQ(resa.rapporto, 0) << byte;
    EXPECT_EQ(resa.carta, Carta::A4) << byte;
  }
}

TEST(Scala, Figure) {
  const struct {
    const char* testo;
    std::optional<double> atteso;
  } casi[] = {{"1:50", 50},  {" 1 : 12,5 ", 12.5},  {"50", 50},         {"1/20", 20},  {"Adatta", 0},
              {"0", {}},     {"1:0", {}},           {"-50", {}},        {"2:1", {}},   {"", {}},
              {"1:", {}},    {"nan", {}},           {"1:1000000", 1e6}, {"1:1e7", {}}, {"inf", {}},
              {"50 cm", {}}, {"0x20", std::nullopt}};
  for (const auto& c : casi) EXPECT_EQ(LeggiScala(c.testo), c.atteso) << c.testo;
  EXPECT_EQ(LeggiUnita(""), std::nullopt) << "the word of no unit is not one";
}

}  // namespace
}  // namespace ostrel

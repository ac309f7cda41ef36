// What is remembered from one run to the next, and the words it is written with.
#include <gtest/gtest.h>

#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/documento/preferenze.h"

namespace ostrel {
namespace {

// A folder of its own for the remembered choices, the tests' common one afterwards.
struct ConPreferenze : testing::Test {
  ConPreferenze() { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, cartella.path()); }
  ~ConPreferenze() override { QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, prima); }

  const QString prima =
      QFileInfo(QSettings(QSettings::IniFormat, QSettings::UserScope, "ostrel").fileName()).path();
  const QTemporaryDir cartella;
  const std::string file = cartella.filePath("ostrel.ini").toStdString();
};

TEST_F(ConPreferenze, TornanoComeSonoStateScritte) {
  const QString strano = "/città/a, b = \"c\";  .dis";
  CambiaPreferenze([&](Preferenze& p) {
    EXPECT_EQ(p.scelta.genere, "pdf");
    p.fondoChiaro = true;
    p.scelta = {"dxf", {Unita::Centimetri, 12.5, Carta::A3, Orientamento::Verticale}};
    AggiungiRecente(p, strano);
    RicordaUnita(p, strano, Unita::Metri);
    RicordaUnita(p, "/b.dis", Unita::Ignota);
  });
  const Preferenze p = CambiaPreferenze([](Preferenze& altre) { altre.scelta.genere = "svg"; });
  EXPECT_TRUE(p.fondoChiaro);
  EXPECT_EQ(p.scelta.genere, "svg");
  EXPECT_EQ(p.scelta.resa.unita, Unita::Ignota) << "the one said last";
  EXPECT_EQ(p.scelta.resa.rapporto, 12.5);
  EXPECT_EQ(p.scelta.resa.carta, Carta::A3);
  EXPECT_EQ(p.scelta.resa.orientamento, Orientamento::Verticale);
  EXPECT_EQ(p.recenti, QStringList(strano));
  EXPECT_EQ(UnitaDi(p, strano), Unita::Metri);
  EXPECT_EQ(UnitaDi(p, "/b.dis"), Unita::Ignota) << "asked for, and not to be said";
  EXPECT_EQ(UnitaDi(p, "/c.dis"), std::nullopt);
  EXPECT_NE(prove::Leggi(file).find("scala=\"1:12,5\""), std::string::npos) << prove::Leggi(file);
}

TEST_F(ConPreferenze, IlFileGuastoNonNuoce) {
  const std::string guasti[] = {
      "[esporta]\nscala=molta\nunita=piedi\ncarta=A9\norientamento=7\ngenere=svg\n"
      "[file]\nunita=piedi /a.dis, , cm, m /b.dis\n",
      "[esporta\n=\x01\xFF@@\n\n]]", std::string(9, '\0')};
  prove::Scrivi(file, guasti[0]);
  EXPECT_EQ(LeggiPreferenze().scelta.genere, "svg") << "what makes sense is kept";
  EXPECT_EQ(UnitaDi(LeggiPreferenze(), "/b.dis"), Unita::Metri);
  prove::Scrivi(file, "[esporta]\ngenere=bmp\n");
  EXPECT_EQ(LeggiPreferenze().scelta.genere, "pdf");
  for (const std::string& byte : guasti) {
    prove::Scrivi(file, byte);
    const Preferenze p = LeggiPreferenze();
    EXPECT_EQ(p.scelta.resa.unita, Unita::Ignota) << byte;
    EXPECT_EQ(p.scelta.resa.rapporto, 0) << byte;
    EXPECT_EQ(p.scelta.resa.carta, Carta::A4) << byte;
    EXPECT_EQ(UnitaDi(p, "/a.dis"), std::nullopt) << byte;
  }
}

// One unit for one file, by whatever name; none for a file that the user has seen go. Neither list grows
// without end.
TEST_F(ConPreferenze, LUnitaEDelFile) {
  const QString vero = cartella.filePath("ponte.dis"), legame = cartella.filePath("legame.dis");
  prove::Scrivi(vero.toStdString(), "");
  ASSERT_TRUE(QFile::link(vero, legame));
  Preferenze p;
  RicordaUnita(p, cartella.filePath("./x/../ponte.dis"), Unita::Metri);
  EXPECT_EQ(UnitaDi(p, legame), Unita::Metri);
  RicordaUnita(p, legame, Unita::Centimetri);
  EXPECT_EQ(UnitaDi(p, vero), Unita::Centimetri);
  RicordaUnita(p, "", Unita::Millimetri);
  EXPECT_EQ(p.unita.size(), 1);
  AggiungiRecente(p, vero);
  QFile::remove(vero);
  EXPECT_EQ(UnitaDi(p, vero), Unita::Centimetri) << "away for a while";
  Dimentica(p, vero);
  EXPECT_EQ(UnitaDi(p, vero), std::nullopt);
  EXPECT_EQ(p.recenti, QStringList());

  for (int i = 0; i <= kMassimeUnita; ++i) {
    AggiungiRecente(p, QString("/%1.dis").arg(i));
    RicordaUnita(p, QString("/%1.dis").arg(i), Unita::Metri);
    RicordaUnita(p, "/0.dis", Unita::Millimetri);
  }
  EXPECT_EQ(p.recenti.size(), kMassimiRecenti);
  EXPECT_EQ(p.recenti.front(), QString("/%1.dis").arg(kMassimeUnita));
  EXPECT_EQ(p.unita.size(), kMassimeUnita);
  EXPECT_EQ(UnitaDi(p, "/0.dis"), Unita::Millimetri) << "said again, it is not the oldest";
  EXPECT_EQ(UnitaDi(p, "/1.dis"), std::nullopt);
  EXPECT_EQ(UnitaDi(p, "/2.dis"), Unita::Metri);
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

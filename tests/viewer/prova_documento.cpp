// The document without a window: what is read by order, what by itself, and what of it is news; what is
// remembered from one run to the next.
#include <QFile>
#include <QFileSystemWatcher>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <chrono>
#include <filesystem>
#include <tuple>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/documento/documento.h"
#include "viewer/documento/preferenze.h"

namespace ostrel {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

constexpr int kAttesaMassimaMs = 10000;
const std::string kGuasto = "guasto\r\n";

// The title of a drawing is its name here.
std::string Titolato(const char* nome) {
  return prove::ConRiga(prove::kEsempio, 388, nome);
}

struct ConDocumento : testing::Test {
  explicit ConDocumento(bool sorveglia = false)
      : documento(sorveglia, [this](const Caricato& esito, bool nuovo) {
          sentiti << QString::fromStdString(esito.disegno ? esito.disegno->titolo : esito.messaggio) +
                         (esito.disegno && nuovo ? ", nuovo" : "");
        }) {
    Scrivi(uno, Titolato("A"));
  }

  // Each time a second later: the clock of the files may be coarser than a scene is quick.
  void Scrivi(const QString& dove, const std::string& byte) {
    prove::Scrivi(dove.toStdString(), byte);
    fs::last_write_time(dove.toStdString(), fs::file_time_type::clock::now() - 1h + ++scritture * 1s);
  }
  QStringList Sentiti() { return std::exchange(sentiti, {}); }
  bool Sente(const QString& parola) {
    const auto sentita = [&] { return !sentiti.filter(parola).isEmpty(); };
    return QTest::qWaitFor(sentita, kAttesaMassimaMs);
  }
  // The folder changes, and whoever watches it has been told.
  void CambiaLaCartella() {
    QFileSystemWatcher guardia({cartella.path()});
    QSignalSpy cambiata(&guardia, &QFileSystemWatcher::directoryChanged);
    Scrivi(cartella.filePath("altro" + QString::number(scritture)), "");
    EXPECT_TRUE(cambiata.wait(kAttesaMassimaMs));
    QCoreApplication::processEvents();
  }

  const QTemporaryDir cartella;
  const QString uno = cartella.filePath("uno.dis"), due = cartella.filePath("due.dis");
  QStringList sentiti;
  int scritture = 0;
  Documento documento;
};

struct DocumentoSorvegliato : ConDocumento {
  DocumentoSorvegliato() : ConDocumento(true) {}
};

TEST_F(ConDocumento, AOgniComandoSiLegge) {
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList()) << "no file has been opened";
  documento.Apri(uno);
  documento.Ricarica();
  documento.Apri(due);
  documento.Ricarica();
  const QString manca = "File " + due + ": il disegno non esiste";
  EXPECT_EQ(Sentiti(), QStringList({"A, nuovo", "A", manca, manca}));
  EXPECT_EQ(documento.Mostrato(), uno);
  EXPECT_EQ(documento.Aperto(), due);
  Scrivi(due, Titolato("B"));
  Scrivi(uno, Titolato("C"));
  CambiaLaCartella();
  EXPECT_EQ(Sentiti(), QStringList()) << "not watched";
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList("B, nuovo")) << "the first that could be read";
  EXPECT_EQ(documento.Mostrato(), due);
}

TEST_F(ConDocumento, LAnteprimaRiscrittaTornaAlPostoDiUnAltroDisegno) {
  Scrivi(due, Titolato("B"));
  documento.ApriAnteprima(uno);
  EXPECT_TRUE(documento.MostraAnteprima());
  documento.Apri(due);
  EXPECT_FALSE(documento.MostraAnteprima());
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList({"A, nuovo", "B, nuovo", "B"}));
  Scrivi(uno, Titolato("C"));
  documento.Ricarica();
  EXPECT_TRUE(documento.MostraAnteprima());
  documento.Apri(due);
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList({"C, nuovo", "B, nuovo", "B"})) << "shown once, it does not come back";
  fs::remove(uno.toStdString());
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList("B")) << "nor where it is no longer there";
}

TEST_F(ConDocumento, AttendeUnFileInScrittura) {
  const std::string intero = Titolato("B"), meta = intero.substr(0, intero.size() / 2);
  prove::Scrivi(uno.toStdString(), meta);
  documento.Apri(uno);
  EXPECT_EQ(Sentiti(), QStringList()) << "neither shown nor refused yet";
  prove::Scrivi(uno.toStdString(), intero);
  EXPECT_TRUE(Sente("B, nuovo"));
  Scrivi(uno, meta);
  documento.Ricarica();
  EXPECT_FALSE(sentiti.filter(", atteso: ").isEmpty()) << "left so for good";
}

TEST_F(DocumentoSorvegliato, SiRileggeDaSe) {
  documento.Apri(uno);
  Scrivi(uno, Titolato("B"));
  EXPECT_TRUE(Sente("B"));
  // Replaced twice: the watch outlives the file it began with.
  for (const char* nome : {"C", "D"}) {
    Scrivi(uno + ".nuovo", Titolato(nome));
    fs::rename((uno + ".nuovo").toStdString(), uno.toStdString());
    EXPECT_TRUE(Sente(nome));
  }
  fs::remove(uno.toStdString());
  CambiaLaCartella();
  EXPECT_FALSE(Sentiti().contains("File " + uno + ": il disegno non esiste")) << "it may be being replaced";
  Scrivi(uno, Titolato("E"));
  EXPECT_TRUE(Sente("E"));
}

TEST_F(DocumentoSorvegliato, UnGuastoSiSenteUnaVoltaSola) {
  documento.Apri(uno);
  for (const char* volta : {"the first time", "written anew, as bad as before"}) {
    Scrivi(uno, kGuasto);
    EXPECT_TRUE(Sente("riga 1, atteso: ")) << volta;
    QCoreApplication::processEvents();
    Sentiti();
    CambiaLaCartella();
    EXPECT_EQ(Sentiti(), QStringList()) << "another file of the folder is no news of this one";
  }
  documento.Ricarica();
  EXPECT_EQ(Sentiti().size(), 1) << "whoever asks is told";
}

// The remembered choices, none at first and none left to other scenes.
struct ConPreferenze : testing::Test {
  ConPreferenze() { fs::remove(file); }
  ~ConPreferenze() override { fs::remove(file); }
  const std::string file =
      QSettings(QSettings::IniFormat, QSettings::UserScope, "ostrel").fileName().toStdString();
};

TEST_F(ConPreferenze, TornanoComeSonoStateScritte) {
  const QString strano = "/città/a, b = \"c\";  .dis";
  CambiaPreferenze([&](Preferenze& p) {
    EXPECT_EQ(p.scelta.genere, "pdf");
    p.fondoChiaro = true;
    p.scelta = {"dxf", {Unita::Centimetri, 12.5, Carta::A3, Orientamento::Verticale}};
    AggiungiRecente(p, strano);
    RicordaUnita(p, strano, Unita::Metri);
  });
  const Preferenze p = CambiaPreferenze([](Preferenze& altre) { altre.scelta.genere = "svg"; });
  const auto& [genere, resa] = p.scelta;
  EXPECT_EQ(std::tuple(p.fondoChiaro, genere, resa.unita, resa.rapporto, resa.carta, resa.orientamento),
            std::tuple(true, "svg", Unita::Metri, 12.5, Carta::A3, Orientamento::Verticale));
  EXPECT_EQ(p.recenti, QStringList(strano));
  EXPECT_EQ(UnitaDi(p, strano), Unita::Metri);
  EXPECT_NE(prove::Leggi(file).find("scala=\"1:12,5\""), std::string::npos) << prove::Leggi(file);
}

TEST_F(ConPreferenze, IlFileGuastoNonNuoce) {
  const std::string sensato =
      "[esporta]\nscala=molta\nunita=piedi\ncarta=A9\norientamento=7\ngenere=svg\n"
      "[file]\nunita=piedi /a.dis, , cm, m /b.dis\n";
  for (const std::string& byte : {sensato, std::string("[esporta]\ngenere=bmp\n"),
                                  std::string("[esporta\n=\x01\xFF@@\n\n]]"), std::string(9, '\0')}) {
    prove::Scrivi(file, byte);
    const Preferenze p = LeggiPreferenze();
    const auto& [genere, resa] = p.scelta;
    EXPECT_EQ(std::tuple(resa.unita, resa.rapporto, resa.carta), std::tuple(Unita::Ignota, 0, Carta::A4))
        << byte;
    EXPECT_EQ(UnitaDi(p, "/a.dis"), std::nullopt) << byte;
    // What makes sense is kept.
    EXPECT_EQ(genere, byte == sensato ? "svg" : "pdf") << byte;
    EXPECT_EQ(UnitaDi(p, "/b.dis").has_value(), byte == sensato) << byte;
  }
}

// One unit for one file, by whatever name; none for a file that the user has seen go. The list has its limit.
TEST_F(ConPreferenze, LUnitaEDelFile) {
  const QTemporaryDir cartella;
  const QString vero = cartella.filePath("ponte.dis"), legame = cartella.filePath("legame.dis");
  prove::Scrivi(vero.toStdString(), "");
  ASSERT_TRUE(QFile::link(vero, legame));
  Preferenze p;
  RicordaUnita(p, cartella.filePath("./x/../ponte.dis"), Unita::Metri);
  EXPECT_EQ(UnitaDi(p, legame), Unita::Metri);
  RicordaUnita(p, legame, Unita::Centimetri);
  RicordaUnita(p, "", Unita::Millimetri);
  EXPECT_EQ(p.unita.size(), 1);
  QFile::remove(vero);
  EXPECT_EQ(UnitaDi(p, vero), Unita::Centimetri) << "away for a while";
  Dimentica(p, vero);
  EXPECT_EQ(UnitaDi(p, vero), std::nullopt);
  for (int i = 0; i <= kMassimeUnita; ++i) {
    RicordaUnita(p, QString("/%1.dis").arg(i), Unita::Metri);
    RicordaUnita(p, "/0.dis", Unita::Millimetri);
  }
  EXPECT_EQ(p.unita.size(), kMassimeUnita);
  EXPECT_EQ(UnitaDi(p, "/0.dis"), Unita::Millimetri) << "said again, it is not the oldest";
  EXPECT_EQ(UnitaDi(p, "/1.dis"), std::nullopt);
  EXPECT_EQ(UnitaDi(p, "/2.dis"), Unita::Metri);
}

TEST(Scala, Figure) {
  const std::pair<const char*, double> scale[] = {{"1:50", 50}, {" 1 : 12,5 ", 12.5}, {"50", 50},
                                                  {"1/20", 20}, {"Adatta", 0},        {"1:1000000", 1e6}};
  for (const auto& [testo, rapporto] : scale) EXPECT_EQ(LeggiScala(testo), rapporto) << testo;
  for (const char* testo : {"0", "1:0", "-50", "2:1", "", "1:", "nan", "1:1e7", "inf", "50 cm", "0x20"})
    EXPECT_EQ(LeggiScala(testo), std::nullopt) << testo;
  EXPECT_EQ(LeggiUnita(""), std::nullopt) << "the word of no unit is not one";
}

}  // namespace
}  // namespace ostrel

// The document without a window: what is read by order, what by itself, and what of it is news.
#include <gtest/gtest.h>

#include <QFileSystemWatcher>
#include <QSignalSpy>
#include <QTest>
#include <chrono>
#include <filesystem>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/documento/documento.h"

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

}  // namespace
}  // namespace ostrel

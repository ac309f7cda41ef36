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

struct ConDocumento : testing::Test {
  explicit ConDocumento(bool sorveglia = false)
      : documento(sorveglia, [this](const Caricato& esito, bool nuovo) {
          sentiti << QString::fromStdString(esito.disegno ? esito.disegno->titolo : esito.messaggio) +
                         (esito.disegno && nuovo ? ", nuovo" : "");
        }) {
    Scrivi(file, 1);
    guardia.addPath(cartella.path());
  }

  // A drawing whose title ends with this figure.
  static std::string Titolato(int cifra) {
    return prove::ConRiga(prove::kEsempio, 388, std::to_string(cifra));
  }
  // Written a second later each time: the clock of the files may be coarser than a scene is quick.
  void Data(const std::string& dove) {
    fs::last_write_time(dove, fs::file_time_type::clock::now() - 1h + ++scritture * 1s);
  }
  void ScriviByte(const std::string& dove, const std::string& byte) {
    prove::Scrivi(dove, byte);
    Data(dove);
  }
  void Scrivi(const std::string& dove, int cifra) { ScriviByte(dove, Titolato(cifra)); }
  QStringList Sentiti() { return std::exchange(sentiti, {}); }
  bool Sente(const QString& atteso) {
    return QTest::qWaitFor([&] { return sentiti.contains(atteso); }, kAttesaMassimaMs);
  }
  // The folder changes, and whoever watches it has been told.
  void AltroNellaCartella() {
    QSignalSpy cambiata(&guardia, &QFileSystemWatcher::directoryChanged);
    prove::Scrivi(cartella.filePath("altro" + QString::number(++scritture)).toStdString(), "");
    EXPECT_TRUE(cambiata.wait(kAttesaMassimaMs));
    QCoreApplication::processEvents();
  }

  const QTemporaryDir cartella;
  const QString percorso = cartella.filePath("sezione.dis"), altro = cartella.filePath("altro.dis");
  const std::string file = percorso.toStdString();
  QFileSystemWatcher guardia;
  QStringList sentiti;
  int scritture = 0;
  Documento documento;
};

struct DocumentoSorvegliato : ConDocumento {
  DocumentoSorvegliato() : ConDocumento(true) {}
};

TEST_F(ConDocumento, AOgniComandoSiLegge) {
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList()) << "before a file has been opened";
  documento.Apri(percorso);
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList({"1, nuovo", "1"}));
  documento.Apri(altro);
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList(2, "File " + altro + ": il disegno non esiste"));
  EXPECT_EQ(documento.Mostrato(), percorso);
  EXPECT_EQ(documento.Aperto(), altro);
  Scrivi(altro.toStdString(), 2);
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList("2, nuovo")) << "the first that could be read";
  EXPECT_EQ(documento.Mostrato(), altro);
}

TEST_F(ConDocumento, LAnteprimaRiscrittaTornaAlPostoDiUnAltroDisegno) {
  Scrivi(altro.toStdString(), 2);
  documento.ApriAnteprima(percorso);
  EXPECT_TRUE(documento.MostraAnteprima());
  documento.Apri(altro);
  EXPECT_FALSE(documento.MostraAnteprima());
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList({"1, nuovo", "2, nuovo", "2"}));
  Scrivi(file, 3);
  documento.Ricarica();
  EXPECT_TRUE(documento.MostraAnteprima());
  documento.Apri(altro);
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList({"3, nuovo", "2, nuovo", "2"})) << "shown once, it does not come back";
  fs::remove(file);
  documento.Ricarica();
  EXPECT_EQ(Sentiti(), QStringList("2")) << "nor where it is no longer there";
}

TEST_F(ConDocumento, AttendeUnFileInScrittura) {
  const std::string intero = Titolato(2), meta = intero.substr(0, intero.size() / 2);
  prove::Scrivi(file, meta);
  documento.Apri(percorso);
  EXPECT_EQ(Sentiti(), QStringList()) << "neither shown nor refused yet";
  prove::Scrivi(file, intero);
  EXPECT_TRUE(Sente("2, nuovo"));
  ScriviByte(file, meta);
  Sentiti();
  documento.Ricarica();
  EXPECT_TRUE(Sentiti().join("").contains(", atteso: ")) << "left so for good";
}

TEST_F(ConDocumento, SenzaSorveglianzaSiLeggeSoloAComando) {
  documento.Apri(percorso);
  Scrivi(file, 2);
  AltroNellaCartella();
  EXPECT_EQ(Sentiti(), QStringList("1, nuovo"));
}

TEST_F(DocumentoSorvegliato, SiRileggeDaSe) {
  documento.Apri(percorso);
  Scrivi(file, 2);
  EXPECT_TRUE(Sente("2"));
  // Replaced twice: the watch outlives the file it began with.
  for (const int cifra : {3, 4}) {
    Scrivi(file + ".nuovo", cifra);
    fs::rename(file + ".nuovo", file);
    EXPECT_TRUE(Sente(QString::number(cifra)));
  }
  fs::remove(file);
  AltroNellaCartella();
  EXPECT_FALSE(Sentiti().join("").contains("non esiste")) << "it may be on its way to be replaced";
  // From here on another file is watched, and this one is not.
  Scrivi(altro.toStdString(), 5);
  documento.Apri(altro);
  Scrivi(file, 6);
  Scrivi(altro.toStdString(), 7);
  EXPECT_TRUE(Sente("7"));
  EXPECT_FALSE(sentiti.contains("6"));
}

TEST_F(DocumentoSorvegliato, UnGuastoSiSenteUnaVoltaSola) {
  documento.Apri(percorso);
  const std::string guasto = "guasto\r\n";
  ScriviByte(file, guasto);
  const QString detto = "File " + percorso + ": riga 1, atteso: ";
  const auto guasti = [&] { return sentiti.filter(detto).size(); };
  EXPECT_TRUE(QTest::qWaitFor([&] { return guasti() > 0; }, kAttesaMassimaMs))
      << sentiti.join("\n").toStdString();
  QCoreApplication::processEvents();
  Sentiti();
  AltroNellaCartella();
  EXPECT_EQ(guasti(), 0) << "another file of the folder is no news of this one";
  ScriviByte(file, guasto);
  EXPECT_TRUE(QTest::qWaitFor([&] { return guasti() > 0; }, kAttesaMassimaMs))
      << "written anew, as bad as before";
  QCoreApplication::processEvents();
  Sentiti();
  documento.Ricarica();
  EXPECT_EQ(guasti(), 1) << "whoever asks is told";
}

}  // namespace
}  // namespace ostrel

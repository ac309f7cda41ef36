// Every kind of file is composed in memory first, so that it appears whole or not at all.
#include "viewer/esporta/esporta.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QSaveFile>
#include <QStorageInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "platform/ospite.h"
#include "viewer/disegno/misure.h"
#include "viewer/esporta/dxf.h"
#include "viewer/esporta/svg.h"
#include "viewer/pittura/pittura.h"

namespace ostrel {
namespace {

constexpr int kLatoPng = 2000;  // pixels of the longer side

QSize FormatoPng(const Disegno& disegno) {
  const Riquadro pagina = ConMargine(Ingombro(disegno));
  const double lungo = std::max(pagina.Larghezza(), pagina.Altezza());
  return {qRound(kLatoPng * (pagina.Larghezza() / lungo)), qRound(kLatoPng * (pagina.Altezza() / lungo))};
}

// The reason of a failure, as the end of a sentence; nothing on success.
using Motivo = std::optional<QString>;
constexpr char kSenzaMemoria[] = "memoria insufficiente";

Motivo SeManca(bool riuscito) {
  return riuscito ? Motivo() : kSenzaMemoria;
}

Motivo ScriviPng(const Disegno& disegno, const Resa&, const Origine&, QIODevice& uscita) {
  constexpr double kSpessore = 2;
  QImage immagine(FormatoPng(disegno), QImage::Format_RGB32);
  immagine.fill(Qt::white);
  QPainter pittore(&immagine);
  const QRectF foglio = immagine.rect();
  Dipingi(pittore, disegno, VistaIntera(Ingombro(disegno), foglio), foglio, FondoCarta(kSpessore));
  pittore.end();
  return SeManca(!immagine.isNull() && immagine.save(&uscita, "PNG"));
}

Motivo Versa(QByteArrayView byte, QIODevice& uscita) {
  return SeManca(uscita.write(byte.data(), byte.size()) == byte.size());
}

Motivo ScriviSvgSu(const Disegno& disegno, const Resa&, const Origine&, QIODevice& uscita) {
  return Versa(ScriviSvg(disegno), uscita);
}

Motivo ScriviPdfSu(const Disegno& disegno, const Resa& resa, const Origine& origine, QIODevice& uscita) {
  const Tavola tavola{&disegno, origine};
  return SeManca(ScriviPdf({&tavola, 1}, resa, uscita));
}

Motivo ScriviDxfSu(const Disegno& disegno, const Resa& resa, const Origine&, QIODevice& uscita) {
  return Versa(ScriviDxf(disegno, resa.unita), uscita);
}

struct Genere {
  const char* finale;
  const char* nome;
  Motivo (*scrivi)(const Disegno&, const Resa&, const Origine&, QIODevice&);
};
constexpr std::array<Genere, 4> kGeneri = {{
    {"png", "Immagine PNG", ScriviPng},
    {"svg", "Disegno SVG", ScriviSvgSu},
    {"pdf", "Documento PDF", ScriviPdfSu},
    {"dxf", "Disegno DXF", ScriviDxfSu},
}};

const Genere* CercaGenere(const QString& finale) {
  return std::find_if(kGeneri.begin(), kGeneri.end(), [&](const Genere& g) { return finale == g.finale; });
}

// Asks the device that refused, then the disk and the folder it is in. `mancano` bytes are not yet written.
QString MotivoRifiuto(const QFileDevice& file, qint64 mancano) {
  const int errore = errno;  // before anything else is asked
  const QFileInfo destinazione(file.fileName()), cartella(destinazione.absolutePath());
  const QStorageInfo disco(cartella.filePath());
  const bool senzaRisorse = file.error() == QFileDevice::ResourceError;
  if (file.isOpen() && (senzaRisorse || (disco.isValid() && disco.bytesAvailable() < mancano)))
    return "disco pieno";
  if (senzaRisorse) return "troppi file sono aperti";
  if (disco.isReadOnly()) return "il disco è in sola lettura";
  if (!cartella.isWritable() || (destinazione.exists() && !destinazione.isWritable()))
    return "manca il permesso di scrivere nella cartella o sul file";
  const tarvel::Testo motivo = tarvel::InParole({errore, std::generic_category()});
  if (!motivo.empty()) return QString::fromStdString(tarvel::InUtf8(motivo));
  if (file.isOpen()) return "la scrittura non è riuscita";
  if (destinazione.exists()) return "il file di prima non si può sostituire: forse lo usa un altro programma";
  return "la cartella non accetta un file con questo nome, o manca il permesso";
}

// A device that takes only a part of the bytes refuses the rest, with the reason, when it is offered them
// again.
template <class File>
Motivo ScriviSu(File&& file, const QByteArray& byte) {
  errno = 0;
  qint64 mancano = byte.size();
  if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return MotivoRifiuto(file, mancano);
  while (mancano > 0) {
    const qint64 scritti = file.write(byte.last(mancano));
    if (scritti <= 0) return MotivoRifiuto(file, mancano);
    mancano -= scritti;
  }
  if constexpr (requires { file.commit(); })
    if (!file.commit()) return MotivoRifiuto(file, mancano);
  return std::nullopt;
}

// Writes straight to a character device. Refuses a pipe, which perhaps nobody reads. Replaces a file only
// once its successor is whole.
Motivo ScriviFile(const QString& percorso, const QByteArray& byte) {
  const QFileInfo destinazione(percorso);
  if (destinazione.isDir()) return "è una cartella";
  if (!destinazione.dir().exists()) return "la cartella non esiste";
  std::error_code errore;
  switch (std::filesystem::status(destinazione.filesystemFilePath(), errore).type()) {
    case std::filesystem::file_type::character:
      return ScriviSu(QFile(percorso), byte);
    case std::filesystem::file_type::fifo:
    case std::filesystem::file_type::socket:
    case std::filesystem::file_type::block:
      return "non è un file";
    default:
      return ScriviSu(QSaveFile(percorso), byte);
  }
}

// `scrivi` puts the bytes into a buffer.
template <class Scrivi>
Errore Riferisci(const QString& percorso, Scrivi scrivi) {
  QBuffer byte;
  byte.open(QIODevice::WriteOnly);
  Motivo motivo = scrivi(byte);
  if (!motivo) motivo = ScriviFile(percorso, byte.data());
  if (!motivo) return std::nullopt;
  return QString("Problemi con la scrittura del file %1: %2").arg(percorso, *motivo);
}

}  // namespace

QStringList FinaliEsportazione() {
  QStringList finali;
  for (const Genere& genere : kGeneri) finali << genere.finale;
  return finali;
}

QString FiltroEsportazione(const QString& finale) {
  const Genere& genere = *CercaGenere(finale);
  return QString("%1 (*.%2)").arg(genere.nome, genere.finale);
}

QString FinaleDi(const QString& percorso) {
  const QString finale = QFileInfo(percorso).suffix().toLower();
  return FinaliEsportazione().contains(finale) ? finale : QString();
}

Errore Esporta(const Disegno& disegno, const QString& percorso, const Resa& resa, const Origine& origine) {
  const auto* const genere = CercaGenere(FinaleDi(percorso));
  if (genere == kGeneri.end()) return QString("File %1: si esporta in .png, .svg, .pdf o .dxf").arg(percorso);

  return Riferisci(percorso, [&](QIODevice& byte) { return genere->scrivi(disegno, resa, origine, byte); });
}

Errore EsportaFascicolo(std::span<const Tavola> tavole, const QString& percorso, const Resa& resa) {
  return Riferisci(percorso, [&](QIODevice& byte) { return SeManca(ScriviPdf(tavole, resa, byte)); });
}

}  // namespace ostrel

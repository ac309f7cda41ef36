// Every kind is made in memory first: a file appears whole or not at all.
#include "viewer/esporta.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <QStorageInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include "viewer/dxf.h"
#include "viewer/misure.h"
#include "viewer/pittura.h"
#include "viewer/svg.h"

namespace ostrel {
namespace {

constexpr int kLatoPng = 2000;  // pixels of the longer side
constexpr double kPuntiPollice = 72;
constexpr double kSpessoreCarta = 0.7;  // points
constexpr double kMargineCarta = 10;    // millimetres
constexpr int kRisoluzionePdf = 1200;
constexpr char kCreatore[] = "ostrel";

bool Orizzontale(const Riquadro& tutto) {
  return tutto.Larghezza() >= tutto.Altezza();
}

QSize FormatoPng(const Disegno& disegno) {
  const Riquadro pagina = Pagina(Ingombro(disegno));
  const double lungo = std::max(pagina.Larghezza(), pagina.Altezza());
  return {qRound(kLatoPng * (pagina.Larghezza() / lungo)), qRound(kLatoPng * (pagina.Altezza() / lungo))};
}

void DipingiSuCarta(QPainter& pittore, const Disegno& disegno, const QRectF& foglio, double spessore) {
  Dipingi(pittore, disegno, VistaIntera(Ingombro(disegno), foglio), foglio, FondoCarta(spessore));
}

// Each kind gives its bytes to the buffer, or the reason why it cannot.
using Motivo = std::optional<QString>;
constexpr char kSenzaMemoria[] = "memoria insufficiente";

Motivo SeManca(bool riuscito) {
  return riuscito ? Motivo() : kSenzaMemoria;
}

Motivo ScriviPng(const Disegno& disegno, const Resa&, QIODevice& uscita) {
  constexpr double kSpessore = 2;
  QImage immagine(FormatoPng(disegno), QImage::Format_RGB32);
  immagine.fill(Qt::white);
  QPainter pittore(&immagine);
  DipingiSuCarta(pittore, disegno, immagine.rect(), kSpessore);
  pittore.end();
  return SeManca(!immagine.isNull() && immagine.save(&uscita, "PNG"));
}

Motivo Copia(QByteArrayView byte, QIODevice& uscita) {
  return SeManca(uscita.write(byte.data(), byte.size()) == byte.size());
}

Motivo ScriviSvgSu(const Disegno& disegno, const Resa&, QIODevice& uscita) {
  return Copia(ScriviSvg(disegno), uscita);
}

// Any device that counts in pages: a PDF file or a printer.
bool DipingiPagina(const Disegno& disegno, QPagedPaintDevice& pagina, int risoluzione) {
  QPainter pittore;
  if (!pittore.begin(&pagina)) return false;
  DipingiSuCarta(pittore, disegno, QRectF(0, 0, pagina.width(), pagina.height()),
                 kSpessoreCarta * risoluzione / kPuntiPollice);
  return pittore.end();
}

QPageLayout::Orientation OrientamentoMigliore(const Disegno& disegno) {
  return Orizzontale(Ingombro(disegno)) ? QPageLayout::Landscape : QPageLayout::Portrait;
}

Motivo ScriviPdf(const Disegno& disegno, const Resa&, QIODevice& uscita) {
  constexpr double m = kMargineCarta;
  QPdfWriter pdf(&uscita);
  pdf.setCreator(kCreatore);
  pdf.setResolution(kRisoluzionePdf);
  pdf.setPageLayout({QPageSize(QPageSize::A4), OrientamentoMigliore(disegno), {m, m, m, m}, QPageLayout::Millimeter});
  return SeManca(DipingiPagina(disegno, pdf, kRisoluzionePdf));
}

Motivo ScriviDxfSu(const Disegno& disegno, const Resa& resa, QIODevice& uscita) {
  const auto dxf = ScriviDxf(disegno, resa.unita);
  if (!dxf) return "il disegno ha misure che superano il massimo numero rappresentabile";
  return Copia(*dxf, uscita);
}

struct Genere {
  const char* finale;
  const char* nome;
  Motivo (*scrivi)(const Disegno&, const Resa&, QIODevice&);
};
constexpr std::array<Genere, 4> kGeneri = {{
    {"png", "Immagine PNG", ScriviPng},
    {"svg", "Disegno SVG", ScriviSvgSu},
    {"pdf", "Documento PDF", ScriviPdf},
    {"dxf", "Disegno DXF", ScriviDxfSu},
}};

constexpr char kDiscoPieno[] = "il disco è pieno";
constexpr char kSenzaPermesso[] = "manca il permesso di scrivere nella cartella o sul file";

// What the device has but one word for, where the host tells it apart; nothing where it does not.
const char* MotivoHost(int errore) {
  switch (errore) {
    case EACCES:
    case EPERM:
      return kSenzaPermesso;
    case ENOSPC:
      return kDiscoPieno;
    case EFBIG:
      return "il file supera la grandezza consentita";
    case ENAMETOOLONG:
      return "il nome è troppo lungo";
    case EIO:
      return "guasto del disco";
    default:
      return nullptr;
  }
}

// What a device says that refused, then the disk and the folder under it. `mancano`: bytes not written yet.
QString MotivoRifiuto(const QFileDevice& file, qint64 mancano) {
  const int errore = errno;  // before anything else is asked
  const QFileInfo destinazione(file.fileName()), cartella(destinazione.absolutePath());
  const QStorageInfo disco(cartella.filePath());
  const bool senzaRisorse = file.error() == QFileDevice::ResourceError;
  if (file.isOpen() && (senzaRisorse || (disco.isValid() && disco.bytesAvailable() < mancano)))
    return kDiscoPieno;
  if (senzaRisorse) return "troppi file sono aperti";
  if (disco.isReadOnly()) return "il disco è in sola lettura";
  if (!cartella.isWritable() || (destinazione.exists() && !destinazione.isWritable())) return kSenzaPermesso;
  if (const char* motivo = MotivoHost(errore)) return motivo;
  if (file.isOpen()) return "la scrittura non è riuscita";
  if (destinazione.exists()) return "il file di prima non si può sostituire: forse lo usa un altro programma";
  return "la cartella non accetta un file con questo nome, o manca il permesso";
}

// A device is written to as it is, a pipe might never be read; a file is replaced only once its successor is
// whole. What a device takes in part it refuses, with the reason, when it is given the rest.
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

}  // namespace

QString FiltriEsportazione() {
  QStringList filtri;
  for (const Genere& genere : kGeneri) filtri << QString("%1 (*.%2)").arg(genere.nome, genere.finale);
  return filtri.join(";;");
}

std::optional<QString> Esporta(const Disegno& disegno, const QString& percorso, const Resa& resa) {
  const QFileInfo destinazione(percorso);
  const auto* const genere = std::find_if(kGeneri.begin(), kGeneri.end(), [&](const Genere& g) {
    return destinazione.suffix().compare(g.finale, Qt::CaseInsensitive) == 0;
  });
  if (genere == kGeneri.end()) return QString("File %1: si esporta in .png, .svg, .pdf o .dxf").arg(percorso);

  QBuffer byte;
  byte.open(QIODevice::WriteOnly);
  Motivo motivo = "non c'è niente da disegnare";
  if (!Ingombro(disegno).Vuoto()) motivo = genere->scrivi(disegno, resa, byte);
  if (!motivo) motivo = ScriviFile(percorso, byte.data());
  if (!motivo) return std::nullopt;
  return QString("Problemi con la scrittura del file %1: %2").arg(percorso, *motivo);
}

bool Stampa(const Disegno& disegno, QPrinter& stampante) {
  stampante.setPageOrientation(OrientamentoMigliore(disegno));
  return DipingiPagina(disegno, stampante, stampante.resolution());
}

}  // namespace ostrel

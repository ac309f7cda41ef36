#include "viewer/finestra/comandi_carta.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>
#include <optional>

#include "viewer/carta/stampa.h"
#include "viewer/disegno/misure.h"
#include "viewer/esporta/esporta.h"
#include "viewer/finestra/dialogo_carta.h"

namespace ostrel {
namespace {

constexpr char kPdf[] = "pdf";

bool Sostituire(const QString& percorso, QWidget* finestra) {
  QMessageBox domanda(QMessageBox::Warning, "Il file esiste già",
                      QString("%1 esiste già: sostituirlo?").arg(QDir::toNativeSeparators(percorso)),
                      QMessageBox::NoButton, finestra);
  domanda.setTextFormat(Qt::PlainText);  // a name may look like markup
  const QAbstractButton* const si = domanda.addButton("&Sostituisci", QMessageBox::DestructiveRole);
  QPushButton* const annulla = domanda.addButton("&Annulla", QMessageBox::RejectRole);
  domanda.setDefaultButton(annulla);
  domanda.setEscapeButton(annulla);
  domanda.exec();
  return domanda.clickedButton() == si;
}

// Asks for a file with one of the endings `finali`; empty where the user takes the order back.
QString ScegliUscita(const QString& titolo, const FileDisegno& da, const QStringList& finali,
                     const QString& genere, QWidget* finestra) {
  QStringList filtri;
  for (const QString& finale : finali) filtri << FiltroEsportazione(finale);
  const auto scelto = [&](qsizetype indice) { return std::max(indice, qsizetype{0}); };
  QFileDialog dialogo(finestra, titolo, QFileInfo(da.percorso).path());
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setNameFilters(filtri);
  const auto primo = scelto(finali.indexOf(genere));
  dialogo.selectNameFilter(filtri[primo]);
  // The name has its ending: when the user chooses another kind, the toolkit replaces what follows the last
  // dot.
  dialogo.selectFile(da.proposto + '.' + finali[primo]);
  // The toolkit would ask about the name before it has its ending.
  dialogo.setOption(QFileDialog::DontConfirmOverwrite);
  while (dialogo.exec() == QDialog::Accepted) {
    QString uscita = ConFinale(dialogo.selectedFiles().front(), finali,
                               finali[scelto(filtri.indexOf(dialogo.selectedNameFilter()))]);
    if (!QFileInfo(uscita).isFile() || Sostituire(uscita, finestra)) return uscita;
  }
  return {};
}

// Sets size, orientation and margins one by one: set together, a printer refuses all for one that it does not
// accept. Where the printer's least margins are wider than the sheet's, they are kept.
void Prepara(QPrinter& stampante, const QPageSize& foglio, QPageLayout::Orientation verso) {
  stampante.setPageSize(foglio);
  stampante.setPageOrientation(verso);
  QPageLayout pagina = stampante.pageLayout();
  pagina.setUnits(QPageLayout::Millimeter);
  const QMarginsF minimi = pagina.minimumMargins();
  constexpr double m = kMargineCarta;
  stampante.setPageMargins({std::max(m, minimi.left()), std::max(m, minimi.top()),
                            std::max(m, minimi.right()), std::max(m, minimi.bottom())},
                           QPageLayout::Millimeter);
}

// A printer accepts a sheet that it does not have, and then prints smaller: so the sheet is looked for first.
bool HaFoglio(const QPrinter& stampante, const QPageSize& foglio) {
  const QList<QPageSize> suoi = QPrinterInfo(stampante).supportedPageSizes();
  return !stampante.outputFileName().isEmpty() || suoi.isEmpty() ||
         std::any_of(suoi.begin(), suoi.end(), [&](const QPageSize& s) { return s.isEquivalentTo(foglio); });
}

// The print dialog of some systems begins with the printer's usual paper, whatever was asked for. The user
// says which of the two sheets he means; nothing where he takes the order back.
std::optional<QPageSize> ScegliFoglio(const QPageSize& chiesto, const QPrinter& stampante,
                                      QWidget* finestra) {
  const QPageSize impostato = stampante.pageLayout().pageSize();
  if (chiesto.isEquivalentTo(impostato)) return impostato;
  const bool loHa = HaFoglio(stampante, chiesto);
  const QString domandato =
      loHa ? QString("Nella stampante è impostato un foglio %2, nell'anteprima un %1. Su quale si stampa?")
           : QString("La stampante non ha fogli %1; è impostato un %2.");
  QMessageBox domanda(QMessageBox::Question, "Foglio", domandato.arg(chiesto.name(), impostato.name()),
                      QMessageBox::NoButton, finestra);
  const QAbstractButton* nuovo = nullptr;
  if (loHa) nuovo = domanda.addButton("Su &" + chiesto.name(), QMessageBox::YesRole);
  const QAbstractButton* const solito = domanda.addButton("Su " + impostato.name(), QMessageBox::NoRole);
  domanda.setEscapeButton(domanda.addButton("A&nnulla", QMessageBox::RejectRole));
  domanda.exec();
  if (nuovo && domanda.clickedButton() == nuovo) return chiesto;
  if (domanda.clickedButton() == solito) return impostato;
  return std::nullopt;
}

// Asks the user whether he wants a drawing that does not fit the printer's page; he may change the scale.
bool VaBene(const Disegno& disegno, Resa& resa, const QPrinter& stampante, QWidget* finestra) {
  const auto obiezione = Esamina(disegno, resa, stampante.pageLayout());
  if (!obiezione) return true;
  const Risposta risposta = ChiediComunque(finestra, *obiezione);
  if (risposta == Risposta::AltraScala) resa.rapporto = obiezione->ciSta;
  return risposta != Risposta::Annulla;
}

// "A4 orizzontale, 1:50".
QString Come(const QPageLayout& pagina, const Resa& resa) {
  return InTesto(pagina) + ", " + InTesto(resa.rapporto);
}

Esito EsportaIn(const QString& uscita, const Disegno& disegno, const Resa& resa, const Origine& origine) {
  if (const auto errore = Esporta(disegno, uscita, resa, origine)) return {*errore, {}};
  const QString detto = "Esportato: " + QDir::toNativeSeparators(uscita);
  if (FinaleDi(uscita) != kPdf) return {{}, detto};
  return {{}, QString("%1 (%2)").arg(detto, Come(Pagina(disegno, resa), resa))};
}

// The toolkit's own dialog chooses the printer, the paper in it and the copies.
Esito MandaInStampa(const Disegno& disegno, Resa resa, const Origine& origine, QWidget* finestra) {
  QPrinter stampante(QPrinter::HighResolution);
  stampante.setDocName(Titolo(disegno));
  const QPageLayout pagina = Pagina(disegno, resa);
  Prepara(stampante, pagina.pageSize(), pagina.orientation());
  QPrintDialog dialogo(&stampante, finestra);
  dialogo.setWindowTitle("Stampa");
  dialogo.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize);
  if (dialogo.exec() != QDialog::Accepted) return {};
  const auto foglio = ScegliFoglio(pagina.pageSize(), stampante, finestra);
  if (!foglio) return {};
  Prepara(stampante, *foglio, stampante.pageLayout().orientation());
  // The drawing that fitted the sheet asked for may not fit the printer's. A user who has agreed to a cut is
  // not asked again.
  if (!Esamina(disegno, resa, pagina) && !VaBene(disegno, resa, stampante, finestra)) return {};
  const bool riuscita = Stampa(disegno, resa, origine, stampante);
  const QString file = QDir::toNativeSeparators(stampante.outputFileName());
  if (!riuscita)
    return {file.isEmpty() ? QString("La stampante %1 non accetta il disegno").arg(stampante.printerName())
                           : QString("Problemi con la scrittura del file %1").arg(file),
            {}};
  const QString dove =
      file.isEmpty() ? "Mandato alla stampante " + stampante.printerName() : "Stampato nel file " + file;
  return {{}, QString("%1 (%2)").arg(dove, Come(stampante.pageLayout(), resa))};
}

Esito NienteDa(const char* cosa) {
  return {QString("Non c'è niente da %1: il disegno è vuoto o tutto nascosto.").arg(cosa), {}};
}

}  // namespace

QString ConFinale(const QString& percorso, const QStringList& finali, const QString& finale) {
  if (finali.contains(FinaleDi(percorso))) return percorso;
  return percorso + (percorso.endsWith('.') ? "" : ".") + finale;
}

FileDisegno FileDi(const QString& percorso) {
  return {percorso, QFileInfo(percorso).completeBaseName()};
}

FileDisegno FileAnteprima(const Disegno& disegno, const QString& percorso) {
  static const QRegularExpression inadatti(R"([\\/:*?"<>|])");
  QString nome = Titolo(disegno).replace(inadatti, "_");
  while (nome.endsWith('.')) nome.chop(1);
  return nome.isEmpty() ? FileDi(percorso) : FileDisegno{percorso, nome};
}

Esito EsportaDaFinestra(const Disegno& disegno, const FileDisegno& da, SceltaResa scelta, QWidget* finestra) {
  if (Ingombro(disegno).Vuoto()) return NienteDa("esportare");
  const Origine origine{da.percorso};
  const QString uscita = ScegliUscita("Esporta disegno", da, FinaliEsportazione(), scelta.genere, finestra);
  if (uscita.isEmpty()) return {};
  scelta.genere = FinaleDi(uscita);
  const bool pdf = scelta.genere == kPdf, dxf = scelta.genere == "dxf";
  if (pdf) {
    DialogoCarta dialogo(disegno, origine, scelta.resa, {"Esporta in PDF", "&Esporta", {}}, finestra);
    if (dialogo.exec() != QDialog::Accepted) return {};
    scelta.resa = dialogo.Scelta();
  } else if (dxf) {
    const auto unita =
        ChiediUnita(scelta.resa.unita,
                    {"Esporta in DXF", "&Esporta",
                     "In che unità è il disegno? Gli altri programmi la leggono nel file DXF."},
                    finestra);
    if (!unita) return {};
    scelta.resa.unita = *unita;
  }
  Esito esito = EsportaIn(uscita, disegno, scelta.resa, origine);
  esito.scelta = scelta;
  esito.unitaDetta = pdf || dxf;
  return esito;
}

Esito StampaDaFinestra(const Disegno& disegno, const FileDisegno& da, SceltaResa scelta, QWidget* finestra) {
  if (Ingombro(disegno).Vuoto()) return NienteDa("stampare");
  const Origine origine{da.percorso};
  const bool senza = QPrinterInfo::availablePrinterNames().isEmpty();
  DialogoCarta dialogo(
      disegno, origine, scelta.resa,
      {"Stampa", senza ? "&Stampa in PDF..." : "&Stampa...",
       senza ? "Su questo computer non c'è nessuna stampante: si stampa in un file PDF." : ""},
      finestra);
  if (dialogo.exec() != QDialog::Accepted) return {};
  scelta.resa = dialogo.Scelta();
  Esito esito;
  if (!senza)
    esito = MandaInStampa(disegno, scelta.resa, origine, finestra);
  else if (const QString uscita = ScegliUscita("Stampa in PDF", da, {kPdf}, kPdf, finestra);
           !uscita.isEmpty())
    esito = EsportaIn(uscita, disegno, scelta.resa, origine);
  esito.scelta = scelta;
  esito.unitaDetta = true;
  return esito;
}

}  // namespace ostrel

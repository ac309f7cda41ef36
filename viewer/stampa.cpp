#include "viewer/stampa.h"

#include <QPdfWriter>
#include <QPrinter>
#include <algorithm>

#include "viewer/pittura.h"

namespace ostrel {
namespace {

constexpr double kSpessoreCarta = 0.25;  // millimetres
constexpr double kPunto = 1;             // what a painter draws at least
constexpr double kMillimetriPollice = 25.4;
constexpr int kRisoluzionePdf = 1200;
constexpr char kCreatore[] = "ostrel";

bool DipingiSu(QPagedPaintDevice& carta, const Disegno& disegno, const Resa& resa, const Origine& origine) {
  QPainter pittore;
  if (!pittore.begin(&carta)) return false;
  const double orizzontali = carta.logicalDpiX(), verticali = carta.logicalDpiY();
  // Some printers have finer dots one way than the other.
  if (orizzontali != verticali) pittore.scale(1, verticali / orizzontali);
  DipingiFoglio(pittore, disegno, resa, origine, carta.pageLayout(), orizzontali / kMillimetriPollice);
  return pittore.end();
}

}  // namespace

void DipingiFoglio(QPainter& pittore, const Disegno& disegno, const Resa& resa, const Origine& origine,
                   const QPageLayout& pagina, double mm) {
  const Foglio foglio = Componi(disegno, resa, Stampabile(pagina));
  const auto inUnita = [&](const QRectF& r) {
    return QRectF(r.x() * mm, r.y() * mm, r.width() * mm, r.height() * mm);
  };
  const Vista vista{foglio.vista.scala * mm, foglio.vista.x, foglio.vista.y};
  const auto obiezione = Esamina(disegno, resa, pagina);
  pittore.save();
  // What does not fit must not run into the title block.
  if (obiezione) pittore.setClipRect(inUnita(foglio.campo));
  if (!obiezione || !obiezione->assurda)
    Dipingi(pittore, disegno, vista, inUnita(foglio.campo),
            FondoCarta(std::max(kSpessoreCarta * mm, kPunto)));
  pittore.restore();
  DipingiCartiglio(pittore, Intesta(disegno, resa, foglio, origine), inUnita(foglio.cartiglio));
}

bool ScriviPdf(const Disegno& disegno, const Resa& resa, const Origine& origine, QIODevice& uscita) {
  QPdfWriter pdf(&uscita);
  pdf.setCreator(kCreatore);
  pdf.setTitle(Titolo(disegno));
  pdf.setResolution(kRisoluzionePdf);
  pdf.setPageLayout(Pagina(disegno, resa));
  return DipingiSu(pdf, disegno, resa, origine);
}

bool Stampa(const Disegno& disegno, const Resa& resa, const Origine& origine, QPrinter& stampante) {
  return DipingiSu(stampante, disegno, resa, origine);
}

}  // namespace ostrel

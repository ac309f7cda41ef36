#include "viewer/carta/stampa.h"

#include <QPdfWriter>
#include <QPrinter>
#include <algorithm>

#include "viewer/pittura/pittura.h"

namespace ostrel {
namespace {

constexpr double kSpessoreCarta = 0.25;  // millimetres
constexpr double kPunto = 1;             // painter units; a painter draws no thinner line
constexpr double kMillimetriPollice = 25.4;
constexpr int kRisoluzionePdf = 1200;
constexpr char kCreatore[] = "ostrel";

void DipingiPagina(QPainter& pittore, const QPagedPaintDevice& carta, const Tavola& tavola,
                   const Resa& resa) {
  const double orizzontali = carta.logicalDpiX(), verticali = carta.logicalDpiY();
  pittore.save();
  // The dots of some printers are finer in one direction than in the other.
  if (orizzontali != verticali) pittore.scale(1, verticali / orizzontali);
  DipingiFoglio(pittore, *tavola.disegno, resa, tavola.origine, carta.pageLayout(),
                orizzontali / kMillimetriPollice);
  pittore.restore();
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

bool ScriviPdf(std::span<const Tavola> tavole, const Resa& resa, QIODevice& uscita) {
  QPdfWriter pdf(&uscita);
  pdf.setCreator(kCreatore);
  if (tavole.size() == 1) pdf.setTitle(Titolo(*tavole.front().disegno));
  pdf.setResolution(kRisoluzionePdf);
  QPainter pittore;
  for (const Tavola& tavola : tavole) {
    // The layout of a page has to be set before the page begins.
    pdf.setPageLayout(Pagina(*tavola.disegno, resa));
    if (pittore.isActive() ? !pdf.newPage() : !pittore.begin(&pdf)) return false;
    DipingiPagina(pittore, pdf, tavola, resa);
  }
  return pittore.end();
}

bool Stampa(const Disegno& disegno, const Resa& resa, const Origine& origine, QPrinter& stampante) {
  QPainter pittore;
  if (!pittore.begin(&stampante)) return false;
  DipingiPagina(pittore, stampante, {&disegno, origine}, resa);
  return pittore.end();
}

}  // namespace ostrel

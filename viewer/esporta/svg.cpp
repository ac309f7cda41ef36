// Writes layer by layer; a layer has the colour that most of its elements have.
#include "viewer/esporta/svg.h"

#include <QString>
#include <QXmlStreamWriter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <variant>
#include <vector>

#include "base/numeri.h"
#include "viewer/disegno/livelli.h"
#include "viewer/disegno/misure.h"
#include "viewer/pittura/tavolozza.h"

namespace ostrel {
namespace {

// How many of each the page's longer side has. The first two are the least: powers of ten are taken to the
// unit.
constexpr double kMinimiPixel = 300;  // of the nominal size
constexpr double kFinezza = 1e8;      // steps of rounding
constexpr double kPenne = 1000;       // pen widths
// A text whose cells are narrower or lower than this many pen widths is written as a line.
constexpr double kMinimaScritta = 1e-3;
// The height of the font's capitals and the width of its characters, as parts of its size.
constexpr char kCarattere[] = "'DejaVu Sans Mono', monospace";
constexpr double kMaiuscola = 0.729;
constexpr double kAvanzamento = 0.602;

// The power of ten that brings a positive number to `minimo` or more, and below ten times that.
double PotenzaDiDieci(double numero, double minimo) {
  double potenza = 1;
  while (numero * potenza < minimo) potenza *= 10;
  while (numero * potenza >= minimo * 10) potenza /= 10;
  return potenza;
}

QString Numero(double valore, double cifre) {
  tarvel::Testo testo;
  tarvel::AccodaNumero(testo, std::round(valore * cifre) / cifre, '.', true);
  return QString::fromStdString(testo);
}

QString SeiCifre(double valore) {
  return Numero(valore, PotenzaDiDieci(valore, 1e5));
}

struct Svg {
  QXmlStreamWriter xml;
  const Disegno& disegno;
  double penna;            // width of the lines
  double cifre;            // steps of rounding to a unit of the drawing
  double pixel;            // nominal pixels to a unit of the drawing
  std::size_t comune = 0;  // colour of the layer being written
};

QString Lungo(const Svg& svg, double lunghezza) {
  return Numero(lunghezza, svg.cifre);
}

QString Coppia(const Svg& svg, const Coordinata& c) {
  return Lungo(svg, c.x) + ' ' + Lungo(svg, -c.y);
}

void Attributi(Svg& svg, const char* nomeX, const char* nomeY, const Coordinata& c) {
  svg.xml.writeAttribute(nomeX, Lungo(svg, c.x));
  svg.xml.writeAttribute(nomeY, Lungo(svg, -c.y));
}

// `tinta` is the attribute that colours the element, "stroke" or "fill".
void Colora(Svg& svg, const char* tinta, std::size_t colore) {
  const tarvel::Colore c = ColoreSu(kCarta, static_cast<int>(colore));
  svg.xml.writeAttribute(tinta, QString::asprintf("#%02x%02x%02x", c.r, c.g, c.b));
}

void ColoraSeSuo(Svg& svg, const char* tinta, std::size_t colore) {
  if (colore != svg.comune) Colora(svg, tinta, colore);
}

void Scrivi(Svg& svg, const Linea& linea, std::size_t colore) {
  svg.xml.writeEmptyElement("line");
  Attributi(svg, "x1", "y1", Posto(svg.disegno, linea.inizio));
  Attributi(svg, "x2", "y2", Posto(svg.disegno, linea.fine));
  QStringList tratti;
  for (const double tratto : kTipiLinea[IndiceTipo(linea.tipo)].Tratti())
    tratti << Lungo(svg, tratto * svg.penna);
  if (!tratti.isEmpty()) svg.xml.writeAttribute("stroke-dasharray", tratti.join(' '));
  ColoraSeSuo(svg, "stroke", colore);
}

// Writes an arc of more than half a circle as two: with both ends rounded to one place it would vanish.
void Scrivi(Svg& svg, const Arco& arco, std::size_t colore) {
  const ArcoPolare p = Polare(svg.disegno, arco);
  const QString raggio = Lungo(svg, p.raggio);
  if (p.cerchio) {
    svg.xml.writeEmptyElement("circle");
    Attributi(svg, "cx", "cy", {p.x, p.y});
    svg.xml.writeAttribute("r", raggio);
  } else {
    const auto posto = [&](double a) {
      return Coppia(svg, {p.x + p.raggio * std::cos(a), p.y + p.raggio * std::sin(a)});
    };
    const int parti = p.ampiezza > std::numbers::pi ? 2 : 1;
    QString via = 'M' + posto(p.inizio);
    for (int i = 1; i <= parti; ++i)
      via += 'A' + raggio + ' ' + raggio + " 0 0 0 " + posto(p.inizio + p.ampiezza * i / parti);
    svg.xml.writeEmptyElement("path");
    svg.xml.writeAttribute("d", via);
  }
  ColoraSeSuo(svg, "stroke", colore);
}

void Scrivi(Svg& svg, const Punto& punto, std::size_t colore) {
  const QString posto = Coppia(svg, Posto(svg.disegno, punto.posizione));
  const QString mezza = Lungo(svg, kMezzaCroce * svg.penna);
  const QString intera = Lungo(svg, 2 * kMezzaCroce * svg.penna);
  svg.xml.writeEmptyElement("path");
  svg.xml.writeAttribute("d", QString("M%1m-%2 -%2l%3 %3m0 -%3l-%3 %3").arg(posto, mezza, intera));
  ColoraSeSuo(svg, "stroke", colore);
}

// Scales a text to its cells by the measures of the font; where another font stands in, `textLength` does it.
// The font's size is in nominal pixels, because readers draw the outlines of very small fonts badly. Each
// text says for itself that blanks are kept, because browsers do not let it inherit that.
void Scrivi(Svg& svg, const Scritta& scritta, std::size_t colore) {
  const auto quanti = static_cast<double>(scritta.testo.size());
  const double largo = scritta.base * quanti;
  const double minimo = kMinimaScritta * svg.penna;
  const auto angoli = Angoli(svg.disegno, scritta);
  if (scritta.altezza < minimo || largo < minimo) {
    svg.xml.writeEmptyElement("line");
    Attributi(svg, "x1", "y1", angoli[0]);
    Attributi(svg, "x2", "y2", angoli[scritta.altezza < minimo ? 1 : 3]);
    Colora(svg, "stroke", colore);
    return;
  }
  const double corpo = scritta.altezza / kMaiuscola * svg.pixel;
  const double disteso = corpo * kAvanzamento * quanti;
  QString posa = "translate(" + Coppia(svg, angoli[0]) + ')';
  if (scritta.angolo != 0) posa += " rotate(" + Numero(-scritta.angolo, 1) + ')';
  posa += " scale(" + SeiCifre(largo / disteso) + ' ' + SeiCifre(1 / svg.pixel) + ')';
  svg.xml.writeStartElement("text");
  svg.xml.writeAttribute("transform", posa);
  svg.xml.writeAttribute("font-size", SeiCifre(corpo));
  svg.xml.writeAttribute("textLength", SeiCifre(disteso));
  svg.xml.writeAttribute("lengthAdjust", "spacingAndGlyphs");
  svg.xml.writeAttribute("xml:space", "preserve");
  ColoraSeSuo(svg, "fill", colore);
  svg.xml.writeCharacters(QString::fromStdString(tarvel::InUtf8(scritta.testo)));
  svg.xml.writeEndElement();
}

struct Elemento {
  std::size_t colore;
  std::variant<const Linea*, const Arco*, const Punto*, const Scritta*> quale;
};

struct Strato {
  const char* nome;
  const char *tinta, *senza;  // the attribute that colours its elements, and the one that is "none"
  std::vector<Elemento> elementi;
};

// The layers from the lowest to the topmost, as on the screen.
std::array<Strato, 4> Stratifica(const Disegno& disegno) {
  std::array<Strato, 4> strati = {{{"quote", "stroke", "fill", {}},
                                   {"contorno", "stroke", "fill", {}},
                                   {"valori", "fill", "stroke", {}},
                                   {"testi", "fill", "stroke", {}}}};
  auto &quote = strati[0].elementi, &contorno = strati[1].elementi;
  auto &valori = strati[2].elementi, &testi = strati[3].elementi;
  const auto elementi = [&](Livello l) -> auto& {
    return l == Livello::Contorno ? contorno : quote;
  };
  const auto livelli = LivelliLinee(disegno);
  for (std::size_t i = 0; i < livelli.size(); ++i)
    elementi(livelli[i]).push_back({IndiceColore(disegno.linee[i].colore), &disegno.linee[i]});
  for (const Arco& arco : disegno.archi)
    elementi(LivelloArco(disegno, arco)).push_back({IndiceColore(arco.colore), &arco});
  for (const Punto& punto : disegno.punti) contorno.push_back({tarvel::disegno::kBianco, &punto});
  for (const Scritta& s : disegno.scritte)
    if (!s.testo.empty())
      (LivelloScritta(s) == Livello::Quote ? valori : testi).push_back({IndiceColore(s.colore), &s});
  return strati;
}

void Scrivi(Svg& svg, const Strato& strato) {
  if (strato.elementi.empty()) return;
  std::array<int, kColori.size()> quanti{};
  for (const Elemento& elemento : strato.elementi) ++quanti[elemento.colore];
  svg.comune = static_cast<std::size_t>(std::max_element(quanti.begin(), quanti.end()) - quanti.begin());
  svg.xml.writeStartElement("g");
  svg.xml.writeAttribute("id", strato.nome);
  Colora(svg, strato.tinta, svg.comune);
  svg.xml.writeAttribute(strato.senza, "none");
  for (const Elemento& elemento : strato.elementi)
    std::visit([&](const auto* quale) { Scrivi(svg, *quale, elemento.colore); }, elemento.quale);
  svg.xml.writeEndElement();
}

}  // namespace

QByteArray ScriviSvg(const Disegno& disegno) {
  QByteArray byte;
  const Riquadro pagina = ConMargine(Ingombro(disegno));
  const double lungo = std::max(pagina.Larghezza(), pagina.Altezza());
  Svg svg{QXmlStreamWriter(&byte), disegno, lungo / kPenne, PotenzaDiDieci(lungo, kFinezza),
          PotenzaDiDieci(lungo, kMinimiPixel)};
  QXmlStreamWriter& xml = svg.xml;
  const Coordinata angolo{pagina.x0, pagina.y1};
  const QString larghezza = Lungo(svg, pagina.Larghezza()), altezza = Lungo(svg, pagina.Altezza());
  xml.setAutoFormatting(true);
  xml.setAutoFormattingIndent(0);
  xml.writeStartDocument();
  xml.writeStartElement("svg");
  xml.writeDefaultNamespace("http://www.w3.org/2000/svg");
  xml.writeAttribute("width", SeiCifre(pagina.Larghezza() * svg.pixel));
  xml.writeAttribute("height", SeiCifre(pagina.Altezza() * svg.pixel));
  xml.writeAttribute("viewBox", Coppia(svg, angolo) + ' ' + larghezza + ' ' + altezza);
  xml.writeAttribute("stroke-width", Lungo(svg, svg.penna));
  xml.writeAttribute("font-family", kCarattere);
  if (!disegno.titolo.empty())
    xml.writeTextElement("title", QString::fromStdString(tarvel::InUtf8(disegno.titolo)));
  xml.writeEmptyElement("rect");
  Attributi(svg, "x", "y", angolo);
  xml.writeAttribute("width", larghezza);
  xml.writeAttribute("height", altezza);
  xml.writeAttribute("fill", "#ffffff");
  for (const Strato& strato : Stratifica(disegno)) Scrivi(svg, strato);
  xml.writeEndDocument();
  return byte;
}

}  // namespace ostrel

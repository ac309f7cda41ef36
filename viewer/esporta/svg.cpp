// Group by group; the colour that most of a group have stands at the group.
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

constexpr double kMinimiPixel = 300;  // of the page's longer side, ten times as many at most
// Lengths are written to this part of the page's longer side, nearly.
constexpr double kFinezza = 1e8;
constexpr double kPenne = 1000;  // pen widths to the page's longer side
// A text whose cells are narrower or lower than this many pen widths is a line.
constexpr double kMinimaScritta = 1e-3;
// Of the font: height of its capitals and width of its characters, to its size.
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

// To six figures.
QString Misura(double valore) {
  return Numero(valore, PotenzaDiDieci(valore, 1e5));
}

struct Svg {
  QXmlStreamWriter xml;
  const Disegno& disegno;
  double penna;            // width of the lines
  double cifre;            // the power of ten to whose inverse lengths are rounded
  double pixel;            // of the nominal size, to a unit of the drawing
  std::size_t comune = 0;  // colour of the group being written
};

QString Lungo(const Svg& svg, double lunghezza) {
  return Numero(lunghezza, svg.cifre);
}

QString Posto(const Svg& svg, const Coordinata& c) {
  return Lungo(svg, c.x) + ' ' + Lungo(svg, -c.y);
}

void Attributi(Svg& svg, const char* nomeX, const char* nomeY, const Coordinata& c) {
  svg.xml.writeAttribute(nomeX, Lungo(svg, c.x));
  svg.xml.writeAttribute(nomeY, Lungo(svg, -c.y));
}

// `tinta`: what the element is coloured by, "stroke" or "fill".
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

// An arc of more than half a circle as two: its ends, written down, might be one place.
void Scrivi(Svg& svg, const Arco& arco, std::size_t colore) {
  const ArcoPolare p = Polare(svg.disegno, arco);
  const QString raggio = Lungo(svg, p.raggio);
  if (p.cerchio) {
    svg.xml.writeEmptyElement("circle");
    Attributi(svg, "cx", "cy", {p.x, p.y});
    svg.xml.writeAttribute("r", raggio);
  } else {
    const auto posto = [&](double a) {
      return Posto(svg, {p.x + p.raggio * std::cos(a), p.y + p.raggio * std::sin(a)});
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
  const QString posto = Posto(svg, Posto(svg.disegno, punto.posizione));
  const QString mezza = Lungo(svg, kMezzaCroce * svg.penna);
  const QString intera = Lungo(svg, 2 * kMezzaCroce * svg.penna);
  svg.xml.writeEmptyElement("path");
  svg.xml.writeAttribute("d", QString("M%1m-%2 -%2l%3 %3m0 -%3l-%3 %3").arg(posto, mezza, intera));
  ColoraSeSuo(svg, "stroke", colore);
}

// Scaled across to the cells by the font's own measures; where another font stands in, by its length.
// The font's size is in nominal pixels: readers draw the outlines of very small fonts badly.
// Blanks are kept by each text: browsers let none inherit that.
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
  QString posa = "translate(" + Posto(svg, angoli[0]) + ')';
  if (scritta.angolo != 0) posa += " rotate(" + Numero(-scritta.angolo, 1) + ')';
  posa += " scale(" + Misura(largo / disteso) + ' ' + Misura(1 / svg.pixel) + ')';
  svg.xml.writeStartElement("text");
  svg.xml.writeAttribute("transform", posa);
  svg.xml.writeAttribute("font-size", Misura(corpo));
  svg.xml.writeAttribute("textLength", Misura(disteso));
  svg.xml.writeAttribute("lengthAdjust", "spacingAndGlyphs");
  svg.xml.writeAttribute("xml:space", "preserve");
  ColoraSeSuo(svg, "fill", colore);
  svg.xml.writeCharacters(QString::fromStdString(tarvel::InUtf8(scritta.testo)));
  svg.xml.writeEndElement();
}

struct Segno {
  std::size_t colore;
  std::variant<const Linea*, const Arco*, const Punto*, const Scritta*> elemento;
};

struct Gruppo {
  const char* nome;
  const char *tinta, *senza;  // what its elements are coloured by, what they lack
  std::vector<Segno> segni;
};

// One over the other, as on the screen.
std::array<Gruppo, 4> Raggruppa(const Disegno& disegno) {
  std::array<Gruppo, 4> gruppi = {{{"quote", "stroke", "fill", {}},
                                   {"contorno", "stroke", "fill", {}},
                                   {"valori", "fill", "stroke", {}},
                                   {"testi", "fill", "stroke", {}}}};
  auto &quote = gruppi[0].segni, &contorno = gruppi[1].segni;
  auto &valori = gruppi[2].segni, &testi = gruppi[3].segni;
  const auto segni = [&](Livello l) -> auto& {
    return l == Livello::Contorno ? contorno : quote;
  };
  const auto livelli = LivelliLinee(disegno);
  for (std::size_t i = 0; i < livelli.size(); ++i)
    segni(livelli[i]).push_back({IndiceColore(disegno.linee[i].colore), &disegno.linee[i]});
  for (const Arco& arco : disegno.archi)
    segni(LivelloArco(disegno, arco)).push_back({IndiceColore(arco.colore), &arco});
  for (const Punto& punto : disegno.punti) contorno.push_back({tarvel::disegno::kBianco, &punto});
  for (const Scritta& s : disegno.scritte)
    if (!s.testo.empty())
      (LivelloScritta(s) == Livello::Quote ? valori : testi).push_back({IndiceColore(s.colore), &s});
  return gruppi;
}

void Scrivi(Svg& svg, const Gruppo& gruppo) {
  if (gruppo.segni.empty()) return;
  std::array<int, kColori.size()> quanti{};
  for (const Segno& segno : gruppo.segni) ++quanti[segno.colore];
  svg.comune = static_cast<std::size_t>(std::max_element(quanti.begin(), quanti.end()) - quanti.begin());
  svg.xml.writeStartElement("g");
  svg.xml.writeAttribute("id", gruppo.nome);
  Colora(svg, gruppo.tinta, svg.comune);
  svg.xml.writeAttribute(gruppo.senza, "none");
  for (const Segno& segno : gruppo.segni)
    std::visit([&](const auto* elemento) { Scrivi(svg, *elemento, segno.colore); }, segno.elemento);
  svg.xml.writeEndElement();
}

}  // namespace

QByteArray ScriviSvg(const Disegno& disegno) {
  QByteArray byte;
  const Riquadro pagina = Pagina(Ingombro(disegno));
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
  xml.writeAttribute("width", Misura(pagina.Larghezza() * svg.pixel));
  xml.writeAttribute("height", Misura(pagina.Altezza() * svg.pixel));
  xml.writeAttribute("viewBox", Posto(svg, angolo) + ' ' + larghezza + ' ' + altezza);
  xml.writeAttribute("stroke-width", Lungo(svg, svg.penna));
  xml.writeAttribute("font-family", kCarattere);
  if (!disegno.titolo.empty())
    xml.writeTextElement("title", QString::fromStdString(tarvel::InUtf8(disegno.titolo)));
  xml.writeEmptyElement("rect");
  Attributi(svg, "x", "y", angolo);
  xml.writeAttribute("width", larghezza);
  xml.writeAttribute("height", altezza);
  xml.writeAttribute("fill", "#ffffff");
  for (const Gruppo& gruppo : Raggruppa(disegno)) Scrivi(svg, gruppo);
  xml.writeEndDocument();
  return byte;
}

}  // namespace ostrel

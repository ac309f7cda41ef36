// Group by group; the colour that most of a group have stands at the group.
#include "viewer/svg.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <numbers>
#include <string_view>
#include <vector>

#include "base/numeri.h"
#include "viewer/livelli.h"
#include "viewer/misure.h"
#include "viewer/tavolozza.h"

namespace ostrel {
namespace {

using tarvel::Testo;

// Lengths within which single precision, all that readers of SVG have to have, is safe.
constexpr double kMassimaLunghezza = 1e30;
constexpr double kMinimaLunghezza = 1e-30;
constexpr double kLunghezzaRidotta = 100;
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

Testo Numero(double valore, double cifre) {
  Testo testo;
  tarvel::AccodaNumero(testo, std::round(valore * cifre) / cifre, '.', true);
  return testo;
}

// To six figures.
Testo Misura(double valore) {
  return Numero(valore, PotenzaDiDieci(valore, 1e5));
}

struct Attributo {
  std::string_view nome;
  Testo valore;
};

Testo Marca(std::string_view nome, std::initializer_list<Attributo> attributi) {
  Testo marca = "<";
  marca += nome;
  for (const Attributo& a : attributi)
    if (!a.valore.empty()) ((((marca += ' ') += a.nome) += "=\"") += a.valore) += '"';
  return marca;
}

Testo InXml(std::string_view testo) {
  Testo esito;
  for (const char c : tarvel::InUtf8(testo)) {
    if (c == '&')
      esito += "&amp;";
    else if (c == '<')
      esito += "&lt;";
    else if (c == '>')
      esito += "&gt;";
    else
      esito += c;
  }
  return esito;
}

Testo ColoreXml(std::size_t colore) {
  constexpr char kCifre[] = "0123456789abcdef";
  const tarvel::Colore c = ColoreSu(kCarta, static_cast<int>(colore));
  Testo esito = "#";
  for (const int parte : {c.r, c.g, c.b}) (esito += kCifre[parte / 16]) += kCifre[parte % 16];
  return esito;
}

struct Segno {
  std::size_t colore;
  Testo marca, resto;  // between them its colour, where it is not the group's
};

// `tinta`: whether its elements are coloured by "stroke" or by "fill".
Testo Gruppo(std::string_view nome, std::string_view tinta, const std::vector<Segno>& segni) {
  if (segni.empty()) return {};
  std::array<int, kColori.size()> quanti{};
  for (const Segno& segno : segni) ++quanti[segno.colore];
  const auto comune =
      static_cast<std::size_t>(std::max_element(quanti.begin(), quanti.end()) - quanti.begin());
  Testo gruppo = Marca("g", {{"id", Testo(nome)},
                             {tinta, ColoreXml(comune)},
                             {tinta == "fill" ? "stroke" : "fill", "none"}}) +
                 ">\n";
  for (const Segno& segno : segni) {
    gruppo += segno.marca;
    if (segno.colore != comune) ((((gruppo += ' ') += tinta) += "=\"") += ColoreXml(segno.colore)) += '"';
    gruppo += segno.resto;
  }
  return gruppo += "</g>\n";
}

class Foglio {
 public:
  explicit Foglio(const Disegno& disegno) : d_(disegno) {
    const Riquadro tutto = Ingombro(disegno);
    const double massimo = tutto.Massimo();
    if (massimo > kMassimaLunghezza || (massimo > 0 && massimo < kMinimaLunghezza))
      scala_ = PotenzaDiDieci(massimo, kLunghezzaRidotta);
    const Riquadro pagina = Pagina(tutto);
    sinistra_ = pagina.x0 * scala_;
    alto_ = -pagina.y1 * scala_;
    larghezza_ = pagina.Larghezza() * scala_;
    altezza_ = pagina.Altezza() * scala_;
    const double lungo = std::max(larghezza_, altezza_);
    cifre_ = PotenzaDiDieci(lungo, kFinezza);
    pixel_ = PotenzaDiDieci(lungo, kMinimiPixel);
    penna_ = lungo / kPenne;
  }

  Testo Scrivi() {
    const auto livelli = LivelliLinee(d_);
    for (std::size_t i = 0; i < d_.linee.size(); ++i) Metti(d_.linee[i], Segni(livelli[i]));
    for (const Arco& arco : d_.archi) Metti(arco, Segni(LivelloArco(d_, arco)));
    for (const Punto& punto : d_.punti) Metti(punto);
    for (const Scritta& s : d_.scritte)
      if (!s.testo.empty()) Metti(s, LivelloScritta(s) == Livello::Quote ? valori_ : testi_);

    const Testo x = Lungo(sinistra_), y = Lungo(alto_), w = Lungo(larghezza_), h = Lungo(altezza_);
    Testo svg = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    svg += Marca("svg", {{"xmlns", "http://www.w3.org/2000/svg"},
                         {"width", Misura(larghezza_ * pixel_)},
                         {"height", Misura(altezza_ * pixel_)},
                         {"viewBox", x + ' ' + y + ' ' + w + ' ' + h},
                         {"stroke-width", Lungo(penna_)},
                         {"font-family", kCarattere}}) +
           ">\n";
    if (!d_.scritte.empty()) svg += "<title>" + InXml(d_.scritte.front().testo) + "</title>\n";
    svg += Marca("rect", {{"x", x}, {"y", y}, {"width", w}, {"height", h}, {"fill", "#ffffff"}}) + "/>\n";
    // One over the other, as on the screen.
    svg += Gruppo("quote", "stroke", quote_);
    svg += Gruppo("contorno", "stroke", contorno_);
    svg += Gruppo("valori", "fill", valori_);
    svg += Gruppo("testi", "fill", testi_);
    return svg += "</svg>\n";
  }

 private:
  std::vector<Segno>& Segni(Livello livello) { return livello == Livello::Contorno ? contorno_ : quote_; }
  Testo Lungo(double v) const { return Numero(v, cifre_); }
  Testo X(double x) const { return Lungo(x * scala_); }
  Testo Y(double y) const { return Lungo(-y * scala_); }

  void Metti(const Linea& linea, std::vector<Segno>& segni) const {
    const Coordinata &da = Posto(d_, linea.inizio), &a = Posto(d_, linea.fine);
    Testo tratti;
    for (const double tratto : kTipiLinea[IndiceTipo(linea.tipo)].Tratti())
      (tratti += tratti.empty() ? "" : " ") += Lungo(tratto * penna_);
    segni.push_back({IndiceColore(linea.colore),
                     Marca("line", {{"x1", X(da.x)},
                                    {"y1", Y(da.y)},
                                    {"x2", X(a.x)},
                                    {"y2", Y(a.y)},
                                    {"stroke-dasharray", tratti}}),
                     "/>\n"});
  }

  // An arc of more than half a circle as two: its ends, written down, might be one place.
  void Metti(const Arco& arco, std::vector<Segno>& segni) const {
    const ArcoPolare p = Polare(d_, arco);
    const Testo raggio = Lungo(p.raggio * scala_);
    Testo marca;
    if (p.cerchio) {
      marca = Marca("circle", {{"cx", X(p.x)}, {"cy", Y(p.y)}, {"r", raggio}});
    } else {
      const auto posto = [&](double a) {
        return X(p.x + p.raggio * std::cos(a)) + ' ' + Y(p.y + p.raggio * std::sin(a));
      };
      const int parti = p.ampiezza > std::numbers::pi ? 2 : 1;
      Testo via = 'M' + posto(p.inizio);
      const Testo tratto = 'A' + raggio + ' ' + raggio + " 0 0 0 ";
      for (int i = 1; i <= parti; ++i) (via += tratto) += posto(p.inizio + p.ampiezza * i / parti);
      marca = Marca("path", {{"d", via}});
    }
    segni.push_back({IndiceColore(arco.colore), marca, "/>\n"});
  }

  void Metti(const Punto& punto) {
    const Coordinata& c = Posto(d_, punto.posizione);
    const Testo mezza = Lungo(kMezzaCroce * penna_), intera = Lungo(2 * kMezzaCroce * penna_);
    const Testo via = 'M' + X(c.x) + ' ' + Y(c.y) + 'm' + '-' + mezza + " -" + mezza + 'l' + intera + ' ' +
                      intera + "m0 -" + intera + "l-" + intera + ' ' + intera;
    contorno_.push_back({tarvel::disegno::kBianco, Marca("path", {{"d", via}}), "/>\n"});
  }

  // Scaled across to the cells by the font's own measures; where another font stands in, by its length.
  // The font's size is in nominal pixels: readers draw the outlines of very small fonts badly.
  // Blanks are kept by each text: browsers let none inherit that.
  void Metti(const Scritta& scritta, std::vector<Segno>& segni) const {
    const std::size_t colore = IndiceColore(scritta.colore);
    const double altezza = scritta.altezza * scala_;
    const double largo = scritta.base * static_cast<double>(scritta.testo.size()) * scala_;
    const double minimo = kMinimaScritta * penna_;
    const auto angoli = Angoli(d_, scritta);
    if (altezza < minimo || largo < minimo) {
      const Coordinata& a = angoli[altezza < minimo ? 1 : 3];
      segni.push_back({colore,
                       Marca("line", {{"x1", X(angoli[0].x)},
                                      {"y1", Y(angoli[0].y)},
                                      {"x2", X(a.x)},
                                      {"y2", Y(a.y)},
                                      {"stroke", ColoreXml(colore)}}),
                       "/>\n"});
      return;
    }
    const double corpo = altezza / kMaiuscola * pixel_;
    const double disteso = corpo * kAvanzamento * static_cast<double>(scritta.testo.size());
    Testo posa = "translate(" + X(angoli[0].x) + ' ' + Y(angoli[0].y) + ')';
    if (scritta.angolo != 0) posa += " rotate(" + Numero(-scritta.angolo, 1) + ')';
    posa += " scale(" + Misura(largo / disteso) + ' ' + Misura(1 / pixel_) + ')';
    segni.push_back({colore,
                     Marca("text", {{"transform", posa},
                                    {"font-size", Misura(corpo)},
                                    {"textLength", Misura(disteso)},
                                    {"lengthAdjust", "spacingAndGlyphs"},
                                    {"xml:space", "preserve"}}),
                     '>' + InXml(scritta.testo) + "</text>\n"});
  }

  const Disegno& d_;
  double scala_ = 1;  // of the file's lengths to the drawing's
  double sinistra_, alto_, larghezza_, altezza_;
  double cifre_;  // the power of ten to which lengths are rounded
  double pixel_;  // of a length's unit
  double penna_;
  std::vector<Segno> quote_, valori_, contorno_, testi_;
};

}  // namespace

Testo ScriviSvg(const Disegno& disegno) {
  return Foglio(disegno).Scrivi();
}

}  // namespace ostrel

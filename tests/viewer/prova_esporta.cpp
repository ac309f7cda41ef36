// The exports: valid files with every element, colours for paper.
#include <QImage>
#include <QPrinter>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <sstream>

#include "tests/viewer/aiuti_viewer.h"
#include "viewer/carta/stampa.h"
#include "viewer/esporta/dxf.h"
#include "viewer/esporta/esporta.h"
#include "viewer/esporta/svg.h"
#include "viewer/pittura/pittura.h"

namespace ostrel {
namespace {

// How many elements of each kind are the outline.
std::map<std::string, int> Contorno(const std::string& dxf) {
  std::map<std::string, int> elementi;
  std::istringstream righe(dxf.substr(dxf.find("0\r\nENDSEC\r\n0\r\nSECTION\r\n2\r\nENTITIES\r\n")));
  std::string codice, valore, genere;
  while (std::getline(righe, codice) && std::getline(righe, valore)) {
    valore.pop_back();
    if (codice == "0\r") genere = valore;
    if (codice == "8\r" && valore == "CONTORNO") ++elementi[genere];
  }
  return elementi;
}

int Quante(const std::string& byte, const std::string& parola) {
  int quante = 0;
  for (auto dove = byte.find(parola); dove != std::string::npos; dove = byte.find(parola, dove + 1)) ++quante;
  return quante;
}

TEST(Dxf, GliAnelliDelContorno) {
  const std::map<std::string, int> anelli = {{"POLYLINE", 2}, {"VERTEX", 24}, {"SEQEND", 2}};
  const struct {
    const char* caso;
    void (*cambia)(Disegno&);
    std::map<std::string, int> contorno;
  } casi[] = {
      {"the order of the lines tells them apart, not their colour",
       [](Disegno& d) {
         for (Linea& linea : d.linee) linea.colore = 1;
       },
       anelli},
      {"a side of no length",
       [](Disegno& d) {
         const int dove = d.linee[4].fine;
         d.coordinate.push_back(d.coordinate[static_cast<std::size_t>(dove)]);
         d.linee[4].fine = static_cast<int>(d.coordinate.size()) - 1;
         d.linee.insert(d.linee.begin() + 5, {d.linee[4].fine, dove, 3, 0});
       },
       anelli},
      {"a side of another type: its ring stays lines",
       [](Disegno& d) { d.linee[4].tipo = 1; },
       {{"LINE", 13}, {"POLYLINE", 1}, {"VERTEX", 11}, {"SEQEND", 1}}},
      {"open after all: what has the first line's colour",
       [](Disegno& d) { d.linee.erase(d.linee.begin()); },
       {{"LINE", 23}}},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(c.caso);
    Disegno d = prove::Esempio();
    c.cambia(d);
    EXPECT_EQ(Contorno(ScriviDxf(d)), c.contorno);
  }
}

TEST(Dxf, ValoriDegliElementi) {
  const std::string andata = prove::ConRiga(prove::kUnoPerGenere, 14, " 1  0  3  0 ");
  EXPECT_EQ(Contorno(ScriviDxf(prove::Letto(andata)))["LINE"], 2) << "there and back";
  Disegno d = prove::Letto(prove::kUnoPerGenere);
  d.scritte[0].testo = "5%% a^b \xE8";
  const std::string dxf = ScriviDxf(d);
  const std::map<std::string, int> attesi = {{"LINE", 1}, {"ARC", 1}, {"POINT", 1}};
  EXPECT_EQ(Contorno(dxf), attesi);
  for (const char* atteso : {"\r\n0\r\nLINE\r\n8\r\nQUOTE\r\n", "\r\n0\r\nTEXT\r\n8\r\nTESTI\r\n",
                             "\r\n50\r\n0\r\n51\r\n90\r\n", "\r\n1\r\n5%%%%%% a^ b \xE8\r\n",
                             "\r\n6\r\nDOT\r\n", "\r\n10\r\n0.5\r\n20\r\n-5\r\n", "\r\n62\r\n3\r\n"})
    EXPECT_NE(dxf.find(atteso), std::string::npos) << atteso;
}

TEST(Stampa, NelVersoDellaStampante) {
  const QTemporaryDir cartella;
  const QString file = cartella.filePath("stampa.pdf");
  QPrinter stampante(QPrinter::HighResolution);
  stampante.setOutputFileName(file);
  stampante.setPageOrientation(QPageLayout::Portrait);
  ASSERT_TRUE(Stampa(prove::Esempio(), {}, {}, stampante));
  const std::string byte = prove::Leggi(file.toStdString());
  EXPECT_TRUE(byte.starts_with("%PDF-") && byte.ends_with("%%EOF\n"));
  EXPECT_EQ(Quante(byte, "/Count 1\n"), 1) << "one page";
  EXPECT_EQ(Quante(byte, "[0 0 595.000000 842.000000]"), 1);
}

TEST(Esporta, DisegniEstremi) {
  const QTemporaryDir cartella;
  const std::string& uno = prove::kUnoPerGenere;
  // With other coordinates: centre and ends of the arc, point.
  const auto altrove = [](std::string byte, std::array<const char*, 4> coordinate) {
    for (int riga = 6; const char* coordinata : coordinate) byte = prove::ConRiga(byte, riga++, coordinata);
    return byte;
  };
  const std::string minimo = prove::ConRiga(uno, 17, " 1E-9  1E-9  5 ");
  const struct {
    const char* caso;
    std::string byte;
  } casi[] = {
      {"the longest", altrove(uno, {" 0  0  0 ", " 1E+9 -1E+9  0 ", "-1E+9  1E+9  0 ", " 1  1  0 "})},
      {"the shortest", altrove(minimo, {" 0  0  0 ", " 1E-9  0  0 ", " 0  1E-9  0 ", " 0  0  0 "})},
      {"the shortest, far from the origin",
       altrove(minimo, {" 1E+9  0  0 ", " 1E+9  1E-9  0 ", " 1E+9 -1E-9  0 ", " 1E+9  0  0 "})},
      {"cells without likeness", prove::ConRiga(uno, 17, " 1E-9  1E+9  5 ")},
      {"a text far too long", prove::ConRiga(uno, 18, std::string(70000, '%'))},
      {"signs without a form", prove::ConRiga(uno, 18, "\x01\x1B\x7F<&\x81\x9D")},
      {"a hyphen that no font shows", prove::ConRiga(uno, 18, "\xAD")},
      {"an arc without a radius", prove::ConRiga(uno, 20, " 0  0  0  0 ")},
  };
  for (const auto& c : casi) {
    SCOPED_TRACE(c.caso);
    const Disegno disegno = prove::Letto(c.byte);
    for (const char* nome : {"e.png", "e.svg", "e.pdf"})
      EXPECT_EQ(Esporta(disegno, cartella.filePath(nome)), std::nullopt) << nome;
    const std::string svg = prove::Leggi(cartella.filePath("e.svg").toStdString());
    EXPECT_EQ(Quante(svg, "nan") + Quante(svg, "inf"), 0);
    QXmlStreamReader xml(QByteArray::fromStdString(svg));
    xml.readNextStartElement();
    EXPECT_TRUE(std::isnormal(xml.attributes().value("viewBox").toString().section(' ', 3).toFloat()));
    while (!xml.atEnd()) xml.readNext();
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(Quante(svg, "/>\n") + Quante(svg, "</text>\n"), 6) << "the page and five elements";
    const std::string dxf = ScriviDxf(disegno);
    std::istringstream righe(dxf);
    for (std::string riga; std::getline(righe, riga);) EXPECT_LE(riga.size(), 256u);
    EXPECT_EQ(std::count_if(dxf.begin(), dxf.end(), [](char x) { return x >= 0 && x < ' '; }),
              2 * std::count(dxf.begin(), dxf.end(), '\n'));
    EXPECT_EQ(Quante(dxf, "nan") + Quante(dxf, "inf"), 0);
  }
}

// The ink of a quarter of a circle lies on the circle, from the start of the arc on.
TEST(Pittura, LArcoPassaPerISuoiPuntiAOgniZoom) {
  Disegno d;
  d.coordinate = {{0, 0}, {60, -80}, {80, 60}};
  d.archi = {{0, 1, 2, 3}};
  for (const double raggio : {1e2, 1e3, 1e5, 1e7})  // in pixels
    for (const double angolo : {std::atan2(-80, 60), -0.5432}) {
      SCOPED_TRACE(raggio);
      const double scala = raggio / 100;
      const Vista vista{scala, 100 * std::cos(angolo) - 150 / scala, 100 * std::sin(angolo) + 150 / scala};
      QImage immagine(300, 300, QImage::Format_RGB32);
      immagine.fill(Qt::white);
      QPainter pittore(&immagine);
      Dipingi(pittore, d, vista, immagine.rect(), FondoCarta(2));
      pittore.end();
      int inchiostro = 0;
      for (int y = 0; y < immagine.height(); ++y)
        for (int x = 0; x < immagine.width(); ++x)
          if (immagine.pixel(x, y) != qRgb(255, 255, 255)) {
            const QPointF punto = vista.Da({x + 0.5, y + 0.5});
            EXPECT_NEAR(std::hypot(punto.x(), punto.y()) * scala, raggio, 2);
            EXPECT_GT((60 * punto.y() + 80 * punto.x()) / 100 * scala, -2);
            ++inchiostro;
          }
      EXPECT_GT(inchiostro, 2 * 150);
    }
}

TEST(Colori, SiVedonoSulFondo) {
  EXPECT_EQ(ColoreSu(kCarta, 99), tarvel::Colore()) << "beyond the table is white";
  EXPECT_NE(ColoreSu(kSchermo, 0), tarvel::Colore());
  EXPECT_LT(ColoreSu(kCarta, tarvel::disegno::kGiallo).r, 200) << "yellow cannot be read on white";
}

}  // namespace
}  // namespace ostrel

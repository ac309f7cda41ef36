// What several tests share: the worked example, a scratch folder, whole files.
#pragma once

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <sstream>
#include <string>

#include "model/geometria.h"
#include "model/tabella_sezioni.h"

namespace tarvel::prove {

inline VettoreParametri Vettore(std::initializer_list<double> valori) {
  VettoreParametri p;
  int i = 0;
  for (const double v : valori) p[i++] = v;
  return p;
}

/// The worked example: 12 m wide, 2 m deep, in centimetres.
inline VettoreParametri Esempio() {
  return Vettore(
      {200, 25, 20, 35, 45, 50, 30, 25, 20, 250, 50, 60, 150, 50, 40, 1200, 2.5, 2.5, -2.5, -2.5, 20});
}

/// The program's state as the main form's load leaves it, with these parameters and an empty table.
inline void Prepara(const VettoreParametri& p) {
  ParametriSezione = p;
  VerticiPoligono[1] = 13;
  VerticiPoligono[2] = 11;
  NumeroSezioni = NumeroSezioniFile = 0;
  SezioneCorrente = 1;
  SezioneCalcolata = false;
}

inline RecordSezione Costruita(const VettoreParametri& p) {
  Prepara(p);
  RecordSezione r;
  CostruisciGeometria(r, p);
  return r;
}

/// Sections of every proportion that still are box girders; symmetric on request. Webs lean by 2% at
/// least: the edge formulas lose digits on steeper ones.
inline VettoreParametri Casuale(std::mt19937& caso, bool simmetrica) {
  const auto tra = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(caso); };
  const double L = tra(600, 1800), sbalzo = L * tra(0.12, 0.22), p0 = tra(120, 400);
  const double p16 = tra(-4, 4), p17 = tra(-4, 4);
  return Vettore({p0,
                  p0 * tra(0.08, 0.15),
                  tra(12, 25),
                  tra(26, 35),
                  tra(36, 48),
                  tra(36, 55),
                  tra(22, 35),
                  tra(20, 30),
                  p0 * tra(0.05, 0.12),
                  sbalzo,
                  L * tra(0.01, 0.05),
                  L * tra(0.03, 0.06),
                  L * tra(0.08, 0.12),
                  L * tra(0.03, 0.06),
                  L * tra(0.02, 0.05),
                  L,
                  p16,
                  p17,
                  simmetrica ? -p17 : tra(-4, 4),
                  simmetrica ? -p16 : tra(-4, 4),
                  tra(2, 30)});
}

class Cartella {
 public:
  Cartella() {
    std::string modello = (std::filesystem::temp_directory_path() / "TarvelProva_XXXXXX").string();
    radice = mkdtemp(modello.data());
  }
  Cartella(const Cartella&) = delete;
  Cartella& operator=(const Cartella&) = delete;
  ~Cartella() {
    std::error_code ignorato;
    std::filesystem::remove_all(radice, ignorato);
  }
  std::filesystem::path operator/(const std::string& nome) const { return radice / nome; }

  std::filesystem::path radice;
};

inline std::string Contenuto(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

inline void Scrivi(const std::filesystem::path& file, const std::string& contenuto) {
  std::filesystem::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << contenuto;
}

}  // namespace tarvel::prove

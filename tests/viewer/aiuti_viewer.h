// What the viewer's tests share: drawings to read and to vary, files to write.
#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <fstream>
#include <iterator>
#include <string>

#include "viewer/disegno/lettore_dis.h"

namespace ostrel::prove {

inline const std::string kDati = DATI_VIEWER;

inline std::string Leggi(const std::string& file) {
  std::ifstream ingresso(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(ingresso), {}};
}

inline void Scrivi(const std::string& file, const std::string& byte) {
  std::ofstream(file, std::ios::binary) << byte;
}

/// A drawing that has to be sound.
inline Disegno Letto(const std::string& byte) {
  return std::get<Disegno>(LeggiDis(byte));
}

/// The worked example: 102 lines, 43 circles, 35 texts.
inline const std::string kEsempio = Leggi(kDati + "/sezione.dis");
/// One element of each kind, an arc of a quarter, a dashed line; 21 lines.
inline const std::string kUnoPerGenere = Leggi(kDati + "/uno-per-genere.dis");

inline Disegno Esempio() {
  return Letto(kEsempio);
}

/// The text with its line `riga` (from 1) replaced.
inline std::string ConRiga(const std::string& byte, int riga, const std::string& nuova) {
  std::size_t inizio = 0;
  for (int i = 1; i < riga; ++i) inizio = byte.find('\n', inizio) + 1;
  return std::string(byte).replace(inizio, byte.find("\r\n", inizio) - inizio, nuova);
}

}  // namespace ostrel::prove

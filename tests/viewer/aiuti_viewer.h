// What the viewer's tests share: drawings to read, a scratch folder.
#pragma once

#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "viewer/lettore_dis.h"

namespace ostrel::prove {

inline const std::string kDati = DATI_VIEWER;

inline std::string Leggi(const std::string& file) {
  std::ifstream ingresso(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(ingresso), {}};
}

inline void Scrivi(const std::string& file, const std::string& byte) {
  std::ofstream(file, std::ios::binary) << byte;
}

/// The worked example: 102 lines, 43 circles, 35 texts.
inline std::string ByteEsempio() {
  return Leggi(kDati + "/sezione.dis");
}

inline Disegno Esempio() {
  return std::get<Disegno>(LeggiDis(ByteEsempio()));
}

/// One element of each kind, an arc of a quarter, a dashed line; 22 lines.
inline const char kUnoPerGenere[] =
    "                   3\r\n 0  10 \r\n-5  10 \r\n-10000.000000        10000.000000\r\n"
    " 4 \r\n 0  0  0 \r\n 10  0  0 \r\n 0  10  0 \r\n .5 -5  0 \r\n"
    " 1 \r\n 3  0  0 \r\n"
    " 2 \r\n 0  1  3  0 \r\n 1  2  1  2 \r\n"
    " 1 \r\n 1  1  90 \r\n 1.5  2.5  5 \r\n12,5\r\n"
    " 1 \r\n 0  1  0  2 \r\n 4  0 \r\n";

inline const char kVuoto[] =
    "                   3\r\n 0  0 \r\n 0  0 \r\n-10000.000000        10000.000000\r\n"
    " 0 \r\n 0 \r\n 0 \r\n 0 \r\n 0 \r\n";

}  // namespace ostrel::prove

// A folder of a case's own, and the paths of the program in it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>

#include "platform/scrittura.h"
#include "tests/cartella.h"

namespace tarvel::contratto {

class ContrattoFile : public ::testing::Test {
 protected:
  Testo Percorso(const std::string& nome) const {
    Testo percorso = (cartella_ / nome).string();
    std::replace(percorso.begin(), percorso.end(), '/', '\\');
    return percorso;
  }
  void Metti(const std::string& nome, const std::string& contenuto) const {
    prove::Scrivi(cartella_ / nome, contenuto);
  }
  std::string Letto(const std::string& nome) const { return prove::Contenuto(cartella_ / nome); }
  FileInLettura Apri(const std::string& nome, const std::string& contenuto) const {
    Metti(nome, contenuto);
    return std::move(FileInLettura::Apri(Percorso(nome)).value());
  }

  const prove::Cartella cartella_;
};

}  // namespace tarvel::contratto

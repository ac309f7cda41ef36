// A scratch folder, whole files.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace tarvel::prove {

class Cartella {
 public:
  Cartella() {
    std::random_device caso;
    do radice = std::filesystem::temp_directory_path() / ("TarvelProva_" + std::to_string(caso()));
    while (!std::filesystem::create_directory(radice));
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

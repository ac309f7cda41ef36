// A text of exactly N characters: a shorter one is padded with blanks, a longer one is cut.
#pragma once

#include <algorithm>
#include <array>
#include <string_view>

#include "base/testo.h"

namespace tarvel {

template <std::size_t N>
class TestoFisso {
 public:
  TestoFisso() { caratteri_.fill(' '); }
  TestoFisso& operator=(std::string_view testo) {
    caratteri_.fill(' ');
    std::copy_n(testo.data(), std::min(testo.size(), N), caratteri_.data());
    return *this;
  }
  std::string_view Intero() const { return {caratteri_.data(), N}; }
  std::string_view Rifilato() const { return SenzaBlanchi(Intero()); }

 private:
  std::array<char, N> caratteri_;
};

}  // namespace tarvel

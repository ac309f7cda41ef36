// A text of exactly N characters: a shorter one is padded with blanks, a longer one is cut.
#pragma once

#include <array>
#include <initializer_list>
#include <string_view>

#include "base/testo.h"

namespace tarvel {

template <std::size_t N>
class TestoFisso {
 public:
  TestoFisso() { caratteri_.fill(' '); }
  TestoFisso& operator=(std::string_view testo) { return Componi({testo}); }
  /// The parts one after the other.
  TestoFisso& Componi(std::initializer_list<std::string_view> parti) {
    caratteri_.fill(' ');
    std::size_t n = 0;
    for (const std::string_view parte : parti) n += parte.copy(caratteri_.data() + n, N - n);
    return *this;
  }
  std::string_view Rifilato() const { return SenzaBlanchi({caratteri_.data(), N}); }

 private:
  std::array<char, N> caratteri_;
};

}  // namespace tarvel

#include "platform/comune/windows/largo.h"

#include <windows.h>

namespace tarvel {

std::wstring Largo(std::string_view utf8) {
  const int byte = static_cast<int>(utf8.size());
  const int quanti = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), byte, nullptr, 0);
  std::wstring testo(static_cast<std::size_t>(quanti), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), byte, testo.data(), quanti);
  return testo;
}

std::string DaLargo(std::wstring_view testo) {
  const int caratteri = static_cast<int>(testo.size());
  const int quanti = WideCharToMultiByte(CP_UTF8, 0, testo.data(), caratteri, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(quanti), '\0');
  WideCharToMultiByte(CP_UTF8, 0, testo.data(), caratteri, utf8.data(), quanti, nullptr, nullptr);
  return utf8;
}

}  // namespace tarvel

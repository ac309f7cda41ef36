// Windows' own texts, of 16-bit characters.
#pragma once

#include <string>
#include <string_view>

namespace tarvel {

/// From UTF-8 and back; what is malformed becomes U+FFFD.
std::wstring Largo(std::string_view utf8);
std::string DaLargo(std::wstring_view testo);

}  // namespace tarvel

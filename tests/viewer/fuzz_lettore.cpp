// Fuzz target: any bytes are refused or read; what was read is sound and can be exported.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "viewer/disegno/lettore_dis.h"
#include "viewer/esporta/dxf.h"
#include "viewer/esporta/svg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const auto esito = ostrel::LeggiDis({reinterpret_cast<const char*>(dati), quanti});
  if (const auto* disegno = std::get_if<ostrel::Disegno>(&esito)) {
    if (!ostrel::ScriviDxf(*disegno).ends_with("EOF\r\n") ||
        !ostrel::ScriviSvg(*disegno).endsWith("</svg>\n"))
      std::abort();
  } else if (std::get<ostrel::ErroreDis>(esito).messaggio.empty()) {
    std::abort();
  }
  return 0;
}

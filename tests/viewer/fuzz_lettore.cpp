// Fuzz target: any bytes are refused or read; what was read is sound and can be exported.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "viewer/dxf.h"
#include "viewer/lettore_dis.h"
#include "viewer/svg.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const auto esito = ostrel::LeggiDis({reinterpret_cast<const char*>(dati), quanti});
  if (const auto* disegno = std::get_if<ostrel::Disegno>(&esito)) {
    const auto dxf = ostrel::ScriviDxf(*disegno), svg = std::optional(ostrel::ScriviSvg(*disegno));
    if ((dxf && !dxf->ends_with("EOF\r\n")) || !svg->ends_with("</svg>\n")) std::abort();
  } else if (std::get<ostrel::ErroreDis>(esito).messaggio.empty()) {
    std::abort();
  }
  return 0;
}

// A group is a line with the code and a line with the value.
#include "viewer/esporta/gruppi_dxf.h"

#include "base/numeri.h"

namespace ostrel {

void Gruppo(Dxf& dxf, int codice, std::string_view valore) {
  ((dxf.testo += std::to_string(codice)) += "\r\n").append(valore) += "\r\n";
}

void GruppoIntero(Dxf& dxf, int codice, int valore) {
  Gruppo(dxf, codice, std::to_string(valore));
}

void GruppoReale(Dxf& dxf, int codice, double valore) {
  tarvel::Testo testo;
  tarvel::AccodaNumero(testo, valore, '.', true);
  Gruppo(dxf, codice, testo);
}

void GruppoPunto(Dxf& dxf, int codice, double x, double y) {
  GruppoReale(dxf, codice, x);
  GruppoReale(dxf, codice + 10, y);
  GruppoReale(dxf, codice + 20, 0);
}

}  // namespace ostrel

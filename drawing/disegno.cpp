// The one drawing and its settings.
#include "drawing/disegno.h"

namespace tarvel::disegno {

TabelleDisegno Disegno;

Reale OrigineX, OrigineY;
Intero16 ColoreCorrente, TipoLineaCorrente;
bool FlagDisegno = false;
Intero16 DecimaliQuote;

Tabella<"dei caratteri", Intero16, 0, 255> FontPunti;
OrdinateFont<"dei caratteri"> FontX;
OrdinateFont<"dei caratteri"> FontY;
Intero16 SpaziaturaCaratteri;

void SvuotaDisegno() {
  Disegno.Coordinate.numero = 0;
  Disegno.Punti.numero = 0;
  Disegno.Linee.numero = 0;
  Disegno.Archi.numero = 0;
  Disegno.Testi.numero = 0;
  Disegno.avvisi.clear();
}

}  // namespace tarvel::disegno

// The user's regional number format, from the system's locale.
#include "platform/regione.h"

#include <QLocale>

#include "platform/qt/testo_qt.h"

namespace tarvel {
namespace {

// One 8-bit character; 0 for a separator that is none, or is none of the code page.
char UnCarattere(const QString& separatore) {
  if (separatore.size() != 1) return 0;
  if (separatore[0].isSpace()) return '\xA0';  // whichever width the region gives its blank
  const char c = DaQt(separatore)[0];
  return c == '?' ? '\0' : c;
}

}  // namespace

char SeparatoreDecimale() {
  const char c = UnCarattere(QLocale::system().decimalPoint());
  return c == 0 ? '.' : c;
}

char SeparatoreMigliaia() {
  const char c = UnCarattere(QLocale::system().groupSeparator());
  return c == SeparatoreDecimale() ? '\0' : c;
}

}  // namespace tarvel

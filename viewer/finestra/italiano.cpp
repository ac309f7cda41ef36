#include "viewer/finestra/italiano.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>
#include <cstring>

namespace ostrel {
namespace {

// The toolkit has moved some words from one class to another; its translation still has them under the first.
class Spostate : public QTranslator {
 public:
  using QTranslator::QTranslator;

  bool isEmpty() const override { return false; }
  QString translate(const char* contesto, const char* testo, const char* senso, int quanti) const override {
    if (std::strcmp(contesto, "QAbstractFileIconProvider") != 0) return {};
    return QCoreApplication::translate("QFileDialog", testo, senso, quanti);
  }
};

}  // namespace

void ParlaItaliano(QApplication& applicazione) {
  QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
  QApplication::installTranslator(new Spostate(&applicazione));
}

}  // namespace ostrel

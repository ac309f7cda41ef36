#include "viewer/finestra/italiano.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>
#include <cstring>

namespace ostrel {
namespace {

// Words that the toolkit has moved from one of its classes to another, and its translation has not.
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

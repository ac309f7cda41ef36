// A stand-in for the viewer: shows a window and logs what happens to it in its working folder. The
// file "modo" there tells how it behaves: "muore" ends at once, "lento" shows its window only when
// there is a file "mostra", "sordo" ignores the request to close, "dialogo" has a modal dialog open.
#include <QApplication>
#include <QCloseEvent>
#include <QDialog>
#include <QKeyEvent>
#include <QThread>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

std::ofstream diario;

class Sorda : public QDialog {
 public:
  Sorda(const char* nome, QWidget* padre, bool chiude) : QDialog(padre), chiude_(chiude) {
    setWindowRole(nome);
    setWindowTitle(nome);
    resize(200, 100);
  }
  void keyPressEvent(QKeyEvent* evento) override {
    if (evento->key() == Qt::Key_Alt) return;
    const std::string alt = evento->modifiers().testFlag(Qt::AltModifier) ? "Alt+" : "";
    diario << alt << char(std::tolower(evento->key())) << std::endl;
  }
  void closeEvent(QCloseEvent* evento) override {
    diario << "chiusura" << std::endl;
    evento->setAccepted(chiude_);
  }

 private:
  bool chiude_;
};

}  // namespace

int main(int argc, char** argv) {
  std::string modo;
  std::ifstream("modo") >> modo;
  diario.open("visore.log", std::ios::app | std::ios::binary);
  diario << "avviato " << modo << std::endl;
  if (modo == "muore") return 1;
  while (modo == "lento" && !std::filesystem::exists("mostra")) QThread::msleep(10);

  const QApplication applicazione(argc, argv);
  Sorda finestra("ostrel", nullptr, modo != "sordo");
  finestra.setWindowFlags(Qt::Window);
  finestra.show();
  Sorda dialogo("dialogo", &finestra, true);
  if (modo == "dialogo") dialogo.open();
  return QApplication::exec();
}

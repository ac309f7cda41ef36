// The suite's user at a real window, by mouse and keyboard events. Every case runs the program in a
// process of its own, as the program leaves its process when it ends; the diary comes by a file.
#include <QtCore/qtestsupport_core.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDeadlineTimer>
#include <QListWidget>
#include <QMessageBox>
#include <QPointer>
#include <QScopedValueRollback>
#include <QTimer>
#include <algorithm>
#include <array>
#include <fstream>

#include "platform/comune/desktop/scrivania.h"
#include "platform/qt/avvio.h"
#include "platform/qt/casella.h"
#include "platform/qt/finestra.h"
#include "platform/qt/testo_qt.h"
#include "tests/contratto/utente.h"
#include "tests/finestra/gesti.h"
#include "tests/finestra/processo_proprio.h"

namespace tarvel::contratto {
namespace {

constexpr int kTastoCanc = 127;
constexpr int kPazienza = 5000;  // milliseconds for a line that does not come
constexpr auto kPreme = QEvent::MouseButtonPress, kLascia = QEvent::MouseButtonRelease;

Finestra* FinestraCon(const std::function<bool(const Finestra&)>& quale) {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* finestra = dynamic_cast<Finestra*>(widget);
        finestra != nullptr && finestra->form != nullptr && quale(*finestra))
      return finestra;
  return nullptr;
}

Finestra* Davanti() {
  return FinestraDi(FormAttiva());
}

QWidget* WidgetDi(const Controllo& controllo) {
  const Finestra* finestra = FinestraCon([&](const Finestra& f) { return f.WidgetDi(controllo) != nullptr; });
  return finestra == nullptr ? nullptr : finestra->WidgetDi(controllo);
}

void Clic(QWidget* widget, QPoint punto, Qt::KeyboardModifiers con = {}) {
  Mouse(widget->window()->windowHandle(), widget->mapTo(widget->window(), punto), {kPreme, kLascia}, con);
}

class UtenteQt : public Utente {
 public:
  explicit UtenteQt(const std::filesystem::path& diarioFuori) : fuori_(diarioFuori, std::ios::binary) {}

  void Esegui(Form& principale, std::vector<Passo> passi) override {
    passi_.assign(passi.begin(), passi.end());
    std::vector<std::string> parole{"contratto-qt"};
    parole.insert(parole.end(), std::begin(kArgomenti), std::end(kArgomenti));
    std::vector<char*> argomenti;
    for (std::string& parola : parole) argomenti.push_back(parola.data());
    PreparaDesktop(int(argomenti.size()), argomenti.data(), principale);
    QApplication::clipboard()->setText(kAppunti);
    Guarda();
    tarvel::Esegui([&] { MostraForm(principale); });
    QApplication::exec();
  }

  void Annota(const std::string& riga) override {
    Utente::Annota(riga);
    fuori_ << riga << std::endl;
  }

  void Vai(Controllo& controllo) override {
    QWidget* const widget = Usabile(controllo);
    if (widget == nullptr) return;
    if (widget->hasFocus())  // by the activation of its window, which counts a little later
      return void(QTest::qWaitFor([&] { return Davanti() == widget->window(); }));
    QWindow* const finestra = widget->window()->windowHandle();
    if (controllo.tipo == TipoControllo::Casella) return Clic(widget, widget->rect().center());
    if (controllo.tipo == TipoControllo::Lista)
      return Clic(widget, widget->rect().bottomLeft() + QPoint(9, -9));
    // A button pressed and left with the mouse held is no click.
    Mouse(finestra, widget->geometry().center(), {kPreme});
    Mouse(finestra, QPoint(1, 1), {QEvent::MouseMove, kLascia});
  }

  void Clicca(Controllo& controllo) override {
    QWidget* const widget = Usabile(controllo);
    if (widget != nullptr && widget->parentWidget()->childAt(widget->geometry().center()) == widget)
      Clic(widget, widget->rect().center());
  }

  void Premi(int tasto) override {
    QWindow* const finestra = QApplication::focusWindow();
    if (tasto == kTastoIncolla) return Batti(finestra, Qt::Key_V, {}, Qt::ControlModifier);
    if (tasto == 24 || tasto == 25) return Batti(finestra, tasto == 24 ? Qt::Key_Up : Qt::Key_Down, {});
    if (tasto == kTastoCanc) return Batti(finestra, Qt::Key_Delete, "\x7F");
    Batti(finestra, static_cast<char>(tasto));
  }

  void AltroProgramma() override {
    QWidget* const davanti = QApplication::activeWindow();
    QApplication::setActiveWindow(nullptr);
    QApplication::setActiveWindow(davanti);
  }

  void Scrivi(Controllo& casella, const Testo& testo) override {
    if (!Raggiunge(casella)) return;
    Batti(QApplication::focusWindow(), Qt::Key_A, {}, Qt::ControlModifier);
    if (testo.empty()) return Batti(QApplication::focusWindow(), '\b');
    for (const QChar c : InQt(testo)) Batti(QApplication::focusWindow(), Qt::Key_unknown, QString(c));
  }

  void Invio(Controllo& controllo) override {
    if (Raggiunge(controllo)) Batti(QApplication::focusWindow(), '\r');
  }

  void Seleziona(Controllo& controllo, const std::vector<int>& voci) override {
    auto* const lista = static_cast<QListWidget*>(Usabile(controllo));
    if (lista == nullptr) return;
    for (std::size_t i = 0; i < voci.size(); ++i)
      Clic(lista->viewport(), lista->visualItemRect(lista->item(voci[i])).center(),
           i == 0 ? Qt::NoModifier : Qt::ControlModifier);
  }

  void DoppioClick(Controllo& controllo, int voce) override {
    auto* const lista = static_cast<QListWidget*>(Usabile(controllo));
    if (lista == nullptr) return;
    const QPoint punto = lista->visualItemRect(lista->item(voce)).center();
    Mouse(lista->window()->windowHandle(), lista->viewport()->mapTo(lista->window(), punto),
          {kPreme, kLascia, kPreme, kLascia});
  }

  void Chiudi(Form& form) override {
    if (Finestra* finestra = FinestraDi(&form); finestra != nullptr && finestra->isVisible())
      finestra->windowHandle()->close();
  }

  void AspettaRiga(const std::string& riga) override {
    aspettata_ = riga;
    pazienza_.setRemainingTime(kPazienza);
  }

  bool Vede(const Form& form) override {
    return FinestraDi(&form) != nullptr && FinestraDi(&form)->isVisible();
  }
  bool VedeClessidra() override {
    const QCursor* puntatore = QApplication::overrideCursor();
    return puntatore != nullptr && puntatore->shape() == Qt::WaitCursor;
  }

  Testo Legge(const Controllo& controllo) override {
    QWidget* const widget = WidgetDi(controllo);
    if (widget == nullptr) return controllo.testo;
    if (controllo.tipo == TipoControllo::Bottone)
      return DaQt(widget->property("text").toString().replace("&&", "&"));
    if (controllo.tipo != TipoControllo::Lista) return DaQt(widget->property("text").toString());
    const auto& lista = static_cast<const QListWidget&>(*widget);
    QStringList voci;
    for (int i = 0; i < lista.count(); ++i)
      voci += (lista.item(i)->isSelected() ? "*" : "") + lista.item(i)->text();
    return DaQt(voci.join('|'));
  }
  // The letters by where the caret would be put at either edge, the marks by their colour.
  std::string Mostrato(const Controllo& controllo) override {
    auto& casella = static_cast<QLineEdit&>(*WidgetDi(controllo));
    const QImage vista = casella.grab().toImage();  // it scrolls when it is painted
    const int meta = casella.height() / 2, lettere = int(casella.text().size());
    const auto segno = [&](int da, int verso) {
      for (int x = 0; x < casella.width() / 2; ++x)
        if (vista.pixelColor(da + verso * x, meta) == Casella::kSegno) return true;
      return false;
    };
    const bool inizio = casella.cursorPositionAt({0, meta}) == 0;
    const bool fine = casella.cursorPositionAt({casella.width(), meta}) == lettere;
    return std::string(inizio ? fine ? "tutto" : "inizio"
                       : fine ? "fine"
                              : "mezzo") +
           (segno(0, 1) ? " <" : "") + (segno(casella.width() - 1, -1) ? " >" : "");
  }

  std::string Indica(const Controllo& controllo) override {
    QWidget* const widget = WidgetDi(controllo);
    const QString nome = QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
    return DaQt(QString(nome + ": " + Letto(widget->toolTip())).replace('\n', '/'));
  }

 private:
  // The widget of a control that a user can reach now, its window made the active one as a click in
  // it does.
  static QWidget* Usabile(const Controllo& controllo) {
    QWidget* const widget = WidgetDi(controllo);
    if (widget == nullptr || !widget->isVisible()) return nullptr;
    widget->activateWindow();
    const auto attiva = [&] { return QApplication::activeWindow() == widget->window(); };
    return QTest::qWaitFor(attiva) ? widget : nullptr;
  }

  bool Raggiunge(Controllo& controllo) {
    Vai(controllo);
    return QApplication::focusWidget() != nullptr && QApplication::focusWidget() == WidgetDi(controllo);
  }

  // Called again and again, in whichever loop; a loop inside one call has calls of its own.
  void Guarda() {
    QTimer::singleShot(1, [this] { Guarda(); });
    if (Davanti() == nullptr && !Occupato()) return;
    if (auto* riquadro = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
      return Risponde(riquadro);
    if (Occupato() || LivelloModale() <= livello_ || Attende()) return;
    if (Davanti() != nullptr && QApplication::activeWindow() != Davanti())
      return Davanti()->activateWindow();  // it is on its way
    const QScopedValueRollback<int> agisce(livello_, LivelloModale());
    FaProssimo();
  }

  bool Attende() const { return !pazienza_.hasExpired() && !Scritta(aspettata_); }

  void Risponde(QMessageBox* riquadro) {
    if (riquadro == risposto_) return;
    risposto_ = riquadro;
    const bool domanda = riquadro->buttons().size() == 2;
    const bool pronta = !pronte_.empty();
    const Bottoni bottoni = domanda ? Bottoni::SiNo : Bottoni::Ok;
    const Pronta data = ProssimaRisposta(bottoni);
    QTimer::singleShot(data.attesa, riquadro, [=, this] {
      static constexpr std::array kIcone{QMessageBox::NoIcon, QMessageBox::Critical, QMessageBox::Warning,
                                         QMessageBox::Information};
      const auto icona = std::find(kIcone.begin(), kIcone.end(), riquadro->icon()) - kIcone.begin();
      if (VedeClessidra()) Annota("clessidra");
      Annota(RigaMessaggio(static_cast<Icona>(icona), bottoni, DaQt(riquadro->windowTitle()),
                           DaQt(riquadro->text()), data.risposta));
      if (!pronta) {
        if (domanda) Batti(riquadro->windowHandle(), '\x1B');
        riquadro->windowHandle()->close();
        if (riquadro->isVisible() != domanda) Annota(domanda ? "sparita" : "rimasta");
        if (!domanda) return;
      }
      // The first button is the default one.
      if (data.risposta != Risposta::No) return Batti(riquadro->windowHandle(), '\r');
      QAbstractButton* const bottone = riquadro->buttons()[1];
      Clic(bottone, bottone->rect().center());
    });
  }

  std::ofstream fuori_;
  int livello_ = -1;  // modal forms shown at the innermost of the steps under way
  std::string aspettata_;
  QDeadlineTimer pazienza_;
  QPointer<QMessageBox> risposto_;
};

}  // namespace

std::string Prova(const std::function<void(Utente&)>& caso) {
  const Svolto svolto = InProcessoProprio([&](const std::filesystem::path& diario) {
    UtenteQt utente(diario);
    caso(utente);
  });
  return svolto.diario + "fine " + std::to_string(svolto.stato) + '\n';
}

}  // namespace tarvel::contratto

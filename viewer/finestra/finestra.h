// The window: its menus, the drawing, a notice when it cannot be shown, the line of coordinates.
#pragma once

#include <QMainWindow>

#include "viewer/documento/documento.h"
#include "viewer/documento/preferenze.h"
#include "viewer/finestra/comandi_carta.h"

class QLabel;
class QMenu;

namespace ostrel {

class Tela;
enum class Strumento;

class Finestra : public QMainWindow {
  Q_OBJECT

 public:
  /// `sorveglia`: the drawing is read again by itself whenever its file changes. `decimale`: the sign that
  /// the user's region writes in numbers.
  Finestra(bool sorveglia, const QString& decimale);

  /// Shows the drawing of this file, fitted. A file that cannot be read leaves the drawing shown before, with
  /// a notice; the next reload tries it again.
  void Apri(const QString& percorso);
  /// As Apri, with a drawing that a reload comes back to (Documento::ApriAnteprima).
  void ApriAnteprima(const QString& percorso);
  /// As Apri, but takes a file that is no longer there off the list of the recent ones, and says so.
  void ApriRecente(const QString& percorso);
  /// Reads the file anew. A fitted drawing stays fitted, otherwise zoom and place stay.
  void Ricarica();
  /// Says in the window what is wrong; an empty text takes the notice away.
  void Avvisa(const QString& testo);
  /// Says what went well; goes away at the user's next action.
  void Conferma(const QString& testo);

 protected:
  void dragEnterEvent(QDragEnterEvent* evento) override;
  void dropEvent(QDropEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void CreaMenu();
  void CreaMenuFile();
  void CreaMenuVista();
  void CreaVociLivelli(QMenu& vista);
  void CreaMenuStrumenti();
  void ElencaRecenti();
  void CopiaTabella();
  void Prendi(Preferenze preferenze);
  void Ricorda(const std::function<void(Preferenze&)>& cambia);
  std::optional<Unita> UnitaMostrata() const;
  bool ChiediUnitaMostrata();
  void Alterna(Strumento strumento);
  void Ricevi(Caricato letto, bool nuovo);
  void Intitola();
  void Conta();
  void ScegliFile();
  void MandaFuori(ComandoCarta comando);

  Documento documento_;
  Preferenze preferenze_;
  QString decimale_;
  QString guasto_;  // what the last reading found wrong
  Tela* tela_;
  QMenu* recenti_ = nullptr;
  QLabel* avviso_;
  QLabel* conferma_;
  QLabel* coordinate_;
  QLabel* conteggio_;
};

}  // namespace ostrel

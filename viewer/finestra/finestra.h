// The window: its menus, the drawing, a notice when it cannot be shown, the line of coordinates.
#pragma once

#include <QDateTime>
#include <QFileSystemWatcher>
#include <QMainWindow>
#include <QTimer>

class QLabel;
class QMenu;

namespace ostrel {

class Tela;
enum class Strumento;
struct Esito;
struct FileDisegno;

class Finestra : public QMainWindow {
  Q_OBJECT

 public:
  /// `sorveglia`: the drawing is read again by itself whenever its file changes.
  explicit Finestra(bool sorveglia);

  /// Makes this file the window's drawing and fits it. A file that cannot be read leaves the
  /// drawing shown before, with a notice; the next reload tries it again.
  void Apri(const QString& percorso);
  /// As Apri; when this drawing has been written anew a reload brings it back, whichever is shown by then:
  /// the program that started the viewer has no other order to show its next preview.
  void ApriAnteprima(const QString& percorso);
  /// As Apri, but a drawing that is no longer there leaves the list of the recent ones, and the window as
  /// it is.
  void ApriRecente(const QString& percorso);
  /// Reads the file anew: a fitted drawing stays fitted, otherwise zoom and place stay. One still being
  /// written is waited for.
  void Ricarica();
  /// Says in the window what is wrong; an empty text takes the notice away.
  void Avvisa(const QString& testo);
  /// Says what went well; goes away at the user's next action.
  void Conferma(const QString& testo);

 signals:
  /// A reading has come to its end, well or not.
  void Letto(bool riuscito);

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
  void NominaUnita();
  void Alterna(Strumento strumento);
  void Rileggi();
  void Tenta();
  void Intitola();
  void Conta();
  void Sorveglia();
  void ScegliFile();
  FileDisegno FileMostrato() const;
  void EsportaFile();
  void StampaDisegno();
  void Riferisci(const Esito& esito);

  QString percorso_;
  QString anteprima_;
  QDateTime anteprimaLasciata_;  // as it was written when another drawing was opened
  QString mostrato_;  // the file of the drawing shown: another one where the last could not be read
  QString guasto_;    // what the last reading has found
  bool sorveglia_;
  bool daAdattare_ = true;
  int tentativi_ = 0;
  QFileSystemWatcher sorvegliante_;
  QTimer attesa_;  // until the next attempt to read a file that is being written
  Tela* tela_;
  QMenu* recenti_ = nullptr;
  QLabel* avviso_;
  QLabel* conferma_;
  QLabel* coordinate_;
  QLabel* conteggio_;
};

}  // namespace ostrel

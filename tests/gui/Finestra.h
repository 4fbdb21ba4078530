// The main window on a copy of the example installation, as tests drive it.
#pragma once

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QWidget>
#include <chrono>
#include <functional>
#include <memory>
#include <ostream>

#include "app/frmParvik.h"
#include "common/qtDialoghi.h"
#include "supporto/Cartelle.h"
#include "supporto/InterlocutoreScritto.h"

/// GoogleTest finds it where QString is.
inline void PrintTo(const QString& testo, std::ostream* uscita) {
  *uscita << '"' << testo.toStdString() << '"';
}

namespace parvik::prova {

/// A child by its objectName; fails the test when there is none.
template <class Controllo>
Controllo* Trova(const QObject& padre, const char* nome) {
  auto* trovato = padre.findChild<Controllo*>(nome);
  if (trovato == nullptr) qFatal("no control named %s", nome);
  return trovato;
}

/// Runs `compito` on the next modal dialog that opens. Must be called before what opens it.
void NelProssimoDialogo(const std::function<void(QDialog&)>& compito);

class Finestra {
 public:
  /// Installs a copy of the example with the print module, starts, and shows the window.
  Finestra() : Finestra(nullptr) {}
  /// The same, with the program's own boxes in the place of the scripted person.
  explicit Finestra(qtDialoghi& dialoghi) : Finestra(&dialoghi) { dialoghi.ImpostaPadre(finestra_.get()); }

  InterlocutoreScritto& Persona() { return persona_; }
  std::filesystem::path Cartella() const { return cartella_.Percorso() / "VELKOR"; }
  std::filesystem::path Modello(const char* nome) const { return Cartella() / "D_IMG" / nome; }

  /// Where the window looks for the print module: a link to the one that was built.
  std::filesystem::path ModuloStampa() const { return Cartella() / "PARVIK" / "parvik32-stampa.so"; }

  frmParvik& operator*() { return *finestra_; }
  frmParvik* operator->() { return finestra_.get(); }

  QAction& Azione(const char* nome) { return *Trova<QAction>(*finestra_, nome); }
  QPlainTextEdit& Sezione(int indice);
  ricAnte& Anteprima() { return *Trova<ricAnte>(*finestra_, "ricAnte"); }
  /// What the pane shows, its line ends as line feeds.
  QString TestoAnteprima();

  /// Chooses a document type through the menu and the dialog, by its number.
  void Scegli(int numero);
  /// The folder of the user's configuration files; nothing is in it at first.
  std::filesystem::path Configurazione() const { return cartella_.Percorso() / "conf"; }
  /// The settings file in it.
  std::filesystem::path Impostazioni() const { return Configurazione() / "ordavia" / "parvik32.ini"; }
  /// The folder of those for all users.
  std::filesystem::path ConfigurazioneDiTutti() const { return cartella_.Percorso() / "xdg"; }
  /// The user's folder for what programs keep, and that for what counts while they run.
  std::filesystem::path Stato() const { return cartella_.Percorso() / "stato"; }
  std::filesystem::path Esecuzione() const { return cartella_.Percorso() / "esecuzione"; }
  /// Between two copies of a template that is not saved, from the next window on.
  void ImpostaIntervallo(std::chrono::milliseconds intervallo) { intervallo_ = intervallo; }
  /// Closes the window, and opens another one with the same folders: the next session.
  void Riavvia() {
    RiavviaDopo([] {});
  }
  /// The same, and something is done while there is none.
  void RiavviaDopo(const std::function<void()>& intanto);

  /// The window goes; nothing else may be asked of this then.
  void Distruggi() { finestra_.reset(); }

  /// Opens a template of the installation through the menu.
  void Apri(const char* nome);

  /// Until nothing is left to do for what was done so far.
  static void Calma();

  /// What a window manager does when a dialog has closed.
  void Attiva();

 private:
  explicit Finestra(Interlocutore* altro);
  void Mostra();

  CartellaTemporanea cartella_;
  InterlocutoreScritto persona_;
  Interlocutore* interlocutore_ = nullptr;
  std::chrono::milliseconds intervallo_ = std::chrono::seconds(10);
  std::unique_ptr<frmParvik> finestra_;
};

}  // namespace parvik::prova

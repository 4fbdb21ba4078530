// A template that is not saved, kept against the program's sudden end, and those that earlier ends have left
// (docs/recupero.md).
#pragma once

#include <QMainWindow>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <filesystem>
#include <functional>
#include <vector>

#include "app/barNotizia.h"
#include "common/LavoroLasciato.h"
#include "common/qtFilo.h"
#include "editor/CopieRecupero.h"
#include "editor/Editore.h"
#include "editor/Recupero.h"

namespace parvik {

class qtRecupero final : public QObject {
  Q_OBJECT

 public:
  struct Dati {
    std::filesystem::path Stato;           // the user's folder for what programs keep; "" for none
    std::chrono::milliseconds Intervallo;  // between two copies
  };
  /// Puts a template that was left in the place of the one at hand; false when the user gave that up.
  using Ripristino = std::function<bool(const CopiaRecupero& copia)>;

  /// All must outlive it. `finestra` is the main window.
  qtRecupero(Editore& editore, QMainWindow& finestra, Dati dati, Ripristino ripristina);
  ~qtRecupero() override;

  /// The editor's state has changed.
  void Aggiorna();
  /// The template may have changed.
  void Segui();
  /// The program is about to end, and nobody wants what is not saved: nothing is left of it.
  void Finisci();

 private:
  struct Scrittura {
    bool Riuscita = false;
    std::size_t Prese = 0;  // how many of those that were taken over are in it
  };

  bool Ricorda() const { return editore_.Scelte()[Preferenza::Ricorda]; }
  void Scrivi();
  void Consegna(const Scrittura& scrittura);
  void Togli();
  void TogliPrese(std::size_t quante);

  void Cerca();
  void Trovate();
  void Mostra();
  void CreaBarra();
  void Ripristina();
  void Scarta();
  void Rimanda();

  Editore& editore_;
  QMainWindow& finestra_;
  Ripristino ripristina_;
  std::filesystem::path stato_;
  Recupero recupero_;
  CopiaPropria propria_;
  std::vector<CopiaTrovata> prese_;    // taken over; on the disk until one's own copy is
  std::vector<CopiaTrovata> trovate_;  // to be decided on, the first is shown
  bool cercate_ = false;
  bool finita_ = false;
  barNotizia* barra_ = nullptr;
  QTimer attesa_;
  LavoroLasciato<std::vector<CopiaTrovata>> ricerca_;
  qtFilo<Scrittura> filo_;  // last: it uses the others
};

}  // namespace parvik

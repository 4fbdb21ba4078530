// The editor with the program's own boxes and its signals, and what is done with it while its event loops
// run.
#pragma once

#include <QMessageBox>
#include <filesystem>
#include <functional>
#include <string>

#include "Finestra.h"
#include "Regia.h"
#include "app/qtSegnali.h"
#include "common/qtDialoghi.h"
#include "sistema/SegnaliFine.h"

namespace parvik::prova {

inline constexpr const char* Domanda = "File immagine";  // the title of the question
inline constexpr const char* NessunDialogo = "";

// To the dialog in front.

void Premi(QMessageBox::StandardButton pulsante);
void PremiTasto(Qt::Key tasto);
/// Types a path into the name field of a file dialog, and Enter.
void ScriviNome(const std::filesystem::path& file);

class Scena {
 public:
  /// `segnale` is the one that will be sent.
  explicit Scena(int segnale) : segnale_(segnale) {}

  Finestra& Editor() { return finestra_; }
  Regia& Passi() { return regia_; }
  std::filesystem::path Modello() const { return finestra_.Modello(nome_.c_str()); }

  // Before the steps.

  void ScegliTipo(int numero = 1) { finestra_.Scegli(numero); }
  void Apri(const char* nome);
  void Modifica();

  // Steps.

  /// When `davanti` (its objectName, or its title) is in front.
  void Quando(const char* davanti, std::function<void()> azione);
  void Comando(const char* nome);
  /// The same for a command that asks about a modified template first: the answer is No.
  void ComandoCheChiede(const char* nome);
  /// Sends the signal when `davanti` is in front, and then at once does `e`.
  void Segnale(
      const char* davanti, std::function<void()> e = [] {});
  /// The question that the signal brings in front of what was there. Before the answer the signal is sent
  /// once more, and changes nothing. Answered when `e` holds, too.
  void Chiesto(
      QMessageBox::StandardButton risposta, std::function<bool()> e = [] { return true; });
  /// The signal was taken, and the same dialog is in front.
  void NienteDiNuovo();
  /// Everything is as it was before the signal.
  void Tornata();
  /// Ends a program that goes on, with the status Fermata.
  void FermaTutto();
  static constexpr int Fermata = 99;

  int Esegui() { return regia_.Esegui(); }

  // What has become of it.

  bool TestoIntatto();
  bool FileIntatto() const;
  bool FileSalvato() const;

 private:
  void Manda();
  bool InAttesa() const;

  int segnale_;
  SegnaliFine segnali_;
  qtDialoghi dialoghi_;
  Finestra finestra_{dialoghi_};
  qtSegnali fine_{segnali_, EXIT_SUCCESS, [this] { return finestra_->PuoChiudere(); }};
  Regia regia_;
  std::string nome_;
  std::string prima_;
  bool modificata_ = false;
  const QWidget* sotto_ = nullptr;  // in front when the signal was sent
  int domande_ = 0;                 // open at that moment
};

}  // namespace parvik::prova

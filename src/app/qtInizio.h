// When the window shows what to do first, and what is in it.
#pragma once

#include <QObject>
#include <QWidget>
#include <cstddef>
#include <filesystem>
#include <vector>

#include "app/pnlInizio.h"
#include "app/qtRicordi.h"
#include "editor/Editore.h"

namespace parvik {

class qtInizio final : public QObject {
  Q_OBJECT

 public:
  /// All must outlive this. The panel covers `area`, a part of the main window.
  qtInizio(Editore& editore, qtRicordi& ricordi, QWidget& area, QObject* padre);

  /// Shows the panel while there is no document type. It is made when the window has been drawn for the
  /// first time: the window does not wait for it.
  void Aggiorna();

 signals:
  void TipoDaScegliere();
  /// A template and the slot of its type.
  void DaAprire(std::size_t tipo, const std::filesystem::path& file);

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  void Crea();
  void Elenca();

  Editore& editore_;
  qtRicordi& ricordi_;
  QWidget& area_;
  pnlInizio* pannello_ = nullptr;
  bool disegnata_ = false;  // the window, once
  std::vector<ModelloRecente> modelli_;
};

}  // namespace parvik

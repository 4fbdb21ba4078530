// The panel of what is wrong with the template, below the sections or at another edge (docs/verifica.md).
#pragma once

#include <QCheckBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeView>
#include <cstddef>
#include <optional>
#include <vector>

#include "app/qtElencoProblemi.h"
#include "output/Foglio.h"

namespace parvik {

class pnlProblemi final : public QDockWidget {
  Q_OBJECT

 public:
  /// `editore` must outlive this.
  pnlProblemi(const Editore& editore, QWidget* padre);

  /// Shows what the editor tells now.
  void Aggiorna();

  /// What is written in the page's boxes; where there is a sheet, what that holds.
  PaginaVerifica Pagina() const;
  /// The page of the sheet, which then fills the boxes.
  void MostraFoglio(const std::optional<PaginaFoglio>& foglio);

  /// Chooses the next one, or the one before, around the end; nullopt when there is none.
  std::optional<std::size_t> Passa(int passo);
  /// Those that are selected.
  std::vector<std::size_t> Scelti() const;

 signals:
  /// One was chosen: its place is asked for.
  void Chiesto(std::size_t quale);
  void DaCorreggere();
  void PaginaCambiata();
  /// The panel's own button has closed it.
  void Chiuso();

 protected:
  void closeEvent(QCloseEvent* evento) override;

 private:
  QLineEdit* CreaNumero(const char* nome);
  QWidget* CreaPiede();
  void AggiornaPulsante();

  const Editore& editore_;
  qtElencoProblemi* elenco_;
  QTreeView* lstProblemi_;
  QLabel* lblAvviso_;
  QPushButton* cmdCorreggi_;
  QLineEdit* txtColonne_;
  QLineEdit* txtRighePag_;
  QCheckBox* chkCornici_;
  std::optional<PaginaFoglio> foglio_;
};

}  // namespace parvik

// The bar of find and replace, at the window's lower edge (docs/ricerca.md).
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <QToolBar>
#include <QWidget>

#include "editor/Ricerca.h"

namespace parvik {

class barTrova final : public QToolBar {
  Q_OBJECT

 public:
  explicit barTrova(QWidget* padre);

  /// The focus goes to the box of what is looked for, all of it selected. `cercato` goes there first, where
  /// it is not empty.
  void Comincia(const QString& cercato);
  /// Shows what belongs to replacing, or hides it.
  void MostraSostituzione(bool mostra);
  void ImpostaAmbito(Ambito ambito);
  Ambito AmbitoScelto() const;

  QString Cercato() const { return txtCerca_->text(); }
  QString Sostituto() const { return txtSost_->text(); }
  /// All but the text.
  Criterio Opzioni() const;

  void MostraEsito(const QString& esito);
  /// Whether there is something to go to, and something to replace.
  void Abilita(bool trovabile, bool sostituibile);

 signals:
  /// What is looked for, how or where.
  void Cambiata();
  void DaTrovare(int passo);
  void DaSostituire();
  void TutteDaSostituire();
  void DaChiudere();

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  QWidget* CreaRicerca();
  QWidget* CreaOpzioni();
  QWidget* CreaSostituzione();
  QCheckBox* CreaOpzione(const char* nome, const char* didascalia);
  void Escludi(QCheckBox& accesa, QCheckBox& altra);
  void AggiornaInvito();

  QLineEdit* txtCerca_ = nullptr;
  QLineEdit* txtSost_ = nullptr;
  QCheckBox* chkMaiusc_ = nullptr;
  QCheckBox* chkParola_ = nullptr;
  QCheckBox* chkTesto_ = nullptr;
  QCheckBox* chkCodici_ = nullptr;
  QCheckBox* chkRegex_ = nullptr;
  QComboBox* cmbAmbito_ = nullptr;
  QPushButton* cmdSucc_ = nullptr;
  QPushButton* cmdPrec_ = nullptr;
  QPushButton* cmdSost_ = nullptr;
  QPushButton* cmdSostTutto_ = nullptr;
  QLabel* lblEsito_ = nullptr;
  QWidget* sostituzione_ = nullptr;
};

}  // namespace parvik

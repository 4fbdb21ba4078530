// What the window shows while there is no document type: what to do now (docs/menus.md).
#pragma once

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>
#include <QWidget>

namespace parvik {

class pnlInizio final : public QWidget {
  Q_OBJECT

 public:
  /// Covers its parent, whatever size that has.
  explicit pnlInizio(QWidget* padre);

  /// The recent templates, as they are shown; the list hides where there are none.
  void Elenca(const QStringList& modelli);
  void Ricorda(bool acceso);

 signals:
  void TipoDaScegliere();
  /// A template of the list, by its place in it.
  void DaAprire(int quale);
  /// The check box was clicked.
  void RicordaCommutato();

 protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

 private:
  QPushButton* cmdTipo_ = nullptr;
  QListWidget* lstRecenti_ = nullptr;
  QCheckBox* chkRicorda_ = nullptr;
};

}  // namespace parvik

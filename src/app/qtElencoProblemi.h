// What is wrong with the template, as rows of a list.
#pragma once

#include <QAbstractTableModel>

#include "editor/Editore.h"

namespace parvik {

/// Asks the editor, and keeps nothing.
class qtElencoProblemi final : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum Colonna { Grado, Dove, Riga, Testo, Quale };
  static constexpr int NumColonne = 5;

  /// The editor must outlive this.
  qtElencoProblemi(const Editore& editore, QObject* padre) : QAbstractTableModel(padre), editore_(editore) {}

  /// They are other ones.
  void Rinnova();

  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& dove, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

 private:
  const Editore& editore_;
  int righe_ = 0;
};

}  // namespace parvik

// What can be inserted into the active section, as a list in groups, with what is looked for in it.
#pragma once

#include <QAbstractItemModel>
#include <vector>

#include "editor/Editore.h"

namespace parvik {

/// Holds what the editor offered when it was last asked.
class qtElencoCampi final : public QAbstractItemModel {
  Q_OBJECT

 public:
  enum Colonna { Nome, Numero, Volte };
  static constexpr int NumColonne = 3;

  /// The editor must outlive this.
  qtElencoCampi(Editore& editore, QObject* padre) : QAbstractItemModel(padre), editore_(editore) {}

  /// Asks the editor; whether that made a difference. Nothing is offered without a document type.
  bool Rinnova();
  /// Only what answers to these words.
  void Filtra(const QString& cercato);
  bool Vuoto() const { return gruppi_.empty(); }

  /// nullptr of a heading, and of nothing.
  const VoceInseribile* VoceA(const QModelIndex& dove) const;
  /// The same entry, however often it is used now; none where it is no longer there.
  QModelIndex PostoDi(const VoceInseribile& voce) const;
  /// So many entries further down, or up, as far as there are; headings do not count. From nowhere it is the
  /// first one.
  QModelIndex Accanto(const QModelIndex& dove, int passi) const;

  QModelIndex index(int riga, int colonna, const QModelIndex& padre = {}) const override;
  QModelIndex parent(const QModelIndex& figlio) const override;
  int rowCount(const QModelIndex& padre = {}) const override;
  int columnCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& dove, int ruolo) const override;
  QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;
  Qt::ItemFlags flags(const QModelIndex& dove) const override;
  /// The code, as text.
  QMimeData* mimeData(const QModelIndexList& quali) const override;
  QStringList mimeTypes() const override { return {"text/plain"}; }
  Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

 private:
  void Rifiltra();
  QVariant DatiVoce(const VoceInseribile& voce, int colonna, int ruolo) const;

  Editore& editore_;
  QString cercato_;
  std::vector<VoceInseribile> voci_;
  std::vector<GruppoFiltrato> gruppi_;
};

}  // namespace parvik

#include "app/qtElencoProblemi.h"

#include <QString>
#include <array>

#include "common/ParoleComuni.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

constexpr std::array<const char*, qtElencoProblemi::NumColonne> Titoli = {"Livello", "Sezione", "Riga",
                                                                          "Testo", "Regola"};

QString NelleColonne(const Rilievo& rilievo, int colonna) {
  switch (colonna) {
    case qtElencoProblemi::Grado:
      return rilievo.Grado() == Livello::Errore ? "Errore" : "Avviso";
    case qtElencoProblemi::Dove:
      return rilievo.Dove ? QString::fromUtf8(TitoliSezioni[Indice(*rilievo.Dove)]) : QString();
    case qtElencoProblemi::Riga:
      return rilievo.Dove ? QString::number(rilievo.Riga) : QString();
    case qtElencoProblemi::Testo:
      return DaUtf8(rilievo.Testo);
    default:
      return DaUtf8(VoceDi(rilievo.Quale).Nome);
  }
}

}  // namespace

void qtElencoProblemi::Rinnova() {
  beginResetModel();
  righe_ = static_cast<int>(editore_.Trovati().Trovati().size());
  endResetModel();
}

int qtElencoProblemi::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : righe_;
}

int qtElencoProblemi::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : NumColonne;
}

QVariant qtElencoProblemi::data(const QModelIndex& dove, int ruolo) const {
  const bool testo = ruolo == Qt::DisplayRole || ruolo == Qt::ToolTipRole;
  if (!testo || dove.row() >= righe_) return {};
  return NelleColonne(editore_.Trovati().Trovati()[static_cast<std::size_t>(dove.row())], dove.column());
}

QVariant qtElencoProblemi::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (verso != Qt::Horizontal || ruolo != Qt::DisplayRole) return {};
  return Titoli[static_cast<std::size_t>(sezione)];
}

}  // namespace parvik

#include "app/qtElencoCampi.h"

#include <QFont>
#include <QMimeData>
#include <algorithm>
#include <array>

#include "common/ParoleComuni.h"
#include "common/qtTesto.h"

namespace parvik {
namespace {

/// In the words of a person who hears it.
QString UsiDetti(const VoceInseribile& voce) {
  if (voce.Volte() == 0) return {};
  return DaUtf8(Quanti(voce.Volte(), "volta", "volte")) + " nel modello";
}

}  // namespace

bool qtElencoCampi::Rinnova() {
  std::vector<VoceInseribile> voci;
  if (editore_.TipoScelto()) voci = editore_.VociDaInserire();
  if (voci == voci_) return false;
  beginResetModel();
  voci_ = std::move(voci);
  Rifiltra();
  endResetModel();
  return true;
}

void qtElencoCampi::Filtra(const QString& cercato) {
  beginResetModel();
  cercato_ = cercato;
  Rifiltra();
  endResetModel();
}

/// What the catalogue cannot hold is in no entry.
void qtElencoCampi::Rifiltra() {
  gruppi_.clear();
  if (SoloAnsi(cercato_) == cercato_) gruppi_ = parvik::Filtra(voci_, DaSchermo(cercato_));
}

const VoceInseribile* qtElencoCampi::VoceA(const QModelIndex& dove) const {
  if (!dove.isValid() || dove.internalId() == 0) return nullptr;
  return &voci_[gruppi_[dove.internalId() - 1].Voci[static_cast<std::size_t>(dove.row())]];
}

QModelIndex qtElencoCampi::PostoDi(const VoceInseribile& voce) const {
  for (std::size_t g = 0; g < gruppi_.size(); ++g) {
    if (gruppi_[g].Quale != voce.Gruppo) continue;
    const auto stessa = std::ranges::find_if(gruppi_[g].Voci, [&](std::size_t quale) {
      return voci_[quale].Codice == voce.Codice && voci_[quale].Descrizione == voce.Descrizione;
    });
    if (stessa != gruppi_[g].Voci.end())
      return createIndex(static_cast<int>(stessa - gruppi_[g].Voci.begin()), 0, g + 1);
  }
  return {};
}

/// A heading is the place in front of its first entry.
QModelIndex qtElencoCampi::Accanto(const QModelIndex& dove, int passi) const {
  int prima = 0;
  int ora = -1;
  int tutte = 0;
  for (std::size_t g = 0; g < gruppi_.size(); ++g) {
    const bool titolo = dove.isValid() && dove.internalId() == 0 && dove.row() == static_cast<int>(g);
    if (titolo) ora = tutte - (passi > 0 ? 1 : 0);
    if (dove.isValid() && dove.internalId() == g + 1) ora = tutte + dove.row();
    tutte += static_cast<int>(gruppi_[g].Voci.size());
  }
  if (tutte == 0) return {};
  int posto = dove.isValid() ? std::clamp(ora + passi, 0, tutte - 1) : 0;
  for (std::size_t g = 0; g < gruppi_.size(); ++g) {
    const int quante = static_cast<int>(gruppi_[g].Voci.size());
    if (posto < prima + quante) return createIndex(posto - prima, 0, g + 1);
    prima += quante;
  }
  return {};
}

QModelIndex qtElencoCampi::index(int riga, int colonna, const QModelIndex& padre) const {
  if (!hasIndex(riga, colonna, padre)) return {};
  return createIndex(riga, colonna, padre.isValid() ? static_cast<quintptr>(padre.row()) + 1 : 0);
}

QModelIndex qtElencoCampi::parent(const QModelIndex& figlio) const {
  if (!figlio.isValid() || figlio.internalId() == 0) return {};
  return createIndex(static_cast<int>(figlio.internalId()) - 1, 0, quintptr{0});
}

int qtElencoCampi::rowCount(const QModelIndex& padre) const {
  if (!padre.isValid()) return static_cast<int>(gruppi_.size());
  if (padre.internalId() != 0 || padre.column() != 0) return 0;
  return static_cast<int>(gruppi_[static_cast<std::size_t>(padre.row())].Voci.size());
}

int qtElencoCampi::columnCount(const QModelIndex& /*padre*/) const {
  return NumColonne;
}

QVariant qtElencoCampi::data(const QModelIndex& dove, int ruolo) const {
  if (const VoceInseribile* voce = VoceA(dove)) return DatiVoce(*voce, dove.column(), ruolo);
  if (!dove.isValid() || dove.column() != Nome) return {};
  if (ruolo == Qt::DisplayRole)
    return DaUtf8(TitoloGruppo(gruppi_[static_cast<std::size_t>(dove.row())].Quale));
  if (ruolo != Qt::FontRole) return {};
  QFont grassetto;
  grassetto.setBold(true);
  return grassetto;
}

/// Heard, not seen.
QVariant qtElencoCampi::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  constexpr std::array<const char*, NumColonne> Titoli = {"Campo", "Numero", "Volte nel modello"};
  if (verso != Qt::Horizontal || ruolo != Qt::DisplayRole) return {};
  return Titoli[static_cast<std::size_t>(sezione)];
}

QVariant qtElencoCampi::DatiVoce(const VoceInseribile& voce, int colonna, int ruolo) const {
  if (ruolo == Qt::ToolTipRole) return PerSuggerimento(DaUtf8(editore_.Detta(voce)));
  switch (colonna) {
    case Nome:
      if (ruolo == Qt::DisplayRole) return PerSchermo(voce.Descrizione);
      if (ruolo == Qt::AccessibleDescriptionRole) return UsiDetti(voce);
      return {};
    case Numero:
      if (ruolo == Qt::AccessibleTextRole && NumeroScritto(voce).empty()) return "senza numero";
      return ruolo == Qt::DisplayRole ? DaUtf8(NumeroScritto(voce)) : QVariant();
    default:
      if (ruolo == Qt::TextAlignmentRole) return QVariant(Qt::AlignRight | Qt::AlignVCenter);
      if (ruolo == Qt::AccessibleTextRole) return voce.Volte() == 0 ? "non nel modello" : UsiDetti(voce);
      if (ruolo != Qt::DisplayRole || voce.Volte() == 0) return {};
      return QStringLiteral("\u2022 %1").arg(voce.Volte());
  }
}

/// Headings cannot be chosen, but can be walked over, and heard.
Qt::ItemFlags qtElencoCampi::flags(const QModelIndex& dove) const {
  const VoceInseribile* voce = VoceA(dove);
  if (voce == nullptr) return dove.isValid() ? Qt::ItemIsEnabled : Qt::NoItemFlags;
  const Qt::ItemFlags consueti = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return voce->Nuova() ? consueti : consueti | Qt::ItemIsDragEnabled;
}

QMimeData* qtElencoCampi::mimeData(const QModelIndexList& quali) const {
  const VoceInseribile* voce = quali.isEmpty() ? nullptr : VoceA(quali.front());
  if (voce == nullptr) return nullptr;
  auto* dati = new QMimeData;  // the caller owns it
  dati->setText(PerSchermo(voce->Codice));
  return dati;
}

}  // namespace parvik

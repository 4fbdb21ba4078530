#include "app/qtRicordo.h"

#include <QSettings>
#include <algorithm>
#include <array>
#include <string>

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr std::array<const char*, NumPreferenze> Nomi = {  // in their order
    "Mostra/AnteprimaAutomatica",
    "Mostra/CampiAMisura",
    "Mostra/BarraStato",
    "Mostra/Righello",
    "Mostra/FlagVeri",
    "Ricorda"};
constexpr const char* Ingrandimento = "Testo/Ingrandimento";
constexpr const char* Posto = "Finestra/Posto";
constexpr const char* Massimizzata = "Finestra/Massimizzata";
constexpr const char* Modelli = "Recenti";
constexpr const char* File = "File";
constexpr const char* Tipo = "Tipo";

QString NomeDi(const fs::path& file) {
  return QString::fromStdString(file.string());
}

bool ESiLegge(const fs::path& file) {
  std::error_code errore;
  return !file.empty() && fs::is_regular_file(file, errore);
}

Recenti LeggiModelli(QSettings& da) {
  Recenti modelli;
  const int quanti = std::min(da.beginReadArray(Modelli), static_cast<int>(Recenti::Massimo));
  for (int i = 0; i < quanti; ++i) {
    da.setArrayIndex(i);
    const std::string file = da.value(File).toByteArray().toStdString();
    const int tipo = da.value(Tipo).toInt();
    if (fs::path(file).is_absolute() && tipo > 0) modelli.Accoda({.File = file, .Tipo = tipo});
  }
  da.endArray();
  return modelli;
}

void ScriviModelli(QSettings& in, const Recenti& modelli) {
  in.beginWriteArray(Modelli, static_cast<int>(modelli.Voci().size()));
  int i = 0;
  for (const ModelloRecente& modello : modelli.Voci()) {
    in.setArrayIndex(i++);
    in.setValue(File, QByteArray::fromStdString(modello.File.string()));
    in.setValue(Tipo, modello.Tipo);
  }
  in.endArray();
}

Ricordo LeggiDa(const fs::path& file) {
  QSettings da(NomeDi(file), QSettings::IniFormat);
  Ricordo ricordo;
  for (std::size_t i = 0; i < NumPreferenze; ++i) {
    const auto quale = static_cast<Preferenza>(i);
    ricordo.Scelte.Imposta(quale, da.value(Nomi[i], ricordo.Scelte[quale]).toBool());
  }
  ricordo.Ingrandimento = da.value(Ingrandimento).toInt();
  ricordo.Finestra = da.value(Posto).toRect();
  ricordo.Massimizzata = da.value(Massimizzata).toBool();
  ricordo.Modelli = LeggiModelli(da);
  return ricordo;
}

}  // namespace

qtRicordo::qtRicordo(const fs::path& utente, const std::vector<fs::path>& tutte) {
  const auto in = [](const fs::path& cartella) { return cartella / "ordavia" / "parvik32.ini"; };
  if (!utente.empty()) file_ = in(utente);
  for (const fs::path& cartella : tutte)
    if (cartella != utente) diTutti_.push_back(in(cartella));
}

std::optional<Ricordo> qtRicordo::Leggi() const {
  if (ESiLegge(file_)) {
    Ricordo ricordo = LeggiDa(file_);
    ricordo.Scelte.Imposta(Preferenza::Ricorda, true);  // it is there: it was wanted
    return ricordo;
  }
  const auto deciso = std::ranges::find_if(diTutti_, ESiLegge);
  if (deciso == diTutti_.end()) return std::nullopt;
  Ricordo ricordo = LeggiDa(*deciso);
  return ricordo.Scelte[Preferenza::Ricorda] ? std::optional(ricordo) : std::nullopt;
}

void qtRicordo::Scrivi(const Ricordo& ricordo) {
  if (file_.empty() || (scritto_ && !ESiLegge(file_))) return;
  QSettings in(NomeDi(file_), QSettings::IniFormat);
  in.clear();
  for (std::size_t i = 0; i < NumPreferenze; ++i)
    in.setValue(Nomi[i], ricordo.Scelte[static_cast<Preferenza>(i)]);
  in.setValue(Ingrandimento, ricordo.Ingrandimento);
  if (!ricordo.Finestra.isNull()) in.setValue(Posto, ricordo.Finestra);
  in.setValue(Massimizzata, ricordo.Massimizzata);
  ScriviModelli(in, ricordo.Modelli);
  in.sync();
  scritto_ = in.status() == QSettings::NoError;
}

void qtRicordo::Dimentica() {
  std::error_code errore;
  if (!file_.empty()) fs::remove(file_, errore);
  if (!file_.empty()) fs::remove(file_.parent_path(), errore);  // where nothing else is in it
  scritto_ = false;
}

}  // namespace parvik

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
    "Mostra/BarraStrumenti",
    "Mostra/BarraStato",
    "Mostra/Righello",
    "Mostra/FlagVeri",
    "Mostra/Problemi",
    "Mostra/PannelloCampi",
    "Ricorda"};
constexpr const char* Ingrandimento = "Testo/Ingrandimento";
constexpr const char* Posto = "Finestra/Posto";
constexpr const char* Massimizzata = "Finestra/Massimizzata";
constexpr const char* Pannelli = "Finestra/Pannelli";
constexpr const char* Modelli = "Recenti";
constexpr const char* File = "File";
constexpr const char* Tipo = "Tipo";
constexpr const char* GruppoFogli = "Fogli";
constexpr int FogliMassimi = 1000;  // in a file of the program's
constexpr const char* NomeCarta = "Carta";
constexpr std::array<const char*, NomiCarte.size()> NomiNelFile = {  // in their order
    "", "A4", "A5", "Modulo11", "Modulo12", "Personalizzata"};
constexpr std::array<const char*, NumMargini> NomiMargini = {  // in their order
    "MargineSinistro", "MargineDestro", "MargineAlto", "MargineBasso"};
constexpr int LunghezzaMassima = 1'000'000;  // beyond all that a sheet can have

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

/// Which sheet a type has; those that cannot be are left out.
Fogli LeggiFogli(QSettings& da) {
  Fogli fogli;
  const auto lunghezza = [&da](const char* nome) {
    return std::clamp(da.value(nome).toInt(), 0, LunghezzaMassima);
  };
  const int quanti = std::min(da.beginReadArray(GruppoFogli), FogliMassimi);
  for (int i = 0; i < quanti; ++i) {
    da.setArrayIndex(i);
    const auto carta = std::ranges::find(NomiNelFile, da.value(NomeCarta).toString().toStdString());
    if (carta == NomiNelFile.end()) continue;
    Foglio foglio = {.Quale = static_cast<Carta>(carta - NomiNelFile.begin()),
                     .Larghezza = lunghezza("Larghezza"),
                     .Altezza = lunghezza("Altezza"),
                     .LineePerPollice = lunghezza("Linee")};
    for (std::size_t m = 0; m < NumMargini; ++m) foglio.Margini[m] = lunghezza(NomiMargini[m]);
    if (!DifettoDi(foglio)) fogli.Imposta(da.value(Tipo).toInt(), foglio);
  }
  da.endArray();
  return fogli;
}

void ScriviFogli(QSettings& in, const Fogli& fogli) {
  in.beginWriteArray(GruppoFogli, static_cast<int>(fogli.Scelti().size()));
  int i = 0;
  for (const auto& [tipo, foglio] : fogli.Scelti()) {
    in.setArrayIndex(i++);
    in.setValue(Tipo, tipo);
    in.setValue(NomeCarta, NomiNelFile[static_cast<std::size_t>(foglio.Quale)]);
    in.setValue("Larghezza", foglio.Larghezza);
    in.setValue("Altezza", foglio.Altezza);
    in.setValue("Linee", foglio.LineePerPollice);
    for (std::size_t m = 0; m < NumMargini; ++m) in.setValue(NomiMargini[m], foglio.Margini[m]);
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
  ricordo.Pannelli = da.value(Pannelli).toByteArray();
  ricordo.Modelli = LeggiModelli(da);
  ricordo.Fogli = LeggiFogli(da);
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
  if (!ricordo.Pannelli.isEmpty()) in.setValue(Pannelli, ricordo.Pannelli);
  ScriviModelli(in, ricordo.Modelli);
  ScriviFogli(in, ricordo.Fogli);
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

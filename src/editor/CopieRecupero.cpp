#include "editor/CopieRecupero.h"

#include <algorithm>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "common/Impronta.h"
#include "common/TestoPercorso.h"
#include "sistema/LetturaFile.h"
#include "sistema/ScritturaSicura.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Prefisso = "recupero-";
constexpr std::string_view EstensioneCopia = ".copia";
constexpr std::string_view EstensioneSegno = ".vivo";  // locked as long as the owner lives
constexpr unsigned int CifreChiave = 16;
constexpr std::uintmax_t MassimaCopia = 512U << 20U;

fs::path CartellaIn(const fs::path& stato) {
  return stato.empty() ? fs::path() : stato / "ordavia";
}

std::string ChiaveNuova() {
  std::random_device caso;
  return Esadecimale(caso(), CifreChiave / 2) + Esadecimale(caso(), CifreChiave / 2);
}

std::string NomeDi(std::string_view chiave, std::string_view estensione) {
  return std::string(Prefisso).append(chiave).append(estensione);
}

/// Whose a file is, one's provisional files included.
std::optional<std::string> ChiaveDi(std::string_view nome) {
  if (nome.starts_with('.')) nome.remove_prefix(1);
  if (!nome.starts_with(Prefisso)) return std::nullopt;
  const std::string_view chiave = nome.substr(Prefisso.size(), CifreChiave);
  const bool sua = chiave.size() == CifreChiave &&
                   chiave.find_first_not_of("0123456789abcdef") == std::string_view::npos &&
                   nome.substr(Prefisso.size() + CifreChiave).starts_with('.');
  return sua ? std::optional(std::string(chiave)) : std::nullopt;
}

std::vector<fs::path> FileIn(const fs::path& cartella) {
  std::vector<fs::path> file;
  std::error_code errore;
  for (fs::directory_iterator voce(cartella, errore); !errore && voce != fs::directory_iterator();
       voce.increment(errore))
    file.push_back(voce->path());
  return file;
}

std::optional<CopiaRecupero> LeggiCopiaDa(const fs::path& file) {
  std::error_code errore;
  if (const auto dimensione = fs::file_size(file, errore); errore || dimensione > MassimaCopia)
    return std::nullopt;
  const Esito<std::string> byte = LeggiFile(file);
  return byte ? LeggiCopia(*byte) : std::nullopt;
}

void TogliFile(const fs::path& file) {
  std::error_code errore;
  fs::remove(file, errore);
}

}  // namespace

CopiaPropria::CopiaPropria(const fs::path& stato) : cartella_(CartellaIn(stato)) {}

/// The sign comes before the copy: nobody may take it for one that was left.
bool CopiaPropria::Scrivi(const CopiaRecupero& copia) {
  if (cartella_.empty()) return false;
  std::error_code errore;
  if (presenza_.Trovati() != Presenza::Altri::Nessuno) {
    fs::create_directories(cartella_.parent_path(), errore);
    const std::string chiave = ChiaveNuova();
    file_ = cartella_ / NomeDi(chiave, EstensioneCopia);
    presenza_ = Presenza(cartella_ / NomeDi(chiave, EstensioneSegno));
    if (presenza_.Trovati() != Presenza::Altri::Nessuno) {
      TogliFile(cartella_);  // unless something is in it
      return false;
    }
  }
  fs::path segno = file_;
  segno.replace_extension(EstensioneSegno);
  const bool scritta = static_cast<bool>(ScriviFileCome(segno, file_, ScriviCopia(copia)));
  scritta_ = scritta_ || scritta;
  return scritta;
}

void CopiaPropria::Togli() {
  if (presenza_.Trovati() != Presenza::Altri::Nessuno) return;
  TogliFile(file_);
  scritta_ = false;
  presenza_ = Presenza();
  TogliFile(cartella_);  // unless something is in it
}

void CopiaTrovata::Togli() {
  TogliFile(File);
  Custodia = Presenza();
  TogliFile(File.parent_path());
}

std::vector<CopiaTrovata> CercaCopie(const fs::path& stato) {
  const fs::path cartella = CartellaIn(stato);
  if (cartella.empty()) return {};
  const std::vector<fs::path> file = FileIn(cartella);
  std::set<std::string> chiavi;
  for (const fs::path& nome : file)
    if (const auto chiave = ChiaveDi(TestoPercorso(nome.filename()))) chiavi.insert(*chiave);
  std::vector<CopiaTrovata> trovate;
  for (const std::string& chiave : chiavi) {
    Presenza custodia(cartella / NomeDi(chiave, EstensioneSegno));
    if (custodia.Trovati() != Presenza::Altri::Nessuno) continue;
    for (const fs::path& nome : file)
      if (TestoPercorso(nome.filename()).starts_with('.' + NomeDi(chiave, EstensioneCopia))) TogliFile(nome);
    fs::path suo = cartella / NomeDi(chiave, EstensioneCopia);
    auto copia = LeggiCopiaDa(suo);
    if (!copia) continue;
    trovate.push_back({.File = std::move(suo), .Custodia = std::move(custodia), .Copia = std::move(*copia)});
  }
  std::ranges::stable_sort(trovate, std::ranges::greater(),
                           [](const CopiaTrovata& t) { return t.Copia.Quando; });
  return trovate;
}

}  // namespace parvik

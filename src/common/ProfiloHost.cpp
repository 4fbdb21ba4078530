#include "common/ProfiloHost.h"

#include <algorithm>
#include <optional>

#include "common/Percorsi.h"
#include "common/Ritagli.h"
#include "common/Windows1252.h"

namespace parvik {
namespace {

constexpr std::size_t MaxValore =
    199;  // the host's reader fills 200 bytes, the last one being the terminator
constexpr std::string_view SegnoUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view SegnoUtf16 = "\xFF\xFE";

std::string_view SenzaBianchi(std::string_view testo) {
  return Rifila(testo, " \t\v\f");
}

/// Here, unlike in catalogues and templates, CR, LF and CR LF end a line alike.
std::string_view TogliRiga(std::string_view& resto) {
  const std::size_t fine = std::min(resto.find_first_of("\r\n"), resto.size());
  const std::string_view riga = resto.substr(0, fine);
  resto.remove_prefix(std::min(fine + 1, resto.size()));
  return riga;
}

/// The name in a line "[name]", which ends at the last bracket; nullopt for any other line. Text after it
/// does not matter.
std::optional<std::string_view> NomeSezione(std::string_view riga) {
  if (!riga.starts_with('[')) return std::nullopt;
  const std::size_t chiusa = riga.rfind(']');
  if (chiusa == std::string_view::npos) return std::nullopt;
  return SenzaBianchi(riga.substr(1, chiusa - 1));
}

std::string_view SenzaApici(std::string_view valore) {
  if (valore.size() < 2) return valore;
  const char primo = valore.front();
  const bool coppia = (primo == '"' || primo == '\'') && valore.back() == primo;
  return coppia ? valore.substr(1, valore.size() - 2) : valore;
}

std::optional<std::string_view> ValoreDi(std::string_view riga, std::string_view chiave) {
  const std::size_t uguale = riga.find('=');
  if (riga.starts_with(';') || uguale == std::string_view::npos) return std::nullopt;
  if (!UgualiSenzaCaso(SenzaBianchi(riga.substr(0, uguale)), chiave)) return std::nullopt;
  const std::string_view valore = riga.substr(uguale + 1);
  // The reader hands on a text that ends with a NUL.
  return SenzaApici(SenzaBianchi(valore.substr(0, valore.find('\0'))));
}

std::string LeggiAnsi(std::string_view contenuto, std::string_view sezione, std::string_view chiave) {
  bool nellaSezione = false;
  while (!contenuto.empty()) {
    const std::string_view riga = SenzaBianchi(TogliRiga(contenuto));
    if (const auto nome = NomeSezione(riga)) {
      if (nellaSezione) break;  // only the first section of a name is searched
      nellaSezione = UgualiSenzaCaso(*nome, sezione);
    } else if (nellaSezione) {
      if (const auto valore = ValoreDi(riga, chiave)) return std::string(valore->substr(0, MaxValore));
    }
  }
  return {};
}

}  // namespace

std::string LeggiProfilo(std::string_view contenuto, std::string_view sezione, std::string_view chiave) {
  if (contenuto.starts_with(SegnoUtf16)) {
    return LeggiAnsi(AnsiDaUtf16(contenuto.substr(SegnoUtf16.size())), sezione, chiave);
  }
  if (contenuto.starts_with(SegnoUtf8)) contenuto.remove_prefix(SegnoUtf8.size());
  return LeggiAnsi(contenuto, sezione, chiave);
}

}  // namespace parvik

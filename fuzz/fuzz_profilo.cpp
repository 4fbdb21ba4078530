// The reader of the host's configuration file.
#include "Bersaglio.h"
#include "common/ProfiloHost.h"
#include "common/Windows1252.h"

namespace parvik::fuzz {
namespace {

constexpr std::size_t MassimoValore = 199;

void Prova(std::string_view sezione, std::string_view chiave, std::string_view contenuto) {
  const std::string valore = LeggiProfilo(contenuto, sezione, chiave);
  Esigi(valore.size() <= MassimoValore, "a value has at most 199 characters");
  Esigi(valore.find_first_of("\r\n") == std::string::npos, "a value is on one line");
  Esigi(valore.find('\0') == std::string::npos, "a NUL ends a value");
  const bool utf16 = contenuto.starts_with("\xFF\xFE");
  const std::string ansi = utf16 ? AnsiDaUtf16(contenuto.substr(2)) : std::string(contenuto);
  Esigi(ansi.find(valore) != std::string::npos, "a value is a part of the file");
  Esigi(!utf16 || ansi.starts_with("\xEF\xBB\xBF") || ansi.starts_with("\xFF\xFE") ||
            LeggiProfilo(ansi, sezione, chiave) == valore,
        "UTF-16 is read as what it is in Windows-1252");
  const std::string scritto = "\r\n[AMBIENTE]\r\nDir velkor=\"" + valore + "\"\r\n";
  Esigi(LeggiProfilo(scritto, "AMBIENTE", "Dir velkor") == valore, "a value in quotes is read as it is");
  Esigi(LeggiProfilo(scritto, "ambiente", "DIR VELKOR") == valore, "names have no case");
}

}  // namespace
}  // namespace parvik::fuzz

int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t dimensione) {
  parvik::fuzz::Ingresso ingresso(dati, dimensione);
  const std::string_view sezione = ingresso.Testo();
  const std::string_view chiave = ingresso.Testo();
  parvik::fuzz::Prova(sezione, chiave, ingresso.Resto());
  parvik::fuzz::Prova("AMBIENTE", "Dir velkor", ingresso.Resto());
  return 0;
}

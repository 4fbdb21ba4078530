#include "sistema/CopiaPrecedente.h"

#include "sistema/ScritturaSicura.h"
#include "sistema/windows/OperazioniFile.h"

namespace parvik {

namespace fs = std::filesystem;

fs::path NomePrecedente(const fs::path& file) {
  return NomeDerivato(L"", file, L"~");
}

EsitoPasso ConservaPrecedente(const fs::path& file, std::string_view contenuto) {
  const EsitoSistema<Maniglia> aperto = ApriFile(file, FILE_READ_ATTRIBUTES, Tutti, OPEN_EXISTING);
  if (!aperto) return ErroreDaWin(aperto.Errore());
  const EsitoSistema<StatoFile> stato = Stato(*aperto);
  if (!stato) return ErroreDaWin(stato.Errore());
  // The name as it was given, but where a link leads elsewhere.
  fs::path fine = file;
  if (const DWORD attributi = ::GetFileAttributesW(file.c_str());
      attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_REPARSE_POINT) != 0) {
    const EsitoSistema<fs::path> vero = NomeVero(*aperto);
    if (!vero) return ErroreDaWin(vero.Errore());
    fine = *vero;
  }
  const EsitoScrittura scritta = ScriviFileCome(fine, NomePrecedente(fine), contenuto);
  if (!scritta) return scritta.Errore();
  return {};
}

}  // namespace parvik

#include "sistema/ScritturaSicura.h"

#include <utility>

#include "common/SeBastaMemoria.h"
#include "sistema/windows/ScritturaAccanto.h"
#include "sistema/windows/ScritturaSulPosto.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

ErroreScrittura SenzaMemoria() {
  return {NumeroErrore::MemoriaEsaurita};
}

/// A device or a pipe: what is written is gone at once.
class Diretta final : public ScritturaSicura::Strada {
 public:
  explicit Diretta(Maniglia file) : file_(std::move(file)) {}
  EsitoPasso Scrivi(std::string_view byte) override { return PerUtente(ScriviTutto(file_.Valore(), byte)); }
  EsitoScrittura Conferma() override {
    if (const auto passo = Chiudi(file_); !passo) return ErroreDaWin(passo.Errore());
    return Scritto();
  }

 private:
  Maniglia file_;
};

EsitoStrada ApriDiretta(const fs::path& destinazione) {
  EsitoSistema<Maniglia> file = ApriFile(destinazione, GENERIC_WRITE, Tutti, OPEN_EXISTING);
  if (!file) return file.Errore();
  return EsitoStrada(std::make_unique<Diretta>(std::move(*file)));
}

/// Names of the system's devices; to open the end of a pipe only to look at it would use it up.
bool Dispositivo(const fs::path& destinazione) {
  return destinazione.native().starts_with(L"\\\\.\\");
}

/// A replacement would get past the mark of a file that may not be written to.
EsitoStrada ApriEsistente(const fs::path& destinazione, const StatoFile& stato) {
  if (stato.Cartella()) return DWORD{ERROR_DIRECTORY};
  if ((stato.Attributi & FILE_ATTRIBUTE_READONLY) != 0) return DWORD{ERROR_ACCESS_DENIED};
  const EsitoSistema<Maniglia> prova = ApriFile(destinazione, GENERIC_WRITE, Tutti, OPEN_EXISTING);
  if (!prova) return prova.Errore();
  if (stato.Nomi == 1) {
    EsitoStrada accanto = ScritturaAccanto::Apri({.Destinazione = destinazione, .Originale = destinazione});
    if (accanto || !NonPrendeFile(accanto.Errore())) return accanto;
  }
  return EsitoStrada(std::make_unique<ScritturaSulPosto>(destinazione));
}

/// The file that a link leads to is replaced, the link stays.
EsitoSistema<fs::path> FineDelCollegamento(const fs::path& destinazione, const Maniglia& aperto) {
  const DWORD attributi = ::GetFileAttributesW(destinazione.c_str());
  const bool collegamento =
      attributi != INVALID_FILE_ATTRIBUTES && (attributi & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  return collegamento ? NomeVero(aperto) : EsitoSistema<fs::path>(destinazione);
}

EsitoStrada ApriStrada(const fs::path& destinazione) {
  if (Dispositivo(destinazione)) return ApriDiretta(destinazione);
  const EsitoSistema<Maniglia> aperto = ApriFile(destinazione, FILE_READ_ATTRIBUTES, Tutti, OPEN_EXISTING);
  if (!aperto && aperto.Errore() == ERROR_FILE_NOT_FOUND)
    return ScritturaAccanto::Apri({.Destinazione = destinazione});
  if (!aperto) return aperto.Errore();
  if (!SuDisco(*aperto)) return ApriDiretta(destinazione);
  const EsitoSistema<StatoFile> stato = Stato(*aperto);
  if (!stato) return stato.Errore();
  const EsitoSistema<fs::path> fine = FineDelCollegamento(destinazione, *aperto);
  if (!fine) return fine.Errore();
  return ApriEsistente(*fine, *stato);
}

}  // namespace

ScritturaSicura::ScritturaSicura(std::unique_ptr<Strada> strada) : strada_(std::move(strada)) {}
ScritturaSicura::ScritturaSicura(ScritturaSicura&& altra) noexcept = default;
ScritturaSicura& ScritturaSicura::operator=(ScritturaSicura&& altra) noexcept = default;
ScritturaSicura::~ScritturaSicura() = default;

Esito<ScritturaSicura, ErroreScrittura> ScritturaSicura::Apri(const fs::path& destinazione) {
  const auto apri = [&destinazione]() -> Esito<ScritturaSicura, ErroreScrittura> {
    if (!destinazione.has_filename()) return ErroreScrittura{NumeroErrore::AccessoPercorsoFile};
    EsitoStrada strada = ApriStrada(destinazione);
    if (!strada) return ErroreDaWin(strada.Errore());
    return ScritturaSicura(std::move(*strada));
  };
  return SeBastaMemoria(apri, SenzaMemoria());
}

EsitoPasso ScritturaSicura::Scrivi(std::string_view byte) {
  return SeBastaMemoria([&] { return strada_->Scrivi(byte); }, SenzaMemoria());
}

EsitoScrittura ScritturaSicura::Conferma() {
  return SeBastaMemoria([&] { return strada_->Conferma(); }, SenzaMemoria());
}

EsitoScrittura ScriviFile(const fs::path& destinazione, std::string_view byte) {
  Esito<ScritturaSicura, ErroreScrittura> file = ScritturaSicura::Apri(destinazione);
  if (!file) return file.Errore();
  if (const EsitoPasso scritto = file->Scrivi(byte); !scritto) return scritto.Errore();
  return file->Conferma();
}

EsitoScrittura ScriviFileCome(const fs::path& modello, const fs::path& destinazione, std::string_view byte) {
  const auto scrivi = [&]() -> EsitoScrittura {
    const EsitoStrada strada = ScritturaAccanto::Apri({.Destinazione = destinazione, .Originale = modello});
    if (!strada) return ErroreDaWin(strada.Errore());
    if (const EsitoPasso scritto = (*strada)->Scrivi(byte); !scritto) return scritto.Errore();
    return (*strada)->Conferma();
  };
  return SeBastaMemoria(scrivi, SenzaMemoria());
}

}  // namespace parvik

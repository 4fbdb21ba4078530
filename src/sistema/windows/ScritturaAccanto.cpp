#include "sistema/windows/ScritturaAccanto.h"

#include "sistema/windows/CopiaDiRiserva.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

/// Scanners and indexers open a file for a moment whenever it was written to.
template <class Passo>
EsitoSistema<void> ConPazienza(const Passo& passo) {
  constexpr int MaxTentativi = 10;
  constexpr DWORD Pausa = 20;  // milliseconds
  for (int i = 1;; ++i) {
    const EsitoSistema<void> fatto = passo();
    if (fatto || !InUso(fatto.Errore()) || i == MaxTentativi) return fatto;
    ::Sleep(Pausa);
  }
}

/// The file is where it belongs, and what is known of it goes to the disk too. Somebody may keep it for
/// himself by now: its bytes are on the disk all the same.
EsitoSistema<void> SincronizzaNome(const fs::path& file) {
  const EsitoSistema<Maniglia> aperto = ApriFile(file, GENERIC_WRITE, Tutti, OPEN_EXISTING);
  if (!aperto) return {};
  return Sincronizza(*aperto);
}

}  // namespace

EsitoSistema<ScritturaAccanto::Aspetto> ScritturaAccanto::Guarda(const fs::path& destinazione) {
  const EsitoSistema<StatoFile> stato = Stato(destinazione);
  if (stato) return Aspetto(stato->Identita);
  if (stato.Errore() == ERROR_FILE_NOT_FOUND) return Aspetto();
  return stato.Errore();
}

EsitoStrada ScritturaAccanto::Apri(Meta meta) {
  const EsitoSistema<Aspetto> prima = Guarda(meta.Destinazione);
  if (!prima) return prima.Errore();
  EsitoSistema<SegnoDiLavoro> segno = SegnoDiLavoro::Prendi(meta.Destinazione);
  if (!segno) return segno.Errore();
  std::unique_ptr<ScritturaAccanto> strada(new ScritturaAccanto(std::move(meta), *prima, std::move(*segno)));
  if (const auto passo = strada->Crea(); !passo) return passo.Errore();
  return EsitoStrada(std::move(strada));
}

/// Rights come before the first byte, and before the file is one that nobody can open any more.
EsitoSistema<void> ScritturaAccanto::Crea() {
  const fs::path& destinazione = meta_.Destinazione;
  if (const auto tenuta = ConservaInterrotta(destinazione, destinazione); !tenuta) return tenuta.Errore();
  const fs::path nuovo = NomeNuovo(destinazione);
  EsitoSistema<Maniglia> file = ApriFile(nuovo, GENERIC_WRITE | DELETE, Tutti, CREATE_ALWAYS);
  if (!file) return file.Errore();
  if (!meta_.Originale.empty()) {
    if (const auto passo = CopiaDiritti(nuovo, meta_.Originale); !passo) {
      static_cast<void>(TogliAllaChiusura(*file, true));
      return passo;
    }
  }
  if (const auto passo = TogliAllaChiusura(*file, true); !passo) return passo;
  file_ = std::move(*file);
  return {};
}

EsitoPasso ScritturaAccanto::Scrivi(std::string_view byte) {
  return PerUtente(ScriviTutto(file_.Valore(), byte));
}

/// What ReplaceFile moved out of the way goes back when the new one could not take its place.
EsitoSistema<void> ScritturaAccanto::Sostituisci() const {
  const fs::path& destinazione = meta_.Destinazione;
  const fs::path vecchio = NomeVecchio(destinazione);
  const EsitoSistema<void> passo = ConPazienza([&]() -> EsitoSistema<void> {
    if (::ReplaceFileW(destinazione.c_str(), NomeNuovo(destinazione).c_str(), vecchio.c_str(), 0, nullptr,
                       nullptr) != FALSE)
      return {};
    const DWORD errore = ::GetLastError();
    static_cast<void>(Rinomina(vecchio, destinazione, false));
    return errore;
  });
  if (passo) static_cast<void>(Togli(vecchio));
  return passo;
}

EsitoSistema<void> ScritturaAccanto::PrendiIlNome() const {
  const fs::path& destinazione = meta_.Destinazione;
  if (prima_ && meta_.Originale == destinazione) return Sostituisci();
  const bool sostituisce = !meta_.Originale.empty();
  const EsitoSistema<void> passo =
      ConPazienza([&] { return Rinomina(NomeNuovo(destinazione), destinazione, sostituisce); });
  if (!passo && passo.Errore() == ERROR_ALREADY_EXISTS) return DWORD{ERROR_SHARING_VIOLATION};
  // A folder of that name is, to the system, a file that may not be replaced.
  if (const EsitoSistema<StatoFile> stato = Stato(destinazione); !passo && stato && stato->Cartella())
    return DWORD{ERROR_DIRECTORY};
  return passo;
}

EsitoSistema<void> ScritturaAccanto::Completa() {
  if (const auto passo = Sincronizza(file_); !passo) return passo;
  const EsitoSistema<Aspetto> adesso = Guarda(meta_.Destinazione);
  if (!adesso) return adesso.Errore();
  if (prima_ != *adesso) return DWORD{ERROR_SHARING_VIOLATION};
  if (const auto passo = TogliAllaChiusura(file_, false); !passo) return passo;
  EsitoSistema<void> passo = Chiudi(file_);
  if (passo) passo = PrendiIlNome();
  if (!passo) static_cast<void>(Togli(NomeNuovo(meta_.Destinazione)));
  return passo;
}

EsitoScrittura ScritturaAccanto::Conferma() {
  EsitoSistema<void> passo = Completa();
  if (passo) passo = SincronizzaNome(meta_.Destinazione);
  if (!passo) return ErroreDaWin(passo.Errore());
  return Scritto();
}

}  // namespace parvik

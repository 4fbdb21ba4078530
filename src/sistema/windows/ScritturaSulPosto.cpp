#include "sistema/windows/ScritturaSulPosto.h"

#include "common/TestoMostrabile.h"
#include "common/TestoPercorso.h"
#include "sistema/CartelleConfigurazione.h"
#include "sistema/LetturaFile.h"
#include "sistema/windows/CopiaDiRiserva.h"
#include "sistema/windows/SegnoDiLavoro.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

/// The old bytes are cut off last: their place on the disk is kept for putting them back.
EsitoSistema<void> ScriviSopra(const Maniglia& file, std::string_view byte) {
  if (::SetFilePointerEx(file.Valore(), LARGE_INTEGER{}, nullptr, FILE_BEGIN) == FALSE)
    return ::GetLastError();
  if (const auto passo = ScriviTutto(file.Valore(), byte); !passo) return passo;
  if (::SetEndOfFile(file.Valore()) == FALSE) return ::GetLastError();
  return Sincronizza(file);
}

/// The name stands for one file of the system, whichever way leads to it. The temporary folder is the user's.
EsitoSistema<fs::path> PostoTemporaneo(const fs::path& file) {
  const EsitoSistema<StatoFile> stato = Stato(file);
  if (!stato) return stato.Errore();
  const std::wstring numeri =
      std::to_wstring(stato->Identita.Dispositivo) + L"-" + std::to_wstring(stato->Identita.Numero) + L"-";
  return NomeDerivato(L"parvik32-" + numeri, CartellaEsecuzione() / file.filename(), L"");
}

}  // namespace

EsitoPasso ScritturaSulPosto::Scrivi(std::string_view byte) {
  nuovo_.append(byte);
  return {};
}

EsitoScrittura ScritturaSulPosto::Conferma() {
  const EsitoSistema<SegnoDiLavoro> accanto = SegnoDiLavoro::Prendi(destinazione_);
  if (accanto) return ConfermaIn(destinazione_);
  if (!NonPrendeFile(accanto.Errore())) return ErroreDaWin(accanto.Errore());
  const EsitoSistema<fs::path> posto = PostoTemporaneo(destinazione_);
  if (!posto) return ErroreDaWin(posto.Errore());
  const EsitoSistema<SegnoDiLavoro> altrove = SegnoDiLavoro::Prendi(*posto);
  if (!altrove) return ErroreDaWin(altrove.Errore());
  return ConfermaIn(*posto);
}

/// Others may read the file meanwhile, but not write to it.
EsitoScrittura ScritturaSulPosto::ConfermaIn(const fs::path& posto) const {
  const EsitoSistema<Maniglia> file =
      ApriFile(destinazione_, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ, OPEN_EXISTING);
  if (!file) return ErroreDaWin(file.Errore());
  const EsitoSistema<fs::path> interrotta = ConservaInterrotta(posto, destinazione_);
  if (!interrotta) return ErroreDaWin(interrotta.Errore());
  EsitoScrittura scritto = Ricopri(*file, posto);
  if (scritto && posto != destinazione_) scritto->CopiaTenuta = *interrotta;
  return scritto;
}

EsitoScrittura ScritturaSulPosto::Ricopri(const Maniglia& file, const fs::path& posto) const {
  const EsitoSistema<std::string> vecchio = LeggiTutto(file);
  if (!vecchio) return ErroreDaWin(vecchio.Errore());
  if (const auto passo = FaiCopia(posto, destinazione_, *vecchio); !passo) return ErroreDaWin(passo.Errore());
  const EsitoSistema<void> nuovo = ScriviSopra(file, nuovo_);
  if (!nuovo && !ScriviSopra(file, *vecchio)) {
    ErroreScrittura errore = ErroreDaWin(nuovo.Errore());
    errore.Nota = "Il file può essere rimasto a metà: il contenuto di prima è intero in " +
                  Mostrabile(TestoPercorso(NomeVecchio(posto)));
    return errore;
  }
  static_cast<void>(Togli(NomeVecchio(posto)));
  if (!nuovo) return ErroreDaWin(nuovo.Errore());
  return Scritto();
}

}  // namespace parvik

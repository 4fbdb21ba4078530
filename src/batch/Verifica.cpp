#include <optional>
#include <string>

#include "batch/Catalogo.h"
#include "batch/Comandi.h"
#include "batch/Correggi.h"
#include "batch/Messaggi.h"
#include "batch/Resoconto.h"
#include "batch/TipiInEsame.h"
#include "sistema/LetturaFile.h"

namespace parvik::batch {
namespace {

/// Several files, and what they come to.
class Giro {
 public:
  Giro(const Opzioni& opzioni, const CatalogoScelto& catalogo, const TipoDoc* tipo)
      : come_(opzioni.Rilievi),
        catalogo_(catalogo.Campi),
        tipi_(catalogo),
        tipo_(tipo),
        resoconto_(ResocontoPer(come_)) {}

  Uscita Esegui(const std::vector<std::filesystem::path>& file) {
    if (tipo_ != nullptr && tipi_.Per(*tipo_) == nullptr) return Uscita::NonFatto;
    if (!come_.Prova && !resoconto_->Inizia()) return Uscita::NonFatto;
    for (const std::filesystem::path& uno : file)
      if (!UnFile(uno)) return Uscita::NonFatto;
    return come_.Prova || resoconto_->Finisci() ? uscita_ : Uscita::NonFatto;
  }

 private:
  /// False when standard output takes no more.
  bool UnFile(const std::filesystem::path& file) {
    const std::optional<std::vector<Rilievo>> trovati = Esamina(file);
    if (!trovati) {
      uscita_ = Uscita::NonFatto;
      return true;
    }
    const std::vector<RilievoDetto> detti = Detti(*trovati);
    if (uscita_ == Uscita::Fatto) uscita_ = EsitoDi(detti, come_);
    return come_.Prova || resoconto_->File(file, detti);  // the changes are all that --prova shows
  }

  /// nullopt after a message.
  std::optional<std::vector<Rilievo>> Esamina(const std::filesystem::path& file) {
    const TipoDoc* tipo = tipo_;
    if (tipo == nullptr) {
      const std::vector<const TipoDoc*> tipi = tipi_.PerNome(file);
      if (tipi.size() != 1) return DiTipoIncerto(file, tipi);
      tipo = tipi.front();
    }
    Verificatore* verificatore = tipi_.Per(*tipo);
    if (verificatore == nullptr) return std::nullopt;
    if (Corregge()) {
      const auto corretto = CorreggiFile(file, *verificatore, catalogo_, come_);
      if (!corretto) return std::nullopt;
      return OSegnalato(file, verificatore->File(*corretto, come_.Opzioni));
    }
    PreparaImmagine prepara(FormatoDi(tipo->NumSezioni));
    Esito<ByteFile> byte = LeggiFile(file, [&prepara](std::span<char> finora) { prepara.Prosegui(finora); });
    if (!byte) return Segnalato(file, byte.Errore());
    return OSegnalato(file, verificatore->File(std::move(*byte), prepara, come_.Opzioni));
  }

  bool Corregge() const { return come_.Correggi || come_.Prova; }

  static std::optional<std::vector<Rilievo>> OSegnalato(const std::filesystem::path& file,
                                                        EsitoVerifica trovati) {
    if (!trovati) return Segnalato(file, trovati.Errore());
    return std::move(*trovati);
  }

  static std::nullopt_t Segnalato(const std::filesystem::path& file, NumeroErrore errore) {
    Segnala(file, errore);
    return std::nullopt;
  }

  std::optional<std::vector<Rilievo>> DiTipoIncerto(const std::filesystem::path& file,
                                                    const std::vector<const TipoDoc*>& tipi) const {
    if (const Esito<void> leggibile = ProvaLettura(file); !leggibile)
      return Segnalato(file, leggibile.Errore());
    if (!come_.Opzioni.Regole.Ha(Regola::TipoIncerto)) return std::vector<Rilievo>();
    return std::vector<Rilievo>{TipoIncerto(tipi)};
  }

  const ComeVerificare& come_;
  const Catalogo& catalogo_;
  TipiInEsame tipi_;
  const TipoDoc* tipo_;  // of all files; nullptr where each file's name tells it
  std::unique_ptr<Resoconto> resoconto_;
  Uscita uscita_ = Uscita::Fatto;
};

}  // namespace

Uscita Verifica(const Opzioni& opzioni) {
  if (opzioni.Rilievi.ElencoRegole) return StampaRegole(opzioni.Rilievi) ? Uscita::Fatto : Uscita::NonFatto;
  const auto catalogo = ApriCatalogo(opzioni);
  if (!catalogo) return Uscita::NonFatto;
  const TipoDoc* tipo = opzioni.TipoAuto ? nullptr : TrovaTipo(*catalogo, opzioni.Tipo);
  if (tipo == nullptr && !opzioni.TipoAuto) return Uscita::NonFatto;
  return Giro(opzioni, *catalogo, tipo).Esegui(opzioni.File);
}

}  // namespace parvik::batch

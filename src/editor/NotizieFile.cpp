#include "editor/NotizieFile.h"

#include "common/Impronta.h"
#include "common/TestoPercorso.h"

namespace parvik {
namespace {

constexpr unsigned int CifreNome = 16;

}  // namespace

std::string Parole(Notizia notizia) {
  switch (notizia) {
    case Notizia::Nessuna:
      break;
    case Notizia::GiaAperto:
      return "è già aperto in un'altra finestra";
    case Notizia::Cambiato:
      return "è stato cambiato da un altro programma";
    case Notizia::Sparito:
      return "non c'è più: è stato tolto o spostato";
  }
  return {};
}

/// What was told is of the bytes that the document came from then.
void NotizieFile::Aggiorna(bool inUso) {
  const std::optional<Provenienza>& origine = documento_.Stato().Origine;
  const bool ha = inUso && origine.has_value();
  const std::shared_ptr<const std::string> byte = ha ? origine->Byte : nullptr;
  if (byte == origine_) return;
  origine_ = byte;
  ultimo_.reset();
  detto_ = {};
  if (ora_ != Notizia::GiaAperto) ora_ = Notizia::Nessuna;
  const std::filesystem::path file = ha ? origine->File : std::filesystem::path();
  if (file == file_) return;
  file_ = file;
  SegnaAperto();
}

/// Whatever name leads to the file.
void NotizieFile::SegnaAperto() {
  aperto_ = Presenza();
  ora_ = Notizia::Nessuna;
  if (file_.empty() || esecuzione_.empty()) return;
  std::error_code errore;
  const std::filesystem::path vero = std::filesystem::canonical(file_, errore);
  if (errore) return;
  aperto_ =
      Presenza(esecuzione_ / "ordavia" / (Esadecimale(Impronta(TestoPercorso(vero)), CifreNome) + ".aperto"));
  if (aperto_.Trovati() == Presenza::Altri::Presenti) ora_ = Notizia::GiaAperto;
}

std::optional<LavoroSguardo> NotizieFile::DaGuardare() const {
  if (!origine_) return std::nullopt;
  return LavoroSguardo{.File = file_, .Origine = origine_, .Prima = ultimo_};
}

void NotizieFile::Consegna(const SguardoFile& sguardo) {
  const std::optional<Provenienza>& ora = documento_.Stato().Origine;
  if (!ora || ora->Byte != sguardo.Origine || origine_ != sguardo.Origine) return;
  if (sguardo.Trovato == FileTrovato::Ignoto) return;
  ultimo_ = sguardo;
  switch (sguardo.Trovato) {
    case FileTrovato::Suo:
      return Di({});
    case FileTrovato::Altro:
      return Di({.Quale = Notizia::Cambiato, .Contenuto = sguardo.Contenuto});
    case FileTrovato::Sparito:
      return Di({.Quale = Notizia::Sparito});
    case FileTrovato::Ignoto:
      return;
  }
}

/// Of what has come back as it was nothing is left to tell.
void NotizieFile::Di(const Detto& detto) {
  if (detto == detto_) return;
  detto_ = detto;
  ora_ = detto.Quale;
}

}  // namespace parvik

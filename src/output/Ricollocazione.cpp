#include "output/Ricollocazione.h"

#include <algorithm>

namespace parvik {
namespace {

/// How many lines in front are asked where they have gone.
constexpr std::size_t MassimeRighe = 200;

}  // namespace

std::optional<std::size_t> Ricollocazione::Certo(std::size_t byte) const {
  std::optional<PostoStampato> posto = prima_->Traccia.PostoDi(byte);
  if (!posto) return std::nullopt;
  const std::optional<Selezione> parte = porta_(posto->Da.Dove, posto->Da.Parte);
  if (!parte) return std::nullopt;
  posto->Da.Parte = *parte;
  return dopo_->Traccia.UscitoDi(*posto);
}

/// The line that has come of one, or of the nearest in front of it whose end is still there.
std::size_t Ricollocazione::Riga(const TestoAnteprima& prima, const TestoAnteprima& dopo,
                                 std::size_t riga) const {
  const std::size_t ultima = dopo.NumRighe() - 1;
  for (std::size_t sopra = 0; prima_ && sopra <= std::min(riga, MassimeRighe); ++sopra) {
    const auto fine = Certo(prima.TermineRiga(riga - sopra));
    if (fine) return std::min(dopo.RigaDi(*fine) + sopra, ultima);
  }
  return std::min(riga, ultima);
}

std::size_t Ricollocazione::operator()(const TestoAnteprima& prima, const TestoAnteprima& dopo,
                                       std::size_t byte) const {
  if (prima.Testo().empty()) return 0;
  if (prima_) {
    if (const auto certo = Certo(byte)) return *certo;
    if (!prima_->Traccia.OrigineDi(byte)) {
      const std::size_t dallaFine = prima.Testo().size() - std::min(byte, prima.Testo().size());
      return dopo.Testo().size() - std::min(dallaFine, dopo.Testo().size());
    }
  }
  const std::size_t riga = prima.RigaDi(byte);
  const std::size_t colonna = byte - prima.InizioRiga(riga);
  const std::size_t nuova = Riga(prima, dopo, riga);
  return std::min(dopo.InizioRiga(nuova) + colonna, dopo.TermineRiga(nuova));
}

}  // namespace parvik

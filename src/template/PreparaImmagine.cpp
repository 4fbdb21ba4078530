#include "template/PreparaImmagine.h"

#include <string_view>

#include "common/Delimitatori.h"
#include "template/CopiaRighe.h"

namespace parvik {

void PreparaImmagine::Prosegui(std::span<char> finora) {
  const std::string_view testo(finora.data(), finora.size());
  if (testo.size() < 2) return;
  // Of a CR that comes last it is not known whether a LF follows.
  const std::size_t nuovo = testo.substr(visti_, testo.size() - 1 - visti_).rfind('\r');
  const std::size_t inizio = visti_;
  visti_ = testo.size() - 1;
  if (nuovo == std::string_view::npos) return;
  const std::size_t fine = inizio + nuovo;
  Prepara(finora.first(fine + (testo.substr(fine).starts_with(FineRiga) ? FineRiga.size() : 1)));
}

void PreparaImmagine::Concludi(std::span<char> tutti) {
  Prepara(tutti);
}

/// All lines so far, those that are ready included.
void PreparaImmagine::Prepara(std::span<char> righe) {
  if (formato_ == Formato::TreSezioni && !marcatore_) {
    marcatore_ = TrovaMarcatore({righe.data(), righe.size()}, pronti_);
    if (marcatore_) {
      Rendi(righe.first(marcatore_->InizioRiga));
      pronti_ = marcatore_->FineRiga;
    }
  }
  Rendi(righe);
}

void PreparaImmagine::Rendi(std::span<char> righe) {
  if (!crSoli_) crSoli_ = !RendiRighe(righe.subspan(pronti_));
  pronti_ = righe.size();
}

}  // namespace parvik

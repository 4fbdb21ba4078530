// The document types that templates are checked as.
#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "batch/Catalogo.h"
#include "verifica/Verifica.h"

namespace parvik::batch {

/// Each type is loaded when it is first asked for.
class TipiInEsame {
 public:
  /// `catalogo` must outlive this.
  explicit TipiInEsame(const CatalogoScelto& catalogo) : catalogo_(catalogo) {}

  /// nullptr, the first time after a message, when its sections cannot be loaded whole.
  Verificatore* Per(const TipoDoc& tipo);

  /// The listed types whose pattern fits the name of a file.
  std::vector<const TipoDoc*> PerNome(const std::filesystem::path& file) const;

 private:
  const CatalogoScelto& catalogo_;
  std::map<std::int16_t, std::unique_ptr<Verificatore>> tipi_;  // by slot
};

/// The finding of a file whose name tells no type, or several.
Rilievo TipoIncerto(const std::vector<const TipoDoc*>& corrispondono);

}  // namespace parvik::batch

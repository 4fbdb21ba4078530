// The sections of the template being edited, as they stand in their editors.
#pragma once

#include <string>
#include <string_view>

#include "common/Sezione.h"

namespace parvik {

/// Texts are Windows-1252 bytes, lines separated by CR LF.
class Sezioni {
 public:
  Sezioni() = default;
  Sezioni(const Sezioni&) = delete;
  Sezioni& operator=(const Sezioni&) = delete;
  virtual ~Sezioni() = default;

  virtual std::string Testo(Sezione sezione) const = 0;

  /// Replaces the whole text. Not an edit of the user's: nothing becomes modified by it.
  virtual void ImpostaTesto(Sezione sezione, std::string_view testo) = 0;

  /// Appends CR LF where the last line lacks it; caret and undo history stay.
  virtual void CompletaUltimaRiga(Sezione sezione) = 0;
};

}  // namespace parvik

// What comes of writing a file, beyond success and the number of an error.
#pragma once

#include <filesystem>
#include <string>

#include "common/Esito.h"

namespace parvik {

/// Why a file was not written.
struct ErroreScrittura {
  NumeroErrore Numero;
  std::string Nota = {};  // UTF-8: a sentence that the number does not say; "" when there is none

  bool operator==(const ErroreScrittura&) const = default;
};

/// The message: the number's own and, on a line of its own (CR LF), the note.
std::string TestoErrore(const ErroreScrittura& errore);

/// The rights to a file that took another one's place, beside those to that one.
enum class Diritti { Conservati, Ridotti };

/// A file that was written, and what its user should know all the same.
struct Scritto {
  Diritti Accesso = Diritti::Conservati;
  /// Where the only whole content that an earlier, interrupted save had left was kept; "" for the place where
  /// previous contents always are, or when there was none.
  std::filesystem::path CopiaTenuta = {};
};

/// Sentences in UTF-8, separated by CR LF; "" when there is nothing to say.
std::string TestoAvviso(const Scritto& scritto);

using EsitoPasso = Esito<void, ErroreScrittura>;
using EsitoScrittura = Esito<Scritto, ErroreScrittura>;

}  // namespace parvik

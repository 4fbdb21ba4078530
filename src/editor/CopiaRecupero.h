// A template that was not saved, as it is kept against the program's sudden end: what is in such a copy, and
// its bytes (docs/recupero.md).
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "common/Sezione.h"
#include "template/Documento.h"

namespace parvik {

/// A file that a document came from, told by what it held.
struct ImprontaFile {
  std::filesystem::path File;
  std::uint64_t Dimensione = 0;
  std::uint64_t Impronta = 0;

  bool operator==(const ImprontaFile&) const = default;
};

ImprontaFile ImprontaDi(const Provenienza& origine);
/// The file as it is now, if that is still what it held.
std::optional<Provenienza> AncoraUguale(const ImprontaFile& origine);

struct CopiaRecupero {
  int Tipo = 0;             // the document type's number
  std::int64_t Quando = 0;  // seconds since 1970
  std::filesystem::path NomeFile = {};
  ImpostazioniCorpo Corpo = {};
  std::optional<ImprontaFile> Origine = {};
  TestiSezioni Testi = {};

  bool operator==(const CopiaRecupero&) const = default;
};

std::string ScriviCopia(const CopiaRecupero& copia);
/// nullopt for whatever ScriviCopia has not written whole.
std::optional<CopiaRecupero> LeggiCopia(std::string_view byte);

}  // namespace parvik

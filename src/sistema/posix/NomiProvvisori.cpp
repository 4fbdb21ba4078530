#include "sistema/posix/NomiProvvisori.h"

#include <algorithm>
#include <array>

#include "sistema/posix/OperazioniFile.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;

std::string_view Fine(Provvisorio genere) {
  return genere == Provvisorio::Nuovo ? ".nuovo~" : ".vecchio~";
}

constexpr std::array Generi = {Provvisorio::Nuovo, Provvisorio::Vecchio};

/// What stands before the writer: the same for both kinds, however long the file's name is.
std::string Inizio(std::string_view nome) {
  const std::string resto(1 + LunghezzaScrivente + Fine(Provvisorio::Vecchio).size(), '.');
  std::string intero = NomeDerivato(".", nome, resto);
  intero.resize(intero.size() - resto.size() + 1);
  return intero;
}

}  // namespace

fs::path NomeProvvisorio(const fs::path& file, const Scrivente& chi, Provvisorio genere) {
  return CartellaDi(file) / Inizio(file.filename().string()).append(Testo(chi)).append(Fine(genere));
}

NomiProvvisori::NomiProvvisori(const fs::path& file)
    : inizio_(Inizio(file.filename().string())), nome_(file.filename().string()) {}

std::optional<NomiProvvisori::Letto> NomiProvvisori::Leggi(std::string_view nome) const {
  for (const Provvisorio genere : Generi) {
    if (!nome.ends_with(Fine(genere))) continue;
    if (nome == NomeDerivato(".", nome_, Fine(genere))) return Letto{.Genere = genere, .Chi = {}};
    if (!nome.starts_with(inizio_)) continue;
    nome.remove_prefix(inizio_.size());
    nome = nome.substr(0, nome.size() - std::min(nome.size(), Fine(genere).size()));
    const std::optional<Scrivente> chi = LeggiScrivente(nome);
    return chi ? std::optional(Letto{.Genere = genere, .Chi = chi}) : std::nullopt;
  }
  return std::nullopt;
}

}  // namespace parvik

// Two programs that save one file at once: each is stopped before each of its calls while the other goes on.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <set>
#include <string>

#include "common/FileDiProva.h"
#include "guasti/Salvatore.h"
#include "sistema/ScritturaSicura.h"
#include "supporto/Cartelle.h"
#include "supporto/ConNome.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;
using Stato = Salvatore::Stato;

enum class File { UnNome, DueNomi, Nuovo };

struct Caso {
  const char* Nome;
  File Quale;
  int SenzaLucchetti;  // an errno
};
using prova::PrintTo;

class RivaliTest : public testing::TestWithParam<Caso> {
 protected:
  void Ricomincia() const {
    for (const std::string& nome : Nomi(Cartella.Percorso())) fs::remove(Cartella / nome);
    if (GetParam().Quale == File::Nuovo) return;
    Crea(Modello, Vecchio);
    if (GetParam().Quale == File::DueNomi) fs::create_hard_link(Modello, Cartella / "b.img");
  }
  PianoGuasti Piano(int fermata = 0) const {
    PianoGuasti piano{
        .Cartelle = {Cartella.Percorso()}, .Guasti = {}, .SenzaLucchetti = GetParam().SenzaLucchetti};
    if (fermata > 0) piano.Guasti = {{.Chiamata = fermata, .Quale = Guasto::Genere::Fermata}};
    return piano;
  }
  /// How many calls a save makes that nobody disturbs.
  int Chiamate() const {
    Ricomincia();
    const GuastiInCorso inCorso(Piano());
    EXPECT_TRUE(ScriviFile(Modello, Primo));
    return static_cast<int>(GuastiInCorso::Chiamate().size());
  }
  std::string Adesso() const { return fs::exists(Modello) ? Contenuto(Modello) : ""; }
  bool Intero(const std::string& byte) const { return byte == Vecchio || byte == Primo || byte == Secondo; }
  /// At every moment the file is whole or, while it is written over, a copy of what it held is.
  void AttendiIntero() const {
    if (Intero(Adesso())) return;
    EXPECT_EQ(GetParam().Quale, File::DueNomi) << Adesso();
    const Elenco nomi = Nomi(Cartella.Percorso());
    EXPECT_TRUE(std::ranges::any_of(nomi, [this](const std::string& nome) {
      return nome.ends_with(".vecchio~") && Intero(Contenuto(Cartella / nome));
    }));
  }
  Elenco Attesi(bool conFile) const {
    if (!conFile) return {};
    return GetParam().Quale == File::DueNomi ? Elenco{"a.img", "b.img"} : Elenco{"a.img"};
  }
  /// What two that were both left to end must have left.
  void AttendiEsito(Stato primo, Stato secondo) const {
    std::set<std::string> possibili;
    if (primo == Stato::Scritto) possibili.insert(Primo);
    if (secondo == Stato::Scritto) possibili.insert(Secondo);
    // Of two that write over a file without locks each may give way to the other.
    const bool entrambiCedono = GetParam().Quale == File::DueNomi && GetParam().SenzaLucchetti != 0;
    if (possibili.empty() && entrambiCedono) possibili.insert(Vecchio);
    EXPECT_TRUE(possibili.contains(Adesso())) << Adesso();
    for (const Stato stato : {primo, secondo}) EXPECT_TRUE(stato == Stato::Scritto || stato == Stato::InUso);
    EXPECT_EQ(Nomi(Cartella.Percorso()), Attesi(true));
  }

  CartellaTemporanea Cartella;
  const fs::path Modello = Cartella / "a.img";
  const std::string Vecchio = GetParam().Quale == File::Nuovo ? "" : std::string(1000, 'v');
  const std::string Primo = std::string(700, 'p');
  const std::string Secondo = std::string(900, 's');
};

/// More calls than any save makes that meets another one's file.
constexpr int ChiamateInPiu = 8;

TEST_P(RivaliTest, LeaveTheFileWholeAndTheLoserSaysThatItIsInUseWhereverBothAreHeldUp) {
  const int chiamate = Chiamate();
  ASSERT_GT(chiamate, 15);
  int inUso = 0;
  for (int i = 1; i <= chiamate; ++i) {
    for (int j = PrimaSeconda(i); j <= chiamate + ChiamateInPiu; j += UnaSu) {
      const testing::ScopedTrace dove(__FILE__, __LINE__, std::to_string(i) + ", " + std::to_string(j));
      Ricomincia();
      Salvatore primo(Modello, Primo, Piano(i));
      ASSERT_TRUE(primo.Fermo());
      Salvatore secondo(Modello, Secondo, Piano(j));
      const bool finito = !secondo.Fermo();
      AttendiIntero();
      primo.Prosegui();
      AttendiIntero();
      secondo.Prosegui();
      AttendiEsito(primo.Ora(), secondo.Ora());
      if (primo.Ora() == Stato::InUso || secondo.Ora() == Stato::InUso) ++inUso;
      if (HasFailure()) return;
      if (finito) break;  // the later stops would not come either
    }
  }
  EXPECT_GT(inUso, chiamate / UnaSu);
}

TEST_P(RivaliTest, LeaveNothingThatTheNextSaveDoesNotClearAwayWhenOneIsKilled) {
  const int chiamate = Chiamate();
  for (int i = 1; i <= chiamate; ++i) {
    for (int j = PrimaSeconda(i); j <= chiamate + ChiamateInPiu; j += UnaSu) {
      const testing::ScopedTrace dove(__FILE__, __LINE__, std::to_string(i) + ", " + std::to_string(j));
      Ricomincia();
      Salvatore primo(Modello, Primo, Piano(i));
      Salvatore secondo(Modello, Secondo, Piano(j));
      const bool finito = !secondo.Fermo();
      primo.Uccidi();
      AttendiIntero();
      secondo.Prosegui();
      AttendiIntero();
      EXPECT_TRUE(secondo.Ora() == Stato::Scritto || secondo.Ora() == Stato::InUso);
      const Salvatore seguente(Modello, Primo, Piano());
      EXPECT_EQ(seguente.Ora(), Stato::Scritto);
      EXPECT_EQ(Adesso(), Primo);
      Elenco nomi = Nomi(Cartella.Percorso());
      const bool tenuto = std::erase(nomi, "a.img~") > 0;
      EXPECT_TRUE(!tenuto || Intero(Contenuto(Cartella / "a.img~")));
      EXPECT_EQ(nomi, Attesi(true));
      if (HasFailure()) return;
      if (finito) break;
    }
  }
}

TEST_P(RivaliTest, DoNotKeepTheOtherOneFromSavingOnceTheyAreKilled) {
  const int chiamate = Chiamate();
  for (int i = 1; i <= chiamate; ++i) {
    for (int j = PrimaSeconda(i); j <= chiamate + ChiamateInPiu; j += UnaSu) {
      const testing::ScopedTrace dove(__FILE__, __LINE__, std::to_string(i) + ", " + std::to_string(j));
      Ricomincia();
      Salvatore primo(Modello, Primo, Piano(i));
      Salvatore secondo(Modello, Secondo, Piano(j));
      if (!secondo.Fermo()) break;
      secondo.Uccidi();
      const bool sostituito = Adesso() != Vecchio;
      primo.Prosegui();
      EXPECT_TRUE(primo.Ora() == Stato::Scritto || (sostituito && primo.Ora() == Stato::InUso));
      AttendiIntero();
      if (HasFailure()) return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Casi, RivaliTest,
                         testing::Values(Caso{"one_name", File::UnNome, 0},
                                         Caso{"one_name_without_locks", File::UnNome, ENOLCK},
                                         Caso{"new_file", File::Nuovo, 0},
                                         Caso{"new_file_without_locks", File::Nuovo, ENOTSUP},
                                         Caso{"two_names", File::DueNomi, 0},
                                         Caso{"two_names_without_locks", File::DueNomi, ENOSYS}),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

}  // namespace
}  // namespace parvik::prova

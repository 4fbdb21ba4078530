#include "sistema/posix/Scrivente.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <string>
#include <vector>

#include "sistema/posix/NomiProvvisori.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

/// A process of its own that waits to be killed.
class Figlio {
 public:
  Figlio() : numero_(::fork()) {
    if (numero_ == 0) {
      for (;;) ::pause();
    }
  }
  Figlio(const Figlio&) = delete;
  Figlio& operator=(const Figlio&) = delete;
  ~Figlio() { Seppellisci(); }

  void Uccidi() const {
    ::kill(numero_, SIGKILL);
    siginfo_t notizia = {};
    ::waitid(P_PID, static_cast<id_t>(numero_), &notizia, WEXITED | WNOWAIT);
  }
  void Seppellisci() {
    if (numero_ <= 0) return;
    ::kill(numero_, SIGKILL);
    ::waitpid(numero_, nullptr, 0);
    numero_ = 0;
  }
  pid_t Numero() const { return numero_; }

 private:
  pid_t numero_;
};

Scrivente Altro(pid_t processo) {
  Scrivente chi = Scrivente::Questo();
  chi.Processo = static_cast<std::uint32_t>(processo);
  chi.Nascita = 0;
  return chi;
}

TEST(Scrivente, IsReadBackFromItsText) {
  const Scrivente chi = Scrivente::Questo();
  EXPECT_EQ(Testo(chi).size(), LunghezzaScrivente);
  const std::optional<Scrivente> letto = LeggiScrivente(Testo(chi));
  ASSERT_TRUE(letto);
  EXPECT_EQ(letto->Inizio, chi.Inizio);
  EXPECT_EQ(letto->Sistema, chi.Sistema);
  EXPECT_EQ(letto->Processo, chi.Processo);
  EXPECT_EQ(letto->Nascita, chi.Nascita);
  EXPECT_NE(chi.Nascita, 0U);
}

TEST(Scrivente, IsInNoOtherText) {
  const std::string testo = Testo(Scrivente::Questo());
  EXPECT_FALSE(LeggiScrivente(testo + "0"));
  for (std::size_t i = 0; i < testo.size(); ++i) {
    EXPECT_FALSE(LeggiScrivente(testo.substr(0, i))) << i;
    for (const char c : {'G', ' ', '+', 'x'}) {
      std::string altro = testo;
      altro[i] = c;
      EXPECT_FALSE(LeggiScrivente(altro)) << altro;
    }
  }
}

TEST(Scrivente, ThatBeganLaterHasTheGreaterText) {
  const Scrivente primo = Scrivente::Questo();
  Scrivente secondo = Scrivente::Questo();
  EXPECT_LE(Testo(primo), Testo(secondo));
  secondo.Inizio = primo.Inizio + 1;
  secondo.Processo = 0;
  EXPECT_LT(Testo(primo), Testo(secondo));
}

TEST(VitaDi, KnowsWhoStillRuns) {
  EXPECT_EQ(VitaDi(Scrivente::Questo()), Vita::Vivo);
  Figlio figlio;
  const Scrivente chi = Altro(figlio.Numero());
  EXPECT_EQ(VitaDi(chi), Vita::Vivo);
  figlio.Uccidi();
  EXPECT_EQ(VitaDi(chi), Vita::Morto);  // though nobody has asked for its end yet
  figlio.Seppellisci();
  EXPECT_EQ(VitaDi(chi), Vita::Morto);
}

TEST(VitaDi, DoesNotTakeAnotherProcessOfTheSameNumberForTheWriter) {
  Scrivente chi = Scrivente::Questo();
  --chi.Nascita;
  EXPECT_EQ(VitaDi(chi), Vita::Morto);
}

TEST(VitaDi, KnowsNothingOfAnotherSystem) {
  Scrivente chi = Scrivente::Questo();
  ++chi.Sistema;
  EXPECT_EQ(VitaDi(chi), Vita::Ignota);
}

TEST(NomiProvvisori, AreReadBackWhateverTheLengthOfTheFilesName) {
  const Scrivente chi = Scrivente::Questo();
  for (const std::size_t lunghezza : {1U, 100U, 190U, 200U, 201U, 247U, 255U}) {
    const fs::path file = fs::path("cartella") / std::string(lunghezza, 'n');
    const NomiProvvisori nomi(file);
    for (const Provvisorio genere : {Provvisorio::Nuovo, Provvisorio::Vecchio}) {
      const fs::path nome = NomeProvvisorio(file, chi, genere);
      EXPECT_EQ(nome.parent_path(), "cartella");
      EXPECT_LE(nome.filename().string().size(), 255U);
      const auto letto = nomi.Leggi(nome.filename().string());
      ASSERT_TRUE(letto) << nome;
      EXPECT_EQ(letto->Genere, genere);
      ASSERT_TRUE(letto->Chi);
      EXPECT_EQ(Testo(*letto->Chi), Testo(chi));
    }
  }
}

TEST(NomiProvvisori, AreThoseOfOneFileOnly) {
  const NomiProvvisori nomi("a.img");
  const std::string chi = Testo(Scrivente::Questo());
  EXPECT_TRUE(nomi.Leggi(".a.img." + chi + ".nuovo~"));
  EXPECT_TRUE(nomi.Leggi(".a.img.vecchio~"));
  EXPECT_FALSE(nomi.Leggi(".a.img.vecchio~")->Chi);
  const std::vector<std::string> altri = {"a.img",
                                          "a.img~" + chi,
                                          ".b.img." + chi + ".nuovo~",
                                          ".a.img.x." + chi + ".nuovo~",
                                          ".a.img~." + chi + ".nuovo~",
                                          ".a.img." + chi + ".nuovo",
                                          ".a.img.nuovo~x",
                                          ".nuovo~",
                                          "",
                                          ".a.img." + chi.substr(1) + ".vecchio~"};
  for (const std::string& altro : altri) {
    EXPECT_FALSE(nomi.Leggi(altro)) << altro;
  }
}

}  // namespace
}  // namespace parvik::prova

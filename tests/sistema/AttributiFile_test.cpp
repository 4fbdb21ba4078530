#include "sistema/posix/AttributiFile.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <array>
#include <cerrno>
#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "sistema/ScritturaSicura.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr const char* Acl = "system.posix_acl_access";
constexpr const char* AclEreditabile = "system.posix_acl_default";
constexpr const char* Nota = "user.nota";

/// An access list as the system keeps it: owner rw, user 1234 with `utente`, group with `gruppo`, mask rw,
/// others none.
std::string ListaAccessi(char utente, char gruppo) {
  const auto voce = [](char genere, char diritti, const std::string& chi) {
    return std::string{genere, '\0', diritti, '\0'} + chi;
  };
  const std::string nessuno(4, '\xFF');
  return std::string("\x02\0\0\0", 4) + voce(0x01, 6, nessuno) +
         voce(0x02, utente, std::string("\xD2\x04\0\0", 4)) + voce(0x04, gruppo, nessuno) +
         voce(0x10, 6, nessuno) + voce(0x20, 0, nessuno);
}

/// False where the file system has no such attributes.
bool Imposta(const fs::path& file, const char* nome, const std::string& valore) {
  return ::setxattr(file.c_str(), nome, valore.data(), valore.size(), 0) == 0;
}

/// "-" when there is none.
std::string Attributo(const fs::path& file, const char* nome) {
  std::array<char, 1000> valore = {};
  const ssize_t lungo = ::getxattr(file.c_str(), nome, valore.data(), valore.size());
  return lungo < 0 ? "-" : std::string(valore.data(), static_cast<std::size_t>(lungo));
}

class AttributiFile : public testing::Test {
 protected:
  void SetUp() override { Crea(File, "vecchio"); }
  CartellaTemporanea Cartella;
  const fs::path File = Cartella / "a.img";
};

TEST_F(AttributiFile, OfAFileThatIsReplacedStay) {
  if (!Imposta(File, Nota, "mia")) GTEST_SKIP() << "no extended attributes here";
  const unsigned long prima = Inode(File);
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_NE(prima, Inode(File));
  EXPECT_EQ("mia", Attributo(File, Nota));
}

TEST_F(AttributiFile, KeepTheAccessListAndTheModeThatIsItsMask) {
  const std::string lista = ListaAccessi(4, 0);
  if (!Imposta(File, Acl, lista)) GTEST_SKIP() << "no access lists here";
  ASSERT_EQ(0660U, Modo(File));  // the group's place in the mode shows the mask
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ(lista, Attributo(File, Acl));
  EXPECT_EQ(0660U, Modo(File));
}

TEST_F(AttributiFile, TakeNoAccessListFromTheFolder) {
  ASSERT_EQ(0, ::chmod(File.c_str(), 0664));
  if (!Imposta(Cartella.Percorso(), AclEreditabile, ListaAccessi(6, 6)))
    GTEST_SKIP() << "no access lists here";
  Crea(Cartella / "altro", "");
  ASSERT_NE("-", Attributo(Cartella / "altro", Acl));
  EXPECT_TRUE(ScriviFile(File, "nuovo"));
  EXPECT_EQ("-", Attributo(File, Acl));
  EXPECT_EQ(0664U, Modo(File));
}

TEST_F(AttributiFile, LeaveANewFileTheAccessListOfItsFolder) {
  if (!Imposta(Cartella.Percorso(), AclEreditabile, ListaAccessi(6, 6)))
    GTEST_SKIP() << "no access lists here";
  EXPECT_TRUE(ScriviFile(Cartella / "nuovo.img", "nuovo"));
  EXPECT_EQ(ListaAccessi(6, 6), Attributo(Cartella / "nuovo.img", Acl));
}

struct Sostituito {
  unsigned int Modo = 0;
  Diritti Accesso = Diritti::Conservati;

  bool operator==(const Sostituito&) const = default;
};

void PrintTo(const Sostituito& sostituito, std::ostream* uscita) {
  *uscita << std::oct << sostituito.Modo << (sostituito.Accesso == Diritti::Ridotti ? " ridotti" : "");
}

/// Replaces a file of user 1234 and group 2345 as somebody who can give neither.
Sostituito SostituitoDaAltri(const CartellaTemporanea& cartella, mode_t modo) {
  const fs::path file = cartella / "a.img";
  EXPECT_EQ(0, ::chown(file.c_str(), 1234, 2345));
  EXPECT_EQ(0, ::chmod(file.c_str(), modo));
  fs::permissions(cartella.Percorso(), fs::perms{0777});
  const UtenteComune utente;
  const EsitoScrittura scritto = ScriviFile(file, "nuovo");
  EXPECT_TRUE(scritto);
  struct stat stato = {};
  EXPECT_EQ(0, ::stat(file.c_str(), &stato));
  EXPECT_NE(1234U, stato.st_uid);
  EXPECT_NE(2345U, stato.st_gid);
  if (!scritto) return {};
  return {.Modo = stato.st_mode & 07777U, .Accesso = scritto->Accesso};
}

TEST_F(AttributiFile, GiveAnotherGroupNothingThatOthersHadNot) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  EXPECT_EQ((Sostituito{0666}), SostituitoDaAltri(Cartella, 0666));
  EXPECT_EQ((Sostituito{0622, Diritti::Ridotti}), SostituitoDaAltri(Cartella, 0662));
  EXPECT_EQ((Sostituito{0622, Diritti::Ridotti}), SostituitoDaAltri(Cartella, 06766 & ~0144));
}

TEST_F(AttributiFile, GiveAnotherGroupNothingThatTheGroupHadNot) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  EXPECT_EQ((Sostituito{0644, Diritti::Ridotti}), SostituitoDaAltri(Cartella, 0646));
  EXPECT_EQ((Sostituito{0622, Diritti::Ridotti}), SostituitoDaAltri(Cartella, 0626));
  EXPECT_EQ((Sostituito{0600, Diritti::Ridotti}), SostituitoDaAltri(Cartella, 0606));
}

TEST_F(AttributiFile, SayNothingWhereTheyAllStay) {
  for (const unsigned int modo : {0600U, 0644U, 0664U, 0755U, 0666U}) {
    ASSERT_EQ(0, ::chmod(File.c_str(), modo));
    const EsitoScrittura scritto = ScriviFile(File, "nuovo");
    ASSERT_TRUE(scritto);
    EXPECT_EQ(Diritti::Conservati, scritto->Accesso) << modo;
  }
}

/// The owner counts as one of the group: colleagues who save each other's files are not told so each time.
TEST_F(AttributiFile, SayNothingOfAnOwnerWhoHasAsMuchByTheGroup) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  ASSERT_EQ(0, ::chown(File.c_str(), 1234, 65534));
  ASSERT_EQ(0, ::chmod(File.c_str(), 0664));
  fs::permissions(Cartella.Percorso(), fs::perms{0777});
  const UtenteComune utente;
  const EsitoScrittura scritto = ScriviFile(File, "nuovo");
  ASSERT_TRUE(scritto);
  EXPECT_EQ(0664U, Modo(File));
  EXPECT_EQ(Diritti::Conservati, scritto->Accesso);
}

TEST_F(AttributiFile, KeepRightsForTheOwnerAloneWhereTheAccessListCannotBeGiven) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give a file away";
  if (!Imposta(File, Acl, ListaAccessi(4, 0))) GTEST_SKIP() << "no access lists here";
  EXPECT_EQ((Sostituito{0600, Diritti::Ridotti}), SostituitoDaAltri(Cartella, 0666));
  EXPECT_EQ("-", Attributo(File, Acl));
}

}  // namespace
}  // namespace parvik::prova

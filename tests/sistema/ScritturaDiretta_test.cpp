// The safe writer where what is written is gone at once, and where only a descriptor leads.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>

#include "common/FileDiProva.h"
#include "sistema/ScritturaSicura.h"
#include "sistema/posix/Descrittore.h"
#include "supporto/Cartelle.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;
using Elenco = std::vector<std::string>;

/// What is written to a pipe, by a name of it.
std::string AttraversoPipe(const fs::path& nome, const Descrittore& lettore) {
  EXPECT_TRUE(ScriviFile(nome, "testo"));
  std::string letto(100, '\0');
  letto.resize(
      static_cast<std::size_t>(std::max<ssize_t>(0, ::read(lettore.Numero(), letto.data(), letto.size()))));
  return letto;
}

TEST(ScritturaDiretta, LeavesADeviceADevice) {
  EXPECT_TRUE(ScriviFile("/dev/null", "via"));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(ScritturaDiretta, HandsItsBytesToThePipeThatSomebodyReads) {
  const CartellaTemporanea cartella;
  const fs::path pipe = cartella / "pipe";
  ASSERT_EQ(0, ::mkfifo(pipe.c_str(), 0600));
  const Descrittore lettore(::open(pipe.c_str(), O_RDONLY | O_NONBLOCK));
  ASSERT_TRUE(lettore);
  EXPECT_EQ("testo", AttraversoPipe(pipe, lettore));
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(ScritturaDiretta, HandsItsBytesToAPipeThatOnlyADescriptorLeadsTo) {
  std::array<int, 2> capi = {-1, -1};
  ASSERT_EQ(0, ::pipe2(capi.data(), O_CLOEXEC | O_NONBLOCK));
  const Descrittore lettore(capi[0]);
  const Descrittore scrittore(capi[1]);
  const std::string numero = std::to_string(scrittore.Numero());
  const CartellaTemporanea cartella;
  fs::create_symlink("/dev/fd/" + numero, cartella / "link");
  for (const fs::path& nome :
       {fs::path("/dev/fd/" + numero), fs::path("/proc/self/fd/" + numero), cartella / "link"}) {
    EXPECT_EQ("testo", AttraversoPipe(nome, lettore)) << nome;
  }
  EXPECT_EQ(Elenco{"link"}, Nomi(cartella.Percorso()));
}

TEST(ScritturaDiretta, HandsItsBytesToANamedPipeThatALinkLeadsTo) {
  const CartellaTemporanea cartella;
  ASSERT_EQ(0, ::mkfifo((cartella / "pipe").c_str(), 0600));
  fs::create_symlink("pipe", cartella / "link");
  const Descrittore lettore(::open((cartella / "pipe").c_str(), O_RDONLY | O_NONBLOCK));
  ASSERT_TRUE(lettore);
  EXPECT_EQ("testo", AttraversoPipe(cartella / "link", lettore));
  EXPECT_TRUE(fs::is_symlink(cartella / "link"));
}

TEST(ScritturaDiretta, ReplacesTheFileThatADescriptorLeadsTo) {
  const CartellaTemporanea cartella;
  Crea(cartella / "a.txt", "vecchio");
  const Descrittore file(::open((cartella / "a.txt").c_str(), O_WRONLY | O_CLOEXEC));
  ASSERT_TRUE(file);
  const fs::path nome = "/dev/fd/" + std::to_string(file.Numero());
  EXPECT_TRUE(ScriviFile(nome, "nuovo"));
  EXPECT_EQ("nuovo", Contenuto(cartella / "a.txt"));
  fs::remove(cartella / "a.txt");
  EXPECT_FALSE(ScriviFile(nome, "nuovo"));  // it leads to a file without a name now: none is made up
  EXPECT_EQ(Elenco{}, Nomi(cartella.Percorso()));
}

}  // namespace
}  // namespace parvik::prova

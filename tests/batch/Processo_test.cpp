// What both programs find when they are started with less than they should, or with limits.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <thread>

#include "batch/Esecuzione.h"
#include "batch/Esempi.h"
#include "common/FileDiProva.h"

namespace parvik::prova {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view Pieno = "Si è verificato l'errore: 61 Disco pieno";

/// It draws a warning, and prints one line.
fs::path ModelloConAvviso(const HostDiProva& host) {
  return host.Modello("m.img", "t\r\n" + NelFile("C2;2;") + "\r\nc\r\n");
}

TEST(DescrittoriChiusi, KeepTheWarningsOutOfTheFileThatIsWritten) {
  const HostDiProva host;
  const fs::path uscita = host.Percorso() / "uscita.txt";
  const auto argomenti = host.Argomenti({"stampa", "--tipo", "1", ModelloConAvviso(host), "-o", uscita});
  EXPECT_EQ(Esegui(argomenti, {.ErroriChiusi = true}), (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(uscita), "t\r\nc\r\n");
  EXPECT_EQ(Esegui(argomenti, {.Uscita = UscitaStandard::Chiusa, .ErroriChiusi = true}),
            (Esecuzione{0, "", ""}));
  EXPECT_EQ(Contenuto(uscita), "t\r\nc\r\n");
}

TEST(UscitaSuDescrittore, IsWrittenToThePipeThatStandardOutputIs) {
  const HostDiProva host;
  const fs::path modello = host.Modello("m.img", "a\r\nb\r\n");
  for (const char* nome : {"/dev/stdout", "/dev/fd/1", "/proc/self/fd/1"}) {
    EXPECT_EQ(Esegui(host.Argomenti({"stampa", "--tipo", "2", modello, "-o", nome})),
              (Esecuzione{0, "a\r\nb\r\n", ""}))
        << nome;
    EXPECT_EQ(Esegui(host.Argomenti({"normalizza", "--tipo", "2", modello, "-o", nome})),
              (Esecuzione{0, "a\r\nb\r\n", ""}))
        << nome;
  }
}

TEST(LimiteLunghezzaFile, IsAFullDiskForTheBatchProgramAndLeavesNothingBehind) {
  const HostDiProva host;
  const fs::path cartella = host.Percorso() / "modelli";
  const std::string lungo = std::string(3000, 'x') + "\r\n";
  Crea(cartella / "a.img", lungo);
  Crea(cartella / "b.txt", "vecchio");
  const Avvio avvio = {.LunghezzaFile = 1000};
  EXPECT_EQ(Esegui(host.Argomenti({"normalizza", "--tipo", "2", cartella / "a.img"}), avvio),
            (Esecuzione{2, "", Detto(cartella / "a.img", Pieno)}));
  EXPECT_EQ(
      Esegui(host.Argomenti({"stampa", "--tipo", "2", cartella / "a.img", "-o", cartella / "b.txt"}), avvio),
      (Esecuzione{2, "", Detto(cartella / "b.txt", Pieno)}));
  EXPECT_EQ(Contenuto(cartella / "a.img"), lungo);
  EXPECT_EQ(Contenuto(cartella / "b.txt"), "vecchio");
  EXPECT_EQ(Nomi(cartella), (std::vector<std::string>{"a.img", "b.txt"}));
}

/// The editor with no standard descriptors and such a limit. It needs no display; it is killed in the end.
class EditoreNudo {
 public:
  EditoreNudo() : figlio_(::fork()) {
    if (figlio_ == 0) {
      for (const int numero : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) ::close(numero);
      ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
      ::execl(Programma.c_str(), Programma.c_str(), nullptr);
      ::_exit(127);
    }
  }
  EditoreNudo(const EditoreNudo&) = delete;
  EditoreNudo& operator=(const EditoreNudo&) = delete;
  ~EditoreNudo() {
    ::kill(figlio_, SIGKILL);
    ::waitpid(figlio_, nullptr, 0);
  }

  /// Whether that comes about within half a minute.
  template <class Condizione>
  static bool Attende(const Condizione& condizione) {
    const auto scadenza = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (!condizione()) {
      if (std::chrono::steady_clock::now() > scadenza) return false;
      std::this_thread::yield();
    }
    return true;
  }
  std::string Descrittore(int numero) const {
    std::error_code errore;
    return fs::read_symlink(Proc() / "fd" / std::to_string(numero), errore).string();
  }
  bool Ignora(int segnale) const {
    const std::string stato = Contenuto(Proc() / "status");
    const std::size_t dove = stato.find("SigIgn:");
    if (dove == std::string::npos) return false;
    const auto segnali = std::stoull(stato.substr(dove + 7), nullptr, 16);
    return (segnali >> static_cast<unsigned int>(segnale - 1) & 1U) != 0;
  }

 private:
  fs::path Proc() const { return "/proc/" + std::to_string(figlio_); }

  const fs::path Programma = Batch().parent_path() / "parvik32";
  pid_t figlio_;
};

TEST(EditoreNudo, HasItsStandardDescriptorsAndTakesALongFileForAFailedWrite) {
  const EditoreNudo editore;
  for (const int numero : {0, 1, 2}) {
    EXPECT_TRUE(EditoreNudo::Attende([&] { return editore.Descrittore(numero) == "/dev/null"; })) << numero;
  }
  EXPECT_TRUE(EditoreNudo::Attende([&] { return editore.Ignora(SIGXFSZ); }));
}

}  // namespace
}  // namespace parvik::prova

// File > Salva in the editor's window when the system calls of the save fail, and when the editor is killed.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QPlainTextEdit>
#include <QTest>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <string>
#include <vector>

#include "app/qtNotizie.h"
#include "common/ErroreRuntime.h"
#include "guasti/CasiGuasto.h"
#include "guasti/Guasti.h"
#include "gui/Finestra.h"
#include "sistema/posix/Errno.h"

namespace parvik::prova {
namespace {

using Chiamate = std::vector<std::string>;

class FinestraSalvaGuasti : public testing::Test {
 protected:
  FinestraSalvaGuasti() {
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    AttendiSguardo();
  }

  std::filesystem::path Modello() const { return finestra_.Modello("FATT01.IMG"); }

  /// A letter at the beginning of the Testata: the file that a save makes begins with it.
  void Scrivi() {
    vecchio_ = Contenuto(Modello());
    finestra_.Sezione(0).moveCursor(QTextCursor::Start);
    QTest::keyClick(&finestra_.Sezione(0), Qt::Key_X);
    nuovo_ = "x" + vecchio_;
  }

  /// Ctrl+S under the faults; the calls that were made.
  Chiamate Salva(const std::vector<Guasto>& guasti) {
    finestra_.Persona().Messaggi.clear();
    const GuastiInCorso inCorso({.Cartelle = {Modello().parent_path()}, .Guasti = guasti});
    QTest::keyClick(&finestra_.Sezione(0), Qt::Key_S, Qt::ControlModifier);
    return GuastiInCorso::Chiamate();
  }

  /// How many calls a save makes.
  int Conta() {
    Scrivi();
    const auto chiamate = static_cast<int>(Salva({}).size());
    AttendiSalvato();
    return chiamate;
  }

  /// The window has nothing to save: it closes without a question.
  void AttendiSalvato() {
    EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
    EXPECT_TRUE(Contenuto(Modello()) == nuovo_);
    EXPECT_TRUE(finestra_->close());
    EXPECT_TRUE(finestra_.Persona().Messaggi.empty());
    finestra_->show();
    finestra_.Attiva();
    AttendiSguardo();
  }

  /// The look at the file that the window takes when it is activated makes calls of its own.
  void AttendiSguardo() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return !finestra_->findChild<qtNotizie*>()->AlLavoro(); }));
  }

  /// The one thing said was that the file has less than its rights; it is forgotten then.
  bool SoloAvvisato() {
    std::vector<Messaggio>& messaggi = finestra_.Persona().Messaggi;
    if (messaggi.size() != 1 || messaggi[0].Simbolo != Icona::Esclamazione) return false;
    EXPECT_EQ(messaggi[0].Testo, "Il file è salvato, ma con diritti di accesso più ristretti di prima");
    EXPECT_EQ(messaggi[0].Tasti, Pulsanti::Ok);
    EXPECT_EQ(messaggi[0].Titolo, "Ordavia");
    messaggi.clear();
    return true;
  }

  /// The error was told, once; the disk has the old template or the new one; the window still has something
  /// to save.
  void AttendiFallito(int errore) {
    std::vector<Messaggio>& messaggi = finestra_.Persona().Messaggi;
    ASSERT_EQ(messaggi.size(), 1U);
    EXPECT_EQ(messaggi[0].Testo, TestoErrore(DaErrno(errore)));
    EXPECT_EQ(messaggi[0].Simbolo, Icona::Critica);
    EXPECT_EQ(messaggi[0].Tasti, Pulsanti::Ok);
    EXPECT_EQ(messaggi[0].Titolo, "Ordavia");
    AttendiIntero();
    finestra_.Persona().Rispondera(Risposta::Annulla);
    EXPECT_FALSE(finestra_->close());
    ASSERT_EQ(messaggi.size(), 2U);
    EXPECT_EQ(messaggi[1].Testo, "Il file è stato modificato, vuoi salvare?");
  }

  void AttendiIntero() const {
    const std::string byte = Contenuto(Modello());
    EXPECT_TRUE(byte == vecchio_ || byte == nuovo_) << "neither the old template nor the new one";
  }

  /// All is well again: the next save leaves the new template, and nothing else that was not there.
  void AttendiSalvataggioSeguente() {
    Salva({});
    AttendiSalvato();
    EXPECT_EQ(Nomi(), nomi_);
  }

  std::vector<std::string> Nomi() const {
    std::vector<std::string> nomi;
    for (const auto& voce : std::filesystem::directory_iterator(Modello().parent_path()))
      nomi.push_back(voce.path().filename());
    std::ranges::sort(nomi);
    return nomi;
  }

  Finestra finestra_;
  const std::vector<std::string> nomi_ = Nomi();
  std::string vecchio_;
  std::string nuovo_;
};

class FinestraSalvaSottoGuasto : public FinestraSalvaGuasti,
                                 public testing::WithParamInterface<CasoGuasto> {};

TEST_P(FinestraSalvaSottoGuasto, TellsTheErrorOnceAndStaysModifiedWhicheverCallFails) {
  const CasoGuasto caso = GetParam();
  const int chiamate = Conta();
  ASSERT_GT(chiamate, 20);
  int falliti = 0;
  for (int i = 1; i <= chiamate; ++i) {
    Scrivi();
    finestra_.Persona().RisponderaSeChiesto(Risposta::Ok);
    const Chiamate fatte = Salva({{.Chiamata = i, .Errore = caso.Errore, .PerSempre = caso.PerSempre}});
    ASSERT_GE(fatte.size(), static_cast<std::size_t>(i));
    const testing::ScopedTrace dove(__FILE__, __LINE__, fatte[static_cast<std::size_t>(i) - 1]);
    EXPECT_TRUE(fatte[static_cast<std::size_t>(i) - 1].ends_with(" !"));
    if (finestra_.Persona().Messaggi.empty() || SoloAvvisato()) {
      AttendiSalvato();
    } else {
      ++falliti;
      AttendiFallito(caso.Errore);
      AttendiSalvataggioSeguente();
    }
    if (HasFailure()) return;
  }
  if (caso.Errore == EINTR && !caso.PerSempre) {
    EXPECT_EQ(falliti, 0);  // each call is made again
  } else {
    EXPECT_GT(falliti, 8);
  }
}

INSTANTIATE_TEST_SUITE_P(Casi, FinestraSalvaSottoGuasto, testing::ValuesIn(CasiGuasto), NomeCaso);

TEST_F(FinestraSalvaGuasti, LeavesAWholeTemplateWhereverTheEditorIsKilled) {
  const int chiamate = Conta();
  ASSERT_GT(chiamate, 20);
  for (int i = 1; i <= chiamate; ++i) {
    const testing::ScopedTrace dove(__FILE__, __LINE__, i);
    Scrivi();
    const pid_t figlio = ::fork();  // an editor of the same state, to be killed
    ASSERT_GE(figlio, 0);
    if (figlio == 0) {
      Salva({{.Chiamata = i, .Quale = Guasto::Genere::Uccisione}});
      ::_exit(0);  // not killed: the parent sees it
    }
    int stato = 0;
    ASSERT_EQ(::waitpid(figlio, &stato, 0), figlio);
    EXPECT_TRUE(WIFSIGNALED(stato) && WTERMSIG(stato) == SIGKILL) << stato;
    AttendiIntero();
    // This editor knows nothing of it: what it finds on the disk it keeps, as of anyone's.
    Salva({});
    AttendiSalvato();
    std::filesystem::remove(Modello().string() + "~");
    EXPECT_EQ(Nomi(), nomi_);
    if (HasFailure()) return;
  }
}

TEST_F(FinestraSalvaGuasti, IsNotHeldUpByAShareThatHangsWhenTheFileIsLookedAt) {
  const GuastiInCorso inCorso(
      {.Cartelle = {Modello().parent_path()}, .Guasti = {{.Chiamata = 1, .Quale = Guasto::Genere::Attesa}}});
  for (int i = 0; i < 2; ++i) {
    QEvent attivata(QEvent::WindowActivate);
    QApplication::sendEvent(&*finestra_, &attivata);
  }
  EXPECT_TRUE(QTest::qWaitFor([] { return !GuastiInCorso::Chiamate().empty(); }));
  QTest::keyClicks(&finestra_.Sezione(0), "xyz");
  EXPECT_TRUE(finestra_.Sezione(0).toPlainText().contains("xyz"));
  EXPECT_EQ(GuastiInCorso::Chiamate(), Chiamate{"stat FATT01.IMG !"})
      << "a look that hangs is not taken twice";
  EXPECT_TRUE(finestra_->findChild<qtNotizie*>()->AlLavoro());
  finestra_.Persona().Rispondera(Risposta::No);
  EXPECT_TRUE(finestra_->close());
  finestra_.Distruggi();
}

}  // namespace
}  // namespace parvik::prova

// File > Salva when the system calls of the save fail.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <string>

#include "common/EsitoScrittura.h"
#include "guasti/CasiGuasto.h"
#include "guasti/Guasti.h"
#include "sistema/posix/Errno.h"
#include "template/BancoComandi.h"

namespace parvik::prova {
namespace {

using Elenco = std::vector<std::string>;

class ComandoSalvaGuasti : public BancoComandi {
 protected:
  /// A template that was opened, and changed since.
  void Prepara() {
    Crea(dirImg_ / "A.IMG", Vecchio);
    std::filesystem::permissions(dirImg_ / "A.IMG", std::filesystem::perms{0644});
    interlocutore_.Scegliera(dirImg_ / "A.IMG");
    comandi_.Apri(tre_);
    Imposta({"nuova\r\n", "c\r\n", "p\r\n"});
    documento_.Stato().Modificato = true;
    interlocutore_.Messaggi.clear();
  }
  /// Saves under the faults; the calls that were made.
  Elenco Salva(const std::vector<Guasto>& guasti) {
    const GuastiInCorso inCorso({.Cartelle = {dirImg_.Percorso()}, .Guasti = guasti});
    comandi_.Salva(tre_);
    return GuastiInCorso::Chiamate();
  }
  /// A save that could give the file less than its rights says so, and is done.
  bool SoloAvvisato() const {
    return interlocutore_.Messaggi.size() == 1 && interlocutore_.Messaggi[0].Simbolo == Icona::Esclamazione &&
           interlocutore_.Messaggi[0].Testo == TestoAvviso({.Accesso = Diritti::Ridotti});
  }
  /// What a save that reports an error, and one that reports none, must have left.
  void AttendiEsito(bool fallito, NumeroErrore numero) {
    const std::string byte = Contenuto(dirImg_ / "A.IMG");
    EXPECT_EQ(fallito, documento_.Stato().Modificato);
    if (fallito) {
      AttendiMessaggi({Errore(numero)});
      EXPECT_TRUE(byte == Vecchio || byte == Nuovo) << byte;
    } else {
      if (!SoloAvvisato()) AttendiMessaggi({});
      EXPECT_EQ(Nuovo, byte);
    }
    EXPECT_EQ((TestiSezioni{"nuova\r\n", "c\r\n", "p\r\n"}), TestiOra());
    EXPECT_EQ(dirImg_ / "A.IMG", documento_.Stato().NomeFile);
  }
  /// The template is there to be saved when all is well again.
  void AttendiSalvataggioSeguente() {
    interlocutore_.Messaggi.clear();
    comandi_.Salva(tre_);
    AttendiMessaggi({});
    EXPECT_EQ(Nuovo, Contenuto(dirImg_ / "A.IMG"));
    EXPECT_FALSE(documento_.Stato().Modificato);
    EXPECT_EQ(Elenco{"A.IMG"}, Nomi(dirImg_.Percorso()));
  }

  const std::string Vecchio = "t\r\n" + Marcatore("7;1;CS") + "c\r\np\r\n";
  const std::string Nuovo = "nuova\r\n" + Marcatore("7;1;CS") + "c\r\np\r\n";
};

class ComandoSalvaSottoGuasto : public ComandoSalvaGuasti, public testing::WithParamInterface<CasoGuasto> {};

TEST_P(ComandoSalvaSottoGuasto, TellsTheErrorOnceAndStaysModifiedWhicheverCallFails) {
  Prepara();
  const int chiamate = static_cast<int>(Salva({}).size());
  ASSERT_GT(chiamate, 20);
  int falliti = 0;
  int avvisati = 0;
  for (int i = 1; i <= chiamate; ++i) {
    Prepara();
    const Guasto guasto = {.Chiamata = i, .Errore = GetParam().Errore, .PerSempre = GetParam().PerSempre};
    interlocutore_.RisponderaSeChiesto(Risposta::Ok);
    const Elenco fatte = Salva({guasto});
    const testing::ScopedTrace dove(__FILE__, __LINE__, fatte[static_cast<std::size_t>(i) - 1]);
    EXPECT_TRUE(fatte[static_cast<std::size_t>(i) - 1].ends_with(" !"));
    const bool fallito = !interlocutore_.Messaggi.empty() && !SoloAvvisato();
    if (fallito) ++falliti;
    if (SoloAvvisato()) ++avvisati;
    AttendiEsito(fallito, DaErrno(GetParam().Errore));
    AttendiSalvataggioSeguente();
  }
  if (GetParam().Errore != EINTR || GetParam().PerSempre) {
    EXPECT_GT(falliti, 8);
    EXPECT_EQ(GetParam().PerSempre ? 0 : 3, avvisati);  // listxattr, fremovexattr, fchmod
  } else {
    EXPECT_EQ(0, falliti + avvisati);  // each call is made again
  }
}

TEST_F(ComandoSalvaGuasti, ANewContentThatWasWrittenButIsNotSafeIsStillThisDocuments) {
  Prepara();
  const Elenco sane = Salva({});
  const auto cartella = std::find_if(
      sane.rbegin(), sane.rend(), [](const std::string& chiamata) { return chiamata.starts_with("fsync"); });
  ASSERT_NE(cartella, sane.rend());
  Prepara();
  interlocutore_.Rispondera(Risposta::Ok);
  Salva({{.Chiamata = static_cast<int>(sane.rend() - cartella), .Errore = EIO}});
  AttendiEsito(true, DaErrno(EIO));
  ASSERT_EQ(Nuovo, Contenuto(dirImg_ / "A.IMG"));
  interlocutore_.Messaggi.clear();
  Imposta(Sezione::Testata, "altra\r\n");
  comandi_.Salva(tre_);
  AttendiMessaggi({});
  EXPECT_EQ("altra", Contenuto(dirImg_ / "A.IMG").substr(0, 5));
  EXPECT_EQ(Elenco{"A.IMG"}, Nomi(dirImg_.Percorso()));
}

INSTANTIATE_TEST_SUITE_P(Casi, ComandoSalvaSottoGuasto, testing::ValuesIn(CasiGuasto), NomeCaso);

}  // namespace
}  // namespace parvik::prova

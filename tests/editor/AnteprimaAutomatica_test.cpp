// The preview that follows every change by itself.
#include <gmock/gmock.h>

#include <thread>

#include "BancoStampa.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

/// A type is chosen; the preview is shown, and follows by itself.
class AnteprimaAutomatica : public BancoEditore {
 protected:
  AnteprimaAutomatica() {
    editore_.ScegliTipo(Fattura);
    editore_.Commuta(Preferenza::AnteAuto);
    editore_.ImpostaCorpo({.RigheCorpo = 1, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
  }

  void Batti(const char* testo, Sezione sezione = Sezione::Testata) {
    editore_.Modello().Applica(sezione, {.Dove = 0, .Tolti = 0, .Messi = testo}, GenereModifica::Battuta, {});
  }
  /// As the window does when all keys have been handled.
  std::optional<LavoroAnteprima> Segui() {
    return editore_.AnteprimaDaRifare() ? editore_.RinnovaAnteprima() : std::nullopt;
  }
  /// A text that is not rendered at once.
  static std::string Lungo() {
    std::string testo;
    for (int i = 0; i < 50'000; ++i) testo += "una riga\r\n";
    return testo;
  }
};

TEST_F(AnteprimaAutomatica, FollowsATextByItself) {
  Batti("uno\r\n");
  EXPECT_EQ(Segui(), std::nullopt) << "it is small";
  EXPECT_THAT(vista_.Rinnovate, ElementsAre("uno\r\n\r\n\r\n--- Fine file ---"));
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
  EXPECT_FALSE(editore_.AnteprimaDaRifare());
}

TEST_F(AnteprimaAutomatica, ABurstOfChangesIsOneRun) {
  for (const char* tasto : {"c", "b", "a"}) Batti(tasto);
  Segui();
  Segui();
  EXPECT_THAT(vista_.Rinnovate, ElementsAre(StartsWith("abc")));
}

TEST_F(AnteprimaAutomatica, FollowsUndoPrintFlagsBodySettingsAndAnotherType) {
  Batti(Byte("«F3N»«P7»\r\n").c_str());
  Segui();
  for (std::size_t riga = 0; riga < editore_.Flag().Righe().size(); ++riga)
    editore_.Flag().SettaFlag(riga, true);
  EXPECT_TRUE(editore_.AnteprimaDaRifare());
  Segui();
  editore_.Annulla();
  Segui();
  Batti("corpo", Sezione::Corpo);
  Segui();
  editore_.ImpostaCorpo({.RigheCorpo = 2, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
  Segui();
  editore_.Modello().Stato().Modificato = false;
  editore_.Nuovo();
  EXPECT_FALSE(editore_.AnteprimaDaRifare()) << "there is no type";
  editore_.ScegliTipo(Listino);
  Segui();
  ASSERT_EQ(vista_.Rinnovate.size(), 6U);
  EXPECT_THAT(vista_.Rinnovate[0], StartsWith("\r\n"));
  EXPECT_THAT(vista_.Rinnovate[1], StartsWith("7\r\n"));
  EXPECT_EQ(vista_.Rinnovate[2], "");
  EXPECT_THAT(vista_.Rinnovate[3], StartsWith("corpo\r\n\r\n"));
  EXPECT_THAT(vista_.Rinnovate[4], StartsWith("corpo\r\ncorpo\r\n"));
  EXPECT_EQ(vista_.Rinnovate[5], "") << "the new template is empty";
}

TEST_F(AnteprimaAutomatica, DoesNothingWhileItIsOffOrThePreviewIsNotShown) {
  Batti("x");
  editore_.Commuta(Preferenza::AnteAuto);
  EXPECT_FALSE(editore_.AnteprimaDaRifare());
  editore_.Commuta(Preferenza::AnteAuto);
  EXPECT_TRUE(editore_.AnteprimaDaRifare()) << "turning it on renders";
  editore_.CommutaAnteprima();
  EXPECT_FALSE(editore_.AnteprimaDaRifare());
}

TEST_F(AnteprimaAutomatica, ARunByCommandPutsTheCaretAtTheStartAndLeavesNothingToDo) {
  Batti("x\r\n");
  editore_.CommutaAnteprima();
  editore_.CommutaAnteprima();
  EXPECT_EQ(vista_.Anteprime.size(), 1U);
  EXPECT_FALSE(editore_.AnteprimaDaRifare());
  EXPECT_THAT(vista_.Rinnovate, IsEmpty());
}

TEST_F(AnteprimaAutomatica, ALongTemplateIsRenderedOnAThreadFromASnapshot) {
  Imposta(Sezione::Testata, Lungo());
  std::optional<LavoroAnteprima> lavoro = Segui();
  ASSERT_TRUE(lavoro.has_value());
  EXPECT_THAT(vista_.Rinnovate, IsEmpty());
  EXPECT_FALSE(editore_.AnteprimaDaRifare()) << "it is under way";
  LavoroAnteprima::Fatto fatto;
  std::thread filo([&] { fatto = lavoro->Esegui(std::stop_token()); });
  Batti("mentre lavora ");
  filo.join();
  editore_.Consegna(std::move(fatto));
  ASSERT_EQ(vista_.Rinnovate.size(), 1U);
  EXPECT_THAT(vista_.Rinnovate[0], StartsWith("una riga\r\n"));
  EXPECT_FALSE(editore_.AnteprimaAggiornata());
  EXPECT_TRUE(editore_.AnteprimaDaRifare());
}

TEST_F(AnteprimaAutomatica, ManyRepetitionsMakeATemplateLong) {
  Batti("una riga che si ripete tante volte", Sezione::Corpo);
  editore_.ImpostaCorpo({.RigheCorpo = 32767, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
  EXPECT_TRUE(Segui().has_value());
}

TEST_F(AnteprimaAutomatica, WhatWouldTakeAllTheMemoryIsRenderedOnlyWhenAskedFor) {
  Imposta(Sezione::Corpo, std::string(60'000, 'x') + "\r\n");
  editore_.ImpostaCorpo({.RigheCorpo = 32767, .LineeCorpo = 1, .FlagSbarra = "", .FlagAccorpa = ""});
  EXPECT_EQ(Segui(), std::nullopt);
  EXPECT_THAT(vista_.Rinnovate, IsEmpty());
  EXPECT_FALSE(editore_.AnteprimaDaRifare());
  Imposta(Sezione::Corpo, "x\r\n");
  EXPECT_TRUE(editore_.AnteprimaDaRifare());
}

TEST_F(AnteprimaAutomatica, ACodeThatPrintsAMillionCharactersMakesATemplateLong) {
  Batti(Byte("«V1;1000000»\r\n").c_str());
  std::optional<LavoroAnteprima> lavoro = Segui();
  ASSERT_TRUE(lavoro.has_value());
  editore_.Consegna(lavoro->Esegui(std::stop_token()));
  ASSERT_EQ(vista_.Rinnovate.size(), 1U);
  EXPECT_GT(vista_.Rinnovate[0].size(), 1'000'000U);
  editore_.Annulla();
  lavoro = Segui();
  ASSERT_TRUE(lavoro.has_value()) << "so long as the one before was";
  editore_.Consegna(lavoro->Esegui(std::stop_token()));
  Batti("x");
  EXPECT_EQ(Segui(), std::nullopt) << "it is short again";
}

TEST_F(AnteprimaAutomatica, AnOutdatedRunThatWasStoppedBeginsAnew) {
  Imposta(Sezione::Testata, Lungo());
  std::optional<LavoroAnteprima> lavoro = Segui();
  ASSERT_TRUE(lavoro.has_value());
  Batti("x");
  EXPECT_TRUE(editore_.AnteprimaDaRifare()) << "what is under way is of no use";
  std::stop_source smetti;
  smetti.request_stop();
  editore_.Consegna(lavoro->Esegui(smetti.get_token()));
  EXPECT_THAT(vista_.Rinnovate, IsEmpty());
  EXPECT_TRUE(editore_.AnteprimaDaRifare());
}

TEST_F(AnteprimaAutomatica, OneThatAnotherRunHasOvertakenIsNotShown) {
  Imposta(Sezione::Testata, Lungo());
  std::optional<LavoroAnteprima> lavoro = Segui();
  ASSERT_TRUE(lavoro.has_value());
  editore_.CommutaAnteprima();
  editore_.CommutaAnteprima();
  editore_.Consegna(lavoro->Esegui(std::stop_token()));
  EXPECT_THAT(vista_.Rinnovate, IsEmpty());
  EXPECT_TRUE(editore_.AnteprimaAggiornata());
}

TEST_F(AnteprimaAutomatica, WithoutMemoryItIsSilentAndTriesAgainWhenSomethingHasChanged) {
  Imposta(Sezione::Testata, Lungo());
  const std::optional<LavoroAnteprima> lavoro = Segui();
  ASSERT_TRUE(lavoro.has_value());
  LavoroAnteprima::Fatto fatto = lavoro->Esegui(std::stop_token());
  fatto.Anteprima = Interruzione::MemoriaEsaurita;
  editore_.Consegna(std::move(fatto));
  EXPECT_THAT(interlocutore_.Messaggi, IsEmpty());
  EXPECT_FALSE(editore_.AnteprimaDaRifare());
  Batti("x");
  EXPECT_TRUE(editore_.AnteprimaDaRifare());
}

TEST_F(AnteprimaAutomatica, ARunThatTheUserHasGivenUpDoesNotBeginByItself) {
  Imposta(Sezione::Testata, Lungo() + Lungo() + Lungo());
  vista_.Attesa = VistaFinta::ComeAttende::Smette;
  editore_.CommutaAnteprima();
  editore_.CommutaAnteprima();
  EXPECT_FALSE(editore_.AnteprimaAggiornata());
  EXPECT_FALSE(editore_.AnteprimaDaRifare());
  Batti("x");
  EXPECT_TRUE(editore_.AnteprimaDaRifare());
}

}  // namespace
}  // namespace parvik::prova

// Large templates: the beginning is rendered at once, the rest meanwhile.
#include <gmock/gmock.h>

#include "BancoStampa.h"

namespace parvik::prova {
namespace {

using testing::IsEmpty;

TEST_F(Stampa, ALargePreviewShowsItsBeginningFirstAndIsThenCompleted) {
  for (int i = 0; i < 20; ++i) Aggiungi(Sezione::Testata, Testo(Sezione::Testata));  // some 25 MB
  StampaSu(Destinazione::Anteprima);
  ASSERT_EQ(vista_.Anteprime.size(), 1U);
  ASSERT_EQ(vista_.Completate.size(), 1U);
  EXPECT_LT(vista_.Anteprime[0].size(), vista_.Completate[0].size());
  EXPECT_TRUE(vista_.Completate[0].starts_with(vista_.Anteprime[0]));
  EXPECT_TRUE(vista_.Completate[0].ends_with("--- Fine file ---"));
  EXPECT_FALSE(vista_.Anteprime[0].ends_with("--- Fine file ---"));
}

std::string TanteVolte(std::string_view riga) {
  std::string testo;
  for (int i = 0; i < 500'000; ++i) testo += riga;
  return testo;
}

/// Three sections, of which one is far longer than what is rendered at once.
class StampaLunga : public Stampa, public testing::WithParamInterface<Sezione> {
 protected:
  StampaLunga() {
    editore_.ScegliTipo(Fattura);
    editore_.ImpostaCorpo({.RigheCorpo = 4, .LineeCorpo = 2, .FlagSbarra = "", .FlagAccorpa = ""});
    Imposta({"testa\r\n", "corpo\r\nuno\r\n", "piede\r\n"});
    vista_.Anteprime.clear();
  }
  void Allunga(std::string_view riga) { Aggiungi(GetParam(), TanteVolte(riga)); }
};

TEST_P(StampaLunga, WhatIsShownFirstIsTheBeginningOfTheWholePreview) {
  Allunga(Byte("r«V1;5»\r\n"));
  StampaSu(Destinazione::Anteprima);
  ASSERT_EQ(vista_.Anteprime.size(), 1U);
  ASSERT_EQ(vista_.Completate.size(), 1U);
  EXPECT_GT(vista_.Anteprime[0].size(), 500'000U);
  EXPECT_TRUE(vista_.Completate[0].starts_with(vista_.Anteprime[0]));
  EXPECT_TRUE(vista_.Completate[0].ends_with("piede\r\n\r\n--- Fine file ---") ||
              GetParam() == Sezione::Piede);
}

TEST_P(StampaLunga, ACodeThatIsNeverClosedLeavesNoLineThatIsNotInTheWholePreview) {
  Aggiungi(GetParam(), Byte("prima\r\n«mai chiuso\r\n"));
  Allunga("dentro\r\n");
  StampaSu(Destinazione::Anteprima);
  ASSERT_EQ(vista_.Completate.size(), 1U);
  EXPECT_TRUE(vista_.Completate[0].starts_with(vista_.Anteprime[0]));
  EXPECT_THAT(vista_.Anteprime[0], testing::HasSubstr("prima\r\n"));
}

INSTANTIATE_TEST_SUITE_P(Sezioni, StampaLunga, testing::ValuesIn(TutteLeSezioni),
                         [](const auto& caso) { return std::string(NomiSezioni[Indice(caso.param)]); });

TEST_F(Stampa, ALargeTemplateIsTakenOverWholeForTheTextFile) {
  Imposta(Sezione::Testata, TanteVolte("riga\r\n"));
  const std::filesystem::path file = dir_ / "uscita.txt";
  StampaSuFile(file);
  EXPECT_EQ(Contenuto(file), Testo(Sezione::Testata));
}

TEST_F(Stampa, ALargePreviewThatIsGivenUpKeepsItsBeginning) {
  for (int i = 0; i < 20; ++i) Aggiungi(Sezione::Testata, Testo(Sezione::Testata));
  vista_.Attesa = VistaFinta::ComeAttende::Smette;
  StampaSu(Destinazione::Anteprima);
  EXPECT_EQ(vista_.Anteprime.size(), 1U);
  EXPECT_THAT(vista_.Completate, IsEmpty());
  EXPECT_THAT(interlocutore_.Messaggi, IsEmpty());
}

TEST_F(Stampa, APreviewThatRunsOutOfMemorySaysSo) {
  for (int i = 0; i < 20; ++i) Aggiungi(Sezione::Testata, Testo(Sezione::Testata));
  vista_.Attesa = VistaFinta::ComeAttende::SenzaMemoria;
  interlocutore_.Rispondera(Risposta::Ok);
  StampaSu(Destinazione::Anteprima);
  ASSERT_EQ(interlocutore_.Messaggi.size(), 1U);
  EXPECT_EQ(interlocutore_.Messaggi[0].Testo, "Si è verificato l'errore: 7 Memoria esaurita");
}

}  // namespace
}  // namespace parvik::prova

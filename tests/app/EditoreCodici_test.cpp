// What the code dialogs ask of the editor, and what becomes of their answers.
#include <gtest/gtest.h>

#include "BancoEditore.h"

namespace parvik::prova {
namespace {

class EditoreCodici : public BancoEditore {
 protected:
  EditoreCodici() { editore_.ScegliTipo(Fattura); }
};

TEST_F(EditoreCodici, InsertsIntoTheTestataBeforeAnySectionHadTheFocus) {
  editore_.InserisciCodice(
      "\xAB"
      "X\xBB");
  EXPECT_EQ(vista_.Testi, (TestiSezioni{"\r\n\xAB"
                                        "X\xBB",
                                        "\r\n", "\r\n"}));
}

TEST_F(EditoreCodici, InsertsIntoTheSectionThatLastHadTheFocus) {
  editore_.AttivaSezione(Sezione::Piede);
  editore_.InserisciCodice(
      "\xAB"
      "X\xBB");
  EXPECT_EQ(vista_.Testi, (TestiSezioni{"\r\n", "\r\n",
                                        "\r\n\xAB"
                                        "X\xBB"}));
}

TEST_F(EditoreCodici, AnEmptyCodeMakesTheTemplateModifiedAllTheSame) {
  EXPECT_FALSE(editore_.Modello().Modificato);
  editore_.InserisciCodice("");
  EXPECT_TRUE(editore_.Modello().Modificato);
}

TEST_F(EditoreCodici, OffersTheActiveSectionsRecordsWithoutTheEmptySlot) {
  editore_.AttivaSezione(Sezione::Piede);
  const std::vector<Variabile> variabili = editore_.VariabiliDaOffrire();
  ASSERT_EQ(variabili.size(), 52U);
  EXPECT_EQ(variabili.front().Descrizione, "Totale merce");
  const std::vector<parvik::Flag> flag = editore_.FlagDaOffrire();
  ASSERT_EQ(flag.size(), 10U + 3U);
  EXPECT_EQ(flag.back().Descrizione, "Su tutte le pagine");
}

TEST_F(EditoreCodici, CountsTheBodyAndCompletesItsLastLine) {
  vista_.Testi[1] = "uno\r\ndue";
  EXPECT_EQ(editore_.ContaRighe(Sezione::Corpo), std::int16_t{2});
  EXPECT_EQ(vista_.Testi[1], "uno\r\ndue\r\n");
}

TEST_F(EditoreCodici, ABodyWithTooManyLinesIsSaidAndNotCounted) {
  for (int i = 0; i < 32768; ++i) vista_.Testi[1] += "\r\n";
  interlocutore_.Rispondera(Risposta::Ok);
  EXPECT_EQ(editore_.ContaRighe(Sezione::Corpo), std::nullopt);
  EXPECT_EQ(interlocutore_.Messaggi.front().Testo, "Si è verificato l'errore: 6 Overflow");
}

TEST_F(EditoreCodici, BodySettingsThatChangeMakeTheTemplateModified) {
  ImpostazioniCorpo corpo = editore_.Modello().Corpo;
  editore_.ImpostaCorpo(corpo);
  EXPECT_FALSE(editore_.Modello().Modificato);
  corpo.RigheCorpo = 12;
  editore_.ImpostaCorpo(corpo);
  EXPECT_TRUE(editore_.Modello().Modificato);
  EXPECT_EQ(editore_.Modello().Corpo, corpo);
}

TEST_F(EditoreCodici, ATotalBeyond16BitsIsSaidAndNotShown) {
  ImpostazioniCorpo corpo = editore_.Modello().Corpo;
  corpo.RigheCorpo = 32767;
  editore_.ImpostaCorpo(corpo);
  interlocutore_.Rispondera(Risposta::Ok);
  editore_.CommutaRighe();
  EXPECT_FALSE(editore_.Totali().has_value());
  EXPECT_EQ(interlocutore_.Messaggi.front().Testo, "Si è verificato l'errore: 6 Overflow");
}

}  // namespace
}  // namespace parvik::prova

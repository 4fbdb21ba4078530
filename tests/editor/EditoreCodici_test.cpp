// What the code dialogs ask of the editor, and what becomes of their answers.
#include <gtest/gtest.h>

#include "BancoEditore.h"

namespace parvik::prova {
namespace {

const std::string CodiceX =
    "\xAB"
    "X\xBB";

class EditoreCodici : public BancoEditore {
 protected:
  EditoreCodici() { editore_.ScegliTipo(Fattura); }
};

TEST_F(EditoreCodici, InsertsIntoTheTestataBeforeAnySectionHadTheFocus) {
  editore_.InserisciCodici(std::array{CodiceX});
  EXPECT_EQ(TestiOra(), (TestiSezioni{CodiceX + "\r\n", "\r\n", "\r\n"}));
}

TEST_F(EditoreCodici, InsertsIntoTheSectionThatLastHadTheFocus) {
  editore_.AttivaSezione(Sezione::Piede);
  editore_.InserisciCodici(std::array{CodiceX});
  EXPECT_EQ(TestiOra(), (TestiSezioni{"\r\n", "\r\n", CodiceX + "\r\n"}));
}

TEST_F(EditoreCodici, AnEmptyCodeMakesTheTemplateModifiedAllTheSame) {
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
  editore_.InserisciCodici(std::array{std::string()});
  EXPECT_TRUE(editore_.Modello().Stato().Modificato);
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
  Imposta(Sezione::Corpo, "uno\r\ndue");
  EXPECT_EQ(editore_.ContaRighe(Sezione::Corpo), std::int16_t{2});
  EXPECT_EQ(Testo(Sezione::Corpo), "uno\r\ndue\r\n");
}

TEST_F(EditoreCodici, BodySettingsThatChangeMakeTheTemplateModified) {
  ImpostazioniCorpo corpo = editore_.Modello().Stato().Corpo;
  editore_.ImpostaCorpo(corpo);
  EXPECT_FALSE(editore_.Modello().Stato().Modificato);
  corpo.RigheCorpo = 12;
  editore_.ImpostaCorpo(corpo);
  EXPECT_TRUE(editore_.Modello().Stato().Modificato);
  EXPECT_EQ(editore_.Modello().Stato().Corpo, corpo);
}

/// One section, whose second variable and second flag cannot be read.
class EditoreConCatalogoGuasto : public BancoEditore {
 protected:
  EditoreConCatalogoGuasto()
      : BancoEditore(
            "1,\"Prova;P*.IMG;1;1;3;90;90;90;90;11;13;90;90;90;90\"\r\n"
            "//fine documenti\r\n"
            "0001,\"Cliente;12;30;;1;0;0;0;0;0;0\r\n"
            "0002,\"Totale;99999;30;;1;0;0;0;0;0;0\r\n"
            "0003,\"Note;40;35;;1;0;0;0;0;0;0\r\n"
            "0011,\"Estero;3;N\r\n"
            "0012,\"Omaggio;99999;N\r\n"
            "0013,\"Sconto;27;S\r\n") {
    interlocutore_.Rispondera(Risposta::Ok);  // the print flags have the same error
    editore_.ScegliTipo(0);
  }
};

TEST_F(EditoreConCatalogoGuasto, OffersTheFlagsBeforeTheErrorAllOfThemAndNoOthers) {
  interlocutore_.Rispondera(Risposta::Ok);
  const std::vector<parvik::Flag> flag = editore_.FlagDaOffrire();
  ASSERT_EQ(flag.size(), 1U);
  EXPECT_EQ(flag.front(), (parvik::Flag{"Estero", 3, "N"}));
  EXPECT_EQ(interlocutore_.Messaggi.back().Testo, "Si è verificato l'errore: 6 Overflow");
}

TEST_F(EditoreConCatalogoGuasto, OffersTheVariablesBeforeTheErrorAllOfThemAndNoOthers) {
  interlocutore_.Rispondera(Risposta::Ok);
  const std::vector<Variabile> variabili = editore_.VariabiliDaOffrire();
  ASSERT_EQ(variabili.size(), 1U);
  EXPECT_EQ(variabili.front().Descrizione, "Cliente");
}

}  // namespace
}  // namespace parvik::prova

#include "editor/ContoRighe.h"

#include <gtest/gtest.h>

#include "supporto/InterlocutoreScritto.h"
#include "supporto/NomeSezione.h"

namespace parvik::prova {
namespace {

constexpr const char* Overflow = "Si è verificato l'errore: 6 Overflow";

TipoDoc DiSezioni(std::int16_t quante) {
  TipoDoc tipo;
  tipo.NumSezioni = quante;
  return tipo;
}

const TipoDoc UnaSezione = DiSezioni(1);
const TipoDoc TreSezioni = DiSezioni(3);

class Righe : public testing::Test {
 protected:
  Righe() { documento_.Stato().Corpo.RigheCorpo = 20; }

  void Imposta(const TestiSezioni& testi) {
    for (const Sezione sezione : TutteLeSezioni) documento_.Imposta(sezione, testi[Indice(sezione)]);
  }
  TestiSezioni Testi() const {
    TestiSezioni testi;
    for (const Sezione sezione : TutteLeSezioni) testi[Indice(sezione)] = documento_.Testo(sezione).Byte();
    return testi;
  }
  static std::string TroppeRighe() {
    std::string righe;
    for (int i = 0; i < 32768; ++i) righe += "\r\n";
    return righe;
  }

  Documento documento_;
  InterlocutoreScritto interlocutore_;
  ContoRighe conto_{documento_, interlocutore_};
};

TEST_F(Righe, OfASectionAreCountedAndTheLastOneIsCompletedAStepToUndo) {
  Imposta({"", "uno\r\ndue", ""});
  EXPECT_EQ(conto_.Conta(TreSezioni, Sezione::Corpo), std::int16_t{2});
  EXPECT_EQ(Testi(), (TestiSezioni{"", "uno\r\ndue\r\n", ""}));
  EXPECT_TRUE(documento_.PuoAnnullare());
}

TEST_F(Righe, OfASectionOutOfSightAreCountedAndLeftAsTheyAre) {
  Imposta({"", "", "uno\r\ndue"});
  EXPECT_EQ(conto_.Conta(UnaSezione, Sezione::Piede), std::int16_t{2});
  EXPECT_EQ(Testi(), (TestiSezioni{"", "", "uno\r\ndue"}));
  EXPECT_FALSE(documento_.PuoAnnullare());
}

TEST_F(Righe, MoreThanCanBeCountedAreSaidAndNotCounted) {
  Imposta({"", TroppeRighe(), ""});
  interlocutore_.Rispondera(Risposta::Ok);
  EXPECT_EQ(conto_.Conta(TreSezioni, Sezione::Corpo), std::nullopt);
  EXPECT_EQ(interlocutore_.Messaggi.front().Testo, Overflow);
}

TEST_F(Righe, AreHiddenUntilTheyAreAskedFor) {
  EXPECT_FALSE(conto_.Mostrati().has_value());
}

TEST_F(Righe, OfThreeSectionsAreTotalledWithTheRowsThatTheBodyTakes) {
  Imposta({"a\r\nb\r\n", "c\r\nd\r\ne\r\n", "f\r\n"});
  conto_.Commuta(TreSezioni);
  ASSERT_TRUE(conto_.Mostrati().has_value());
  EXPECT_FALSE(conto_.Mostrati()->Righe.UnaSezione);
  EXPECT_EQ(conto_.Mostrati()->Righe.Testata, 2);
  EXPECT_EQ(conto_.Mostrati()->Righe.Corpo, 20);
  EXPECT_EQ(conto_.Mostrati()->Righe.Piede, 1);
  EXPECT_EQ(conto_.Mostrati()->Pagina, 23);
}

TEST_F(Righe, OfOneSectionAreTheTestatasAlone) {
  Imposta({"a\r\nb\r\n", "", TroppeRighe()});
  conto_.Commuta(UnaSezione);
  ASSERT_TRUE(conto_.Mostrati().has_value());
  EXPECT_TRUE(conto_.Mostrati()->Righe.UnaSezione);
  EXPECT_EQ(conto_.Mostrati()->Righe.Testata, 2);
  EXPECT_EQ(conto_.Mostrati()->Pagina, 2);
}

TEST_F(Righe, AreThoseOfTheMomentAtWhichTheyWereShown) {
  Imposta({"a\r\n", "", ""});
  conto_.Commuta(UnaSezione);
  Imposta({"a\r\nb\r\n", "", ""});
  ASSERT_TRUE(conto_.Mostrati().has_value());
  EXPECT_EQ(conto_.Mostrati()->Pagina, 1);
  conto_.Commuta(UnaSezione);
  EXPECT_FALSE(conto_.Mostrati().has_value());
  conto_.Commuta(UnaSezione);
  ASSERT_TRUE(conto_.Mostrati().has_value());
  EXPECT_EQ(conto_.Mostrati()->Pagina, 2);
}

TEST_F(Righe, AreHiddenWhenNoTypeNeedsThemAnyMore) {
  conto_.Commuta(UnaSezione);
  ASSERT_TRUE(conto_.Mostrati().has_value());
  conto_.Nascondi();
  EXPECT_FALSE(conto_.Mostrati().has_value());
}

TEST_F(Righe, WhoseTotalIsBeyond16BitsAreSaidAndNotShown) {
  Imposta({"a\r\n", "", ""});
  documento_.Stato().Corpo.RigheCorpo = 32767;
  interlocutore_.Rispondera(Risposta::Ok);
  conto_.Commuta(TreSezioni);
  EXPECT_FALSE(conto_.Mostrati().has_value());
  EXPECT_EQ(interlocutore_.Messaggi.front().Testo, Overflow);
}

TEST_F(Righe, OfEachSectionThatIsTooLongAreSaid) {
  Imposta({TroppeRighe(), "", TroppeRighe()});
  interlocutore_.Rispondera(Risposta::Ok);
  interlocutore_.Rispondera(Risposta::Ok);
  conto_.Commuta(TreSezioni);
  EXPECT_FALSE(conto_.Mostrati().has_value());
}

}  // namespace
}  // namespace parvik::prova

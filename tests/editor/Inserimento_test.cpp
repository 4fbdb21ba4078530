#include "editor/Inserimento.h"

#include <gtest/gtest.h>

#include <array>

#include "BancoEditore.h"

namespace parvik::prova {
namespace {

const std::string CodiceX =
    "\xAB"
    "X\xBB";
const std::string CodiceY =
    "\xAB"
    "Y\xBB";

class InserimentoTest : public testing::Test, private AscoltatoreDocumento {
 protected:
  InserimentoTest() : ascolto_(documento_.Ascolta(*this)) {}

  void Imposta(Sezione sezione, std::string_view byte, Cursore cursore) {
    documento_.Imposta(sezione, byte);
    vista_.Cursori[Indice(sezione)] = cursore;
  }
  std::string Testo(Sezione sezione) const { return documento_.Testo(sezione).Byte(); }

  Documento documento_;
  VistaFinta vista_;
  Inserimento inserimento_{documento_, vista_};

 private:
  /// As every section that shows the text does: the caret stands behind what came in.
  void Modificata(const CambiamentoTesto& cambiamento) override {
    const std::size_t fine = cambiamento.Fatta.Dove + cambiamento.Fatta.Messi.size();
    vista_.Cursori[Indice(cambiamento.Dove)] = {.Ancora = fine, .Posto = fine};
  }
  void Sostituita(Sezione /*sezione*/) override {}

  Documento::Ascolto ascolto_;
};

TEST_F(InserimentoTest, GoesToTheTestataBeforeAnySectionHadTheFocus) {
  EXPECT_EQ(inserimento_.Attiva(), Sezione::Testata);
}

TEST_F(InserimentoTest, PutsTheFirstCodeInPlaceOfTheSelectionAndTheOthersBehindIt) {
  Imposta(Sezione::Piede, "uno due tre\r\n", {.Ancora = 4, .Posto = 7});
  inserimento_.ImpostaAttiva(Sezione::Piede);
  inserimento_.Inserisci(std::array{CodiceX, CodiceY});
  EXPECT_EQ(Testo(Sezione::Piede), "uno " + CodiceX + CodiceY + " tre\r\n");
  EXPECT_EQ(Testo(Sezione::Testata), "");
}

TEST_F(InserimentoTest, IsOneStepThatUndoingTakesBackWhole) {
  Imposta(Sezione::Testata, "uno due tre\r\n", {.Ancora = 4, .Posto = 7});
  inserimento_.Inserisci(std::array{CodiceX, CodiceY});
  ASSERT_TRUE(documento_.PuoAnnullare());
  documento_.Annulla();
  EXPECT_EQ(Testo(Sezione::Testata), "uno due tre\r\n");
  EXPECT_FALSE(documento_.PuoAnnullare());
}

TEST_F(InserimentoTest, WidensASelectionThatWouldCutACode) {
  Imposta(Sezione::Testata, "a" + CodiceX + "b\r\n", {.Ancora = 0, .Posto = 2});
  inserimento_.Prepara();
  EXPECT_EQ(vista_.Cursori[0], (Cursore{.Ancora = 0, .Posto = 1 + CodiceX.size()}));
}

TEST_F(InserimentoTest, LeavesASelectionThatCutsNoCode) {
  Imposta(Sezione::Testata, "a" + CodiceX + "b\r\n", {.Ancora = 1, .Posto = 1 + CodiceX.size()});
  inserimento_.Prepara();
  EXPECT_EQ(vista_.Cursori[0], (Cursore{.Ancora = 1, .Posto = 1 + CodiceX.size()}));
}

}  // namespace
}  // namespace parvik::prova

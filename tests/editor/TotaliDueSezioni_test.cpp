// The line totals of a document type with neither one section nor three: its template has one, and the
// others keep their texts out of sight.
#include <gtest/gtest.h>

#include "BancoEditore.h"

namespace parvik::prova {
namespace {

class TotaliDueSezioni : public BancoEditore {
 protected:
  TotaliDueSezioni()
      : BancoEditore(
            "1,\"Prova;P*.IMG;2;0;0;0;0;0;0;0;0;0;0;0;0\"\r\n"
            "//fine documenti\r\n") {
    editore_.ScegliTipo(0);
    Imposta({"uno\r\ndue", "tre", "quattro\r\ncinque\r\nsei"});
  }
};

TEST_F(TotaliDueSezioni, CountTheFooterThatIsOutOfSight) {
  editore_.CommutaRighe();
  ASSERT_TRUE(editore_.Totali().has_value());
  EXPECT_EQ(editore_.Totali()->Righe.Testata, 2);
  EXPECT_EQ(editore_.Totali()->Righe.Piede, 3);
}

TEST_F(TotaliDueSezioni, CompleteNoLineThatIsOutOfSight) {
  editore_.CommutaRighe();
  EXPECT_EQ(TestiOra(), (TestiSezioni{"uno\r\ndue\r\n", "tre", "quattro\r\ncinque\r\nsei"}));
}

TEST_F(TotaliDueSezioni, LeaveNoStepToUndoWhereNobodyCanSee) {
  editore_.CommutaRighe();
  editore_.Annulla();
  editore_.Annulla();
  ASSERT_EQ(vista_.Raggiunti.size(), 1U);
  EXPECT_EQ(vista_.Raggiunti.front().Dove, Sezione::Testata);
}

}  // namespace
}  // namespace parvik::prova

// The editor's commands say in which state they may be called, and see to it.
#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <string>

#include "BancoEditore.h"

namespace parvik {
namespace {

using prova::BancoEditore;
using prova::Fattura;
using prova::Listino;

struct Comando {
  const char* Nome;
  std::function<void(Editore&)> Chiama;
};

void PrintTo(const Comando& comando, std::ostream* uscita) {
  *uscita << comando.Nome;
}

class EditoreSenzaTipo : public BancoEditore, public testing::WithParamInterface<Comando> {
 protected:
  void MuoreDi(const char* attesa) {
    EXPECT_EXIT(GetParam().Chiama(editore_), testing::ExitedWithCode(EXIT_FAILURE), attesa);
  }
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Comandi, EditoreSenzaTipo, testing::Values(
    Comando{"Nuovo", &Editore::Nuovo},
    Comando{"Apri", &Editore::Apri},
    Comando{"Salva", &Editore::Salva},
    Comando{"SalvaConNome", &Editore::SalvaConNome},
    Comando{"CommutaAnteprima", &Editore::CommutaAnteprima},
    Comando{"Stampa", &Editore::Stampa},
    Comando{"CommutaSettaFlag", &Editore::CommutaSettaFlag},
    Comando{"CommutaRighe", &Editore::CommutaRighe},
    Comando{"AttivaSezione", [](Editore& e) { e.AttivaSezione(Sezione::Testata); }},
    Comando{"PreparaInserimento", &Editore::PreparaInserimento},
    Comando{"InserisciCodici", [](Editore& e) { e.InserisciCodici({}); }},
    Comando{"Annulla", [](Editore& e) { e.Annulla(); }}, Comando{"Ripeti", [](Editore& e) { e.Ripeti(); }},
    Comando{"VariabiliDaOffrire", &Editore::VariabiliDaOffrire},
    Comando{"FlagDaOffrire", &Editore::FlagDaOffrire},
    Comando{"VociDaInserire", [](Editore& e) { e.VociDaInserire(); }},
    Comando{"ContaUsi", [](Editore& e) { e.ContaUsi(); }},
    Comando{"Descrivi", [](Editore& e) { e.Descrivi(Sezione::Testata, "V1"); }},
    Comando{"ContaRighe", [](Editore& e) { e.ContaRighe(Sezione::Testata); }},
    Comando{"ImpostaCorpo", [](Editore& e) { e.ImpostaCorpo({}); }},
    Comando{"SegnaModificato", &Editore::SegnaModificato}),
    [](const auto& caso) { return std::string(caso.param.Nome); });
// clang-format on

TEST_P(EditoreSenzaTipo, EndsTheProgramAtTheStart) {
  MuoreDi(GetParam().Nome);
}

TEST_P(EditoreSenzaTipo, EndsTheProgramAfterNew) {
  editore_.ScegliTipo(Fattura);
  editore_.Nuovo();
  MuoreDi(GetParam().Nome);
}

class EditoreUnaSezione : public BancoEditore {};

TEST_F(EditoreUnaSezione, EndsTheProgramWhenASectionIsMeantThatThereIsNot) {
  editore_.ScegliTipo(Listino);
  EXPECT_EXIT(editore_.AttivaSezione(Sezione::Corpo), testing::ExitedWithCode(EXIT_FAILURE), "section");
  EXPECT_EXIT(editore_.ContaRighe(Sezione::Piede), testing::ExitedWithCode(EXIT_FAILURE), "section");
  EXPECT_EXIT(editore_.Descrivi(Sezione::Corpo, "V1"), testing::ExitedWithCode(EXIT_FAILURE), "section");
  EXPECT_EXIT(editore_.ImpostaCorpo({}), testing::ExitedWithCode(EXIT_FAILURE), "three sections");
}

TEST_F(EditoreUnaSezione, EndsTheProgramWhenASlotIsMeantThatTheCatalogueDoesNotHave) {
  EXPECT_EXIT(editore_.ScegliTipo(999), testing::ExitedWithCode(EXIT_FAILURE), "slot");
}

TEST_F(EditoreUnaSezione, MayCloseInEveryState) {
  EXPECT_TRUE(editore_.PuoChiudere());
  editore_.ScegliTipo(Listino);
  EXPECT_TRUE(editore_.PuoChiudere());
}

}  // namespace
}  // namespace parvik

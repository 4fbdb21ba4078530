// docs/pannello-campi.md
#include "editor/VociInseribili.h"

#include <gmock/gmock.h>
#include <rapidcheck.h>

#include <algorithm>
#include <set>

#include "BancoEditore.h"
#include "common/Lettere.h"
#include "common/Windows1252.h"
#include "tokens/Codice.h"
#include "tokens/RiscriviCodice.h"

namespace parvik::prova {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A code of the editor's delimiters.
std::string C(const std::string& contenuto) {
  return ConDelimitatori(contenuto);
}

class VociInseribiliTest : public BancoEditore {
 protected:
  VociInseribiliTest() { editore_.ScegliTipo(Fattura); }

  void Conta() {
    ASSERT_TRUE(editore_.UsiDaContare());
    EXPECT_FALSE(editore_.ContaUsi().has_value()) << "short: at once";
  }
  std::vector<VoceInseribile> Del(GruppoVoci gruppo) {
    std::vector<VoceInseribile> voci;
    std::ranges::copy_if(editore_.VociDaInserire(), std::back_inserter(voci),
                         [gruppo](const VoceInseribile& voce) { return voce.Gruppo == gruppo; });
    return voci;
  }
  std::vector<std::string> Nomi(GruppoVoci gruppo) {
    std::vector<std::string> nomi;
    for (const VoceInseribile& voce : Del(gruppo)) nomi.push_back(Utf8DaAnsi(voce.Descrizione));
    return nomi;
  }
  std::vector<std::string> Codici(GruppoVoci gruppo) {
    std::vector<std::string> codici;
    for (const VoceInseribile& voce : Del(gruppo)) codici.push_back(voce.Codice);
    return codici;
  }
  VoceInseribile Voce(GruppoVoci gruppo, int numero) {
    for (VoceInseribile& voce : Del(gruppo))
      if (voce.Numero == numero) return voce;
    ADD_FAILURE() << "no entry of number " << numero;
    return {};
  }
};

TEST_F(VociInseribiliTest, AreTheVariablesOfTheActiveSectionWithTheirDefaultCodes) {
  const auto testata = Del(GruppoVoci::Variabili);
  ASSERT_EQ(testata.size(), 51U);
  EXPECT_EQ(testata[0].Descrizione, "Ragione sociale ditta");
  EXPECT_EQ(testata[0].Codice, C("V1;40L"));
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 13).Codice, C("V13;16R;.0,2;1"));
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 51).Codice, C("V51,3;60L"));
  editore_.AttivaSezione(Sezione::Corpo);
  EXPECT_EQ(Del(GruppoVoci::Variabili).size(), 28U);
}

TEST_F(VociInseribiliTest, AreTheFlagsWithThePageConditionsBehindThem) {
  const auto flag = Del(GruppoVoci::Flag);
  ASSERT_EQ(flag.size(), 13U);
  EXPECT_EQ(flag[0].Codice, C("F1N"));
  EXPECT_EQ(flag[2].Codice, C("F3S"));
  EXPECT_EQ(flag[10].Descrizione, "Solo prima pagina");
  EXPECT_EQ(flag[12].Codice, C("F99N"));
}

TEST_F(VociInseribiliTest, OfASectionWithoutEntriesAreThePageConditionsAndTheStyles) {
  CambiaTipo(10);  // the flags of its Testata are there, those of its Piede are none
  editore_.AttivaSezione(Sezione::Piede);
  EXPECT_THAT(Nomi(GruppoVoci::Flag),
              ElementsAre("Solo prima pagina", "Escluso ultima pagina", "Su tutte le pagine"));
  EXPECT_THAT(Codici(GruppoVoci::Stili), ElementsAre(C("S;NORMALE"), C("S;GRASSETTO"), C("S;COMPRESSO"),
                                                     C("S;ITALICO"), C("S;SOTTOLINEATO")));
}

TEST_F(VociInseribiliTest, OfLanguageConstantsAndPageNumbersAreThoseInTheTemplateAndANewOne) {
  for (const GruppoVoci gruppo : {GruppoVoci::Lingua, GruppoVoci::Costanti, GruppoVoci::Pagina})
    EXPECT_THAT(Nomi(gruppo), ElementsAre("nuova voce..."));
  Imposta({C("L5;20") + C("V0;\"Totale\"") + "\r\n", C("L3") + C("L5;30") + C("P2") + "\r\n",
           C("V0;\"A\"") + C("V0;\"Totale\"") + C("P1") + "\r\n"});
  Conta();
  EXPECT_THAT(Nomi(GruppoVoci::Lingua), ElementsAre("Voce 3", "Voce 5", "nuova voce..."));
  EXPECT_THAT(Codici(GruppoVoci::Lingua), ElementsAre(C("L3;10"), C("L5;20"), ""));
  EXPECT_THAT(Codici(GruppoVoci::Costanti), ElementsAre(C("V0;\"A\""), C("V0;\"Totale\""), ""));
  EXPECT_THAT(Codici(GruppoVoci::Pagina), ElementsAre(C("P1"), C("P2"), ""));
  EXPECT_EQ(Voce(GruppoVoci::Lingua, 5).Usi, (UsiVoce{1, 1, 0}));
  EXPECT_EQ(Del(GruppoVoci::Costanti)[1].Usi, (UsiVoce{1, 0, 1}));
}

TEST_F(VociInseribiliTest, AreCountedInAllSectionsWhateverTheirFormat) {
  Imposta({C("V15;40L") + C("V15;9R") + C("F1S") + C("S;GR") + "\r\n", C("V15;1L") + "\r\n",
           C("S;grassetto") + C("V15") + C("V16;1L") + " V15;40L\r\n"});
  Conta();
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 15).Usi, (UsiVoce{2, 1, 0})) << "an incomplete code is none";
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 16).Volte(), 1U);
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 1).Volte(), 0U);
  EXPECT_EQ(Voce(GruppoVoci::Flag, 1).Volte(), 1U);
  EXPECT_EQ(Del(GruppoVoci::Stili)[1].Usi, (UsiVoce{1, 0, 1}));
}

TEST_F(VociInseribiliTest, OfAnotherSectionOnTheScreenBeforeAreNotCounted) {
  Imposta({"\r\n", C("V581;1L") + "\r\n", "\r\n"});
  CambiaTipo(Listino);
  Imposta(Sezione::Piede, C("P1"));  // it keeps a text, and is not in use
  Conta();
  EXPECT_THAT(Nomi(GruppoVoci::Pagina), ElementsAre("nuova voce..."));
}

TEST_F(VociInseribiliTest, AreCountedAnewWhenTheTextOrTheTypeChanges) {
  Conta();
  EXPECT_FALSE(editore_.UsiDaContare());
  Imposta(Sezione::Testata, C("V1;40L"));
  Conta();
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 1).Volte(), 1U);
  CambiaTipo(1);
  EXPECT_TRUE(editore_.UsiDaContare());
  editore_.Modello().Stato().Modificato = false;
  editore_.Nuovo();
  EXPECT_FALSE(editore_.UsiDaContare()) << "there is no type";
}

TEST_F(VociInseribiliTest, OfALongTemplateAreCountedByWhoeverHandsTheCountIn) {
  std::string lungo;
  for (int i = 0; i < 20'000; ++i) lungo += C("V1;40L") + "\r\n";
  Imposta(Sezione::Testata, lungo);
  const auto vecchio = editore_.ContaUsi();
  ASSERT_TRUE(vecchio.has_value());
  EXPECT_FALSE(editore_.UsiDaContare()) << "it is under way";
  Aggiungi(Sezione::Testata, C("V1;40L"));
  const auto nuovo = editore_.ContaUsi();
  ASSERT_TRUE(nuovo.has_value());
  editore_.Consegna(vecchio->Esegui());
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 1).Volte(), 0U) << "of a count that another one has followed";
  editore_.Consegna(nuovo->Esegui());
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 1).Volte(), 20'001U);
  Imposta(Sezione::Testata, lungo + lungo);
  static_cast<void>(editore_.ContaUsi());
  editore_.Consegna({.Numero = 3, .Usi = std::nullopt});
  EXPECT_EQ(Voce(GruppoVoci::Variabili, 1).Volte(), 0U) << "no memory to count";
}

TEST_F(VociInseribiliTest, TellAllThatIsKnownOfThem) {
  Imposta({C("V13;5R") + C("V13;5R") + "\r\n", "\r\n", C("V13;9R;#;0") + C("L4") + "\r\n"});
  Conta();
  EXPECT_EQ(editore_.Detta(Voce(GruppoVoci::Variabili, 13)),
            "Variabile 13 · Capitale sociale · 16 caratteri a destra, 2 decimali, separatore migliaia, zero "
            "visibile, euro\nNumerica\nCodice: «V13;16R;.0,2;1»\nSezioni: Testata\n"
            "Nel modello: 3 volte (Testata 2, Piede 1)");
  EXPECT_EQ(editore_.Detta(Voce(GruppoVoci::Variabili, 51)),
            "Variabile 51 · Note di testata · 60 caratteri a sinistra su 3 righe\nStringa\nCodice: "
            "«V51,3;60L»\nSezioni: Testata\nNel modello: mai");
  EXPECT_EQ(
      editore_.Detta(Voce(GruppoVoci::Flag, 98)),
      "Flag 98 · Escluso ultima pagina\nCodice: «F98N»\nSezioni: Testata, Corpo, Piede\nNel modello: mai");
  EXPECT_EQ(editore_.Detta(Voce(GruppoVoci::Lingua, 4)),
            "Lingua · voce 4 · 10 caratteri\nCodice: «L4;10»\nSezioni: Testata, Corpo, Piede\n"
            "Nel modello: 1 volta (Piede 1)");
  EXPECT_EQ(editore_.Detta(Del(GruppoVoci::Pagina).back()), "Numero pagina: nuova voce...");
  EXPECT_EQ(DettaInFrase(Voce(GruppoVoci::Variabili, 13)),
            "Capitale sociale, variabile 13, 3 volte nel modello");
  EXPECT_EQ(DettaInFrase(Voce(GruppoVoci::Flag, 1)), "Cliente estero, flag 1");
}

TEST_F(VociInseribiliTest, AreWhatTheirDialogGivesBackWhenItOpensOnThem) {
  const std::vector<Variabile> variabili = editore_.VariabiliDaOffrire();
  const std::vector<Flag> flag = editore_.FlagDaOffrire();
  Imposta(Sezione::Piede, C("L5;20") + C("V0;\"a\"b\"") + C("P7"));
  Conta();
  std::size_t provate = 0;
  for (const VoceInseribile& voce : editore_.VociDaInserire()) {
    if (voce.Nuova()) continue;
    EXPECT_EQ(Riscrivi(ContenutoDi(voce.Codice), variabili, flag), voce.Codice);
    EXPECT_EQ(Riconosci(ContenutoDi(voce.Codice)), GenereDi(voce.Gruppo));
    ++provate;
  }
  EXPECT_EQ(provate, 51U + 13U + 5U + 3U);
}

// --- looked for

std::vector<VoceInseribile> Prova() {
  const auto voce = [](GruppoVoci gruppo, std::optional<int> numero, const char* nome) {
    return VoceInseribile{
        .Gruppo = gruppo, .Numero = numero, .Descrizione = nome, .Nuda = InLettereNude(nome), .Codice = "x"};
  };
  using enum GruppoVoci;
  return {voce(Variabili, 5, "Riga cliente"),  voce(Variabili, 15, "Cliente"),
          voce(Variabili, 50, "Superclienti"), voce(Variabili, 7, "Altro"),
          voce(Flag, 5, "Cliente estero"),     voce(Flag, 9, "Niente"),
          voce(Stili, {}, "Normale")};
}

using Filtrati = std::vector<GruppoFiltrato>;

TEST(Filtra, WithoutWordsGivesAllInTheirOrder) {
  EXPECT_EQ(Filtra(Prova(), ""), (Filtrati{{GruppoVoci::Variabili, {0, 1, 2, 3}},
                                           {GruppoVoci::Flag, {4, 5}},
                                           {GruppoVoci::Stili, {6}}}));
}

TEST(Filtra, PutsTheBestFirstInItsGroup) {
  EXPECT_EQ(Filtra(Prova(), "cliente"), (Filtrati{{GruppoVoci::Variabili, {1, 0}}, {GruppoVoci::Flag, {4}}}));
  EXPECT_EQ(Filtra(Prova(), "client"),
            (Filtrati{{GruppoVoci::Variabili, {1, 0, 2}}, {GruppoVoci::Flag, {4}}}));
  EXPECT_EQ(Filtra(Prova(), "5"), (Filtrati{{GruppoVoci::Variabili, {0, 1, 2}}, {GruppoVoci::Flag, {4}}}));
}

TEST(Filtra, PutsTheGroupWithTheBestFirst) {
  EXPECT_EQ(Filtra(Prova(), "cliente e"),
            (Filtrati{{GruppoVoci::Flag, {4}}, {GruppoVoci::Variabili, {0, 1}}}));
  EXPECT_EQ(Filtra(Prova(), "f5"), (Filtrati{{GruppoVoci::Flag, {4}}}));
}

TEST(Filtra, GivesNothingWhereNoneAnswers) {
  EXPECT_THAT(Filtra(Prova(), "zzz"), IsEmpty());
}

TEST(ProprietaFiltra, WhatIsFoundIsExactlyWhatAnswersAndTheBestComesFirst) {
  EXPECT_TRUE(rc::check([] {
    const auto parola =
        rc::gen::elementOf(std::vector<std::string>{"cli", "ente", "riga", "ESTERO", "1", "25", "v2"});
    std::vector<VoceInseribile> voci;
    const int quante = *rc::gen::inRange(0, 40);
    for (int i = 0; i < quante; ++i) {
      const std::string nome = *parola + *rc::gen::elementOf(std::vector<std::string>{"", " "}) + *parola;
      voci.push_back({.Gruppo = static_cast<GruppoVoci>(*rc::gen::inRange(0, 3)),
                      .Numero = *rc::gen::inRange(0, 30),
                      .Descrizione = nome,
                      .Nuda = InLettereNude(nome),
                      .Codice = "x"});
    }
    const std::string cercato = *parola + " " + *rc::gen::elementOf(std::vector<std::string>{"", "cli", "2"});
    const FiltroVoci filtro(cercato);
    constexpr char Lettere[] = {'v', 'f', 's'};
    const auto merito = [&](std::size_t i) {
      return filtro.Di({voci[i].Nuda, voci[i].Numero, Lettere[static_cast<std::size_t>(voci[i].Gruppo)]});
    };
    std::size_t attese = 0;
    for (std::size_t i = 0; i < voci.size(); ++i) attese += merito(i) ? 1U : 0U;
    std::set<std::size_t> viste;
    std::optional<Merito> migliore;
    for (const GruppoFiltrato& gruppo : Filtra(voci, cercato)) {
      RC_ASSERT(!gruppo.Voci.empty());
      RC_ASSERT((!migliore || *migliore <= *merito(gruppo.Voci.front())));  // not taken apart
      migliore = merito(gruppo.Voci.front());
      for (std::size_t i = 0; i < gruppo.Voci.size(); ++i) {
        const std::size_t questa = gruppo.Voci[i];
        RC_ASSERT(voci[questa].Gruppo == gruppo.Quale);
        RC_ASSERT(merito(questa).has_value());
        RC_ASSERT(viste.insert(questa).second);
        if (i == 0) continue;
        const std::size_t prima = gruppo.Voci[i - 1];
        RC_ASSERT(std::pair(*merito(prima), prima) < std::pair(*merito(questa), questa));
      }
    }
    RC_ASSERT(viste.size() == attese);
  }));
}

}  // namespace
}  // namespace parvik::prova

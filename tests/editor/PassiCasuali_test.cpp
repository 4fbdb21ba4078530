// Whatever is done to the three sections, all of it can be undone and done again, and no code is ever left
// half.
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "BancoEditore.h"
#include "cerca/EspressioneDiProva.h"
#include "template/ComandiSezione.h"
#include "tokens/Pezzi.h"

namespace parvik::prova {
namespace {

constexpr const char* Variabile =
    "\xAB"
    "V5;29L\xBB";
constexpr const char* Larga =
    "\xAB"
    "V5;32L\xBB";
constexpr const char* Altra =
    "\xAB"
    "V4;30L\xBB";
constexpr const char* Flag =
    "\xAB"
    "F3N\xBB";

/// The hand in a section: its caret is the window's.
class Mano final : public VedutaSezione {
 public:
  explicit Mano(Cursore& cursore) : cursore_(cursore) {}
  Cursore CursoreAttuale() const override { return cursore_; }
  void Poni(Cursore cursore) override { cursore_ = cursore; }
  void ApriDialogo(const std::string& /*contenuto*/) override {}
  void ApriVariabile() override {}

 private:
  Cursore& cursore_;
};

class PassiCasuali : public BancoEditore {
 public:
  PassiCasuali() {
    editore_.ScegliTipo(Fattura);
    for (const Sezione sezione : TutteLeSezioni) Imposta(sezione, std::string("ab ") + Altra + "\r\nba\r\n");
    editore_.Modello().DimenticaPassi();
  }
  void TestBody() override {}

  void Passo() {
    const Sezione sezione = *rc::gen::elementOf(TutteLeSezioni);
    editore_.AttivaSezione(sezione);
    Cursore& cursore = vista_.Cursori[Indice(sezione)];
    Mano mano(cursore);
    ComandiSezione comandi(editore_.Modello(), sezione, mano);
    const std::size_t posto = Posto(sezione);
    cursore = {.Ancora = *rc::gen::arbitrary<bool>() ? posto : Posto(sezione), .Posto = posto};
    switch (*rc::gen::inRange(0, 9)) {
      case 0:
        return comandi.Scrivi(*rc::gen::elementOf(std::vector<std::string>{"a", "b", " ", "5"}),
                              Pressione::Prima);
      case 1:
        static_cast<void>(
            comandi.Premi(*rc::gen::element(TastoSezione::Backspace, TastoSezione::Canc), Pressione::Prima));
        return;
      case 2:
        return comandi.Elimina();
      case 3:
        return comandi.Incolla(*rc::gen::elementOf(std::vector<std::string>{"xy", Flag, "a\r\nb"}));
      case 4:
        return comandi.VaiACapo(Pressione::Prima);
      case 5: {
        const std::vector<std::string> codici =
            *rc::gen::element(std::vector<std::string>{Variabile}, std::vector<std::string>{Flag, Altra});
        cursore.Ancora = posto;  // no caret of this window follows the first of two
        return editore_.InserisciCodici(codici);
      }
      case 6:
        return Sostituisci();
      case 7:
        return editore_.Annulla();
      default:
        return editore_.Ripeti();
    }
  }

  /// Every delimiter belongs to a code that was inserted whole, or was made of one by its fields.
  bool CodiciInteri() const {
    const std::set<std::string_view> noti = {Variabile, Larga, Altra, Flag};
    for (const Sezione sezione : TutteLeSezioni) {
      const std::string testo = Testo(sezione);
      LettorePezzi lettore(testo);
      while (const auto pezzo = lettore.Prossimo())
        if (pezzo->Genere != GenerePezzo::Testo && !noti.contains(pezzo->In(testo))) return false;
    }
    return true;
  }
  void FinoInFondo(void (Editore::*passo)(), bool (Documento::*puo)() const) {
    while ((editore_.Modello().*puo)()) {
      (editore_.*passo)();
      RC_ASSERT(CodiciInteri());
    }
  }
  Editore& Banco() { return editore_; }
  TestiSezioni Testi() const { return TestiOra(); }

 private:
  /// One that lies in no code and in no line end.
  std::size_t Posto(Sezione sezione) const {
    const TestoSezione& testo = editore_.Modello().Testo(sezione);
    const Selezione riga = testo.Riga(*rc::gen::inRange<std::size_t>(0, testo.Righe()));
    return FuoriDaiCodici(testo, riga.Inizio + *rc::gen::inRange<std::size_t>(0, riga.Lunghezza + 1));
  }

  void Sostituisci() {
    struct Cosa {
      Criterio Quale;
      const char* Con;
    };
    const auto cosa = *rc::gen::elementOf(std::vector<Cosa>{
        {{.Testo = "a"}, "bb"},
        {{.Testo = "5"}, ""},
        {{.Testo = "V"}, "x"},
        {{.Testo = "b", .Dove = DoveCercare::SoloTesto}, "a"},
        {{.Testo = "V5", .Dove = DoveCercare::SoloCodici}, "larghezza 29 -> 32"},
        {{.Testo = "flag", .Dove = DoveCercare::SoloCodici}, ""},
        {{.Testo = "(.)(.)", .Espressione = true}, "\\2\\1"},
        {{.Testo = "^", .Espressione = true}, "-"},
    });
    const auto ambito = *rc::gen::element(Ambito::SezioneAttiva, Ambito::Tutte);
    editore_.Ricerche().Cerca(RichiestaRicerca{.Cosa = cosa.Quale, .Dove = ambito},
                              [](const Criterio& c) -> Esito<std::unique_ptr<Espressione>, std::string> {
                                return EspressioneDi(c.Testo);
                              });
    if (editore_.Ricerche().DaRifare())
      if (const auto lavoro = editore_.Ricerche().Rinnova()) editore_.Ricerche().Consegna(lavoro->Esegui());
    editore_.Ricerche().SostituisciTutte(cosa.Con);
  }
};

RC_GTEST_PROP(PassiCasualiProprieta, AreUndoneAndDoneAgainAndLeaveNoHalfCode, ()) {
  PassiCasuali prova;
  const TestiSezioni prima = prova.Testi();
  const int quanti = *rc::gen::inRange(1, 40);
  for (int i = 0; i < quanti; ++i) {
    prova.Passo();
    RC_ASSERT(prova.CodiciInteri());
  }
  prova.FinoInFondo(&Editore::Ripeti, &Documento::PuoRipetere);
  const TestiSezioni dopo = prova.Testi();
  prova.FinoInFondo(&Editore::Annulla, &Documento::PuoAnnullare);
  RC_ASSERT(prova.Testi() == prima);
  prova.FinoInFondo(&Editore::Ripeti, &Documento::PuoRipetere);
  RC_ASSERT(prova.Testi() == dopo);
}

}  // namespace
}  // namespace parvik::prova

// The codes of a text in their colours.
#include "template/qtColori.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <QApplication>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>
#include <vector>

#include "Tavolozze.h"
#include "common/qtTesto.h"
#include "supporto/ConNome.h"
#include "template/txtTCP.h"

namespace parvik {
namespace {

using prova::PrintTo;
using prova::Scura;
using prova::Tipi;

/// A section on the screen: without a layout nothing is ever drawn, and nothing coloured.
class SezioneMostrata {
 public:
  explicit SezioneMostrata(const QString& testo = {}) {
    editor_.document()->documentLayout();
    modello_.Imposta(Sezione::Testata, DaSchermo(testo));
  }
  QTextDocument& Testo() { return *editor_.document(); }
  QTextBlock Riga(int numero) { return Testo().findBlockByNumber(numero); }
  qtColori& Colori() { return *Testo().findChild<qtColori*>(); }
  Documento& Modello() { return modello_; }
  txtTCP& Editor() { return editor_; }

 private:
  Documento modello_;
  txtTCP editor_{modello_, Sezione::Testata, nullptr};
};

/// The coloured pieces of a line, as "text=kind", separated by blanks.
std::string Colorati(const QTextBlock& riga, const qtColori& colori) {
  std::string visti;
  for (const QTextLayout::FormatRange& tratto : riga.layout()->formats()) {
    std::string tipo = "?";
    for (const auto& [nome, valore] : Tipi) {
      if (tratto.format.foreground().color() == colori.Colore(valore)) tipo = nome;
    }
    if (!visti.empty()) visti += ' ';
    visti += riga.text().mid(tratto.start, tratto.length).toStdString() + "=" + tipo;
  }
  return visti;
}

struct Caso {
  const char* Nome;
  QString Riga;
  std::string Atteso;
};

class RigaColorata : public testing::TestWithParam<Caso> {};

TEST_P(RigaColorata, HasEachWholeCodeInTheColourOfItsKind) {
  SezioneMostrata sezione(GetParam().Riga);
  EXPECT_EQ(Colorati(sezione.Riga(0), sezione.Colori()), GetParam().Atteso);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, RigaColorata,
    testing::Values(
        Caso{"plain", "Totale EUR", ""}, Caso{"nothing", "", ""},
        Caso{"variable", "a «V8;10R» b", "«V8;10R»=variabile"},
        Caso{"constant", "«V0;\"Totale\"»", "«V0;\"Totale\"»=costante"},
        Caso{"old_constant", "«C0;\"x\"»", "«C0;\"x\"»=costante"}, Caso{"flag", "«F3S»x", "«F3S»=flag"},
        Caso{"style", "«S;GRASSETTO»", "«S;GRASSETTO»=stile"}, Caso{"language", "«L5;20»", "«L5;20»=lingua"},
        Caso{"page", "«P1»", "«P1»=pagina"}, Caso{"unknown", "«X1» «»", "«X1»=sconosciuto «»=sconosciuto"},
        Caso{"side_by_side", "«F3S»«V8;10R»", "«F3S»=flag «V8;10R»=variabile"},
        Caso{"unclosed", "«V8;10R", ""}, Caso{"closing_alone", "V8»", ""},
        Caso{"the_wrong_way_round", "»«", ""}, Caso{"unclosed_after_a_code", "«P1» «V8", "«P1»=pagina"},
        Caso{"closing_after_a_code", "«P1»»", "«P1»=pagina"},
        Caso{"a_code_reaches_to_the_next_closing", "«V1«P1»»", "«V1«P1»=variabile"},
        Caso{"control_characters_in_front", QStringLiteral("\u2400\u2401\u240A«P1»"), "«P1»=pagina"}),
    [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(QtColori, ColoursOnlyTheTextAndNeverTheBackground) {
  SezioneMostrata sezione("«V8;10R»");
  QTextCharFormat atteso;
  atteso.setForeground(sezione.Colori().Colore(TipoCodice::Variabile));
  ASSERT_EQ(sezione.Riga(0).layout()->formats().size(), 1);
  EXPECT_EQ(sezione.Riga(0).layout()->formats().first().format, atteso);
}

/// The coloured pieces of all lines.
std::vector<std::string> Righe(SezioneMostrata& sezione) {
  std::vector<std::string> righe;
  for (QTextBlock riga = sezione.Riga(0); riga.isValid(); riga = riga.next())
    righe.push_back(Colorati(riga, sezione.Colori()));
  return righe;
}

using VettoreRighe = std::vector<std::string>;

TEST(QtColori, ACodeReachesOverLineEndsUpToTheNextClosingDelimiter) {
  SezioneMostrata sezione("«V8\n\n10R» «P1»\nfine");
  EXPECT_EQ(Righe(sezione), (VettoreRighe{"«V8=variabile", "", "10R»=variabile «P1»=pagina", ""}));
}

TEST(QtColori, AClosingDelimiterFurtherOnColoursTheLinesInFrontOfItToo) {
  SezioneMostrata sezione("a «P1\nb\nc");
  EXPECT_EQ(Righe(sezione), (VettoreRighe{"", "", ""}));
  sezione.Editor().moveCursor(QTextCursor::End);
  sezione.Editor().Incolla("»");
  EXPECT_EQ(Righe(sezione), (VettoreRighe{"«P1=pagina", "b=pagina", "c»=pagina"}));
  QTest::keyClick(&sezione.Editor(), Qt::Key_A);
  QTest::keyClick(&sezione.Editor(), Qt::Key_Backspace);
  sezione.Editor().Poni(
      CursoreSu({.Inizio = sezione.Modello().Testo(Sezione::Testata).Dimensione() - 1, .Lunghezza = 1}));
  sezione.Modello().Applica(Sezione::Testata, {.Dove = 11, .Tolti = 1, .Messi = ""}, GenereModifica::Intera,
                            {});
  EXPECT_EQ(Righe(sezione), (VettoreRighe{"", "", ""}));
}

TEST(QtColori, TheKindOfACodeOfSeveralLinesIsTheSameInAllOfThem) {
  SezioneMostrata sezione("«P1\nb\nc»");
  sezione.Modello().Applica(Sezione::Testata, {.Dove = 1, .Tolti = 1, .Messi = "F"}, GenereModifica::Intera,
                            {});
  EXPECT_EQ(Righe(sezione), (VettoreRighe{"«F1=flag", "b=flag", "c»=flag"}));
}

TEST(QtColori, AnyEditLeavesTheColoursOfATextOpenedAnew) {
  EXPECT_TRUE(rc::check([] {
    const auto pezzo = [] {
      return *rc::gen::element<std::string>("\xABV1\xBB", "\xAB", "\xBB", "\r\n", "P", "a");
    };
    SezioneMostrata sezione;
    for (int passo = 0; passo < 20; ++passo) {
      const TestoSezione& testo = sezione.Modello().Testo(Sezione::Testata);
      const auto posto = [&testo] {
        const Selezione riga = testo.Riga(*rc::gen::inRange<std::size_t>(0, testo.Righe()));
        return riga.Inizio + *rc::gen::inRange<std::size_t>(0, riga.Lunghezza + 1);
      };
      const Selezione via = *rc::gen::inRange(0, 3) == 0 ? Cursore{posto(), posto()}.Selezionato()
                                                         : Selezione{.Inizio = posto()};
      sezione.Modello().Applica(Sezione::Testata,
                                {.Dove = via.Inizio, .Tolti = via.Lunghezza, .Messi = pezzo()},
                                GenereModifica::Intera, {});
      SezioneMostrata nuova(PerSchermo(testo.Byte()));
      RC_ASSERT(Righe(sezione) == Righe(nuova));
    }
  }));
}

TEST(QtColori, AKeyPressColoursItsOwnLineAndNoOther) {
  SezioneMostrata sezione("uno\n«P1»\n«F3S»");
  // Colours that no highlighter gives: whoever colours these lines again takes them away.
  QList<QList<QTextLayout::FormatRange>> segni;
  for (QTextBlock riga = sezione.Riga(1); riga.isValid(); riga = riga.next()) {
    QTextLayout::FormatRange segno{.start = 0, .length = 1, .format = {}};
    segno.format.setFontStrikeOut(true);
    riga.layout()->setFormats({segno});
    segni.append(riga.layout()->formats());
  }
  sezione.Testo().markContentsDirty(0, 0);  // else the marks would count as part of the next edit
  sezione.Editor().Incolla("«P1»");
  QTest::keyClick(&sezione.Editor(), Qt::Key_X);
  EXPECT_EQ(Colorati(sezione.Riga(0), sezione.Colori()), "«P1»=pagina");
  EXPECT_EQ(sezione.Riga(1).layout()->formats(), segni.at(0));
  EXPECT_EQ(sezione.Riga(2).layout()->formats(), segni.at(1));
}

TEST(QtColori, AnotherPaletteColoursTheWholeTextAnew) {
  SezioneMostrata sezione("«P1»\n«F3S»");
  const QColor prima = sezione.Colori().Colore(TipoCodice::Pagina);
  sezione.Colori().ImpostaTavolozza(Scura());
  EXPECT_NE(sezione.Colori().Colore(TipoCodice::Pagina), prima);
  EXPECT_EQ(Righe(sezione), (VettoreRighe{"«P1»=pagina", "«F3S»=flag"}));
}

TEST(QtColori, ColouringIsNoEdit) {
  SezioneMostrata sezione("«P1»\n");
  const QSignalSpy spia(&sezione.Editor(), &QPlainTextEdit::textChanged);
  QApplication::processEvents();
  sezione.Colori().ImpostaTavolozza(Scura());
  QApplication::processEvents();
  EXPECT_EQ(Colorati(sezione.Riga(0), sezione.Colori()), "«P1»=pagina");
  EXPECT_EQ(spia.count(), 0);
  EXPECT_FALSE(sezione.Modello().Stato().Modificato);
  EXPECT_FALSE(sezione.Modello().PuoAnnullare());
}

TEST(QtColori, UndoTakesBackTheEditAndNotTheColours) {
  SezioneMostrata sezione("«P1»");
  sezione.Editor().moveCursor(QTextCursor::End);
  sezione.Editor().Incolla("«F3S»");
  EXPECT_EQ(Colorati(sezione.Riga(0), sezione.Colori()), "«P1»=pagina «F3S»=flag");
  sezione.Modello().Annulla();
  EXPECT_EQ(Colorati(sezione.Riga(0), sezione.Colori()), "«P1»=pagina");
  EXPECT_FALSE(sezione.Modello().PuoAnnullare());
  sezione.Colori().ImpostaTavolozza(Scura());
  sezione.Modello().Ripeti();
  EXPECT_EQ(Colorati(sezione.Riga(0), sezione.Colori()), "«P1»=pagina «F3S»=flag");
}

}  // namespace
}  // namespace parvik

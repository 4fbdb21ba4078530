// Every entry of the menu table, chosen once through the window and told by what opens or what changes.
#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QScrollBar>
#include <QTest>
#include <set>

#include "Finestra.h"
#include "editor/Menu.h"
#include "template/txtTCP.h"

namespace parvik {
namespace {

using prova::Contenuto;
using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Trova;

/// Chooses an entry with the mouse, as a user does: in its menu, which is open.
void Scegli(Finestra& finestra, const char* nome) {
  QAction& azione = finestra.Azione(nome);
  ASSERT_TRUE(azione.isEnabled()) << nome;
  auto* menu = qobject_cast<QMenu*>(azione.parent());
  ASSERT_NE(menu, nullptr) << nome;
  menu->popup(finestra->pos());
  QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(&azione).center());
}

/// The class of the one dialog that an entry opens and its caption; Escape closes it.
std::string Aperto(Finestra& finestra, const char* nome) {
  std::string aperto;
  NelProssimoDialogo([&aperto](QDialog& dialogo) {
    aperto = dialogo.objectName().toStdString() + ": " + dialogo.windowTitle().toStdString();
    QTest::keyClick(&dialogo, Qt::Key_Escape);
  });
  Scegli(finestra, nome);
  finestra.Attiva();
  return aperto;
}

using Effetto = std::function<void(Finestra&, const char* nome)>;

Effetto Apre(const char* dialogo) {
  return [dialogo](Finestra& finestra, const char* nome) { EXPECT_EQ(Aperto(finestra, nome), dialogo); };
}

void Torna(Finestra& finestra, const char* nome) {
  Scegli(finestra, nome);
  EXPECT_EQ(finestra->windowTitle(), "Ordavia");
  EXPECT_FALSE(finestra.Sezione(0).isVisible());
}

/// Asks for a file under the title of that command, and gives up.
Effetto ChiedeFile(const char* titolo) {
  return [titolo](Finestra& finestra, const char* nome) {
    finestra.Persona().Scegliera({});
    Scegli(finestra, nome);
    ASSERT_EQ(finestra.Persona().Richieste.size(), 1U);
    EXPECT_EQ(finestra.Persona().Richieste[0].Titolo, titolo);
  };
}

void Salva(Finestra& finestra, const char* nome) {
  finestra.Apri("FATT01.IMG");
  QTest::keyClicks(&finestra.Sezione(0), "zz");
  Scegli(finestra, nome);
  EXPECT_EQ(Contenuto(finestra.Modello("FATT01.IMG")).substr(0, 2), "zz");
}

void Chiude(Finestra& finestra, const char* nome) {
  Scegli(finestra, nome);
  EXPECT_FALSE(finestra->isVisible());
}

void CommutaAnteprima(Finestra& finestra, const char* nome) {
  EXPECT_TRUE(finestra.Anteprima().isVisible());
  Scegli(finestra, nome);
  EXPECT_FALSE(finestra.Anteprima().isVisible());
}

/// There must be something to print.
void Stampa(Finestra& finestra, const char* nome) {
  finestra.Apri("FATT01.IMG");
  EXPECT_EQ(Aperto(finestra, nome), "frmDestStampa: Destinazione stampa");
}

/// There must be something to export.
void Esporta(Finestra& finestra, const char* nome) {
  finestra.Apri("FATT01.IMG");
  const std::filesystem::path pdf = finestra.Cartella() / "D_STM" / "FATT01.pdf";
  finestra.Persona().Scegliera(pdf);
  Scegli(finestra, nome);
  EXPECT_TRUE(Contenuto(pdf).starts_with("%PDF-"));
}

/// A window beside the main one, by its objectName.
Effetto MostraENasconde(const char* finestrella) {
  return [finestrella](Finestra& finestra, const char* nome) {
    Scegli(finestra, nome);
    EXPECT_TRUE(Trova<QDialog>(*finestra, finestrella)->isVisible());
    EXPECT_TRUE(finestra.Azione(nome).isChecked());
    Scegli(finestra, nome);
    const auto* sparita = finestra->findChild<QDialog*>(finestrella);
    EXPECT_TRUE(sparita == nullptr || !sparita->isVisible());
    EXPECT_FALSE(finestra.Azione(nome).isChecked());
  };
}

/// A part of the window that is there at first, by its objectName.
Effetto NascondeEMostra(const char* parte) {
  return [parte](Finestra& finestra, const char* nome) {
    finestra.Scegli(1);
    for (const bool visibile : {false, true}) {
      EXPECT_NE(Trova<QWidget>(*finestra, parte)->isVisible(), visibile);
      Scegli(finestra, nome);
      EXPECT_EQ(Trova<QWidget>(*finestra, parte)->isVisible(), visibile);
      EXPECT_EQ(finestra.Azione(nome).isChecked(), visibile);
    }
  };
}

/// The last change, typed here, is taken back, and done again.
void AnnullaERipeti(Finestra& finestra, const char* nome) {
  const QString prima = finestra.Sezione(0).toPlainText();
  QTest::keyClicks(&finestra.Sezione(0), "zz");
  Scegli(finestra, "mnuAnnulla");
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), prima);
  EXPECT_FALSE(finestra.Azione("mnuAnnulla").isEnabled());
  Scegli(finestra, "mnuRipeti");
  EXPECT_EQ(finestra.Sezione(0).toPlainText(), "zz" + prima);
  EXPECT_FALSE(finestra.Azione("mnuRipeti").isEnabled()) << nome;
}

/// A code with a width is as wide as what it prints, and is as wide as it is written again.
void MostraAMisura(Finestra& finestra, const char* nome) {
  finestra.Apri("FATT01.IMG");
  Scegli(finestra, nome);
  EXPECT_TRUE(Trova<txtTCP>(*finestra, "txtTCP_0")->AMisura());
  Scegli(finestra, nome);
  EXPECT_FALSE(Trova<txtTCP>(*finestra, "txtTCP_0")->AMisura());
}

/// Where the caret is drawn behind the second line of the invoice, in which a false flag hides a constant.
int DestraDellaSecondaRiga(Finestra& finestra) {
  auto* testata = Trova<txtTCP>(*finestra, "txtTCP_0");
  QTextCursor fine(testata->document()->findBlockByNumber(1));
  fine.movePosition(QTextCursor::EndOfBlock);
  return testata->cursorRect(fine).left();
}

void MisuraConFlagVeri(Finestra& finestra, const char* nome) {
  finestra.Scegli(1);
  finestra.Apri("FATT01.IMG");
  finestra.Azione("mnuMisura").trigger();
  const int prima = DestraDellaSecondaRiga(finestra);
  Scegli(finestra, nome);
  EXPECT_GT(DestraDellaSecondaRiga(finestra), prima);
  Scegli(finestra, nome);
  EXPECT_EQ(DestraDellaSecondaRiga(finestra), prima);
}

void MostraRighello(Finestra& finestra, const char* nome) {
  finestra.Scegli(1);
  Scegli(finestra, nome);
  EXPECT_TRUE(Trova<QWidget>(*finestra, "righelloAnte")->isVisible());
  Scegli(finestra, nome);
  EXPECT_FALSE(Trova<QWidget>(*finestra, "righelloAnte")->isVisible());
}

/// What is typed shows in the preview, until it is turned off.
void SegueDaSola(Finestra& finestra, const char* nome) {
  Scegli(finestra, nome);
  QTest::keyClicks(&finestra.Sezione(0), "uno");
  EXPECT_TRUE(QTest::qWaitFor([&] { return finestra.TestoAnteprima().startsWith("uno\n"); }));
  Scegli(finestra, nome);
  QTest::keyClicks(&finestra.Sezione(0), "due");
  Finestra::Calma();
  EXPECT_TRUE(finestra.TestoAnteprima().startsWith("uno\n"));
}

/// The pane scrolls to what stands at the caret: the last line of the Piede.
void VaiNellAnteprima(Finestra& finestra, const char* nome) {
  for (int i = 0; i < 200; ++i) finestra.Sezione(2).appendPlainText("riga");
  finestra.Azione("mnuAnte").trigger();
  finestra.Azione("mnuAnte").trigger();
  EXPECT_EQ(finestra.Anteprima().verticalScrollBar()->value(), 0);
  finestra.Sezione(2).setFocus();
  QTest::keyClick(&finestra.Sezione(2), Qt::Key_End, Qt::ControlModifier);
  QTest::keyClick(&finestra.Sezione(2), Qt::Key_Up);
  Scegli(finestra, nome);
  EXPECT_GT(finestra.Anteprima().verticalScrollBar()->value(), 100);
}

void MostraLaGuida(Finestra& finestra, const char* nome) {
  Scegli(finestra, nome);
  EXPECT_TRUE(Trova<QDialog>(*finestra, "frmGuida")->isVisible());
}

void ApreLaBarra(Finestra& finestra, const char* nome) {
  Scegli(finestra, nome);
  EXPECT_TRUE(Trova<QLineEdit>(*finestra, "txtCerca")->hasFocus());
  EXPECT_EQ(Trova<QLineEdit>(*finestra, "txtSost")->isVisible(), nome == std::string("mnuSostituisci"));
}

void TrovaELoSeleziona(Finestra& finestra, const char* nome) {
  finestra.Sezione(0).setPlainText("ab ab ab\n");
  Scegli(finestra, "mnuTrova");
  QTest::keyClicks(Trova<QLineEdit>(*finestra, "txtCerca"), "b");
  Scegli(finestra, nome);
  EXPECT_EQ(finestra.Sezione(0).textCursor().selectionStart(), nome == std::string("mnuTrovaSucc") ? 1 : 7);
}

void ApreIlPannello(Finestra& finestra, const char* nome) {
  Scegli(finestra, nome);
  EXPECT_TRUE(Trova<QWidget>(*finestra, "pnlProblemi")->isVisible());
}

/// A panel that is not there at first, by its objectName.
Effetto MostraENascondePannello(const char* pannello) {
  return [pannello](Finestra& finestra, const char* nome) {
    finestra.Scegli(1);
    for (const bool visibile : {true, false}) {
      Scegli(finestra, nome);
      EXPECT_EQ(Trova<QWidget>(*finestra, pannello)->isVisible(), visibile);
      EXPECT_EQ(finestra.Azione(nome).isChecked(), visibile);
    }
  };
}

void ApreIlRiquadro(Finestra& finestra, const char* nome) {
  Scegli(finestra, nome);
  EXPECT_TRUE(Trova<QWidget>(*finestra, "pnlInserisci")->isVisible());
}

/// There is a settings file as long as it is checked.
void Ricorda(Finestra& finestra, const char* nome) {
  finestra.Scegli(1);
  for (const bool acceso : {true, false}) {
    EXPECT_NE(std::filesystem::exists(finestra.Impostazioni()), acceso);
    Scegli(finestra, nome);
    EXPECT_EQ(finestra.Azione(nome).isChecked(), acceso);
    EXPECT_EQ(std::filesystem::exists(finestra.Impostazioni()), acceso);
  }
}

struct Voce {
  const char* Nome;
  Effetto Fa;

  friend void PrintTo(const Voce& voce, std::ostream* uscita) { *uscita << voce.Nome; }
};

const std::vector<Voce>& Voci() {
  static const std::vector<Voce> voci = {
      {"mnuScelta", Apre("frmScelta: Tipo Stampa")},
      {"mnuNuovo", Torna},
      {"mnuApri", ChiedeFile("Apri File Immagine")},
      {"mnuSalva", Salva},
      {"mnuSalvaNome", ChiedeFile("Salva con nome")},
      {"mnuStampa", Stampa},
      {"mnuInfo", Apre("frmAbout: Informazioni su Ordavia")},
      {"mnuEsci", Chiude},
      {"mnuAnte", CommutaAnteprima},
      {"mnuVar", Apre("frmVar: Assegnazione variabile")},
      {"mnuFlag", Apre("frmFlag: Assegnazione Flag")},
      {"mnuStile", Apre("frmStile: Stile carattere")},
      {"mnuLingua", Apre("frmLingua: Assegnazione Lingua")},
      {"mnuPagina", Apre("frmPagina: Numerazione Pagina")},
      {"mnuCostante", Apre("frmCostante: Assegnazione costante")},
      {"mnuComando", Apre("frmComando: Comando corpo")},
      {"mnuRighe", MostraENasconde("frmTotRighe")},
      {"mnuSettaFlag", MostraENasconde("frmSettaFlag")},
      {"mnuAnnulla", AnnullaERipeti},
      {"mnuRipeti", AnnullaERipeti},
      {"mnuAnteAuto", SegueDaSola},
      {"mnuMisura", MostraAMisura},
      {"mnuVaiAnte", VaiNellAnteprima},
      {"mnuBarraStrumenti", NascondeEMostra("barStrumenti")},
      {"mnuBarraStato", NascondeEMostra("barStato")},
      {"mnuRighello", MostraRighello},
      {"mnuTrova", ApreLaBarra},
      {"mnuTrovaSucc", TrovaELoSeleziona},
      {"mnuTrovaPrec", TrovaELoSeleziona},
      {"mnuSostituisci", ApreLaBarra},
      {"mnuVerifica", ApreIlPannello},
      {"mnuInserisci", ApreIlRiquadro},
      {"mnuPannelloCampi", MostraENascondePannello("pnlCampi")},
      {"mnuProblemi", MostraENascondePannello("pnlProblemi")},
      {"mnuFoglio", Apre("frmFoglio: Foglio")},
      {"mnuFlagVeri", MisuraConFlagVeri},
      {"mnuEsportaPdf", Esporta},
      {"mnuRicorda", Ricorda},
      {"mnuGuida", MostraLaGuida},
  };
  return voci;
}

class OgniVoce : public testing::TestWithParam<Voce> {};

TEST_P(OgniVoce, DoesWhatItsCaptionSays) {
  Finestra finestra;
  const char* nome = GetParam().Nome;
  if (!finestra.Azione(nome).isEnabled()) finestra.Scegli(1);
  GetParam().Fa(finestra, nome);
}

INSTANTIATE_TEST_SUITE_P(Menu, OgniVoce, testing::ValuesIn(Voci()),
                         [](const auto& caso) { return std::string(caso.param.Nome); });

TEST(OgniVoceDellaTabella, IsTriedHere) {
  std::set<std::string> nellaTabella;
  for (const VoceMenu& voce : VociMenu()) {
    if (voce.Genere == GenereVoce::Voce) nellaTabella.insert(voce.Nome);
  }
  std::set<std::string> provate;
  for (const Voce& voce : Voci()) provate.insert(voce.Nome);
  EXPECT_EQ(provate, nellaTabella);
}

TEST(DidascaliaFinestra, AFileNameWithTheToolkitsMarkOfModificationIsShownAsItIs) {
  for (const char* nome : {"A[*].IMG", "A[*][*].IMG"}) {
    Finestra finestra;
    prova::Crea(finestra.Modello(nome), "uno\r\n");
    finestra.Scegli(12);
    finestra.Apri(nome);
    EXPECT_TRUE(finestra->windowHandle()->title().endsWith(nome))
        << finestra->windowHandle()->title().toStdString();
  }
}

}  // namespace
}  // namespace parvik

// The pictures of the manual and of the first page, of the program's own windows on a copy of the example
// installation: parvik_immagini FOLDER
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>
#include <QToolBar>
#include <QTreeView>
#include <cstdio>
#include <filesystem>

#include "Finestra.h"
#include "Ritratto.h"
#include "app/qtProgramma.h"
#include "common/qtItaliano.h"
#include "common/righello.h"
#include "sistema/Locale.h"

namespace parvik::prova {
namespace {

const QSize Piccola(820, 520);
const QSize Grande(820, 600);

/// Another name of the installation, the same wherever and whenever this runs: the status bar shows it.
class NomeFisso {
 public:
  explicit NomeFisso(const std::filesystem::path& velkor) {
    if (std::filesystem::is_symlink(percorso_))
      std::filesystem::remove(percorso_);  // of a run that was killed
    std::filesystem::create_directory_symlink(velkor, percorso_);
  }
  NomeFisso(const NomeFisso&) = delete;
  NomeFisso& operator=(const NomeFisso&) = delete;
  ~NomeFisso() { std::filesystem::remove(percorso_); }
  const std::filesystem::path& Percorso() const { return percorso_; }

 private:
  std::filesystem::path percorso_ = std::filesystem::temp_directory_path() / "velkor";
};

class Ritrattista {
 public:
  explicit Ritrattista(QDir cartella) : cartella_(std::move(cartella)) {}

  void Tutto() {
    Inizio();
    LaFattura();
    Maschere();
    Accanto();
    Pannelli();
  }

 private:
  void Inizio() {
    finestra_->resize(Piccola);
    Ritrai(*finestra_, cartella_, "inizio");
    Dialogo("mnuScelta", "tipo");
    finestra_.Scegli(1);
  }

  void LaFattura() {
    finestra_.Persona().Scegliera(velkor_.Percorso() / "D_IMG" / "FATT01.IMG");
    finestra_.Azione("mnuApri").trigger();
    finestra_->resize(Grande);
    finestra_.Azione("mnuAnte").trigger();
    Cursore(0, 2, 14);
    Ritrai(*finestra_, cartella_, "finestra");
    finestra_.Azione("mnuMisura").trigger();
    finestra_.Azione("mnuRighello").trigger();
    Finestra::Calma();
    auto& sopra = *finestra_->findChild<righello*>("righello_0");
    QTest::mouseClick(&sopra, Qt::LeftButton, {}, QPoint(sopra.width() * 2 / 3, sopra.height() / 2));
    Ritrai(*finestra_, cartella_, "campi");
    for (const char* nome : {"mnuMisura", "mnuRighello"}) finestra_.Azione(nome).trigger();
  }

  void Maschere() {
    Codice(1, "V105", "variabile");
    Codice(1, "F24", "flag");
    Codice(0, "S;GRASSETTO", "stile");
    Dialogo("mnuLingua", "lingua");
    Dialogo("mnuPagina", "pagina");
    Codice(0, "V0;\"FATTURA\"", "costante");
    Dialogo("mnuComando", "comando");
    Dialogo("mnuStampa", "destinazione");
    Dialogo("mnuFoglio", "foglio",
            [](QDialog& dialogo) { Trova<QComboBox>(dialogo, "cmbCarta")->setCurrentIndex(1); });
  }

  void Accanto() {
    finestra_.Azione("mnuSettaFlag").trigger();
    auto& flag = *Trova<QDialog>(*finestra_, "frmSettaFlag");
    Trova<QListWidget>(flag, "lstFlag")->setCurrentRow(2);
    Ritrai(flag, cartella_, "setta-flag");
    finestra_.Azione("mnuSettaFlag").trigger();
    finestra_.Azione("mnuRighe").trigger();
    Ritrai(*Trova<QDialog>(*finestra_, "frmTotRighe"), cartella_, "totali");
    finestra_.Azione("mnuRighe").trigger();
    finestra_.Attiva();
  }

  void Pannelli() {
    Cursore(1, 0, 0);
    finestra_.Azione("mnuInserisci").trigger();
    QTest::keyClicks(QApplication::focusWidget(), "sec sco");
    Ritrai(*Trova<QWidget>(*finestra_, "pnlInserisci"), cartella_, "inserisci");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    finestra_.Azione("mnuPannelloCampi").trigger();
    Ritrai(*Trova<QWidget>(*finestra_, "pnlCampi"), cartella_, "pannello-campi");
    finestra_.Azione("mnuPannelloCampi").trigger();
    finestra_.Azione("mnuSostituisci").trigger();
    auto& trova = *Trova<QToolBar>(*finestra_, "barTrova");
    Trova<QComboBox>(trova, "cmbAmbito")->setCurrentIndex(1);
    Trova<QCheckBox>(trova, "chkCodici")->setChecked(true);
    Trova<QLineEdit>(trova, "txtCerca")->setText("larghezza 29");
    Trova<QLineEdit>(trova, "txtSost")->setText("larghezza 24");
    Ritrai(trova, cartella_, "trova");
    QTest::keyClick(Trova<QLineEdit>(trova, "txtCerca"), Qt::Key_Escape);
    Cursore(0, 0, 0);
    finestra_.Sezione(0).insertPlainText(
        "\u00ABV538;40L\u00BB \u00ABV04;05L\u00BB\n\u00ABF24S\u00BB\u00ABV3;40L\u00BB\n");
    finestra_.Azione("mnuVerifica").trigger();
    Ritrai(*Trova<QWidget>(*finestra_, "pnlProblemi"), cartella_, "problemi");
  }

  void Cursore(int sezione, int riga, int colonna) {
    QPlainTextEdit& testo = finestra_.Sezione(sezione);
    QTextCursor qui(testo.document()->findBlockByNumber(riga));
    qui.movePosition(QTextCursor::Right, QTextCursor::MoveAnchor, colonna);
    testo.setTextCursor(qui);
    testo.setFocus();
  }

  /// The dialog of the code that begins so.
  void Codice(int sezione, const QString& inizio, const char* nome) {
    QPlainTextEdit& testo = finestra_.Sezione(sezione);
    QTextCursor qui = testo.document()->find("\u00AB" + inizio);
    qui.setPosition(qui.selectionStart() + 1);
    testo.setTextCursor(qui);
    testo.setFocus();
    NelProssimoDialogo([&](QDialog& dialogo) { RitraiEChiudi(dialogo, nome); });
    QTest::keyClick(&testo, Qt::Key_F4);
    finestra_.Attiva();
  }

  void Dialogo(const char* voce, const char* nome, const std::function<void(QDialog&)>& prima = {}) {
    NelProssimoDialogo([&](QDialog& dialogo) {
      if (prima) prima(dialogo);
      RitraiEChiudi(dialogo, nome);
    });
    finestra_.Azione(voce).trigger();
    finestra_.Attiva();
  }

  void RitraiEChiudi(QDialog& dialogo, const char* nome) {
    Ritrai(dialogo, cartella_, nome);
    dialogo.reject();
  }

  QDir cartella_;
  Finestra finestra_;
  NomeFisso velkor_{finestra_.Cartella()};
};

}  // namespace
}  // namespace parvik::prova

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  if (argc != 2) {
    std::fputs("parvik_immagini FOLDER\n", stderr);
    return 2;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  parvik::PreparaLocale();
  parvik::qtProgramma programma(argc, argv);
  if (!parvik::ParlaItaliano(programma)) {
    std::fputs("qtbase_it is not installed\n", stderr);
    return 1;
  }
  const QDir cartella(QDir(QString::fromLocal8Bit(argv[1])).absolutePath());
  parvik::prova::Ritrattista(cartella).Tutto();
  return ::testing::Test::HasFailure() ? 1 : 0;
}

// docs/manuale: what its pages name is there, in the program's own windows.
#include "docs/Manuale.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeView>
#include <set>

#include "Finestra.h"
#include "app/qtNotizie.h"
#include "app/qtPagineGuida.h"

namespace parvik {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using prova::Finestra;
using prova::PaginaManuale;
using prova::Trova;

/// As pages write it: without the mark of the access key, and without a colon at its end.
QString Scritta(QString didascalia) {
  didascalia.remove('&');
  return didascalia.endsWith(':') ? didascalia.chopped(1) : didascalia;
}

/// All that can be read in the windows of the program, and the entries of its menus with the way to them.
class Didascalie {
 public:
  Didascalie() {
    SenzaTipo();
    ConTipo();
    Dialoghi();
    Avvisi();
    Recupero();
    const QMessageBox domanda(QMessageBox::Question, {}, {},
                              QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    Leggi(domanda);
  }
  bool Ha(const QString& didascalia) const { return tutte_.contains(didascalia); }

 private:
  void Leggi(const QWidget& dove) {
    Metti(dove.windowTitle());
    for (const auto* pulsante : dove.findChildren<QAbstractButton*>()) Metti(pulsante->text());
    for (const auto* etichetta : dove.findChildren<QLabel*>()) Metti(etichetta->text());
    for (const auto* gruppo : dove.findChildren<QGroupBox*>()) Metti(gruppo->title());
    for (const auto* scelta : dove.findChildren<QComboBox*>())
      for (int i = 0; i < scelta->count(); ++i) Metti(scelta->itemText(i));
    for (const auto* elenco : dove.findChildren<QTreeView*>())
      for (int i = 0; elenco->model() != nullptr && i < elenco->model()->columnCount(); ++i)
        Metti(elenco->model()->headerData(i, Qt::Horizontal).toString());
  }
  void LeggiMenu(const QWidget& menu, const QString& davanti) {
    for (const QAction* azione : menu.actions()) {
      const QString voce = davanti + Scritta(azione->text().section('\t', 0, 0));
      tutte_.insert(voce);
      if (azione->menu() != nullptr) LeggiMenu(*azione->menu(), voce + " > ");
    }
  }
  void Metti(const QString& didascalia) { tutte_.insert(Scritta(didascalia)); }

  void SenzaTipo() {
    EXPECT_TRUE(QTest::qWaitFor([&] { return finestra_->findChild<QWidget*>("pnlInizio") != nullptr; }));
    Leggi(*finestra_);
    Dialogo("mnuScelta");
  }
  void ConTipo() {
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    LeggiMenu(*finestra_->menuBar(), "");
    for (const char* nome : {"mnuSostituisci", "mnuVerifica", "mnuPannelloCampi", "mnuInserisci",
                             "mnuSettaFlag", "mnuRighe", "mnuGuida", "mnuAnte"})
      finestra_.Azione(nome).trigger();
    Leggi(*finestra_);
    for (const char* nome : {"frmSettaFlag", "frmTotRighe", "frmGuida"})
      Leggi(*Trova<QDialog>(*finestra_, nome));
    finestra_.Attiva();
    QPlainTextEdit& testata = finestra_.Sezione(0);
    LeggiContesto(testata, testata.cursorRect(QTextCursor(testata.document()->find("V1;40L"))).center());
    LeggiContesto(finestra_.Anteprima(), QPoint(5, 5));
  }
  void LeggiContesto(QAbstractScrollArea& dove, QPoint punto) {
    QWidget& vista = *dove.viewport();
    QContextMenuEvent evento(QContextMenuEvent::Mouse, punto, vista.mapToGlobal(punto));
    QApplication::sendEvent(&vista, &evento);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr) << dove.objectName().toStdString();
    LeggiMenu(*menu, "");
    menu->close();
  }
  void Dialoghi() {
    for (const char* nome : {"mnuVar", "mnuFlag", "mnuStile", "mnuLingua", "mnuPagina", "mnuCostante",
                             "mnuComando", "mnuStampa", "mnuFoglio", "mnuInfo"})
      Dialogo(nome);
    finestra_.Azione("mnuNuovo").trigger();
    finestra_.Scegli(13);
    finestra_.Azione("mnuRighe").trigger();
    Leggi(*Trova<QDialog>(*finestra_, "frmTotRighe"));
    finestra_.Azione("mnuNuovo").trigger();
  }
  void Dialogo(const char* voce) {
    prova::NelProssimoDialogo([this](QDialog& dialogo) {
      Leggi(dialogo);
      dialogo.reject();
    });
    finestra_.Azione(voce).trigger();
    finestra_.Attiva();
  }
  /// Somebody else has saved the template.
  void Avvisi() {
    finestra_.Scegli(1);
    finestra_.Apri("FATT01.IMG");
    const fs::path file = finestra_.Modello("FATT01.IMG");
    prova::Crea(file, "x\r\n");
    fs::last_write_time(file, fs::last_write_time(file) + 1s);
    QEvent attivata(QEvent::WindowActivate);
    QApplication::sendEvent(&*finestra_, &attivata);
    const auto barra = [&] { return finestra_->findChild<QWidget*>("barAvviso"); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return barra() != nullptr; }));
    Leggi(*finestra_);
  }
  /// The program has ended suddenly: the copy that it kept is there at the next start.
  void Recupero() {
    finestra_.ImpostaIntervallo(10ms);
    finestra_.Riavvia();
    finestra_.Azione("mnuRicorda").trigger();
    finestra_.Scegli(1);
    QTest::keyClicks(&finestra_.Sezione(0), "x");
    const fs::path cartella = finestra_.Stato() / "ordavia";
    fs::path copia;
    EXPECT_TRUE(QTest::qWaitFor([&] {
      for (const auto& voce :
           fs::is_directory(cartella) ? fs::directory_iterator(cartella) : fs::directory_iterator())
        if (voce.path().extension() == ".copia" && voce.path().filename().string().front() != '.')
          copia = voce.path();
      return !copia.empty();
    }));
    const std::string byte = prova::Contenuto(copia);
    finestra_.Persona().RisponderaSeChiesto(Risposta::No);
    finestra_.RiavviaDopo([&] {
      prova::Crea(copia, byte);
      fs::permissions(cartella, fs::perms(0700));
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return finestra_->findChild<QWidget*>("barRecupero") != nullptr; }));
    Leggi(*finestra_);
  }

  Finestra finestra_;
  std::set<QString> tutte_;
};

TEST(Manuale, NamesOnlyEntriesAndCaptionsThatTheProgramHas) {
  const Didascalie didascalie;
  std::size_t nominate = 0;
  for (const PaginaManuale& pagina : prova::PagineManuale()) {
    for (const std::string& nominata : prova::DidascalieDi(pagina)) {
      EXPECT_TRUE(didascalie.Ha(QString::fromStdString(nominata))) << pagina.Nome << " names " << nominata;
      ++nominate;
    }
  }
  EXPECT_GT(nominate, 200U);
}

TEST(Manuale, NamesOnlyKeysThatTheProgramHas) {
  Finestra finestra;
  const QStringList tasti = NomiTasti(*finestra->findChild<qtMenu*>());
  std::size_t nominati = 0;
  for (const PaginaManuale& pagina : prova::PagineManuale()) {
    for (const std::string& nominato : prova::TastiDi(pagina)) {
      EXPECT_TRUE(tasti.contains(QString::fromStdString(nominato))) << pagina.Nome << " names " << nominato;
      ++nominati;
    }
  }
  EXPECT_GT(nominati, 100U);
}

}  // namespace
}  // namespace parvik

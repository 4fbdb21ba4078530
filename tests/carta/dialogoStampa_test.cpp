// The toolkit's print dialog as this program shows it, with a real printer in it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "CartaStampata.h"
#include "Finestra.h"
#include "TestiDialogo.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::TestiDi;
using prova::Trova;

/// What the test's printer calls itself and its options: words of its driver.
const QSet<QString> DellaStampante = {
    "prova",        "Prova, keeps its jobs", "A4",         "Letter",    "A5",
    "Modulo",       "dato qualita",          "dato bassa", "dato alta", "dato vassoio",
    "dato piccolo", "dato grande",
};

const QSet<QString> NelDialogo = {
    "Stampa",
    "Stampante",
    "Nome:",
    "Posizione:",
    "Tipo:",
    "Proprietà",
    "Annulla",
    // Copie
    "Copie",
    "Copie:",
    "Impostazioni di uscita",
    "Fascicola",
    "Ordine inverso",
    // Opzioni
    "Opzioni",
    "Opzioni <<",
    "Stampa fronte/retro",
    "No",
    "Rilegatura sul lato lungo",
    "Rilegatura sul lato corto",
};

const QSet<QString> NelleProprieta = {
    "Proprietà della stampante",
    "OK",
    "Annulla",
    // Pagina
    "Pagina",
    "Carta",
    "Dimensione della pagina:",
    "Larghezza:",
    "Altezza:",
    "mm",
    "Millimetri (mm)",
    "Pollici (in)",
    "Punti (pt)",
    "Pica (P\u0338)",
    "Didot (DD)",
    "Cicero (CC)",
    "Orientamento",
    "Verticale",
    "Orizzontale",
    "Margini",
    "margine superiore",
    "margine inferiore",
    "margine sinistro",
    "margine destro",
    "Impaginazione",
    "Pagine per foglio:",
    "Ordine delle pagine:",
    "1 (1x1)",
    "2 (2x1)",
    "4 (2x2)",
    "6 (2x3)",
    "9 (3x3)",
    "16 (4x4)",
    "Da sinistra a destra, dall'alto verso il basso",
    "Da sinistra a destra, dal basso verso l'alto",
    "Da destra a sinistra, dal basso verso l'alto",
    "Da destra a sinistra, dall'alto verso il basso",
    "Dal basso verso l'alto, da sinistra a destra",
    "Dal basso verso l'alto, da destra a sinistra",
    "Dall'alto verso il basso, da sinistra a destra",
    "Dall'alto verso il basso, da destra a sinistra",
    // Opzioni del processo
    "Opzioni del processo",
    "Controllo del processo",
    "Pianificazione della stampa:",
    "Informazioni di resoconto:",
    "Priorità del processo:",
    "Stampa immediatamente",
    "Trattieni indefinitamente",
    "Giorno (dalle 06:00 alle 17:59)",
    "Notte (dalle 18:00 alle 05:59)",
    "Secondo turno (dalle 16:00 alle 23:59)",
    "Terzo turno (dalle 00:00 alle 07:59)",
    "Finesettimana (da sabato a domenica)",
    "Orario specifico",
    "Pagine di separazione",
    "Inizio:",
    "Fine:",
    "Nessuno",
    "Standard",
    "Non classificato",
    "Confidenziale",
    "Classificato",
    "Segreto",
    "Segretissimo",
    // Avanzate
    "Avanzate",
    "Generale",
};

const QString Conflitto = "Alcune opzioni sono in conflitto tra loro: occorre cambiarle.";

std::vector<std::string> Altri(const QSet<QString>& testi, const QSet<QString>& ammessi) {
  std::vector<std::string> altri;
  for (const QString& testo : testi - ammessi - DellaStampante) altri.push_back(testo.toStdString());
  return altri;
}

void Clicca(QWidget* pulsante) {
  ASSERT_NE(pulsante, nullptr);
  ASSERT_TRUE(pulsante->isVisible()) << pulsante->objectName().toStdString();
  QTest::mouseClick(pulsante, Qt::LeftButton);
}

QPushButton* Pulsante(QWidget& dialogo, QDialogButtonBox::StandardButton quale) {
  return dialogo.findChild<QDialogButtonBox*>()->button(quale);
}

/// Opens the lower half with its tabs.
void Apri(QDialog& dialogo) {
  for (auto* pulsante : dialogo.findChildren<QPushButton*>()) {
    if (pulsante->text() == "&Opzioni >>") return Clicca(pulsante);
  }
  ADD_FAILURE() << "no button for the options";
}

void NelleProprietaDi(QDialog& dialogo, const std::function<void(QDialog&)>& compito) {
  NelProssimoDialogo(compito);
  Clicca(Trova<QPushButton>(dialogo, "properties"));
}

/// The list that offers a choice of the printer's driver.
void Scegli(QDialog& proprieta, const QString& scelta) {
  for (auto* elenco : proprieta.findChildren<QComboBox*>()) {
    if (elenco->findText(scelta) >= 0) return elenco->setCurrentText(scelta);
  }
  ADD_FAILURE() << "nothing offers " << scelta.toStdString();
}

/// What a message box says; answered with No, which goes on.
std::string Avviso(const std::function<void()>& causa) {
  std::string detto;
  NelProssimoDialogo([&detto](QDialog& avviso) {
    const auto* scatola = qobject_cast<QMessageBox*>(&avviso);
    ASSERT_NE(scatola, nullptr);
    detto = (scatola->windowTitle() + " / " + scatola->text()).toStdString();
    for (const auto* pulsante : scatola->buttons())
      detto += " / " + pulsante->text().remove('&').toStdString();
    Clicca(scatola->button(QMessageBox::No));
  });
  causa();
  return detto;
}

class DialogoStampa : public testing::Test {
 protected:
  DialogoStampa() {
    finestra_.Scegli(12);
    finestra_.Azione("mnuAnte").trigger();
    finestra_.Sezione(0).setPlainText("uno\n");
  }

  /// Does `compito` in the open print dialog, and closes that when it is left open.
  void Nel(const std::function<void(QDialog&)>& compito) {
    NelProssimoDialogo([&](QDialog& destinazione) {
      NelProssimoDialogo([&](QDialog& dialogo) {
        Apri(dialogo);
        compito(dialogo);
        if (dialogo.isVisible()) dialogo.reject();
      });
      QTest::keyClick(&destinazione, Qt::Key_Return);
    });
    finestra_.Azione("mnuStampa").trigger();
  }

  Finestra finestra_;
};

TEST_F(DialogoStampa, OffersThePrinterAndNoFile) {
  Nel([](QDialog& dialogo) {
    const auto* elenco = Trova<QComboBox>(dialogo, "printers");
    ASSERT_EQ(elenco->count(), 1);
    EXPECT_EQ(elenco->itemText(0), "prova");
    EXPECT_FALSE(Trova<QWidget>(dialogo, "filename")->isVisible());
  });
}

TEST_F(DialogoStampa, OffersNoChoiceOfPagesEvenWhenItsOptionsAreClosedAndOpenedAgain) {
  Nel([](QDialog& dialogo) {
    const auto scelte = [&dialogo] {
      QStringList visibili;
      for (const char* nome : {"gbPrintRange", "printAll", "printRange", "from", "to", "pagesRadioButton",
                               "pagesLineEdit", "printCurrentPage", "printSelection", "pageSetCombo"}) {
        if (Trova<QWidget>(dialogo, nome)->isVisible()) visibili += nome;
      }
      return visibili;
    };
    EXPECT_TRUE(Trova<QWidget>(dialogo, "copies")->isVisible());
    EXPECT_EQ(scelte(), QStringList());
    for (auto* pulsante : dialogo.findChildren<QPushButton*>()) {
      if (pulsante->text() == "&Opzioni <<") Clicca(pulsante);
    }
    Apri(dialogo);
    EXPECT_TRUE(Trova<QWidget>(dialogo, "copies")->isVisible());
    EXPECT_EQ(scelte(), QStringList());
  });
}

TEST_F(DialogoStampa, IsItalianThroughout) {
  Nel([](QDialog& dialogo) {
    const QSet<QString> testi = TestiDi(dialogo);
    EXPECT_THAT(Altri(testi, NelDialogo), testing::IsEmpty());
    EXPECT_THAT(Altri(NelDialogo, testi), testing::IsEmpty()) << "no longer there";
  });
}

TEST_F(DialogoStampa, ThePrintersPropertiesAreItalianThroughout) {
  Nel([](QDialog& dialogo) {
    NelleProprietaDi(dialogo, [](QDialog& proprieta) {
      const QSet<QString> testi = TestiDi(proprieta);
      EXPECT_THAT(Altri(testi, NelleProprieta), testing::IsEmpty());
      EXPECT_THAT(Altri(NelleProprieta, testi), testing::IsEmpty()) << "no longer there";
      proprieta.reject();
    });
  });
}

TEST_F(DialogoStampa, OptionsThatExcludeEachOtherAreToldInItalian) {
  Nel([](QDialog& dialogo) {
    NelleProprietaDi(dialogo, [](QDialog& proprieta) {
      Scegli(proprieta, "dato alta");
      Scegli(proprieta, "dato grande");
      EXPECT_THAT(Altri(TestiDi(proprieta), NelleProprieta), testing::ElementsAre(Conflitto.toStdString()));
      EXPECT_EQ(Avviso([&] { Clicca(Pulsante(proprieta, QDialogButtonBox::Ok)); }),
                "Conflitti nelle opzioni avanzate / Alcune opzioni avanzate sono in conflitto tra loro. "
                "Cambiarle? / Sì / No");
    });
    NelleProprietaDi(dialogo, [](QDialog& proprieta) {
      Scegli(proprieta, "Letter");
      EXPECT_EQ(Avviso([&] { Clicca(Pulsante(proprieta, QDialogButtonBox::Ok)); }),
                "Conflitti nelle impostazioni della pagina / Alcune impostazioni della pagina sono in "
                "conflitto con altre. Cambiarle? / Sì / No");
    });
    Trova<QRadioButton>(dialogo, "duplexShort")->setChecked(true);
    EXPECT_EQ(
        Avviso([&] { Clicca(Pulsante(dialogo, QDialogButtonBox::Ok)); }),
        "Conflitti nella stampa fronte/retro / La stampa fronte/retro è in conflitto con altre opzioni. "
        "Cambiarla? / Sì / No");
  });
  prova::CartaStampata::Prossima();
}

/// With a sheet of A5 set.
class DialogoConFoglio : public DialogoStampa {
 protected:
  DialogoConFoglio() {
    NelProssimoDialogo([](QDialog& foglio) {
      Trova<QComboBox>(foglio, "cmbCarta")->setCurrentText("A5");
      Trova<QLineEdit>(foglio, "txtMargine_0")->setText("20");
      QTest::keyClick(&foglio, Qt::Key_Return);
    });
    finestra_.Azione("mnuFoglio").trigger();
  }
  static void Stampa(QDialog& dialogo) { Clicca(Pulsante(dialogo, QDialogButtonBox::Ok)); }
  /// How wide the paper was that was printed on, in points.
  static double Larghezza() { return prova::CartaStampata::Prossima().Dimensione().width(); }
};

TEST_F(DialogoConFoglio, ThePrintersPropertiesBeginWithItsPaperAndMargins) {
  Nel([](QDialog& dialogo) {
    for (int volta = 0; volta < 2; ++volta) {
      NelleProprietaDi(dialogo, [](QDialog& proprieta) {
        EXPECT_EQ(Trova<QComboBox>(proprieta, "pageSizeCombo")->currentText(), "A5");
        EXPECT_NEAR(Trova<QDoubleSpinBox>(proprieta, "leftMargin")->value(), 20, 0.2);
        EXPECT_NEAR(Trova<QDoubleSpinBox>(proprieta, "topMargin")->value(), 6.35, 0.2)
            << "the printer's least";
        proprieta.reject();
      });
    }
    Stampa(dialogo);
  });
  EXPECT_NEAR(Larghezza(), 420, 1) << "the properties were given up";
}

TEST_F(DialogoConFoglio, WhatIsChosenInThePrintersPropertiesHolds) {
  Nel([](QDialog& dialogo) {
    NelleProprietaDi(dialogo, [](QDialog& proprieta) {
      Scegli(proprieta, "Letter");
      Clicca(Pulsante(proprieta, QDialogButtonBox::Ok));
    });
    NelleProprietaDi(dialogo, [](QDialog& proprieta) {
      EXPECT_EQ(Trova<QComboBox>(proprieta, "pageSizeCombo")->currentText(), "Letter");
      proprieta.reject();
    });
    Stampa(dialogo);
  });
  EXPECT_NEAR(Larghezza(), 612, 1);
}

}  // namespace
}  // namespace parvik

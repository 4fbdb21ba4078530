// The sheet in the main window (docs/foglio.md).
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include "Finestra.h"
#include "output/ricAnte.h"

namespace parvik {
namespace {

using prova::Finestra;
using prova::NelProssimoDialogo;
using prova::Trova;

class FoglioInFinestra : public testing::Test {
 protected:
  /// A document type of one section, its preview filled with this.
  void Mostra(const QString& testo) {
    finestra_.Scegli(12);
    finestra_.Sezione(0).setPlainText(testo);
    finestra_.Azione("mnuAnte").trigger();
    finestra_.Azione("mnuAnte").trigger();
    finestra_->resize(1500, 900);
    Finestra::Calma();
  }
  /// In the dialog; the fields that are given are written over.
  void Scegli(Carta carta, const std::map<const char*, const char*>& caselle = {}) {
    NelProssimoDialogo([&](QDialog& dialogo) {
      Trova<QComboBox>(dialogo, "cmbCarta")->setCurrentIndex(static_cast<int>(carta));
      for (const auto& [nome, testo] : caselle) Trova<QLineEdit>(dialogo, nome)->setText(testo);
      QTest::keyClick(&dialogo, Qt::Key_Return);
    });
    finestra_.Azione("mnuFoglio").trigger();
    finestra_.Attiva();
  }
  QString Pagine() {
    Finestra::Calma();
    return Trova<QLabel>(*finestra_, "lblPagine")->text();
  }
  bool PagineDiventano(const QString& atteso) {
    return QTest::qWaitFor([&] { return Pagine() == atteso; }, 2000);
  }
  QImage Foto() { return finestra_.Anteprima().viewport()->grab().toImage(); }
  /// Whether anything but the pane's background is drawn along a line of pixels.
  static int Segnati(const QImage& foto, QPoint da, QPoint passo, int quanti, QRgb vuoto) {
    int segnati = 0;
    for (int i = 0; i < quanti; ++i, da += passo) segnati += foto.pixel(da) != vuoto ? 1 : 0;
    return segnati;
  }

  Finestra finestra_;
};

TEST_F(FoglioInFinestra, ThereIsNoneAtFirst) {
  Mostra("uno\ndue\n");
  EXPECT_EQ(finestra_.Anteprima().SulFoglio(), std::nullopt);
  EXPECT_TRUE(PagineDiventano("2 righe + fine"));
}

TEST_F(FoglioInFinestra, TellsThePagesInTheStatusBar) {
  Mostra(QString("riga\n").repeated(67) + QString(120, 'x') + "\n");
  Scegli(Carta::A4);
  EXPECT_TRUE(PagineDiventano("68 righe + fine: 2 pagine, 1 riga oltre il foglio")) << Pagine().toStdString();
  Scegli(Carta::Modulo12);
  EXPECT_TRUE(PagineDiventano("68 righe + fine: 1 pagina, 1 riga oltre il foglio")) << Pagine().toStdString();
  Scegli(Carta::Personalizzata, {{"txtLargh", "300"}, {"txtAlt", "100"}});
  EXPECT_TRUE(PagineDiventano("68 righe + fine: 3 pagine")) << Pagine().toStdString();
  Scegli(Carta::Nessuna);
  EXPECT_TRUE(PagineDiventano("68 righe + fine")) << Pagine().toStdString();
}

TEST_F(FoglioInFinestra, FollowsTheTextOfANewRun) {
  Mostra("uno\n");
  Scegli(Carta::A4);
  EXPECT_TRUE(PagineDiventano("1 riga + fine: 1 pagina"));
  finestra_.Sezione(0).setPlainText(QString(100, 'x') + "\n");
  finestra_.Azione("mnuAnte").trigger();
  finestra_.Azione("mnuAnte").trigger();
  EXPECT_TRUE(PagineDiventano("1 riga + fine: 1 pagina, 1 riga oltre il foglio"));
}

TEST_F(FoglioInFinestra, GivingTheDialogUpChangesNothing) {
  Mostra("uno\n");
  Scegli(Carta::A5);
  const auto prima = finestra_.Anteprima().SulFoglio();
  NelProssimoDialogo([](QDialog& dialogo) {
    Trova<QComboBox>(dialogo, "cmbCarta")->setCurrentIndex(0);
    QTest::keyClick(&dialogo, Qt::Key_Escape);
  });
  finestra_.Azione("mnuFoglio").trigger();
  EXPECT_EQ(finestra_.Anteprima().SulFoglio(), prima);
}

TEST_F(FoglioInFinestra, EachDocumentTypeHasItsOwnAndTheTemplateIsNotModified) {
  finestra_.Scegli(12);
  Scegli(Carta::Modulo11);
  finestra_.Azione("mnuNuovo").trigger();  // asks nothing
  finestra_.Scegli(1);
  EXPECT_EQ(finestra_.Anteprima().SulFoglio(), std::nullopt);
  finestra_.Azione("mnuNuovo").trigger();
  finestra_.Scegli(12);
  ASSERT_TRUE(finestra_.Anteprima().SulFoglio());
  EXPECT_EQ(finestra_.Anteprima().SulFoglio()->Pagina.Righe, 66U);
}

TEST_F(FoglioInFinestra, AKeptSessionEndsWithoutIt) {
  finestra_.Scegli(12);
  Scegli(Carta::A4);
  finestra_.Riavvia();
  finestra_.Scegli(12);
  EXPECT_EQ(finestra_.Anteprima().SulFoglio(), std::nullopt) << "nothing is kept unless it is asked for";
}

TEST_F(FoglioInFinestra, APageEndsAtALineAcrossThePaneAndIsAsWideAsALineDownIt) {
  Mostra((QString(44, ' ') + "\n").repeated(40));
  const QImage prima = Foto();
  const QRgb vuoto = prima.pixel(prima.width() / 2, prima.height() / 2);
  Scegli(Carta::Personalizzata, {{"txtLargh", "100"}, {"txtAlt", "60"}, {"txtMargine_0", "0"}});
  Finestra::Calma();
  ricAnte& pannello = finestra_.Anteprima();
  const PaginaFoglio pagina = pannello.SulFoglio()->Pagina;
  EXPECT_EQ(pagina, (PaginaFoglio{.Colonne = 44, .Righe = 11}));
  const QImage foto = Foto();
  const double rapporto = foto.devicePixelRatio();
  for (const std::size_t riga : {11U, 22U, 33U}) {
    const QRect inizio = pannello.RettangoloDi(pannello.Contenuto().InizioRiga(riga));
    const int alto = static_cast<int>(inizio.top() * rapporto);
    EXPECT_GT(Segnati(foto, {0, alto}, {1, 0}, foto.width(), vuoto), foto.width() / 3) << riga;
  }
  for (const std::size_t riga : {10U, 12U, 21U}) {
    const QRect inizio = pannello.RettangoloDi(pannello.Contenuto().InizioRiga(riga));
    const int alto = static_cast<int>((inizio.top() + 2) * rapporto);
    EXPECT_LT(Segnati(foto, {0, alto}, {1, 0}, foto.width(), vuoto), 5 * rapporto) << riga;
  }
  const int destra = static_cast<int>(pannello.RettangoloDi(44).left() * rapporto);
  int massimo = 0;
  for (int x = destra - 3; x <= destra + 3; ++x)
    massimo = std::max(massimo, Segnati(foto, {x, 0}, {0, 1}, foto.height(), vuoto));
  EXPECT_GT(massimo, foto.height() / 3);
}

TEST_F(FoglioInFinestra, WhatStandsOutsideHasABackgroundAndWhatStandsInsideNone) {
  Mostra(QString(60, ' ') + "\n");
  Scegli(Carta::Personalizzata, {{"txtLargh", "100"}, {"txtMargine_0", "0"}});
  Finestra::Calma();
  ricAnte& pannello = finestra_.Anteprima();
  const QImage foto = Foto();
  const auto colore = [&](std::size_t colonna) {
    return foto.pixelColor(pannello.RettangoloDi(colonna).center() * foto.devicePixelRatio());
  };
  EXPECT_EQ(pannello.SulFoglio()->Pagina.Colonne, 44U);
  EXPECT_EQ(colore(1), colore(42));
  EXPECT_NE(colore(43), colore(44));
  EXPECT_EQ(colore(44), colore(59));
  EXPECT_GT(colore(50).red(), colore(50).blue());
}

}  // namespace
}  // namespace parvik

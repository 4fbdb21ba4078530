// The pane that takes another text in the place of the one that it shows, and its marks.
#include <gtest/gtest.h>

#include <QScrollBar>

#include "PannelloDiProva.h"

namespace parvik {
namespace {

/// Lines of the Testata, each "riga N".
std::string Righe(int da, int a) {
  std::string testo;
  for (int i = da; i < a; ++i) testo += "riga " + std::to_string(i) + "\r\n";
  return testo;
}

AnteprimaMappata Resa(std::string testata) {
  LavoroStampa lavoro;
  lavoro.Testi[0] = std::move(testata);
  lavoro.NumSezioni = 1;
  return *GeneraMappata(std::move(lavoro), std::stop_token());
}

/// Shows what the Testata was, and then what it is with `davanti` put in front of it.
class PannelloRinnovato {
 public:
  explicit PannelloRinnovato(const std::string& testata) : testata_(testata), prima_(Resa(testata)) {
    pannello_.Mostra({.Testo = std::string(prima_.Testo->Testo()), .Tratti = prima_.Testo->Tratti()});
  }
  void MettiDavanti(const std::string& davanti) {
    const AnteprimaMappata dopo = Resa(davanti + testata_);
    const Ricollocazione dove(prima_.Mappa, dopo.Mappa, [&davanti](Sezione, Selezione parte) {
      parte.Inizio += davanti.size();
      return std::optional(parte);
    });
    pannello_->Rinnova(dopo.Testo, dove);
  }
  ricAnte* operator->() { return pannello_.operator->(); }
  ricAnte& operator*() { return *pannello_; }
  const AnteprimaMappata& Prima() const { return prima_; }

 private:
  struct Mostrabile : prova::Pannello {
    using prova::Pannello::Pannello;
    void Mostra(Anteprima anteprima) { (**this).Mostra(std::move(anteprima)); }
  };
  std::string testata_;
  AnteprimaMappata prima_;
  Mostrabile pannello_{""};
};

TEST(RicAnteRinnovata, WhatShowsStaysWhereItIs) {
  PannelloRinnovato pannello(Righe(0, 300));
  pannello->verticalScrollBar()->setValue(100);
  pannello.MettiDavanti("sopra\r\n");
  EXPECT_EQ(pannello->verticalScrollBar()->value(), 101);
}

TEST(RicAnteRinnovata, AtTheTopTheTopIsShown) {
  PannelloRinnovato pannello(Righe(0, 300));
  pannello.MettiDavanti("sopra\r\n");
  EXPECT_EQ(pannello->verticalScrollBar()->value(), 0);
}

TEST(RicAnteRinnovata, CaretAndSelectionStayWithTheirText) {
  PannelloRinnovato pannello(Righe(0, 300));
  pannello->Seleziona(60, 50);
  pannello.MettiDavanti("sopra\r\n");
  EXPECT_EQ(pannello->Selezionato(), (Selezione{.Inizio = 57, .Lunghezza = 10}));
  EXPECT_EQ(pannello->Cursore(), 57U) << "the caret is still at the beginning";
}

TEST(RicLuoghi, AMarkOfAMillionRepetitionsLooksAtThoseThatShowAlone) {
  LavoroStampa lavoro;
  lavoro.Testi[1] = "\xABV1;3\xBB|\r\n";
  lavoro.NumSezioni = 3;
  lavoro.RigheCorpo = 32767;
  lavoro.LineeCorpo = 1;
  const AnteprimaMappata anteprima = *GeneraMappata(lavoro, std::stop_token());
  prova::Pannello pannello("");
  pannello->Mostra({.Testo = std::string(anteprima.Testo->Testo()), .Tratti = anteprima.Testo->Tratti()});
  const OrigineStampa codice{.Dove = Sezione::Corpo, .Parte = {.Inizio = 0, .Lunghezza = 6}, .Codice = true};
  EXPECT_TRUE(pannello->MostraSegni({anteprima.Mappa, codice}));
  EXPECT_FALSE(pannello->MostraSegni({anteprima.Mappa, codice})) << "they are the same";
  pannello->verticalScrollBar()->setValue(20'000);
  pannello->RivelaSegni();
  EXPECT_EQ(pannello->verticalScrollBar()->value(), 20'000) << "some show";
  const QImage immagine = pannello->viewport()->grab().toImage();
  const QColor base = pannello->palette().color(QPalette::Base);
  const std::size_t inizio = pannello->Contenuto().InizioRiga(20'001);
  const auto fondo = [&](std::size_t byte) {
    return immagine.pixelColor(pannello->RettangoloDi(byte).topLeft() + QPoint(1, 1));
  };
  EXPECT_NE(fondo(inizio), base);
  EXPECT_NE(fondo(inizio + 2), base);
  EXPECT_EQ(fondo(inizio + 3), base);
}

TEST(RicLuoghi, AMarkThatLiesOutsideTheWidthIsScrolledTo) {
  const AnteprimaMappata anteprima = Resa(std::string(500, 'x') + "y\r\n");
  prova::Pannello pannello("");
  pannello->Mostra({.Testo = std::string(anteprima.Testo->Testo()), .Tratti = anteprima.Testo->Tratti()});
  pannello->MostraSegni(
      {anteprima.Mappa, {.Dove = Sezione::Testata, .Parte = {.Inizio = 500, .Lunghezza = 1}}});
  pannello->RivelaSegni();
  EXPECT_TRUE(pannello->viewport()->rect().contains(pannello->RettangoloDi(500)));
}

}  // namespace
}  // namespace parvik

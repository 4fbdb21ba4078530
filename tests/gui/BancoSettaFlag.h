// The window of the print flags as tests drive it.
#pragma once

#include <gtest/gtest.h>

#include <QListWidget>
#include <QRadioButton>
#include <QTest>
#include <string>

#include "Finestra.h"
#include "output/FlagPerStampe.h"
#include "output/frmSettaFlag.h"

namespace parvik::prova {

/// Print flags with the rows 3, 14 and 27, and the page conditions 97, 98 and 99 after them.
inline FlagPerStampe SeiFlag() {
  const auto catalogo = Catalogo::CaricaCampi(
      "1,\"Prova;P*.IMG;1;90;90;90;90;90;90;1;3;90;90;90;90\"\r\n"
      "//fine documenti\r\n"
      "0001,\"Cliente estero;3;N\r\n"
      "0002,\"Citt\xE0 capoluogo;14;N\r\n"
      "0003,\"Sconto presente;27;S\r\n");
  FlagPerStampe flag;
  EXPECT_TRUE(catalogo);
  EXPECT_TRUE(flag.Carica(*catalogo, catalogo->TipiDoc().front()).empty());
  return flag;
}

class BancoSettaFlag : public testing::Test {
 protected:
  /// Shows the window and waits until it is the active one: only there does focus mean anything.
  void Apri() {
    finestra_.show();
    finestra_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&finestra_));
  }

  QListWidget& Lista() { return *Trova<QListWidget>(finestra_, "lstFlag"); }
  QRadioButton& Vero() { return *Trova<QRadioButton>(finestra_, "optVEFA_0"); }
  QRadioButton& Falso() { return *Trova<QRadioButton>(finestra_, "optVEFA_1"); }

  void CliccaRiga(int riga, Qt::KeyboardModifiers con = {}) {
    const QPoint punto = Lista().visualItemRect(Lista().item(riga)).center();
    QTest::mouseClick(Lista().viewport(), Qt::LeftButton, con, punto);
  }

  /// The states of the rows, in their order, as the core holds them; "?" where the list shows another.
  std::string Stati() {
    std::string stati;
    for (std::size_t i = 0; i < flag_.Righe().size(); ++i) {
      const char stato = flag_.Righe()[i].back();
      const QString mostrata = Lista().item(static_cast<int>(i))->text();
      stati += mostrata.endsWith(QChar(stato)) && mostrata.size() == 69 ? stato : '?';
    }
    return stati;
  }

  FlagPerStampe flag_ = SeiFlag();
  frmSettaFlag finestra_{flag_, nullptr};
};

}  // namespace parvik::prova

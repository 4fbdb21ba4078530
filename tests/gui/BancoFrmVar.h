// The dialog of variables on a table of two strings and two numbers, and a hand on its controls.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <string>
#include <utility>
#include <vector>

#include "Finestra.h"
#include "tokens/frmVar.h"

namespace parvik::prova {

using Codici = std::vector<std::string>;

/// Two strings, two numbers.
inline std::vector<Variabile> QuattroVariabili() {
  return {{"Cliente", 12, 30, "", 1, 0, 0, 0, 0, 0, "0", "0"},
          {"Imponibile", 25, 9, "", 0, 1, 0, 0, 0, 0, "0", "0"},
          {"Note", 40, 35, ".", 1, 0, 3, 0, 0, 0, "0", "0"},
          {"Totale imponibile", 8, 10, "", 0, 1, 0, 1, 0, 1, "2", "x"}};
}

inline std::string NessunFlag(QWidget*) {
  return {};
}

class FrmVar : public testing::Test {
 protected:
  explicit FrmVar(std::vector<Variabile> variabili = QuattroVariabili())
      : dialogo_(
            std::move(variabili), [this](QWidget* padre) { return flagScelto_(padre); }, nullptr) {
    dialogo_.show();
  }

  QListWidget* Lista() { return Trova<QListWidget>(dialogo_, "lstVar"); }
  QLineEdit* Casella(const char* nome) { return Trova<QLineEdit>(dialogo_, nome); }
  QAbstractButton* Tasto(const char* nome) { return Trova<QAbstractButton>(dialogo_, nome); }
  QString Testo(const char* nome) { return Casella(nome)->text(); }
  bool Spuntato(const char* nome) { return Tasto(nome)->isChecked(); }
  bool Attivo(const char* nome) { return Trova<QWidget>(dialogo_, nome)->isEnabled(); }
  void Clicca(const char* nome) {
    QTest::mouseClick(Tasto(nome), Qt::LeftButton, {}, QPoint(10, Tasto(nome)->height() / 2));
  }
  /// What a user does who fills a box anew.
  void Scrivi(const char* nome, const char* testo) {
    Casella(nome)->setFocus();
    Casella(nome)->selectAll();
    QTest::keyClick(Casella(nome), Qt::Key_Delete);
    for (const QChar c : QString::fromUtf8(testo)) {
      QTest::sendKeyEvent(QTest::Click, Casella(nome), Qt::Key_unknown, c, Qt::NoModifier);
    }
  }
  QString Codice() { return Testo("txtVar"); }

  frmVar dialogo_;
  ChiediFlag flagScelto_ = NessunFlag;
};

}  // namespace parvik::prova
